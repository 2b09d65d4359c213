#!/usr/bin/env python3
"""Prints how far the suite's figures are from those of their sources, as the tables of docs/guide/methods.md have it.

    accuracy.py [--player build/release/bin/quillmetra-script]    prints the tables
    accuracy.py --write                                           writes them into the guide
    accuracy.py --check                                           exits 1 when the guide has other ones

Each figure of figures.txt, collections.txt and tests/reference/row_checks.txt is asked of the forms by a script: state
typed, fluid picked, box read, with the hint of the status line. A line of a table gives the number of figures, the
median and the largest deviation, and how many are over 5 % without a hint of it.
"""

import argparse
import os
import re
import statistics
import subprocess
import sys
import tempfile
from collections import defaultdict
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent.parent
GUIDE = ROOT / "docs" / "guide" / "methods.md"
PLAYER = ROOT / "build" / "release" / "bin" / "quillmetra-script"
BEGIN, END = "<!-- accuracy.py writes from here -->\n", "<!-- to here -->\n"

# By the property of a figure: program, entry of the menu, box, word of its hint.
ASKED = {
    "gravity": (4, "mnuLiquid1", "txtSGFTP", "gravity"),
    "vapor": (4, "mnuLiquid1", "txtVapPressure", "vapor pressure"),
    "viscosity": (4, "mnuLiquid1", "txtViscosity", "viscosity"),
    "modulus": (4, "mnuLiquid1", "txtBulkModulus", "bulk modulus"),
    "density": (5, "mnuPureGases1", "txtDensity", "density"),
    "latent": (5, "mnuPureGases1", "txtReqdLatentHeat", "latent heat"),
    "saturated": (5, "mnuSatSteam1", "txtDensity", "density|properties"),
    "steam": (5, "mnuSupersteam1", "txtDensity", "density"),
    "exponent": (5, "mnuSupersteam1", "txtRatioSH", "exponent|density"),
    "sonic": (2, "mnuPureGases1", "txtSonicVelocity", "sonic velocity"),
    "line": (2, "mnuSatSteam1", "txtVelocity", "density of the line"),
}
OF_A_GAS = {"vapor": (5, "mnuPureGases1"), "viscosity": (5, "mnuPureGases1")}

BAROMETER = 14.7
NOT_ZERO = 0.001  # a zero counts as not entered
LINE_FLOW, LINE_DIAMETER = 1e5, 24  # of the line whose inlet tells the density and the sonic velocity
LINE = ["type txtInletPipeLen 1", f"type txtInletPipeID {LINE_DIAMETER}", f"type txtFlow(0) {LINE_FLOW}"]
NO_STATE = re.compile("sat", re.IGNORECASE)  # saturated steam has no temperature to type

# Air at 60 degF from 114.7 psia in 4.026 in pipe: ft, and the most of it, lb/h, adiabatic by another program.
CHOKED = ((5, 144982), (10, 127592), (20, 108726), (50, 83443), (100, 65647), (200, 50093), (1000, 24510),
          (10000, 7909))

FIGURES = (HERE / "figures.txt", HERE / "collections.txt", ROOT / "tests" / "reference" / "row_checks.txt")
CLAIMED = re.compile(r"^[\d.]+$")


def figures():
    for path in filter(Path.exists, FIGURES):
        for text in path.read_text(encoding="utf-8").splitlines():
            if text.startswith("#"):
                continue
            table, row, what, t, p, true, line = text.split(";")
            if what not in ASKED:
                continue  # no form shows it
            if CLAIMED.match(line):
                line = f"Other rows of {table}, {what}"
            program, entry, box, word = ASKED[what]
            if table == "Gas.txt" and what in OF_A_GAS:
                program, entry = OF_A_GAS[what]
            yield {"row": row, "what": what, "t": float(t), "p": float(p), "true": float(true), "line": line,
                   "program": program, "entry": entry, "box": box, "word": word}


def question(figure):
    """The lines of a script that ask for one figure, each in a form of its own."""
    lines = ["start", f"new {figure['program']}"]
    if figure["program"] == 2:
        lines += LINE
    if not NO_STATE.search(figure["entry"]):
        lines.append(f"type txtTemp(0) {figure['t'] or NOT_ZERO:.8g}")
    lines += [f"type txtPressure(0) {figure['p'] - BAROMETER or NOT_ZERO:.8g}", f"click {figure['entry']}"]
    if figure["entry"].startswith(("mnuPure", "mnuLiquid")):
        lines += [f"pick lstFluid \"{figure['row']} \"", "click cmdSelect"]
    if figure["program"] == 2:
        lines.append("click cmdCalculate(0)")
    return lines + [f"show {figure['box']}(0)", "show-status"]


