# The host's windows: device classes, layout, pictures and dialogs. Included by this folder's CMakeLists.txt after target
# KZHost exists; Windows only.
target_sources(KZHost PRIVATE
  driver/KZDriver.cpp
  driver/KZDriverDevice.cpp
  driver/KZDriverDeviceZEP.cpp
  driver/KZDriverServices.cpp
  layout/ControlKind.cpp
  layout/ControlMover.cpp
  layout/ControlTable.cpp
  layout/DialogMetrics.cpp
  layout/KZLayout.cpp
  layout/LayoutRun.cpp
  layout/ShareOut.cpp
  layout/SizeCodes.cpp
  layout/TextMeter.cpp
  images/CImageButton.cpp
  images/GdiPicture.cpp
  images/PictureFiles.cpp
  images/PictureStore.cpp
  images/PixelImage.cpp
  images/PngFile.cpp
  dialogs/DialogTemplate.cpp
  dialogs/DllMain.cpp
  dialogs/DocumentName.cpp
  dialogs/KZBaseDeviceCfg.cpp
  dialogs/KZBaseDlg.cpp
  dialogs/KZDialogSetup.cpp
  dialogs/KZDlgOptions.cpp
  dialogs/KZDlgOptionsLayout.cpp
  dialogs/KZDlgOptionsSections.cpp
  dialogs/ProjectFolder.cpp
  dialogs/KZDlgOptions.rc)
target_link_libraries(KZHost PRIVATE comctl32 windowscodecs ole32 uuid)
kz_resources(KZHost ${CMAKE_CURRENT_LIST_DIR}/dialogs)

# The pictures are drawn as SVG and shown as PNG; what the drawing's own size is in pixels is the picture's.
find_program(KZ_RSVG_CONVERT rsvg-convert REQUIRED)
set(kz_pictures
  CANCEL-16
  OK-16
  SYSTEM-check
  SYSTEM-section_device
  SYSTEM-section_driver
  SYSTEM-section_generic
  SYSTEM-section_inputs_outputs
  SYSTEM-section_limits
  SYSTEM-section_units
  SYSTEM-uncheck
  SYSTEM-var_armonic_current
  SYSTEM-var_general
  ZEP-50
  ZEP-var_power)
set(kz_png_files)
foreach(picture ${kz_pictures})
  set(svg ${CMAKE_CURRENT_LIST_DIR}/images/${picture}.svg)
  set(png ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/images/${picture}.png)
  add_custom_command(OUTPUT ${png} DEPENDS ${svg} VERBATIM
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/images
    COMMAND ${KZ_RSVG_CONVERT} --output ${png} ${svg} COMMENT "Rendering ${picture}.png")
  list(APPEND kz_png_files ${png})
endforeach()
add_custom_target(kz_images ALL DEPENDS ${kz_png_files})
add_dependencies(KZHost kz_images)
