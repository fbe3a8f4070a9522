# The Debian package. It installs to /usr, whatever the build's own prefix is.

set(CPACK_GENERATOR DEB)
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/SamePackage.cmake)
set(CPACK_SECONDS_OF_CHANGELOG ${TEPHREX_SECONDS})

set(CPACK_PACKAGE_NAME tephrexedit)
set(CPACK_PACKAGE_VENDOR "TephrexEdit developers")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor for the records of the Tephrex eruption simulator")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"A record is the script of one simulated volcanic history: up to 500 phases,
each an eruption of one of seven styles, a faulting event or a period of
erosion.
.
TephrexEdit shows one phase at a time, offers the parameters that its type
uses, and saves a record only when every phase is within the limits of its
type. The program tephrexcheck lists everything that is wrong with any
number of records, and tephrexdraw draws one as a picture.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "TephrexEdit developers <tephrexedit@example.org>")
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/conffiles)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
