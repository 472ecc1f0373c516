# Language level, warnings and floating-point rules, the same for every target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_LINK_LIBRARIES_ONLY_TARGETS ON)
set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)
# Line numbers in crash reports, without the size of full debug information.
set(OPTIMISATION -O2)
set(EVERYWHERE ${OPTIMISATION})
set(OPTIMISED_LAYERS "^(foundation|acoustics|models)")
if(VELMAR_SANITIZE)
  # With both sanitizers the optimiser doubles the time to compile; only layers whose tests run long are worth it
  # (add_layer asks for ${OPTIMISATION} there).
  set(OPTIMISATION -O1)
  set(EVERYWHERE -O0)
  set(OPTIMISED_LAYERS "^(foundation|acoustics|models|storage/files|storage/project|presentation/documents)")
endif()
if(VELMAR_COVERAGE)
  # Optimised code has fewer lines and other branches than were written.
  set(OPTIMISATION -O0)
  set(EVERYWHERE -O0)
  add_compile_options(--coverage -fprofile-update=atomic)
  add_link_options(--coverage)
endif()
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "${EVERYWHERE} -g1")
# For the hand that changes a window and wants to see it: quick to compile, not to be measured.
set(CMAKE_CXX_FLAGS_DEBUG "-O0")
# What is handed out: the same code, with what Debian hardens its programs by.
set(CMAKE_CXX_FLAGS_RELEASE "${OPTIMISATION} -D_FORTIFY_SOURCE=2 -fstack-protector-strong")
if(CMAKE_BUILD_TYPE STREQUAL Release)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  add_link_options(-pie -Wl,-z,relro,-z,now)
endif()

# A window test takes five times as long to link with the usual linker. What is handed out is linked by that one.
find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM AND NOT CMAKE_BUILD_TYPE STREQUAL Release)
  add_link_options(-fuse-ld=mold)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  # A second checkout finds the objects of the first.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
      CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
  # clang else writes into precompiled headers when they were made, and nothing is found again.
  add_compile_options("$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")
endif()

add_library(project_warnings INTERFACE)
# clang counts a change of sign among the conversions, g++ does not.
target_compile_options(project_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
                                                  $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>)

if(VELMAR_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Contracted multiply-add would make results differ between machines.
add_compile_options(-ffp-contract=off)
if(VELMAR_SANITIZE)
  # A null pointer that is followed ends the program anyhow, and is told; to ask before each access takes a tenth of
  # the time in all.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize=null,alignment -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  # g++ warns of unused parts of a std::variant once the sanitizers have rewritten it.
  target_compile_options(project_warnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  # To find what is used after its function has returned takes clang three times as long in all.
  add_compile_options($<$<CXX_COMPILER_ID:Clang>:-fsanitize-address-use-after-return=never>)
  # clang tells of loops that it cannot take side by side between the checks.
  target_compile_options(project_warnings INTERFACE $<$<CXX_COMPILER_ID:Clang>:-Wno-pass-failed>)
endif()
