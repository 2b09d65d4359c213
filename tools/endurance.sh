#!/usr/bin/env bash
# A user who acts at random through the whole suite, 100,000 acts under the sanitizers: 20 walks of 5,000 acts,
# first at the real windows, where a quarter of the acts are keys and the mouse, then without a screen.
# An argument is another number of walks. Takes half an hour.
set -euo pipefail
source "$(dirname -- "${BASH_SOURCE[0]}")/setup.sh"

InstallMissing "${BuildPackages[@]}" "${TestPackages[@]}"
Configure sanitize -DQUILLMETRA_TESTS=ON
Build sanitize test_desktop test_forms
export QUILLMETRA_SEEDS=${1:-20} QUILLMETRA_ACTS=5000 QT_QPA_PLATFORM=offscreen
export LSAN_OPTIONS="suppressions=$PWD/tools/sanitizers/lsan.supp:print_suppressions=0"
build/sanitize/bin/test_desktop --gtest_filter='*RestlessDesktop*'
exec build/sanitize/bin/test_forms --gtest_filter='Seeds/RestlessSuite*'
