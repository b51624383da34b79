kz_test(limits_rules_tests
  ${CMAKE_CURRENT_LIST_DIR}/HarmonicRulesTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LimitsStoreTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/NumericLocaleTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PowerRulesTests.cpp
  LIBS KZUsrZEPRules SPANISH)
