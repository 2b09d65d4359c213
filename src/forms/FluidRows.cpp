// See FluidRows.h.
#include "forms/FluidRows.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "core/CalcRecord.h"
#include "fluids/FluidTables.h"
#include "platform/KeyOrder.h"
#include "platform/NumberText.h"
#include "units/Border.h"
#include "units/Rounding.h"

namespace quillmetra {

namespace {

std::string Shown(double value) { return std::isfinite(value) ? TrimmedStr(RoundedFour(value)) : ""; }

}  // namespace

void FluidRows::Take(const std::vector<std::string>& rows, bool isGas) {
    isGas_ = isGas;
    lines_.clear();
    lines_.reserve(rows.size());
    for (const std::string& row : rows) TakeLine(row);
    ShowHeads();
    Sort();
}

// Both temperatures in the unit of the temperature.
void FluidRows::TakeLine(const std::string& row) {
    const FluidConstants fluid = FluidConstantsOf(row, isGas_);
    Line& line = lines_.emplace_back();
    line.Row = row;
    line.Numbers = {0,
                    0,
                    fluid.MolecularWeight,
                    fluid.Gravity,
                    TemperatureShown(fluid.BoilingPoint),
                    TemperatureShown(fluid.CritTemperature),
                    fluid.CritPressure / Calc.UnitFactor[unit::CritPressure]};
    for (std::size_t i = FirstNumber; i < Columns; ++i) line.Cells[i] = Shown(line.Numbers[i]);
    line.Cells[Weight] = TrimmedStr(RoundedSix(fluid.MolecularWeight));
    line.Cells[Name] = FluidRowName(row);
    line.Cells[Kind] = FluidKindOf(fluid.Class);
    line.Letters = SmallLetters(line.Cells[Name]);
}

void FluidRows::ShowHeads() {
    const std::string& temperature = Calc.UnitName[unit::Temperature];
    heads_ = {"Name",
              "Kind",
              "Mol. weight",
              isGas_ ? "Gravity, air = 1" : "Gravity, 60 degF",
              "Boiling point, " + temperature,
              "Critical temp., " + temperature,
              "Critical press., " + Calc.UnitName[unit::CritPressure]};
    if (column_ < Columns) heads_[static_cast<std::size_t>(column_)] += falling_ ? " \u25BC" : " \u25B2";
}

void FluidRows::SortBy(int column) {
    falling_ = column == column_ && !falling_;
    column_ = column;
    ShowHeads();
    Sort();
}

void FluidRows::Sort() {
    sorted_.resize(lines_.size());
    std::iota(sorted_.begin(), sorted_.end(), 0);
    const auto column = static_cast<std::size_t>(column_);
    const auto isBefore = [&](const Line& a, const Line& b) {
        if (column_ < FirstNumber) return CompareKeys(a.Cells[column], b.Cells[column]) < 0;
        return a.Numbers[column] < b.Numbers[column];
    };
    const auto order = [&](int a, int b) {
        const Line& first = lines_[static_cast<std::size_t>(a)];
        const Line& second = lines_[static_cast<std::size_t>(b)];
        return falling_ ? isBefore(second, first) : isBefore(first, second);
    };
    if (column_ < Columns) std::ranges::stable_sort(sorted_, order);
    Sift();
}

void FluidRows::Filter(std::string_view words) {
    filter_ = words;
    Sift();
}

void FluidRows::Sift() {
    const std::vector<std::string> wanted = SmallWords(filter_);
    shown_.clear();
    for (const int place : sorted_) {
        if (HasWords(lines_[static_cast<std::size_t>(place)].Letters, wanted)) shown_.push_back(place);
    }
}

const std::string& FluidRows::Cell(int place, int column) const {
    return At(place).Cells[static_cast<std::size_t>(column)];
}

const std::string& FluidRows::Row(int place) const { return At(place).Row; }

int FluidRows::PlaceOf(std::string_view name) const {
    if (name.empty()) return -1;
    const auto found = std::ranges::find_if(
        shown_, [&](int place) { return lines_[static_cast<std::size_t>(place)].Cells[Name] == name; });
    return found == shown_.end() ? -1 : static_cast<int>(found - shown_.begin());
}

int FluidRows::BestPlace() const {
    const std::string typed = SmallLetters(Trim(filter_));
    const auto rankOf = [&](int place) {
        const std::string& letters = lines_[static_cast<std::size_t>(place)].Letters;
        return letters == typed ? 0 : letters.starts_with(typed) ? 1 : 2;
    };
    const auto best = std::ranges::min_element(shown_, {}, rankOf);
    return best == shown_.end() ? -1 : static_cast<int>(best - shown_.begin());
}

}  // namespace quillmetra
