kz_test(device_rules_tests
  ${CMAKE_CURRENT_LIST_DIR}/InformationRecordTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/InformationRulesTests.cpp
  LIBS KZUsrZEPRules)
