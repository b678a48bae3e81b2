# What both Windows toolchains share: Debian's mingw-w64 for the prefix the
# including file sets. The posix thread model gives the standard library its
# threads; everything is linked statically, so the program needs no runtime
# DLL beside it.
set(CMAKE_SYSTEM_NAME Windows)
find_program(CMAKE_CXX_COMPILER NAMES ${QOR_MINGW_PREFIX}-g++-posix ${QOR_MINGW_PREFIX}-g++ REQUIRED)
find_program(CMAKE_C_COMPILER NAMES ${QOR_MINGW_PREFIX}-gcc-posix ${QOR_MINGW_PREFIX}-gcc REQUIRED)
find_program(CMAKE_RC_COMPILER NAMES ${QOR_MINGW_PREFIX}-windres REQUIRED)
set(CMAKE_FIND_ROOT_PATH /usr/${QOR_MINGW_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
