#!/usr/bin/env python3
"""Independent figures for gases, their mixtures and the gas line.

Works the rules out anew, without a look at the C++ code, and writes the tables of tests/reference that the tests compare with:

    python3 tools/reference/gas_oracle.py

gas_properties.txt  a row of the gas table, temperature, pressure; what the correlations make of it
gas_mixtures.txt    rows and percentages, temperature, pressure (gauge pressure for the latent heat); the
                    pseudo properties of the line's rule, then of the gas data rule
gas_lines.txt       one line a case: inputs, then results in internal units, flow status hidden

Run it again only when a rule changes, and look at the difference. Units: lb/h, in, ft, cp, psia, degF, degR
for critical temperatures, Btu/lb.
"""

import math
import random
import struct
from pathlib import Path

from liquid_oracle import LENGTH_RATIO, TURBULENCE, colebrook, vapor_pressure

TABLES = Path(__file__).resolve().parents[2] / "tests" / "reference"


def single(value):
    return struct.unpack("f", struct.pack("f", value))[0]


def compressibility(tc, pc, t, p):
    """Factor and whether Newton's iteration ended."""
    absolute = t + 459.67
    a = 4.93396 * (tc / absolute) ** 1.5
    b = 0.0866403 * tc / absolute * p / pc
    z, count = 1.0, 0
    while True:
        f = z ** 3 - z ** 2 + b * (a - b - 1) * z - a * b ** 2
        g = 3 * z ** 2 - 2 * z + b * (a - b - 1)
        z -= f / g
        if abs(f / g) < 1e-06:
            return z, True
        count += 1
        if count > 50:
            return z, False


def density(p, t, mw, z):
    return p / (t + 459.67) * mw / 10.7316 / z


def kelvin(t):
    return (t - 32) / 1.8 + 273.15


class Gas:
    def __init__(self, row, t, p, zero=460.0):
        fields = row.split(",")
        kind, self.vc, self.boiling, self.mw, tc, t1, u1, t2, u2, self.pc, c1, c2, self.heat = map(float, fields[1:14])
        self.tc = tc + zero
        self.zc = single(self.pc * self.vc * self.mw / 10.7316 / self.tc)
        self.tr = (t + 459.67) / self.tc
        if 0.99 < self.tr < 1.01:
            self.tr = 1.01
        self.pr = p / self.pc
        n = math.log(u1 / u2) / math.log(kelvin(t2) / kelvin(t1))
        self.viscosity = u1 / kelvin(t1) ** n * kelvin(t) ** n
        if kind == 1 and self.pr > 0.9:
            log = math.log(self.pr)
            self.viscosity *= min(abs((1 - 0.17 * log + 0.11 * log ** 2 + 0.016 * log ** 3) / math.log(self.tr)), 5)
        self.cp = c1 - (t - 60) * (c1 - c2) / 340
        self.k = self.cp * self.mw / (self.cp * self.mw - 1.986)


def watson(known_t, known, tc, t):
    ratio = (1 - (t + 460) / tc) / (1 - (known_t + 460) / tc)
    return ratio ** 0.378 * known if ratio > 0 else 0.0


def properties(row, t, p):
    gas = Gas(row, t, p)
    z, converged = compressibility(gas.tc, gas.pc, t, p)
    return [gas.zc, gas.tr, gas.viscosity, gas.cp, gas.k, vapor_pressure(gas.boiling, gas.tc, gas.pc, t), z,
            density(p, t, gas.mw, z), watson(gas.boiling, gas.heat, gas.tc, t), int(converged)]


def round_four(value):
    return float(f"{value:.4g}") if value < 1000 else float(round(value))


def lee_kesler_heat(boiling, heat, tc, pc, gauge):
    tb, tc, pc, pt = (boiling + 459.67) / 1.8, tc / 1.8, pc / 14.7, gauge / 12.25 + 1

    def f0(x):
        return 5.92174 - 6.09648 / x - 1.28862 * math.log(x) + 0.169347 * x ** 6

    def f1(x):
        return 15.2518 - 15.6875 / x - 13.4721 * math.log(x) + 0.43577 * x ** 6

    w = (-math.log(pc) - f0(tb / tc)) / f1(tb / tc)

    def pressure(x):
        return pc * math.exp(w * f1(x / tc) + f0(x / tc))

    t2 = math.sqrt(pt / (pc - 1)) * (tc - tb) + tb
    t3 = t2 - (t2 - tb) / (pressure(t2) - pressure(tb)) * (pressure(t2) - pt)
    q = (1 - t3 / tc) / (1 - tb / tc)
    return math.floor((q ** 0.378 * heat if q > 0 else 0.1) + 0.5)


