kz_test(device_rules_tests
  ${CMAKE_CURRENT_LIST_DIR}/InformationRecordTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/InformationRulesTests.cpp
  LIBS KZUsrZEPRules)
if(WIN32)
  include(${CMAKE_CURRENT_LIST_DIR}/../dialogs/ZepDialogs.cmake)
  zep_dialog_test(device_dialog_tests
    ${CMAKE_CURRENT_LIST_DIR}/DeviceDialogLookTests.cpp
    ${CMAKE_CURRENT_LIST_DIR}/DeviceDialogTests.cpp)
endif()
