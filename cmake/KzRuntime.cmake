# The runtime DLLs of g++ stand beside the products, so that build/windows/bin can be copied to a Windows machine as it is.
set(runtime_dlls libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
if(KZ_HARDEN)
  list(APPEND runtime_dlls libssp-0.dll)  # the stack protector's
endif()
set(copies)
foreach(dll ${runtime_dlls})
  execute_process(COMMAND ${KZ_GXX} -print-file-name=${dll} OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT IS_ABSOLUTE "${path}")
    # g++ does not know the folder of the thread library's DLL, which is beside the target's libraries.
    find_file(path_${dll} ${dll} PATHS ${CMAKE_FIND_ROOT_PATH}/lib NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
    set(path ${path_${dll}})
  endif()
  set(copy ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${dll})
  add_custom_command(OUTPUT ${copy} DEPENDS ${path} VERBATIM
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
    COMMAND ${CMAKE_STRIP} -p -o ${copy} ${path} COMMENT "Copying ${dll}")
  list(APPEND copies ${copy})
endforeach()
add_custom_target(kz_runtime ALL DEPENDS ${copies})
set(KZ_RUNTIME_DLLS ${copies})
