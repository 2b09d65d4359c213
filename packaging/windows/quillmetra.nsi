; The setup program for Windows, made by tools/windows/build.sh. For this user alone, which needs no administrator, or
; for all. Options: /S without a question, /CurrentUser or /AllUsers, /D=FOLDER at the end.
Target amd64-unicode
Name "Quillmetra"
OutFile "${SETUP}"
SetCompressor /SOLID lzma
ManifestDPIAware true

!define KEY "Software\Quillmetra"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillmetra"
!define PROGRAM "$INSTDIR\bin\quillmetra.exe"
!define PLAYER "$INSTDIR\bin\quillmetra-script.exe"

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_DEFAULT_CURRENTUSER
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR "Quillmetra"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "Folder"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "Folder"
!include MultiUser.nsh
!include MUI2.nsh

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Quillmetra"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Quillmetra setup"
VIAddVersionKey LegalCopyright "GNU General Public License, version 3 or later"

!define MUI_ICON packaging/windows/quillmetra.ico
!define MUI_UNICON packaging/windows/quillmetra.ico
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "${PROGRAM}"
!define MUI_FINISHPAGE_NOAUTOCLOSE
!insertmacro MUI_PAGE_LICENSE "${PACKAGE}/LICENSE.txt"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; A program that runs cannot be written over: told, and nothing has been touched.
!macro NeedsClosed un
Function ${un}NeedsClosed
    Pop $1
    IfFileExists "$1" 0 done
again:
    ClearErrors
    FileOpen $0 "$1" a
    IfErrors 0 close
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$1 is running. Close it first." /SD IDCANCEL IDRETRY again
    SetErrorLevel 3
    Abort
close:
    FileClose $0
done:
FunctionEnd
!macroend
!insertmacro NeedsClosed ""
!insertmacro NeedsClosed "un."

!macro NeedBothClosed un
    Push "${PLAYER}"
    Push "${PROGRAM}"
    Call ${un}NeedsClosed
    Call ${un}NeedsClosed
!macroend

Function .onInit
    !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
    !insertmacro MULTIUSER_UNINIT
FunctionEnd

; What an older version has installed goes by its own uninstaller, which knows its files; the user's stay.
Function RemoveOlder
    IfFileExists "$INSTDIR\uninstall.exe" 0 none
    ExecWait '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode _?=$INSTDIR'
none:
FunctionEnd

Section
    !insertmacro NeedBothClosed ""
    Call RemoveOlder
    SetOutPath "$INSTDIR"
    File /r "${PACKAGE}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    SetOutPath "$INSTDIR\bin"
    CreateShortCut "$SMPROGRAMS\Quillmetra.lnk" "${PROGRAM}"
    WriteRegStr SHCTX "${KEY}" "Folder" "$INSTDIR"
    WriteRegStr SHCTX "${UNINSTALL}" "DisplayName" "Quillmetra"
    WriteRegStr SHCTX "${UNINSTALL}" "DisplayVersion" "${VERSION}"
    WriteRegStr SHCTX "${UNINSTALL}" "DisplayIcon" "${PROGRAM}"
    WriteRegStr SHCTX "${UNINSTALL}" "Publisher" "The Quillmetra team"
    WriteRegStr SHCTX "${UNINSTALL}" "InstallLocation" "$INSTDIR"
    WriteRegStr SHCTX "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
    WriteRegStr SHCTX "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode'
    WriteRegDWORD SHCTX "${UNINSTALL}" "EstimatedSize" ${KILOBYTES}
    WriteRegDWORD SHCTX "${UNINSTALL}" "NoModify" 1
    WriteRegDWORD SHCTX "${UNINSTALL}" "NoRepair" 1
SectionEnd

; Records, tables and settings lie in the user's own folder and are left there, as is a folder TRData beside the program.
Section Uninstall
    !insertmacro NeedBothClosed "un."
    SetOutPath "$TEMP"
    !include "${FILES}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Quillmetra.lnk"
    DeleteRegKey SHCTX "${UNINSTALL}"
    DeleteRegKey SHCTX "${KEY}"
SectionEnd
