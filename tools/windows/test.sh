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

# What cannot be tried so, a line each: program, test, reason. Everything else of a program is played.
Gaps="
test_tables PathWalkTest.AFullListEndsTheSearch Wine reads a whole folder for each name in it: 32,000 files take hours
"

GapsOf() { echo "$Gaps" | awk -v Program="$1" '$1 == Program { printf "%s%s", Separator, $2; Separator = ":" }'; }

PlayPrograms() {
    local Program Name
    for Program in "$Build"/bin/test_*.exe; do
        Name=$(basename -- "$Program" .exe)
        case $Name in
            test_desktop* | test_performance | test_print_run_speed) ;;
            *) Patience=$([[ $Name == test_kill ]] && echo 3000 || echo 900) PlayTests "$Program" "--gtest_filter=-$(GapsOf "$Name")" ;;
        esac
    done
}

# Those that a build plays as tests.
PlayScripts() {
    local Script
    sed -n 's/^add_test(\[=\[\(tests\|examples\)\/\([^]]*\)\].*/\1\/\2/p' "$Build/tests/CTestTestfile.cmake" |
        while IFS= read -r Script; do echo "$Script"; done >"$WineHome/scripts"
    while IFS= read -r Script <&3; do
        PlayScript "$Package/bin/quillmetra-script.exe" "$Script"
    done 3<"$WineHome/scripts"
}

PlayWindows() {
    local Scale
    export QT_QPA_PLATFORM=offscreen
    PlayTests "$Build/bin/test_desktop.exe" '--gtest_filter=Keyboard*:Printing*:Questions*'
    for Scale in 1 1.25 1.5 2; do
        export QT_SCALE_FACTOR=$Scale
        PlayTests "$Build/bin/test_desktop_rules.exe"
    done
    unset QT_SCALE_FACTOR QT_QPA_PLATFORM
}

# --- the program from outside

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
        Batch "set APPDATA=$(WindowsPath "$Home")" "$(Program) --time-start" | tee "$WineHome/start"
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

# The texts of the suite to a pipe are UTF-8, lines ending as Windows has it.
SpeaksUtf8() {
    printf 'start\r\nnew 1\r\ntype txtBy "P-1 \xc2\xb0 \xd0\x96"\r\nshow txtBy\r\n' >"$WineHome/letters.qs"
    wine "$Package/bin/quillmetra-script.exe" "$(WindowsPath "$WineHome/letters.qs")" >"$WineHome/letters"
    cat "$WineHome/letters"
    grep -q $'P-1 \xc2\xb0 \xd0\x96\r$' "$WineHome/letters"
}

# --- the setup

Installed="AppData/Local/Programs/Quillmetra"

UserFolder() { echo "$WINEPREFIX/drive_c/users/$(id -un)"; }

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
    diff -r "$Package" "$Home/$Installed" | grep -v -e "uninstall.exe" -e ": TRData" && return 1
    wine reg query 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillmetra' | grep -q "DisplayVersion.*$Version"
    Link=$(find "$Home" -name Quillmetra.lnk)
    [[ -f $Link ]]
    wine "$Home/$Installed/bin/quillmetra-script.exe" --version | grep -q "$Version"

    wine "$Home/$Installed/uninstall.exe" /S /CurrentUser  # ends at once; a copy of it goes on
    for _ in {1..60}; do [[ -e $Home/$Installed/uninstall.exe ]] && sleep 1; done
    [[ $(find "$Home/$Installed" -type f -printf '%P ') == "bin/TRData/TRDB.MDB " ]]
    [[ -f $Home/AppData/Roaming/quillmetra/TRDB.MDB && ! -e $Link ]]
    ! wine reg query 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillmetra'
}

# The portable folder keeps everything beside the program.
Portable() {
    local Folder="$WineHome/Quillmetra-$Version-portable"
    (cd -- "$WineHome" && unzip -q "$OLDPWD/$Build/Quillmetra-$Version-portable.zip")
    wine "$Folder/bin/quillmetra.exe" --time-start
    [[ -f $Folder/bin/TRData/Liquid.txt && ! -e $(UserFolder)/AppData/Roaming/quillmetra/TRData ]]
}

InstallMissing "${BuildPackages[@]}" "${TestPackages[@]}" "${WindowsPackages[@]}" "${WindowsSetupPackages[@]}"
StartWine
Heading "Test programs"
PlayPrograms
Heading "Scripts and examples"
PlayScripts
Heading "Windows"
PlayWindows
Heading "From outside"
Xvfb :97 -screen 0 1280x1024x24 >/dev/null 2>&1 &
Screen=$!
export DISPLAY=:97
Judge "the portable folder" "$WineHome/log" Portable
Judge "setup, upgrade, uninstall" "$WineHome/log" Setup
Judge "starts, in less than a second" "$WineHome/log" Starts
Judge "a second start" "$WineHome/log" StartsOnce
Judge "texts in UTF-8" "$WineHome/log" SpeaksUtf8
kill "$Screen"
Heading "Not played"
echo "$Gaps"
PrintTable
