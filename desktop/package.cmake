# The Debian package, by `cpack -G DEB` in a build folder; the handbook is one of its own.
set(CPACK_PACKAGE_NAME tarnel)
set(CPACK_PACKAGE_CONTACT "The Tarnel developers <tarnel@tarnel.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "trainer for instrument radio navigation")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL Unspecified handbook)
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_NAME tarnel)
set(CPACK_DEBIAN_HANDBOOK_PACKAGE_NAME tarnel-handbook)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_SECTION education)
set(CPACK_DEBIAN_HANDBOOK_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_HANDBOOK_PACKAGE_ARCHITECTURE all)

# Libraries are found by themselves; these are opened by name while the program runs.
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_DEPENDS "libqt6sql6-sqlite, fonts-liberation2 | fonts-liberation")
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_RECOMMENDS "qt6-translations-l10n, qt6-wayland")
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_SUGGESTS "tarnel-handbook, pdf-viewer")
set(CPACK_COMPONENT_UNSPECIFIED_DESCRIPTION
  "A student flies a simulated aircraft over a chart of five stations and reads
VOR, HSI, RMI, ADF, DME and gyro as in a real panel. Flights are recorded,
replayed and debriefed; ten kinds of exercises ask for positions, holdings,
interceptions and wind, and fly their solutions. German and English.")
set(CPACK_COMPONENT_HANDBOOK_DESCRIPTION
  "The handbook of the trainer: a textbook of radio navigation in German and
English, with figures that were flown in the trainer.")

include(CPack)
