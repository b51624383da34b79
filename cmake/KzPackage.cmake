# What the packages are made of: all of build/windows/bin, as a ZIP and as an installer. Only a release build ships.
if(NOT CMAKE_BUILD_TYPE STREQUAL Release)
  return()
endif()
find_program(KZ_PYTHON python3 REQUIRED)

# The bill of materials and the licences of what comes from elsewhere.
get_property(pictures GLOBAL PROPERTY KZ_PICTURES)
set(materials ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/materials.cdx.json)
add_custom_command(OUTPUT ${materials} VERBATIM
  COMMAND ${KZ_PYTHON} -B ${CMAKE_SOURCE_DIR}/tools/package/materials.py
    ${CMAKE_RUNTIME_OUTPUT_DIRECTORY} ${PROJECT_VERSION} ${CMAKE_SOURCE_DIR}/build/deps
  DEPENDS ${CMAKE_SOURCE_DIR}/tools/package/materials.py KZEditor KZHost KZMfc KZUsrZEP kz_csv ${KZ_RUNTIME_DLLS} ${pictures}
  COMMENT "Listing what ships")
add_custom_target(kz_materials ALL DEPENDS ${materials})
add_dependencies(kz_materials kz_images kz_runtime)
add_dependencies(product kz_materials)

set(CPACK_GENERATOR External NSIS64)
set(CPACK_PACKAGE_NAME KZEditor)
set(CPACK_PACKAGE_VENDOR Quorvelanta)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Editor of projects of energy devices")
set(CPACK_SYSTEM_NAME win64)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_INSTALL_CMAKE_PROJECTS "")
set(CPACK_INSTALLED_DIRECTORIES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY} /)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_SOURCE_DIR}/cmake/InstallerFiles.cmake)
set(CPACK_EXTERNAL_ENABLE_STAGING ON)
set(CPACK_EXTERNAL_PACKAGE_SCRIPT ${CMAKE_SOURCE_DIR}/cmake/PackZip.cmake)
set(CPACK_KZ_ARCHIVE ${CMAKE_SOURCE_DIR}/tools/package/archive.py)
set(CPACK_KZ_ICON ${CMAKE_BINARY_DIR}/editor/KZEditor.ico)
include(CPack)