def mixture(parts, t, p, gauge, for_line):
    gases = [(percent / 100, Gas(row, t, p, 460.0 if for_line else 459.67)) for row, percent in parts]

    def total(value):
        return sum(x * value(gas) for x, gas in gases)

    mw = total(lambda gas: gas.mw)
    if for_line:
        mw = round_four(mw)
    tc = total(lambda gas: gas.tc)
    heat = total(lambda gas: gas.cp * gas.mw)
    pc = total(lambda gas: gas.zc) * 10.7316 * tc / total(lambda gas: gas.vc * gas.mw)
    viscosity = total(lambda gas: gas.viscosity * math.sqrt(gas.mw)) / math.sqrt(mw)
    boiling, latent = total(lambda gas: gas.boiling), total(lambda gas: gas.heat)
    z, _ = compressibility(tc, pc, t, p)
    results = [mw, viscosity, tc, heat / (heat - 1.986), pc, latent, z, density(p, t, mw, z)]
    if not for_line:
        results += [boiling, lee_kesler_heat(boiling, latent, tc, pc, gauge)]
    return results


ROWS = {
    row.split(",")[0]: row
    for row in [
        "Methane,1,0.09848,-258.7,16.04,-116.7,60,0.01077,300,0.00784,667.1,0.5266,0.672,220,0,",
        "Ethane,1,0.07769,-127.4,30.07,89.9,60,0.008954,300,0.006281,706.7,0.4079,0.597,210,0,",
        "n-Butane,1,0.07026,31.1,58.122,305.6,60,0.007135,300,0.0049,550.6,0.3949,0.59,166,0,",
        "Carbon Dioxide,2,0.03426,-109.2,44.01,87.8,60,0.01446,300,0.01015,1070,0.1992,0.239,246.5,0,",
        "Air,2,0.04674,-317.8,28.96,-221.1,60,0.0179,300,0.01347,549.1,0.24,0.245,88.2,0,",
        "Hydrogen,2,0.5124,-423,2.0159,-400,60,0.008704,300,0.006692,188,3.408,3.46,192.9,0,",
        "Benzene,1,0.05257,176.1,78.112,552,60,0.007327,300,0.005057,711.7,0.2401,0.41,169,0,",
    ]
}


def property_cases():
    for row in ROWS.values():
        for t in (-40, 60, 90.2, 200, 300, 550):
            for p in (3, 14.7, 250, 640, 1500, 6000):
                yield row, t, p


MIXTURES = [
    [("Methane", 90), ("Ethane", 7.5), ("Carbon Dioxide", 2.5)],
    [("n-Butane", 50), ("Methane", 50)],
    [("Hydrogen", 99.9), ("Benzene", 0.1)],
    [("Air", 100)],
    [(name, 100 / 7) for name in ROWS],
]

INPUTS = ["flow", "id", "length", "viscosity", "mw", "ratio", "pc", "tc", "temperature", "source", "start", "end",
          "equipment", "material", "fouling", "entrance", "exit", "gate", "globe", "check", "ell90", "ell45", "thru",
          "branch", "direction", "flow_shown"]
RESULTS = ["reynolds", "friction", "fittings", "stop", "told", "loss100", "equivalent", "final", "velocity", "sonic",
           "density"]
ORDINARY = dict(flow=5000, id=4.026, length=300, viscosity=0.0111, mw=16.04, ratio=1.3, pc=667.1, tc=343.3,
                temperature=80, source=114.7, start=0, end=0, equipment=0, material=1, fouling=0, entrance=0, exit=0,
                gate=0, globe=0, check=0, ell90=0, ell45=0, thru=0, branch=0, direction=1, flow_shown=5000)


def round_three(value):
    return float(f"{value:.3g}") if value < 100 else float(math.floor(value + 0.5))


def line(c):
    d, flow = c["id"], c["flow"]
    gas_reynolds = 6.31533 * flow / d / c["viscosity"]
    f = 64 / gas_reynolds if gas_reynolds <= 2000 else colebrook(gas_reynolds, d, c["material"])
    f += f * c["fouling"] / 100
    turbulent = next(factor for below, factor, _ in TURBULENCE if d < below)
    feet = d / 12
    entrance, leaving = 1.5 * c["entrance"] / f * feet, 2.7 * c["exit"] / f * feet
    fittings = c["length"] + entrance + leaving
    fittings += sum(c[name] * turbulent * ratio / f * feet for name, ratio in LENGTH_RATIO.items())

    def at(p):
        z, _ = compressibility(c["tc"], c["pc"], c["temperature"], p)
        return density(p, c["temperature"], c["mw"], z)

    def speeds(p, rho):
        return flow / 19.65 / rho / d ** 2, math.sqrt(4639 * c["ratio"] * p / rho)

    p = c["source"]
    rho = at(p)
    velocity, sonic = speeds(p, rho)
    loss = min(0.000336 * f * flow ** 2 / d ** 5 / rho, 50000.0)
    length, stop, told = 0, "none", 0
    count = math.floor(c["length"]) if c["length"] > 20 else 20
    if velocity > sonic:
        stop, told, velocity = "inlet", round_three(c["flow_shown"] * sonic / velocity), sonic
    else:
        for step in range(1, count + 1):
            loss = min(0.000336 * f * flow ** 2 / d ** 5 / rho, 50000.0)
            rise = rho * (c["start"] - c["end"]) / 144 / loss * 100
            length = fittings + c["equipment"] / loss * 100 + leaving + entrance
            length = -length - rise if c["direction"] == 2 else length + rise
            p -= loss * length / 100 / count
            told = math.floor(step / count * 100 + 0.5)
            if p <= 0:
                p, stop = 0, "zero"
                break
            velocity, sonic = speeds(p, rho)
            if velocity > sonic:
                velocity, stop = sonic, "sonic"
                break
            rho = at(p)
        else:
            told = 0
    return [6.31 * flow / d / c["viscosity"], f, fittings, stop, told, loss, length, p, velocity, sonic, rho]


