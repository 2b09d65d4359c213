// See RecordTables.h.
#include "records/RecordTables.h"

#include <iterator>
#include <span>

#include "core/Programs.h"
#include "core/Words.h"
#include "records/OptionCodes.h"
#include "records/TextLengths.h"
#include "units/UnitCatalogue.h"

namespace quillmetra {

namespace {

constexpr FieldType T = FieldType::Text;
constexpr FieldType I = FieldType::Integer;
constexpr FieldType S = FieldType::Single;
constexpr FieldType D = FieldType::Date;
constexpr int UnitLetters = LongestUnitName;

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
    {"Tag", T, longest::Tag, Made::Tag},
    {"Fluid Type", T, 6, &CalcRecord::FluidType, {.Load = Loads::Never}},
    {"Program Number", I, 0, Made::ProgramNumber},
    {"Program Name", T, longest::ProgramTitle, Made::Title, {.Load = Loads::Never}},
    {"Fluid Name", T, longest::Fluid, &CalcRecord::FluidName, {.Load = Loads::Never}},
    {"Basis", T, 3, Made::BasisInUse, {.Load = Loads::Never}},
    {"Calc By", T, longest::Name, CT(text::CalcBy), {.Load = Loads::Never}},
    {"Approv By", T, longest::Name, CT(text::ApprovedBy), {.Load = Loads::Never}},
    {"Data Date", D, 0, CT(text::DataDate), {.Load = Loads::Never}},
    {"Calc Date", D, 0, CT(text::CalcDate), {.Load = Loads::Never}},
    {"Manufacturer", T, longest::Maker, HT(heading::Manufacturer)},
    {"Model", T, longest::Maker, HT(heading::Model)},
    {"Note 1", T, longest::Note, HT(heading::Note1)},
    {"Note 2", T, longest::Note, HT(heading::Note2)},
    {"Note 3", T, longest::Note, HT(heading::Note3)},
    {"Calc Option", T, 8, &CalcRecord::CalcOption},
    {"Other Calcs", T, 8, Made::OptionCodes},
    {"Single Spare", S, 0, Spare()},
};

// The program number is read from the head alone. The Reynolds number stands before the sonic velocity but is
// the later result row, and the critical temperature before the critical pressure.
const Line PressureDropLines[] = {
    {"Tag", T, longest::Tag, Made::Tag, {.Load = Loads::Never}},
    {"Fluid Type", T, 35, &CalcRecord::FluidType, {.Load = Loads::Never}},
    {"Program Number", I, 0, Made::ProgramNumber, {.Load = Loads::Never}},
    {"Program Title", T, longest::ProgramTitle, Made::Title},
    {"Fluid Name", T, longest::Fluid, &CalcRecord::FluidName},
    {"Basis", T, 3, Made::BasisInUse},
    {"Entrance", S, 0, PD(pipe::Entrance)},
    {"Gate Valves", I, 0, FC(fitting::GateValves)},
    {"Globe Valves", I, 0, FC(fitting::GlobeValves)},
    {"Check Valves", I, 0, FC(fitting::CheckValves)},
    {"90deg Ells", I, 0, FC(fitting::Ells90)},
    {"45deg Ells", I, 0, FC(fitting::Ells45)},
    {"Thru Tees", I, 0, FC(fitting::ThruTees)},
    {"Branch Tees", I, 0, FC(fitting::BranchTees)},
    {"Exit", S, 0, PD(pipe::Exit)},
    {"Pipe Length", S, 0, PD(pipe::Length), {.Unit = "Length & Elevation Units"}},
    {"Pipe Size", S, 0, PD(pipe::InsideDiameter), {.Unit = "Pipe Size Units"}},
    {"Start Elevation", S, 0, PD(pipe::StartElevation), {.Unit = "Length & Elevation Units"}},
    {"End Elevation", S, 0, CI(input::EndElevation), {.Unit = "Length & Elevation Units"}},
    {"Pipe Material Number", I, 0, &CalcRecord::PipeMaterialNumber},
    {"Pipe Material", T, longest::Material, &CalcRecord::PipeMaterial},
    {"Pipe Fouling", T, 5, Made::Fouling, {.Unit = "%"}},
    {"% Flow", S, 0, CI(input::LiquidFlow), {.GasRow = input::GasFlow, .Unit = "Flow Units"}},
    {"% Temperature", S, 0, Made::Temperature, {.Unit = "Temperature Units"}},
    {"# Source Pressure", S, 0, CI(input::Pressure), {.Unit = "Pressure Units"}},
    {"# Equip Loss", S, 0, CI(input::EquipLoss), {.Unit = "Pressure Drop Units"}},
    {"% Viscosity", S, 0, CI(input::Viscosity), {.Unit = "Viscosity Units"}},
    {"% MW/SG", S, 0, CI(input::FlowGravity), {.GasRow = input::MolecularWeight}},
    {"% Spec Heat", S, 0, CI(input::RatioSpecificHeats)},
    {"% Crit Temp", S, 0, CI(input::CritTemperature), {.Unit = "Critical Temperature Units"}},
    {"% Crit Press", S, 0, CI(input::CritPressure), {.Unit = "Critical Pressure Units"}},
    {"% Loss/100", S, 0, CR(result::LossPer100), {.Unit = "Pressure Drop Units"}},
    {"% Final Pressure", S, 0, CR(result::FinalPressure), {.Unit = "Pressure Units"}},
    {"% Fluid Velocity", S, 0, CR(result::Velocity), {.Unit = "Velocity Units"}},
    {"% Reynolds Number", S, 0, CR(result::ReynoldsNumber)},
    {"# Sonic Velocity", S, 0, CR(result::SonicVelocity), {.Unit = "Velocity Units"}},
    {"Equiv Length", S, 0, CR(result::EquivLength), {.Unit = "Length & Elevation Units"}},
    {"Calc By", T, longest::Name, CT(text::CalcBy)},
    {"Approv By", T, longest::Name, CT(text::ApprovedBy)},
    {"Data Date", D, 0, CT(text::DataDate)},
    {"Calc Date", D, 0, CT(text::CalcDate)},
    {"PD Single Spare", S, 0, Spare()},
    {"PD Text Spare", T, 15, Spare()},
};

const Line UnitsLines[] = {
    {"Tag", T, longest::Tag, Made::Tag, {.Load = Loads::Never}},
    {"Flow Factor", S, 0, UF(unit::LiquidFlow), {.GasRow = unit::GasFlow}},
    {"Flow Units", T, UnitLetters, UN(unit::LiquidFlow), {.GasRow = unit::GasFlow}},
    {"Temperature Factor", S, 0, UF(unit::Temperature)},
    {"Temperature Units", T, UnitLetters, UN(unit::Temperature)},
    {"Pressure Factor", S, 0, UF(unit::Pressure)},
    {"Pressure Units", T, UnitLetters, UN(unit::Pressure)},
    {"Pressure Drop Factor", S, 0, UF(unit::PressureDrop)},
    {"Pressure Drop Units", T, UnitLetters, UN(unit::PressureDrop)},
    {"Latent Heat Factor", S, 0, UF(unit::LatentHeat)},
    {"Latent Heat Units", T, UnitLetters, UN(unit::LatentHeat)},
    {"Vapor Pressure Factor", S, 0, UF(unit::VaporPressure)},
    {"Vapor Pressure Units", T, UnitLetters, UN(unit::VaporPressure)},
    {"Viscosity Factor", S, 0, UF(unit::Viscosity)},
    {"Viscosity Units", T, UnitLetters, UN(unit::Viscosity)},
    {"Density Factor", S, 0, UF(unit::Density), {.LiquidRow = unit::LiquidDensity}},
    {"Density Units", T, UnitLetters, UN(unit::Density), {.LiquidRow = unit::LiquidDensity}},
    {"Critical Pressure Factor", S, 0, UF(unit::CritPressure)},
    {"Critical Pressure Units", T, UnitLetters, UN(unit::CritPressure)},
    {"Critical Temperature Factor", S, 0, UF(unit::CritTemperature)},
    {"Critical Temperature Units", T, UnitLetters, UN(unit::CritTemperature)},
    {"Modulus Factor", S, 0, UF(unit::Modulus)},
    {"Modulus Units", T, UnitLetters, UN(unit::Modulus)},
    {"Force Factor", S, 0, Made::ForceFactor},
    {"Force Units", T, UnitLetters, Made::ForceName},
    {"Pipe Size Factor", S, 0, UF(unit::PipeSize)},
    {"Pipe Size Units", T, UnitLetters, UN(unit::PipeSize)},
    {"Velocity Factor", S, 0, UF(unit::Velocity)},
    {"Velocity Units", T, UnitLetters, UN(unit::Velocity)},
    {"Length & Elevation Factor", S, 0, UF(unit::Length)},
    {"Length & Elevation Units", T, UnitLetters, UN(unit::Length)},
    {"Unit System", T, 10, &CalcRecord::UnitSystem},
    {"Unit Single Spare", S, 0, Spare()},
    {"Unit Text Spare", T, 8, Spare()},
};

const Line WaterhammerLines[] = {
    {"Tag", T, longest::Tag, Made::Tag, {.Load = Loads::Never}},
    {"Fluid Type", T, 6, Made::LiquidWord, {.Load = Loads::Never}},
    {"Program Number", I, 0, Made::ProgramNumber, {.Load = Loads::Never}},
    {"Program Title", T, longest::ProgramTitle, Made::Title},
    {"Liquid Name", T, longest::Fluid, &CalcRecord::FluidName},
    {"Liquid Basis", T, 3, &CalcRecord::LiquidBasis},
    {"Flow", S, 0, CI(input::LiquidFlow), {.Unit = "Flow Units"}},
    {"Temperature", S, 0, Made::Temperature, {.Unit = "Temperature Units"}},
    {"Operating Pressure", S, 0, CI(input::Pressure), {.Unit = "Pressure Units"}},
    {"SG @ FTP", S, 0, CI(input::FlowGravity)},
    {"Liquid Modulus", S, 0, CI(input::Modulus), {.Unit = "Modulus Units"}},
    {"Line Length", S, 0, CI(input::LineLength), {.Unit = "Length & Elevation Units"}},
    {"Pipe Size", S, 0, CI(input::PipeSize), {.Unit = "Pipe Size Units"}},
    {"Pipe Wall", S, 0, CI(input::PipeSize, column::Wall), {.Unit = "Pipe Size Units"}},
    {"Pipe Material", T, longest::Material, &CalcRecord::PipeMaterial},
    {"Pipe Modulus", S, 0, CI(input::Modulus, column::OfPipe), {.Unit = "Modulus Units"}},
    {"Allowable Pressure", S, 0, CI(input::Pressure, column::Allowable), {.Unit = "Pressure Units"}},
    {"Selected Time", S, 0, CI(input::SelectedTime), {.Unit = "secs"}},
    {"Critical Time", S, 0, HR(wave::CriticalTime), {.Unit = "secs"}},
    {"Crit Wave Velocity", S, 0, HR(wave::Velocity), {.Unit = "Velocity Units"}},
    {"Crit Pressure Wave", S, 0, HR(wave::Pressure), {.Unit = "Pressure Units"}},
    {"Critical Pipe Force", S, 0, HR(wave::Force), {.Unit = "Force Units"}},
    {"Minimum Time", S, 0, HR(wave::MinimumTime), {.Unit = "secs"}},
    {"Selected Time Pressure Wave", S, 0, HR(wave::SelectedPressure), {.Unit = "Pressure Units"}},
    {"Selected Time Pipe Force", S, 0, HR(wave::SelectedForce), {.Unit = "Force Units"}},
    {"Calc By", T, longest::Name, CT(text::CalcBy)},
    {"Approv By", T, longest::Name, CT(text::ApprovedBy)},
    {"Data Date", D, 0, CT(text::DataDate)},
    {"Calc Date", D, 0, CT(text::CalcDate)},
    {"WH Single Spare", S, 0, Spare()},
    {"WH Text Spare", T, 30, Spare()},
};

// Two cells are written to two fields each; a load takes each cell from the field of its fluid type. The
// boiling point of case 3 is kept as text, unlike its neighbours: an oddity of the format.
const Line FluidDataLines[] = {
    {"Tag", T, longest::Tag, Made::Tag, {.Load = Loads::Never}},
    {"Fluid Type", T, 6, &CalcRecord::FluidType, {.Load = Loads::Never}},
    {"Program Number", I, 0, Made::ProgramNumber, {.Load = Loads::Never}},
    {"Program Title", T, longest::ProgramTitle, Made::Title},
    {"Fluid Name", T, longest::Fluid, &CalcRecord::FluidName},
    {"Basis", T, 3, Made::BasisInUse},
    {"% Temperature", S, 0, Made::Temperature, {.Unit = "Temperature Units"}},
    {"% Pressure", S, 0, CI(input::Pressure), {.Unit = "Pressure Units"}},
    {"% MW", S, 0, CI(input::LiquidWeight), {.GasRow = input::MolecularWeight}},
    {"% Spec Heat", S, 0, CI(input::RatioSpecificHeats)},
    {"Case 1 Norm BP", S, 0, CI(input::BoilingPoint, 0), {.Unit = "Temperature Units"}},
    {"Case 2 Norm BP", S, 0, CI(input::BoilingPoint, 1), {.Unit = "Temperature Units"}},
    {"Case 3 Norm BP", T, 30, Made::NumberAsText, {.Unit = "Temperature Units"}},
    {"% Crit Pressure", S, 0, CI(input::CritPressure), {.Unit = "Critical Pressure Units"}},
    {"% Crit Temp", S, 0, CI(input::CritTemperature), {.Unit = "Critical Temperature Units"}},
    {"% Density", S, 0, CI(input::Density), {.Unit = "Density Units"}},
    {"% Comp Factor", S, 0, CI(input::CompressFactor), {.Load = Loads::ForGas}},
    {"% Viscosity", S, 0, CI(input::Viscosity), {.Unit = "Viscosity Units"}},
    {"% Vapor Pressure", S, 0, CI(input::VaporPressure), {.Unit = "Vapor Pressure Units"}},
    {"% Latent Heat", S, 0, CI(input::LatentHeat), {.Unit = "Latent Heat Units"}},
    {"% SG @ STP", S, 0, CI(input::StandardGravity), {.Load = Loads::NotForGas}},
    {"% SG @ FTP", S, 0, CI(input::FlowGravity)},
    {"% Flashpoint", S, 0, CI(input::FlashPoint), {.Unit = "Temperature Units"}},
    {"% Bulk Modulus", S, 0, CI(input::Modulus), {.Unit = "Modulus Units"}},
    {"Calc By", T, longest::Name, CT(text::CalcBy)},
    {"Approv By", T, longest::Name, CT(text::ApprovedBy)},
    {"Data Date", D, 0, CT(text::DataDate)},
    {"Calc Date", D, 0, CT(text::CalcDate)},
    {"FD Single Spare", S, 0, Spare()},
    {"FD Text Spare", T, 30, Spare()},
};

// The shorter key stands.
const Line MixtureTagLine[] = {{"Tag", T, 25, Made::Tag, {.Load = Loads::Never}}};
const Line MixturePartLines[] = {
    {"Fluid Percent*", S, 0, Cell{Group::FluidPercent}, {.Unit = "%"}},
    {"Fluid Data*", T, 110, Cell{Group::FluidData}},
};

const Line SettingsLines[] = {
    {"Tag", T, longest::Tag, Made::Tag, {.Load = Loads::Never}},
    {"Pressure Direction", I, 0, &CalcRecord::PressureDirection},
    {"Calc Mode", T, 8, &CalcRecord::CalcMode},
    {"Data Mode", T, 8, &CalcRecord::DataMode},
    {"Standard Temperature", S, 0, &CalcRecord::StdTemperature, {.Unit = "degF"}},
    {"Standard Pressure", S, 0, &CalcRecord::StdPressure, {.Unit = "psia"}},
    {"Barometric Pressure", S, 0, &CalcRecord::BaroPressure, {.Unit = "psia"}},
    {"% Vapor Pressure", S, 0, CI(input::VaporPressure), {.Unit = "Vapor Pressure Units"}},
    {"% Density", S, 0, CI(input::Density), {.Unit = "Density Units"}},
    {"% Latent Heat at BP", S, 0, CI(input::BoilingLatentHeat), {.Unit = "Latent Heat Units"}},
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
        case program::LiquidLine:
        case program::GasLine: return &PressureDropTable();
        case program::WaterHammer: return &WaterhammerTable();
        case program::LiquidData:
        case program::GasData: return &FluidDataTable();
        default: return nullptr;
    }
}

bool HasRowIn(const RecordTable& table, int program, std::string_view otherCalcs) {
    if (&table == &HeadTable() || &table == &UnitsTable() || &table == &SettingsTable()) return true;
    if (&table == &MixtureTable()) return HasCode(otherCalcs, code::Mixture);
    return &table == ProgramTable(program);
}

int CellRow(const RecordField& field) {
    if (field.Rules.GasRow >= 0 && Calc.FluidType == words::Gas) return field.Rules.GasRow;
    if (field.Rules.LiquidRow >= 0 && Calc.FluidType == words::Liquid) return field.Rules.LiquidRow;
    return std::get<Cell>(field.From).Row;
}

}  // namespace quillmetra
