// The arithmetic of one gas line on local doubles, with no record, no words and no messages: what the suite's
// own march is measured against.
#pragma once

#include <cmath>

#include "core/CalcRecord.h"
#include "core/Suite.h"
#include "core/Words.h"

namespace quillmetra {

struct PlainGas {
    double Flow = 5000, PipeId = 4.026, Length = 10000, Viscosity = 0.0111, Source = 614.7;
    double Start = 0, End = 12, EquipLoss = 2, EntranceK = 1.5, ExitK = 2.7;
    double MolecularWeight = 16.04, Ratio = 1.3, CritPressure = 667.1, CritTemperature = 343.3,
           Temperature = 80;
};

// lb/ft3.
inline double PlainGasDensity(const PlainGas& gas, double pressure) {
    const double absolute = gas.Temperature + 459.67;
    const double a = 4.93396 * std::pow(gas.CritTemperature / absolute, 1.5);
    const double b = 0.0866403 * gas.CritTemperature / absolute * pressure / gas.CritPressure;
    double z = 1;
    for (int round = 0; round <= 50; ++round) {
        const double f = z * z * z - z * z + b * (a - b - 1) * z - a * b * b;
        const double step = f / (3 * z * z - 2 * z + b * (a - b - 1));
        z -= step;
        if (std::fabs(step) < 1e-06) break;
    }
    return pressure / absolute * gas.MolecularWeight / 10.7316 / z;
}

// psia at the far end, with the friction factor as it is found.
inline double PlainGasFinalPressure(const PlainGas& gas, double frictionFactor) {
    const double d = gas.PipeId;
    const double entrance = gas.EntranceK * (1 / frictionFactor * d / 12);
    const double leaving = gas.ExitK * (1 / frictionFactor * d / 12);
    const double fittings = gas.Length + entrance + leaving;
    const int steps = static_cast<int>(gas.Length);
    double pressure = gas.Source;
    double density = PlainGasDensity(gas, pressure);
    for (int step = 1; step <= steps; ++step) {
        const double loss = std::fmin(
            0.000336 * frictionFactor * (gas.Flow * gas.Flow) / (d * d * d * d * d) / density, 50000.0);
        const double length = fittings + gas.EquipLoss / loss * 100 + leaving + entrance +
                              density * (gas.Start - gas.End) / 144 / loss * 100;
        pressure -= loss * length / 100 / steps;
        if (pressure <= 0) return 0;
        const double velocity = gas.Flow / 19.65 / density / (d * d);
        if (velocity > std::sqrt(4639 * gas.Ratio * pressure / density)) return pressure;
        density = PlainGasDensity(gas, pressure);
    }
    return pressure;
}

// Puts the same line into the record, its messages hidden.
inline void TakePlainGas(const PlainGas& gas) {
    Calc = CalcRecord();
    Suite.HideFlowStatus = words::Yes;
    Calc.CurrentProgram = 2;
    Calc.MassFlow = gas.Flow;
    Calc.PipeId[1] = gas.PipeId;
    Calc.PipeLength[1] = gas.Length;
    Calc.Viscosity = gas.Viscosity;
    Calc.SourcePressure[1] = Calc.FlowPressure = gas.Source;
    Calc.Elevation = {0, gas.Start, gas.End};
    Calc.EquipLoss[1] = gas.EquipLoss;
    Calc.EntranceK = gas.EntranceK;
    Calc.ExitK = gas.ExitK;
    Calc.MolecularWeight = gas.MolecularWeight;
    Calc.RatioSpecificHeats = gas.Ratio;
    Calc.CritPressure = gas.CritPressure;
    Calc.CritTemperature = gas.CritTemperature;
    Calc.FlowTemperature = gas.Temperature;
}

}  // namespace quillmetra
