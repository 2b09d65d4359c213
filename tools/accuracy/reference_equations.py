#!/usr/bin/env python3
"""Check figures of nine properties from the published reference equations of state of six fluids.

    reference_equations.py    writes figures.txt, which accuracy.py compares the suite with

Each equation gives the residual Helmholtz energy as a sum of terms in delta = rho / rho_c and tau = T_c / T; pressure,
saturation and speed of sound follow from its derivatives. Propane: Lemmon, McLinden and Wagner, J. Chem. Eng. Data 54
(2009) 3141. n-Butane: Buecker and Wagner, J. Phys. Chem. Ref. Data 35 (2006) 929. n-Hexane: Span and Wagner, Int. J.
Thermophys. 24 (2003) 41. Toluene: Lemmon and Span, J. Chem. Eng. Data 51 (2006) 785. Carbon dioxide: Span and Wagner,
J. Phys. Chem. Ref. Data 25 (1996) 1509. Water: Wagner and Pruss (IAPWS-95), J. Phys. Chem. Ref. Data 31 (2002) 387.

One line a figure: table, row, property, degF, psia, true figure, the line of the tables that it belongs to.
"""

import cmath
import math
from pathlib import Path

from equations import EQUATIONS

OUTPUT = Path(__file__).parent / "figures.txt"

PASCAL = 6894.757  # of a psi
POUND = 16.018463  # kg/m3 of a lb/ft3
WATER = 999.016  # kg/m3 of gravity 1
BTU = 2326  # J/kg of a Btu/lb
TINY = 1e-20  # the step of a derivative by a complex number, which loses no figures


def kelvin(degf):
    return (degf + 459.67) / 1.8


def degf(kelvins):
    return kelvins * 1.8 - 459.67


class Fluid:
    def __init__(self, name, data):
        self.name = name
        self.__dict__.update(data)

    def residual(self, tau, delta):
        total = 0
        for d, t, e, n in self.power:
            total += n * delta**d * tau**t * (cmath.exp(-(delta**e)) if e else 1)
        for d, t, n, eta, eps, beta, gamma in self.gauss:
            total += n * delta**d * tau**t * cmath.exp(-eta * (delta - eps) ** 2 - beta * (tau - gamma) ** 2)
        for a, b, c, d, power, outer, beta, n in self.critical_terms:
            square = (delta - 1) ** 2
            theta = 1 - tau + (a * square ** (1 / (2 * beta)) if square else 0)
            distance = theta**2 + b * square**power
            total += n * distance**outer * delta * cmath.exp(-c * square - d * (tau - 1) ** 2)
        return total

    def by_delta(self, tau, delta):
        return self.residual(tau, complex(delta, TINY)).imag / TINY

    def by_tau(self, tau, delta):
        return self.residual(complex(tau, TINY), delta).imag / TINY

    def pressure(self, t, rho):
        delta = rho / self.rho_c
        return rho * self.gas_constant * t * (1 + delta * self.by_delta(self.t_c / t, delta))

    def slope(self, t, rho):
        step = 1e-6 * rho
        return (self.pressure(t, rho + step) - self.pressure(t, rho - step)) / (2 * step)

    def density(self, t, p, guess):
        rho = guess
        for _ in range(200):
            step = (self.pressure(t, rho) - p) / self.slope(t, rho)
            rho -= math.copysign(min(abs(step), 0.3 * rho), step)
            if abs(step) < 1e-10 * rho:
                break
        return rho

    def liquid(self, t, p):
        return self.density(t, p, 3 * self.rho_c)

    def gas(self, t, p):
        return self.density(t, p, p / (self.gas_constant * t))

    def fugacity(self, t, rho):
        tau, delta = self.t_c / t, rho / self.rho_c
        z = 1 + delta * self.by_delta(tau, delta)
        return complex(self.residual(tau, delta)).real + z - 1 - math.log(z)

    def saturation(self, t):
        """Pressure, density of the liquid and of the gas, from the vapor pressure of Lee and Kesler on."""
        r = t / self.t_c
        p = self.p_c * math.exp(
            5.92714 - 6.09648 / r - 1.28862 * math.log(r) + 0.169347 * r**6
            + self.acentric * (15.2518 - 15.6875 / r - 13.4721 * math.log(r) + 0.43577 * r**6)
        )
        for _ in range(100):
            liquid, gas = self.liquid(t, p), self.gas(t, p)
            ratio = math.exp(self.fugacity(t, liquid) - self.fugacity(t, gas))
            p *= ratio
            if abs(ratio - 1) < 1e-9:
                break
        return p, liquid, gas

    def boiling(self, p):
        low, high = 0.4 * self.t_c, 0.9995 * self.t_c
        for _ in range(40):
            middle = (low + high) / 2
            low, high = (low, middle) if self.saturation(middle)[0] > p else (middle, high)
        return low

    def ideal_cp(self, t):
        cp = self.cp_base
        for n, theta in self.cp_einstein:
            u = theta * self.t_c / t
            cp += n * u * u * math.exp(u) / (math.exp(u) - 1) ** 2
        for n, theta, wave in self.cp_aly_lee:
            cp += n * (theta / t / wave(theta / t)) ** 2
        return cp

    def sound(self, t, rho):
        tau, delta, step = self.t_c / t, rho / self.rho_c, 1e-5
        first = self.by_delta(tau, delta)
        second = (self.by_delta(tau, delta * (1 + step)) - self.by_delta(tau, delta * (1 - step))) / (2 * step * delta)
        mixed = (self.by_delta(tau * (1 + step), delta) - self.by_delta(tau * (1 - step), delta)) / (2 * step * tau)
        heat = (self.by_tau(tau * (1 + step), delta) - self.by_tau(tau * (1 - step), delta)) / (2 * step * tau)
        cv = self.ideal_cp(t) - 1 - tau * tau * heat
        square = 1 + 2 * delta * first + delta**2 * second + (1 + delta * first - delta * tau * mixed) ** 2 / cv
        return math.sqrt(square * self.gas_constant * t / self.molar_mass)

    def latent(self, t):
        slope = (self.saturation(t + 0.05)[0] - self.saturation(t - 0.05)[0]) / 0.1
        _, liquid, gas = self.saturation(t)
        return t * slope * (1 / gas - 1 / liquid) / self.molar_mass / BTU

    def gravity(self, rho):
        return rho * self.molar_mass / WATER

    def pounds(self, rho):
        return rho * self.molar_mass / POUND

    def modulus(self, t, rho):
        return rho * self.molar_mass * self.sound(t, rho) ** 2 / PASCAL


