# Fails when a program loads a shared library that it must do without.
# cmake -DPROGRAM=<file> -DFORBIDDEN=<part of the library's name> -P check_needed.cmake
cmake_minimum_required(VERSION 3.25)
execute_process(COMMAND objdump -p ${PROGRAM} OUTPUT_VARIABLE headers RESULT_VARIABLE code)
if(NOT code EQUAL 0 OR NOT headers MATCHES "NEEDED +libc\\.so")
  message(FATAL_ERROR "${PROGRAM}: its headers cannot be read")
endif()
if(headers MATCHES "NEEDED +([^\n]*${FORBIDDEN}[^\n]*)")
  message(FATAL_ERROR "${PROGRAM} loads ${CMAKE_MATCH_1}")
endif()
