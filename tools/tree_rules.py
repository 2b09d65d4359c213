"""What the checks of the tree share: sources without comments, and self-tests on small projects."""

import re
import tempfile
from pathlib import Path

COMMENT_OR_STRING = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.DOTALL)


def without_comments(path, keep_strings=True):
    """The text of a source, comments (and strings) blank and every line in its place."""

    def blank(match):
        text = match.group()
        return text if keep_strings and text.startswith('"') else "\n" * text.count("\n")

    return COMMENT_OR_STRING.sub(blank, path.read_text(encoding="utf-8", errors="replace"))


def self_test(cases, faults_of, common={}):
    """Plays small projects: name, files, the words that the only fault must contain (None: no fault)."""
    failed = 0
    for name, files, expected in cases:
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            for file, text in (common | files).items():
                (root / file).parent.mkdir(parents=True, exist_ok=True)
                (root / file).write_text(text, encoding="utf-8")
            faults = faults_of(root)
        if not (faults == [] if expected is None else len(faults) == 1 and expected in faults[0]):
            failed += 1
            print(f"self-test '{name}': expected {expected or 'no fault'}, found {faults or 'none'}")
    print(f"{len(cases) - failed} of {len(cases)} self-tests passed")
    return failed == 0


def report(what, faults):
    for fault in faults:
        print(fault)
    print(f"{what}: {len(faults) or 'no'} fault{'' if len(faults) == 1 else 's'}")
    return not faults
