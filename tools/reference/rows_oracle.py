#!/usr/bin/env python3
"""Check figures of shipped rows, from what their sources say.

    python3 tools/reference/rows_oracle.py           writes row_checks.txt of tests/reference, which the tests compare with
    python3 tools/reference/rows_oracle.py TABLES    prints how far the rows of another folder of tables are off

The rows of more_*.csv have their deviation from the source at three temperatures: what the rules of
liquid_oracle and gas_oracle give there, less that deviation, is the source's figure. Gas density is that of the virial
equation. The other rows have figures of their sources below. One line a figure: table, row, property, degF, psia, true
figure, the percent that the row claims. Units: psia, cp, Btu/lb, Btu/lb degF, lb/ft3, psi; gravity against water at 60.
"""

import csv
import math
import sys
from pathlib import Path

import gas_oracle
from liquid_oracle import liquid, vapor_pressure

HERE = Path(__file__).parent
CHECKS = HERE.parent.parent / "tests" / "reference" / "row_checks.txt"

# Deviations are given to 0.1 %, figures of a row to three or four digits.
ROUNDING = 0.15


def viscosities(row, *points):
    return [("Liquid.txt", row, "viscosity", t, 14.7, u, 1) for t, u in points]


# Figures of the sources of rows that have no line in those files.
FIGURES = [
    *[(table, "Carbon Dioxide", "vapor", t, 2000, p, 3.6)
      for table in ("Liquid.txt", "Gas.txt") for t, p in ((-40, 145.8), (0, 305.8), (32, 505.5), (60, 747.7))],
    ("Gas.txt", "Carbon Dioxide", "latent", 32, 14.7, 99, 5),
    ("Gas.txt", "Carbon Dioxide", "latent", 60, 14.7, 74.9, 6.5),
    ("Gas.txt", "Sulphur Hexafluoride", "latent", 60, 14.7, 30.6, 3.6),
    ("Gas.txt", "Sulphur Hexafluoride", "vapor", 60, 14.7, 272.8, 2.2),
    ("Gas.txt", "Acetylene", "latent", 60, 14.7, 142, 4),
    ("Gas.txt", "Cyclopropane", "vapor", -27.13, 14.7, 14.696, 1),
    ("Gas.txt", "Cyclopropane", "latent", -27.13, 14.7, 203.3, 1),
    ("Gas.txt", "Methyl Acetylene", "latent", -10, 14.7, 237.7, 4.8),
    ("Liquid.txt", "Methyldiethanolamine", "vapor", 200, 14.7, 0.0327, 1.5),
    ("Liquid.txt", "Propane", "modulus", 68, 300, 43220, 2),
    # Saturated liquids at 68 degF, density times speed of sound squared.
    *[("Liquid.txt", row, "modulus", 68, p, k, 1.2)
      for row, p, k in (("Propylene", 145.4, 40850), ("Refrigerant 12", 81.4, 54480), ("Refrigerant 22", 129.9, 56210),
                        ("Refrigerant 32", 212.4, 48700), ("Refrigerant 134a", 81.9, 49870),
                        ("Refrigerant 152a", 74, 59940), ("Hydrogen Sulphide", 253.6, 85440),
                        ("Hydrogen Chloride", 610.7, 31730))],
    *viscosities("Chlorine", (100, 0.312), (100, 0.314)),
    *viscosities("Propylene Glycol", (74, 46.9), (172, 4.64)),
    *viscosities("Ethylene Glycol", (74, 18), (172, 3.25)),
    *viscosities("Diethylene Glycol", (81, 25.9), (172, 4.47)),
    *viscosities("Triethylene Glycol", (74, 40.5), (172, 5.82)),
    *viscosities("Monoethanolamine", (74, 19.9), (172, 3.1)),
    *viscosities("Cyclohexanol", (92, 32.3), (176, 3.67)),
    *viscosities("Aniline", (81, 3.58), (172, 1.15)),
    *viscosities("2-Ethylhexanol", (74, 6.71), (172, 1.28)),
    *viscosities("n-Octanol", (74, 7.73), (172, 1.64)),
]


def of_liquid(row, name, t, p):
    fields = [float(field) for field in row.split(",")[1:17]]
    if name == "modulus":
        return fields[13] * 1000 + fields[14] * p
    vapor, gravity, viscosity = liquid(row, t, p, 14.7)
    return {"vapor": vapor, "gravity": gravity, "viscosity": viscosity}[name]


