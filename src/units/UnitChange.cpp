// See UnitChange.h.
#include "units/UnitChange.h"

#include <algorithm>
#include <cmath>

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/Words.h"
#include "units/ModeChange.h"
#include "units/RecordUnits.h"
#include "units/Viscosity.h"

namespace quillmetra {

namespace {

// A factor that went through a database has seven digits: with all of its digits it is the same unit.
void TakeAllDigits() {
    for (std::size_t row = 0; row < Calc.UnitFactor.size(); ++row) {
        double& former = Calc.UnitFactorPrevious[row];
        const double now = Calc.UnitFactor[row];
        if (static_cast<float>(former) == static_cast<float>(now)) former = now;
    }
}

// Mass and volume, and the two kinds of viscosity, lie a gravity apart.
bool NeedsGravity() {
    const auto& name = Calc.UnitName[unit::Viscosity];
    const auto& former = Calc.UnitNamePrevious[unit::Viscosity];
    return Calc.LiquidBasis != Calc.LiquidBasisPrevious ||
           (CentistokesPerUnit(name) > 0) != (CentistokesPerUnit(former) > 0);
}

bool GravitiesDiffer() {
    constexpr double part = 0.001;
    const auto& gravities = Calc.CaseInput[input::FlowGravity];
    const double first = gravities[0];
    return std::ranges::any_of(gravities, [first](double gravity) {
        return gravity > 0 && std::abs(gravity - first) > part * first;
    });
}

}  // namespace

UnitChange::UnitChange() : PressureMode(Calc.PressureMode), DensityMode(Calc.LiquidDensityMode) {
    RememberUnits();
}

UnitChange::~UnitChange() {
    if (committed_) return;
    Calc.UnitName = Calc.UnitNamePrevious;
    Calc.UnitFactor = Calc.UnitFactorPrevious;
    Calc.Basis = Calc.BasisPrevious;
    Calc.LiquidBasis = Calc.LiquidBasisPrevious;
}

bool UnitChange::HasNewUnits() const {
    return Calc.UnitName != Calc.UnitNamePrevious || Calc.UnitFactor != Calc.UnitFactorPrevious ||
           Calc.Basis != Calc.BasisPrevious || Calc.LiquidBasis != Calc.LiquidBasisPrevious;
}

bool UnitChange::GravityMisleads() const {
    return Calc.CurrentProgram == program::LiquidLine && !IsYes(Calc.NoConversion) && NeedsGravity() &&
           GravitiesDiffer();
}

void UnitChange::Commit(ZeroTemperature zero, const std::function<void()>& show) {
    const BeforeRounding shown(show);
    ChangeModes();
    if (!IsYes(Calc.FormClosing)) Convert(zero);
    committed_ = true;
}

void UnitChange::Convert(ZeroTemperature zero) const {
    TakeAllDigits();
    ConvertValues(zero);
    MendUnitFactors();
    RememberUnits();
    Calc.UnitsConverted = words::Yes;  // the refresh shows all cases
}

// The pressure first: its barometer is in the previous unit. A mode that was refused is no previous one.
void UnitChange::ChangeModes() const {
    ChangePressureMode(PressureMode);
    ChangeDensityMode(DensityMode);
    Calc.PressureModePrevious = Calc.PressureMode;
    Calc.LiquidDensityModePrevious = Calc.LiquidDensityMode;
}

// The numbers mean something else from now on, and a diameter another pipe.
void UnitChange::KeepNumbers() {
    if (Calc.UnitFactor[unit::PipeSize] != Calc.UnitFactorPrevious[unit::PipeSize]) Calc.PipeName.clear();
    RenewChosenUnitNames();
}

void UnitChange::ConvertValues(ZeroTemperature zero) const {
    if (IsYes(Calc.NoConversion)) return KeepNumbers();
    if (HasNewUnits()) {
        ConvertProgramData(zero);
    } else if (Calc.RoundedFlag == words::No) {
        RoundRecord();
    } else {
        return;
    }
    Calc.ChangedFlag = words::No;
}

}  // namespace quillmetra
