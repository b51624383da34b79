# One call per benchmark program:
#
#   kz_bench(NAME source... [LIBS library...])
#
# NAME goes to build/<preset>/bench and is built by the target kz_benchmarks only, which "./dev bench" asks for. Native
# programs get Google Benchmark, which the Windows build does not have; without it they are left out.
if(NOT WIN32)
  find_package(benchmark QUIET)
endif()
add_custom_target(kz_benchmarks)

function(kz_bench name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LIBS")
  if(NOT WIN32 AND NOT benchmark_FOUND)
    return()
  endif()
  add_executable(${name} EXCLUDE_FROM_ALL ${arg_UNPARSED_ARGUMENTS})
  kz_common(${name})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bench)
  target_link_libraries(${name} PRIVATE ${arg_LIBS} $<$<NOT:$<BOOL:${WIN32}>>:benchmark::benchmark_main>)
  add_dependencies(kz_benchmarks ${name})
endfunction()
