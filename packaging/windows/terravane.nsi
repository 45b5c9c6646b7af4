; The installer: for one user, without administrator's rights. "Open with" offers Terravane for .mdb files and takes
; nobody's default. The uninstaller takes away what was installed, file by file, and leaves what the laboratory made.
;
;   makensis -DVERSION=... -DSTAGE=folder -DFILES=list.nsh -DOUTPUT=setup.exe terravane.nsi
Target amd64-unicode
Unicode true
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true

!include "MUI2.nsh"
!include "${FILES}"

Name "Terravane"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Terravane"
InstallDirRegKey HKCU "Software\Terravane" "InstallFolder"
BrandingText "Terravane ${VERSION}"
VIProductVersion "${VERSION}.0.0"
VIAddVersionKey "ProductName" "Terravane"
VIAddVersionKey "FileDescription" "Terravane ${VERSION}, installer"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" ""

!define MUI_ICON "${__FILEDIR__}\terravane.ico"
!define MUI_UNICON "${__FILEDIR__}\terravane.ico"
!define MUI_FINISHPAGE_RUN "$INSTDIR\terravane.exe"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Thai"

!define CLASSES "Software\Classes"
!define PROJECT "Terravane.Project"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Terravane"

!macro TellExplorer
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Section
    SetOutPath "$INSTDIR"
    File /r "${STAGE}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\Terravane.lnk" "$INSTDIR\terravane.exe"

    WriteRegStr HKCU "Software\Terravane" "InstallFolder" "$INSTDIR"
    WriteRegStr HKCU "${CLASSES}\${PROJECT}" "" "Terravane project"
    WriteRegStr HKCU "${CLASSES}\${PROJECT}\DefaultIcon" "" '"$INSTDIR\terravane.exe",0'
    WriteRegStr HKCU "${CLASSES}\${PROJECT}\shell\open" "FriendlyAppName" "Terravane"
    WriteRegStr HKCU "${CLASSES}\${PROJECT}\shell\open\command" "" '"$INSTDIR\terravane.exe" "%1"'
    WriteRegNone HKCU "${CLASSES}\.mdb\OpenWithProgids" "${PROJECT}"
    !insertmacro TellExplorer

    WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Terravane"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\terravane.exe"
    WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

Section "Uninstall"
    !insertmacro DeleteInstalledFiles
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"  ; only where nothing else is left in it
    Delete "$SMPROGRAMS\Terravane.lnk"
    DeleteRegValue HKCU "${CLASSES}\.mdb\OpenWithProgids" "${PROJECT}"
    DeleteRegKey HKCU "${CLASSES}\${PROJECT}"
    DeleteRegKey HKCU "${UNINSTALL}"
    DeleteRegKey HKCU "Software\Terravane"
    !insertmacro TellExplorer
SectionEnd
