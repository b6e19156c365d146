# cpack -G DEB, in a build folder: morvane_VERSION_ARCHITECTURE.deb from the install rules.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME morvane)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "The morvane developers")
set(CPACK_PACKAGE_CONTACT "The morvane developers <developers@morvane.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "quantitative analysis of images and volumes by a macro")
set(CPACK_PACKAGE_DESCRIPTION
"morvane runs one macro over two- and three-dimensional data from microscopy,
computed tomography and magnetic resonance imaging. It filters and measures
grey values, finds the direction of structure at each voxel, traces
streamlines, and writes fields, lines and text tables. Results do not depend
on the number of threads, and random numbers follow a seed.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${CPACK_PACKAGE_CONTACT})
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Debian's own form of the licences, in the package alone.
install(FILES ${PROJECT_SOURCE_DIR}/cmake/debian_copyright RENAME copyright TYPE DOC
    COMPONENT debian EXCLUDE_FROM_ALL)
set(CPACK_INSTALL_SCRIPTS)
set(CPACK_INSTALL_CMAKE_PROJECTS
    "${PROJECT_BINARY_DIR};morvane;ALL;/" "${PROJECT_BINARY_DIR};morvane;debian;/")
include(CPack)
