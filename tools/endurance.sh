#!/usr/bin/env bash
# A user who acts at random through the whole suite, 100,000 acts under the sanitizers: 20 walks of 5,000 acts.
# An argument is another number of walks. Takes some minutes.
set -euo pipefail
source "$(dirname -- "${BASH_SOURCE[0]}")/setup.sh"

InstallMissing "${BuildPackages[@]}" "${TestPackages[@]}"
Configure sanitize -DQUILLMETRA_TESTS=ON
Build sanitize test_forms
export QUILLMETRA_SEEDS=${1:-20} QUILLMETRA_ACTS=5000 QUILLMETRA_SOURCE=$PWD QT_QPA_PLATFORM=offscreen
export LSAN_OPTIONS="suppressions=$PWD/tools/sanitizers/lsan.supp:print_suppressions=0"
exec build/sanitize/bin/test_forms --gtest_filter='*RestlessSuite*'
