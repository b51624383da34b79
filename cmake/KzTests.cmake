# One call per test program:
#
#   kz_test(NAME source... [LIBS library...] [WHOLE] [DISK] [DPI] [SPANISH] [TIMEOUT seconds])
#
# NAME.exe goes to build/<preset>/tests, away from the product. It gets the project's warnings, GoogleTest, GoogleMock, on
# Windows the helpers of tests/support, and a main function unless one of its sources or libraries has its own. Each suite
# is one ctest entry, listed when ctest starts: natively "native.Suite", under Wine "wine.Suite". An entry per case would
# start a thousand programs more, at a fifth of a second each. TIMEOUT is for one suite, 120 s unless told. WHOLE, for
# programs without windows and for those of many short suites, makes the program one entry under Wine. DISK keeps the
# tests' files out of KZ_TEST_FOLDER, for what a quick folder would leave no time to interrupt. DPI adds one entry for the
# whole program at 120 and one at 144 dots per inch, SPANISH one for the whole program with a Spanish user locale (all
# three Windows only).

# The tests themselves are not worth optimising, which takes most of their compile time; _FORTIFY_SOURCE in the hardened
# build asks for some. Nor are the checks of undefined behaviour in their own code, and debug information worth as much again.
set(KZ_TEST_OPTIMIZATION -O0)
if(KZ_HARDEN)
  set(KZ_TEST_OPTIMIZATION -O1)
endif()
if(KZ_SANITIZE)
  list(APPEND KZ_TEST_OPTIMIZATION -fno-sanitize=undefined -g0)
endif()

if(WIN32)
  set(KZ_TEST_PLATFORM wine)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_SOURCE_DIR}/tools/run-wine.sh)
else()
  set(KZ_TEST_PLATFORM native)
endif()

# What nearly every test includes.
function(kz_test_headers)
  kz_precompiled(kz_test_headers <gmock/gmock.h> <gtest/gtest.h> <algorithm> <filesystem> <functional> <map> <optional>
    <string> <vector> $<$<BOOL:${WIN32}>:<afxwin.h$<ANGLE-R>>)
  target_compile_options(kz_test_headers PRIVATE "$<$<COMPILE_LANGUAGE:CXX>:${KZ_TEST_OPTIMIZATION}>")
  target_link_libraries(kz_test_headers PRIVATE $<TARGET_NAME_IF_EXISTS:KZMfc> gmock gtest)
endfunction()

# How a library of helpers for tests is compiled, and each test.
function(kz_test_code target)
  target_compile_options(${target} PRIVATE "$<$<COMPILE_LANGUAGE:CXX>:${KZ_TEST_OPTIMIZATION}>")
  target_precompile_headers(${target} REUSE_FROM kz_test_headers)
  target_link_libraries(${target} PRIVATE gmock gtest)
endfunction()

# kz_suites(PROGRAM property...): one ctest entry for each suite of a program, with these properties.
function(kz_suites program)
  set(listing ${CMAKE_CURRENT_BINARY_DIR}/${program}_suites)
  file(GENERATE OUTPUT ${listing}.cmake CONTENT "set(KZ_PROGRAM [==[$<TARGET_FILE:${program}>]==])
set(KZ_LAUNCHER [==[${CMAKE_CROSSCOMPILING_EMULATOR}]==])
set(KZ_LISTING [==[${listing}.txt]==])
set(KZ_PLATFORM ${KZ_TEST_PLATFORM})
set(KZ_PROPERTIES [==[${ARGN}]==])
include([==[${CMAKE_SOURCE_DIR}/cmake/ListSuites.cmake]==])
")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${listing}.cmake)
endfunction()

function(kz_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "WHOLE;DISK;DPI;SPANISH" "TIMEOUT" "LIBS")
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
  kz_common(${name})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests/support)
  kz_test_code(${name})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  # gtest_main stands last: the linker takes its main only when nothing before it has one.
  target_link_libraries(${name} PRIVATE
    $<TARGET_NAME_IF_EXISTS:kz_test_support> ${arg_LIBS} gmock gtest gtest_main)
  if(TARGET kz_runtime)
    add_dependencies(${name} kz_runtime)
  endif()

  # Programs under Wine share one desktop, its focus and its foreground window, so they run one at a time; they come first, and
  # what can run at any time fills the gaps.
  set(properties TIMEOUT ${arg_TIMEOUT} LABELS ${KZ_TEST_PLATFORM})
  if(WIN32)
    # The launcher ends the program itself; ctest would only end the launcher.
    math(EXPR limit "${arg_TIMEOUT} + 20")
    set(properties TIMEOUT ${limit} LABELS wine ENVIRONMENT KZ_TEST_TIMEOUT=${arg_TIMEOUT} RESOURCE_LOCK wine COST 20)
  endif()
  if(arg_DISK)
    list(APPEND properties ENVIRONMENT_MODIFICATION KZ_TEST_FOLDER=unset:)
  endif()
  if(WIN32 AND arg_WHOLE)
    add_test(NAME wine.${name} COMMAND ${name})
    set_tests_properties(wine.${name} PROPERTIES ${properties} TIMEOUT 320 ENVIRONMENT KZ_TEST_TIMEOUT=300)
  else()
    kz_suites(${name} ${properties})
  endif()

  if(WIN32 AND arg_DPI)
    foreach(dpi 120 144)
      add_test(NAME wine.${name}_dpi${dpi} COMMAND ${name})
      set_tests_properties(wine.${name}_dpi${dpi} PROPERTIES
        ENVIRONMENT KZ_TEST_DPI=${dpi} TIMEOUT 300 LABELS "wine;dpi" RESOURCE_LOCK wine_dpi${dpi} COST 10)
    endforeach()
  endif()
  if(WIN32 AND arg_SPANISH)
    add_test(NAME wine.${name}_es COMMAND ${name})
    set_tests_properties(wine.${name}_es PROPERTIES
      ENVIRONMENT KZ_TEST_LOCALE=es_ES TIMEOUT 300 LABELS "wine;locale" RESOURCE_LOCK wine COST 20)
  endif()
endfunction()
