# Cross compiling for Windows with Debian's mingw-w64; included by a file per processor, which has
# set CMAKE_SYSTEM_PROCESSOR. What is linked with is found through CMAKE_PREFIX_PATH
# (scripts/build-windows makes such a folder).
set(CMAKE_SYSTEM_NAME Windows)

set(triplet ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32)
# The variant with POSIX threads, whichever one the machine takes by default: only it has
# std::thread.
set(CMAKE_C_COMPILER ${triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${triplet}-windres)

# Programs come from this machine, everything else from the target's folders.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES CMAKE_PREFIX_PATH)
set(CMAKE_FIND_ROOT_PATH /usr/${triplet} ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
