#!/usr/bin/env bash
# What every change must pass of Windows' side, on Debian and without Qt: the script player and two test programs are built
# with MinGW and play under Wine, and ten scripts print what the player of the machine itself prints.
# Usage: tools/windows/check.sh [PLAYER], by default that of build/release.
set -euo pipefail
source "$(dirname -- "${BASH_SOURCE[0]}")/common.sh"

Player=$(realpath -- "${1:-$ProgramFolder/quillmetra-script}")
Build=build/windows-plain
Scripts=(tests/scripts/{good-path,records,path-finder,failing-files,table-editor,gas-fluids,mixtures,water-hammer}
         tests/scripts/{liquid-data,hints})

InstallMissing "${BuildPackages[@]}" "${TestPackages[@]}" "${WindowsPackages[@]}"
MakeSqlite
MakeGoogleTest

Heading "Built with MinGW"
Configure windows -B "$Build" -DQUILLMETRA_TESTS=ON -DQUILLMETRA_DESKTOP=OFF >/dev/null
cmake --build "$Build" --parallel "$(nproc)" --target quillmetra-script test_platform test_lineloss

Heading "Played under Wine"
StartWine
for Program in test_platform test_lineloss; do
    PlayTests "$Build/bin/$Program.exe"
done
for Script in "${Scripts[@]}"; do
    PlayScript "$Build/bin/quillmetra-script.exe" "$Script"
done
PrintTable
