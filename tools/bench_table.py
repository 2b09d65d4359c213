#!/usr/bin/env python3
"""Plays the benchmark programs of a folder and prints one table: what the suite takes, what the same work
takes plain, and whether what was promised is kept.

usage: bench_table.py FOLDER [arguments for each program, such as --benchmark_filter=steam]

A benchmark is named "area/what", its plain counterpart "area/what/plain". Times are those of the processor,
or of the clock where the name says so or a server answers (tools/on_server.sh); each is the least of some repetitions, which is the one that was
least disturbed. A row that breaks its promise is measured again, and keeps its least times: the machine may have been
busy. Ends with 1 when a promise is broken nevertheless or a benchmark fails.
"""

import fnmatch
import json
import os
import re
import subprocess
import sys
from dataclasses import dataclass
from pathlib import Path

US, MS = 1e-6, 1e-3
NONE = float("inf")  # a limit that is none


@dataclass
class Promise:
    what: str  # a benchmark, or several by * and ?
    ratio: float | None = None  # to the plain counterpart
    time: float | None = None  # seconds
    allocations: int | None = None  # a round
    remark: str = ""


# Of several promises for one benchmark the later one counts, limit by limit.
PROMISES = [
    Promise("*", ratio=2),
    Promise("conversion/*", time=20 * US, allocations=0),
    Promise("rounding/*", allocations=0),
    Promise("liquid line/*", allocations=0),
    Promise("gas line/*", ratio=1.5, allocations=0),
    Promise("gas line/march*", time=1 * MS),
    Promise("correlations/*", time=50 * US, allocations=0),
    Promise("steam/*", ratio=NONE, time=50 * US, allocations=0, remark="asks the disk whether its files have changed"),
    Promise("mixtures/*", ratio=2.5, time=50 * US, allocations=0, remark="keeps the rows of its components too"),
    Promise("water hammer/*", time=50 * US),
    Promise("water hammer/case", allocations=0),
    Promise("form/refresh", ratio=2.5, remark="finds each control by its name"),
    Promise("form/three gas cases of 10,000 ft at once", time=100 * MS),
    Promise("sizes/422 pipes of a liquid", time=20 * MS),
    Promise("sizes/422 pipes of a gas line of 1,000 ft", time=300 * MS),
    Promise("form/unit window opened", time=20 * MS),
    Promise("form/row into a table of 10,000", time=20 * MS),
    Promise("record/save", ratio=2.5, time=20 * MS, remark="checks all fields, looks for rows left over"),
    Promise("browser/open", time=200 * MS),
    Promise("browser/list of all tags", time=300 * MS),
    Promise("browser/table of all records", ratio=NONE, time=300 * MS, remark="makes all cells and what the filter searches"),
    Promise("browser/table filtered by a key", time=50 * MS),
    Promise("browser/next", time=1 * MS),
    Promise("browser/previous", time=1 * MS),
    Promise("browser/find", time=1 * MS),
    Promise("browser/search while typing", time=1 * MS),
    Promise("browser/search by date", ratio=2.5, remark="reads whole heads"),
    Promise("database/10,000 rows added", ratio=1.5),
    Promise("database/row sought", ratio=1.5),
    Promise("database/export of 100,000 records", ratio=1.5),
    Promise("database/workbook of 10,000 records", ratio=2, remark="looks for the units that all share first"),
    Promise("tables/10,000 rows saved", time=200 * MS),
    Promise("tables/size among 422 pipes looked up", time=1 * MS),
    Promise("list/500 lines imported", ratio=2.5, time=500 * MS, remark="keeps what is to be saved in a database until it is agreed to"),
    Promise("list/500 lines recalculated", time=1),  # of 10,000 lines: 10 s on a quiet machine
    Promise("batch/1,000 records to one PDF", time=5),
]

ON_SERVER = "QUILLMETRA_TEST_SERVER" in os.environ
if ON_SERVER:
    PROMISES += [
        Promise("browser/open", time=300 * MS),
        Promise("browser/next", time=5 * MS),
        Promise("browser/previous", time=5 * MS),
        Promise("browser/find", time=5 * MS),
        Promise("record/load", time=5 * MS),
        Promise("record/save", time=30 * MS),
    ]

# Without these in the arguments. A benchmark and its plain counterpart take turns, so that a machine that is
# busy for a while is busy for both.
DEFAULTS = [
    "--benchmark_min_time=0.05",
    "--benchmark_repetitions=7",
    "--benchmark_enable_random_interleaving=true",
]
MORE_TRIES = 5  # for rows that break their promise; at length, whatever the arguments were
PLAIN = "/plain"
UNITS = {"ns": 1e-9, "us": US, "ms": MS, "s": 1}


@dataclass
class Measured:
    time: float  # seconds
    allocations: float | None
    error: str


