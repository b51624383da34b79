# One call per fuzz target:
#
#   kz_fuzz(NAME source)
#
# The source has the function LLVMFuzzerTestOneInput. In the preset "fuzz", NAME is a libFuzzer program, built by the target
# kz_fuzzers only. In every other native build it is a test, "native.fuzz.NAME", which runs the corpus in fuzz/corpus/NAME
# and some random damage to it, so that the rules of the target are checked without clang too.
add_custom_target(kz_fuzzers)

set(KZ_FUZZ_MUTATIONS 1000)
set(KZ_FUZZ_SEED 1)

function(kz_fuzz name source)
  if(KZ_FUZZ)
    add_executable(${name} EXCLUDE_FROM_ALL ${source})
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    add_dependencies(kz_fuzzers ${name})
  else()
    add_executable(${name} ${source} support/Mutator.cpp support/Replay.cpp)
    add_test(NAME native.fuzz.${name}
      COMMAND ${name} ${CMAKE_CURRENT_SOURCE_DIR}/corpus/${name} ${KZ_FUZZ_MUTATIONS} ${KZ_FUZZ_SEED})
    set_tests_properties(native.fuzz.${name} PROPERTIES TIMEOUT 60 LABELS "native;fuzz")
  endif()
  kz_common(${name})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/fuzz)
  target_link_libraries(${name} PRIVATE kz_fuzzing)
endfunction()
