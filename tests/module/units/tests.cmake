kz_test(units_rules_tests
  ${CMAKE_CURRENT_LIST_DIR}/UnitsRecordTests.cpp
  LIBS KZUsrZEPRules)
if(WIN32)
  include(${CMAKE_CURRENT_LIST_DIR}/../dialogs/ZepDialogs.cmake)
  zep_dialog_test(units_dialog_tests ${CMAKE_CURRENT_LIST_DIR}/UnitsDialogTests.cpp)
endif()
