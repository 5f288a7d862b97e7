# One target per room, so that a wrong include does not link.

# mindloft_room(NAME [SOURCES file...] [LINK target...]): a static library of this folder's sources.
# Sources for one platform lie in windows/ or linux/ below it.
function(mindloft_room name)
  cmake_parse_arguments(ROOM "" "" "LINK;SOURCES" ${ARGN})
  if(NOT ROOM_SOURCES)
    file(GLOB ROOM_SOURCES CONFIGURE_DEPENDS *.cpp)
    if(WIN32)
      file(GLOB platform_sources CONFIGURE_DEPENDS windows/*.cpp)
    else()
      file(GLOB platform_sources CONFIGURE_DEPENDS linux/*.cpp)
    endif()
    list(APPEND ROOM_SOURCES ${platform_sources})
  endif()
  set(scope PUBLIC)
  if(ROOM_SOURCES)
    add_library(${name} STATIC ${ROOM_SOURCES})
  else()
    set(scope INTERFACE)
    add_library(${name} INTERFACE)
  endif()
  target_include_directories(${name} ${scope} ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} ${scope} mindloft_options ${ROOM_LINK})
endfunction()

# mindloft_embed(TARGET PREFIX file...): puts the files into the target, to be found by EmbeddedFile("PREFIX/name").
function(mindloft_embed target prefix)
  if(NOT ARGN)
    return()
  endif()
  set(generated ${CMAKE_CURRENT_BINARY_DIR}/${target}_${prefix}_embedded.cpp)
  set(paths)
  foreach(file IN LISTS ARGN)
    get_filename_component(path ${file} ABSOLUTE)
    list(APPEND paths ${path})
  endforeach()
  string(JOIN "|" joined ${paths})
  add_custom_command(
    OUTPUT ${generated}
    COMMAND ${CMAKE_COMMAND} -DOUTPUT=${generated} -DPREFIX=${prefix} -DSYMBOL=${target}_${prefix} "-DFILES=${joined}"
            -P ${PROJECT_SOURCE_DIR}/cmake/EmbedFiles.cmake
    DEPENDS ${paths} ${PROJECT_SOURCE_DIR}/cmake/EmbedFiles.cmake
    VERBATIM)
  # An object library's registration would be dropped by the linker when it came from an archive.
  add_library(${target}_${prefix}_embedded OBJECT ${generated})
  target_include_directories(${target}_${prefix}_embedded PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${target}_${prefix}_embedded PRIVATE mindloft_options)
  target_link_libraries(${target} INTERFACE $<TARGET_OBJECTS:${target}_${prefix}_embedded>)
  add_dependencies(${target} ${target}_${prefix}_embedded)
endfunction()

# mindloft_tests(ROOM [GUI] [PRINTER] [FOLDERS folder...] [LINK target...]): the program ROOM_tests of this folder's sources and
# those of the folders below it that are named, run by ctest. Tests for one platform lie in windows/ or linux/ below it.
# Each program is one test; a GUI one runs on a display of its own, so that no other test takes its focus, a PRINTER one
# with a print server of its own.
function(mindloft_tests room)
  cmake_parse_arguments(TESTS "GUI;PRINTER" "" "FOLDERS;LINK" ${ARGN})
  if(WIN32)
    list(APPEND TESTS_FOLDERS windows)
  else()
    list(APPEND TESTS_FOLDERS linux)
  endif()
  list(TRANSFORM TESTS_FOLDERS APPEND "/*.cpp" OUTPUT_VARIABLE below)
  file(GLOB sources CONFIGURE_DEPENDS *.cpp ${below})
  set(target ${room}_tests)
  if(NOT sources)
    return()
  endif()
  add_executable(${target} ${sources})
  if(TESTS_GUI)
    target_link_libraries(${target} PRIVATE ${TESTS_LINK} test_support_gui)
  else()
    target_link_libraries(${target} PRIVATE ${TESTS_LINK} test_support)
  endif()
  set(runner ${PROJECT_SOURCE_DIR}/scripts/run-test.sh)
  add_test(NAME ${room} COMMAND ${runner} $<$<BOOL:${TESTS_PRINTER}>:--printer> $<$<BOOL:${TESTS_GUI}>:--display> $<TARGET_FILE:${target}>
           COMMAND_EXPAND_LISTS)
  set_tests_properties(${room} PROPERTIES TIMEOUT 900 WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR})
endfunction()
