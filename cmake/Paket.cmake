# Installing like a desktop program, and the Debian package built from it:
# the program, its sound file, the desktop entry with its icon and the AppStream
# metadata in the places a Linux desktop looks for them.
include(GNUInstallDirs)

set(TRUMPONA_APP_ID de.trumpona.Trumpona)
install(TARGETS trumpona RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${PROJECT_SOURCE_DIR}/packaging/${TRUMPONA_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_SOURCE_DIR}/packaging/${TRUMPONA_APP_ID}.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
configure_file(${PROJECT_SOURCE_DIR}/packaging/${TRUMPONA_APP_ID}.metainfo.xml
               ${CMAKE_CURRENT_BINARY_DIR}/${TRUMPONA_APP_ID}.metainfo.xml @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${TRUMPONA_APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME trumpona)
set(CPACK_PACKAGE_VENDOR "Trumpona")
set(CPACK_PACKAGE_CONTACT "Trumpona <trumpona@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Doppelkopf card game against the computer or on the network")
set(CPACK_PACKAGE_DESCRIPTION "Trumpona is a desktop card game for Doppelkopf, the German trick-taking game for four players with a double deck. You play against three computer players that explain their moves, or with friends on a local network. German user interface.")
set(CPACK_PACKAGE_INSTALL_DIRECTORY trumpona)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# Every dependency follows from the libraries the program links (dpkg-shlibdeps):
# the X11 and offscreen platforms come with libqt6gui6, the SVG icon engine with
# libqt6svg6, the audio back ends with libqt6multimedia6.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Without the SVG decks the program paints its own faces; without the translations
# Qt's buttons stay English.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "kdegames-card-data-kf5, qt6-translations-l10n")
include(CPack)
