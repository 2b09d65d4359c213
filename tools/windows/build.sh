#!/usr/bin/env bash
# Makes the suite for Windows on Debian: fetches what is missing by apt, builds the libraries once into a folder outside
# the tree (QUILLMETRA_WINDOWS_LIBRARIES names another one; the first time takes Qt most of an hour on two cores), the
# suite into build/windows, and of it Quillmetra-VERSION-setup.exe and Quillmetra-VERSION-portable.zip there.
set -euo pipefail
source "$(dirname -- "${BASH_SOURCE[0]}")/common.sh"
source tools/windows/libraries.sh

Build=build/windows
Package=$Build/package
Version=$(SuiteVersion)

MakeSuite() {
    Heading "The suite"
    Configure windows -DQUILLMETRA_TESTS=ON
    Build windows
}

# The libraries that a program or library asks for and that Windows does not have; each is looked at in its turn. Its name
# may be written in other letters than that of its file.
CopyNeeded() {
    local Name File
    "$Target-objdump" -p "$1" | sed -n 's/.*DLL Name: //p' | while IFS= read -r Name; do
        File=$(find "$Prefix/bin" "$CompilerLibraries" "/usr/$Target/lib" -maxdepth 1 -iname "$Name" -print -quit)
        if [[ -n $File && ! -f $Package/bin/${File##*/} ]]; then
            cp -- "$File" "$Package/bin/"
            CopyNeeded "$File"
        fi
    done
}

# What an installed suite is: programs with what they need in bin, tables, help and examples in share, documents.
MakePackage() {
    local Plugin
    Heading "The package"
    rm -rf -- "$Package"
    cmake --install "$Build" --prefix "$Package" >/dev/null
    for Plugin in platforms/qwindows platforms/qoffscreen styles/qwindowsvistastyle; do
        install -D "$Prefix/plugins/$Plugin.dll" "$Package/bin/$Plugin.dll"
    done
    find "$Package/bin" -name '*.exe' -o -name '*.dll' | while IFS= read -r Plugin; do CopyNeeded "$Plugin"; done
    find "$Package/bin" -name '*.exe' -exec "$Target-strip" {} + -o -name '*.dll' -exec "$Target-strip" {} +
    MakeDocuments
    du -sm "$Package"
}

# Texts end their lines as Windows' own editor likes it best.
MakeDocuments() {
    sed 's/$/\r/' LICENSE >"$Package/LICENSE.txt"
    sed 's/$/\r/' packaging/copyright >"$Package/COPYRIGHT.txt"
    sed 's/$/\r/' /usr/share/common-licenses/LGPL-3 >"$Package/LGPL-3.txt"
    sed 's/$/\r/' CHANGELOG.md >"$Package/CHANGES.txt"
    cp -r docs "$Package/docs"
    MakeLicences
}

# What the libraries ask to be said where they are shipped.
MakeLicences() {
    local Text Name
    mkdir "$Package/licences"
    for Text in "$Libraries"/src/*/debian/copyright /usr/share/doc/{g++-mingw-w64-x86-64-posix,mingw-w64-x86-64-dev}/copyright; do
        Name=${Text%/copyright}
        Name=${Name%/debian}
        sed 's/$/\r/' "$Text" >"$Package/licences/${Name##*/}.txt"
    done
}

# A folder TRData beside the program makes that place the suite's own folder.
MakePortable() {
    local Name=Quillmetra-$Version-portable
    Heading "The portable folder"
    rm -rf -- "${Build:?}/$Name" "$Build/$Name.zip"
    cp -r "$Package" "$Build/$Name"
    mkdir "$Build/$Name/bin/TRData"
    (cd -- "$Build" && zip -qr9 "$Name.zip" "$Name")
    rm -rf -- "${Build:?}/$Name"
}

InstallMissing "${BuildPackages[@]}" "${WindowsPackages[@]}" "${WindowsSetupPackages[@]}"
CompilerLibraries=$(dirname -- "$("$Target-g++-posix" -print-file-name=libstdc++-6.dll)")
MakeSqlite
MakeGoogleTest
MakeQt
MakeQtSvg
MakeQCustomPlot
MakeXlsx
MakeLibpq
MakeSuite
MakePackage
Heading "The setup"
MakeSetup "$Package" "$Version" "$Build/Quillmetra-$Version-setup.exe"
MakePortable
Heading "Done"
ls -l "$Build"/Quillmetra-"$Version"-*
