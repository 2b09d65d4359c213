// See UnitSelection.h.
#include "units/UnitSelection.h"

#include <array>

#include "core/Suite.h"
#include "core/Words.h"
#include "platform/Utf8.h"
#include "units/UnitCatalogue.h"

namespace quillmetra {

namespace {

constexpr std::array<int, UnitPositions + 1> LiquidOrder = {0,
                                                            unit::LiquidFlow,
                                                            unit::LiquidTimeBase,
                                                            unit::Temperature,
                                                            unit::Pressure,
                                                            unit::PressureDrop,
                                                            unit::Viscosity,
                                                            unit::Velocity,
                                                            unit::Modulus,
                                                            unit::PipeSize,
                                                            unit::Length,
                                                            unit::Density,
                                                            unit::Viscosity};
constexpr std::array<int, UnitPositions + 1> GasOrder = {0,
                                                         unit::GasFlow,
                                                         unit::GasTimeBase,
                                                         unit::Temperature,
                                                         unit::Pressure,
                                                         unit::PressureDrop,
                                                         unit::CritTemperature,
                                                         unit::CritPressure,
                                                         unit::Velocity,
                                                         unit::GasViscosity,
                                                         unit::PipeSize,
                                                         unit::Length,
                                                         unit::Density};

const UnitRow::Choice& ChoiceOf(int row) {
    const UnitRow& unitRow = UnitRows.at(static_cast<std::size_t>(row));
    const std::string& basis = row == unit::GasFlow ? Calc.Basis : Calc.LiquidBasis;
    return row <= unit::LiquidFlow && basis == words::Volume ? unitRow.OnVolume : unitRow.OnMass;
}

}  // namespace

std::span<const int, UnitPositions + 1> UnitDisplayOrder(bool gas) { return gas ? GasOrder : LiquidOrder; }

bool IsUnitTaken(bool gas, int row) {
    const auto order = UnitDisplayOrder(gas);
    for (int position = 1; position <= UnitPositions; ++position) {
        if (position != PassedPosition && order[static_cast<std::size_t>(position)] == row) return true;
    }
    return false;
}

int OtherFlowPart(int row) {
    for (const auto& [quantity, base] : FlowParts) {
        if (row == quantity) return base;
        if (row == base) return quantity;
    }
    return -1;
}

std::pair<std::string, std::string> SplitFlowUnit(const std::string& unit) {
    const std::size_t slash = unit.find('/');
    if (slash == std::string::npos) return {unit, ""};
    return {unit.substr(0, slash), unit.substr(slash)};
}

int UnitListOf(int row) { return ChoiceOf(row).List; }
int ProtectedLinesOf(int row) { return ChoiceOf(row).ProtectedLines; }

double FindUnitFactor(int list, const std::string& name) {
    if (list < 0 || name.empty()) return 0;
    const UnitList& lines = Suite.UnitLibrary.at(static_cast<std::size_t>(list));
    for (std::size_t line = 1; line < lines.size(); ++line) {
        if (lines[line].Name == name) return lines[line].Factor;
    }
    return 0;
}

void ReplaceUnitLine(int list, int line, const std::string& name, double factor) {
    Suite.UnitLibrary.at(static_cast<std::size_t>(list)).at(static_cast<std::size_t>(line)) = {name, factor};
    if (list != unitlist::OperatingPressure) return;
    UnitLine& stem = Suite.PressureStem.at(static_cast<std::size_t>(line));
    stem = {WithoutLastCharacter(name), factor};
}

}  // namespace quillmetra
