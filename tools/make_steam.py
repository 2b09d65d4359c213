#!/usr/bin/env python3
"""Writes the two steam files that the suite ships (data/) from tools/reference/.

STEAM.txt holds the pressures of the table, psia, one a line, ascending. Stm07.Dat holds four records of
80 bytes for each pressure: specific volume (ft3/lb), isentropic exponent, viscosity (cp), and one that
nobody reads. A record is 20 single-precision values, low byte first: 0 unused, 1 saturation temperature
(degF), 2 the property at saturation, 3 to 18 the property at the temperatures of COLUMNS, 19 unused. Zero
in a column means that there is no steam of that temperature at that pressure.

    make_steam.py           writes the files
    make_steam.py --check   compares them and exits 1 when one differs
"""

import argparse
import csv
import math
import struct
import sys
from pathlib import Path

TOOLS = Path(__file__).resolve().parent
REFERENCE = TOOLS / "reference"
DATA = TOOLS.parent / "data"

COLUMNS = "240,340,400,500,600,650,700,750,800,900,1000,1100,1200,1300,1400,1500"
PRESSURES_HEADING = "Row,Pressure psia,Saturation temperature degF"
TABLE_HEADING = "Row,Pressure psia,p,Tsat degF,Sat," + COLUMNS

PROPERTIES = 4
RATIO = 1  # the suite finds the sonic velocity from it: the isentropic exponent, not cp/cv, makes that true
RECORD = struct.Struct("<20f")


def read_csv(name, heading):
    with open(REFERENCE / name, newline="", encoding="utf-8") as source:
        rows = list(csv.reader(source))
    if not rows or rows[0] != heading.split(","):
        sys.exit(f"{name}: the heading is not {heading}")
    for line, fields in enumerate(rows[1:], 2):
        if len(fields) != len(rows[0]) or not all(math.isfinite(float(field)) for field in fields):
            sys.exit(f"{name} line {line}: not {len(rows[0])} numbers")
    return rows[1:]


def read_pressures():
    """The pressures as the texts they are: row number, pressure, saturation temperature."""
    rows = read_csv("steam_pressures.csv", PRESSURES_HEADING)
    last = 0.0
    for number, (row, pressure, _) in enumerate(rows, 1):
        if int(row) != number or float(pressure) <= last:
            sys.exit(f"steam_pressures.csv: row {row} is out of order")
        last = float(pressure)
    return rows


def read_properties(name, pressures, wanted):
    """Values of a table, Tsat first, by (row number, property)."""
    found = {}
    for row, pressure, prop, *values in read_csv(name, TABLE_HEADING):
        key = (int(row), int(prop))
        if key in found or not 1 <= key[0] <= len(pressures):
            sys.exit(f"{name}: row {row}, property {prop} has no place")
        if [pressure, values[0]] != pressures[key[0] - 1][1:]:
            sys.exit(f"{name}: row {row} is not that of steam_pressures.csv")
        found[key] = [float(value) for value in values]
    if set(found) != {(row, prop) for row in range(1, len(pressures) + 1) for prop in wanted}:
        sys.exit(f"{name}: rows are missing")
    return found


def make_files():
    pressures = read_pressures()
    table = read_properties("steam_table.csv", pressures, range(PROPERTIES))
    table.update(read_properties("steam_isentropic_exponent.csv", pressures, [RATIO]))
    text = "".join(pressure + "\r\n" for _, pressure, _ in pressures)
    records = (RECORD.pack(0, *table[key], 0) for key in sorted(table))
    return {"STEAM.txt": text.encode("ascii"), "Stm07.Dat": b"".join(records)}


def main():
    parser = argparse.ArgumentParser(description="Writes the steam files from tools/reference.")
    parser.add_argument("--check", action="store_true", help="compare, write nothing, exit 1 on a difference")
    check_only = parser.parse_args().check

    differing = []
    for name, content in make_files().items():
        target = DATA / name
        if not check_only:
            target.write_bytes(content)
        elif not target.is_file() or target.read_bytes() != content:
            differing.append(name)
    if differing:
        sys.exit("differs from tools/reference: " + ", ".join(differing))


if __name__ == "__main__":
    main()
