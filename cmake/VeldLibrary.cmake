# veld_library(FOLDER SOURCES a.cpp ... USES folder ...)
# One folder of src is one static library: src/steps/race is veld_steps_race. It sees the headers of its own folder and of the libraries it names (and of
# what those name in turn), and of nothing else: an include against the arrows of the architecture does not build.
# Headers are included as "folder/file.h", through a folder of links that holds just the library's own folder.
function(veld_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
  string(REPLACE "/" "_" target veld_${name})
  set(own_includes ${CMAKE_BINARY_DIR}/include/${target})
  get_filename_component(link ${own_includes}/${name} DIRECTORY)
  file(MAKE_DIRECTORY ${link})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${own_includes}/${name} SYMBOLIC)
  add_library(${target} STATIC ${ARG_SOURCES})
  target_include_directories(${target} PUBLIC ${own_includes})
  foreach(use IN LISTS ARG_USES)
    string(REPLACE "/" "_" used veld_${use})
    target_link_libraries(${target} PUBLIC ${used})
  endforeach()
endfunction()
