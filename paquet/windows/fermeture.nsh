# AttendFermeture: a running program holds its own file, and nothing can be copied over it. The installer and the removal
# ask to close it; without a user they give up.
!macro AttendFermeture
  ${Do}
    ${IfNot} ${FileExists} "$INSTDIR\dorvanel.exe"
      ${ExitDo}
    ${EndIf}
    ClearErrors
    FileOpen $0 "$INSTDIR\dorvanel.exe" a
    ${IfNot} ${Errors}
      FileClose $0
      ${ExitDo}
    ${EndIf}
    ${Switch} $LANGUAGE
      ${Case} 1036
        StrCpy $0 "Dorvanel Pro est ouvert. Fermez-le, puis recommencez."
        ${Break}
      ${Case} 1034
      ${Case} 3082
        StrCpy $0 "Dorvanel Pro está abierto. Ciérrelo e inténtelo de nuevo."
        ${Break}
      ${Default}
        StrCpy $0 "Dorvanel Pro is open. Close it, then try again."
    ${EndSwitch}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$0" /SD IDCANCEL IDCANCEL`
      Abort
    ${EndIf}
  ${Loop}
!macroend
