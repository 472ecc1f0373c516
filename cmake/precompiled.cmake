# What nearly every file includes is read once for all: it halves the time to compile a window. Each file still
# names every header it uses; a build with VELMAR_PRECOMPILED off shows one that does not.
option(VELMAR_PRECOMPILED "Read the headers of Qt, the tests and the standard library once for all files" ON)

# add_precompiled(name LIBRARIES libraries... HEADERS headers...): the headers under a name that targets reuse.
function(add_precompiled name)
  cmake_parse_arguments(SET "" "" "LIBRARIES;HEADERS" ${ARGN})
  if(NOT VELMAR_PRECOMPILED)
    return()
  endif()
  file(CONFIGURE OUTPUT ${name}.cpp CONTENT "")
  add_library(${name} OBJECT EXCLUDE_FROM_ALL ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  target_link_libraries(${name} PRIVATE ${SET_LIBRARIES} project_warnings)
  target_precompile_headers(${name} PRIVATE ${SET_HEADERS})
endfunction()

# Lets a target start from a set of headers that was read for all.
function(use_precompiled target name)
  if(VELMAR_PRECOMPILED)
    target_precompile_headers(${target} REUSE_FROM ${name})
  endif()
endfunction()

set(STANDARD_HEADERS <algorithm> <array> <cmath> <filesystem> <functional> <map> <memory> <optional> <stdexcept>
                     <string> <string_view> <utility> <variant> <vector>)
