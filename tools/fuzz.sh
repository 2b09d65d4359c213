#!/usr/bin/env bash
# Runs each fuzzer of tests/fuzz for a while, a minute when no number of seconds is given. It starts from its kept corpus;
# what it makes up beyond stays in build/fuzz/found, with the input of a crash. Ends with 1 when one found a fault.
set -euo pipefail
source "$(dirname -- "${BASH_SOURCE[0]}")/setup.sh"

Seconds=${1:-60}

# Fuzz READER
Fuzz() {
    local Found=build/fuzz/found/$1
    mkdir -p "$Found"
    if build/fuzz/bin/"fuzz_$1" -max_total_time="$Seconds" -timeout=20 -print_final_stats=1 \
        -artifact_prefix="$Found-" "$Found" "tests/fuzz/corpus/$1" >"$Found.log" 2>&1; then
        echo "$1: no fault, $(awk '/number_of_executed_units/ {print $2}' "$Found.log") inputs"
    else
        echo "$1: a fault"
        tail -n 60 "$Found.log"
        return 1
    fi
}
export Seconds UBSAN_OPTIONS=print_stacktrace=1
export -f Fuzz

InstallMissing "${BuildPackages[@]}" "${CheckPackages[@]}"
Configure fuzz
Build fuzz fuzz_database fuzz_sheet fuzz_table fuzz_version5
printf '%s\n' database sheet table version5 | xargs -I{} -P "$(nproc)" bash -c 'Fuzz {}'
