/// The program's version, as windows, pages and the package name it. A literal, so that the texts around it are put
/// together when they are compiled; CMakeLists.txt reads it here.
#pragma once

#define TERRAVANE_VERSION "1.0"
