# The tests for Windows. On Linux they run under Wine, without a display (its driver "null"), and Wine checks the use of
# memory (warn+heap). Qt's variables are handed on by Wine with WINE before their name.

# What stays on Linux:
set(SUR_LINUX
    # pseudo-terminals
    TestMachine TestSessions
    # the sleeps of its event loop
    TestCedeLaMain
    # a full disk, rights, links and scripts, made with the means of Linux
    TestDemarrage TestDisque TestDosProg TestExplorateur TestFolderTreeview TestLanceur TestPannes TestPortCom
    TestReceptionJauge TestSauvegardeAuto
    # dialogs that are the system's own on Windows, where no script works them
    TestFrmAide TestImpression TestServices TestTextes
    # keys without Alt on the letters of boxes
    TestClavier)
list(FILTER TESTS EXCLUDE REGEX "Posix\\.cpp$")

set(ENVIRONNEMENT "DIALOGUES_QT=1;WINEQT_PLUGIN_PATH=Z:${DOSSIER_APPLICATION}"
    "WINEPREFIX=${PROJECT_BINARY_DIR}/wine;WINEDEBUG=-all,warn+heap;WINEPATH=Z:${DOSSIER_APPLICATION}\\;Z:${QT_WINDOWS}/bin")
set(DISQUE) # the drive on which Wine has the files of Linux
if(WINE)
    set(DISQUE Z:)
    add_test(NAME sans_ecran COMMAND ${WINE} reg add HKCU\\Software\\Wine\\Drivers /v Graphics /d null /f)
    set_tests_properties(sans_ecran PROPERTIES ENVIRONMENT "${ENVIRONNEMENT}" FIXTURES_SETUP sans_ecran)
endif()
foreach(SOURCE IN LISTS TESTS)
    get_filename_component(NOM ${SOURCE} NAME_WE)
    if(NOM IN_LIST SUR_LINUX)
        continue()
    endif()
    add_executable(${NOM} ${SOURCE})
    target_link_libraries(${NOM} PRIVATE appui)
    target_compile_definitions(${NOM} PRIVATE DONNEES=u"${DISQUE}${CMAKE_CURRENT_SOURCE_DIR}/donnees")
    add_dependencies(${NOM} bibliotheques)
    add_test(NAME ${NOM} COMMAND ${NOM} -tap) # in other forms it writes to the debugger of Windows
    set_tests_properties(${NOM} PROPERTIES ENVIRONMENT "${ENVIRONNEMENT}" FIXTURES_REQUIRED sans_ecran)
endforeach()
