# One call per benchmark program:
#
#   kz_bench(NAME source... [LIBS library...])
#
# NAME goes to build/<preset>/bench and is built by the target kz_benchmarks only, which "./dev bench" asks for.
add_custom_target(kz_benchmarks)

function(kz_bench name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LIBS")
  add_executable(${name} EXCLUDE_FROM_ALL ${arg_UNPARSED_ARGUMENTS})
  kz_common(${name})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bench)
  target_link_libraries(${name} PRIVATE kz_bench_harness ${arg_LIBS})
  if(TARGET kz_runtime)
    add_dependencies(${name} kz_runtime)
  endif()
  add_dependencies(kz_benchmarks ${name})
endfunction()
