# vorn_install_package(<Package> TARGET <target> COMPONENT <component> HEADERS <folder> DESCRIPTION <folder>)
#
# Installs one library of ours so that another project finds it: find_package(<Package>) gives it as
# Vorn::<EXPORT_NAME of the target>. What lies in include/ goes into the folder of headers. Each package is
# complete by itself and needs none of the others.
include(CMakePackageConfigHelpers)

function(vorn_install_package package)
    cmake_parse_arguments(ARG "" "TARGET;COMPONENT;HEADERS;DESCRIPTION" "" ${ARGN})
    set(folder ${ARG_DESCRIPTION}/${package})
    get_target_property(type ${ARG_TARGET} TYPE)
    set(any_architecture)
    if(type STREQUAL INTERFACE_LIBRARY)
        set(any_architecture ARCH_INDEPENDENT)
    endif()

    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/PackageConfig.cmake.in ${package}Config.cmake
        INSTALL_DESTINATION ${folder})
    write_basic_package_version_file(${package}ConfigVersion.cmake
        COMPATIBILITY SameMinorVersion ${any_architecture})
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake
        ${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake
        DESTINATION ${folder} COMPONENT ${ARG_COMPONENT})
    install(DIRECTORY include/ DESTINATION ${ARG_HEADERS} COMPONENT ${ARG_COMPONENT})
    install(TARGETS ${ARG_TARGET} EXPORT ${package}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${ARG_COMPONENT})
    install(EXPORT ${package} FILE ${package}Targets.cmake NAMESPACE Vorn::
        DESTINATION ${folder} COMPONENT ${ARG_COMPONENT})
endfunction()
