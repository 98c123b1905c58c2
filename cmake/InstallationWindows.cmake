# The installer and the zip for Windows (cpack). They hold the program folder: the program, the manuals, the samples, the
# libraries that DossierWindows.cmake lays beside them, and the terms of all of these.

include(cmake/Paquet.cmake)
set(PAQUET ${PROJECT_SOURCE_DIR}/paquet/windows)
set(FABRIQUE ${PROJECT_BINARY_DIR}/paquet)

# The icon of the file, in the sizes of desktop, task bar and lists, its version and its manifest
find_program(CONVERT convert REQUIRED)
set(ICONE ${FABRIQUE}/dorvanel.ico)
set(MANIFESTE ${PAQUET}/dorvanel.manifest)
dessine_icone(Dorvanel ${FABRIQUE}/icones 16 20 24 32 40 48 64 256)
add_custom_command(OUTPUT ${ICONE} DEPENDS ${IMAGES} COMMAND ${CONVERT} ${IMAGES} ${ICONE} VERBATIM)
add_custom_target(icone DEPENDS ${ICONE})
add_dependencies(dorvanel icone)
configure_file(${PAQUET}/dorvanel.rc.in ${FABRIQUE}/dorvanel.rc @ONLY)
set_source_files_properties(${FABRIQUE}/dorvanel.rc TARGET_DIRECTORY dorvanel PROPERTIES OBJECT_DEPENDS "${ICONE};${MANIFESTE}")
target_sources(dorvanel PRIVATE ${FABRIQUE}/dorvanel.rc)

install(TARGETS dorvanel RUNTIME DESTINATION .)
install(DIRECTORY resources/aide/ resources/exemples/ DESTINATION .)
install(FILES CHANGELOG.md DESTINATION . RENAME CHANGELOG.txt)

# The terms of what the program links, as Debian's packages have them
set(TERMES /usr/share/doc)
install(FILES ${TERMES}/qt6-base-dev/copyright DESTINATION Licences RENAME Qt.txt)
install(FILES ${TERMES}/gcc-mingw-w64-base/copyright DESTINATION Licences RENAME GCC.txt)
install(FILES ${TERMES}/mingw-w64-common/copyright DESTINATION Licences RENAME MinGW.txt)
foreach(TERME LGPL-3 GPL-3)
    install(FILES /usr/share/common-licenses/${TERME} DESTINATION Licences RENAME ${TERME}.txt)
endforeach()

set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON) # the tests for Windows are no part of it
set(CPACK_GENERATOR NSIS ZIP)
set(CPACK_PACKAGE_NAME "Dorvanel Pro")
set(CPACK_PACKAGE_FILE_NAME dorvanel_${PROJECT_VERSION}_windows)
set(CPACK_PACKAGE_INSTALL_DIRECTORY "Dorvanel Pro")
set(CPACK_PACKAGE_INSTALL_REGISTRY_KEY "Dorvanel Pro")
set(CPACK_PACKAGE_EXECUTABLES dorvanel "Dorvanel Pro")

# The installer is a 64-bit program itself: a 32-bit one would look for the program in the wrong Program Files.
set(CPACK_NSIS_DEFINES "Target amd64-unicode
  !include LogicLib.nsh
  !include /CHARSET=UTF8 \"${PAQUET}/fermeture.nsh\"
  !include /CHARSET=UTF8 \"${PAQUET}/types.nsh\"")
set(CPACK_NSIS_EXTRA_PREINSTALL_COMMANDS "!insertmacro AttendFermeture")
set(CPACK_NSIS_EXTRA_INSTALL_COMMANDS "!insertmacro Types Pose")
set(CPACK_NSIS_EXTRA_UNINSTALL_COMMANDS "!insertmacro AttendFermeture\n!insertmacro Types Retire")
set(CPACK_NSIS_INSTALL_ROOT "$PROGRAMFILES64")
set(CPACK_NSIS_EXECUTABLES_DIRECTORY .)
set(CPACK_NSIS_PACKAGE_NAME "Dorvanel Pro")
set(CPACK_NSIS_DISPLAY_NAME "Dorvanel Pro")
set(CPACK_NSIS_INSTALLED_ICON_NAME dorvanel.exe)
set(CPACK_NSIS_MUI_ICON ${ICONE})
set(CPACK_NSIS_MUI_UNIICON ${ICONE})
set(CPACK_NSIS_IGNORE_LICENSE_PAGE ON)
set(CPACK_NSIS_URL_INFO_ABOUT ${CPACK_PACKAGE_HOMEPAGE_URL})
set(CPACK_NSIS_CONTACT ${COURRIEL})
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