FLUIDS = {name: Fluid(name, data) for name, data in EQUATIONS.items()}
ORGANIC = [FLUIDS[name] for name in ("Propane", "n-Butane", "n-Hexane", "Toluene")]
GASES = [FLUIDS[name] for name in ("Propane", "n-Butane", "n-Hexane", "Carbon Dioxide")]


def liquids():
    for fluid in ORGANIC:
        for r in (0.6, 0.7, 0.75, 0.8, 0.85, 0.9, 0.95):
            p, rho, _ = fluid.saturation(r * fluid.t_c)
            t = degf(r * fluid.t_c)
            yield fluid, "gravity", t, p * 1.001, fluid.gravity(rho), f"Gravity, saturated liquid, Tr {r}"
            yield fluid, "vapor", t, p * 1.001, p / PASCAL, "Vapor pressure, Tr 0.6 to 0.95"
        for t in (60, 100, 150, 200):
            r = kelvin(t) / fluid.t_c
            if r > 0.85:
                continue
            where = "Tr 0.65 to 0.85" if r > 0.65 else "Tr below 0.65"
            for p in (1000, 3000, 10000):
                rho = fluid.liquid(kelvin(t), p * PASCAL)
                yield fluid, "gravity", t, p * PASCAL, fluid.gravity(rho), f"Gravity, {p} psia, {where}"
        for t in (32, 50, 60, 68, 78, 100, 150):
            r = kelvin(t) / fluid.t_c
            if r < 0.85:
                p = max(fluid.saturation(kelvin(t))[0], 14.7 * PASCAL) * 1.01
                rho = fluid.liquid(kelvin(t), p)
                where = "58 to 78 degF" if 58 <= t <= 78 else f"{t} degF"
                yield fluid, "modulus", t, p, fluid.modulus(kelvin(t), rho), f"Bulk modulus, organic, {where}"
    carbon = FLUIDS["Carbon Dioxide"]
    for t in (-60, -40, -20, 0, 20, 40):
        p, rho, _ = carbon.saturation(kelvin(t))
        yield carbon, "gravity", t, p * 1.05, carbon.gravity(rho), "Gravity, carbon dioxide, -60 to 40 degF"
        yield carbon, "vapor", t, p * 1.05, p / PASCAL, "Vapor pressure, carbon dioxide, -60 to 40 degF"
    water = FLUIDS["Water"]
    for t in (33, 60, 100, 150, 212, 300, 400, 500, 600):
        p = max(water.saturation(kelvin(t))[0] * 1.01, 14.7 * PASCAL)
        rho = water.liquid(kelvin(t), p)
        where = "33 to 212 degF" if t <= 212 else "300 to 600 degF"
        yield water, "gravity", t, p, water.gravity(rho), "Gravity, water, 33 to 600 degF"
        yield water, "modulus", t, p, water.modulus(kelvin(t), rho), f"Bulk modulus, water, {where}"


