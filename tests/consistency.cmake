# What no compiler checks, from include directions to the documents' links. What reads the tree alone runs once, beside the
# Windows products that some of it reads too; the test cases are listed in each build.
find_program(KZ_PYTHON python3 REQUIRED)

# kz_consistency(NAME CHECK [folder])
function(kz_consistency name check)
  add_test(NAME consistency.${name}
    COMMAND ${KZ_PYTHON} -B ${CMAKE_SOURCE_DIR}/tools/check-consistency.py ${check} ${ARGN})
  set_tests_properties(consistency.${name} PROPERTIES TIMEOUT 60 LABELS consistency)
endfunction()

kz_consistency(names_${KZ_TEST_PLATFORM} names ${CMAKE_CURRENT_BINARY_DIR})
if(WIN32)
  foreach(check includes controls dialogs texts formats files documents guide guidelines verbs)
    kz_consistency(${check} ${check})
  endforeach()
  kz_consistency(exports exports ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  if(TARGET kz_materials)
    kz_consistency(materials materials ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    add_test(NAME package.signing COMMAND ${CMAKE_SOURCE_DIR}/tools/package/signing.sh
      ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/KZEditor.exe ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/KZUsrZEP.dll)
    set_tests_properties(package.signing PROPERTIES TIMEOUT 60 LABELS consistency)
  endif()
  kz_consistency(hardening hardening ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})

  # The linters that need no build; "./dev lint" has the others too.
  foreach(what format shell python)
    add_test(NAME lint.${what} COMMAND ${CMAKE_SOURCE_DIR}/tools/lint.sh ${what})
    set_tests_properties(lint.${what} PROPERTIES TIMEOUT 120 LABELS consistency)
  endforeach()
endif()
