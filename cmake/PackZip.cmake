# Run by CPack in place of its own ZIP, whose entries stand in the order of the disk.
set(zip ${CPACK_TOPLEVEL_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}.zip)
execute_process(COMMAND ${CPACK_KZ_ARCHIVE} ${CPACK_TEMPORARY_DIRECTORY} ${zip} COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES ${zip})
