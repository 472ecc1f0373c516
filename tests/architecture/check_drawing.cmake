# Fails when the drawing of the house in docs/architecture.md is not how the layers stand: a line of it is the number
# of a floor and the rooms on it, from the ground up.
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
