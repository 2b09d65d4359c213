// See UnitPicks.h.
#include "units/UnitPicks.h"

#include "core/Programs.h"
#include "core/Words.h"
#include "units/RecordUnits.h"
#include "units/UnitCatalogue.h"
#include "units/UnitSelection.h"

namespace quillmetra {

namespace {

constexpr int DensityPosition = 11;

bool IsGas() { return program::IsOfGas(Calc.CurrentProgram); }
bool IsLiquidWithDensity() { return !IsGas() && Calc.LiquidDensityMode == words::Density; }
// The positions of the program in hand: a liquid with gravity leaves its density out.
int RowCount() {
    return !IsGas() && Calc.LiquidDensityMode != words::Density ? UnitPositions - 1 : UnitPositions;
}
bool IsLeftOut(int position) { return position == DensityPosition && RowCount() < UnitPositions; }

void CopyUnit(int to, int from) {
    Calc.UnitName[At(to)] = Calc.UnitName[At(from)];
    Calc.UnitFactor[At(to)] = Calc.UnitFactor[At(from)];
}

}  // namespace

void UnitPicks::Begin() {
    if (IsLiquidWithDensity()) CopyUnit(unit::Density, unit::LiquidDensity);
    for (std::size_t row = 0; row < picks_.size(); ++row) {
        picks_[row] = {Calc.UnitName[row], Calc.UnitFactor[row], false};
    }
    for (const auto& [row, base] : FlowParts) {
        const auto [quantity, time] = SplitFlowUnit(Calc.UnitName[At(row)]);
        picks_[At(row)] = {quantity, FindUnitFactor(UnitListOf(row), quantity), false};
        picks_[At(base)] = {time, FindUnitFactor(UnitListOf(base), time), false};
    }
}

bool UnitPicks::Has(int row) {
    const auto order = UnitDisplayOrder(IsGas());
    for (int position = 1; position <= UnitPositions; ++position) {
        if (order[At(position)] == row && !IsLeftOut(position)) return true;
    }
    return false;
}

int UnitPicks::PutRow(int row) const {
    const Pick& picked = Of(row);
    if (!picked.Touched) return NoRow;
    if (!IsUsableFactor(picked.Factor)) return row;
    Calc.UnitName[At(row)] = picked.Name;
    Calc.UnitFactor[At(row)] = picked.Factor;
    return NoRow;
}

int UnitPicks::PutFlow(int row, int baseRow) const {
    const Pick& quantity = Of(row);
    const Pick& time = Of(baseRow);
    if (!quantity.Touched && !time.Touched) return NoRow;
    const double factor = quantity.Factor * time.Factor;
    if (!IsUsableFactor(factor)) return IsUsableFactor(quantity.Factor) ? baseRow : row;
    Calc.UnitName[At(row)] = quantity.Name + time.Name;
    Calc.UnitFactor[At(row)] = factor;
    return NoRow;
}

int UnitPicks::Put() const {
    for (const auto& [row, base] : FlowParts) {
        if (const int missing = PutFlow(row, base); missing != NoRow) return missing;
    }
    const auto order = UnitDisplayOrder(IsGas());
    for (int position = 2; position <= UnitPositions; ++position) {
        if (position == PassedPosition || IsLeftOut(position)) continue;
        if (const int missing = PutRow(order[At(position)]); missing != NoRow) return missing;
    }
    if (IsLiquidWithDensity()) CopyUnit(unit::LiquidDensity, unit::Density);
    if (IsGas()) CopyUnit(unit::Viscosity, unit::GasViscosity);
    CarryDensityUnit();
    return NoRow;
}

int UnitPicks::PutIntoRecord() const {
    const UnitNames names = Calc.UnitName;
    const UnitFactors factors = Calc.UnitFactor;
    const int missing = Put();
    if (missing == NoRow) return NoRow;
    Calc.UnitName = names;
    Calc.UnitFactor = factors;
    return missing;
}

}  // namespace quillmetra
