# What every target of this project has in common: warnings, the Windows version it is written for, sanitizers.
option(KZ_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
# MinGW has no sanitizer run-time library: there a finding is a trap, which tests/support turns into an address.
option(KZ_HARDEN "Trap on undefined behaviour, broken stacks and misuse of the standard library" OFF)
option(KZ_FUZZ "Build for libFuzzer, which needs clang" OFF)
option(KZ_COVERAGE "Count which lines and branches the tests take" OFF)

function(kz_common target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_compile_options(${target} PRIVATE
    $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror>)
  if(WIN32)
    # MFC's own names, such as CDialog::Create beside CWnd::Create, hide inherited ones.
    target_compile_options(${target} PRIVATE $<$<COMPILE_LANG_AND_ID:CXX,Clang>:-Wno-overloaded-virtual>)
    target_compile_definitions(${target} PRIVATE UNICODE _UNICODE WINVER=0x0601 _WIN32_WINNT=0x0601 _WIN32_IE=0x0700)
  endif()
  if(KZ_HARDEN)
    target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-fsanitize=undefined
      -fsanitize-undefined-trap-on-error -fstack-protector-strong>)
    target_compile_definitions(${target} PRIVATE _GLIBCXX_ASSERTIONS $<$<COMPILE_LANGUAGE:CXX>:_FORTIFY_SOURCE=2>)
    target_link_options(${target} PRIVATE -fstack-protector-strong)
  endif()
  if(KZ_FUZZ)
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
  if(KZ_COVERAGE)
    # Tests act on windows from a second thread, hence atomic counters.
    target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:--coverage -fprofile-update=atomic>)
    target_link_options(${target} PUBLIC --coverage)
  endif()
  if(KZ_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PUBLIC -fsanitize=address,undefined)
  endif()
endfunction()

# kz_precompiled(NAME header...): a target for others to reuse, which compiles these headers once. They are most of what
# the compiler reads. The second compiler reads them with every source, and so finds what a source forgets to include.
function(kz_precompiled name)
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/${name}.cpp CONTENT "")
  add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/${name}.cpp)
  kz_common(${name})
  target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()

# Those of sources without windows, and of those that show some.
set(KZ_COMMON_HEADERS <algorithm> <array> <filesystem> <functional> <map> <memory> <optional> <span> <string>
  <string_view> <vector>)
kz_precompiled(kz_headers ${KZ_COMMON_HEADERS})
if(WIN32)
  kz_precompiled(kz_window_headers ${KZ_COMMON_HEADERS} <afxwin.h> <commctrl.h>)
  target_link_libraries(kz_window_headers PRIVATE KZMfc)
endif()

# What ships has an id, which reports of crashes name. A release build makes it without the time of the build, which objcopy and strip
# write too unless told -p, and with its symbols in symbols/FILE.debug, known by the id in both.
function(kz_shipped target)
  target_link_options(${target} PRIVATE -Wl,--build-id)
  if(NOT CMAKE_BUILD_TYPE STREQUAL Release)
    return()
  endif()
  target_link_options(${target} PRIVATE -Wl,--no-insert-timestamp)
  set(symbols ${CMAKE_BINARY_DIR}/symbols)
  add_custom_command(TARGET ${target} POST_BUILD VERBATIM
    COMMAND ${CMAKE_COMMAND} -E make_directory ${symbols}
    COMMAND ${CMAKE_OBJCOPY} -p --only-keep-debug $<TARGET_FILE:${target}> ${symbols}/$<TARGET_FILE_NAME:${target}>.debug
    COMMAND ${CMAKE_STRIP} -p $<TARGET_FILE:${target}>)
endfunction()

# A Windows DLL: NAME.dll, no "lib" before the name.
function(kz_dll target)
  add_library(${target} SHARED ${ARGN})
  set_target_properties(${target} PROPERTIES PREFIX "" IMPORT_PREFIX "lib")
  kz_common(${target})
  kz_shipped(${target})
endfunction()

# Resource scripts are UTF-8. CMake does not hand a target's compile options to the resource compiler.
set(CMAKE_RC_FLAGS "${CMAKE_RC_FLAGS} --codepage=65001")

# The folders in which a target's resource scripts find what they include. The resource compiler does not say what that
# is, so a script is compiled again when anything there changes that it may include.
function(kz_resources target)
  set(includable "")
  foreach(folder ${ARGN})
    set_property(TARGET ${target} APPEND PROPERTY INCLUDE_DIRECTORIES ${folder})
    file(GLOB files CONFIGURE_DEPENDS ${folder}/*.rc ${folder}/*Controls.h ${folder}/*Ids.h)
    list(APPEND includable ${files})
  endforeach()
  get_target_property(scripts ${target} SOURCES)
  list(FILTER scripts INCLUDE REGEX "\\.rc$")
  set_property(SOURCE ${scripts} APPEND PROPERTY OBJECT_DEPENDS "${includable}")
endfunction()
