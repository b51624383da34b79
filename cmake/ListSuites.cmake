# Read by ctest when it starts: makes one entry of each suite of a GoogleTest program, "PLATFORM.Suite". The program is asked for its
# list when it is newer than the last one. Expects KZ_PROGRAM, KZ_LAUNCHER (a program that starts it, or nothing), KZ_LISTING
# (where to keep the list), KZ_PLATFORM and KZ_PROPERTIES.
if(KZ_PROGRAM IS_NEWER_THAN KZ_LISTING)
  execute_process(COMMAND ${KZ_LAUNCHER} ${KZ_PROGRAM} --gtest_list_tests
    TIMEOUT 120 RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(result)
    message(FATAL_ERROR "${KZ_PROGRAM} could not list its tests: ${result}\n${output}")
  endif()
  file(WRITE ${KZ_LISTING} "${output}")
endif()

file(STRINGS ${KZ_LISTING} suites REGEX "^[A-Za-z0-9_/]+\\.")
foreach(suite IN LISTS suites)
  string(REGEX REPLACE "\\..*" "" suite "${suite}")
  add_test(${KZ_PLATFORM}.${suite} ${KZ_LAUNCHER} ${KZ_PROGRAM} "--gtest_filter=${suite}.*")
  set_tests_properties(${KZ_PLATFORM}.${suite} PROPERTIES ${KZ_PROPERTIES})
endforeach()
