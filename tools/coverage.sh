#!/usr/bin/env bash
# How much of src/ the tests reach: lines and branches by folder, and a page with each line in
# build/coverage/coverage.html. Takes some ten minutes on two cores.
set -euo pipefail
source "$(dirname -- "${BASH_SOURCE[0]}")/setup.sh"

InstallMissing "${BuildPackages[@]}" "${TestPackages[@]}" gcovr
Configure coverage -DQUILLMETRA_TESTS=ON
Build coverage
find build/coverage -name '*.gcda' -delete
RunTests coverage
Counts=build/coverage/counts.json
gcovr --root . --filter src/ --exclude-throw-branches --json "$Counts" build/coverage
gcovr --root . --add-tracefile "$Counts" --html-details build/coverage/coverage.html
python3 - "$Counts" <<'END'
import collections, json, sys

lines = collections.defaultdict(lambda: [0, 0])
for file in json.load(open(sys.argv[1]))["files"]:
    folder = "/".join(file["file"].split("/")[:2])
    for line in (each for each in file["lines"] if not each["gcovr/noncode"]):
        for name in (folder, "all"):
            lines[name][0] += line["count"] > 0
            lines[name][1] += 1
for name, (reached, count) in sorted(lines.items(), key=lambda row: (row[0] == "all", row[0])):
    print(f"{name:<14} {reached:>6} of {count:>6} lines  {100 * reached / count:5.1f} %")
END
