#!/usr/bin/env bash
# Plays the package that build.sh made under Wine and prints a table: the test programs, every script and example beside
# the machine's own player (of build/release, or the one named), the windows, and the setup. Fails on a difference.
# Usage: tools/windows/test.sh [PLAYER]
set -euo pipefail
source "$(dirname -- "${BASH_SOURCE[0]}")/common.sh"

Player=$(realpath -- "${1:-$ProgramFolder/quillmetra-script}")
Build=build/windows
Package=$Build/package
Version=$(SuiteVersion)

# What cannot be tried so, a line each: program, test, reason. Everything else of a program is played; a program with a
# word behind a comma is one that is played once more, in that state.
Gaps="
test_tables PathWalkTest.AFullListEndsTheSearch passes in 5 minutes: Wine reads the folder anew for each of its 32,000 names
test_performance * promises of speed are those of a program, not of Wine
test_print_run_speed * the same
test_desktop *Speed* the same
test_platform *WordsHaveThePathsOfTheSystem leaves itself out: of systems that write /
test_data *AreWhatTheirMakerWrites leaves itself out: it starts Python, which Wine has not
test_forms,comma *Restless* the user by chance takes minutes; he works in the row without a comma
test_desktop,comma *Speed* as above
test_desktop,comma *AKeyThatABoxDoesNotUse* what no key does is asked once, at scale 1
test_desktop,scaled *Speed* as above
test_desktop,scaled *AKeyThatABoxDoesNotUse* the same
"

GapsOf() { echo "$Gaps" | awk -v Program="$1" '$1 == Program { printf "%s%s", Separator, $2; Separator = ":" }'; }

PlayPrograms() {
    local Program Name
    for Program in "$Build"/bin/test_*.exe; do
        Name=$(basename -- "$Program" .exe)
        if [[ $Name != test_desktop* && $(GapsOf "$Name") != "*" ]]; then
            Patience=$([[ $Name == test_kill ]] && echo 3000 || echo 900) PlayTests "$Program" "--gtest_filter=-$(GapsOf "$Name")"
        fi
    done
}

# Those that a build plays as tests.
PlayScripts() {
    local Script Scripts
    mapfile -t Scripts < <(sed -nE 's/^add_test\(\[=\[((tests|examples)\/[^]]*)\].*/\1/p' "$Build/tests/CTestTestfile.cmake")
    Judge "the list of scripts" "$WineHome/log" [ "${#Scripts[@]}" -gt 0 ]
    for Script in "${Scripts[@]}"; do
        PlayScript "$Package/bin/quillmetra-script.exe" "$Script"
    done
}

# Who works at a scale of 2 has a screen for it.
PlayWindows() {
    local Scale State="" Screen=$Build/screen.json
    QtSetting QT_QPA_PLATFORM "offscreen:configfile=$Screen"
    for Scale in 1 1.25 1.5 2; do
        QtSetting QT_SCALE_FACTOR "$Scale"
        awk -v "Scale=$Scale" 'BEGIN { printf "{\"screens\": [{\"name\": \"\", \"x\": 0, \"y\": 0, \"width\": %d, " \
            "\"height\": %d, \"logicalDpi\": 96, \"logicalBaseDpi\": 96, \"dpr\": 1}]}", 800 * Scale, 800 * Scale }' >"$Screen"
        Note=" at scale $Scale" PlayTests "$Build/bin/test_desktop.exe" "--gtest_filter=-$(GapsOf "test_desktop$State")"
        State=,scaled
        Note=" at scale $Scale" PlayTests "$Build/bin/test_desktop_rules.exe"
    done
    QtSetting QT_SCALE_FACTOR 1
}

WritesCommas() { [[ $(wine reg query 'HKCU\Control Panel\International' /v sDecimal) == *REG_SZ*,* ]]; }

# A system that writes 1,5 for one and a half, and one with dark windows, which the system's own platform follows when it
# is told to. There, as on the other one, no printer is set up.
PlaySettings() {
    export LOCPATH=$PWD/$Build/locale
    { export LC_ALL=de_DE.UTF-8; } 2>/dev/null  # which this shell itself does not find
    Judge "the system's comma" "$WineHome/log" WritesCommas
    Note=" with a comma" PlayTests "$Build/bin/test_forms.exe" "--gtest_filter=-$(GapsOf test_forms,comma)"
    Note=" with a comma" PlayTests "$Build/bin/test_desktop.exe" "--gtest_filter=-$(GapsOf test_desktop,comma)"
    unset LC_ALL LOCPATH
    wine reg add 'HKCU\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize' /v AppsUseLightTheme \
        /t REG_DWORD /d 0 /f >/dev/null
    QtSetting QT_QPA_PLATFORM windows:darkmode=2
    Note=", dark" PlayTests "$Build/bin/test_desktop.exe" \
        '--gtest_filter=*ASchemePaintsTheWholeProgram:PrintingDialogs*'
}

