# The cross-compiled tree of the Windows player: the standard C++ libraries
# it stands on, the player itself and, with the tests, the Windows builds of
# the checks that run under wine.

# Unused code is dropped at link time: the player is copied onto every CD.
add_compile_options(-ffunction-sections -fdata-sections)
add_link_options(-Wl,--gc-sections)
# The script engine lets nested calls use 2 MiB of stack before it raises
# "out of stack"; the default stack of a Windows program is no larger, so
# the player and its checks get room to spare.
set(QOR_WIN32_STACK_OPTION -Wl,--stack,33554432)

add_subdirectory(src/text)
add_subdirectory(src/model)
add_subdirectory(src/script)
add_subdirectory(src/player/core)
add_subdirectory(src/player/win32)
# Compiled for size but for the script engine, whose loops are what a menu
# waits on: that keeps the 32-bit player, whose code is larger, within 2 MB.
foreach(library qortext qormodel qorplayercore qorplayerwin32 compil)
  target_compile_options(${library} PRIVATE -Os)
endforeach()
if(QOR_BUILD_TESTS)
  add_subdirectory(tests/player/win32)
endif()

# What the Windows player is measured against under wine (bench/win32): an
# empty Win32 window for its start, and the engine's loops for its scripts.
add_executable(empty_window WIN32 ${CMAKE_SOURCE_DIR}/bench/win32/empty_window.cpp)
target_link_options(empty_window PRIVATE -municode)
qor_warnings(empty_window)
add_executable(script_loops ${CMAKE_SOURCE_DIR}/bench/win32/script_loops_main.cpp)
target_include_directories(script_loops PRIVATE ${CMAKE_SOURCE_DIR}/bench)
target_link_libraries(script_loops PRIVATE qorscript)
target_link_options(script_loops PRIVATE ${QOR_WIN32_STACK_OPTION})
qor_warnings(script_loops)
