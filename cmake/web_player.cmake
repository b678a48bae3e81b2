# The browser player's own build tree, compiled to WebAssembly with
# emscripten: only the libraries the player stands on, and the engine's loop
# benchmark beside it. The engine's exceptions are WebAssembly's own: the
# JavaScript ones send every call that may throw through a trampoline in
# JavaScript, which made script loops several times slower. Link-time
# optimisation lets the engine's small helpers inline across its files
# (string loops a tenth faster).
set(QOR_WEB_OPTIMISE -O2 CACHE STRING "The optimisation of the browser player's code")
add_compile_options(${QOR_WEB_OPTIMISE} -flto -ffunction-sections -fdata-sections -fwasm-exceptions)
add_link_options(-fwasm-exceptions -flto)

add_subdirectory(src/text)
add_subdirectory(src/model)
add_subdirectory(src/script)
add_subdirectory(src/player/core)
add_subdirectory(src/player/web)

if(QOR_BUILD_BENCH)
  add_executable(script_loops ${CMAKE_SOURCE_DIR}/bench/win32/script_loops_main.cpp)
  target_include_directories(script_loops PRIVATE ${CMAKE_SOURCE_DIR}/bench)
  target_link_libraries(script_loops PRIVATE qorscript)
  # Loops measure the engine as the page runs it: the same optimisation
  # and exceptions.
  target_link_options(script_loops PRIVATE ${QOR_WEB_OPTIMISE} -sTOTAL_STACK=8MB -sALLOW_MEMORY_GROWTH=1 -sENVIRONMENT=node,web -sSINGLE_FILE=1)
  qor_warnings(script_loops)
endif()