# On a number that is free; the number is told when it takes programs.
StartScreen() {
    coproc Xvfb -displayfd 1 -screen 0 1280x1024x24 2>/dev/null
    Screen=$COPROC_PID
    read -r -t 60 DISPLAY <&"${COPROC[0]}"
    export DISPLAY=:$DISPLAY
}

# --- the program from outside

# Installed, as its files are long.
IsSmall() {
    local Megabytes
    Megabytes=$(du -sm --apparent-size "$Package" | cut -f1)
    echo "$Megabytes MB"
    ((Megabytes < 60))
}

# In a batch, which alone can set what Wine sets anew for each program.
Batch() {
    printf '%s\r\n' "@echo off" "chcp 65001 >nul" "$@" >"$WineHome/batch.bat"
    (cd -- "$WineHome" && wine cmd /c batch.bat)
}

Program() { echo "\"$(WindowsPath "$PWD/$Package/bin/quillmetra.exe")\""; }

WasQuick() {
    local Milliseconds
    Milliseconds=$(sed -n 's/^\([0-9]*\) ms.*/\1/p' "$WineHome/start")
    [[ -n $Milliseconds && $Milliseconds -lt 1000 ]]
}

# The user's folder has letters of two scripts and a blank in its name; the windows are there in less than a second,
# of five starts at most, and nothing is written into the installed folder, which may be write-protected.
Starts() {
    local Home="$WineHome/Ж ü 水" Try
    mkdir -p "$Home"
    find "$PWD/$Package" -type f -exec sha1sum {} + | sort >"$WineHome/before"
    chmod -R a-w "$Package"
    for Try in 1 2 3 4 5; do
        Batch "set APPDATA=$(WindowsPath "$Home")" "$(Program) --time-start" >"$WineHome/start" || true
        cat "$WineHome/start"
        WasQuick && break
    done
    chmod -R u+w "$Package"
    find "$PWD/$Package" -type f -exec sha1sum {} + | sort | diff "$WineHome/before" -
    # Wine reads a batch by a code page of its own: the folder's letters are others, yet none of Latin-1 alone.
    Home=$(find "$WineHome" -maxdepth 2 -name quillmetra)
    [[ $Home == *水* || $Home == *╨* ]]
    [[ -f $Home/TRData/Liquid.txt && -f $Home/STEAM.txt ]]
    WasQuick
}

# A second start on a folder brings the first to the front and ends.
StartsOnce() {
    local Folder="$WineHome/a user's folder" First Code=0
    mkdir -p "$Folder"
    wine "$PWD/$Package/bin/quillmetra.exe" --folder "$(WindowsPath "$Folder")" &
    First=$!
    sleep 5
    timeout 30 wine "$PWD/$Package/bin/quillmetra.exe" --folder "$(WindowsPath "$Folder")" || Code=$?
    kill -0 "$First" || Code=2
    wine taskkill /f /im quillmetra.exe
    wait "$First" || true
    return "$Code"
}

# The texts of the suite are UTF-8: to a pipe, lines ending as Windows has it, and to a console.
SpeaksUtf8() {
    local Script
    Script=$(WindowsPath "$WineHome/letters.qs")
    printf 'start\r\nnew 1\r\ntype txtBy "P-1 \xc2\xb0 \xd0\x96"\r\nshow txtBy\r\n' >"$WineHome/letters.qs"
    wine "$Package/bin/quillmetra-script.exe" "$Script" >"$WineHome/letters"
    cat "$WineHome/letters"
    grep -q $'P-1 \xc2\xb0 \xd0\x96\r$' "$WineHome/letters"
    LC_ALL=C.UTF-8 script -qec "wine $Package/bin/quillmetra-script.exe '$Script'" /dev/null >"$WineHome/letters"
    cat "$WineHome/letters"
    grep -q $'P-1 \xc2\xb0 \xd0\x96' "$WineHome/letters"
}

