#!/usr/bin/env python3
"""Puts faults into a copy of the sources, one at a time, and tells which of them no test sees.

usage: mutate.py [--check] [--only WORD] [--first N] [--jobs N] [--seconds S]

Each fault of mutate_faults.toml is a file, a text that stands in it once, what takes its place, and why somebody
would notice. A fault is built into a copy in build/mutate (no Qt, -O1), and the test programs and scripts that fit
its folder are run, nearest first, until one fails. A fault that the compiler refuses counts as seen.

  --check       only looks whether each text stands in its file once
  --only WORD   faults whose file or reason holds the word
  --first N     begins with the Nth of them
  --jobs N      compilers at a time (default 2)
  --seconds S   begins no further fault after so many seconds

Ends with 1 when a fault lives.
"""

import argparse
import shutil
import subprocess
import sys
import time
import tomllib
from pathlib import Path

SOURCE = Path(__file__).resolve().parent.parent
COPY = SOURCE / "build" / "mutate" / "tree"
BUILD = SOURCE / "build" / "mutate" / "build"

# What is run for a fault of a folder, nearest first; all end with the forms, the printed pages and the scripts.
LAST = ["forms", "printing", "SCRIPTS"]
FITTING = {
    "platform": ["platform", "core", "records", "tables", "units", "reports", "script", *LAST],
    "core": ["core", "units", "records", "reports", *LAST],
    "units": ["units", "records", "lineloss", "hammer", "fluids", *LAST],
    "fluids": ["fluids", *LAST],
    "lineloss": ["lineloss", *LAST],
    "hammer": ["hammer", *LAST],
    "records": ["records", "kill", *LAST],
    "tables": ["tables", "fluids", "data", *LAST],
    "reports": ["reports", *LAST],
    "forms": ["forms", "core", "printing", "SCRIPTS"],
    "script": ["script", "printing", "SCRIPTS"],
}
# Acts by chance and runs of any length: too slow for every fault, and none of them is the test of one rule.
NOT_RUN = "--gtest_filter=-*Restless*:*LongRun*"
TIMEOUT = 240  # seconds a program; a fault may make a loop endless


def copy_sources():
    """A tree of its own; a file that has not changed keeps its time, so that little is built anew."""
    names = subprocess.run(["git", "ls-files"], cwd=SOURCE, capture_output=True, text=True, check=True).stdout
    for name in names.splitlines():
        origin, target = SOURCE / name, COPY / name
        if not origin.is_file():
            continue
        if target.is_file() and target.read_bytes() == origin.read_bytes():
            continue
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(origin, target)


def configure():
    options = ["-DQUILLMETRA_DESKTOP=OFF", "-DQUILLMETRA_TESTS=ON", "-DCMAKE_BUILD_TYPE=", "-DCMAKE_CXX_FLAGS=-O1"]
    if shutil.which("ccache"):
        options.append("-DCMAKE_CXX_COMPILER_LAUNCHER=ccache")
    subprocess.run(["cmake", "-G", "Ninja", "-S", COPY, "-B", BUILD, *options], check=True, stdout=subprocess.DEVNULL)


def known_programs():
    listed = subprocess.run(["ninja", "-C", BUILD, "-t", "targets", "all"], capture_output=True, text=True).stdout
    return {line.split(":")[0] for line in listed.splitlines()}


def build(targets, jobs):
    command = ["ninja", "-C", BUILD, "-j", str(jobs), *targets]
    return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0


def passes(command):
    try:
        return subprocess.run(command, cwd=COPY, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              timeout=TIMEOUT).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def scripts():
    text = (COPY / "tests" / "CMakeLists.txt").read_text()
    listed = text[text.index("foreach(script ") + 15:]
    return [name for name in listed[:listed.index(")")].split() if "{" not in name]


def first_failure(names, jobs):
    """What sees the fault in hand; empty for none."""
    for name in names:
        if not build(["quillmetra-script" if name == "SCRIPTS" else "test_" + name], jobs):
            return "the compiler"
        if name != "SCRIPTS":
            if not passes([BUILD / "bin" / ("test_" + name), NOT_RUN]):
                return "test_" + name
            continue
        for script in scripts():
            if not passes([BUILD / "bin" / "quillmetra-script", script + ".qs"]):
                return script
    return ""


def unfit(faults):
    """Those whose text does not stand in its file once."""
    return [fault for fault in faults if (SOURCE / fault["file"]).read_text().count(fault["text"]) != 1]


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--only", default="")
    parser.add_argument("--first", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--seconds", type=float, default=float("inf"))
    wanted = parser.parse_args()
    with open(Path(__file__).with_name("mutate_faults.toml"), "rb") as file:
        faults = [each for each in tomllib.load(file)["fault"] if wanted.only in each["file"] + each["why"]]
    for fault in unfit(faults):
        print(f"{fault['file']}: does not hold this once: {fault['text']}")
    if unfit(faults):
        sys.exit(1)
    if wanted.check:
        return print(f"{len(faults)} faults, each with its place")

    copy_sources()
    configure()
    known = known_programs()
    plans = {folder: [name for name in names if name == "SCRIPTS" or "test_" + name in known]
             for folder, names in FITTING.items()}
    start = time.monotonic()
    everything = [f"test_{name}" for name in {each for plan in plans.values() for each in plan} - {"SCRIPTS"}]
    if not build(everything + ["quillmetra-script"], wanted.jobs):
        sys.exit("The sources do not build.")
    for name in sorted({each for plan in plans.values() for each in plan}):
        if failure := first_failure([name], wanted.jobs):
            sys.exit(f"{failure} fails without any fault.")

    living = []
    for number, fault in list(enumerate(faults, 1))[wanted.first - 1:]:
        if time.monotonic() - start > wanted.seconds:
            print(f"{len(faults) - number + 1} faults were not tried", flush=True)
            break
        target = COPY / fault["file"]
        sound = target.read_text()
        target.write_text(sound.replace(fault["text"], fault["with"]))
        try:
            seen = first_failure(plans[Path(fault["file"]).parts[1]], wanted.jobs)
        finally:
            target.write_text(sound)
        if not seen:
            living.append(fault)
        print(f"{number:3} {time.monotonic() - start:6.0f} s  {seen or 'LIVES':28} {fault['file']}: {fault['why']}",
              flush=True)
    print(f"\n{len(living)} of them live")
    for fault in living:
        print(f"{fault['file']}: {fault['text']} -> {fault['with']}: {fault['why']}")
    return 1 if living else 0


if __name__ == "__main__":
    sys.exit(main())
