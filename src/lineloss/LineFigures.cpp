// See LineFigures.h.
#include "lineloss/LineFigures.h"

#include <limits>

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "fluids/GasCorrelations.h"
#include "lineloss/ChokedFlow.h"
#include "lineloss/FlowStatus.h"
#include "lineloss/Friction.h"
#include "lineloss/GasLineLoss.h"
#include "units/Border.h"

namespace quillmetra {

namespace {

constexpr double Unknown = std::numeric_limits<double>::quiet_NaN();
constexpr double GasReynolds = GasReynoldsConstant / ReynoldsConstant;

// A case in the units of the calculations.
struct LineCase {
    double Diameter, Length, MassFlow, Viscosity;
};

struct Flow {
    const char* Regime;
    double Factor, TurbulentFactor;
};

double Input(int row, int caseIndex) { return Calc.CaseInput[At(row)][At(caseIndex)]; }

LineCase LineOf(double massFlow, double viscosity) {
    return {Calc.PipeData[pipe::InsideDiameter] * Calc.UnitFactor[unit::PipeSize],
            Calc.PipeData[pipe::Length] * Calc.UnitFactor[unit::Length], massFlow, viscosity};
}

// known: the friction factor, 0 where it is to be found.
Flow FlowOf(const LineCase& line, double reynoldsRatio, double known = 0) {
    const double status = ReynoldsOf(line.MassFlow, line.Diameter, line.Viscosity);
    const double reynolds = status * reynoldsRatio;
    const bool isLaminar = reynolds <= LaminarLimit;
    const auto clean = [&] {
        if (isLaminar) return 64 / reynolds;
        return SolveColebrook(reynolds, line.Diameter, FindPipeMaterial(Calc.PipeMaterialNumber), 0).Factor;
    };
    const auto fouled = [](double factor) { return factor + factor * Calc.PipeFouling / 100; };
    const TurbulenceRow* const row = FindTurbulenceRow(line.Diameter);
    const double turbulent = row != nullptr ? row->Factor : isLaminar ? clean() : Unknown;
    return {FlowRegimeOf(reynolds, status, line.Diameter), known > 0 ? known : fouled(clean()), turbulent};
}

// ft; a count below zero counts with what an earlier line has left, which is not to be had again.
double FittingsLength(const LineCase& line, const Flow& flow) {
    const auto& counts = Calc.FittingCount;
    const double entrance = Calc.PipeData[pipe::Entrance] == pipe::Ticked ? EntranceResistance : 0;
    const double exit = Calc.PipeData[pipe::Exit] == pipe::Ticked ? ExitResistance : 0;
    // In the order of Fittings.
    const double byFitting[] = {entrance,
                                counts[fitting::GateValves],
                                counts[fitting::GlobeValves],
                                counts[fitting::CheckValves],
                                counts[fitting::Ells90],
                                counts[fitting::Ells45],
                                counts[fitting::BranchTees],
                                counts[fitting::ThruTees],
                                exit};
    double resistance = 0;
    for (std::size_t i = 0; i < Fittings.size(); ++i) {
        if (byFitting[i] < 0) return Unknown;
        if (byFitting[i] == 0) continue;
        const double k = Fittings[i].CountIsK ? 1 : flow.TurbulentFactor * Fittings[i].LengthToDiameter;
        resistance += byFitting[i] * k;
    }
    return resistance / flow.Factor * line.Diameter / 12;
}

bool IsBackwards() { return Calc.PressureDirection == direction::Backwards; }
double GivenPressure(int caseIndex) { return PressureIn(Input(input::Pressure, caseIndex)); }
double FoundPressure(int caseIndex) {
    return PressureIn(Calc.CaseResult[result::FinalPressure][At(caseIndex)]);
}

double LossByResults(int caseIndex) {
    const double fall = GivenPressure(caseIndex) - FoundPressure(caseIndex);
    return IsBackwards() ? -fall : fall;
}

// A march that stopped at sonic velocity has no pressure at its end, one that ran dry none above zero.
bool HasEnd(int caseIndex) {
    const auto& results = Calc.CaseResult;
    const std::size_t i = At(caseIndex);
    const bool isSonic = results[result::Velocity][i] == results[result::SonicVelocity][i];
    return !(isSonic && results[result::FinalPressure][i] == 0) && FoundPressure(caseIndex) > 0;
}

double SourcePressure(int caseIndex) {
    if (!IsBackwards()) return GivenPressure(caseIndex);
    return HasEnd(caseIndex) ? FoundPressure(caseIndex) : Unknown;
}

double DestinationPressure(int caseIndex, double loss) {
    return IsBackwards() ? GivenPressure(caseIndex) : GivenPressure(caseIndex) - loss;
}

double DensityAt(int caseIndex, double pressure) {
    const double temperature = TemperatureIn(Input(input::Temperature, caseIndex));
    const double factor =
        SolveRedlichKwong(CritTemperatureIn(Input(input::CritTemperature, caseIndex)),
                          Input(input::CritPressure, caseIndex) * Calc.UnitFactor[unit::CritPressure],
                          temperature, pressure)
            .Value;
    return GasDensityOf(pressure, temperature, Input(input::MolecularWeight, caseIndex), factor);
}

LineCase GasLineOf(int caseIndex) {
    const double weight = Input(input::MolecularWeight, caseIndex);
    return LineOf(GasFlowIn(Input(input::GasFlow, caseIndex), weight),
                  GasViscosityIn(Input(input::Viscosity, caseIndex), weight));
}

// Velocity and sonic velocity of the results are those at the end that was found; ft/s.
struct Velocities {
    double Fluid, Sonic;
};

Velocities AtOutlet(int caseIndex, const LineCase& line, double outletDensity) {
    const auto shown = [caseIndex](int row) {
        return Calc.CaseResult[At(row)][At(caseIndex)] * Calc.UnitFactor[unit::Velocity];
    };
    if (!IsBackwards()) return {shown(result::Velocity), shown(result::SonicVelocity)};
    return {LineVelocity(line.MassFlow, outletDensity, line.Diameter),
            SonicVelocityOf(Input(input::RatioSpecificHeats, caseIndex), GivenPressure(caseIndex),
                            outletDensity)};
}

}  // namespace

double NpshOf(double margin, double gravity) {
    constexpr double psiOfAFoot = 0.4331;
    return margin / (psiOfAFoot * gravity);
}

LiquidFigures LiquidFiguresOf(int caseIndex, double frictionFactor) {
    const double gravity = GravityIn(Input(input::FlowGravity, caseIndex), unit::LiquidDensity);
    const LineCase line = LineOf(LiquidFlowIn(Input(input::LiquidFlow, caseIndex), gravity),
                                 LiquidViscosityIn(Input(input::Viscosity, caseIndex), gravity));
    const Flow flow = FlowOf(line, 1, frictionFactor);
    const double density = gravity * FrictionWaterDensity;
    const double perFoot = LossPer100Feet(flow.Factor, line.MassFlow, line.Diameter, density) / 100;
    const double rise =
        (Input(input::EndElevation, 0) - Calc.PipeData[pipe::StartElevation]) * Calc.UnitFactor[unit::Length];
    const double fittings = FittingsLength(line, flow);

    LiquidFigures figures{};
    figures.Regime = flow.Regime;
    figures.OutletVelocity = LineVelocity(line.MassFlow, density, line.Diameter);
    figures.OutletDensity = density;
    figures.PipeAndFittings = line.Length + fittings;
    figures.PipeLoss = perFoot * line.Length;
    figures.FittingsLoss = perFoot * fittings;
    figures.EquipLoss = Input(input::EquipLoss, caseIndex) * Calc.UnitFactor[unit::PressureDrop];
    figures.ElevationLoss = density * rise / 144;
    figures.TotalLoss = figures.PipeLoss + figures.FittingsLoss + figures.EquipLoss + figures.ElevationLoss;
    if (!(figures.TotalLoss == figures.TotalLoss)) figures.TotalLoss = LossByResults(caseIndex);

    const double vapor = Input(input::VaporPressure, caseIndex) * Calc.UnitFactor[unit::VaporPressure];
    figures.VaporMargin = vapor > 0 ? DestinationPressure(caseIndex, figures.TotalLoss) - vapor : Unknown;
    figures.NpshAvailable = NpshOf(figures.VaporMargin, gravity);
    return figures;
}

GasFigures GasFiguresOf(int caseIndex) {
    const LineCase line = GasLineOf(caseIndex);
    const Flow flow = FlowOf(line, GasReynolds);
    const bool hasEnd = HasEnd(caseIndex);
    const double outlet = IsBackwards() ? GivenPressure(caseIndex) : FoundPressure(caseIndex);

    GasFigures figures{};
    figures.Regime = flow.Regime;
    figures.PipeAndFittings = line.Length + FittingsLength(line, flow);
    figures.TotalLoss = hasEnd ? LossByResults(caseIndex) : Unknown;
    figures.OutletDensity = hasEnd || IsBackwards() ? DensityAt(caseIndex, outlet) : Unknown;
    const Velocities velocities = AtOutlet(caseIndex, line, figures.OutletDensity);
    figures.OutletVelocity = velocities.Fluid;
    figures.OutletMach = velocities.Fluid / velocities.Sonic;
    return figures;
}

bool IsChoked(int caseIndex) {
    if (Calc.CurrentProgram != program::GasLine) return false;
    const LineCase line = GasLineOf(caseIndex);
    const Flow flow = FlowOf(line, GasReynolds);
    const double equipment = Input(input::EquipLoss, caseIndex) * Calc.UnitFactor[unit::PressureDrop];
    const double length = line.Length + FittingsLength(line, flow);
    return line.MassFlow >
           ChokedFlowOf(
               {SourcePressure(caseIndex) - equipment, TemperatureIn(Input(input::Temperature, caseIndex)),
                Input(input::MolecularWeight, caseIndex), Input(input::RatioSpecificHeats, caseIndex),
                CritTemperatureIn(Input(input::CritTemperature, caseIndex)),
                Input(input::CritPressure, caseIndex) * Calc.UnitFactor[unit::CritPressure], line.Diameter,
                flow.Factor * length * 12 / line.Diameter});
}

}  // namespace quillmetra
