// See ChokedFlow.h.
#include "lineloss/ChokedFlow.h"

#include <cmath>
#include <limits>
#include <string>

#include "fluids/GasCorrelations.h"
#include "lineloss/Friction.h"
#include "lineloss/GasLineLoss.h"
#include "platform/NumberText.h"
#include "units/Rounding.h"

namespace quillmetra {

namespace {

constexpr double FirstSigns = 0.3;  // of sonic velocity
constexpr double First = 1000;  // before any error: the status line may be cut, and relief lines hang on it

struct GasState {
    double Density, Sonic;  // lb/ft3, ft/s
};

GasState StateAt(double pressure, const ChokingLine& line) {
    const double z =
        SolveRedlichKwong(line.CritTemperature, line.CritPressure, line.Temperature, pressure).Value;
    const double density = GasDensityOf(pressure, line.Temperature, line.MolecularWeight, z);
    return {density, SonicVelocityOf(line.RatioSpecificHeats, pressure, density)};
}

bool HasStopped(const CalcRecord& record) {
    return record.Velocity == record.SonicVelocity || record.FlowPressure == 0;
}

double SourcePressureOf(const CalcRecord& record) {
    if (record.PressureDirection != direction::Backwards) return record.SourcePressure[TheLine];
    return HasStopped(record) ? std::numeric_limits<double>::quiet_NaN() : record.FlowPressure;
}

double FrictionLengthOf(const CalcRecord& record) {
    return record.FrictionFactor * record.FittingsEquivLength * 12 / record.PipeId[TheLine];
}

ChokingLine LineOf(const CalcRecord& record) {
    return {SourcePressureOf(record) - record.EquipLoss[TheLine],
            record.FlowTemperature,
            record.MolecularWeight,
            record.RatioSpecificHeats,
            record.CritTemperature,
            record.CritPressure,
            record.PipeId[TheLine],
            FrictionLengthOf(record)};
}

// By the logarithm of f L / D: air in 4 in pipe of 5 to 10,000 ft, marched at its choked flow.
constexpr MeasuredError ShownMachs[] = {{-1.43, 0.74}, {-0.71, 0.69}, {-0.03, 0.63}, {0.88, 0.57},
                                        {1.59, 0.52},  {2.28, 0.48},  {3.89, 0.41},  {6.23, 0.36}};

}  // namespace

double FannoLengthOf(double mach, double k) {
    const double square = mach * mach;
    return (1 - square) / (k * square) +
           (k + 1) / (2 * k) * std::log((k + 1) * square / (2 + (k - 1) * square));
}

double ChokedInletMach(double frictionLength, double k) {
    constexpr int halvings = 60;
    double low = 0, high = 1;
    for (int i = 0; i < halvings; ++i) {
        const double middle = (low + high) / 2;
        (FannoLengthOf(middle, k) > frictionLength ? low : high) = middle;
    }
    return high;
}

double OutletMach(const CalcRecord& record) {
    if (record.PressureDirection != direction::Backwards) return record.Velocity / record.SonicVelocity;
    const GasState outlet = StateAt(record.SourcePressure[TheLine], LineOf(record));
    return LineVelocity(record.MassFlow, outlet.Density, record.PipeId[TheLine]) / outlet.Sonic;
}

double ChokedFlowOf(const ChokingLine& line) {
    if (!(line.Pressure > 0)) return std::numeric_limits<double>::quiet_NaN();
    const GasState source = StateAt(line.Pressure, line);
    const double mach = ChokedInletMach(line.FrictionLength, line.RatioSpecificHeats);
    return source.Sonic * mach / LineVelocity(1, source.Density, line.Diameter);
}

double ChokedFlowOf(const CalcRecord& record) { return ChokedFlowOf(LineOf(record)); }

double ShownMachOfChoking(double frictionLength) { return ErrorAt(ShownMachs, std::log(frictionLength)); }

HintList ChokedFlowHints(const CalcRecord& record) {
    const double most = ChokedFlowOf(record);
    const bool isNear = HasStopped(record) || OutletMach(record) > FirstSigns;
    if (!isNear || !std::isfinite(most)) return {};
    const double entered = record.CaseInput[input::GasFlow][At(record.CaseIndex)];
    const std::string flow =
        TrimmedStr(RoundedFour(entered * most / record.MassFlow)) + " " + record.UnitName[unit::GasFlow];
    const std::string shown =
        TrimmedStr(std::round(100 * ShownMachOfChoking(FrictionLengthOf(record))) / 100);
    const bool isAbove = record.MassFlow > most;
    return {{First, "The line chokes at " + flow + (isAbove ? " and cannot pass this flow" : "") +
                        " (adiabatic, not printed), seen here as " + shown + " of sonic velocity."}};
}

}  // namespace quillmetra
