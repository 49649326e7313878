; The installer for Windows, for one user: it needs no administrator and asks for none.
; makensis -DVERSION=2.6.0 -DSTAGE=<folder to install> -DREMOVE=<list of what to remove>
;          -DICON=<icon> -DOUTPUT=<installer> installer.nsi
; /S installs without a window, /D=<folder> (the last word, without quotes) elsewhere.
Target amd64-unicode
SetCompressor /SOLID lzma

!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh

!define NAME "Vemo Sudoku 2"
!define PROGRAM "vemosud2.exe"
!define DATA "$LOCALAPPDATA\VemoSud2"
!define SETTINGS "Software\VemoSud2"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\VemoSud2"
!define CLASSES "Software\Classes"
!define KIND "VemoSud2.Puzzle"

Name "${NAME}"
OutFile "${OUTPUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
BrandingText "${NAME} ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileDescription "${NAME}, installer"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey CompanyName "Vemo Sudoku 2 developers"
VIAddVersionKey LegalCopyright "Vemo Sudoku 2 developers"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\${PROGRAM}"
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; A program that runs cannot be written to. Without a window: ends with 2.
!macro NeedClosedGame
    ${Do}
        ${IfNot} ${FileExists} "$INSTDIR\${PROGRAM}"
            ${ExitDo}
        ${EndIf}
        ClearErrors
        FileOpen $0 "$INSTDIR\${PROGRAM}" a
        ${IfNot} ${Errors}
            FileClose $0
            ${ExitDo}
        ${EndIf}
        ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${NAME} is running. Please quit it first." /SD IDCANCEL IDCANCEL`
            SetErrorLevel 2
            Quit
        ${EndIf}
    ${Loop}
!macroend

!macro TellExplorer ; that kinds of files have changed
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

; A kind of file that another program has already stays with it; the game is offered beside it.
!macro Associate ENDING
    WriteRegStr HKCU "${CLASSES}\${ENDING}\OpenWithProgids" "${KIND}" ""
    ReadRegStr $0 HKCR "${ENDING}" ""
    ${If} $0 == ""
        WriteRegStr HKCU "${CLASSES}\${ENDING}" "" "${KIND}"
    ${EndIf}
!macroend

!macro Dissociate ENDING
    DeleteRegValue HKCU "${CLASSES}\${ENDING}\OpenWithProgids" "${KIND}"
    DeleteRegKey /ifempty HKCU "${CLASSES}\${ENDING}\OpenWithProgids"
    ReadRegStr $0 HKCU "${CLASSES}\${ENDING}" ""
    ${If} $0 == "${KIND}"
        DeleteRegValue HKCU "${CLASSES}\${ENDING}" ""
    ${EndIf}
    DeleteRegKey /ifempty HKCU "${CLASSES}\${ENDING}"
!macroend

Section "${NAME}"
    SectionIn RO
    !insertmacro NeedClosedGame
    SetOutPath "$INSTDIR"
    File /r "${STAGE}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\${PROGRAM}"

    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "${NAME}"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\${PROGRAM}"
    WriteRegStr HKCU "${UNINSTALL}" "Publisher" "Vemo Sudoku 2 developers"
    WriteRegStr HKCU "${UNINSTALL}" "URLInfoAbout" "https://vemo.example/sudoku"
    WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" $0
    WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

Section "Open sudoku files (.sdk, .sdm)"
    WriteRegStr HKCU "${CLASSES}\${KIND}" "" "Sudoku"
    WriteRegStr HKCU "${CLASSES}\${KIND}\DefaultIcon" "" "$INSTDIR\${PROGRAM},0"
    WriteRegStr HKCU "${CLASSES}\${KIND}\shell\open\command" "" '"$INSTDIR\${PROGRAM}" "%1"'
    !insertmacro Associate .sdk
    !insertmacro Associate .sdm
    !insertmacro TellExplorer
SectionEnd

Section /o "Icon on the desktop"
    CreateShortcut "$DESKTOP\${NAME}.lnk" "$INSTDIR\${PROGRAM}"
SectionEnd

Section "un.${NAME}"
    SectionIn RO
    !insertmacro NeedClosedGame
    !include "${REMOVE}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\${NAME}.lnk"
    Delete "$DESKTOP\${NAME}.lnk"
    !insertmacro Dissociate .sdk
    !insertmacro Dissociate .sdm
    DeleteRegKey HKCU "${CLASSES}\${KIND}"
    DeleteRegKey HKCU "${UNINSTALL}"
    !insertmacro TellExplorer
SectionEnd

; Only where it is asked for: a silent uninstall leaves them.
Section /o "un.Saved games, times and settings"
    RMDir /r "${DATA}"
    DeleteRegKey HKCU "${SETTINGS}"
SectionEnd
