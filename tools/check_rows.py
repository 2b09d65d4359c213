#!/usr/bin/env python3
"""Rows of the record go by their names.

Fails when a file of src/ outside core/ uses an array of the record or of the suite's own state by a bare digit, or
compares the program in hand with one. The names stand in src/core/Rows.h and src/core/Programs.h; the arrays are
found in the two headers that declare them.

    check_rows.py              checks the project that this file is part of
    check_rows.py --self-test  checks that each kind of fault is found
"""

import re
import sys
from pathlib import Path

from tree_rules import report, self_test, without_comments

HEADERS = ("CalcRecord.h", "Suite.h")
ARRAY = re.compile(r"(?:CaseInputs|CaseResults|PipeValues|FittingCounts|HammerResults|UnitNames|UnitFactors|Row<[^;]*>)\s+(\w[^;]*);")
NAME = re.compile(r"\b([A-Z]\w+)\s*\{\}")
# Rows by case, and lists that are counted and have no meaning by place.
COUNTED = {"FluidPercent", "FluidData", "ResultsClearable", "TemperatureBlank", "TemperatureEntered", "PressureEntered"}


def arrays_of(root):
    names = set()
    for header in HEADERS:
        path = root / "src/core" / header
        for declaration in ARRAY.finditer(path.read_text(encoding="utf-8") if path.is_file() else ""):
            names.update(NAME.findall(declaration.group(1)))
    return {name for name in names if name.removesuffix("Saved") not in COUNTED}


def faults_of(root):
    names = "|".join(sorted(arrays_of(root), key=len, reverse=True)) or "-"
    # "factor" is what the unit factors are called where a routine uses many of them.
    digit = re.compile(rf"\b((?:{names}|factors?)\[\s*\d+U?\s*\])|(CurrentProgram\s*(?:[=!<>]=|[<>])\s*\d+)")
    faults = []
    for path in sorted((root / "src").rglob("*")):
        if path.suffix not in {".h", ".cpp"} or "core" in path.relative_to(root / "src").parts[:1]:
            continue
        text = without_comments(path, keep_strings=False)
        for match in digit.finditer(text):
            if match.group(2) and re.search(r"[=!]=?\s*0$", match.group(2)):
                continue  # 0 is no program
            faults.append(f"{path.relative_to(root)}:{text.count(chr(10), 0, match.start()) + 1}: {match.group()}")
    return faults


CORE = {"src/core/CalcRecord.h": "struct R {\n CaseInputs CaseInput{}, Other{};\n Row<double, 3> Pair{};\n};\n"}
# Small projects: name, files, what the only fault must contain (None: no fault).
SELF_TEST = [
    ("digit", {"src/forms/A.cpp": "x = Calc.CaseInput[6][i];\n"}, "A.cpp:1: CaseInput[6]"),
    ("second of a line", {"src/forms/A.cpp": "\nx = Calc.Other[6][i];\n"}, "A.cpp:2: Other[6]"),
    ("unsigned", {"src/forms/A.cpp": "x = Calc.Pair[1U];\n"}, "Pair[1U]"),
    ("short name of the factors", {"src/forms/A.cpp": "x = factor[25];\n"}, "factor[25]"),
    ("name", {"src/forms/A.cpp": "x = Calc.CaseInput[input::FlowGravity][0];\n"}, None),
    ("program", {"src/forms/A.cpp": "if (Calc.CurrentProgram == 3) x();\n"}, "CurrentProgram == 3"),
    ("program taken", {"src/forms/A.cpp": "Calc.CurrentProgram = Number();\n"}, None),
    ("no program", {"src/forms/A.cpp": "if (Calc.CurrentProgram == 0) x();\n"}, None),
    ("comment", {"src/forms/A.cpp": "// CaseInput[6]\n/* Pair[1] */ f(\"Pair[1]\");\n"}, None),
    ("core", {"src/core/A.cpp": "x = Calc.CaseInput[6][i];\n"}, None),
    ("another array", {"src/forms/A.cpp": "x = arguments[0];\n"}, None),
]


def main():
    if sys.argv[1:] == ["--self-test"]:
        return self_test(SELF_TEST, faults_of, CORE)
    root = Path(__file__).resolve().parent.parent
    return report(f"Rows of {len(arrays_of(root))} arrays", faults_of(root))


if __name__ == "__main__":
    sys.exit(0 if main() else 1)
