# veld_library(NAME SOURCES a.cpp ... USES lib ...)
# One folder of src is one static library. It sees the headers of its own folder and of the libraries it names (and of
# what those name in turn), and of nothing else: an include against the arrows of the architecture does not build.
# Headers are included as "folder/file.h", through a folder of links that holds just the library's own folder.
function(veld_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
  set(own_includes ${CMAKE_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${own_includes})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${own_includes}/${name} SYMBOLIC)
  add_library(veld_${name} STATIC ${ARG_SOURCES})
  target_include_directories(veld_${name} PUBLIC ${own_includes})
  foreach(use IN LISTS ARG_USES)
    target_link_libraries(veld_${name} PUBLIC veld_${use})
  endforeach()
endfunction()
