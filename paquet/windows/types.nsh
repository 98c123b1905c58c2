# The file types of Dorvanel Pro. An ending without an owner opens with the program. An ending that has an owner keeps it,
# and the program stands under "Open with". The removal gives back what the installation took.

!define CLASSES "Software\Classes"

# Types VERB: VERB is Pose or Retire.
!macro Types VERB
  !insertmacro ${VERB}Type Dorvanel.Programme "Programme CN" "CN program" "Programa CN"
  !insertmacro ${VERB}Libre .rub Dorvanel.Programme
  !insertmacro ${VERB}Libre .xcn Dorvanel.Programme
  !insertmacro ${VERB}Libre .cn Dorvanel.Programme
  !insertmacro ${VERB}Libre .cnc Dorvanel.Programme
  !insertmacro ${VERB}Libre .prg Dorvanel.Programme
  !insertmacro ${VERB}Libre .rrr Dorvanel.Programme
  !insertmacro ${VERB}Libre .qqq Dorvanel.Programme
  !insertmacro ${VERB}Prise .iso Dorvanel.Programme
  !insertmacro ${VERB}Prise .h Dorvanel.Programme
  !insertmacro ${VERB}Prise .txt Dorvanel.Programme
  !insertmacro ${VERB}Prise .rtf Dorvanel.Programme
  !insertmacro ${VERB}Prise .asc Dorvanel.Programme
  !insertmacro ${VERB}Prise .xpi Dorvanel.Programme
  !insertmacro ${VERB}Type Dorvanel.Jauges "Jauges outils" "Tool gauges" "Medidas de herramientas"
  !insertmacro ${VERB}Libre .jau Dorvanel.Jauges
  !insertmacro ${VERB}Libre .cor Dorvanel.Jauges
  !insertmacro ${VERB}Type Dorvanel.Communication "Configuration de communication" "Communication configuration" \
      "Configuración de comunicación"
  !insertmacro ${VERB}Libre .par Dorvanel.Communication
  !insertmacro ${VERB}Type Dorvanel.Machine "Configuration machine" "Machine configuration" "Configuración máquina"
  !insertmacro ${VERB}Libre .mac Dorvanel.Machine
  # The desktop reads the types anew (SHCNE_ASSOCCHANGED).
  System::Call 'shell32::SHChangeNotify(i 0x8000000, i 0, p 0, p 0)'
!macroend

# The type, with its name in the language of the installer
!macro PoseType TYPE FRENCH ENGLISH SPANISH
  ${Switch} $LANGUAGE
    ${Case} 1036
      StrCpy $0 "${FRENCH}"
      ${Break}
    ${Case} 1034
    ${Case} 3082
      StrCpy $0 "${SPANISH}"
      ${Break}
    ${Default}
      StrCpy $0 "${ENGLISH}"
  ${EndSwitch}
  WriteRegStr SHCTX "${CLASSES}\${TYPE}" "" "$0"
  WriteRegStr SHCTX "${CLASSES}\${TYPE}\DefaultIcon" "" "$INSTDIR\dorvanel.exe,0"
  WriteRegStr SHCTX "${CLASSES}\${TYPE}\shell\open\command" "" '"$INSTDIR\dorvanel.exe" "%1"'
!macroend

!macro RetireType TYPE FRENCH ENGLISH SPANISH
  DeleteRegKey SHCTX "${CLASSES}\${TYPE}"
!macroend

# An ending whose owner is another program
!macro PosePrise ENDING TYPE
  WriteRegStr SHCTX "${CLASSES}\${ENDING}\OpenWithProgids" "${TYPE}" ""
!macroend

!macro RetirePrise ENDING TYPE
  DeleteRegValue SHCTX "${CLASSES}\${ENDING}\OpenWithProgids" "${TYPE}"
  DeleteRegKey /ifempty SHCTX "${CLASSES}\${ENDING}\OpenWithProgids"
  DeleteRegKey /ifempty SHCTX "${CLASSES}\${ENDING}"
!macroend

# An ending that is free on most PCs
!macro PoseLibre ENDING TYPE
  !insertmacro PosePrise "${ENDING}" "${TYPE}"
  ReadRegStr $0 HKCR "${ENDING}" ""
  ${If} $0 == ""
    WriteRegStr SHCTX "${CLASSES}\${ENDING}" "" "${TYPE}"
  ${EndIf}
!macroend

!macro RetireLibre ENDING TYPE
  ReadRegStr $0 SHCTX "${CLASSES}\${ENDING}" ""
  ${If} $0 == "${TYPE}"
    DeleteRegValue SHCTX "${CLASSES}\${ENDING}" ""
  ${EndIf}
  !insertmacro RetirePrise "${ENDING}" "${TYPE}"
!macroend
