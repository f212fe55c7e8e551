# Debian packs pages of the manual and changelogs. Without a time inside, the same sources make the same package.
file(GLOB_RECURSE pages "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*.1")
file(GLOB_RECURSE changelogs "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/changelog")
foreach(file IN LISTS pages changelogs)
  execute_process(COMMAND gzip -9n -- "${file}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()
