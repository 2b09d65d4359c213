#!/usr/bin/env bash
# Makes the pictures of windows in docs/images anew: quillmetra-screens fills the forms with the worked examples, and the
# pictures that the guide and the README show are kept. Needs a release build and xvfb.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

# What quillmetra-screens calls a picture, and what the documents call it.
Pictures="
browser-record:browser browser-tags:browser-tags selector:selector help:help
line-results:liquid-line line-changed:liquid-line-changed line-liquids:liquids fluid:fluid fluid-mixture:fluid-mixture
pipe-size:pipe-size sizes:sizes message:message
gas-results:steam-line gas-base-conditions:base-conditions hammer-selected:water-hammer hammer-moduli:pipe-moduli
frmLiqData:liquid-properties frmGasData:gas-properties gas-mixture:gas-mixture
units:units units-in-place:units-in-place units-choose:units-choose options:options Gas:table-editor
printout:printout preview:preview print-control:print-control path-finder-found:path-finder Dark:dark
import:import server:server plant-line:service plant-sizes:plant-sizes plant-recalculate:recalculate"

ninja -C build/release quillmetra-screens
Folder=$(mktemp -d)
trap 'rm -rf -- "$Folder"' EXIT
# The suite's folder is to be seen in some of the pictures.
TMPDIR=/var/tmp QT_QPA_PLATFORM=xcb xvfb-run -a -s "-screen 0 1280x1024x24" \
    build/release/bin/quillmetra-screens "$Folder" >"$Folder/log" 2>&1 || { cat "$Folder/log"; exit 1; }
for Pair in $Pictures; do
    cp -- "$Folder/${Pair%%:*}.png" "docs/images/${Pair##*:}.png"
done
ls -l docs/images
