# What an installation consists of, and the Debian package made of it.
include(GNUInstallDirs)

install(TARGETS quillane RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# What a program folder is filled from on first start.
install(FILES data/UserPreferences.txt data/events.jpg DESTINATION ${CMAKE_INSTALL_DATADIR}/quillane)
install(DIRECTORY data/Help "data/Wedding Proposals" DESTINATION ${CMAKE_INSTALL_DATADIR}/quillane)
install(FILES data/desktop/quillane.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES data/desktop/quillane.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES data/icons/quillane.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quillane)
set(CPACK_PACKAGE_VENDOR Quillane)
set(CPACK_PACKAGE_CONTACT "Quillane <quillane@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DESCRIPTION
    "Write, price, print and file proposals for weddings and events.\n"
    "A proposal is up to six letter-sized pages with the client's details, priced item rows, totals with sales tax\n"
    "and the contract. Everything is kept in plain files beside each other.")
list(JOIN CPACK_PACKAGE_DESCRIPTION "" CPACK_PACKAGE_DESCRIPTION)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION office)
# The libraries come from the binary itself.  What it loads or needs only while it runs does not: the fonts in which the
# pages are measured, the printers, the desktop's way to open a help page.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation, qt6-qpa-plugins, libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "cups, xdg-utils, qt6-wayland")
include(CPack)
