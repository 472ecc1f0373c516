# Fails when the drawing of the house in docs/architecture.md is not how the layers stand: a line of it is the number
# of a floor and the rooms on it, from the ground up; or when the table above it passes a layer over or names one
# that is gone: a row names folders, or the room that they lie in.
# cmake -DTABLE=<layers.cmake of the build> -DDOCUMENT=<docs/architecture.md> -P check_drawing.cmake
cmake_minimum_required(VERSION 3.25)
include(${TABLE})

set(drawn "")
file(STRINGS ${DOCUMENT} lines REGEX "^ *[0-9]+ +\\|" ENCODING UTF-8)
foreach(line IN LISTS lines)
  string(REGEX MATCH "[0-9]+" floor "${line}")
  # Behind the last stroke stand words.
  string(REGEX REPLACE "\\|[^|]*$" "" line "${line}")
  string(REGEX MATCHALL "[a-z_]+" rooms "${line}")
  foreach(room IN LISTS rooms)
    list(APPEND drawn ${floor}:${room})
  endforeach()
endforeach()

set(built "")
foreach(layer IN LISTS layers)
  list(APPEND built ${floor_of_${layer}}:${room_of_${layer}})
endforeach()
list(REMOVE_DUPLICATES built)

list(SORT drawn)
list(SORT built)
if(NOT drawn STREQUAL built)
  message(FATAL_ERROR "${DOCUMENT} draws ${drawn}, the build says ${built}")
endif()

set(named "")
file(STRINGS ${DOCUMENT} lines REGEX "^\\| `" ENCODING UTF-8)
foreach(line IN LISTS lines)
  # Only what stands before the second stroke.
  string(REGEX REPLACE "^(\\|[^|]*)\\|.*" "\\1" line "${line}")
  string(REGEX MATCHALL "`[a-z_/]+`" folders "${line}")
  list(APPEND named ${folders})
endforeach()
get_cmake_property(variables VARIABLES)
list(FILTER variables INCLUDE REGEX "^layer_of_")
set(there "")
foreach(variable IN LISTS variables)
  string(REGEX REPLACE "^layer_of_" "" folder ${variable})
  string(REGEX REPLACE "/.*" "" room ${folder})
  if(NOT "`${folder}`" IN_LIST named AND NOT "`${room}`" IN_LIST named)
    message(FATAL_ERROR "${DOCUMENT} has no row for the layer ${folder}")
  endif()
  list(APPEND there "`${folder}`" "`${room}`")
endforeach()
list(REMOVE_ITEM named ${there})
if(named)
  message(FATAL_ERROR "${DOCUMENT} names layers that are not: ${named}")
endif()
