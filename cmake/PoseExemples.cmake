# Lays the sample programs and configurations of DE beside the program in VERS, over nothing that is there.
file(GLOB_RECURSE EXEMPLES RELATIVE ${DE} ${DE}/*)
foreach(EXEMPLE IN LISTS EXEMPLES)
    if(NOT EXISTS ${VERS}/${EXEMPLE})
        get_filename_component(DOSSIER ${VERS}/${EXEMPLE} DIRECTORY)
        file(COPY ${DE}/${EXEMPLE} DESTINATION ${DOSSIER})
    endif()
endforeach()
