// See Comparison.h.
#include "reports/Comparison.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "core/Programs.h"
#include "core/Words.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "platform/TextCase.h"
#include "reports/FormRows.h"
#include "units/Conversion.h"
#include "units/Rounding.h"
#include "units/Temperature.h"
#include "units/UnitChange.h"

namespace quillmetra {

namespace {

constexpr double AsConverted = 0.0005;  // of a number: half of its fourth figure
constexpr const char* CannotBe = "cannot be converted";

// Makes a record the one in hand, and takes what has become of it back. Nobody is asked or told anything.
class Lent {
public:
    explicit Lent(CalcRecord& record) : record_(record) { std::swap(Calc, record_); }
    ~Lent() { std::swap(Calc, record_); }
    Lent(const Lent&) = delete;
    Lent& operator=(const Lent&) = delete;

private:
    CalcRecord& record_;
    const AllDigits digits_;
    const HeldMessages held_;
};

// --- Into the units of the first ---------------------------------------------------------------------------

// A change of basis would ask for the gravity that is missing.
void DropFlowsWithoutGravity(const CalcRecord& first) {
    if (Calc.LiquidBasis == first.LiquidBasis || GravityOfFirstCase() > 0) return;
    Calc.CaseInput[input::LiquidFlow].fill(0);
}

// The ending of a pressure is that of its mode, which the change itself turns.
void TakeUnits(const CalcRecord& first) {
    const std::string own = Calc.UnitName[unit::Pressure];
    Calc.UnitName = first.UnitName;
    Calc.UnitFactor = first.UnitFactor;
    Calc.Basis = first.Basis;
    Calc.LiquidBasis = first.LiquidBasis;
    std::string& pressure = Calc.UnitName[unit::Pressure];
    if (!pressure.empty() && !own.empty()) pressure.back() = own.back();
}

void Convert(CalcRecord& record, const CalcRecord& first) {
    const Lent lent(record);
    Calc.FormClosing.clear();
    Calc.NoConversion.clear();
    DropFlowsWithoutGravity(first);
    UnitChange change;
    TakeUnits(first);
    change.PressureMode = first.PressureMode;
    change.DensityMode = first.LiquidDensityMode;
    change.Commit(ZeroTemperature::IsConverted);
}

// Of a line whose other end was given.
void TakeDirection(CalcRecord& record, const CalcRecord& first) {
    const bool lines = program::IsLine(record.CurrentProgram) && program::IsLine(first.CurrentProgram);
    if (!lines || record.PressureDirection == first.PressureDirection) return;
    std::swap(record.CaseInput[input::Pressure], record.CaseResult[result::FinalPressure]);
}

// --- Numbers
// -------------------------------------------------------------------------------------------------

// Zero is a value of a temperature or pressure that was typed.
bool ShowsZero(const FormRow& row, int caseIndex) {
    return row.From == Source::CaseInput && (row.Row == input::Temperature || row.Row == input::Pressure) &&
           row.Rule == ShowRule::LegalZero && Calc.TemperatureBlank[At(caseIndex)] == 0;
}

// The number as its box would show it; false where that is empty.
bool Shows(const FormRow& row, int caseIndex, double& value) {
    value = LiveValue(row, caseIndex);
    if (!RowStands(row, caseIndex) || !std::isfinite(value)) return false;
    if (value == 0) return ShowsZero(row, caseIndex);
    return row.Rule != ShowRule::Positive || value > 0;
}

struct Number {
    bool Shown = false;
    double Value = 0;
};

Number NumberOf(CalcRecord& record, const FormRow& row, int caseIndex) {
    const Lent lent(record);
    Number number;
    number.Shown = Shows(row, caseIndex, number.Value);
    return number;
}

// The row of a program with the same number of the record under the same label; null when there is none.
const FormRow* SameRow(const FormRow& row, int caseIndex, int program) {
    for (const FormRow& other : FormRows(program)) {
        if (SameName(other.Label, row.Label) && (other.PerCase || caseIndex == 0) &&
            &LiveValue(other, caseIndex) == &LiveValue(row, caseIndex))
            return &other;
    }
    return nullptr;
}

std::string TextOf(double value) { return std::string(Trim(Str(value))); }

std::string Signed(double value) {
    std::string text = TextOf(value);
    if (value > 0) text.insert(0, 1, '+');
    return text;
}

void TellDifference(ComparedRow& compared, const FormRow& row, double first, double second) {
    compared.Difference = Signed(RoundedFour(second - first));
    // A temperature and a pressure have no zero of their own.
    if (row.Rule != ShowRule::LegalZero && first > 0)
        compared.Percent = Signed(std::round((second / first - 1) * 1000) / 10);
}

class Comparer {
public:
    Comparer(const CalcRecord& first, const CalcRecord& second, const Form& form)
        : form_(form), first_(first), own_(second), second_(second) {
        TakeDirection(own_, first_);
        second_ = own_;
        Convert(second_, first_);
    }

