kz_test(units_rules_tests
  ${CMAKE_CURRENT_LIST_DIR}/UnitsRecordTests.cpp
  LIBS KZUsrZEPRules)
