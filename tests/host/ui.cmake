# What of the host's windows is plain arithmetic (sharing out, pixels) is tested from its own sources on every platform.
kz_test(host_arithmetic_tests
  ui/PixelImageTests.cpp
  ui/ShareOutTests.cpp
  ${PROJECT_SOURCE_DIR}/host/images/PixelImage.cpp
  ${PROJECT_SOURCE_DIR}/host/layout/ShareOut.cpp)
target_include_directories(host_arithmetic_tests PRIVATE ${PROJECT_SOURCE_DIR}/host)

if(WIN32)
  kz_test(host_ui_tests
    ui/DeviceCfgTests.cpp
    ui/DialogSetupTests.cpp
    ui/DriverServicesTests.cpp
    ui/ImageButtonTests.cpp
    ui/LayoutBoxTests.cpp
    ui/LayoutSizesTests.cpp
    ui/LayoutTests.cpp
    ui/OptionsHubLayoutTests.cpp
    ui/OptionsHubTests.cpp
    ui/TestDialog.cpp
    ui/TestHub.cpp
    LIBS KZHost KZMfc DPI SPANISH)
endif()