    std::vector<ComparedRow> Rows() {
        std::vector<ComparedRow> rows;
        for (const FormRow& row : FormRows(first_.CurrentProgram)) {
            for (int i = 0; i < (row.PerCase ? CaseCount : 1); ++i) {
                ComparedRow compared;
                if (Compare(row, i, compared)) rows.push_back(std::move(compared));
            }
        }
        return rows;
    }

private:
    // False when the row is one of the first's program alone, or empty in both.
    bool Compare(const FormRow& row, int caseIndex, ComparedRow& compared) {
        const FormRow* const other = SameRow(row, caseIndex, second_.CurrentProgram);
        if (other == nullptr) return false;
        const Number first = NumberOf(first_, row, caseIndex);
        const Number own = NumberOf(own_, *other, caseIndex), second = NumberOf(second_, *other, caseIndex);
        if (!first.Shown && !own.Shown) return false;
        const bool converted = own.Value != second.Value;
        compared = {.Name = SaidBy(form_, row.Label), .Unit = SaidBy(form_, row.Unit, row.UnitIndex)};
        if (row.PerCase) compared.Case = SaidBy(form_, "lblCase", caseIndex);
        if (first.Shown) compared.First = TextOf(first.Value);
        if (own.Shown) {
            compared.Second =
                !second.Shown ? CannotBe : TextOf(converted ? RoundedFour(second.Value) : second.Value);
        }
        const double finest =
            converted ? AsConverted * std::max(std::abs(first.Value), std::abs(second.Value)) : 0;
        compared.Differs = first.Shown != second.Shown || std::abs(first.Value - second.Value) > finest;
        if (first.Shown && second.Shown && compared.Differs)
            TellDifference(compared, row, first.Value, second.Value);
        return true;
    }

