# The module's own dialogs as a library for tests, since the DLL exports two of them only; their templates come with it.
include_guard(GLOBAL)
set(module ${PROJECT_SOURCE_DIR}/module)
add_library(zep_dialogs STATIC
  ${module}/device/KZDeviceCfgZEP.cpp
  ${module}/device/KZDeviceCfgZEPLayout.cpp
  ${module}/limits/CDlgLimitsArmonicZEP.cpp
  ${module}/limits/CDlgLimitsPowerZEP.cpp
  ${module}/limits/CDlgLimitsZEP.cpp
  ${module}/limits/CDlgLimitsZEPLayout.cpp
  ${module}/limits/LimitsPage.cpp
  ${module}/options/CDlgUnitsZEP.cpp
  ${module}/shared/AccessibleNames.cpp
  ${module}/shared/ChildPage.cpp
  ${module}/shared/ControlText.cpp
  ${module}/shared/LayoutPlan.cpp
  ${module}/shared/TabImages.cpp
  ${module}/shared/TabPages.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DialogRun.cpp)
kz_common(zep_dialogs)
target_include_directories(zep_dialogs PUBLIC ${CMAKE_CURRENT_LIST_DIR} ${module}/resources ${module}/shared)
target_link_libraries(zep_dialogs PUBLIC KZUsrZEPRules KZHost KZMfc)

# A test program over the dialogs: zep_dialog_test(NAME source...)
function(zep_dialog_test name)
  kz_test(${name} ${ARGN} ${PROJECT_SOURCE_DIR}/module/resources/KZUsrZEP.rc LIBS zep_dialogs DPI SPANISH)
  kz_resources(${name} ${PROJECT_SOURCE_DIR}/module/device ${PROJECT_SOURCE_DIR}/module/limits
    ${PROJECT_SOURCE_DIR}/module/options ${PROJECT_SOURCE_DIR}/module/variables)
endfunction()
