# Shared by build.sh, test.sh and check.sh: where the libraries for Windows lie, how they are fetched and made, and how
# Wine is called. Sourced, never started by itself; leaves the caller in the project's own folder.
# shellcheck shell=bash disable=SC2034

source "$(dirname -- "${BASH_SOURCE[0]}")/../setup.sh"

# Outside the tree, so that Qt is built once for all work trees.
export QUILLMETRA_WINDOWS_LIBRARIES=${QUILLMETRA_WINDOWS_LIBRARIES:-${XDG_CACHE_HOME:-$HOME/.cache}/quillmetra-windows}
Libraries=$QUILLMETRA_WINDOWS_LIBRARIES
Prefix=$Libraries/prefix
Target=x86_64-w64-mingw32
Toolchain=$PWD/tools/windows/toolchain.cmake

Started=$SECONDS
Heading() {
    echo
    echo "== $* ($((SECONDS - Started)) s so far)"
}

# AptSources TOOL...: the machine's own entries of Debian with sources in place of programs, in lists of their own: the
# machine's stay as they are, and no root is needed.
AptSources() {
    local Tool=$1 Lists=$Libraries/apt
    shift
    if [[ ! -d $Lists/state ]]; then
        mkdir -p "$Lists/parts" "$Lists/state/partial"
        cat /etc/apt/sources.list.d/debian*.sources 2>/dev/null |
            sed 's/^Types:.*/Types: deb-src/' >"$Lists/parts/debian.sources" || true
        cat /etc/apt/sources.list 2>/dev/null | sed -n 's/^deb \(.*\)/deb-src \1/p' >"$Lists/parts/debian.list" || true
    fi
    "$Tool" -q -o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$Lists/parts" \
        -o Dir::State::lists="$Lists/state" -o APT::Sandbox::User="$(id -un)" "$@"
}

# Of the newest version that is to be had whole: a mirror may list one that it no longer, or not yet, holds.
FetchSource() {
    local Version
    AptSources apt-get update || return
    for Version in $(AptSources apt-cache showsrc "$1" | sed -n 's/^Version: //p' | sort -rV); do
        if AptSources apt-get source --download-only "$1=$Version"; then
            return
        fi
        rm -f -- "$1"_*
    done
    return 1
}

Unpack() {
    rm -rf -- "$1.part"
    dpkg-source --no-check -x "$1"_*.dsc "$1.part" && mv -- "$1.part" "$1"
}

# Source PACKAGE: its source package, unpacked, with Debian's changes to it.
Source() {
    local Folder=$Libraries/src
    if [[ -d $Folder/$1 ]]; then
        return
    fi
    mkdir -p "$Folder"
    (
        cd -- "$Folder" || exit
        if compgen -G "$1_*.dsc" >/dev/null && Unpack "$1"; then
            exit
        fi
        FetchSource "$1" && Unpack "$1"
    )
}

# InstallLibrary SOURCE-FOLDER NAME [-DOPTION...]: configures, builds and installs into the prefix.
InstallLibrary() {
    local From=$1 To=$Libraries/$2-build
    shift 2
    cmake -S "$From" -B "$To" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE="$Toolchain" \
        -DCMAKE_INSTALL_PREFIX="$Prefix" -DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "$@"
    cmake --build "$To" --parallel "$(nproc)"
    cmake --install "$To"
}

# The database engine as one object, from its sources joined to one file.
MakeSqlite() {
    if [[ -f $Prefix/lib/libsqlite3.a ]]; then
        return
    fi
    Heading "SQLite"
    Source sqlite3
    mkdir -p "$Libraries/sqlite-build" "$Prefix/include" "$Prefix/lib"
    (
        cd -- "$Libraries/sqlite-build"
        ../src/sqlite3/configure --disable-shared >configure.log
        make sqlite3.c >make.log
        ccache "$Target-gcc-posix" -O2 -DSQLITE_THREADSAFE=1 -c sqlite3.c -o sqlite3.o
        cp sqlite3.h "$Prefix/include/"
        "$Target-ar" rcs "$Prefix/lib/libsqlite3.a" sqlite3.o
    )
}

# The frame of the tests, from Debian's package of its sources.
MakeGoogleTest() {
    if [[ -f $Prefix/lib/libgtest.a ]]; then
        return
    fi
    Heading "GoogleTest"
    InstallLibrary /usr/src/googletest googletest -DBUILD_GMOCK=OFF -DCMAKE_CXX_STANDARD=17
}