    const Form& form_;
    CalcRecord first_, own_, second_;
};

// --- Texts
// ---------------------------------------------------------------------------------------------------

std::string Components(const CalcRecord& record) {
    std::string text;
    for (std::size_t i = 0; IsYes(record.MixtureFlag) && i < record.FluidData.size(); ++i) {
        if (!(record.FluidPercent[i] > 0)) continue;
        const std::string& row = record.FluidData[i];
        text += (text.empty() ? "" : ", ") + TextOf(record.FluidPercent[i]) + "% " +
                std::string(Trim(std::string_view(row).substr(0, row.find(','))));
    }
    return text;
}

std::string GivenEnd(const CalcRecord& record) {
    if (!program::IsLine(record.CurrentProgram)) return "";
    return record.PressureDirection == direction::Backwards ? "Destination" : "Source";
}

template <int Flag>
std::string Ticked(const CalcRecord& record) {
    if (!program::IsLine(record.CurrentProgram)) return "";
    return record.PipeData[At(Flag)] == pipe::Ticked ? words::Yes : words::No;
}

std::string Material(const CalcRecord& record) {
    return program::IsFluidData(record.CurrentProgram) ? "" : record.PipeMaterial;
}

template <int Line>
std::string Written(const CalcRecord& record) {
    return record.CaseText[At(Line)];
}

template <int Line>
std::string Heading(const CalcRecord& record) {
    return record.HeadingText[At(Line)];
}

struct TextRow {
    const char* Name;
    std::string (*Of)(const CalcRecord& record);
};
constexpr TextRow WhatItIs[] = {
    {"Fluid", [](const CalcRecord& record) { return record.FluidName; }},
    {"Mixture", Components},
    {"Steam", [](const CalcRecord& record) { return record.SteamKind; }},
    {"Units", [](const CalcRecord& record) { return record.UnitSetName; }},
    {"Pressure given", GivenEnd},
    {"Pipe material", Material},
    {"Pipe", [](const CalcRecord& record) { return record.PipeName; }},
    {"Service", [](const CalcRecord& record) { return record.Service; }},
    {"Entrance loss", Ticked<pipe::Entrance>},
    {"Exit loss", Ticked<pipe::Exit>},
};
constexpr TextRow WhoseItIs[] = {
    {"Calculated by", Written<text::CalcBy>},
    {"Approved by", Written<text::ApprovedBy>},
    {"Calculation date", Written<text::CalcDate>},
    {"Process data date", Written<text::DataDate>},
    {"Manufacturer", Heading<heading::Manufacturer>},
    {"Model", Heading<heading::Model>},
    {"Note 1", Heading<heading::Note1>},
    {"Note 2", Heading<heading::Note2>},
    {"Note 3", Heading<heading::Note3>},
};

enum class Lacking { IsTold, IsPassedOver };

void AddTexts(Comparison& comparison, std::span<const TextRow> texts, const CalcRecord& first,
              const CalcRecord& second, Lacking lacking) {
    for (const TextRow& text : texts) {
        const std::string one(Trim(text.Of(first))), other(Trim(text.Of(second)));
        const bool told =
            lacking == Lacking::IsTold ? !one.empty() || !other.empty() : !one.empty() && !other.empty();
        if (told)
            comparison.Rows.push_back(
                {.Name = text.Name, .First = one, .Second = other, .Differs = one != other});
    }
}

// The conditions of the place, kept in psia and degF.
void AddConditions(Comparison& comparison, const CalcRecord& first, const CalcRecord& second) {
    struct Condition {
        const char* Name;
        double CalcRecord::*Value;
        int UnitRow;
    };
    static constexpr Condition conditions[] = {
        {"Barometric pressure", &CalcRecord::BaroPressure, unit::Barometer},
        {"Standard pressure", &CalcRecord::StdPressure, unit::StdPressure},
        {"Standard temperature", &CalcRecord::StdTemperature, unit::StdTemperature}};
    for (const Condition& each : conditions) {
        const std::string& unit = first.UnitName[At(each.UnitRow)];
        const double factor = first.UnitFactor[At(each.UnitRow)];
        const auto shown = [&](double value) {
            return TextOf(RoundedFour(each.UnitRow == unit::StdTemperature ? FromDegF(unit, value, factor)
                                                                           : value / factor));
        };
        const std::string one = shown(first.*each.Value), other = shown(second.*each.Value);
        comparison.Rows.push_back(
            {.Name = each.Name, .First = one, .Second = other, .Unit = unit, .Differs = one != other});
    }
}

}  // namespace

int Comparison::Differing() const {
    return static_cast<int>(std::ranges::count_if(Rows, [](const ComparedRow& row) { return row.Differs; }));
}

Comparison CompareRecords(const CalcRecord& first, const CalcRecord& second, const Form& form) {
    Comparison comparison{.FirstTag = first.Tag,
                          .SecondTag = second.Tag,
                          .Title = first.ProgramTitle,
                          .OfOneProgram = first.CurrentProgram == second.CurrentProgram};
    if (!comparison.OfOneProgram)
        comparison.Rows.push_back({.Name = "Calculation",
                                   .First = first.ProgramTitle,
                                   .Second = second.ProgramTitle,
                                   .Differs = true});
    AddTexts(comparison, WhatItIs, first, second,
             comparison.OfOneProgram ? Lacking::IsTold : Lacking::IsPassedOver);
    std::ranges::move(Comparer(first, second, form).Rows(), std::back_inserter(comparison.Rows));
    AddConditions(comparison, first, second);
    AddTexts(comparison, WhoseItIs, first, second, Lacking::IsTold);
    return comparison;
}

std::vector<std::vector<std::string>> ComparisonCells(const Comparison& comparison, bool onlyDiffering) {
    std::vector<std::vector<std::string>> cells{
        {"", "Row", "Case", comparison.FirstTag, comparison.SecondTag, "Unit", "Difference", "%"}};
    for (const ComparedRow& row : comparison.Rows) {
        if (row.Differs || !onlyDiffering)
            cells.push_back({row.Differs ? DiffersMark : "", row.Name, row.Case, row.First, row.Second,
                             row.Unit, row.Difference, row.Percent});
    }
    return cells;
}

// What stands in a text of the user's must not open a column of its own.
std::string ComparisonTable(const Comparison& comparison, bool onlyDiffering) {
    std::string table = comparison.Title + '\n';
    for (const auto& line : ComparisonCells(comparison, onlyDiffering)) {
        for (std::size_t i = 0; i < line.size(); ++i) {
            std::string cell = line[i];
            std::ranges::replace_if(
                cell, [](char c) { return c == '\t' || c == '\n'; }, ' ');
            table += (i == 0 ? "" : "\t") + cell;
        }
        table += '\n';
    }
    return table;
}

}  // namespace quillmetra
