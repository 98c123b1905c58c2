# Where the files of an installation go, and the Debian package (cpack). The program lies in lib/dorvanel, with manuals
# and samples beside it as in the build. The simulated machine is installed too, so that a newcomer can try the program.

include(GNUInstallDirs)
include(cmake/Paquet.cmake)
set(PAQUET ${PROJECT_SOURCE_DIR}/paquet)
set(FABRIQUE ${PROJECT_BINARY_DIR}/paquet)
set(DOSSIER_PROGRAMME lib/dorvanel)
set(TAILLES_THEME 16 22 24 32 48 64 128 256)

# Each version of the project has a heading with its day in CHANGELOG.md.
file(STRINGS ${PROJECT_SOURCE_DIR}/CHANGELOG.md TITRE REGEX "^## \\[${PROJECT_VERSION}\\] - ")
if(NOT TITRE MATCHES "([0-9]+-[0-9]+-[0-9]+)$")
    message(FATAL_ERROR "CHANGELOG.md has no heading \"## [${PROJECT_VERSION}] - YYYY-MM-DD\"")
endif()
set(DATE ${CMAKE_MATCH_1})
execute_process(COMMAND date --utc --rfc-email --date=${DATE} OUTPUT_VARIABLE DATE_COURRIER
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
foreach(DOCUMENT changelog dorvanel.1 example.dorvanel.Dorvanel.metainfo.xml)
    configure_file(${PAQUET}/${DOCUMENT}.in ${FABRIQUE}/${DOCUMENT} @ONLY)
endforeach()

install(TARGETS dorvanel machine RUNTIME DESTINATION ${DOSSIER_PROGRAMME})
install(DIRECTORY resources/aide/ resources/exemples/ DESTINATION ${DOSSIER_PROGRAMME})
install(FILES tools/machine/outils_tour.txt DESTINATION ${DOSSIER_PROGRAMME})
install(PROGRAMS tools/essai DESTINATION ${DOSSIER_PROGRAMME})
foreach(COMMANDE dorvanel essai)
    string(REPLACE essai dorvanel-essai NOM ${COMMANDE})
    file(MAKE_DIRECTORY ${FABRIQUE})
    file(CREATE_LINK ../${DOSSIER_PROGRAMME}/${COMMANDE} ${FABRIQUE}/${NOM} SYMBOLIC)
    install(FILES ${FABRIQUE}/${NOM} DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()

# Icons in the sizes of the desktop's icon theme, made from one drawing
dessine_icone(Dorvanel ${FABRIQUE}/icones ${TAILLES_THEME})
foreach(TAILLE IN LISTS TAILLES_THEME)
    install(FILES ${FABRIQUE}/icones/${TAILLE}.png RENAME dorvanel.png
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${TAILLE}x${TAILLE}/apps)
endforeach()
install(FILES resources/icones/Dorvanel.svg RENAME dorvanel.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

# The desktop: menu entry, file types, software catalogue
install(FILES ${PAQUET}/dorvanel.desktop ${PAQUET}/zz-dorvanel-autres.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PAQUET}/dorvanel.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES ${FABRIQUE}/example.dorvanel.Dorvanel.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# Documents
set(DOCS ${CMAKE_INSTALL_DATADIR}/doc/dorvanel)
install(FILES README.md CHANGELOG.md CONTRIBUTING.md ${PAQUET}/copyright DESTINATION ${DOCS})
install(FILES docs/fenetre.png docs/branchement.md docs/essai_windows.md docs/architecture.md DESTINATION ${DOCS}/docs)
install(FILES docs/70-dorvanel.rules DESTINATION ${DOCS}/examples)
foreach(DOCUMENT changelog dorvanel.1)
    list(APPEND COMPRIMES ${FABRIQUE}/${DOCUMENT}.gz)
    add_custom_command(OUTPUT ${FABRIQUE}/${DOCUMENT}.gz DEPENDS ${FABRIQUE}/${DOCUMENT}
                       COMMAND gzip -9nc ${FABRIQUE}/${DOCUMENT} > ${FABRIQUE}/${DOCUMENT}.gz)
endforeach()
install(FILES ${FABRIQUE}/changelog.gz DESTINATION ${DOCS})
install(FILES ${FABRIQUE}/dorvanel.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${FABRIQUE}/dorvanel.1.gz RENAME dorvanel-essai.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

add_custom_target(a_installer ALL DEPENDS ${IMAGES} ${COMPRIMES})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME dorvanel)
set(CPACK_PACKAGE_CONTACT "Dorvanel <${COURRIEL}>")
set(CPACK_PACKAGE_DESCRIPTION "Dorvanel Pro sends and receives CN programs between a PC and a machine
tool over a serial line, exact to the byte, and writes tool gauge files
from the measures of a presetting bench. It speaks French, English and
Spanish.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# A font is needed for any text at all. Recommended: the translations of the toolkit's buttons and dialogs, and
# xdg-open, which replaces a missing editor.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core | fonts-freefont-ttf | fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, qt6-wayland, xdg-utils")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
