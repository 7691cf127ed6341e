# What each package keeps in /usr/share/doc: its documents, its licence, what changed and when it was packed.
file(STRINGS ${PROJECT_SOURCE_DIR}/LICENSE licence_lines ENCODING UTF-8)
list(POP_FRONT licence_lines COPYRIGHT_LINE)
string(REGEX REPLACE "^Copyright ([^.]*)\\..*" "\\1" COPYRIGHT_HOLDERS "${COPYRIGHT_LINE}")
file(READ ${PROJECT_SOURCE_DIR}/LICENSE LICENCE_TEXT)
string(STRIP "${LICENCE_TEXT}" LICENCE_TEXT)
string(REGEX REPLACE "\n\n" "\n.\n" LICENCE_TEXT "${LICENCE_TEXT}")
string(REGEX REPLACE "\n" "\n " LICENCE_TEXT "${LICENCE_TEXT}")
configure_file(debian/copyright.in copyright @ONLY)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/LICENSE)

string(TIMESTAMP PACKING_TIME "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(debian/changelog.in changelog.Debian @ONLY)

# install_documents(<package> <component> <document>...)
function(install_documents package component)
    set(folder ${CMAKE_INSTALL_DATADIR}/doc/${package})
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/copyright ${ARGN} DESTINATION ${folder} COMPONENT ${component})
    install_compressed(${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog ${folder} ${component})
    install_compressed(${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian changelog.Debian ${folder} ${component})
endfunction()

set(docs ${PROJECT_SOURCE_DIR}/docs)
set(guides grading formats cluster server)
# They point to one another, so each package has all that its own ones need.
list(TRANSFORM guides REPLACE "(.+)" "${docs}/\\1.md")
install_documents(vorn-grade grade ${guides})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/vorn-grade COMPONENT grade
    PATTERN embedding EXCLUDE PATTERN tables EXCLUDE)
if(VORN_BUILD_DESKTOP)
    install_documents(vorn-workbench workbench ${guides} ${docs}/user-guide.md)
    file(GLOB pictures CONFIGURE_DEPENDS ${docs}/images/workbench-*.png)
    install(FILES ${pictures} DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/vorn-workbench/images COMPONENT workbench)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/tables
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/vorn-workbench/examples COMPONENT workbench)
endif()
# The engine and the reader share a package.
install_documents(libvorn-dev rockeval)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/copyright
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libvorn-dev COMPONENT algorithm)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/embedding
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libvorn-dev/examples COMPONENT rockeval)
