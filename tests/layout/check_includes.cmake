# Reads every #include line under a source tree and fails on one that points
# up or sideways between the libraries:
#   text <- model <- core <- picture <- editor;  text <- script;
#   model + script <- player/core <- player front-ends;  tools use the libraries.
# Also: inside core and inside the editor only app/ includes app/ (the
# application wires the rest, never the other way round), and the standard
# C++ libraries include no Qt header.
#
#   cmake -DSRC=<folder holding the library folders> -P check_includes.cmake

cmake_minimum_required(VERSION 3.25)
get_filename_component(SRC "${SRC}" ABSOLUTE)
if(NOT IS_DIRECTORY "${SRC}")
  message(FATAL_ERROR "SRC=${SRC} is not a folder")
endif()

# What each library's files may include besides their own folder.
set(uses_text "")
set(uses_model text)
set(uses_script text)
set(uses_core model script text)
set(uses_picture core model text)
set(uses_editor picture core model script text)
set(uses_player/core model script text)
set(uses_player/qt player/core model script text)
set(uses_player/win32 player/core model script text)
set(uses_tools picture core player/core model script text)
set(qt_free text model script core player/core player/win32)

# The library a path (relative to SRC, or an include) belongs to; "" for none.
function(library_of path out)
  set(lib "")
  if(path MATCHES "^(player/[^/]+)/")
    set(lib ${CMAKE_MATCH_1})
  elseif(path MATCHES "^(text|model|script|core|picture|editor|tools)/")
    set(lib ${CMAKE_MATCH_1})
  endif()
  set(${out} "${lib}" PARENT_SCOPE)
endfunction()

# The sub-folder of a library a path lies in ("app" for core/app/x.h); "" at its top.
function(part_of path lib out)
  string(LENGTH "${lib}/" skip)
  string(SUBSTRING "${path}" ${skip} -1 rest)
  set(part "")
  if(rest MATCHES "^([^/]+)/")
    set(part ${CMAKE_MATCH_1})
  endif()
  set(${out} "${part}" PARENT_SCOPE)
endfunction()

set(faults "")
set(checked 0)
file(GLOB_RECURSE files RELATIVE "${SRC}" "${SRC}/*.h" "${SRC}/*.cpp" "${SRC}/*.h.in")
foreach(file IN LISTS files)
  library_of("${file}" lib)
  if(lib STREQUAL "")
    list(APPEND faults "${file}: lies in no library folder")
    continue()
  endif()
  part_of("${file}" ${lib} part)
  file(STRINGS "${SRC}/${file}" lines REGEX "^[ \t]*#[ \t]*include")
  foreach(line IN LISTS lines)
    math(EXPR checked "${checked} + 1")
    if(line MATCHES "<(Q[A-Za-z]*|qt[^>]*)>")
      if(lib IN_LIST qt_free)
        list(APPEND faults "${file}: includes Qt (${CMAKE_MATCH_1}), but ${lib} is standard C++ only")
      endif()
      continue()
    endif()
    if(NOT line MATCHES "\"([^\"]+)\"")
      continue()
    endif()
    set(target "${CMAKE_MATCH_1}")
    library_of("${target}" to)
    if(to STREQUAL "")
      list(APPEND faults "${file}: includes \"${target}\", which names no library folder")
    elseif(NOT to STREQUAL lib AND NOT to IN_LIST uses_${lib})
      list(APPEND faults "${file}: includes ${target}: ${lib} may not use ${to}")
    elseif(to STREQUAL lib AND lib MATCHES "^(core|editor)$")
      part_of("${target}" ${lib} toPart)
      if(toPart STREQUAL "app" AND NOT part STREQUAL "app" AND NOT part STREQUAL "")
        list(APPEND faults "${file}: includes ${target}: only ${lib}/app may use ${lib}/app")
      endif()
    endif()
  endforeach()
endforeach()

if(faults)
  list(LENGTH faults count)
  list(JOIN faults "\n  " text)
  message(FATAL_ERROR "${count} include(s) point the wrong way:\n  ${text}")
endif()
message(STATUS "${checked} include lines checked, all point down")
