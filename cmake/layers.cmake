# add_layer(name SOURCES ... HEADERS ... USES layers... LIBRARIES outside libraries...)
#
# One static library a layer. USES is the only statement of whom a layer may know and LIBRARIES of what it takes
# from outside: the linker reads them, and tests/architecture/check_layers.cmake reads them back to reject every
# #include that looks upward or sideways, and what is named and not needed.
set(LAYER_TABLE ${PROJECT_BINARY_DIR}/layers.cmake)
file(WRITE ${LAYER_TABLE} "")
set_property(GLOBAL PROPERTY VELMAR_FLOOR 0)

# add_floor(rooms...): adds the folders of one floor. A layer may use any on the floors added before, and of its
# own floor only those of its own room that were added before it.
function(add_floor)
  get_property(floor GLOBAL PROPERTY VELMAR_FLOOR)
  math(EXPR floor "${floor} + 1")
  set_property(GLOBAL PROPERTY VELMAR_FLOOR ${floor})
  foreach(room IN LISTS ARGN)
    add_subdirectory(${room})
  endforeach()
endfunction()

function(add_layer name)
  cmake_parse_arguments(LAYER "" "" "SOURCES;HEADERS;USES;LIBRARIES" ${ARGN})
  set(visibility PUBLIC)
  # Whoever knows Qt, be it through another layer, is compiled as Qt demands: other headers than these were read for.
  set(knows_qt OFF)
  if(LAYER_LIBRARIES MATCHES "Qt6::")
    set(knows_qt ON)
  endif()
  foreach(used IN LISTS LAYER_USES)
    get_property(used_knows_qt GLOBAL PROPERTY VELMAR_KNOWS_QT_${used})
    if(used_knows_qt)
      set(knows_qt ON)
    endif()
  endforeach()
  set_property(GLOBAL PROPERTY VELMAR_KNOWS_QT_${name} ${knows_qt})
  if(LAYER_SOURCES)
    add_library(${name} STATIC ${LAYER_SOURCES})
    target_link_libraries(${name} PRIVATE project_warnings)
    file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
    if(folder MATCHES ${OPTIMISED_LAYERS})
      target_compile_options(${name} PRIVATE ${OPTIMISATION})
    elseif(Qt6::Widgets IN_LIST LAYER_LIBRARIES)
      use_precompiled(${name} window_headers)
    elseif(Qt6::Gui IN_LIST LAYER_LIBRARIES)
      use_precompiled(${name} picture_headers)
    elseif(NOT knows_qt)
      use_precompiled(${name} standard_headers)
    endif()
  else()
    add_library(${name} INTERFACE)
    set(visibility INTERFACE)
  endif()
  target_sources(${name} ${visibility} FILE_SET HEADERS
                 BASE_DIRS ${PROJECT_SOURCE_DIR}/src FILES ${LAYER_HEADERS})
  target_link_libraries(${name} ${visibility} ${LAYER_USES} ${LAYER_LIBRARIES})
  file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
  string(REGEX REPLACE "/.*" "" room ${folder})
  get_property(floor GLOBAL PROPERTY VELMAR_FLOOR)
  file(APPEND ${LAYER_TABLE} "list(APPEND layers ${name})\nset(layer_of_${folder} ${name})\n"
                             "set(floor_of_${name} ${floor})\nset(room_of_${name} ${room})\n"
                             "set(${name}_uses ${LAYER_USES})\nset(${name}_libraries ${LAYER_LIBRARIES})\n")
endfunction()

# add_program_tests(program label [ENVIRONMENT ...]): the tests of a GoogleTest program, each known to CTest by its
# name. Under the sanitizers a program starts slowly and stands for all its tests at once; so does one whose tests
# share what takes longer to make than to test.
set(WHOLE_PROGRAMS presentation_reports_test validation_test)
function(add_program_tests program label)
  if(NOT TESTS_ARE_RUN)
    return()
  endif()
  if(VELMAR_SANITIZE OR program IN_LIST WHOLE_PROGRAMS)
    add_test(NAME "${label}" COMMAND ${program})
    set_tests_properties("${label}" PROPERTIES LABELS ${label} ${ARGN})
  else()
    gtest_discover_tests(${program} NO_PRETTY_VALUES TEST_PREFIX "${label}: " DISCOVERY_TIMEOUT 60
                         PROPERTIES LABELS ${label} ${ARGN})
  endif()
endfunction()

# add_layer_test(layer sources...): one test program a layer, each of its tests known to CTest by name.
function(add_layer_test layer)
  string(REPLACE "/" "_" name ${layer})
  add_executable(${name}_test ${ARGN})
  target_link_libraries(${name}_test PRIVATE ${name} GTest::gtest_main GTest::gmock project_warnings)
  target_include_directories(${name}_test PRIVATE ${PROJECT_SOURCE_DIR})
  get_property(knows_qt GLOBAL PROPERTY VELMAR_KNOWS_QT_${name})
  if(knows_qt)
    use_precompiled(${name}_test picture_test_headers)
  else()
    use_precompiled(${name}_test test_headers)
  endif()
  add_program_tests(${name}_test ${name})
endfunction()
