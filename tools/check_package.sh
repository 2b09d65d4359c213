#!/usr/bin/env bash
# Makes the Debian package of a finished build and tries it in a bare folder tree: what is in it, what it says of
# itself, whether both programs start from there, and whether nothing stays when it is removed.
# Usage: tools/check_package.sh BUILD-FOLDER
set -euo pipefail

Build=$(realpath -- "$1")
Source=$(realpath -- "$(dirname -- "${BASH_SOURCE[0]}")/..")
Work=$(mktemp -d)
trap 'chmod -R u+w -- "$Work"; rm -rf -- "$Work"' EXIT
Root=$Work/root

Fail() {
    echo "check_package: $*" >&2
    exit 1
}

cd -- "$Work"
cpack --config "$Build/CPackConfig.cmake" -B "$Work/packages" >"$Work/cpack.log" 2>&1 || {
    cat "$Work/cpack.log" >&2
    Fail "the package cannot be made"
}
Package=$(echo "$Work"/packages/*.deb)
[[ -f $Package ]] || Fail "there is no package"

# What it says of itself.
Depends=$(dpkg-deb -f "$Package" Depends)
for Library in libqt6widgets libqt6printsupport libsqlite3 libpq; do
    [[ $Depends == *$Library* ]] || Fail "it does not depend on $Library: $Depends"
done

# What is in it.
dpkg-deb -c "$Package" >"$Work/contents"
for Path in usr/bin/quillmetra usr/bin/quillmetra-script usr/share/applications/quillmetra.desktop \
    usr/share/icons/hicolor/scalable/apps/quillmetra.svg \
    usr/share/metainfo/org.quillmetra.quillmetra.metainfo.xml usr/share/man/man1/quillmetra.1.gz \
    usr/share/man/man1/quillmetra-script.1.gz usr/share/doc/quillmetra/copyright usr/share/doc/quillmetra/changelog.gz \
    usr/share/quillmetra/examples/liquid-line.qs usr/share/doc/quillmetra/docs/scripts.md \
    usr/share/quillmetra/data/Liquid.txt usr/share/quillmetra/data/help/400-record-browser.md; do
    grep -q " ./$Path\$" "$Work/contents" || Fail "$Path is not in it"
done

# Installed in a bare tree, without asking for the libraries there. What dpkg itself keeps is in var; it leaves the
# folders that it finds.
mkdir -p "$Root/var/lib/dpkg/info" "$Root/var/lib/dpkg/updates" "$Root/var/log" "$Root/usr"
touch "$Root/var/lib/dpkg/status" "$Root/var/lib/dpkg/available"
Dpkg=(dpkg --root="$Root" --force-not-root --force-depends --log="$Work/dpkg.log")
if ((EUID == 0)); then
    "${Dpkg[@]}" --install "$Package" >"$Work/install.log" 2>&1 || {
        cat "$Work/install.log" >&2
        Fail "it cannot be installed"
    }
else
    dpkg-deb -x "$Package" "$Root"
fi

# No trace of where it was built.
for Program in quillmetra quillmetra-script; do
    if grep -aq -e "$Source" -e "$Build" "$Root/usr/bin/$Program"; then
        Fail "$Program knows the folder where it was built"
    fi
done
if command -v desktop-file-validate >/dev/null; then
    desktop-file-validate "$Root/usr/share/applications/quillmetra.desktop"
fi
if command -v appstreamcli >/dev/null; then
    appstreamcli validate --no-net "$Root/usr/share/metainfo/org.quillmetra.quillmetra.metainfo.xml" >"$Work/appstream.log" ||
        { cat "$Work/appstream.log" >&2; Fail "its data for software centres are not valid"; }
fi

# Both programs start, on a folder of the user's own; the installed tree is not written to. The folder has a name that a
# user may well have.
chmod -R a-w "$Root/usr"
export HOME="$Work/Jörg's home" QT_QPA_PLATFORM=offscreen
export XDG_DATA_HOME=$HOME/data
mkdir -p "$HOME" "$Work/run"
cd -- "$Work/run"
# A word for each file of the tree and its contents.
Installed() { find "$Root/usr" -type f -exec sha1sum {} + | sort; }
Installed >"$Work/before"
"$Root/usr/bin/quillmetra-script" "$Root/usr/share/quillmetra/examples/liquid-line.qs" >"$Work/script.log" 2>&1 || {
    cat "$Work/script.log" >&2
    Fail "the example does not play"
}
[[ -s liquid-line.pdf ]] || Fail "the example has printed nothing"
timeout 60 "$Root/usr/bin/quillmetra" --time-start >"$Work/start.log" 2>&1 || Fail "the desktop program does not start"
grep -q ' ms$' "$Work/start.log" || Fail "the desktop program shows no window"
for Table in TRData/Liquid.txt TRData/Dark.txt STEAM.txt; do
    [[ -f $XDG_DATA_HOME/quillmetra/$Table ]] || Fail "the user has no $Table"
done
Locked=$(find "$XDG_DATA_HOME" -type f -not -perm -u+w)
[[ -z $Locked ]] || Fail "the user cannot change $Locked"
Installed | diff "$Work/before" - || Fail "the programs have changed what was installed"
chmod -R u+w "$Root/usr"

# Removed, it leaves nothing.
if ((EUID == 0)); then
    "${Dpkg[@]}" --purge quillmetra >"$Work/remove.log" 2>&1 || Fail "it cannot be removed"
    Left=$(find "$Root" -mindepth 1 -not -path "$Root/var*" -not -path "$Root/usr")
    [[ -z $Left ]] || Fail "these stay: $Left"
fi
echo "The package $(basename -- "$Package") is whole"
