# Debian packages, made by scripts/make-deb. The grader is one of its own, for machines without a screen want no
# Qt; what others build on is another.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT ${VORN_MAINTAINER})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_COMPONENTS_ALL grade workbench algorithm rockeval)
set(CPACK_COMPONENT_GRADE_GROUP grade)
set(CPACK_COMPONENT_WORKBENCH_GROUP workbench)
set(CPACK_COMPONENT_ALGORITHM_GROUP development)
set(CPACK_COMPONENT_ROCKEVAL_GROUP development)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE vorn)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

set(CPACK_DEBIAN_GRADE_PACKAGE_NAME vorn-grade)
set(CPACK_DEBIAN_GRADE_PACKAGE_SECTION science)
set(CPACK_DEBIAN_GRADE_DESCRIPTION "grader of raw Rock-Eval pyrolysis curves
Reads raw Rock-Eval VI files and grades each curve as good (one clean peak),
double (two) or flat (nothing that stands out), and says why: as a table, CSV,
JSON or an HTML report, for one file or thousands.")

# Loaded by name, so that no program that looks at the files would see that they are needed: the driver of the
# project file, that of projects on a server, the letters of the interface, the French of Qt's own dialogs.
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_NAME vorn-workbench)
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_SECTION science)
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_DEPENDS "libqt5sql5-sqlite")
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_RECOMMENDS "libqt5sql5-psql, fonts-dejavu-core, qttranslations5-l10n, vorn-grade")
set(CPACK_DEBIAN_WORKBENCH_DESCRIPTION "workbench for pyrolysis curves and laboratory tables
Imports raw Rock-Eval VI files and tables of source rocks and gases into a
project, grades the quality of its curves and shows why, in a window with
tables and plots, in English and French. Projects are files, or stand on a
PostgreSQL server that several desks share.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvorn-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "engine that grades pyrolysis curves, and reader of raw files
The header-only engine that grades Rock-Eval pyrolysis curves and the library
that reads their raw files, as two CMake packages, VornAlgorithm and
VornRockEval. Both need nothing but the C++17 standard library.")

include(CPack)
