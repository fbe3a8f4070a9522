# Run while installing: fills the folders of the installation into the settings and the manuals,
# and compresses the manuals and the change log.

# full(RESULT FOLDER): the absolute path of a folder, which may be relative to the prefix. With the
# prefix /usr the settings are in /etc.
function(full result folder)
  cmake_path(SET prefix NORMALIZE "${CMAKE_INSTALL_PREFIX}/.")
  if(folder STREQUAL "etc" AND prefix STREQUAL "/usr/")
    set(prefix "/")
  endif()
  cmake_path(ABSOLUTE_PATH folder BASE_DIRECTORY "${prefix}" NORMALIZE)
  set(${result} "${folder}" PARENT_SCOPE)
endfunction()

# compress(SOURCE RESULT): without a time stamp, so that the same text gives the same file.
function(compress source result)
  execute_process(COMMAND gzip -9nc "${source}" OUTPUT_FILE "${result}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

full(datadir "${CMAKE_INSTALL_DATADIR}")
full(mandir "${CMAKE_INSTALL_MANDIR}")
full(sysconfdir "${CMAKE_INSTALL_SYSCONFDIR}")
full(programdir "${TEPHREX_PROGRAM_DIR}")

set(filled "${TEPHREX_FILLED_IN}")
configure_file("${TEPHREX_SOURCE}/data/desktop/Tephrex3.ini.in" "${filled}/Tephrex3.ini" @ONLY)
compress("${TEPHREX_SOURCE}/packaging/changelog" "${filled}/changelog.gz")

file(INSTALL "${filled}/Tephrex3.ini" DESTINATION "${sysconfdir}/xdg")
foreach(program IN LISTS TEPHREX_PROGRAMS)
  set(manual "${filled}/${program}.1")
  configure_file("${TEPHREX_SOURCE}/data/desktop/${program}.1.in" "${manual}" @ONLY)
  compress("${manual}" "${manual}.gz")
  file(INSTALL "${manual}.gz" DESTINATION "${mandir}/man1")
endforeach()
file(INSTALL "${filled}/changelog.gz" DESTINATION "${datadir}/doc/tephrexedit")

if(NOT sysconfdir STREQUAL "/etc")
  message(STATUS "For the settings to be found, XDG_CONFIG_DIRS must name ${sysconfdir}/xdg")
endif()
