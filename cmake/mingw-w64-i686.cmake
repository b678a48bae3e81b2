# Cross-compiling for 32-bit Windows: the program a CD carries, since it
# starts on 32-bit and 64-bit Windows alike (and on ARM64 Windows under its
# emulation). Every file is compiled for SSE2 doubles, not the x87's 80-bit
# registers, so a script computes the same numbers as on the 64-bit and Linux
# builds; the stack is realigned where Windows calls us, as a 32-bit caller
# only promises 4 bytes.
set(CMAKE_SYSTEM_PROCESSOR i686)
set(QOR_MINGW_PREFIX i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
set(CMAKE_C_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
