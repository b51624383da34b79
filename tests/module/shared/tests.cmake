if(WIN32)
  include(${CMAKE_CURRENT_LIST_DIR}/../dialogs/ZepDialogs.cmake)
  # The module's sources that stand behind no dialog of their own.
  kz_test(module_shared_tests
    ${CMAKE_CURRENT_LIST_DIR}/AccessibleNamesTest.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ChildPageTest.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FakeAccessibility.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TabImagesTest.cpp
    ${CMAKE_CURRENT_LIST_DIR}/../entry/EdgeGuardTest.cpp
    ${PROJECT_SOURCE_DIR}/module/entry/EdgeGuard.cpp
    LIBS zep_dialogs ole32)
  target_include_directories(module_shared_tests PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/.. ${PROJECT_SOURCE_DIR}/module/entry)
endif()
