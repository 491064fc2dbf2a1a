# Runs after cpack has put the files of all packages in place, and before it packs them: compresses the manual pages, as
# Debian wants them, and gives every file the time of the release, so that the same sources give the same packages.
if("$ENV{SOURCE_DATE_EPOCH}" STREQUAL "")
  message(FATAL_ERROR "expected the time of the release in SOURCE_DATE_EPOCH, found nothing; scripts/package sets it")
endif()
file(GLOB_RECURSE pages ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*.1)
list(FILTER pages INCLUDE REGEX "/man1/") # a shared library may be called so too
if(NOT pages)
  message(FATAL_ERROR "found no manual page in ${CPACK_TEMPORARY_INSTALL_DIRECTORY}")
endif()
execute_process(COMMAND gzip -9n ${pages} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND find ${CPACK_TEMPORARY_INSTALL_DIRECTORY} -exec touch -h -d @$ENV{SOURCE_DATE_EPOCH} {} +
                COMMAND_ERROR_IS_FATAL ANY)