# A database on a share, in a folder whose name has letters of two scripts, on a path of more than 260 characters; the
# paths of the suite are kept there in UTF-8 behind its mark.
OnAShare() {
    local Place Folder Share
    Place="Ж 水/$(printf 'd%.0s' {1..150})/$(printf 'e%.0s' {1..150})"
    Folder="$WINEPREFIX/dosdevices/unc/server/share/$Place"
    Share="\\\\server\\share\\${Place//\//\\}"
    mkdir -p "$Folder"
    cp -r "$Package/share/quillmetra/data" "$Folder/TRData"
    cat >"$WineHome/share.qs" <<SCRIPT
folder $Share
start
strict on
new 1
include $(WindowsPath "$PWD/tests/scripts/good-case.qs")
answer No
click cmdCalculate(1)
expect-message Transition
type txtTagNum P-Ж
answer Yes
answer OK
click mnuSave
expect-message Create it?
expect-message New database TRDB.MDB created
click mnuProgram
expect-form frmTRProg
click mnuPathTables
click cmdSave
SCRIPT
    wine "$Package/bin/quillmetra-script.exe" "$(WindowsPath "$WineHome/share.qs")"
    grep -aq P-Ж "$Folder/TRData/TRDB.MDB"
    wine "$Package/bin/quillmetra-script.exe" --export "$Share\\TRData" "$Share\\list.xlsx"
    [[ $(unzip -p "$Folder/list.xlsx" 'xl/worksheets/*.xml') == *P-Ж* ]]
    grep -q $'^\xef\xbb\xbf"\\\\\\\\server\\\\share\\\\Ж 水' "$Folder/TRDRV.txt"
}

# The server's folder gets a certificate, which the user of Wine trusts.
EncryptServer() {
    local Data Certificates="$WineHome/certificates"
    Data=$(psql -Atc "SHOW data_directory")
    mkdir -p "$Certificates"
    openssl req -x509 -newkey rsa:2048 -nodes -subj /CN=localhost -addext subjectAltName=DNS:localhost \
        -keyout "$Data/server.key" -out "$Certificates/root.crt"
    cp -- "$Certificates/root.crt" "$Data/server.crt"
    chown --reference="$Data" "$Data"/server.{key,crt}
    psql -qc "ALTER SYSTEM SET ssl = on" -c "SELECT pg_reload_conf()"
    for _ in {1..50}; do PGSSLMODE=require psql -qc "" && break || sleep 0.2; done  # the server does so by and by
    PGSSLROOTCERT=$(WindowsPath "$Certificates/root.crt")
    export PGSSLROOTCERT PGSSLMODE=verify-full
}

# Beside a server: the tests of the record layer and the script of the records there. The package has its libpq.
OnAServer() {
    set -euo pipefail
    EncryptServer
    wine "$Package/bin/quillmetra-script.exe" "$(WindowsPath "$PWD/tests/scripts/server.qs")"
    FindLibraries
    Passes "$Build/bin/test_platform.exe" --gtest_brief=1 '--gtest_filter=DatabaseTest.*'
    Passes "$Build/bin/test_records.exe" --gtest_brief=1 '--gtest_filter=-FileAlone*:Repair*'
    [[ $(PGSSLROOTCERT="" PGSSLMODE=require psql -Atc 'SELECT count(*) FROM quillmetra."Process Calculations"') -gt 0 ]]
}

# --- the setup

Installed="AppData/Local/Programs/Quillmetra"
Uninstall='Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillmetra'

UserFolder() { echo "$WINEPREFIX/drive_c/users/$(id -un)"; }

# HoldsPackage FOLDER [FILE...]: the package as it is, and beside it the uninstaller and these, no more.
HoldsPackage() {
    local Others
    Others=$(diff -r "$Package" "$1" || true)
    [[ $Others == "$(printf 'Only in %s\n' "${@:2}" "$1: uninstall.exe")" ]]
}

# An older version with a file that this one has not; then this one over it; the user's files stay throughout.
Setup() {
    local Home Older="$WineHome/older" Link
    Home=$(UserFolder)
    cp -r "$Package" "$Older"
    echo old >"$Older/bin/former.dll"
    MakeSetup "$Older" 5.9.9 "$WineHome/older.exe"
    wine "$WineHome/older.exe" /S /CurrentUser
    [[ -f $Home/$Installed/bin/former.dll ]]
    mkdir -p "$Home/$Installed/bin/TRData" "$Home/AppData/Roaming/quillmetra"
    echo mine | tee "$Home/$Installed/bin/TRData/TRDB.MDB" >"$Home/AppData/Roaming/quillmetra/TRDB.MDB"

    wine "$Build/Quillmetra-$Version-setup.exe" /S /CurrentUser
    [[ ! -e $Home/$Installed/bin/former.dll ]]
    HoldsPackage "$Home/$Installed" "$Home/$Installed/bin: TRData"
    wine reg query "HKCU\\$Uninstall" | grep -q "DisplayVersion.*$Version"
    Link=$(find "$Home" -name Quillmetra.lnk)
    [[ -f $Link ]]
    wine "$Home/$Installed/bin/quillmetra-script.exe" --version | grep -q "$Version"

    wine "$Home/$Installed/uninstall.exe" /S /CurrentUser  # ends at once; a copy of it goes on
    for _ in {1..60}; do [[ -e $Home/$Installed/uninstall.exe ]] && sleep 1; done
    [[ $(find "$Home/$Installed" -type f -printf '%P ') == "bin/TRData/TRDB.MDB " ]]
    [[ -f $Home/AppData/Roaming/quillmetra/TRDB.MDB && ! -e $Link ]]
    ! wine reg query "HKCU\\$Uninstall"
}

