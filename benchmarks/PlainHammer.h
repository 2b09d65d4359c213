// The arithmetic of a water hammer on local doubles: what the suite's own routines are measured against.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>

#include "benchmarks/HammerScene.h"
#include "units/Rounding.h"

namespace quillmetra {

struct PlainHammer {
    double MassFlow = Calc.LiquidMassFlow, Gravity = Calc.FlowingSG, BulkModulus = Calc.BulkModulus;
    double PipeModulus = Calc.PipeModulus, Diameter = Calc.PipeDiameter, Wall = Calc.WallThickness;
    double Length = Calc.LineLength, Entered = Calc.EnteredPressure, Pressure = Calc.FlowPressure;
    double MostAllowed = Calc.MaxAllowPressure, Selected = Calc.SelectedTime;
    double PressureFactor = Calc.UnitFactor[3], VelocityFactor = Calc.UnitFactor[20],
           ForceFactor = Calc.UnitFactor[0];
};

struct PlainHammerResults {
    double CriticalTime, WaveVelocity, WavePressure, Thrust, MinimumTime, SelectedPressure, SelectedThrust;
    double Rise;  // psi, not rounded
};

inline PlainHammerResults PlainHammerCase(const PlainHammer& line) {
    const double area = 0.7854 * (line.Diameter * line.Diameter);
    const double wave =
        8.618176 /
        std::sqrt(line.Gravity * (1 / line.BulkModulus + line.Diameter / line.Wall / line.PipeModulus));
    const double velocity = line.MassFlow / 1225.492 / line.Gravity / (line.Diameter * line.Diameter);
    const double rise = wave * velocity * line.Gravity / 74.313;
    const double critical = RoundedFour(2 * line.Length / wave);
    const double selectedRise = rise / line.Selected * critical;
    return {.CriticalTime = critical,
            .WaveVelocity = RoundedFour(wave / line.VelocityFactor),
            .WavePressure = RoundedFour((line.Entered + rise) / line.PressureFactor),
            .Thrust = RoundedFour(rise * area / line.ForceFactor),
            .MinimumTime = RoundedFour(rise / (line.MostAllowed - line.Pressure) * critical),
            .SelectedPressure = RoundedFour((line.Entered + selectedRise) / line.PressureFactor),
            .SelectedThrust = RoundedFour(selectedRise * area / line.ForceFactor),
            .Rise = rise};
}

struct PlainCurve {
    std::array<double, 81> Times, Pressures;
};

inline PlainCurve PlainHammerCurve(const PlainHammer& line, const PlainHammerResults& results) {
    const auto [least, most] = std::minmax({results.CriticalTime, results.MinimumTime, line.Selected});
    const double ratio = std::pow(most * 1.5 / (least * 0.8), 1.0 / 80);
    PlainCurve curve;
    double time = least * 0.8;
    for (std::size_t i = 0; i < curve.Times.size(); ++i, time *= ratio) {
        curve.Times[i] = time;
        curve.Pressures[i] =
            (line.Entered + results.Rise / time * results.CriticalTime) / line.PressureFactor;
    }
    return curve;
}

}  // namespace quillmetra
