# Installing, and the Debian package.
include(GNUInstallDirs)
install(TARGETS trelvo RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# A program under test is not one to install.
if(NOT TRELVO_SANITIZE)
  add_subdirectory(packaging)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME trelvo)
set(CPACK_PACKAGE_CONTACT "The Trelvo authors <trelvo@trelvo.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "two-dimensional drafting program")
set(CPACK_PACKAGE_DESCRIPTION
    "Trelvo draws lines, arcs, circles, polylines, rectangles, filled surfaces and
texts, by clicks or by typed coordinates, helped by step, grid, ortho and
object snap. Many drawings stand in one window.
.
It keeps its own drawing files, imports drawings written as text, exports DXF
and BMP, prints to scale, and can be driven by a script without a display.
Its face and its manual speak Italian.")
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation, qt6-translations-l10n, xdg-utils")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                WORLD_READ WORLD_EXECUTE)
include(CPack)
