// See WaterHammer.h.
#include "hammer/WaterHammer.h"

#include <algorithm>
#include <cmath>

#include "core/CalcRecord.h"
#include "platform/Arithmetic.h"
#include "units/Border.h"
#include "units/ProgramConversion.h"
#include "units/Rounding.h"

namespace quillmetra {

namespace {

constexpr double QuarterPi = 0.7854;

double Shown(double value, std::size_t unitRow) { return ShownFigures(value / Calc.UnitFactor[unitRow]); }

}  // namespace

double WaveVelocityOf(double gravity, double bulkModulus, double diameter, double wall, double pipeModulus) {
    return 8.618176 / std::sqrt(gravity * ((1 / bulkModulus) + ((diameter / wall) / pipeModulus)));
}

double FlowVelocityOf(double massFlow, double gravity, double diameter) {
    return ((massFlow / 1225.492) / gravity) / (diameter * diameter);
}

double PressureRiseOf(double waveVelocity, double flowVelocity, double gravity) {
    return (waveVelocity * flowVelocity * gravity) / 74.313;
}

double ThrustOf(double rise, double diameter) { return rise * QuarterPi * (diameter * diameter); }

double CriticalTimeOf(double length, double waveVelocity) { return (2 * length) / waveVelocity; }

double MinimumTimeOf(double rise, double allowableRise, double criticalTime) {
    return (rise / allowableRise) * criticalTime;
}

double RiseAtTime(double rise, double criticalTime, double closingTime) {
    return (rise / closingTime) * criticalTime;
}

void CalcCriticalClosing() {
    Calc.WaveVelocity = WaveVelocityOf(Calc.FlowingSG, Calc.BulkModulus, Calc.PipeDiameter,
                                       Calc.WallThickness, Calc.PipeModulus);
    Calc.Velocity = FlowVelocityOf(Calc.LiquidMassFlow, Calc.FlowingSG, Calc.PipeDiameter);
    Calc.PressureRise = PressureRiseOf(Calc.WaveVelocity, Calc.Velocity, Calc.FlowingSG);
    Calc.WavePressure = Calc.EnteredPressure + Calc.PressureRise;
    SetForceUnit();
    const double thrust = ThrustOf(Calc.PressureRise, Calc.PipeDiameter);
    Calc.CriticalTime = RoundedFour(CriticalTimeOf(Calc.LineLength, Calc.WaveVelocity));
    // The rounded critical time counts, so that whoever works from the printed figures finds the same.
    Calc.MinimumTime = RoundedFour(
        MinimumTimeOf(Calc.PressureRise, Calc.MaxAllowPressure - Calc.FlowPressure, Calc.CriticalTime));
    HammerResults results = Calc.HammerResult;
    results[wave::CriticalTime] = CheckFinite(Calc.CriticalTime);
    results[wave::Velocity] = Shown(Calc.WaveVelocity, unit::Velocity);
    results[wave::Pressure] = Shown(Calc.WavePressure, unit::Pressure);
    results[wave::Force] = Shown(thrust, 0);
    results[wave::MinimumTime] = CheckFinite(Calc.MinimumTime);
    results[wave::SelectedPressure] = results[wave::SelectedForce] = 0;
    Calc.HammerResult = results;
}

void CalcSelectedClosing() {
    Calc.SelectedRise = RiseAtTime(Calc.PressureRise, Calc.CriticalTime, Calc.SelectedTime);
    const double pressure = Shown(Calc.EnteredPressure + Calc.SelectedRise, unit::Pressure);
    const double thrust = Shown(ThrustOf(Calc.SelectedRise, Calc.PipeDiameter), 0);
    Calc.HammerResult[wave::SelectedPressure] = pressure;
    Calc.HammerResult[wave::SelectedForce] = thrust;
}

ClosingCurve ClosingCurveOfRecord() {
    constexpr int steps = 80;
    const double critical = Calc.HammerResult[wave::CriticalTime],
                 minimum = Calc.HammerResult[wave::MinimumTime];
    const double operating = Calc.CaseInput[input::Pressure][column::Operating];
    const double rise = Calc.HammerResult[wave::Pressure] - operating;
    const double selected = HasSelectedClosing() ? Calc.CaseInput[input::SelectedTime][0] : critical;
    const auto [least, most] = std::minmax({critical, minimum, selected});
    const double first = least * 0.8;
    const double ratio = std::pow(most * 1.5 / first, 1.0 / steps);  // closer together where it is steep
    ClosingCurve curve;
    curve.Times.reserve(steps + 1);
    curve.Pressures.reserve(steps + 1);
    double time = first;
    for (int i = 0; i <= steps; ++i, time *= ratio) {
        curve.Times.push_back(time);
        curve.Pressures.push_back(operating + RiseAtTime(rise, critical, time));
    }
    return curve;
}

bool HasSelectedClosing() { return Calc.HammerResult[wave::SelectedPressure] != 0; }

}  // namespace quillmetra
