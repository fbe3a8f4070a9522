# Where `cmake --install` puts everything, and the package that cpack makes of it.
# Needs the target tephrexedit: without the window nothing is installed.

if(NOT TARGET tephrexedit)
  return()
endif()
include(GNUInstallDirs)
include(${CMAKE_CURRENT_LIST_DIR}/Version.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/Icons.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/Package.cmake)

# install_program(PROGRAM FOLDER): a target and its manual, data/desktop/PROGRAM.1.in.
function(install_program program folder)
  install(TARGETS ${program} RUNTIME DESTINATION ${folder})
  install(CODE "
    if(CMAKE_INSTALL_DO_STRIP)  # strip leaves the compiler's name in the file
      execute_process(COMMAND \"${CMAKE_STRIP}\" --remove-section=.comment
        \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${folder}/${program}\" COMMAND_ERROR_IS_FATAL ANY)
    endif()")
  set_property(GLOBAL APPEND PROPERTY TEPHREX_PROGRAMS ${program})
endfunction()

# The editor and its help file share a private folder, which is lib/ on every platform, even if
# libraries are elsewhere. A link in bin starts the editor.
set(TEPHREX_PROGRAM_DIR lib/tephrexedit)
install_program(tephrexedit ${TEPHREX_PROGRAM_DIR})
install(FILES data/Tephrex3.hlp DESTINATION ${TEPHREX_PROGRAM_DIR})

file(RELATIVE_PATH from_bin
  ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_PREFIX}/${TEPHREX_PROGRAM_DIR}/tephrexedit)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/installed/bin)
file(CREATE_LINK ${from_bin} ${PROJECT_BINARY_DIR}/installed/bin/tephrexedit SYMBOLIC)
install(FILES ${PROJECT_BINARY_DIR}/installed/bin/tephrexedit
  DESTINATION ${CMAKE_INSTALL_BINDIR})

foreach(program IN ITEMS tephrexcheck tephrexdraw)
  if(TARGET ${program})
    install_program(${program} ${CMAKE_INSTALL_BINDIR})
  endif()
endforeach()

install(FILES data/TephrexDemo.rec DESTINATION ${CMAKE_INSTALL_DATADIR}/tephrexedit)
install(FILES data/desktop/tephrexedit.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES data/desktop/org.example.tephrexedit.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES data/desktop/tephrexedit-mime.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME tephrexedit.xml)
install(FILES packaging/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tephrexedit)

# These files name folders of the installation, whose prefix is known only when installing.
get_property(programs GLOBAL PROPERTY TEPHREX_PROGRAMS)
install(CODE "
  set(TEPHREX_DATE \"${TEPHREX_DATE}\")
  set(TEPHREX_PROGRAMS \"${programs}\")
  set(PROJECT_VERSION \"${PROJECT_VERSION}\")
  set(TEPHREX_SOURCE \"${PROJECT_SOURCE_DIR}\")
  set(TEPHREX_FILLED_IN \"${PROJECT_BINARY_DIR}/installed\")
  set(TEPHREX_PROGRAM_DIR \"${TEPHREX_PROGRAM_DIR}\")
  set(CMAKE_INSTALL_DATADIR \"${CMAKE_INSTALL_DATADIR}\")
  set(CMAKE_INSTALL_MANDIR \"${CMAKE_INSTALL_MANDIR}\")
  set(CMAKE_INSTALL_SYSCONFDIR \"${CMAKE_INSTALL_SYSCONFDIR}\")
  include(\"${CMAKE_CURRENT_LIST_DIR}/FilledIn.cmake\")")
