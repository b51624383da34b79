# What no compiler checks, from include directions to the documents' links. Once per tree, with the products at hand.
find_program(KZ_PYTHON python3 REQUIRED)
foreach(check includes controls dialogs texts formats exports files documents guide verbs)
  add_test(NAME consistency.${check}
    COMMAND ${KZ_PYTHON} -B ${CMAKE_SOURCE_DIR}/tools/check-consistency.py ${check}
      $<$<STREQUAL:${check},exports>:${CMAKE_RUNTIME_OUTPUT_DIRECTORY}> COMMAND_EXPAND_LISTS)
  set_tests_properties(consistency.${check} PROPERTIES TIMEOUT 60 LABELS consistency)
endforeach()
