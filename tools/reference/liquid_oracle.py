#!/usr/bin/env python3
"""Independent figures for the liquid line and the liquid properties.

Works the rules out anew, without a look at the C++ code, and writes the two tables that the tests compare with:

    python3 tools/reference/liquid_oracle.py

liquid_lines.txt       one line a case: inputs, then results in internal units, flow status hidden
liquid_properties.txt  a row of the liquid table, temperature, pressure, barometer; vapor pressure, gravity,
                       viscosity

Run it again only when a rule changes, and look at the difference. Units: lb/h, in, ft, cp, psia, degF.
"""

import math
import random
import struct
from pathlib import Path

TABLES = Path(__file__).resolve().parents[2] / "tests" / "reference"

ROUGHNESS = {1: (0.0018, 2.51), 2: (0.000011, 2.5), 3: (0.0103, 2.42), 4: (0.006, 2.5), 5: (0.0048, 2.47),
             6: (0.012, 2.5), 7: (0.00725, 2.49)}
TURBULENCE = [(0.63, 0.027, 3e5), (0.9, 0.025, 4e5), (1.1, 0.023, 6e5), (1.5, 0.022, 15e5), (1.78, 0.021, 1e6),
              (2.25, 0.019, 15e5), (3.4, 0.018, 25e5), (5.4, 0.016, 4e6), (6.5, 0.015, 5e6), (10.5, 0.014, 8e6),
              (15.7, 0.013, 2e7), (24, 0.012, 3e7), (36, 0.011, 35e6), (48, 0.01, 5e7)]
LENGTH_RATIO = {"gate": 8, "globe": 350, "check": 40, "ell90": 20, "ell45": 10, "thru": 20, "branch": 60}
INPUTS = ["flow", "id", "length", "viscosity", "sg", "source", "start", "end", "equipment", "material", "fouling",
          "entrance", "exit", "gate", "globe", "check", "ell90", "ell45", "thru", "branch", "direction", "gauge",
          "barometer", "factor_before"]
RESULTS = ["reynolds", "friction", "turbulent", "zone", "mark", "loss100", "velocity", "equivalent", "final",
           "percent"]
ORDINARY = dict(flow=50000, id=4.026, length=350, viscosity=1, sg=1, source=114.7, start=0, end=0, equipment=0,
                material=1, fouling=0, entrance=0, exit=0, gate=0, globe=0, check=0, ell90=0, ell45=0, thru=0,
                branch=0, direction=1, gauge=1, barometer=14.7, factor_before=0.0123)


def colebrook(reynolds, diameter, material):
    e, a = ROUGHNESS[material]
    f = 0.01
    for _ in range(100):
        x = (e / 3.7) / diameter + (a / reynolds) / math.sqrt(f)
        g = -0.8685999 * math.log(x) - 1 / math.sqrt(f)
        change = g / (0.8685999 * x + 0.5 / f ** 1.5)
        if abs(change) <= 1e-06:
            return f
        f = f - change
    raise ArithmeticError("no convergence")


def line(c):
    d = c["id"]
    reynolds = 6.31 * c["flow"] / d / c["viscosity"]
    turbulent, zone, mark = c["factor_before"], "-", "-"
    if reynolds <= 2000:
        f = 64 / reynolds
        turbulent, zone = f, "Lam"
    else:
        f = colebrook(reynolds, d, c["material"])
        if reynolds <= 4000:
            zone = "Crit"
    f = f + f * c["fouling"] / 100
    for below, factor, limit in TURBULENCE:
        if d < below:
            turbulent = factor
            if reynolds < limit:
                mark = "Trans"
            break
    density = c["sg"] * 62.36
    loss = min(0.000336 * f * c["flow"] ** 2 / d ** 5 / density, 50000.0)
    velocity = c["flow"] / 19.65 / density / d ** 2
    length = c["length"]
    for name, ratio in LENGTH_RATIO.items():
        length += c[name] * (turbulent * ratio / f) * (d / 12)
    length += (1.5 * c["entrance"] + 2.7 * c["exit"]) / f * (d / 12)
    length += c["equipment"] / loss * 100
    length -= density * (c["start"] - c["end"]) / 144 / loss * 100
    if c["direction"] == 2:
        length = -length
    drop = loss * length / 100
    final, percent = c["source"] - drop, -1
    if final <= 0:
        source = c["source"] + c["barometer"] if c["gauge"] else c["source"]
        final, percent = 0, math.floor(100 * source / drop)
    return [reynolds, f, turbulent, zone, mark, loss, velocity, length, final, percent]