def run(program, arguments):
    """The benchmarks of a program by their names, repetitions in one."""
    result = subprocess.run(
        [program, *DEFAULTS, *arguments, "--benchmark_format=json"],
        env={"QT_QPA_PLATFORM": "offscreen", **os.environ},
        stdout=subprocess.PIPE,
        stderr=subprocess.PIPE,
        text=True,
    )
    if "Failed to match any benchmarks" in result.stderr:
        return {}
    if result.returncode != 0:
        sys.exit(f"{program} ended with {result.returncode}:\n{result.stderr}")
    rounds = [each for each in json.loads(result.stdout)["benchmarks"] if each["run_type"] == "iteration"]
    measured = {}
    for each in rounds:
        name = re.sub(r"/(real_time|iterations:\d+|repeats:\d+)", "", each["run_name"])
        clock = "real_time" if ON_SERVER or "/real_time" in each["run_name"] else "cpu_time"
        time = each.get(clock, 0) * UNITS[each.get("time_unit", "ns")]
        known = measured.setdefault(name, Measured(time, None, ""))
        known.time = min(known.time, time)
        known.allocations = each.get("allocations")
        known.error = known.error or each.get("error_message", "")
    return measured


def add(measured, more):
    for name, each in more.items():
        known = measured.setdefault(name, each)
        known.time = min(known.time, each.time)
        if each.allocations is not None:
            known.allocations = min(known.allocations, each.allocations)


def promise_for(name):
    limits = Promise(name)
    for promise in PROMISES:
        if not fnmatch.fnmatchcase(name, promise.what):
            continue
        for limit in ("ratio", "time", "allocations"):
            if getattr(promise, limit) is not None:
                setattr(limits, limit, getattr(promise, limit))
        limits.remark = promise.remark or limits.remark
    return limits


def shown_time(seconds):
    unit = next((u for u in ("s", "ms", "us") if seconds >= UNITS[u]), "ns")
    return f"{seconds / UNITS[unit]:.3g} {unit}"


def judge(name, measured, plain):
    """The row of a benchmark, and whether its promise is kept."""
    limits = promise_for(name)
    ratio = measured.time / plain.time if plain and plain.time > 0 else None
    checks = [
        (ratio, limits.ratio, f"{limits.ratio:g} x" if limits.ratio else ""),
        (measured.time, limits.time, shown_time(limits.time) if limits.time else ""),
        (measured.allocations, limits.allocations, "no allocation" if limits.allocations == 0 else ""),
    ]
    made = [(value, limit, text) for value, limit, text in checks if value is not None and limit not in (None, NONE)]
    # A part of an allocation a round is the end of a buffer that was not large enough yet.
    kept = all(value <= limit or limit == 0 and value < 0.01 for value, limit, _ in made)
    error = measured.error or (plain.error if plain else "")
    area, what = name.split("/", 1)
    row = [
        area,
        what,
        shown_time(measured.time),
        shown_time(plain.time) if plain else "",
        f"{ratio:.2f}" if ratio is not None else "",
        f"{measured.allocations:.0f}" if measured.allocations is not None else "",
        ", ".join(text for _, _, text in made),
        "FAILED" if error else "" if not made else "yes" if kept else "NO",
        error or limits.remark,
    ]
    return row, kept and not error


def print_table(rows):
    head = ["area", "what", "time", "plain", "ratio", "allocations", "promise", "kept", "remark"]
    numbers = range(2, 6)
    widths = [max(len(row[i]) for row in [head, *rows]) for i in range(len(head))]
    for row in [head, ["-" * width for width in widths], *rows]:
        cells = [c.rjust(w) if i in numbers else c.ljust(w) for i, (c, w) in enumerate(zip(row, widths))]
        print("  ".join(cells).rstrip())


def judge_all(measured):
    """The rows by their names, and whether the promise of each is kept."""
    names = sorted(name for name in measured if not name.endswith(PLAIN))
    return {name: judge(name, measured[name], measured.get(name + PLAIN)) for name in names}


def broken(judged):
    return [name for name, (_, kept) in judged.items() if not kept]


def only(names):
    """The argument that picks these benchmarks and their plain counterparts."""
    return "--benchmark_filter=^(" + "|".join(re.sub(r"[^\w/, ]", ".", name) for name in names) + ")(/|$)"


def strays(judged, measured):
    """Promises and plain counterparts of benchmarks that are not there."""
    wanted = [promise.what for promise in PROMISES]
    wanted += [name.removesuffix(PLAIN) for name in measured if name.endswith(PLAIN)]
    return [name for name in wanted if not fnmatch.filter(judged, name)]


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    arguments = sys.argv[2:]
    # By their sources: a build may still hold the program of one that is gone.
    sources = Path(__file__).parent.parent / "benchmarks"
    programs = [Path(sys.argv[1]) / each.stem for each in sorted(sources.glob("bench_*.cpp"))]
    measured = {}
    for program in programs:
        print(f"{program.name} ...", file=sys.stderr, flush=True)
        measured.update(run(program, arguments))
    if not measured:
        sys.exit("No benchmark was played.")
    judged = judge_all(measured)
    for _ in range(MORE_TRIES):
        if not broken(judged):
            break
        print("Again:", *broken(judged), sep="\n  ", file=sys.stderr, flush=True)
        for program in programs:
            add(measured, run(program, [only(broken(judged))]))
        judged = judge_all(measured)
    print_table([row for row, _ in judged.values()])

    print(f"\n{len(judged)} rows, {len(broken(judged))} of them with a promise that is not kept")
    if broken(judged):
        print(f"Load of the machine: {os.getloadavg()[0]:.1f} on {os.cpu_count()} processors")
    missing = [] if any("filter" in argument for argument in arguments) else strays(judged, measured)
    for stray in missing:
        print(f"{stray}: there is no such benchmark")
    return 1 if broken(judged) or missing else 0


if __name__ == "__main__":
    sys.exit(main())
