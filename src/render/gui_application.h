/// Qt's fonts need an application object; the programs without windows make theirs when they first render.
#pragma once

namespace terravane {

/// Makes the process's application, on the platform without a screen, where there is none yet. Call it first
/// from the main thread; it lives until the process ends.
void EnsureGuiApplication();

}  // namespace terravane
