# Flags that every target of the project shares.
add_library(cserko_warnings INTERFACE)
target_compile_options(cserko_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                                 -Woverloaded-virtual -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # This compiler takes copies inside std::string for overlapping ones where they are not.
  target_compile_options(cserko_warnings INTERFACE -Wno-restrict)
endif()

option(CSERKO_PRECOMPILE "Read the headers that all sources share once" ON)

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Without these the cache takes nothing that uses a precompiled header.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime "${CCACHE}")
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess)
  endif()
endif()

if(CSERKO_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # The sanitizers know each place in the sources by its address: where these are fixed, the loader need not correct some
  # millions of them for each single test.
  add_link_options(-fsanitize=address,undefined -no-pie)
  # Enough for a readable trace; more would double the time of the build.
  set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -g1 -DNDEBUG")
endif()
if(CSERKO_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# The program and its helpers stand side by side at the top of the build folder, the pack in build/pack.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")

# A precompiled header loses what the standard library says about its own code, and this compiler then finds overflows
# there that are none.
set(precompiled_noise "")
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  set(precompiled_noise -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
endif()

# cserko_precompiled(<owner> <header>): the owner reads the header of cmake/precompiled for all that reuse it. The brackets
# keep the path of this tree out of it, so that two clones can share one compiler cache.
function(cserko_precompiled owner header)
  if(CSERKO_PRECOMPILE)
    target_precompile_headers(${owner} PRIVATE "<cmake/precompiled/${header}>")
    target_compile_options(${owner} PRIVATE ${precompiled_noise})
  endif()
endfunction()

# cserko_reuse(<target> <owner>): the target uses what the owner has read, if it has.
function(cserko_reuse target owner)
  get_target_property(headers ${owner} PRECOMPILE_HEADERS)
  if(headers)
    target_precompile_headers(${target} REUSE_FROM ${owner})
    target_compile_options(${target} PRIVATE ${precompiled_noise})
  endif()
endfunction()

# How sources are built that only test: they are compiled far more often than they run, so the compiler does not try hard.
# What they test is another library, built as it is used. With the little it still does it also warns as much.
add_library(cserko_window_test_options INTERFACE)
if(CSERKO_SANITIZE)
  # A test that follows a pointer to nothing ends by the address sanitizer all the same, and none of them casts pointers:
  # these three checks, which stand at each access, are made in what is tested.
  target_compile_options(cserko_window_test_options INTERFACE -O0 -fno-sanitize=null,alignment,object-size)
elseif(CMAKE_BUILD_TYPE STREQUAL "Release")
  target_compile_options(cserko_window_test_options INTERFACE -O1)
endif()
# Headless tests are compiled as a program is, also where a test stands in a library: both read the same precompiled
# header. Whatever links Qt must not be.
add_library(cserko_test_options INTERFACE)
target_link_libraries(cserko_test_options INTERFACE cserko_window_test_options)
target_compile_options(cserko_test_options INTERFACE -fPIE)

# cserko_test(<name> [LOGIC] SOURCES <source>... LIBRARIES <library>...): a headless test program; each of its tests is
# one of ctest's. What is marked as a test of the logic is built where CSERKO_LOGIC_TESTS says so, and else by its name
# alone: a second run of the same tests without the sanitizers finds nothing more.
function(cserko_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "LOGIC" "" "SOURCES;LIBRARIES")
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE cserko_test_main ${arg_LIBRARIES} cserko_test_options cserko_warnings)
  cserko_reuse(${name} cserko_test_main)
  if(arg_LOGIC AND NOT CSERKO_LOGIC_TESTS)
    set_target_properties(${name} PROPERTIES EXCLUDE_FROM_ALL ON)
    return()
  endif()
  # No test takes longer, sanitizers and a busy machine included: one that does is caught in a loop.
  gtest_discover_tests(${name} PROPERTIES TIMEOUT 120)
endfunction()
