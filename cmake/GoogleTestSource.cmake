# GoogleTest is built from Debian's source package, so that the cross build and the native one have the same version.
set(KZ_GOOGLETEST_SOURCE /usr/src/googletest CACHE PATH "Folder of GoogleTest's sources")
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
add_subdirectory(${KZ_GOOGLETEST_SOURCE} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
# Optimising it takes longer than all that it does for a test run.
if(NOT KZ_COVERAGE)
  foreach(library gtest gmock gtest_main gmock_main)
    target_compile_options(${library} PRIVATE -O0)
  endforeach()
endif()
