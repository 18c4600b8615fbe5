# Builds for Windows on Debian, with the compiler of g++-mingw-w64-x86-64-posix.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# The packages in use are headers alone, and those of this system will do.
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
