# tavrel_add_library(<Name> SOURCES <file>... LIBRARIES <target>...)
#
# One library of the open host: shared, since its singletons must be one across all that use it, named as
# the platform names it (Ovx.Tavrel.Core), with the short alias Tavrel::Core. Its folder is on the include
# path of its users, whose includes name the header alone.
function(tavrel_add_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    string(TOLOWER "tavrel_${name}" target)
    add_library(${target} SHARED ${ARG_SOURCES})
    add_library(Tavrel::${name} ALIAS ${target})
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME "Ovx.Tavrel.${name}"
        INSTALL_RPATH $ORIGIN
        AUTOMOC ON
        AUTORCC ON)
    install(TARGETS ${target} LIBRARY DESTINATION ${VORN_PRIVATE_LIBDIR} COMPONENT workbench)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>)
    target_link_libraries(${target} PUBLIC ${ARG_LIBRARIES} PRIVATE vorn_warnings)
    if(NOT VORN_SANITIZERS)
        target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
endfunction()