def choked_question(length, flow):
    values = {"txtInletPipeLen": length, "txtInletPipeID": 4.026, "txtTemp(0)": 60, "txtPressure(0)": 100,
              "txtMW(0)": 28.96, "txtRatioSH(0)": 1.4, "txtCritTemp(0)": 238.8, "txtCritPressure(0)": 546,
              "txtViscosity(0)": 0.018, "txtFlow(0)": flow}
    typed = [f"type {box} {value}" for box, value in values.items()]
    return ["start", "new 2", *typed, "click cmdCalculate(0)", "show txtVelocity(0)", "show-status"]


def play(player, questions):
    """One pair of box and status for each question."""
    with tempfile.NamedTemporaryFile("w", suffix=".qs", encoding="utf-8") as script:
        script.write("\n".join(line for lines in questions for line in lines) + "\n")
        script.flush()
        run = subprocess.run([player, script.name], capture_output=True, text=True,
                             env={**os.environ, "QUILLMETRA_SOURCE": str(ROOT)})
    if run.returncode:
        sys.exit(run.stderr)
    boxes = re.findall(r"^txt\w+\(0\) =(.*)$", run.stdout, re.MULTILINE)
    hints = re.findall(r"^status \|(.*)$", run.stdout, re.MULTILINE)
    assert len(boxes) == len(hints) == len(questions)
    return list(zip(boxes, hints))


def deviation(figure, box):
    if not box.strip():
        return None
    shown = float(box)
    if figure["what"] == "line":
        shown = LINE_FLOW / 19.65 / shown / LINE_DIAMETER**2
    return 100 * (shown / figure["true"] - 1)


def figured(percent, sign=""):
    return f"{float(f'{percent:.2g}'):{sign}g}"


def numbered(line):
    """Puts 3000 before 10000."""
    return [f"{float(part):020.6f}" if CLAIMED.match(part) else part for part in re.split(r"(\d+\.?\d*)", line)]


def table(answers):
    lines = defaultdict(list)
    for figure, (box, hint) in answers:
        off = deviation(figure, box)
        if off is not None:
            lines[figure["line"]].append((off, bool(re.search(figure["word"], hint))))
    properties = list(dict.fromkeys(line.split(",")[0] for line in lines))
    lines = dict(sorted(lines.items(), key=lambda each: (properties.index(each[0].split(",")[0]), numbered(each[0]))))
    yield "| Figures | n | Median, % | Largest, % | Over 5 % without a hint |"
    yield "|---|---|---|---|---|"
    for line, offs in lines.items():
        largest = max((off for off, _ in offs), key=abs)
        silent = sum(abs(off) > 5 and not hinted for off, hinted in offs)
        median = statistics.median(abs(off) for off, _ in offs)
        yield f"| {line} | {len(offs)} | {figured(median)} | {figured(largest, '+')} | {silent or ''} |"


def choked_table(answers):
    yield "| Length, ft | Most that passes, lb/h | Told, lb/h | Shown of sonic velocity |"
    yield "|---|---|---|---|"
    for (length, flow), (_, hint) in zip(CHOKED, answers):
        told, shown = re.search(r"chokes at (\d+) .*seen here as ([\d.]+) of", hint).groups()
        yield f"| {length:,} | {flow:,} | {int(told):,} | {shown} |"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--player", default=PLAYER)
    parser.add_argument("--write", action="store_true")
    parser.add_argument("--check", action="store_true")
    options = parser.parse_args()
    asked = list(figures())
    answers = play(options.player, [question(each) for each in asked] + [choked_question(*each) for each in CHOKED])
    lines = [*table(zip(asked, answers)), "", *choked_table(answers[len(asked):])]
    text = "\n".join(lines) + "\n"
    if not options.write and not options.check:
        print(text, end="")
        return
    guide = GUIDE.read_text(encoding="utf-8")
    before, after = guide.split(BEGIN)[0], guide.split(END)[1]
    made = before + BEGIN + "\n" + text + "\n" + END + after
    if options.write:
        GUIDE.write_text(made, encoding="utf-8")
    elif made != guide:
        sys.exit("docs/guide/methods.md has other tables of accuracy: run tools/accuracy/accuracy.py --write")


if __name__ == "__main__":
    main()
