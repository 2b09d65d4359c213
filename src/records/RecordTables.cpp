// See RecordTables.h.
#include "records/RecordTables.h"

#include <iterator>
#include <span>

#include "core/Words.h"

namespace quillmetra {

namespace {

constexpr FieldType T = FieldType::Text;
constexpr FieldType I = FieldType::Integer;
constexpr FieldType S = FieldType::Single;
constexpr FieldType D = FieldType::Date;

// A line of a descriptor array. In a name "%" stands for the word of each case and gives three fields, "#"
// for the same with "Normal Flow" in place of "Normal" (so the database has them), and "*" for a number from
// 0 to 15.
struct Line {
    const char* Name;
    FieldType Type;
    int Size;
    Place From;
    FieldRules Rules = {};
};

constexpr Cell CI(int row, int caseIndex = 0) { return {Group::CaseInput, row, caseIndex}; }
constexpr Cell CR(int row) { return {Group::CaseResult, row}; }
constexpr Cell PD(int row) { return {Group::PipeData, row}; }
constexpr Cell FC(int row) { return {Group::FittingCount, row}; }
constexpr Cell HR(int row) { return {Group::HammerResult, row}; }
constexpr Cell UF(int row) { return {Group::UnitFactor, row}; }
constexpr Cell UN(int row) { return {Group::UnitName, row}; }
constexpr Cell CT(int row) { return {Group::CaseText, row}; }
constexpr Cell HT(int row) { return {Group::HeadingText, row}; }

const Line HeadLines[] = {
    {"Tag", T, 30, Made::Tag},
    {"Fluid Type", T, 6, &CalcRecord::FluidType, {.Load = Loads::Never}},
    {"Program Number", I, 0, Made::ProgramNumber},
    {"Program Name", T, 60, Made::Title, {.Load = Loads::Never}},
    {"Fluid Name", T, 30, &CalcRecord::FluidName, {.Load = Loads::Never}},
    {"Basis", T, 3, Made::BasisInUse, {.Load = Loads::Never}},
    {"Calc By", T, 15, CT(8), {.Load = Loads::Never}},
    {"Approv By", T, 15, CT(9), {.Load = Loads::Never}},
    {"Data Date", D, 0, CT(11), {.Load = Loads::Never}},
    {"Calc Date", D, 0, CT(10), {.Load = Loads::Never}},
    {"Manufacturer", T, 30, HT(6)},
    {"Model", T, 30, HT(7)},
    {"Note 1", T, 60, HT(8)},
    {"Note 2", T, 60, HT(9)},
    {"Note 3", T, 60, HT(10)},
    {"Calc Option", T, 8, &CalcRecord::CalcOption},
    {"Other Calcs", T, 8, Made::OptionCodes},
    {"Single Spare", S, 0, Spare()},
};

// The program number is read from the head alone. The Reynolds number stands before the sonic velocity but is
// the later result row, and the critical temperature before the critical pressure.
const Line PressureDropLines[] = {
    {"Tag", T, 30, Made::Tag, {.Load = Loads::Never}},
    {"Fluid Type", T, 35, &CalcRecord::FluidType, {.Load = Loads::Never}},
    {"Program Number", I, 0, Made::ProgramNumber, {.Load = Loads::Never}},
    {"Program Title", T, 60, Made::Title},
    {"Fluid Name", T, 30, &CalcRecord::FluidName},
    {"Basis", T, 3, Made::BasisInUse},
    {"Entrance", S, 0, PD(4)},
    {"Gate Valves", I, 0, FC(1)},
    {"Globe Valves", I, 0, FC(2)},
    {"Check Valves", I, 0, FC(3)},
    {"90deg Ells", I, 0, FC(4)},
    {"45deg Ells", I, 0, FC(5)},
    {"Thru Tees", I, 0, FC(6)},
    {"Branch Tees", I, 0, FC(7)},
    {"Exit", S, 0, PD(5)},
    {"Pipe Length", S, 0, PD(1)},
    {"Pipe Size", S, 0, PD(2)},
    {"Start Elevation", S, 0, PD(3)},
    {"End Elevation", S, 0, CI(25)},
    {"Pipe Material Number", I, 0, &CalcRecord::PipeMaterialNumber},
    {"Pipe Material", T, 30, &CalcRecord::PipeMaterial},
    {"Pipe Fouling", T, 5, Made::Fouling},
    {"% Flow", S, 0, CI(1), {.GasRow = 0}},
    {"% Temperature", S, 0, Made::Temperature},
    {"# Source Pressure", S, 0, CI(3)},
    {"# Equip Loss", S, 0, CI(4)},
    {"% Viscosity", S, 0, CI(7)},
    {"% MW/SG", S, 0, CI(6), {.GasRow = 5}},
    {"% Spec Heat", S, 0, CI(10)},
    {"% Crit Temp", S, 0, CI(12)},
    {"% Crit Press", S, 0, CI(11)},
    {"% Loss/100", S, 0, CR(0)},
    {"% Final Pressure", S, 0, CR(1)},
    {"% Fluid Velocity", S, 0, CR(2)},
    {"% Reynolds Number", S, 0, CR(4)},
    {"# Sonic Velocity", S, 0, CR(3)},
    {"Equiv Length", S, 0, CR(5)},
    {"Calc By", T, 15, CT(8)},
    {"Approv By", T, 15, CT(9)},
    {"Data Date", D, 0, CT(11)},
    {"Calc Date", D, 0, CT(10)},
    {"PD Single Spare", S, 0, Spare()},
    {"PD Text Spare", T, 15, Spare()},
};

const Line UnitsLines[] = {
    {"Tag", T, 30, Made::Tag, {.Load = Loads::Never}},
    {"Flow Factor", S, 0, UF(1), {.GasRow = 0}},
    {"Flow Units", T, 8, UN(1), {.GasRow = 0}},
    {"Temperature Factor", S, 0, UF(2)},
    {"Temperature Units", T, 8, UN(2)},
    {"Pressure Factor", S, 0, UF(3)},
    {"Pressure Units", T, 8, UN(3)},
    {"Pressure Drop Factor", S, 0, UF(4)},
    {"Pressure Drop Units", T, 8, UN(4)},
    {"Latent Heat Factor", S, 0, UF(16)},
    {"Latent Heat Units", T, 8, UN(16)},
    {"Vapor Pressure Factor", S, 0, UF(8)},
    {"Vapor Pressure Units", T, 8, UN(8)},
    {"Viscosity Factor", S, 0, UF(7)},
    {"Viscosity Units", T, 8, UN(7)},
    {"Density Factor", S, 0, UF(9), {.LiquidRow = 6}},
    {"Density Units", T, 8, UN(9), {.LiquidRow = 6}},
    {"Critical Pressure Factor", S, 0, UF(11)},
    {"Critical Pressure Units", T, 8, UN(11)},
    {"Critical Temperature Factor", S, 0, UF(12)},
    {"Critical Temperature Units", T, 8, UN(12)},
    {"Modulus Factor", S, 0, UF(27)},
    {"Modulus Units", T, 8, UN(27)},
    {"Force Factor", S, 0, Made::ForceFactor},
    {"Force Units", T, 8, Made::ForceName},
    {"Pipe Size Factor", S, 0, UF(18)},
    {"Pipe Size Units", T, 8, UN(18)},
    {"Velocity Factor", S, 0, UF(20)},
    {"Velocity Units", T, 8, UN(20)},
    {"Length & Elevation Factor", S, 0, UF(25)},
    {"Length & Elevation Units", T, 8, UN(25)},
    {"Unit System", T, 10, &CalcRecord::UnitSystem},
    {"Unit Single Spare", S, 0, Spare()},
    {"Unit Text Spare", T, 8, Spare()},
};

const Line WaterhammerLines[] = {
    {"Tag", T, 30, Made::Tag, {.Load = Loads::Never}},
    {"Fluid Type", T, 6, Made::LiquidWord, {.Load = Loads::Never}},
    {"Program Number", I, 0, Made::ProgramNumber, {.Load = Loads::Never}},
    {"Program Title", T, 60, Made::Title},
    {"Liquid Name", T, 30, &CalcRecord::FluidName},
    {"Liquid Basis", T, 3, &CalcRecord::LiquidBasis},
    {"Flow", S, 0, CI(1)},
    {"Temperature", S, 0, Made::Temperature},
    {"Operating Pressure", S, 0, CI(3)},
    {"SG @ FTP", S, 0, CI(6)},
    {"Liquid Modulus", S, 0, CI(27)},
    {"Line Length", S, 0, CI(25)},
    {"Pipe Size", S, 0, CI(18)},
    {"Pipe Wall", S, 0, CI(18, 2)},
    {"Pipe Material", T, 30, &CalcRecord::PipeMaterial},
    {"Pipe Modulus", S, 0, CI(27, 1)},
    {"Allowable Pressure", S, 0, CI(3, 1)},
    {"Selected Time", S, 0, CI(10)},
    {"Critical Time", S, 0, HR(12)},
    {"Crit Wave Velocity", S, 0, HR(13)},
    {"Crit Pressure Wave", S, 0, HR(14)},
    {"Critical Pipe Force", S, 0, HR(15)},
    {"Minimum Time", S, 0, HR(16)},
    {"Selected Time Pressure Wave", S, 0, HR(17)},
    {"Selected Time Pipe Force", S, 0, HR(18)},
    {"Calc By", T, 15, CT(8)},
    {"Approv By", T, 15, CT(9)},
    {"Data Date", D, 0, CT(11)},
    {"Calc Date", D, 0, CT(10)},
    {"WH Single Spare", S, 0, Spare()},
    {"WH Text Spare", T, 30, Spare()},
};

// Two cells are written to two fields each; a load takes each cell from the field of its fluid type. The
// boiling point of case 3 is kept as text, unlike its neighbours: an oddity of the format.
const Line FluidDataLines[] = {
    {"Tag", T, 30, Made::Tag, {.Load = Loads::Never}},
    {"Fluid Type", T, 6, &CalcRecord::FluidType, {.Load = Loads::Never}},
    {"Program Number", I, 0, Made::ProgramNumber, {.Load = Loads::Never}},
    {"Program Title", T, 60, Made::Title},
    {"Fluid Name", T, 30, &CalcRecord::FluidName},
    {"Basis", T, 3, Made::BasisInUse},
    {"% Temperature", S, 0, Made::Temperature},
    {"% Pressure", S, 0, CI(3)},
    {"% MW", S, 0, CI(0), {.GasRow = 5}},
    {"% Spec Heat", S, 0, CI(10)},
    {"Case 1 Norm BP", S, 0, CI(4, 0)},
    {"Case 2 Norm BP", S, 0, CI(4, 1)},
    {"Case 3 Norm BP", T, 30, Made::NumberAsText},
    {"% Crit Pressure", S, 0, CI(11)},
    {"% Crit Temp", S, 0, CI(12)},
    {"% Density", S, 0, CI(9)},
    {"% Comp Factor", S, 0, CI(0), {.Load = Loads::ForGas}},
    {"% Viscosity", S, 0, CI(7)},
    {"% Vapor Pressure", S, 0, CI(8)},
    {"% Latent Heat", S, 0, CI(13)},
    {"% SG @ STP", S, 0, CI(5), {.Load = Loads::NotForGas}},
    {"% SG @ FTP", S, 0, CI(6)},
    {"% Flashpoint", S, 0, CI(1)},
    {"% Bulk Modulus", S, 0, CI(27)},
    {"Calc By", T, 15, CT(8)},
    {"Approv By", T, 15, CT(9)},
    {"Data Date", D, 0, CT(11)},
    {"Calc Date", D, 0, CT(10)},
    {"FD Single Spare", S, 0, Spare()},
    {"FD Text Spare", T, 30, Spare()},
};

// The shorter key stands.
const Line MixtureTagLine[] = {{"Tag", T, 25, Made::Tag, {.Load = Loads::Never}}};
const Line MixturePartLines[] = {
    {"Fluid Percent*", S, 0, Cell{Group::FluidPercent}},
    {"Fluid Data*", T, 110, Cell{Group::FluidData}},
};

const Line SettingsLines[] = {
    {"Tag", T, 30, Made::Tag, {.Load = Loads::Never}},
    {"Pressure Direction", I, 0, &CalcRecord::PressureDirection},
    {"Calc Mode", T, 8, &CalcRecord::CalcMode},
    {"Data Mode", T, 8, &CalcRecord::DataMode},
    {"Standard Temperature", S, 0, &CalcRecord::StdTemperature},
    {"Standard Pressure", S, 0, &CalcRecord::StdPressure},
    {"Barometric Pressure", S, 0, &CalcRecord::BaroPressure},
    {"% Vapor Pressure", S, 0, CI(8)},
    {"% Density", S, 0, CI(9)},
    {"% Latent Heat at BP", S, 0, CI(16)},
};

RecordField FieldOf(const Line& line, std::string name, int caseIndex) {
    RecordField field{{std::move(name), line.Type, line.Size}, line.From, line.Rules};
    if (caseIndex > 0) {
        field.Case = caseIndex;
        if (auto* cell = std::get_if<Cell>(&field.From)) cell->Case = caseIndex;
    }
    return field;
}

void Append(std::vector<RecordField>& fields, const Line& line, std::span<const char* const> caseWords) {
    const std::string name = line.Name;
    if (const std::size_t mark = name.find_first_of("%#"); mark != std::string::npos) {
        for (int i = 0; i < CaseCount; ++i) {
            std::string word = caseWords[static_cast<std::size_t>(i)];
            if (name[mark] == '#' && word == "Normal") word += " Flow";
            fields.push_back(FieldOf(line, name.substr(0, mark) + word + name.substr(mark + 1), i));
        }
        return;
    }
    fields.push_back(FieldOf(line, name, 0));
    if (name == "Case 3 Norm BP") fields.back().Case = 2;
}

RecordTable TableOf(const char* name, std::span<const Line> lines, const char* notFound = "",
                    bool fluidCases = false) {
    static constexpr const char* lineWords[] = {"Case 1", "Normal", "Case 2"};
    static constexpr const char* fluidWords[] = {"Case 1", "Case 2", "Case 3"};
    RecordTable table;
    for (const Line& line : lines) Append(table.Fields, line, fluidCases ? fluidWords : lineWords);
    table.Shape.Name = name;
    for (const RecordField& field : table.Fields) table.Shape.Fields.push_back(field.Shape);
    table.NotFound = notFound;
    return table;
}

RecordTable MakeMixtureTable() {
    RecordTable table = TableOf("Fluid Mixtures", MixtureTagLine, " in Mixture Table");
    for (int i = 0; i < 16; ++i) {
        for (const Line& line : MixturePartLines) {
            std::string name = line.Name;
            name.pop_back();
            name += std::to_string(i);
            RecordField field = FieldOf(line, std::move(name), 0);
            std::get<Cell>(field.From).Row = i;
            table.Shape.Fields.push_back(field.Shape);
            table.Fields.push_back(std::move(field));
        }
    }
    return table;
}

}  // namespace

const RecordTable& HeadTable() {
    static const RecordTable table = TableOf("Process Calculations", HeadLines, " in Calculation Table");
    return table;
}

const RecordTable& UnitsTable() {
    static const RecordTable table = TableOf("Units", UnitsLines, " in Units Table");
    return table;
}

const RecordTable& FluidDataTable() {
    static const RecordTable table = TableOf("Fluid Data Calculations", FluidDataLines, " in FD Table", true);
    return table;
}

const RecordTable& PressureDropTable() {
    static const RecordTable table = TableOf("Pressure Drop Calculations", PressureDropLines, " in PD Table");
    return table;
}

const RecordTable& WaterhammerTable() {
    static const RecordTable table = TableOf("Waterhammer Calculations", WaterhammerLines, " in WH Table");
    return table;
}

const RecordTable& MixtureTable() {
    static const RecordTable table = MakeMixtureTable();
    return table;
}

const RecordTable& SettingsTable() {
    static const RecordTable table = TableOf("Calculation Settings", SettingsLines);
    return table;
}

const std::vector<const RecordTable*>& RecordTables() {
    static const std::vector<const RecordTable*> tables = {
        &HeadTable(),        &UnitsTable(),   &FluidDataTable(), &PressureDropTable(),
        &WaterhammerTable(), &MixtureTable(), &SettingsTable()};
    return tables;
}

const RecordTable* ProgramTable(int program) {
    switch (program) {
        case 1:
        case 2: return &PressureDropTable();
        case 3: return &WaterhammerTable();
        case 4:
        case 5: return &FluidDataTable();
        default: return nullptr;
    }
}

int CellRow(const RecordField& field) {
    if (field.Rules.GasRow >= 0 && Calc.FluidType == words::Gas) return field.Rules.GasRow;
    if (field.Rules.LiquidRow >= 0 && Calc.FluidType == words::Liquid) return field.Rules.LiquidRow;
    return std::get<Cell>(field.From).Row;
}

}  // namespace quillmetra