def line_cases():
    def case(**changes):
        return {**ORDINARY, **changes}

    yield case()
    # Zone edges: these flows give Re 2000 and 4000 to the last bit.
    for flow in (50, 199.9, 200, 200.1, 300, 400, 400.1, 1e4):
        yield case(flow=flow, id=1, viscosity=0.631, gate=2, ell90=4, sg=0.9)
    for material in ROUGHNESS:
        for flow, inside in ((2500, 1.049), (50000, 4.026), (3e6, 23.25)):
            yield case(material=material, flow=flow, id=inside)
    for fouling in (0, 10, 100):
        for flow in (1000, 3000, 80000):
            yield case(fouling=fouling, flow=flow, viscosity=2, globe=1)
    edges = [0.1, 200] + [edge for row in TURBULENCE for edge in (row[0] - 0.01, row[0])]
    for inside in edges:
        yield case(id=inside, flow=1000 * inside ** 2.3, gate=1, branch=2, exit=1)
    # At the limits of complete turbulence of a few bands.
    for inside, limit in ((1.4, 15e5), (1.6, 1e6), (3.068, 25e5), (12, 2e7)):
        for reynolds in (limit * 0.999, limit * 1.001):
            yield case(id=inside, flow=reynolds * inside * 0.2 / 6.31, viscosity=0.2, source=5e4)
    for name in list(LENGTH_RATIO) + ["entrance", "exit"]:
        yield case(**{name: 1})
    yield case(gate=2, globe=1, check=1, ell90=8, ell45=2, thru=3, branch=1, entrance=1, exit=1, equipment=3.5)
    yield case(gate=2.5)
    for start, end in ((0, 50), (50, 0), (0, 400), (3000, 0), (-10, -30)):
        for direction in (1, 2):
            for gauge in (0, 1):
                yield case(start=start, end=end, direction=direction, gauge=gauge)
    for gauge in (0, 1):
        yield case(flow=400000, gauge=gauge)
        yield case(flow=400000, gauge=gauge, source=20, direction=2)
    # The cap of the loss, and a line of no length at all but for its fittings.
    yield case(flow=5e6, id=1.049)
    yield case(flow=5e6, id=1.049, length=0.001, source=9e4, equipment=2)
    yield case(flow=14000, id=2.067, viscosity=350, sg=1.26, ell90=6)
    random_source = random.Random(2067)
    for _ in range(120):
        inside = math.exp(random_source.uniform(math.log(0.3), math.log(60)))
        speed = math.exp(random_source.uniform(math.log(0.5), math.log(20)))
        sg = random_source.uniform(0.5, 1.8)
        yield case(id=inside, sg=sg, flow=speed * 19.65 * sg * 62.36 * inside ** 2,
                   viscosity=math.exp(random_source.uniform(math.log(0.1), math.log(500))),
                   length=math.exp(random_source.uniform(0, math.log(20000))),
                   source=random_source.uniform(15, 1500), start=random_source.choice((0, 0, 120)),
                   end=random_source.choice((0, 0, 75)), equipment=random_source.choice((0, 0, 5)),
                   material=random_source.randint(1, 7), fouling=random_source.choice((0, 0, 15)),
                   entrance=random_source.randint(0, 1), exit=random_source.randint(0, 1),
                   direction=random_source.randint(1, 2), gauge=random_source.randint(0, 1),
                   **{name: random_source.choice((0, 0, 1, 4)) for name in LENGTH_RATIO})


def single(value):
    return struct.unpack("f", struct.pack("f", value))[0]


def vapor_pressure(boiling, tc, pc, t):
    tbr, atm, tr = (boiling + 459.67) / tc, pc / 14.7, (t + 459.67) / tc
    h = tbr * math.log(atm) / (1 - tbr)
    g = 0.4835 + 0.4605 * h
    k = (h / g - (1 + tbr)) / ((3 + tbr) * (1 - tbr) ** 2)
    exponent = -g / tr * ((1 - tr ** 2) + k * (3 + tr) * (1 - tr) ** 3)
    return atm * math.exp(min(exponent, 10)) * 14.7


def general(tr):
    return 0.269 * tr - 0.5163 * tr ** 2 + 0.3521 * tr ** 3 - 0.0461


WATER = [(37, 0.016022, 0.01602, 32, 5, 1.0), (137, 0.01602, 0.01628, 37, 100, 2.0),
         (237, 0.01628, 0.0169, 137, 100, 1.3), (337, 0.0169, 0.017845, 237, 100, 1.0),
         (437, 0.017845, 0.0192, 337, 100, 1.0), (537, 0.0192, 0.02137, 437, 100, 1.15),
         (637, 0.02137, 0.02565, 537, 100, 1.25), (706, 0.02565, 0.05078, 637, 69, 4.0)]


