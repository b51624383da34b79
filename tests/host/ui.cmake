# The host's windows. The parts without a window (sharing out, pixels) are compiled in, as the library does not export them.
kz_test(host_ui_tests
  ui/DeviceCfgTests.cpp
  ui/DialogSetupTests.cpp
  ui/DriverServicesTests.cpp
  ui/ImageButtonTests.cpp
  ui/LayoutBoxTests.cpp
  ui/LayoutSizesTests.cpp
  ui/LayoutTests.cpp
  ui/MessageBoxes.cpp
  ui/OptionsHubLayoutTests.cpp
  ui/OptionsHubTests.cpp
  ui/PixelImageTests.cpp
  ui/ShareOutTests.cpp
  ui/TestDialog.cpp
  ui/TestHub.cpp
  ${CMAKE_SOURCE_DIR}/host/images/PixelImage.cpp
  ${CMAKE_SOURCE_DIR}/host/layout/ShareOut.cpp
  LIBS KZHost KZMfc DPI SPANISH)
target_include_directories(host_ui_tests PRIVATE ${CMAKE_SOURCE_DIR}/host)
