# SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
# SPDX-License-Identifier: MIT

# The Debian package ("package" target or cpack): all that is installed, below /usr, but for the
# configuration.

# install_compressed(folder name): compresses a file of the build tree without its time, so that packages
# can be compared.
function(install_compressed folder name)
    execute_process(COMMAND gzip -9nfk ${CMAKE_BINARY_DIR}/${folder}/${name}
        COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${CMAKE_BINARY_DIR}/${folder}/${name}.gz DESTINATION ${folder})
endfunction()

# The configuration is the administrator's: in /etc, where dpkg keeps what was changed. Only variables named
# CPACK_... reach the script.
set(CPACK_CONFIGURATION etc/diagnosis-host/DiagnosisConfig.xml)
set(CPACK_CONFIGURATION_LINK usr/${DIAG_PLUGIN_DIR}/DiagnosisConfig.xml)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/package/configuration.cmake)
set(control ${CMAKE_BINARY_DIR}/control)
file(WRITE ${control}/conffiles "/${CPACK_CONFIGURATION}\n")
configure_file(cmake/package/preinst.in ${control}/preinst @ONLY)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${control}/conffiles ${control}/preinst)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(man_pages ${CMAKE_INSTALL_MANDIR}/man1)
foreach(page host/app/desktop/diagnosis-host.1 tools/sdk-check/diagnosis-sdk-check.1)
    cmake_path(GET page FILENAME name)
    configure_file(${page}.in ${CMAKE_BINARY_DIR}/${man_pages}/${name} @ONLY)
    install_compressed(${man_pages} ${name})
endforeach()

install(FILES host/app/desktop/diagnosis-host.bash
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME diagnosis-host)

# The changelogs, and the releases of the AppStream metadata. An unreleased version gets today's date.
set(CPACK_PACKAGE_CONTACT "The DiagnosisPlugin authors <authors@diagnosisplugin.invalid>")
set(documents ${CMAKE_INSTALL_DATADIR}/doc/diagnosis-host)
configure_file(CHANGELOG.md ${CMAKE_BINARY_DIR}/${documents}/changelog COPYONLY)
install_compressed(${documents} changelog)
string(TIMESTAMP today "%Y-%m-%d" UTC)
file(STRINGS CHANGELOG.md headings REGEX "^## ")
foreach(heading IN LISTS headings)
    if(NOT heading MATCHES "^## ([0-9.]+) \\((.*)\\)")
        message(FATAL_ERROR "CHANGELOG.md: no version and date in \"${heading}\"")
    endif()
    set(version ${CMAKE_MATCH_1})
    string(REPLACE unreleased ${today} day "${CMAKE_MATCH_2}")
    execute_process(COMMAND date -uR -d ${day} OUTPUT_VARIABLE date COMMAND_ERROR_IS_FATAL ANY)
    string(APPEND debian_changelog
"diagnosis-host (${version}-1) unstable; urgency=medium

  * What is new is in changelog.gz.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
    string(APPEND releases "    <release version=\"${version}\" date=\"${day}\"/>\n")
endforeach()
file(WRITE ${CMAKE_BINARY_DIR}/${documents}/changelog.Debian "${debian_changelog}")
install_compressed(${documents} changelog.Debian)
install(FILES LICENSE DESTINATION ${documents} RENAME copyright)

# The pages lie as in the sources, so that their links work, but for those to sources and to LICENSE.
install(FILES README.md DESTINATION ${documents})
install(DIRECTORY config docs examples DESTINATION ${documents})
install(FILES host/modems/README.md DESTINATION ${documents}/host/modems)

# The AppStream metadata, with the names of the desktop entry.
set(entry ${CMAKE_SOURCE_DIR}/host/app/desktop/diagnosis-host.desktop)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${entry})
file(STRINGS ${entry} lines ENCODING UTF-8 REGEX "^(Name|Comment)")
foreach(line IN LISTS lines)
    string(REGEX MATCH "^([A-Za-z]+)(\\[(.*)\\])?=(.*)" line "${line}")
    set(text "${CMAKE_MATCH_4}")
    string(REPLACE Name name tag ${CMAKE_MATCH_1})
    string(REPLACE Comment summary tag ${tag})
    string(REPLACE _ - language "${CMAKE_MATCH_3}")
    string(REGEX REPLACE "(.+)" " xml:lang=\"\\1\"" language "${language}")
    string(APPEND names "  <${tag}${language}>${text}</${tag}>\n")
endforeach()
set(metadata ${CMAKE_INSTALL_DATADIR}/metainfo)
set(component com.velt.diagnosishost.metainfo.xml)
configure_file(host/app/desktop/${component}.in ${CMAKE_BINARY_DIR}/${metadata}/${component} @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/${metadata}/${component} DESTINATION ${metadata})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME diagnosis-host)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "diagnostics window for mobile-broadband modems")
set(CPACK_PACKAGE_DESCRIPTION
"Shows the identity of a USB mobile-broadband modem, the state of its network
and its SIM, and writes them to a text file. The window is a plug-in of
connection managers; this package brings it with a reference host.
.
The modem is one that ModemManager knows or one of several simulated ones.")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The windows' fixed sizes are made for this font. Qt's packages recommend its translations.
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-dejavu-core)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-wqy-microhei, qtwayland5") # for Chinese, and for Wayland
set(CPACK_DEBIAN_PACKAGE_SUGGESTS modemmanager)
include(CPack)
