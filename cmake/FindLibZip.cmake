# Finds libzip by its files: the package description that some systems ship with it asks for tools that they
# put elsewhere. Gives the target LibZip::LibZip and LibZip_VERSION.
find_path(LIBZIP_INCLUDE_DIR zip.h)
find_path(LIBZIP_CONFIG_INCLUDE_DIR zipconf.h PATH_SUFFIXES libzip/include)
find_library(LIBZIP_LIBRARY NAMES zip)

if(LIBZIP_CONFIG_INCLUDE_DIR)
    file(STRINGS "${LIBZIP_CONFIG_INCLUDE_DIR}/zipconf.h" libzip_version_line
        REGEX "^#define[ \t]+LIBZIP_VERSION[ \t]+\"[^\"]+\"")
    string(REGEX REPLACE ".*\"([^\"]+)\".*" "\\1" LibZip_VERSION "${libzip_version_line}")
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(LibZip
    REQUIRED_VARS LIBZIP_LIBRARY LIBZIP_INCLUDE_DIR LIBZIP_CONFIG_INCLUDE_DIR
    VERSION_VAR LibZip_VERSION)
mark_as_advanced(LIBZIP_INCLUDE_DIR LIBZIP_CONFIG_INCLUDE_DIR LIBZIP_LIBRARY)

if(LibZip_FOUND AND NOT TARGET LibZip::LibZip)
    add_library(LibZip::LibZip UNKNOWN IMPORTED)
    set_target_properties(LibZip::LibZip PROPERTIES
        IMPORTED_LOCATION "${LIBZIP_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${LIBZIP_INCLUDE_DIR};${LIBZIP_CONFIG_INCLUDE_DIR}")
endif()
