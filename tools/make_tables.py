#!/usr/bin/env python3
"""Writes the data tables that the suite ships (data/) from tools/reference/.

The tables are laid out as the suite's own table editor saves them, so that a table saved unchanged
stays the same file: the heading first, the name padded to a fixed width, every value followed by a
comma, CR LF line ends, code page 1252. Figures are carried over as the text they are.

    make_tables.py           writes the tables
    make_tables.py --check   compares them and exits 1 when one differs
"""

import argparse
import csv
import re
import sys
from dataclasses import dataclass
from pathlib import Path

TOOLS = Path(__file__).resolve().parent
REFERENCE = TOOLS / "reference"
DATA = TOOLS.parent / "data"

# A mixture component's whole row is kept in a database field of this size.
FLUID_ROW_LENGTH = 110

# The pipe lookup takes the nominal size from the first characters of a row.
SIZE_LENGTH = 4



@dataclass(frozen=True)
class Source:
    """A file of tools/reference; the rows whose column holds a value, and of these the columns from the first on."""

    file: str
    column: int = 0
    value: str = ""
    first: int = 0


@dataclass(frozen=True)
class Table:
    file: str
    sources: tuple
    heading: str
    ascends: bool = False  # rows go by name, those of all sources together; else one source follows the other
    name_width: int = 0  # 0: the name is not padded
    row_length: int = 0  # 0: no limit


PIPE_HEADING = "Nominal Size,Schedule,Inside Diameter,Wall Thickness"

# Pipe of other diameters than those of steel pipe at the same nominal size: a file a family.
PIPE_FAMILIES = (
    "W-PVC.TXT",
    "W-PVCW.TXT",
    "W-HDPE.TXT",
    "W-HDPEM.TXT",
    "W-DUCT.TXT",
    "W-DUCTM.TXT",
    "W-COPPER.TXT",
    "W-TUBE.TXT",
    "W-METRIC.TXT",
)


def pipes_of(file):
    return Source("more_pipes.csv", 6, file)


TABLES = (
    Table(
        "Liquid.txt",
        (Source("liquids.csv"), Source("more_liquids.csv")),
        "Name,Tp,MW,Base SG,Crit Temp,Tr1,U1cp,Tr2,U2cp,CritP,NormBP,"
        "cP60,cP300,Flash,BulkMod,slope,bpLHV",
        ascends=True,
        name_width=31,
        row_length=FLUID_ROW_LENGTH,
    ),
    # gases.csv holds the true figures; this set holds those with which the suite's formulas give them.
    Table(
        "Gas.txt",
        (Source("gases_formula.csv"), Source("more_gases.csv")),
        "Name,Tp,CritV,NormBP,MW,CritTem,Tr1,U1cp,Tr2,U2cp,CritP,cP1,cP2,bpLHV,GasPrp",
        ascends=True,
        name_width=31,
        row_length=FLUID_ROW_LENGTH,
    ),
    Table("W-PIPE.TXT", (Source("pipes.csv"), pipes_of("W-PIPE.TXT")), PIPE_HEADING),
    *(Table(file, (pipes_of(file),), PIPE_HEADING) for file in PIPE_FAMILIES),
    Table(
        "Modulus.txt",
        (Source("modulus.csv"), Source("more_materials.csv", 0, "modulus", 1)),
        "Name,70,100,200,300,400,500,600,700,800,900,1000,1100,1200,Max Temp",
        name_width=23,
    ),
    # Filed under row number: new materials go at the end, and none is taken out.
    Table(
        "MaTLDAT.TXT",
        (Source("expansion.csv"), Source("more_materials.csv", 0, "expansion", 1)),
        "Name,Below 340 degF,Above 340 degF",
        name_width=31,
    ),
)


def refuse(table, line, why):
    sys.exit(f"{table.file}, {line}: {why}")


def format_row(table, fields):
    name, *values = (field.strip() for field in fields)
    return name.ljust(table.name_width) + "," + "".join(value + "," for value in values)


def check_number(table, line, text):
    if not re.fullmatch(r"-?(\d+\.?\d*|\.\d+)", text):
        refuse(table, line, f'"{text}" is not a plain decimal')


def check_fluid_or_material(table, line, fields, row, names):
    name, *values = fields
    if not name.strip() or name in names:
        refuse(table, line, f'"{name}" is empty or stands twice')
    if len(name) > table.name_width:
        refuse(table, line, f"the name is longer than {table.name_width} characters")
    if table.row_length and len(row) > table.row_length:
        refuse(table, line, f"the row is longer than {table.row_length} characters")
    for value in values:
        check_number(table, line, value)
    names.add(name)


def check_pipe(table, line, fields, last_size):
    size, _, inside, wall = fields
    for value in (size, inside, wall):
        check_number(table, line, value)
    if len(size) > SIZE_LENGTH:
        refuse(table, line, f"the size is longer than {SIZE_LENGTH} characters")
    if float(size) < last_size:
        refuse(table, line, "sizes do not ascend")
    return float(size)


def rows_of(source, count):
    """Where each row stands, and its fields."""
    with open(REFERENCE / source.file, newline="", encoding="utf-8") as file:
        reader = csv.reader(file)
        next(reader)  # the reference's heading
        for fields in reader:
            if source.value and fields[source.column] != source.value:
                continue
            # A table that has no use for some columns has its own behind them.
            held = [field for field in fields[source.first :] if field or not source.first]
            yield f"{source.file} line {reader.line_num}", held[:count]


def make_table(table):
    heading = table.heading.split(",")
    lines = [format_row(table, heading)]
    # Every line of a fluid table keeps to the length of a row; a longer heading goes without its padding.
    if table.row_length and len(lines[0]) > table.row_length:
        lines = [table.heading + ","]
    rows = [row for source in table.sources for row in rows_of(source, len(heading))]
    if table.ascends:
        rows.sort(key=lambda row: row[1][0].lower())
    names = set()
    last_size = 0.0
    for line, fields in rows:
        if len(fields) != len(heading) or any("," in field for field in fields):
            refuse(table, line, f"not {len(heading)} fields free of commas")
        row = format_row(table, fields)
        if table.name_width:
            check_fluid_or_material(table, line, fields, row, names)
        else:
            last_size = check_pipe(table, line, fields, last_size)
        lines.append(row)
    return "".join(line + "\r\n" for line in lines).encode("cp1252")


def main():
    parser = argparse.ArgumentParser(description="Writes the data tables from tools/reference.")
    parser.add_argument("--check", action="store_true", help="compare, write nothing, exit 1 on a difference")
    check_only = parser.parse_args().check

    differing = []
    for table in TABLES:
        content = make_table(table)
        target = DATA / table.file
        if not check_only:
            target.write_bytes(content)
        elif not target.is_file() or target.read_bytes() != content:
            differing.append(table.file)
    if differing:
        sys.exit("differs from tools/reference: " + ", ".join(differing))


if __name__ == "__main__":
    main()
