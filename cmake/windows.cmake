# The toolchain for Windows x86-64: Debian's mingw-w64 with POSIX threads, and the libraries that
# tools/build-windows-libraries put below TERRAVANE_WINDOWS_PREFIX. Nothing of this machine's own libraries is found.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

if(NOT TERRAVANE_WINDOWS_PREFIX)
  set(TERRAVANE_WINDOWS_PREFIX $ENV{TERRAVANE_WINDOWS_PREFIX})
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TERRAVANE_WINDOWS_PREFIX)
set(CMAKE_FIND_ROOT_PATH ${TERRAVANE_WINDOWS_PREFIX} /usr/x86_64-w64-mingw32)
list(APPEND CMAKE_PREFIX_PATH ${TERRAVANE_WINDOWS_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Qt's own generators (moc, rcc, uic) run here: Debian's, of the version that the libraries have.
set(QT_HOST_PATH /usr CACHE PATH "")
set(Qt6HostInfo_DIR /usr/lib/x86_64-linux-gnu/cmake/Qt6HostInfo CACHE PATH "")