def gases():
    for fluid in GASES:
        for r in (0.7, 0.8, 0.9, 0.95):
            saturated = fluid.saturation(r * fluid.t_c)[0]
            for part in (0.3, 0.6, 0.9, 0.99):
                p = part * saturated
                rho = fluid.gas(r * fluid.t_c, p)
                where = "up to 0.5 Tr Pc" if p <= 0.5 * r * fluid.p_c else "nearer to the liquid"
                yield fluid, "density", degf(r * fluid.t_c), p, fluid.pounds(rho), f"Gas density, Tr below 1, {where}"
                if p > 20 * PASCAL:
                    weight = "carbon dioxide" if fluid.name == "Carbon Dioxide" else "C3 to C6"
                    yield (fluid, "sonic", degf(r * fluid.t_c), p, fluid.sound(r * fluid.t_c, rho) / 0.3048,
                           f"Sonic velocity, {weight}, {part * 100:.0f} % of saturation")
            if r < 0.95:
                yield (fluid, "latent", degf(r * fluid.t_c), 0.5 * saturated, fluid.latent(r * fluid.t_c),
                       "Latent heat, Tr 0.7 to 0.9")
        for r in (1.02, 1.1, 1.2, 1.3, 1.5):
            for pr in (0.3, 0.7, 1.2, 1.5, 2, 3):
                rho = fluid.gas(r * fluid.t_c, pr * fluid.p_c)
                where = "1.3 to 1.5, Pr to 3" if r > 1.2 else f"1 to 1.2, Pr {'to 0.8' if pr < 0.8 else '0.8 to 3'}"
                yield (fluid, "density", degf(r * fluid.t_c), pr * fluid.p_c, fluid.pounds(rho),
                       f"Gas density, Tr {where}")


BANDS = ((15, "0.5 to 15"), (1000, "15 to 1000"), (2000, "1000 to 2000"), (3000, "2000 to 3000"),
         (3200, "3000 to 3199"), (3250, "3208 to 3250"), (4500, "3250 to 4500"), (8000, "4500 to 8000"),
         (15000, "8000 to 15,000"))


def steam():
    water = FLUIDS["Water"]
    for p in (1, 10, 40, 200, 600, 900, 1300, 1800, 2300, 2800, 3100, 3230, 3500, 4000, 5500, 7000, 12000):
        band = next(name for top, name in BANDS if p <= top)
        boiling = degf(water.boiling(p * PASCAL)) if p < 3150 else 705.2
        if p < 3000:
            rho = water.saturation(kelvin(boiling))[2]
            yield water, "saturated", boiling, p * PASCAL, water.pounds(rho), f"Steam density, {band} psia, saturated"
            yield water, "line", boiling, p * PASCAL, water.pounds(rho), f"Steam line density, {band} psia, saturated"
        for t in (290, 370, 450, 550, 625, 675, 715, 725, 735, 760, 775, 820, 880, 950, 1050, 1250):
            if t > boiling + 2:
                rho = water.gas(kelvin(t), p * PASCAL)
                yield water, "steam", t, p * PASCAL, water.pounds(rho), f"Steam density, {band} psia"
                sound = water.sound(kelvin(t), rho)
                exponent = sound**2 * rho * water.molar_mass / (p * PASCAL)
                yield water, "exponent", t, p * PASCAL, exponent, f"Steam exponent, {band} psia"


TABLES = {liquids: "Liquid.txt", gases: "Gas.txt", steam: "Steam"}


def main():
    lines = ["# Made by reference_equations.py: see there.",
             "# table; row; property; temperature; pressure; true figure; line of the tables"]
    for figures, table in TABLES.items():
        for fluid, what, t, p, true, line in figures():
            lines.append(f"{table};{fluid.name};{what};{t:.6g};{p / PASCAL:.6g};{true:.6g};{line}")
    OUTPUT.write_text("\n".join(lines) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
