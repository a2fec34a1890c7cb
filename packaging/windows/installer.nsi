; The installer for one user, who needs no rights of an administrator. scripts/windows.sh gives VERSION, FILES (the
; folder of what is installed), FILE_LIST (file-list.sh) and OUTPUT.
Target amd64-unicode
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma
Name "Quexal Editor"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Quexal Editor"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\QuexalEditor"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "Quexal Editor ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Quexal Editor"
VIAddVersionKey "FileDescription" "Quexal Editor ${VERSION} Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "MIT licence"

!include "MUI2.nsh"
!define MUI_ICON "packaging/icons/quexal-editor.ico"
!define MUI_UNICON "packaging/icons/quexal-editor.ico"
!define MUI_FINISHPAGE_RUN "$INSTDIR\quexal-editor.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start the Quexal Editor"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A text that the user may change stands beside a copy of it as it came, in "originals". It is replaced and removed only
; where the two are the same.
!macro InstallText name
    SetOutPath "$INSTDIR\originals"
    File "${FILES}/${name}"
    ${IfNot} ${FileExists} "$INSTDIR\${name}"
        SetOutPath "$INSTDIR"
        File "${FILES}/${name}"
    ${EndIf}
!macroend
!macro RemoveText name
    Push "$INSTDIR\originals\${name}"
    Push "$INSTDIR\${name}"
    Call un.AreTheSame
    Pop $0
    ${If} $0 = 1
        Delete "$INSTDIR\${name}"
    ${EndIf}
    Delete "$INSTDIR\originals\${name}"
!macroend
!include "${FILE_LIST}"

; Takes two names of files and gives 1 where both can be read and have the same bytes, otherwise 0.
Function un.AreTheSame
    Pop $1
    Pop $2
    Push 0
    ClearErrors
    FileOpen $3 $1 r
    ${If} ${Errors}
        Return
    ${EndIf}
    FileOpen $4 $2 r
    ${If} ${Errors}
        FileClose $3
        Return
    ${EndIf}
    FileSeek $3 0 END $5
    FileSeek $4 0 END $6
    ${If} $5 = $6
        FileSeek $3 0 SET
        FileSeek $4 0 SET
        ClearErrors
        StrCpy $9 0 ; so many bytes are the same
        ${DoWhile} $9 < $5
            FileReadByte $3 $7
            FileReadByte $4 $8
            ${If} ${Errors}
            ${OrIf} $7 != $8
                ${ExitDo}
            ${EndIf}
            IntOp $9 $9 + 1
        ${Loop}
        ${If} $9 = $5
            Pop $0
            Push 1
        ${EndIf}
    ${EndIf}
    FileClose $3
    FileClose $4
FunctionEnd

; A program that runs cannot be replaced.
!macro WaitForProgram un
Function ${un}WaitForProgram
    ${DoWhile} ${FileExists} "$INSTDIR\quexal-editor.exe"
        ClearErrors
        FileOpen $0 "$INSTDIR\quexal-editor.exe" a
        ${IfNot} ${Errors}
            FileClose $0
            Return
        ${EndIf}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
            "The Quexal Editor cannot be replaced. If it is running, please save your work and close it." \
            /SD IDCANCEL IDRETRY +3
        SetErrorLevel 2
        Abort
    ${Loop}
FunctionEnd
!macroend
!insertmacro WaitForProgram ""
!insertmacro WaitForProgram "un."

Section
    Call WaitForProgram
    ; What an older version had and this one has not, goes with that one; also where it stands in another folder.
    ReadRegStr $R0 HKCU "${UNINSTALL_KEY}" "InstallLocation"
    ${IfThen} $R0 == "" ${|} StrCpy $R0 $INSTDIR ${|}
    ${If} ${FileExists} "$R0\uninstall.exe"
        ExecWait '"$R0\uninstall.exe" /S _?=$R0'
        Delete "$R0\uninstall.exe"
    ${EndIf}
    SetOutPath "$INSTDIR"
    ${If} $R0 != $INSTDIR
        ${If} ${FileExists} "$R0\qx_lower.txt" ; which its user has changed
        ${AndIfNot} ${FileExists} "$INSTDIR\qx_lower.txt"
            CopyFiles /SILENT "$R0\qx_lower.txt" "$INSTDIR"
        ${EndIf}
        RMDir "$R0"
    ${EndIf}
    ClearErrors
    !insertmacro InstallFiles
    WriteUninstaller "$INSTDIR\uninstall.exe"
    ${If} ${Errors}
        MessageBox MB_OK|MB_ICONSTOP "Not all files could be written. Please look for room on the disk, and start again." /SD IDOK
        SetErrorLevel 2
        Abort
    ${EndIf}
    SetOutPath "$INSTDIR" ; where the program starts
    CreateShortcut "$SMPROGRAMS\Quexal Editor.lnk" "$INSTDIR\quexal-editor.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Quexal Editor"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\quexal-editor.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "The Quexal Editor developers"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; What the user put into the folder stays, and so do the settings and what was not saved.
Section "Uninstall"
    Call un.WaitForProgram
    !insertmacro RemoveFiles
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR\originals"
    SetOutPath "$TEMP" ; a folder that is in use cannot be removed
    RMDir "$INSTDIR"
    ReadRegStr $0 HKCU "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $0 == $INSTDIR ; and not another installation
        Delete "$SMPROGRAMS\Quexal Editor.lnk"
        DeleteRegKey HKCU "${UNINSTALL_KEY}"
    ${EndIf}
SectionEnd
