# `make deb`: a Debian package of both programs from the install rules, by
# CPack. dpkg-shlibdeps finds the libraries' packages; what the programs run
# or load at run time without linking it is named here.

set(TARVIK_DOCDIR ${CMAKE_INSTALL_DATADIR}/doc/tarvik-viewer)
set(VERSION ${PROJECT_VERSION})
configure_file(${PROJECT_SOURCE_DIR}/resources/deb/changelog ${PROJECT_BINARY_DIR}/deb/changelog @ONLY)
add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/deb/changelog.gz
  COMMAND gzip -9nf -k ${PROJECT_BINARY_DIR}/deb/changelog
  DEPENDS ${PROJECT_BINARY_DIR}/deb/changelog)
add_custom_target(deb_changelog ALL DEPENDS ${PROJECT_BINARY_DIR}/deb/changelog.gz)
install(FILES ${PROJECT_SOURCE_DIR}/resources/deb/copyright ${PROJECT_BINARY_DIR}/deb/changelog.gz
        DESTINATION ${TARVIK_DOCDIR})
install(FILES ${PROJECT_SOURCE_DIR}/resources/deb/lintian-overrides
        DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME tarvik-viewer)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarvik-viewer)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Tarvik Viewer developers <viewer@tarvik.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "viewer for the memory cards of dash cameras")
# The extended description: CPack puts the summary above it as the synopsis.
set(CPACK_PACKAGE_DESCRIPTION "Lists the clips on a dash camera's memory card by recording type, plays the
front and rear cameras side by side, and shows, in step with the picture,
the G-sensor graph, the speed and the route on a map. It saves clips and
snapshots, prints, exports routes, lists the drives on the card, edits the
camera's settings and formats the card.

The tarvik command reads cards and clips for scripts and fleets.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# ffmpeg: stills and conversions run it; the X platform plugin and the
# translations of Qt's own dialogs are loaded, not linked.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "ffmpeg, qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "udisks2, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
include(CPack)
