#!/usr/bin/env python3
"""Checks the documents: every link and picture that one names is there, every picture is named, and every figure that
docs/guide/examples.md quotes of the suite is expected by the script of its section.

Usage: tools/check_docs.py [FOLDER]
"""
import re
import sys
from pathlib import Path

ROOT = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parent.parent)
LINK = re.compile(r"!?\[[^\]]*\]\(([^)\s]+)\)")
FIGURE = re.compile(r"^\|[^|]*\| `([^`]+)` \| ([^|]+?) \|")
SCRIPT = re.compile(r"\[examples/([\w-]+\.qs)\]")


def documents():
    """All documents but the topics of the help, whose links are numbers of topics."""
    yield from (path for path in ROOT.glob("*.md"))
    yield from (path for path in (ROOT / "docs").rglob("*.md"))
    yield ROOT / "data" / "SOURCES.md"


def broken_links(path, text):
    for target in LINK.findall(text):
        name = target.split("#")[0]
        if name and "://" not in name and not (path.parent / name).exists():
            yield f"{path.relative_to(ROOT)}: there is no {target}"


def unnamed_pictures(texts):
    named = {(path.parent / target).resolve() for path, text in texts.items() for target in LINK.findall(text)}
    for picture in sorted((ROOT / "docs").rglob("*.png")):
        if picture.resolve() not in named:
            yield f"{picture.relative_to(ROOT)}: no document shows it"


def unproven_figures(path, text):
    """A figure of the suite must be an expectation of the section's script, which the tests play."""
    script, expected, figures = None, set(), 0
    for line in text.splitlines():
        if found := SCRIPT.match(line):
            script = found[1]
            lines = (ROOT / "examples" / script).read_text(encoding="utf-8").splitlines()
            expected = {tuple(each.split(None, 2)[1:]) for each in lines if each.startswith("expect ")}
        if found := FIGURE.match(line):
            figures += 1
            if (found[1], found[2]) not in expected:
                yield f"{path.relative_to(ROOT)}: {script} does not expect {found[1]} {found[2]}"
    if figures == 0:
        yield f"{path.relative_to(ROOT)}: no figure of the suite is quoted"


def main():
    texts = {path: path.read_text(encoding="utf-8") for path in documents()}
    problems = [problem for path, text in texts.items() for problem in broken_links(path, text)]
    problems += unnamed_pictures(texts)
    examples = ROOT / "docs" / "guide" / "examples.md"
    problems += unproven_figures(examples, texts[examples])
    for problem in problems:
        print(problem, file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
