kz_test(limits_rules_tests
  ${CMAKE_CURRENT_LIST_DIR}/HarmonicRulesTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LimitsStoreTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/NumericLocaleTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PowerRulesTests.cpp
  LIBS KZUsrZEPRules SPANISH)
if(WIN32)
  include(${CMAKE_CURRENT_LIST_DIR}/../dialogs/ZepDialogs.cmake)
  zep_dialog_test(limits_dialog_tests
    ${CMAKE_CURRENT_LIST_DIR}/LimitsDialogLookTests.cpp
    ${CMAKE_CURRENT_LIST_DIR}/LimitsDialogTests.cpp)
endif()
