#!/usr/bin/env bash
# Makes docs/images/page-*.png anew: plays the worked examples, which print to PDFs, and draws their pages.
# Needs a release build and poppler-utils.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

Root=$PWD
Folder=$(mktemp -d)
trap 'rm -rf -- "$Folder"' EXIT
cd "$Folder"

for Example in liquid-line steam-line water-hammer liquid-properties gas-properties; do
    printf 'set-date 2026-11-24\ninclude %s\n' "$Root/examples/$Example.qs" |
        "$Root/build/release/bin/quillmetra-script" - >/dev/null
    pdftoppm -r 75 -H 720 -gray -png -singlefile "$Example.pdf" "$Root/docs/images/page-$Example"
done
ls -l "$Root"/docs/images/page-*.png
