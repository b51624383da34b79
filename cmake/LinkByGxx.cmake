# Read by CMake behind its own rules for each language: the linking ones call g++ instead of the compiler, without the
# compiler's flags.
foreach(rule C_LINK_EXECUTABLE C_CREATE_SHARED_LIBRARY CXX_LINK_EXECUTABLE CXX_CREATE_SHARED_LIBRARY CXX_CREATE_SHARED_MODULE)
  string(REGEX REPLACE "<CMAKE_CX*_COMPILER>" "${KZ_GXX}" CMAKE_${rule} "${CMAKE_${rule}}")
  string(REGEX REPLACE "<FLAGS>|<LANGUAGE_COMPILE_FLAGS>" "" CMAKE_${rule} "${CMAKE_${rule}}")
endforeach()
