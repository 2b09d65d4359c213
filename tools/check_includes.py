#!/usr/bin/env python3
"""Keeps the includes going one way.

Fails when a file of src/ includes a folder that stands above its own, when an outside library is included
where it has no place, when an include is not written as a path from src/, or when files include each other
in a circle. tests/ and benchmarks/ may include anything, but not in circles either.

    check_includes.py              checks the project that this file is part of
    check_includes.py --self-test  checks that each kind of fault is found
"""

import re
import sys
from pathlib import Path

from tree_rules import report, self_test, without_comments

CALC_BASE = {"platform", "core"}
CALCULATION = CALC_BASE | {"units", "fluids", "lineloss", "hammer"}
SUITE = CALCULATION | {"records", "tables", "reports", "forms"}

# For each folder of src/, the other folders that it may include.
ALLOWED = {
    "platform": set(),
    "core": {"platform"},
    "units": CALC_BASE,
    "fluids": CALC_BASE | {"units"},
    "lineloss": CALC_BASE | {"units", "fluids"},
    "hammer": CALC_BASE | {"units", "fluids"},
    "records": CALCULATION,
    "tables": CALCULATION,
    "reports": CALCULATION | {"records", "tables"},
    "forms": CALCULATION | {"records", "tables", "reports"},
    "paper": {"platform"},
    "desktop": SUITE | {"paper"},
    "script": SUITE | {"paper"},
}

# Outside libraries that only some folders of src/ may know: name, pattern of their headers, folders.
RESTRICTED = [
    ("Qt", re.compile(r"Qt?[A-Z]\w*(/.*)?|q\w+\.h"), {"desktop", "paper"}),
    ("SQLite", re.compile(r"sqlite3(ext)?\.h"), {"platform"}),
    ("libpq", re.compile(r"libpq.*\.h|postgresql/.*"), {"platform"}),
    ("what reads and writes workbooks", re.compile(r"minizip/.*|expat\w*\.h|zlib\.h|xlsxwriter(/.*)?\.h"), {"platform"}),
    (
        "what one operating system alone has",
        re.compile(
            r"(unistd|fcntl|dirent|dlfcn|pthread|semaphore|poll|pwd|grp|spawn|termios|glob|fnmatch|langinfo|libgen|sched"
            r"|strings|netdb|xlocale|windows|shlobj|shellapi|winsock2?|io|direct|process)\.h"
            r"|(sys|net|netinet|arpa|linux|mach|mach-o)/.*"
        ),
        {"platform"},
    ),
]

FREE_ROOTS = ("tests", "benchmarks")
SUFFIXES = {".h", ".cpp"}
# Written by Qt's own tools in the build folder.
BUILT = re.compile(r"(.*\.moc|(moc|ui)_\w+\.(h|cpp))")

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"\n]+)[>"]', re.MULTILINE)


def includes_of(path):
    """Yields (line, is quoted, name) of each include that is not in a comment."""
    text = without_comments(path)
    for match in INCLUDE.finditer(text):
        yield text.count("\n", 0, match.start()) + 1, match.group(1) == '"', match.group(2)


def source_files(root):
    for top in ("src", *FREE_ROOTS):
        yield from sorted(path for path in (root / top).rglob("*") if path.suffix in SUFFIXES)


def resolve(root, path, name):
    """The project's file that an include names, or None."""
    for base in (path.parent, root / "src", *(root / top for top in FREE_ROOTS)):
        target = (base / name).resolve()
        if target.is_file() and target.is_relative_to(root):
            return target
    return None


def judge(root, path, quoted, name, target):
    """What is wrong with an include of a file in src/, or None."""
    folder = path.relative_to(root / "src").parts[0]
    if target is not None:
        parts = target.relative_to(root).parts
        if parts[0] != "src":
            return f"the product may not include {parts[0]}/"
        if name != "/".join(parts[1:]):
            return f'write it as a path from src/: "{"/".join(parts[1:])}"'
        other = parts[1]
    else:
        for library, pattern, folders in RESTRICTED:
            if pattern.fullmatch(name) and folder not in folders:
                return f"{library} belongs in src/{', src/'.join(sorted(folders))} only"
        if not quoted or BUILT.fullmatch(name):
            return None
        # A header that the build writes still has its place in one of the folders.
        other = name.split("/")[0]
        if other not in ALLOWED:
            return "no such file; includes are written as a path from src/"
    if other != folder and other not in ALLOWED[folder]:
        return f"{folder}/ may not include {other}/"
    return None


