// See FluidTables.h.
#include "fluids/FluidTables.h"

#include <algorithm>
#include <array>
#include <span>

#include "core/CalcRecord.h"
#include "core/FileNames.h"
#include "core/PhysicalConstants.h"
#include "core/Programs.h"
#include "core/Suite.h"
#include "fluids/LiquidCorrelations.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace {

std::string TablePath(std::string_view fluidType) {
    return InDefaultPath(path::DataFiles, std::string(fluidType) + ".txt");
}

// Column numbers count from 1, as the tables' descriptions do.
using Fields = std::array<std::string_view, 20>;

// The first fields of a row, empty where it has no more.
Fields SplitRow(std::string_view row, std::size_t count) {
    Fields fields{};
    std::size_t start = 0;
    for (std::size_t i = 1; i <= count && start <= row.size(); ++i) {
        // The fields are short: a loop is quicker than a search.
        std::size_t end = start;
        while (end < row.size() && row[end] != ',') ++end;
        fields[i] = row.substr(start, end - start);
        start = end + 1;
    }
    return fields;
}

// The text keeps its memory from row to row.
void Rejoin(const Fields& fields, std::size_t count, std::string& row) {
    row.clear();
    for (std::size_t i = 1; i <= count; ++i) {
        row += Trim(fields[i]);
        row += ',';
    }
}

struct Column {
    std::size_t Number;
    double CalcRecord::*Field;
};

constexpr std::size_t LiquidColumns = 17;

constexpr std::array<Column, 15> LiquidNumbers = {{
    {3, &CalcRecord::MolecularWeight},
    {4, &CalcRecord::SGAtStandard},
    {5, &CalcRecord::CritTemperature},
    {6, &CalcRecord::ViscosityTemp1},
    {7, &CalcRecord::Viscosity1},
    {8, &CalcRecord::ViscosityTemp2},
    {9, &CalcRecord::Viscosity2},
    {10, &CalcRecord::CritPressure},
    {11, &CalcRecord::NormalBoilingPoint},
    {12, &CalcRecord::LiquidCp60},
    {13, &CalcRecord::LiquidCp300},
    {14, &CalcRecord::FlashPoint},
    {15, &CalcRecord::BulkModulusBase},
    {16, &CalcRecord::BulkModulusSlope},
    {17, &CalcRecord::LiquidLatentHeat},
}};

// A fifteenth column stands in the file; the suite has no use for it.
constexpr std::size_t GasColumns = 14;

constexpr std::array<Column, 12> GasNumbers = {{
    {3, &CalcRecord::CritVolume},
    {4, &CalcRecord::NormalBoilingPoint},
    {5, &CalcRecord::MolecularWeight},
    {6, &CalcRecord::CritTemperature},
    {7, &CalcRecord::ViscosityTemp1},
    {8, &CalcRecord::Viscosity1},
    {9, &CalcRecord::ViscosityTemp2},
    {10, &CalcRecord::Viscosity2},
    {11, &CalcRecord::CritPressure},
    {12, &CalcRecord::GasCp1},
    {13, &CalcRecord::GasCp2},
    {14, &CalcRecord::LatentHeatBP},
}};

// Columns 1 and 2 are texts in both tables.
void TakeColumns(std::span<const Column> numbers, std::size_t columns, double critRankine) {
    const Fields fields = SplitRow(Calc.FluidRow, columns);
    Calc.SelectedFluidName = Trim(fields[1]);
    Calc.FluidClass = fields[2];
    for (const Column& column : numbers) Calc.*column.Field = Val(fields[column.Number]);
    Calc.CritTemperature += critRankine;
    Rejoin(fields, columns, Calc.MessageText);
}

}  // namespace

std::vector<std::string> ReadFluidRows(std::string_view fluidType) {
    LineReader file(TablePath(fluidType));
    std::vector<std::string> rows;
    std::string line;
    if (!file.Next(line)) throw failure::InputPastEnd();
    while (file.Next(line)) rows.push_back(line);
    return rows;
}

std::string_view FluidRowName(std::string_view row) { return Trim(row.substr(0, row.find(','))); }

FluidConstants FluidConstantsOf(std::string_view row, bool isGas) {
    const Fields fields = SplitRow(row, isGas ? GasColumns : LiquidColumns);
    const auto number = [&fields](std::size_t column) { return Val(fields[column]); };
    const double weight = number(isGas ? 5 : 3);
    return {.Class = FluidClassOf(fields[2]),
            .MolecularWeight = weight,
            .Gravity = isGas ? weight / AirWeight : number(4),
            .BoilingPoint = number(isGas ? 4 : 11),
            .CritTemperature = number(isGas ? 6 : 5),
            .CritPressure = number(isGas ? 11 : 10)};
}

const char* FluidKindOf(int fluidClass) {
    if (fluidClass == fluidclass::Organic) return "Organic";
    return fluidClass == fluidclass::Water ? "Water" : "Other";
}

int FluidClassOf(std::string_view text) {
    const double number = Val(text);
    return number == fluidclass::Organic || number == fluidclass::Water ? static_cast<int>(number)
                                                                        : fluidclass::Inorganic;
}

int FindFluidName(const std::vector<std::string>& rows, std::string_view name) {
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [name](const std::string& row) { return FluidRowName(row) == name; });
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

void FindFluidRow() {
    try {
        LineReader file(TablePath(Calc.FluidType));
        std::string line;
        if (!file.Next(line)) throw failure::InputPastEnd();
        while (file.Next(line)) {
            if (FluidRowName(line) != Calc.FluidName) continue;
            Calc.FluidRow = line;
            return;
        }
    } catch (const RuntimeError&) {
        Calc.FluidRow.clear();
    }
}

void ParseLiquidRow() {
    TakeColumns(LiquidNumbers, LiquidColumns, RoundZeroFInDegR);
    const ViscosityLine line =
        ViscosityLineOf(Calc.ViscosityTemp1, Calc.Viscosity1, Calc.ViscosityTemp2, Calc.Viscosity2);
    Calc.ViscosityA = line.A;
    Calc.ViscosityB = line.B;
    Calc.FluidViscosity = ViscosityAt(line, Calc.FlowTemperature);
    Calc.LiquidSpecificHeat = LiquidSpecificHeatAt(Calc.LiquidCp60, Calc.LiquidCp300, Calc.FlowTemperature);
}

void ParseGasRow() { TakeColumns(GasNumbers, GasColumns, RoundZeroFInDegR); }

void ParseGasRowForMixture() { TakeColumns(GasNumbers, GasColumns, ZeroFInDegR); }

}  // namespace quillmetra
