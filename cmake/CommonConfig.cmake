# One target that only carries the flags, which every library and program of this tree links.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

find_program(CCACHE ccache)
if(CCACHE)
  # What ccache asks for where headers are precompiled (ccache manual, "Precompiled headers").
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${CCACHE}")
endif()

add_library(planovarium_flags INTERFACE)
target_compile_options(planovarium_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(PLANOVARIUM_WERROR)
  target_compile_options(planovarium_flags INTERFACE -Werror)
endif()
# GCC 12 warns of an overlap in the library's own string concatenation (gcc.gnu.org/bugzilla 105651). Clang's tools
# read the same flags and do not know that warning.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(planovarium_flags INTERFACE -Wno-unknown-warning-option -Wno-restrict)
endif()
if(CCACHE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(planovarium_flags INTERFACE -fpch-preprocess)
endif()
# The standard library's own checks, where speed does not count.
if(PLANOVARIUM_SANITIZE OR CMAKE_BUILD_TYPE STREQUAL "Debug")
  target_compile_definitions(planovarium_flags INTERFACE _GLIBCXX_ASSERTIONS)
endif()
target_include_directories(planovarium_flags INTERFACE "${PROJECT_SOURCE_DIR}/src")

if(PLANOVARIUM_SANITIZE)
  # The sanitizers' own code confuses this warning (GCC manual, -fsanitize).
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(planovarium_flags INTERFACE -Wno-maybe-uninitialized)
  endif()
  target_compile_options(planovarium_flags INTERFACE
    -fsanitize=address -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(planovarium_flags INTERFACE -fsanitize=address,undefined)
endif()

if(PLANOVARIUM_FUZZ)
  target_compile_options(planovarium_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

find_program(MOLD mold)
if(MOLD)
  target_link_options(planovarium_flags INTERFACE -fuse-ld=mold)
endif()
