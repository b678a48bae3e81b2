# The Windows player as it goes onto a CD: at most 2 MB, and importing only
# DLLs that every Windows from 7 on has (msvcrt.dll, the C library of the
# system itself, among them), so it runs with no file beside it.
#   cmake -DPLAYER=<compil.exe> -P check_player_binary.cmake
cmake_minimum_required(VERSION 3.25)
set(max_bytes 2000000)
set(allowed kernel32.dll user32.dll gdi32.dll winmm.dll shell32.dll ole32.dll oleaut32.dll comctl32.dll
            gdiplus.dll msvcrt.dll)

if(NOT EXISTS "${PLAYER}")
  message(FATAL_ERROR "no player at ${PLAYER}")
endif()
file(SIZE "${PLAYER}" size)
if(size GREATER max_bytes)
  message(FATAL_ERROR "${PLAYER} is ${size} bytes, more than ${max_bytes}")
endif()

find_program(OBJDUMP NAMES x86_64-w64-mingw32-objdump REQUIRED)
execute_process(COMMAND ${OBJDUMP} -p "${PLAYER}" OUTPUT_VARIABLE dump RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "objdump cannot read ${PLAYER}")
endif()
string(REGEX MATCHALL "DLL Name: [^\n]+" lines "${dump}")
if(NOT lines)
  message(FATAL_ERROR "${PLAYER} imports nothing: not a program objdump understands")
endif()
set(names "")
foreach(line IN LISTS lines)
  string(REGEX REPLACE "DLL Name: " "" dll "${line}")
  string(STRIP "${dll}" dll)
  string(TOLOWER "${dll}" dll)
  list(APPEND names ${dll})
  if(NOT dll IN_LIST allowed)
    message(FATAL_ERROR "${PLAYER} imports ${dll}, which a plain Windows may not have")
  endif()
endforeach()
list(JOIN names ", " text)
message(STATUS "${size} bytes; imports ${text}")
