# Tests of what is written for Windows. On Linux they run under Wine, which checks the use of memory (warn+heap).
file(GLOB_RECURSE TESTS CONFIGURE_DEPENDS Test*Windows.cpp)
foreach(SOURCE IN LISTS TESTS)
    get_filename_component(NOM ${SOURCE} NAME_WE)
    add_executable(${NOM} ${SOURCE})
    target_include_directories(${NOM} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${NOM} PRIVATE platform Qt6::Test)
    add_dependencies(${NOM} bibliotheques)
    add_test(NAME ${NOM} COMMAND ${NOM} -tap) # in other forms it writes to the debugger of Windows
    set_tests_properties(${NOM} PROPERTIES ENVIRONMENT
        "WINEPREFIX=${PROJECT_BINARY_DIR}/wine;WINEDEBUG=-all,warn+heap;WINEPATH=Z:${DOSSIER_APPLICATION}\\;Z:${QT_WINDOWS}/bin")
endforeach()
