# One Debian package of both programs; ./package.sh makes it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kestrum)
set(CPACK_PACKAGE_VENDOR "Kestrum Suite authors")
set(CPACK_PACKAGE_CONTACT "Kestrum Suite authors <${support}>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
  GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${PROJECT_HOMEPAGE_URL}")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt reads SVG icons and paints on X and Wayland by modules that no library asks for.
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-dejavu-core)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, shared-mime-info, xdg-utils")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DESCRIPTION
"Kestrum Suite is made for engine builders and cylinder-head porters.
It corrects what a flow bench showed to the pressure you want and works
out discharge coefficients, velocities, effective valve areas and flow
ratios. It compares two tests in 18 ways as table and graph, keeps a
library of tests, prints customer sheets and sizes an engine's induction.
.
The package holds the desktop program kestrum, and kestrum-cli for batch
work.")
include(CPack)
