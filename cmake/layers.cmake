# add_layer(name SOURCES ... HEADERS ... USES layers... LIBRARIES outside libraries...)
#
# One static library a layer. USES is the only statement of whom a layer may know: the linker takes it, and
# tests/architecture/check_layers.cmake reads it back to reject every #include that looks upward or sideways.
set(LAYER_TABLE ${PROJECT_BINARY_DIR}/layers.cmake)
file(WRITE ${LAYER_TABLE} "")

function(add_layer name)
  cmake_parse_arguments(LAYER "" "" "SOURCES;HEADERS;USES;LIBRARIES" ${ARGN})
  set(visibility PUBLIC)
  if(LAYER_SOURCES)
    add_library(${name} STATIC ${LAYER_SOURCES})
    target_link_libraries(${name} PRIVATE project_warnings)
  else()
    add_library(${name} INTERFACE)
    set(visibility INTERFACE)
  endif()
  target_sources(${name} ${visibility} FILE_SET HEADERS
                 BASE_DIRS ${PROJECT_SOURCE_DIR}/src FILES ${LAYER_HEADERS})
  target_link_libraries(${name} ${visibility} ${LAYER_USES} ${LAYER_LIBRARIES})
  file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
  file(APPEND ${LAYER_TABLE} "list(APPEND folders ${folder})\nset(layer_of_${folder} ${name})\n"
                             "set(${name}_uses ${LAYER_USES})\n")
endfunction()

# add_layer_test(layer sources...): one test program a layer, each of its tests known to CTest by name.
function(add_layer_test layer)
  string(REPLACE "/" "_" name ${layer})
  add_executable(${name}_test ${ARGN})
  target_link_libraries(${name}_test PRIVATE ${name} GTest::gtest_main GTest::gmock project_warnings)
  target_include_directories(${name}_test PRIVATE ${PROJECT_SOURCE_DIR})
  gtest_discover_tests(${name}_test NO_PRETTY_VALUES TEST_PREFIX "${name}: " DISCOVERY_TIMEOUT 60
                       PROPERTIES LABELS ${name})
endfunction()
