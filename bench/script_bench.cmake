# The script benchmark runs Lua 5.4 in the same process, as the yardstick.
find_package(PkgConfig REQUIRED)
pkg_check_modules(LUA54 REQUIRED IMPORTED_TARGET lua5.4)
target_link_libraries(script_bench PRIVATE PkgConfig::LUA54)
