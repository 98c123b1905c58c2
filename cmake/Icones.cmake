# The pictures of the windows, drawn when the program is built: the program then needs nothing to draw them with.

find_program(RSVG_CONVERT rsvg-convert REQUIRED)

# Heights in pixels: 16 in menus, 24 in bars, 32 and 48 in boxes, 64 and 96 in windows, at scales of 1, 1.25, 1.5 and 2.
set(TAILLES_ICONE 16 20 24 30 32 36 40 48 64 72 96 128 192)

# dessine_icone(DESSIN DOSSIER TAILLES...): draws resources/icones/DESSIN.svg as DOSSIER/TAILLE.png in each size, and
# names these files in IMAGES.
function(dessine_icone DESSIN DOSSIER)
    set(SVG ${PROJECT_SOURCE_DIR}/resources/icones/${DESSIN}.svg)
    set(IMAGES)
    set(DESSINE COMMAND ${CMAKE_COMMAND} -E make_directory ${DOSSIER})
    foreach(TAILLE IN LISTS ARGN)
        set(IMAGE ${DOSSIER}/${TAILLE}.png)
        list(APPEND IMAGES ${IMAGE})
        list(APPEND DESSINE COMMAND ${RSVG_CONVERT} --keep-aspect-ratio --height ${TAILLE} --output ${IMAGE} ${SVG})
    endforeach()
    add_custom_command(OUTPUT ${IMAGES} ${DESSINE} DEPENDS ${SVG} VERBATIM)
    set(IMAGES ${IMAGES} PARENT_SCOPE)
endfunction()

# pose_icones(CIBLE NOM [ICONE=]DESSIN...): puts drawings into a library, in every size, as the resource NOM. The program
# finds them as :/NOM/ICONE; an icon bears its drawing's name where no other is given.
function(pose_icones CIBLE NOM)
    set(DOSSIER ${PROJECT_BINARY_DIR}/icones/${NOM})
    set(LISTE "<RCC><qresource prefix=\"/${NOM}\">\n")
    set(TOUTES)
    foreach(PLACE IN LISTS ARGN)
        string(REGEX REPLACE "=.*" "" ICONE ${PLACE})
        string(REGEX REPLACE ".*=" "" DESSIN ${PLACE})
        dessine_icone(${DESSIN} ${DOSSIER}/${ICONE} ${TAILLES_ICONE})
        list(APPEND TOUTES ${IMAGES})
        foreach(IMAGE IN LISTS IMAGES)
            get_filename_component(TAILLE ${IMAGE} NAME)
            string(APPEND LISTE "<file alias=\"${ICONE}/${TAILLE}\">${IMAGE}</file>\n")
        endforeach()
    endforeach()
    file(CONFIGURE OUTPUT ${DOSSIER}.qrc CONTENT "${LISTE}</qresource></RCC>\n")
    set(CODE ${DOSSIER}.cpp)
    add_custom_command(OUTPUT ${CODE} DEPENDS ${TOUTES} ${DOSSIER}.qrc
        COMMAND Qt6::rcc --name ${NOM} --no-compress --output ${CODE} ${DOSSIER}.qrc VERBATIM)
    set_source_files_properties(${CODE} PROPERTIES SKIP_AUTOGEN ON)
    target_sources(${CIBLE} PRIVATE ${CODE})
endfunction()