def water(t):
    for below, low, high, base, span, exponent in WATER:
        if t < below:
            v = low + ((t - base) / span) ** single(exponent) * (high - low)
            c = (t - 32) / 1.8 - 8.435
            return 0.016033 / v, 100 / (2.152938705 * (c + math.sqrt(8078.4 + c ** 2)) - 120)
    raise ArithmeticError("no band")


def liquid(row, t, p, barometer):
    fields = [field.strip() for field in row.split(",")]
    kind = float(fields[1])
    mw, base, tc, t1, u1, t2, u2, pc, boiling = (float(field) for field in fields[2:11])
    tc += 460.0
    b = (t1 + 459.67) * (t2 + 459.67) * math.log(u1 / u2) / (t2 - t1)
    viscosity = u1 / math.exp(b / (t1 + 459.67)) * math.exp(b / (t + 459.67))
    vapor = vapor_pressure(boiling, tc, pc, t)
    if kind == 3:
        return [vapor, *water(t)]
    a = 0.008 / (base * tc / pc / mw + 5.7267634 / tc)
    zc = single(a ** (1 / 0.773))
    sg = pc * mw / tc * (0.008 / zc ** 0.773 - 0.01102 * (t + 459.67) / tc)
    at_60 = 1 + general(single(519.67 / tc)) * barometer / 1000
    compressibility = general((t + 459.67) / tc)
    if kind == 1 and sg < 1:
        c = (1.407 - sg) ** 7.9 / 14.5 + 0.003
        eased = 20 + ((t - 20) / 60) ** 2 * 60 if 20 < t < 80 else t
        at_60 = 1 + c * 1.11 ** (26.667 / 20.0) * barometer / 1000
        compressibility = c * 1.11 ** ((eased - 20) / 20)
    if kind == 1 and viscosity > 1.2:
        viscosity *= 10 ** (p / 1000 * (0.0239 + 0.01638 * viscosity ** 0.278))
    offset = max(vapor_pressure(boiling, tc, pc, 60) - barometer, 0)
    sg = sg * (1 + compressibility * (p - offset) / 1000) / at_60
    return [vapor, sg, viscosity]


LIQUIDS = [
    "Carbon Tetrachloride,1,153.8,1.602,541.7,60,1.04,160,0.512,658.5,170.1,0.204,0.301,0,197,12,83.4,",
    "Caustic Soda 20%,2,20.3,1.221,622.1,60,5.59,140,1.53,1367,222,0.86,0.88,0,480,7,960,",
    "Ethylene Glycol,1,62.068,1.118,834.5,60,25.6,200,2.37,1524,386.9,0.56,0.717,198,443,12,350,",
    "Mercury,2,200.6,13.57,2663.3,68,1.55,212,1.24,23320,673.9,0.0334,0.0327,0,4130,7,127,",
    "n-Decane,1,142.3,0.7345,652.2,60,0.979,200,0.386,305,345.4,0.515,0.645,115,166,13,119,",
    "Propane,1,44.096,0.5072,206.1,-40,0.192,100,0.0847,616.6,-43.8,0.63,0.7,0,54.6,15,183,",
    "Toluene,1,92.138,0.8718,605.5,60,0.621,200,0.284,598.5,231.1,0.399,0.51,39,220,13,155,",
    "Transformer Oil,1,290,0.88,975,104,8.2,212,2,205,580,0.44,0.56,300,240,10,90,",
    "Water,3,18.015,1,705.1,60,1.12,200,0.303,3200,212,1,1.03,0,318,5.9,970,",
]


def property_cases():
    for row in LIQUIDS:
        water_row = row.split(",")[1].strip() == "3"
        for t in (20, 36.9, 37, 60, 80, 137, 212, 300) + ((180, 336, 400, 437, 500, 600, 636.9, 705.9) if water_row else (-20,)):
            for p, barometer in ((14.7, 14.7), (800, 14.7), (2500, 12.2)):
                yield row, t, p, barometer


def main():
    with open(TABLES / "liquid_lines.txt", "w", newline="\n") as out:
        print("# Made by liquid_oracle.py, an independent program: see there.", file=out)
        print("#", *INPUTS, *RESULTS, file=out)
        for case in line_cases():
            print(*(case[name] for name in INPUTS), *line(case), file=out)
    with open(TABLES / "liquid_properties.txt", "w", newline="\n") as out:
        print("# Made by liquid_oracle.py, an independent program: see there.", file=out)
        print("# row; temperature; pressure; barometer; vapor pressure; gravity; viscosity", file=out)
        for row, t, p, barometer in property_cases():
            print(row, t, p, barometer, *liquid(row, t, p, barometer), sep=";", file=out)


if __name__ == "__main__":
    main()
