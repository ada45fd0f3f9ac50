# The rooms of the house. A room is a folder with the code of one subject; its CMakeLists.txt says which of
# its files are pure and which rooms it uses. The rooms are added from the ground up, and a room may use only
# those that are there already, so that no arrow runs up. tools/check_includes.py holds the sources to it.

# The target of a room: its path with dots.
function(diary_room_target path result)
  string(REPLACE "/" "." target ${path})
  set(${result} ${target} PARENT_SCOPE)
endfunction()

# diary_uses(TARGET SCOPE ROOMS...): links rooms, named by their paths.
function(diary_uses target scope)
  foreach(room IN LISTS ARGN)
    diary_room_target(${room} library)
    if(NOT TARGET ${library})
      message(FATAL_ERROR "${target} uses ${room}, which is no room below it")
    endif()
    target_link_libraries(${target} ${scope} ${library})
  endforeach()
endfunction()

# diary_precompile(NAME HEADERS...): what nearly all sources include, compiled once. (To see whether a source
# would do without: CMAKE_DISABLE_PRECOMPILE_HEADERS.)
function(diary_precompile name)
  file(CONFIGURE OUTPUT ${name}.cpp CONTENT "")
  add_library(${name} STATIC ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  target_link_libraries(${name} PRIVATE diary_warnings)
  target_precompile_headers(${name} PRIVATE ${ARGN} <algorithm> <array> <cstdint> <functional> <memory> <optional>
    <span> <string> <string_view> <utility> <vector>)
endfunction()

# diary_use_precompiled(TARGET NAME). GCC forgets for them that warnings about inlined functions of mingw-w64's
# headers are not ours.
function(diary_use_precompiled target name)
  target_precompile_headers(${target} REUSE_FROM ${name})
  target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-stringop-overread)
endfunction()

# diary_room([PURE FILES...] [USES ROOMS...] [LINK LIBRARIES...]): the room of this folder, a static library of
# all its sources. Pure files know no <windows.h>: they are a library of their own, ROOM.pure, which knows nothing
# of the device; natively, for sanitizers and fuzzers, the room consists of it alone. What a room links besides
# rooms is of the device and not there natively.
function(diary_room)
  cmake_parse_arguments(PARSE_ARGV 0 ROOM "" "" "PURE;USES;LINK")
  file(RELATIVE_PATH path ${CMAKE_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
  diary_room_target(${path} target)
  if(ROOM_PURE)
    add_library(${target}.pure STATIC ${ROOM_PURE})
    target_link_libraries(${target}.pure PRIVATE diary_warnings)
    set(scope PUBLIC)
  else()
    add_library(${target}.pure INTERFACE)
    set(scope INTERFACE)
  endif()
  target_include_directories(${target}.pure ${scope} ${CMAKE_SOURCE_DIR})
  list(TRANSFORM ROOM_USES APPEND .pure OUTPUT_VARIABLE pure_rooms)
  diary_uses(${target}.pure ${scope} ${pure_rooms})

  set(sources)
  if(WIN32)
    file(GLOB sources CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} *.cpp)
    list(REMOVE_ITEM sources ${ROOM_PURE})
  endif()
  if(sources)
    add_library(${target} STATIC ${sources})
    target_link_libraries(${target} PRIVATE diary_warnings)
    diary_use_precompiled(${target} precompiled_device)
    set(scope PUBLIC)
  else()
    add_library(${target} INTERFACE)
    set(scope INTERFACE)
  endif()
  target_link_libraries(${target} ${scope} ${target}.pure)
  diary_uses(${target} ${scope} ${ROOM_USES})
  if(WIN32)
    target_link_libraries(${target} ${scope} ${ROOM_LINK} device)
  endif()
endfunction()
