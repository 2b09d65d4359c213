// See ListRecord.h.
#include "forms/ListRecord.h"

#include <algorithm>
#include <cmath>

#include "core/Filling.h"
#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "forms/DataCheck.h"
#include "forms/FluidForm.h"
#include "forms/ListCells.h"
#include "forms/LoadDefaults.h"
#include "forms/PanelReturn.h"
#include "forms/RecordInHand.h"
#include "lineloss/PipeMaterials.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/TextCase.h"
#include "records/OptionCodes.h"
#include "records/RecordTransfer.h"
#include "records/SaveRecord.h"
#include "tables/PipeSizes.h"
#include "units/NamedUnitSets.h"

namespace quillmetra {

namespace {

bool IsEmpty(const FieldValue& value) { return ValueText(value).empty(); }

bool IsOneOf(std::string_view name, std::initializer_list<const char*> names) {
    return std::ranges::find(names, name) != names.end();
}

// What the suite writes by itself may come out another one than the list has.
bool IsTheSuites(const RecordColumn& column) {
    return column.Kind == ColumnKind::Result ||
           IsOneOf(column.Name,
                   {"Program Number", "Program Name", "Calc Option", "Other Calcs", "Calc Date"});
}

int SetOfNumber(int programNumber) { return HasUnitSet(programNumber) ? programNumber % 100 : 0; }
int SetOfNumber(const FieldValue& programNumber) {
    const auto* number = std::get_if<double>(&programNumber);
    return number == nullptr ? 0 : SetOfNumber(static_cast<int>(*number));
}

std::string InOneLine(std::string text) {
    std::ranges::replace(text, '\n', ' ');
    return std::string(Trim(text));
}

// 0 for a name that is none.
int MaterialNumber(const std::string& name) {
    const auto found = std::ranges::find_if(
        PipeMaterials, [&name](const PipeMaterial& material) { return SameName(name, material.Name); });
    return found == PipeMaterials.end() ? 0 : static_cast<int>(found - PipeMaterials.begin()) + 1;
}

}  // namespace

const ListRecords::Given* ListRecords::Row::Find(std::string_view column) const {
    const auto found = std::ranges::find_if(
        Cells, [column](const Given& given) { return given.Of->Name == column && !IsEmpty(given.Value); });
    return found == Cells.end() ? nullptr : &*found;
}

std::function<bool(const std::string&)> ListRecords::Row::Has() const {
    return [this](const std::string& column) { return Find(column) != nullptr; };
}

int ListRecords::UnitSetOf(const Row& row) {
    const Given* const number = row.Find("Program Number");
    return number == nullptr ? 0 : SetOfNumber(number->Value);
}

std::string ListRecords::TagOf(const ListHeads& heads, const SheetRow& row) {
    const auto cell = std::ranges::find(row.Cells, heads.TagColumn(), &SheetCell::Column);
    if (cell == row.Cells.end()) throw ListRefusal{"Tag", "the row has no tag"};
    try {
        return ValueText(CellValue(*FindColumn("Tag"), *cell, false));
    } catch (const ListRefusal& refusal) {
        throw ListRefusal{"Tag", refusal.Reason};
    }
}

// By its number, with a unit set behind it or not, or by its name.
int ListRecords::ProgramOf(const ListHeads& heads, const SheetRow& row,
                           const std::optional<RecordRows>& stored) {
    if (const SheetCell* cell = heads.Find(row, "Program Number")) {
        const int number =
            cell->Number && std::abs(*cell->Number) < 1000 ? static_cast<int>(*cell->Number) : 0;
        const Program* const program = FindProgram(quillmetra::ProgramOf(number));
        if (program == nullptr || *cell->Number != number)
            throw ListRefusal{"Program Number", QuotedCell(*cell) + " is none of the programs 1 to 5"};
        if (SetOfNumber(number) > UserUnitSet)
            throw ListRefusal{"Program Number", QuotedCell(*cell) + " is of none of the unit sets 1 to 5"};
        return program->Number;
    }
    if (const SheetCell* cell = heads.Find(row, "Program Name")) {
        for (const Program& program : Programs) {
            if (SameName(program.Title, Trim(cell->Text))) return program.Number;
        }
    }
    if (stored) return stored->Program();
    throw ListRefusal{"Program Number", "a new record needs the number of its program, 1 to 5"};
}

ListRecords::Row ListRecords::RowOf(const ListHeads& heads, const SheetRow& row, int program) {
    Row made{program, false, {}, {}};
    for (const ListHeads::Head& head : heads.Of(program)) {
        if (!head.Of->IsOf(program)) continue;
        if (head.Of->Name == "Calc Date") made.KnowsDates = true;
        const auto cell = std::ranges::find(row.Cells, head.Column, &SheetCell::Column);
        if (cell == row.Cells.end()) continue;  // what is on file stays
        if (head.Of->Kind == ColumnKind::Result) {
            if (cell->Number && *cell->Number != 0)
                made.Results.push_back({head.Of, *cell->Number, heads.NameOf(head.Column)});
            continue;
        }
        try {
            made.Cells.push_back(
                {head.Of, CellValue(*head.Of, *cell, heads.HasDecimalCommas()), heads.NameOf(head.Column)});
        } catch (const ListRefusal& refusal) {
            throw ListRefusal{heads.NameOf(head.Column), refusal.Reason};
        }
    }
    return made;
}

// What the form of a program begins with, by its unit set.
const RecordRows& ListRecords::Fresh(int program, int unitSet) {
    const auto found = fresh_.find({program, unitSet});
    if (found != fresh_.end()) return found->second;
    const HeldMessages held(Questions::Answered);
    const bool isGas = program::IsOfGas(program);
    Calc.CurrentProgram = program;
    Calc.FluidType = FindProgram(program)->FluidType;
    (isGas ? Calc.GasUnitSet : Calc.LiquidUnitSet) = unitSet;
    ResetRecord();
    LoadDefaults();
    Calc.InCalculation = words::No;
    Calc.ProgramTitle = FindProgram(program)->Title;
    Calc.HeadingText[heading::Note1].clear();
    Calc.HeadingText[heading::Note2].clear();
    const FormsOfRecord forms;
    UnloadForm(FindProgram(program)->Form);
    LoadForm(FindProgram(program)->Form);
    if (auto* const form = dynamic_cast<FluidForm*>(OpenCalculation())) form->StoreForm();
    if (unitSet == UserUnitSet && !held.Texts().empty())
        throw ListRefusal{"Program Number", "there is no unit set of the user"};
    Calc.OtherCalcs = words::NoCodes;
    return fresh_[{program, unitSet}] = RowsOfRecord();
}

FieldValue ListRecords::Kept(const Given& given) {
    if (given.Of->IsExtra()) return given.Value;
    try {
        return KeptValue(given.Of->At.Table->Shape.Fields[given.Of->At.Field], given.Value);
    } catch (const RuntimeError& error) {
        throw ListRefusal{given.Head, error.Description};
    }
}

void ListRecords::Put(RecordRows& rows, const Given& given) {
    try {
        rows.Set(*given.Of, given.Value);
    } catch (const RuntimeError& error) {
        throw ListRefusal{given.Head, error.Description};
    }
}

// Of number and name the one that the list gives brings the other; both must be of one material.
void ListRecords::PutMaterial(RecordRows& rows, const Row& row) {
    if (!program::IsLine(row.Program)) return;
    const RecordColumn& nameColumn = *FindColumn("Pipe Material", row.Program);
    const Given* const name = row.Find(nameColumn.Name);
    const Given* const given = row.Find("Pipe Material Number");
    const auto* value = given == nullptr ? nullptr : std::get_if<double>(&given->Value);
    const int number = value == nullptr ? 0 : static_cast<int>(*value);
    if (name == nullptr) {
        if (given == nullptr) return;
        const PipeMaterial* const material = FindPipeMaterial(number);
        if (material == nullptr) throw ListRefusal{given->Head, "materials have the numbers 1 to 7"};
        return rows.Set(nameColumn, std::string(material->Name));
    }
    const std::string text = ValueText(name->Value);
    const int named = MaterialNumber(text);
    if (given != nullptr && named != 0 && named != number)
        throw ListRefusal{name->Head, text + " has the number " + std::to_string(named)};
    if (given != nullptr) return;
    if (named == 0) throw ListRefusal{name->Head, text + " is none of the pipe materials"};
    rows.Set(nameColumn, std::string(FindPipeMaterial(named)->Name));
    rows.Set(*FindColumn("Pipe Material Number"), static_cast<double>(named));
}

// A diameter that is typed over has no name any more.
void ListRecords::DropPipeName(RecordRows& rows, const Row& row, const std::optional<RecordRows>& stored) {
    if (!stored || row.Find("Pipe") != nullptr) return;
    for (const char* column : {"Pipe Size", "Pipe Wall"}) {
        const RecordColumn* const size = FindColumn(column, row.Program);
        const Given* const given = size == nullptr ? nullptr : row.Find(size->Name);
        if (given != nullptr && !AreAlike(stored->Value(*size), Kept(*given)))
            rows.Set(*FindColumn("Pipe"), std::string());
    }
}

// A pipe that is named without its diameter has that of its table; with it, both must agree.
void ListRecords::PutPipe(const RecordRows& rows, const Row& row, const std::optional<RecordRows>& stored) {
    const Given* const pipe = row.Find("Pipe");
    const Program* const program = FindProgram(row.Program);
    if (pipe == nullptr || *program->PipeWord == '\0') return;
    const std::string name = ValueText(pipe->Value);
    const bool isLine = program::IsLine(row.Program);
    const RecordColumn& column = *FindColumn("Pipe Size", row.Program);
    const Given* const size = row.Find(column.Name);
    const bool isAsStored = stored && SameValue(stored->Value(*pipe->Of), pipe->Value) &&
                            (size == nullptr || SameValue(stored->Value(column), rows.Value(column)));
    if (isAsStored) return;
    const Setting family(Suite.PipeFamily, "", "");
    const std::string line = TakePipeNamed(name);
    if (line.empty() && size != nullptr) return;  // of a table that is not here
    if (line.empty())
        throw ListRefusal{pipe->Head, name + " is in no table of pipe, which have names as 6 in sch 40"};
    if (size == nullptr) {
        Calc.MessageText = program->PipeWord;
        TakePipeRow(line);
        return ReturnPipeSize(name);
    }
    const double is = isLine ? Calc.PipeData[pipe::InsideDiameter] : Calc.CaseInput[input::PipeSize][0];
    const double has = PipeDiameterOf(line);
    constexpr double sixFigures = 2e-5;
    if (std::fabs(is - has) > sixFigures * has)
        throw ListRefusal{pipe->Head, name + " has an inside diameter of " + TrimmedStr(has) + ", not of " +
                                          TrimmedStr(is)};
}

// By the name that the list has for the box that is to be mended.
void ListRecords::RefuseFirst(const DataRefusals& refusals, const Row& row) {
    if (refusals.All().empty()) return;
    const DataRefusals::Refusal& first = refusals.All().front();
    const std::string column = ColumnOfBox(first.Box);
    const auto given =
        std::ranges::find_if(row.Cells, [&column](const Given& each) { return each.Of->Name == column; });
    throw ListRefusal{given == row.Cells.end() ? column : given->Head, InOneLine(first.Text)};
}

// Values that went by a gravity which is not their own: nobody would see that they became others.
void ListRecords::CheckGravity(const RecordRows& rows, const Row& row, const RecordRows& stored,
                               bool misleads) const {
    const Given* const name = row.Find("Fluid Name");
    const bool isOther = name != nullptr && !SameValue(stored.Value(*name->Of), rows.Value(*name->Of));
    const bool isAnother = renews_ && (isOther || !program::IsOfGas(row.Program));
    if (!isAnother && !misleads) return;
    const std::string column = FirstByGravity(rows, stored, row.Has());
    if (column.empty()) return;
    throw ListRefusal{
        row.Find(column)->Head,
        "mass becomes volume here by a gravity that is another one: give it in the unit on file"};
}

// A list that knows the dates of new calculations keeps them; what it changes is of today.
bool ListRecords::IsDatedToday(const Row& row, const std::optional<RecordRows>& stored) {
    const Given* const date = row.Find("Calc Date");
    if (!stored) return !row.KnowsDates;
    return date == nullptr || SameValue(stored->Value(*date->Of), date->Value);
}

// What a cell says must be what the record then has, before and behind the calculation.
void ListRecords::CheckTaken(const Row& row, const RecordRows& before, const RecordRows& after,
                             bool hasOtherFluid) {
    for (const Given& given : row.Cells) {
        if (IsTheSuites(*given.Of) || IsEmpty(given.Value)) continue;
        if (hasOtherFluid && IsProperty(*given.Of)) continue;
        const FieldValue has = before.Value(*given.Of), is = after.Value(*given.Of);
        if (AreAlike(has, is)) continue;
        throw ListRefusal{given.Head, ValueText(has) + " is not taken" +
                                          (IsEmpty(is) ? "" : ": the calculation has " + ValueText(is))};
    }
}

// The record in hand goes from the units of the list to its own.
void ListRecords::ReturnToUnits(RecordRows& rows, const Row& row, const RecordRows& stored,
                                const ListUnits& own) const {
    CheckTaken(row, rows, RowsOfRecord(), false);
    CheckGravity(rows, row, stored, ConvertRecordInHand(own));
    const RecordRows list = std::exchange(rows, RowsOfRecord());
    TakeFigures(rows, list, stored, row.Has());
    TakeRecordRows(rows);
}

void ListRecords::TellMissing(Made& made, const Row& row) {
    const bool hasResult = std::ranges::any_of(RecordColumns(), [&made, &row](const RecordColumn& column) {
        if (column.Kind != ColumnKind::Result || !column.IsOf(row.Program)) return false;
        const FieldValue is = made.Rows.Value(column);
        return !IsEmpty(is) && is != FieldValue(0.0);
    });
    if (!hasResult && made.Told.empty())
        made.Told.emplace_back("no case has all its data: nothing is calculated");
    for (const Given& result : row.Results) {
        const FieldValue is = made.Rows.Value(*result.Of);
        if (!IsEmpty(is) && is != FieldValue(0.0)) continue;
        made.Told.push_back(result.Head + ": the list has " + ValueText(result.Value) +
                            ", the calculation nothing");
    }
}

ListRecords::Made ListRecords::Calculate(RecordRows rows, const Row& row,
                                         const std::optional<RecordRows>& stored, const ListUnits& own) {
    const Setting batch(Suite.RunActive, words::Yes, "");
    const Setting zoneUntold(Suite.HideFlowStatus, words::Yes);
    const FormsOfRecord forms;
    const HeldMessages held(Questions::Answered);
    const DataRefusals refusals;
    if (!TakeRecordRows(rows)) throw ListRefusal{"Program Number", "there is no such program"};
    if (!own.Fields.empty()) ReturnToUnits(rows, row, *stored, own);
    const bool filled = FillCalculationForm() != nullptr;
    auto* const form = filled ? dynamic_cast<FluidForm*>(OpenCalculation()) : nullptr;
    if (form == nullptr) throw ListRefusal{"Program Number", "there is no such program"};
    PutPipe(rows, row, stored);
    if (renews_) CheckMixture(rows);
    TakeFluids(*form);
    RefuseFirst(refusals, row);
    form->CalculateAll();
    RefuseFirst(refusals, row);
    form->StoreForm();
    if (IsDatedToday(row, stored)) Calc.CaseText[text::CalcDate] = Today();
    Made made{RowsOfRecord(), {}};
    CheckTaken(row, rows, made.Rows, renews_);
    for (const std::string& text : held.Texts()) made.Told.push_back(InOneLine(text));
    if (!note_.empty()) made.Told.push_back(note_);
    TellMissing(made, row);
    return made;
}

// What says the program alone: its name, and its number without a unit set.
bool ListRecords::IsOfProgram(const Given& given) {
    return given.Of->Name == "Program Name" ||
           (given.Of->Name == "Program Number" && SetOfNumber(given.Value) == 0);
}

bool ListRecords::SaysNothingNew(const Row& row, const RecordRows& stored) {
    return std::ranges::all_of(row.Cells, [&stored](const Given& given) {
        return IsOfProgram(given) || SameValue(stored.Value(*given.Of), Kept(given));
    });
}

bool ListRecords::IsInUnitsOf(const ListHeads& heads, const RecordRows& stored) {
    const int program = stored.Program();
    const std::string& mode = heads.DensityMode(program);
    if (!mode.empty() && mode != DensityModeOf(ValueText(stored.Value(*FindColumn("Calc Option")))))
        return false;
    return std::ranges::all_of(heads.Units(program), [&stored](const auto& unit) {
        return ValueText(stored.Value(*FindColumn(unit.first))) == unit.second;
    });
}

// What a record is in beside its list, and stays in: the row of units is that of the list alone. What a row
// says of its own units is for the record.
ListUnits ListRecords::UnitsToKeep(const ListHeads& heads, const Row& row, const RecordRows& stored) {
    if (IsInUnitsOf(heads, stored)) return {};
    ListUnits units = UnitsOf(stored);
    std::erase_if(units.Fields, [&row](const auto& each) { return row.Find(each.first) != nullptr; });
    if (const Given* codes = row.Find("Calc Option"))
        units.DensityMode = DensityModeOf(ValueText(codes->Value));
    return units;
}

// Those of its columns of units, and of the row of units.
ListUnits ListRecords::UnitsOfRow(const ListHeads& heads, const Row& row) {
    ListUnits units{{}, heads.DensityMode(row.Program)};
    const Given* const codes = row.Find("Calc Option");
    if (codes != nullptr && units.DensityMode.empty())
        units.DensityMode = DensityModeOf(ValueText(codes->Value));
    for (const Given& given : row.Cells) {
        if (given.Of->Kind != ColumnKind::Unit || !given.Of->Name.ends_with(" Units")) continue;
        ListUnit& unit = units.Fields[given.Of->Name];
        unit = {ValueText(given.Value), 0, given.Head};
        const Given* const factor = row.Find(given.Of->Name.substr(0, given.Of->Name.rfind(' ')) + " Factor");
        const auto* value = factor == nullptr ? nullptr : std::get_if<double>(&factor->Value);
        if (value != nullptr) unit.Factor = *value;
    }
    for (const auto& [field, unit] : heads.Units(row.Program)) {
        const auto [there, isNew] = units.Fields.emplace(field, ListUnit{unit, 0, field});
        if (!isNew && there->second.Name != unit)
            throw ListRefusal{there->second.Head,
                              there->second.Name + " here, and " + unit + " in the row of units"};
    }
    return units;
}

// By the number of a program that the row has: the record goes to the units of another set.
void ListRecords::TakeUnitSet(RecordRows& stored, const Row& row) {
    const int set = UnitSetOf(row);
    if (set == 0 || set == SetOfNumber(stored.Value(*FindColumn("Program Number")))) return;
    TakeUnits(stored, UnitsOf(Fresh(row.Program, set)), true);
}

// What follows from the program, and from the unit of the flow, cannot be said otherwise.
void ListRecords::CheckHead(const RecordRows& rows, const Row& row) {
    const Program& program = *FindProgram(row.Program);
    const Given* const type = row.Find("Fluid Type");
    if (type != nullptr && !SameName(ValueText(type->Value), program.FluidType))
        throw ListRefusal{type->Head, ValueText(type->Value) + " in a program of " + program.FluidType};
    const Given* const basis = row.Find("Basis");
    const std::string unit = ValueText(rows.Value(*FindColumn("Flow Units"))), its = BasisOf(rows);
    if (basis != nullptr && !its.empty() && its != ValueText(basis->Value))
        throw ListRefusal{basis->Head, unit + " is a flow by " + (its == words::Mass ? "mass" : "volume")};
}

// A factor is one of a unit; behind TakeUnits the record is in that of the list.
void ListRecords::CheckFactors(const RecordRows& rows, const Row& row) {
    for (const Given& given : row.Cells) {
        const std::string& name = given.Of->Name;
        if (given.Of->Kind != ColumnKind::Unit || !name.ends_with(" Factor") || IsEmpty(given.Value))
            continue;
        const std::string unit = name.substr(0, name.rfind(' ')) + " Units";
        if (row.Find(unit) != nullptr || AreAlike(rows.Value(*given.Of), given.Value)) continue;
        throw ListRefusal{given.Head, ValueText(given.Value) + " is no factor of " +
                                          ValueText(rows.Value(*FindColumn(unit)))};
    }
}

// The cells of the row, in the units of the list.
void ListRecords::PutCells(RecordRows& rows, const Row& row, const ListHeads& heads, bool isStored) {
    const ListUnits units = UnitsOfRow(heads, row);
    TakeUnits(rows, units, isStored);
    CheckFactors(rows, row);
    const std::optional<RecordRows> stored = isStored ? std::optional(rows) : std::nullopt;
    for (const Given& given : row.Cells) {
        if (given.Of->Kind != ColumnKind::Mixture && !IsOfProgram(given)) Put(rows, given);
    }
    CheckHead(rows, row);
    const auto pressure = heads.Units(row.Program).find("Pressure Units");
    PutModes(rows, pressure == heads.Units(row.Program).end() ? "" : pressure->second, units.DensityMode);
    for (const RecordColumn& column : RecordColumns()) {
        if (column.Kind == ColumnKind::Result && column.IsOf(row.Program)) rows.Set(column, FieldValue());
    }
    DropPipeName(rows, row, stored);
    PutMixture(rows, row);
    PutMaterial(rows, row);
    PutFluid(rows, row, stored);
}

ListRecords::Made ListRecords::Make(const ListHeads& heads, const SheetRow& sheetRow,
                                    const std::optional<RecordRows>& known) {
    const HeldMessages held(Questions::Answered);
    const int program = ProgramOf(heads, sheetRow, known);
    // A record of another program is replaced as a whole.
    std::optional<RecordRows> stored = known && known->Program() == program ? known : std::nullopt;
    const Row row = RowOf(heads, sheetRow, program);
    if (stored && SaysNothingNew(row, *stored) && IsInUnitsOf(heads, *stored)) return {*stored, {}};

    if (stored) TakeUnitSet(*stored, row);
    const ListUnits own = stored ? UnitsToKeep(heads, row, *stored) : ListUnits{};
    RecordRows rows = stored ? *stored : Fresh(program, std::max(UnitSetOf(row), 1));
    PutCells(rows, row, heads, stored.has_value());
    return Calculate(std::move(rows), row, stored, own);
}

}  // namespace quillmetra