def line_cases():
    def case(**changes):
        return {**ORDINARY, **changes}

    yield case()
    for length in (0.5, 19.9, 20, 20.5, 21, 21.99, 1000, 10000):
        yield case(length=length)
    # Zones, by the gas constant: laminar, critical, turbulent, and just above the border by it alone.
    for flow in (5, 14.15, 14.16, 20, 28, 30, 100):
        yield case(flow=flow, viscosity=0.0111, ell90=3, gate=1)
    for material in range(1, 8):
        yield case(material=material, fouling=10 * (material - 1))
    for name in list(LENGTH_RATIO) + ["entrance", "exit"]:
        yield case(**{name: 2 if name in LENGTH_RATIO else 1})
    for direction in (1, 2):
        for start, end in ((0, 200), (200, 0), (-5, 3000)):
            yield case(direction=direction, start=start, end=end, equipment=1.5, entrance=1, exit=1, ell45=4)
    # Chokes at the inlet, in the line, and runs dry by a loss that is equipment's.
    for flow in (9e4, 1.2e5, 1.5e5, 2e5, 5e5, 1e6):
        yield case(flow=flow, flow_shown=flow / 7936.641)
    for flow in (2e4, 3e4, 4e4, 6e4):
        yield case(flow=flow)
        yield case(flow=flow, direction=2)
    for equipment in (60, 114, 114.7, 200, 5000):
        yield case(flow=100, equipment=equipment)
    # Dense gas, light gas, vacuum, and a line at the cap of the loss.
    yield case(source=3000, flow=2e5, mw=44.01, pc=1070, tc=547.8, ratio=1.28, viscosity=0.04, temperature=250)
    yield case(source=30, flow=300, mw=2.0159, pc=188, tc=60, ratio=1.41, viscosity=0.0088, temperature=-100)
    yield case(source=2, flow=50, mw=28.96, pc=549.1, tc=238.9, ratio=1.4, viscosity=0.018)
    yield case(source=1000, flow=2e4, id=0.2, length=25, direction=2, ratio=1e6)
    source = random.Random(4639)
    for _ in range(120):
        inside = math.exp(source.uniform(math.log(0.5), math.log(40)))
        pressure = math.exp(source.uniform(math.log(5), math.log(2000)))
        mw = source.uniform(2, 80)
        temperature = source.uniform(0, 600)
        speed = math.exp(source.uniform(math.log(5), math.log(600)))
        yield case(id=inside, source=pressure, mw=mw, temperature=temperature,
                   flow=speed * 19.65 * density(pressure, temperature, mw, 1) * inside ** 2,
                   length=math.exp(source.uniform(math.log(5), math.log(3000))),
                   viscosity=source.uniform(0.007, 0.03), ratio=source.uniform(1.05, 1.67),
                   pc=source.uniform(300, 1500), tc=source.uniform(60, 440), start=source.choice((0, 0, 120)),
                   end=source.choice((0, 0, 75)), equipment=source.choice((0, 0, 0.05)) * pressure,
                   material=source.randint(1, 7), fouling=source.choice((0, 0, 15)),
                   entrance=source.randint(0, 1), exit=source.randint(0, 1), direction=source.randint(1, 2),
                   **{name: source.choice((0, 0, 1, 4)) for name in LENGTH_RATIO})


def write(name, heading, rows, separator):
    with open(TABLES / name, "w", newline="\n") as out:
        print("# Made by gas_oracle.py, an independent program: see there.", file=out)
        print("#", heading, file=out)
        for row in rows:
            print(*row, sep=separator, file=out)


def main():
    write("gas_properties.txt", "row; temperature; pressure; critical factor; reduced temperature; viscosity; specific "
          "heat; ratio; vapor pressure; factor; density; latent heat; converged",
          ([*case, *properties(*case)] for case in property_cases()), ";")
    write("gas_mixtures.txt", "for the line (1) or gas data (0); temperature; pressure; gauge; weight; viscosity; "
          "critical temperature; ratio; critical pressure; latent heat; factor; density; boiling point; latent heat at "
          "pressure; percentages and rows",
          ([int(for_line), t, p, gauge, *results, *([] if not for_line else [0, 0]),
            *(x for name, percent in parts for x in (percent, ROWS[name]))]
           for parts in MIXTURES for t, p, gauge in ((60, 14.7, 0), (150, 300, 285.3), (400, 1200, 100))
           for for_line in (True, False)
           for results in [mixture([(ROWS[name], percent) for name, percent in parts], t, p, gauge, for_line)]), ";")
    write("gas_lines.txt", " ".join(INPUTS + RESULTS),
          ([*(case[name] for name in INPUTS), *line(case)] for case in line_cases()), " ")


if __name__ == "__main__":
    main()