SuiteVersion() { sed -n 's/^project(quillmetra VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt; }

# What the uninstaller removes of a package: the files that were installed, and the folders when nothing else is in them.
ListForUninstaller() {
    (cd -- "$1" && find . -type f -printf '%P\n' | sed 's#/#\\#g; s#.*#Delete "$INSTDIR\\&"#')
    (cd -- "$1" && find . -mindepth 1 -depth -type d -printf '%P\n' | sed 's#/#\\#g; s#.*#RMDir "$INSTDIR\\&"#')
}

# MakeSetup PACKAGE VERSION SETUP
MakeSetup() {
    local Files=build/windows/uninstall.nsh
    ListForUninstaller "$1" >"$Files"
    makensis -V2 -NOCD "-DVERSION=$2" "-DPACKAGE=$1" "-DFILES=$Files" "-DKILOBYTES=$(du -sk "$1" | cut -f1)" \
        "-DSETUP=$3" packaging/windows/quillmetra.nsi
}

# Wine has a home of its own with a share in it, made anew for each run of a script and ended with it. It has no debugger,
# which may wait for ever at a program that falls.
StartWine() {
    WineHome=$(mktemp -d)
    mkdir "$WineHome/wine"
    export WINEPREFIX=$WineHome/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=;winedbg.exe="
    FindLibraries
    trap EndWine EXIT
    wineserver --persistent  # else it ends after each program, and the next one waits for it
    wine wineboot --init >/dev/null 2>&1
    wine reg add 'HKCU\Software\Wine' /v Version /d win10 /f >/dev/null  # the oldest that the suite is for
    QtSetting QT_QPA_PLATFORM offscreen
    mkdir -p "$WINEPREFIX/dosdevices/unc/server/share"
}

# What a program needs is found without copying it beside each one.
FindLibraries() {
    WINEPATH=$(WindowsPath "$(dirname -- "$("$Target-g++-posix" -print-file-name=libstdc++-6.dll)")")
    WINEPATH+=";$(WindowsPath "/usr/$Target/lib");$(WindowsPath "$Prefix/bin")"
    export WINEPATH
}

# QtSetting NAME VALUE: Wine keeps this machine's variables of Qt from its programs, which get those of its registry.
QtSetting() {
    wine reg add 'HKCU\Environment' /v "$1" /d "$2" /f >/dev/null
    [[ $(wine cmd /c "echo %$1%") == "$2"* ]] || { echo "Programs do not get $1"; return 1; }
}

EndWine() {
    wineserver -k 2>/dev/null || true
    rm -rf -- "$WineHome"
}

# A path of this machine as Wine's programs name it.
WindowsPath() { echo "Z:${1//\//\\}"; }

# A line of the table: what was played, how it went, in how many seconds.
Rows=()
Failures=0
Row() {
    Rows+=("$(printf '%-44s %-8s %4d s  %s' "$1" "$2" "$3" "${4-}")")
    echo "${Rows[-1]}"
    if [[ $2 == FAILED ]]; then
        Failures=$((Failures + 1))
    fi
}

PrintTable() {
    Heading "The table"
    printf '%s\n' "${Rows[@]}"
    if ((Failures > 0)); then
        echo "$Failures failed"
        exit 1
    fi
}

# What a log tells in figures: how many tests were played and left themselves out, how long a start took, how large a folder is.
WordsOf() { sed -nE 's/^\[  (PASSED|SKIPPED) +\] ([0-9]+) tests?.*/\2 \L\1/p; s/^([0-9]+ (ms|MB))\r?$/\1/p' "$1" | paste -sd' '; }

# Judge NAME LOG COMMAND...: a row for a command; its log is shown when it fails. Not as the condition of an "if",
# where a shell does not end at the first of its parts that fails.
Judge() {
    local Name=$1 Log=$2 Start=$SECONDS Code
    shift 2
    set +e
    (set -e; "$@") >"$Log" 2>&1
    Code=$?
    set -e
    if ((Code == 0)); then
        Row "$Name" passed $((SECONDS - Start)) "$(WordsOf "$Log")"
    else
        tail -40 "$Log"
        Row "$Name" FAILED $((SECONDS - Start))
    fi
}

# Its last words count beside how it ends: to find no test to play is no success.
Passes() {
    timeout "${Patience:-900}" wine "$@" | tee "$WineHome/said"
    grep -q '^\[  PASSED  \] [1-9]' "$WineHome/said" && ! grep -q '^\[  FAILED  \]' "$WineHome/said"
}

# PlayTests PROGRAM [OPTION...]; the caller may set Note, words behind the name.
PlayTests() {
    local Program=$1
    shift
    QUILLMETRA_SOURCE=$(WindowsPath "$PWD") Judge "$(basename -- "$Program" .exe)${Note-}" "$WineHome/log" \
        Passes "$Program" --gtest_brief=1 "$@"
}

# What a script prints, the same on every machine but for the names of its own folder.
Plain() { sed -E 's/\r$//; s#([A-Z]:\\users\\[^\\]*\\Temp|[\\/]tmp)[\\/]quillmetra-[0-9]+#FOLDER#g'; }

# Both players, each in a folder of its own, with the lists of the examples; what they print and the pages they write must be the same.
PlayBoth() {
    local Script=$PWD/$2 Windows=$WineHome/windows Machine=$WineHome/machine Page
    rm -rf -- "$Windows" "$Machine"
    mkdir "$Windows" "$Machine"
    tee "$Windows/plant-lines.csv" "$Machine/plant-lines.csv" <examples/plant-lines.csv >/dev/null
    (cd -- "$Windows" && timeout 300 wine "$1" "$(WindowsPath "$Script")" >printed)
    (cd -- "$Machine" && QT_QPA_PLATFORM=offscreen "$Player" "$Script" >printed)
    diff <(Plain <"$Machine/printed") <(Plain <"$Windows/printed")
    diff <(ls "$Machine") <(ls "$Windows")
    for Page in "$Machine"/*.pdf; do
        if [[ -f $Page ]]; then
            SamePages "$Page" "$Windows/$(basename -- "$Page")"
        fi
    done
}

# As texts with their places, and as pictures, dot by dot.
SamePages() {
    diff <(pdftotext -layout "$1" -) <(pdftotext -layout "$2" -)
    pdftoppm -r 100 "$1" "$1"
    pdftoppm -r 100 "$2" "$2"
    local Picture
    for Picture in "$1"-*.ppm; do
        cmp -- "$Picture" "$2${Picture#"$1"}"
    done
}

# PlayScript PROGRAM SCRIPT: it ends well, and prints what the machine's own player prints.
PlayScript() { Judge "$2" "$WineHome/log" PlayBoth "$PWD/$1" "$2.qs"; }