def find_circles(graph):
    """Each circle once, as a list of files whose last one includes the first."""
    circles, done = [], set()

    def visit(path, trail):
        if path in trail:
            circles.append(trail[trail.index(path) :])
        elif path not in done:
            for target in graph.get(path, ()):
                visit(target, [*trail, path])
            done.add(path)

    for path in graph:
        visit(path, [])
    return circles


def check(root):
    """All faults of the project in that folder, as lines of text, and the number of files read."""
    root = root.resolve()
    faults, graph = [], {}
    for path in source_files(root):
        shown = path.relative_to(root)
        in_source = shown.parts[0] == "src"
        if in_source and shown.parts[1] not in ALLOWED:
            faults.append(f"{shown}: its folder has no row in the table of {Path(__file__).name}")
            continue
        graph[path] = []
        for line, quoted, name in includes_of(path):
            target = resolve(root, path, name)
            if target is not None:
                graph[path].append(target)
            fault = judge(root, path, quoted, name, target) if in_source else None
            if fault is not None:
                faults.append(f"{shown}:{line}: {name}: {fault}")
    for circle in find_circles(graph):
        names = [str(path.relative_to(root)) for path in (*circle, circle[0])]
        faults.append("circle of includes: " + " -> ".join(names))
    return faults, len(graph)


# Small projects: name, files, the words that the only fault must contain (None: no fault).
SELF_TEST = [
    ("downwards", {"src/core/A.h": '#include "platform/B.h"\n', "src/platform/B.h": ""}, None),
    ("upwards", {"src/platform/B.h": '#include "core/A.h"\n', "src/core/A.h": ""}, "platform/ may not include core/"),
    ("sideways", {"src/tables/A.h": '#include "records/B.h"\n', "src/records/B.h": ""}, "may not include records/"),
    ("hosts apart", {"src/script/A.h": '#include "desktop/B.h"\n', "src/desktop/B.h": ""}, "may not include desktop/"),
    ("line number", {"src/core/A.h": '/* two\nlines */\n#include "forms/B.h"\n', "src/forms/B.h": ""}, "A.h:3:"),
    ("angle brackets", {"src/core/A.h": "#include <forms/B.h>\n", "src/forms/B.h": ""}, "may not include forms/"),
    ("dots", {"src/core/A.h": '#include "../forms/B.h"\n', "src/forms/B.h": ""}, "path from src/"),
    ("beside", {"src/core/A.h": '#include "B.h"\n', "src/core/B.h": ""}, 'path from src/: "core/B.h"'),
    ("missing", {"src/core/A.h": '#include "B.h"\n'}, "no such file"),
    ("built header above", {"src/core/A.h": '#include "forms/Built.h"\n'}, "may not include forms/"),
    ("moc", {"src/desktop/A.cpp": '#include "A.moc"\n#include <QWidget>\n'}, None),
    ("Qt class", {"src/forms/A.h": "#include <QString>\n"}, "Qt belongs"),
    ("Qt module", {"src/script/A.h": "#include <QtCore/qglobal.h>\n"}, "Qt belongs"),
    ("SQLite", {"src/records/A.h": "#include <sqlite3.h>\n"}, "SQLite belongs"),
    ("POSIX", {"src/records/A.h": "#include <sys/stat.h>\n"}, "operating system alone"),
    ("Windows", {"src/desktop/A.h": "#include <windows.h>\n"}, "operating system alone"),
    ("system in platform", {"src/platform/A.cpp": "#include <unistd.h>\n"}, None),
    ("standard library", {"src/core/A.h": "#include <queue>\n#include <cmath>\n"}, None),
    ("test code", {"src/core/A.h": '#include "../../tests/B.h"\n', "tests/B.h": ""}, "may not include tests/"),
    ("circle", {"src/core/A.h": '#include "core/B.h"\n', "src/core/B.h": '#include "core/A.h"\n'}, "A.h -> src/core/B.h"),
    ("self", {"src/core/A.h": '#include "core/A.h"\n'}, "circle"),
    ("comments", {"src/core/A.h": '// data/*.txt\n//#include "core/A.h"\n/* #include "core/A.h" */\n'}, None),
    ("tests are free", {"tests/A.cpp": '#include "script/B.h"\n#include <QTest>\n', "src/script/B.h": ""}, None),
    ("new folder", {"src/extra/A.h": ""}, "no row in the table"),
    ("file in src itself", {"src/Main.cpp": ""}, "no row in the table"),
]


def main():
    if sys.argv[1:] == ["--self-test"]:
        return self_test(SELF_TEST, lambda root: check(root)[0])
    if sys.argv[1:]:
        print(__doc__, file=sys.stderr)
        return False
    faults, count = check(Path(__file__).resolve().parent.parent)
    return report(f"Includes of {count} files", faults)


if __name__ == "__main__":
    sys.exit(0 if main() else 1)