def of_gas(row, name, t, p):
    names = ("zc", "tr", "viscosity", "heat", "k", "vapor", "z", "density", "latent", "converged")
    return dict(zip(names, gas_oracle.properties(row, t, p)))[name]


OF = {"Liquid.txt": of_liquid, "Gas.txt": of_gas}


def parts(text):
    return [part.strip() for part in text.split("/")]


def checks(table, fields, temperatures, deviations, percents, pressure_at):
    row = ",".join(fields) + ","
    for name, texts in deviations.items():
        for t, text in zip(temperatures, parts(texts)):
            if text in ("-", ""):
                continue
            p = pressure_at(t)
            true = OF[table](row, name, t, p) / (1 + float(text) / 100)
            yield table, fields[0], name, t, p, true, percents[name] + ROUNDING


def liquid_checks(fields):
    temperatures = [float(t) for t in parts(fields[18])]
    boiling, tc, pc = float(fields[10]), float(fields[4]) + 460, float(fields[9])
    percents = dict(zip(("gravity", "viscosity", "vapor"), (float(text or 0) for text in fields[22:25])))
    deviations = dict(zip(percents, fields[19:22]))
    return checks("Liquid.txt", fields[:17], temperatures, deviations, percents,
                  lambda t: max(14.7, round(1.05 * vapor_pressure(boiling, tc, pc, t), 1)))


def virial_density(fields, t, p):
    boiling, mw, tc, pc = float(fields[3]), float(fields[4]), float(fields[5]) + 459.67, float(fields[10])
    tr, tbr = (t + 459.67) / tc, min((boiling + 459.67) / tc, 0.7)
    omega = 3 / 7 * tbr / (1 - tbr) * math.log10(pc / 14.696) - 1
    second = 0.083 - 0.422 / tr ** 1.6 + omega * (0.139 - 0.172 / tr ** 4.2)
    return p * mw / 10.7316 / (t + 459.67) / (1 + second * p / pc / tr)


def gas_checks(fields):
    temperatures = [float(t) for t in parts(fields[17])]
    percents = dict(zip(("density", "viscosity", "heat"), map(float, fields[23:26])))
    deviations = {"viscosity": fields[19], "heat": fields[20]}
    yield from checks("Gas.txt", fields[:15], temperatures, deviations, percents, lambda t: 14.7)
    at_60 = {"latent": fields[21], "vapor": fields[22]}
    claimed = {name: abs(float(text)) for name, text in at_60.items() if text != "-"}
    yield from checks("Gas.txt", fields[:15], [60], at_60, claimed, lambda t: 14.7)
    for t, given in zip(temperatures, parts(fields[18])):
        if given != "-":
            true = virial_density(fields, t, 14.7)
            yield "Gas.txt", fields[0], "density", t, 14.7, true, percents["density"] + 0.5


def rows(path):
    with open(path, newline="", encoding="utf-8") as file:
        return list(csv.reader(file))[1:]


def all_checks():
    for fields in rows(HERE / "more_liquids.csv"):
        yield from liquid_checks(fields)
    for fields in rows(HERE / "more_gases.csv"):
        yield from gas_checks(fields)
    yield from FIGURES


def report(folder):
    for table in OF:
        lines = (Path(folder) / table).read_bytes().decode("cp1252").splitlines()[1:]
        found = {line.split(",")[0].strip(): line for line in lines}
        for of, row, name, t, p, true, percent in all_checks():
            if of == table and row in found:
                off = 100 * (OF[table](found[row], name, t, p) / true - 1)
                print(f"{table};{row};{name};{t:g};{off:+.1f};{percent:g}")


def main():
    if len(sys.argv) > 1:
        return report(sys.argv[1])
    with open(CHECKS, "w", newline="\n") as out:
        print("# Made by rows_oracle.py: see there.", file=out)
        print("# table; row; property; temperature; pressure; true figure; percent claimed", file=out)
        for table, row, name, t, p, true, percent in all_checks():
            print(table, row, name, f"{t:g}", f"{p:g}", f"{true:.6g}", f"{percent:.3g}", sep=";", file=out)


if __name__ == "__main__":
    main()
