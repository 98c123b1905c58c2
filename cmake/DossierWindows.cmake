# The program folder on Windows. Beside the program it holds Qt's libraries and plugins and those of the compiler, all
# without their symbols, and Qt's own translations, which are the same on every system.

find_path(TRADUCTIONS_QT qtbase_fr.qm PATHS /usr/share/qt6/translations NO_CMAKE_FIND_ROOT_PATH REQUIRED)
set(POSE)

# pose_bibliotheque(NOM DE [DOSSIER]): NOM is the file name in the program folder or its DOSSIER.
function(pose_bibliotheque NOM DE)
    set(COPIE ${DOSSIER_APPLICATION}/${ARGN}/${NOM})
    list(APPEND POSE COMMAND ${CMAKE_STRIP} -o ${COPIE} ${DE})
    set(POSE ${POSE} PARENT_SCOPE)
    install(FILES ${COPIE} DESTINATION ./${ARGN})
endfunction()

foreach(BIBLIOTHEQUE Core Gui Widgets PrintSupport)
    pose_bibliotheque($<TARGET_FILE_NAME:Qt6::${BIBLIOTHEQUE}> $<TARGET_FILE:Qt6::${BIBLIOTHEQUE}>)
endforeach()
pose_bibliotheque(qwindows.dll $<TARGET_FILE:Qt6::QWindowsIntegrationPlugin> platforms)
pose_bibliotheque(qwindowsvistastyle.dll $<TARGET_FILE:Qt6::QWindowsVistaStylePlugin> styles)
foreach(BIBLIOTHEQUE libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${BIBLIOTHEQUE} OUTPUT_VARIABLE CHEMIN
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    pose_bibliotheque(${BIBLIOTHEQUE} ${CHEMIN})
endforeach()

# Qt looks for its plugins and translations here, and not in the folder where it was built.
file(CONFIGURE OUTPUT ${DOSSIER_APPLICATION}/qt.conf CONTENT "[Paths]\nPrefix=.\nPlugins=.\nTranslations=.\n")
install(FILES ${DOSSIER_APPLICATION}/qt.conf ${TRADUCTIONS_QT}/qtbase_fr.qm ${TRADUCTIONS_QT}/qtbase_es.qm DESTINATION .)

set(POSEE ${PROJECT_BINARY_DIR}/bibliotheques_posees)
add_custom_command(OUTPUT ${POSEE} DEPENDS ${CMAKE_CURRENT_LIST_FILE}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${DOSSIER_APPLICATION}/platforms ${DOSSIER_APPLICATION}/styles
    ${POSE}
    COMMAND ${CMAKE_COMMAND} -E copy ${TRADUCTIONS_QT}/qtbase_fr.qm ${TRADUCTIONS_QT}/qtbase_es.qm ${DOSSIER_APPLICATION}
    COMMAND ${CMAKE_COMMAND} -E touch ${POSEE}
    VERBATIM)
add_custom_target(bibliotheques ALL DEPENDS ${POSEE})
add_dependencies(dorvanel bibliotheques)
