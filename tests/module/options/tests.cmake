if(WIN32)
  # The hub of the DLL itself; every dialog that it opens takes its template from there.
  set(here ${CMAKE_CURRENT_LIST_DIR})
  kz_test(options_zep_tests ${here}/OptionsZepTests.cpp ${here}/OptionsZepRecordsTests.cpp ${here}/OptionsZepTests.rc
    LIBS KZUsrZEP)
  target_include_directories(options_zep_tests PRIVATE ${here}/../dialogs ${PROJECT_SOURCE_DIR}/module/device
    ${PROJECT_SOURCE_DIR}/module/limits ${PROJECT_SOURCE_DIR}/module/options)
  # The editor's icon stands for the host program's.
  kz_resources(options_zep_tests ${here} ${CMAKE_BINARY_DIR}/editor)
  add_dependencies(options_zep_tests kz_editor_icon)
endif()