# EndsWith CODE COMMAND...
EndsWith() {
    local Code=0
    "${@:2}" || Code=$?
    [[ $Code == "$1" ]]
}

# Neither setup nor uninstaller touches anything while one of the programs runs; once it has ended, both do.
SetupWhileRunning() {
    local Folder Home Program
    Home=$(UserFolder)/$Installed
    Folder=$(WindowsPath "$WineHome/running")
    mkdir -p "$WineHome/running"
    rm -rf -- "$Home"
    wine "$Build/Quillmetra-$Version-setup.exe" /S /CurrentUser
    for Program in quillmetra quillmetra-script; do
        sleep 60 | wine "$Home/bin/$Program.exe" "$([[ $Program == quillmetra ]] && echo "--folder=$Folder" || echo -)" &
        sleep 5
        EndsWith 3 wine "$Build/Quillmetra-$Version-setup.exe" /S /CurrentUser
        EndsWith 2 wine "$Home/uninstall.exe" /S /CurrentUser "_?=C:${Home#"$WINEPREFIX/drive_c"}"
        HoldsPackage "$Home"
        wine taskkill /f /im "$Program.exe"
    done
    wine "$Build/Quillmetra-$Version-setup.exe" /S /CurrentUser
    HoldsPackage "$Home"
    wine "$Home/uninstall.exe" /S /CurrentUser
    for _ in {1..60}; do [[ -e $Home ]] && sleep 1; done
    [[ ! -e $Home ]]
}

# For all users: where programs are, in the menu and in the registry of all, and gone again.
SetupForAll() {
    local Disk="$WINEPREFIX/drive_c"
    local Folder="$Disk/Program Files/Quillmetra" Menu="$Disk/ProgramData/Microsoft/Windows/Start Menu/Programs"
    wine "$Build/Quillmetra-$Version-setup.exe" /S /AllUsers
    wine "$Folder/bin/quillmetra-script.exe" --version | grep -q "$Version"
    [[ -f $Menu/Quillmetra.lnk ]]
    wine reg query "HKLM\\$Uninstall" | grep -q "DisplayVersion.*$Version"
    wine "$Folder/uninstall.exe" /S /AllUsers
    for _ in {1..60}; do [[ -e $Folder ]] && sleep 1; done
    [[ ! -e $Folder && ! -e $Menu/Quillmetra.lnk ]]
    ! wine reg query "HKLM\\$Uninstall"
}

# The portable folder keeps everything beside the program.
Portable() {
    local Folder="$WineHome/Quillmetra-$Version-portable"
    (cd -- "$WineHome" && unzip -q "$OLDPWD/$Build/Quillmetra-$Version-portable.zip")
    wine "$Folder/bin/quillmetra.exe" --time-start
    [[ -f $Folder/bin/TRData/Liquid.txt && ! -e $(UserFolder)/AppData/Roaming/quillmetra/TRData ]]
}

InstallMissing "${BuildPackages[@]}" "${TestPackages[@]}" "${ServerPackages[@]}" "${WindowsPackages[@]}" "${WindowsSetupPackages[@]}"
StartScreen
StartWine  # whose desktop stays without a screen when it starts without one
trap 'EndWine; kill "$Screen"' EXIT
Heading "Test programs"
PlayPrograms
Heading "Scripts and examples"
PlayScripts
Heading "Windows"
PlayWindows
Heading "From outside"
unset WINEPATH  # the package has what it needs
QtSetting QT_QPA_PLATFORM windows
Judge "less than 60 MB installed" "$WineHome/log" IsSmall
Judge "the portable folder" "$WineHome/log" Portable
Judge "setup, upgrade, uninstall" "$WineHome/log" Setup
Judge "setup while a program runs" "$WineHome/log" SetupWhileRunning
Judge "setup for all users" "$WineHome/log" SetupForAll
Judge "starts, in less than a second" "$WineHome/log" Starts
Judge "a second start" "$WineHome/log" StartsOnce
Judge "texts in UTF-8" "$WineHome/log" SpeaksUtf8
Judge "a long path on a share" "$WineHome/log" OnAShare
export -f OnAServer EncryptServer WindowsPath FindLibraries Passes
export WineHome Package Build Prefix Target
Judge "records on a server, encrypted" "$WineHome/log" tools/on_server.sh bash -c OnAServer
Heading "Settings of the system"
FindLibraries
QtSetting QT_QPA_PLATFORM offscreen
PlaySettings
Heading "Not played"
echo "$Gaps"
PrintTable
