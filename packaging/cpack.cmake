# The Debian package of `make package`: tolmar_VERSION_ARCH.deb with what
# the install rules put under /usr.  dpkg-shlibdeps finds the runtime
# libraries (Qt 6, libstdc++); no -dev package is needed to run.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tolmar)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_CONTACT ${TOLMAR_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${TOLMAR_MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "design of hard-chine and lap-strake boat hulls")
set(CPACK_PACKAGE_DESCRIPTION
    "Tolmar designs small boats built from sheet material (plywood, aluminium,
steel): hard-chine and clinker (lap-strake) hulls.  From about fifteen numbers
and the plank inclinations it computes keel, chines and sheer line, draws
profile, plan and sections, flattens every plate into a cutting pattern,
computes a mass budget and the floating position, writes DXF, XYZ and VRML
files, and prints data sheets, offset tables and drawings at a true scale, in
French and in English.  tolmar-cli runs the same engine without a display.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_STRIP_FILES ON)
# Directories as dpkg makes them, whatever the umask of the build.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
