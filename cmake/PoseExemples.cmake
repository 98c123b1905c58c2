# Copies the sample programs and configurations from the folder DE to VERS. Existing files are not overwritten.
file(GLOB_RECURSE EXEMPLES RELATIVE ${DE} ${DE}/*)
foreach(EXEMPLE IN LISTS EXEMPLES)
    if(NOT EXISTS ${VERS}/${EXEMPLE})
        get_filename_component(DOSSIER ${VERS}/${EXEMPLE} DIRECTORY)
        file(COPY ${DE}/${EXEMPLE} DESTINATION ${DOSSIER})
    endif()
endforeach()
