# The same target by a second compiler, Debian's clang, for the warnings that only it has. g++'s headers, libraries and linking
# serve it too: Debian has no others for this target.
include(${CMAKE_CURRENT_LIST_DIR}/MingwToolchain.cmake)
set(CMAKE_C_COMPILER clang-14)
set(CMAKE_CXX_COMPILER clang++-14)
set(CMAKE_C_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)

# clang looks for the folders under other names. thread_local variables are emulated because g++'s library has them so.
execute_process(COMMAND ${KZ_GXX} -print-file-name=include OUTPUT_VARIABLE headers OUTPUT_STRIP_TRAILING_WHITESPACE)
set(CMAKE_CXX_FLAGS_INIT "-femulated-tls -isystem ${headers}/c++ -isystem ${headers}/c++/${CMAKE_CXX_COMPILER_TARGET}")
set(CMAKE_USER_MAKE_RULES_OVERRIDE ${CMAKE_CURRENT_LIST_DIR}/LinkByGxx.cmake)
foreach(tool AR OBJCOPY RANLIB STRIP)
  string(TOLOWER ${tool} name)
  find_program(CMAKE_${tool} ${CMAKE_CXX_COMPILER_TARGET}-${name} REQUIRED)
endforeach()
