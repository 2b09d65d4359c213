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
#include "records/SaveRecord.h"
#include "tables/PipeSizes.h"
#include "units/NamedUnitSets.h"

namespace quillmetra {

namespace {

constexpr const char* Mixture = "Mixture";

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

// The properties of a fluid among the inputs of a program.
bool IsProperty(const RecordColumn& column) {
    if (column.IsExtra() || column.Kind != ColumnKind::Input) return false;
    const auto* cell = std::get_if<Cell>(&column.At.Table->Fields[column.At.Field].From);
    if (cell == nullptr || cell->Of != Group::CaseInput) return false;
    if (cell->Row == input::Modulus) return cell->Case == column::OfLiquid;
    const bool hammer = column.At.Table == &WaterhammerTable();
    constexpr int properties[] = {input::FlowGravity,  input::Viscosity,       input::RatioSpecificHeats,
                                  input::CritPressure, input::CritTemperature, input::MolecularWeight};
    return hammer ? cell->Row == input::FlowGravity
                  : std::ranges::find(properties, cell->Row) != std::end(properties);
}

// The state that a fluid has its properties at.
bool IsState(const RecordColumn& column) {
    if (column.IsExtra() || column.Kind != ColumnKind::Input) return false;
    const RecordField& field = column.At.Table->Fields[column.At.Field];
    const auto* cell = std::get_if<Cell>(&field.From);
    const auto* made = std::get_if<Made>(&field.From);
    return (cell != nullptr && cell->Of == Group::CaseInput && cell->Row == input::Pressure) ||
           (made != nullptr && *made == Made::Temperature);
}

std::string InOneLine(std::string text) {
    std::ranges::replace(text, '\n', ' ');
    return std::string(Trim(text));
}

RecordRows::Row EmptyRow(const RecordTable& table, const std::string& tag) {
    RecordRows::Row row(table.Fields.size());
    row.front() = tag;
    return row;
}

void SetHeadCode(RecordRows& rows, const char* column, const OptionCode& code) {
    const RecordColumn& codes = *FindColumn(column);
    std::string text = ValueText(rows.Value(codes));
    SetCode(text, code);
    rows.Set(codes, text);
}

}  // namespace

const ListRecords::Given* ListRecords::Row::Find(std::string_view column) const {
    const auto found = std::ranges::find_if(
        Cells, [column](const Given& given) { return given.Of->Name == column && !IsEmpty(given.Value); });
    return found == Cells.end() ? nullptr : &*found;
}

std::string ListRecords::TagOf(const ListHeads& heads, const SheetRow& row) {
    const auto cell = std::ranges::find(row.Cells, heads.TagColumn(), &SheetCell::Column);
    if (cell == row.Cells.end()) throw ListRefusal{"Tag", "the row has no tag"};
    try {
        return ValueText(CellValue(*FindColumn("Tag"), *cell));
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
            made.Cells.push_back({head.Of, CellValue(*head.Of, *cell), heads.NameOf(head.Column)});
        } catch (const ListRefusal& refusal) {
            throw ListRefusal{heads.NameOf(head.Column), refusal.Reason};
        }
    }
    return made;
}

// What the form of a program begins with, by its unit set.
const RecordRows& ListRecords::Fresh(int program, int unitSet) {
    const auto [found, isNew] = fresh_.try_emplace({program, unitSet});
    if (!isNew) return found->second;
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
    Calc.OtherCalcs = words::NoCodes;
    return found->second = RowsOfRecord();
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

// The line of a fluid in the table of its type; empty when that has none.
void ListRecords::FindFluid(const std::string& fluidType, const std::string& name, const std::string& head,
                            std::string& line) {
    auto& known = fluids_[fluidType];
    if (known.empty()) {
        try {
            for (std::string& row : ReadFluidRows(fluidType))
                known.emplace(LowerCase(std::string(FluidRowName(row))), std::move(row));
        } catch (const RuntimeError& error) {
            throw ListRefusal{head, fluidType + ".txt: " + error.Description};
        }
    }
    const auto found = known.find(LowerCase(name));
    line = found == known.end() ? "" : found->second;
}

// Those of the former fluid, but for what the list says.
void ListRecords::DropVaporPressures(RecordRows& rows, const Row& row) {
    for (const RecordColumn& column : RecordColumns()) {
        if (column.Kind != ColumnKind::Setting || row.Find(column.Name) != nullptr) continue;
        const auto* cell = std::get_if<Cell>(&column.At.Table->Fields[column.At.Field].From);
        if (cell != nullptr && cell->Of == Group::CaseInput && cell->Row == input::VaporPressure)
            rows.Set(column, 0.0);
    }
}

// A fluid without properties in the list brings those of its table, and so does one that is loaded from the
// table when its state is another one than before.
void ListRecords::PutFluid(RecordRows& rows, const Row& row, const std::optional<RecordRows>& stored) {
    const auto differs = [&stored](const Given& given) {
        return !stored || !SameValue(stored->Value(*given.Of), Kept(given));
    };
    const auto given = [&](const auto& isWanted) {
        return std::ranges::any_of(row.Cells, [&](const Given& each) {
            return isWanted(*each.Of) && !IsEmpty(each.Value) && differs(each);
        });
    };
    renews_ = false;
    const Given* const name = row.Find("Fluid Name");
    const bool isOther = name != nullptr && differs(*name);
    if (isOther) DropVaporPressures(rows, row);
    if (given(IsProperty)) {
        if (isOther && row.Find("Calc Option") == nullptr)
            SetHeadCode(rows, "Calc Option", code::FluidNotLoaded);
        return;
    }
    if (row.Find("Other Calcs") == nullptr && isOther && !rows.FluidType().empty()) {
        const std::string fluid = ValueText(name->Value);
        const bool steam = row.Program == program::GasLine || row.Program == program::GasData;
        if (steam && SameName(fluid, "Steam")) {
            const bool hasTemperature = given([](const RecordColumn& column) {
                return IsState(column) && column.Name.find("Temperature") != std::string::npos;
            });
            SetHeadCode(rows, "Other Calcs", hasTemperature ? code::Superheated : code::Saturated);
        } else if (row.Find("Fluid Percent0") == nullptr) {
            std::string line;
            FindFluid(rows.FluidType(), fluid, name->Head, line);
            if (line.empty())
                throw ListRefusal{name->Head, fluid + " is not in " + rows.FluidType() +
                                                  ".txt; another fluid needs its properties in the list"};
            rows.Set(*FindColumn("Fluid Name"), std::string(FluidRowName(line)));
            SetHeadCode(rows, "Other Calcs", code::PureFluid);
        }
        SetHeadCode(rows, "Calc Option", code::FluidLoaded);
    }
    const bool isLoaded = HasCode(ValueText(rows.Value(*FindColumn("Calc Option"))), code::FluidLoaded);
    renews_ = isLoaded && (isOther || given(IsState) || !stored);
}

// Components go by their names, or by their whole rows.
void ListRecords::PutMixture(RecordRows& rows, const Row& row) {
    const auto isPart = [](const Given& given) {
        return given.Of->Kind == ColumnKind::Mixture && !IsEmpty(given.Value);
    };
    if (!std::ranges::any_of(row.Cells, isPart)) return;
    if (rows.Of(MixtureTable()).empty()) rows.Of(MixtureTable()) = EmptyRow(MixtureTable(), rows.Tag());
    if (row.Find("Other Calcs") == nullptr) {
        SetHeadCode(rows, "Other Calcs", code::Mixture);
        SetHeadCode(rows, "Calc Option", code::FluidLoaded);
    }
    if (row.Find("Fluid Name") == nullptr) rows.Set(*FindColumn("Fluid Name"), std::string(Mixture));
    for (const Given& given : row.Cells) {
        if (given.Of->Kind != ColumnKind::Mixture) continue;
        Put(rows, given);
        const std::string text = ValueText(given.Value);
        if (given.Of->IsNumber() || text.empty() || text.find(',') != std::string::npos) continue;
        std::string line;
        FindFluid(rows.FluidType(), text, given.Head, line);
        if (line.empty()) throw ListRefusal{given.Head, text + " is not in " + rows.FluidType() + ".txt"};
        Put(rows, {given.Of, line, given.Head});
    }
}

// Of number and name the one that the list gives brings the other.
void ListRecords::PutMaterial(RecordRows& rows, const Row& row) {
    if (!program::IsLine(row.Program)) return;
    const RecordColumn& number = *FindColumn("Pipe Material Number");
    const Given* const name = row.Find("Pipe Material");
    const Given* const given = row.Find("Pipe Material Number");
    if (name == nullptr && given != nullptr) {
        const auto* value = std::get_if<double>(&given->Value);
        const PipeMaterial* const material =
            value == nullptr ? nullptr : FindPipeMaterial(static_cast<int>(*value));
        if (material == nullptr) throw ListRefusal{given->Head, "materials have the numbers 1 to 7"};
        rows.Set(*FindColumn("Pipe Material", row.Program), std::string(material->Name));
    }
    if (name == nullptr || given != nullptr) return;
    const std::string text = ValueText(name->Value);
    for (std::size_t i = 0; i < PipeMaterials.size(); ++i) {
        if (SameName(text, PipeMaterials.at(i).Name)) return rows.Set(number, static_cast<double>(i + 1));
    }
    throw ListRefusal{name->Head, text + " is none of the pipe materials"};
}

// A diameter that is typed over has no name any more.
void ListRecords::DropPipeName(RecordRows& rows, const Row& row, const std::optional<RecordRows>& stored) {
    if (!stored || row.Find("Pipe") != nullptr) return;
    for (const char* column : {"Pipe Size", "Pipe Wall"}) {
        const RecordColumn* const size = FindColumn(column, row.Program);
        const Given* const given = size == nullptr ? nullptr : row.Find(size->Name);
        if (given != nullptr && !SameValue(stored->Value(*size), Kept(*given)))
            rows.Set(*FindColumn("Pipe"), std::string());
    }
}

// A pipe that is named without its diameter has that of its table; with it, both must agree.
void ListRecords::PutPipe(const Row& row, const std::optional<RecordRows>& stored) {
    const Given* const pipe = row.Find("Pipe");
    const Program* const program = FindProgram(row.Program);
    if (pipe == nullptr || *program->PipeWord == '\0') return;
    const std::string name = ValueText(pipe->Value);
    const bool isLine = program::IsLine(row.Program);
    const RecordColumn& column = *FindColumn("Pipe Size", row.Program);
    const Given* const size = row.Find(column.Name);
    const bool isAsStored = stored && SameValue(stored->Value(*pipe->Of), pipe->Value) &&
                            (size == nullptr || SameValue(stored->Value(column), Kept(*size)));
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

void ListRecords::TakeFluids(FluidForm& form) const {
    if (!renews_) return;
    if (Calc.SteamKind != words::Saturated) return form.RenewFluids();
    for (int i = 0; i < form.FluidCases(); ++i) {
        if (form.LackOf(i, FluidPick::Kind::Saturated).empty())
            form.Pick(i, {.What = FluidPick::Kind::Saturated});
    }
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

// A list that knows the dates of new calculations keeps them; what it changes is of today.
bool ListRecords::IsDatedToday(const Row& row, const std::optional<RecordRows>& stored) {
    const Given* const date = row.Find("Calc Date");
    if (!stored) return !row.KnowsDates;
    return date == nullptr || SameValue(stored->Value(*date->Of), date->Value);
}

ListRecords::Made ListRecords::Calculate(const RecordRows& rows, const Row& row,
                                         const std::optional<RecordRows>& stored, const ListUnits& ofRecord) {
    const Setting batch(Suite.RunActive, words::Yes, "");
    const Setting zoneUntold(Suite.HideFlowStatus, words::Yes);
    const FormsOfRecord forms;
    const HeldMessages held(Questions::Answered);
    const DataRefusals refusals;
    if (!TakeRecordRows(rows)) throw ListRefusal{"Program Number", "there is no such program"};

    // What a cell says must be what the record then has, before and behind the calculation.
    const auto check = [&row](const RecordRows& before, const RecordRows& after, bool isCalculated) {
        for (const Given& given : row.Cells) {
            if (IsTheSuites(*given.Of) || IsEmpty(given.Value)) continue;
            if (isCalculated && IsProperty(*given.Of)) continue;
            const FieldValue has = before.Value(*given.Of), is = after.Value(*given.Of);
            if (SameValue(has, is)) continue;
            throw ListRefusal{given.Head, ValueText(has) + " is not taken" +
                                              (IsEmpty(is) ? "" : ": the calculation has " + ValueText(is))};
        }
    };
    RecordRows before = rows;
    if (!ofRecord.empty()) {
        check(rows, RowsOfRecord(), false);
        ConvertRecordInHand(ofRecord);
        before = RowsOfRecord();
    }
    const bool filled = FillCalculationForm() != nullptr;
    auto* const form = filled ? dynamic_cast<FluidForm*>(OpenCalculation()) : nullptr;
    if (form == nullptr) throw ListRefusal{"Program Number", "there is no such program"};
    PutPipe(row, stored);
    TakeFluids(*form);
    RefuseFirst(refusals, row);
    form->CalculateAll();
    RefuseFirst(refusals, row);
    form->StoreForm();
    if (IsDatedToday(row, stored)) Calc.CaseText[text::CalcDate] = Today();
    Made made{RowsOfRecord(), {}};
    check(before, made.Rows, renews_);
    for (const std::string& text : held.Texts()) made.Told.push_back(InOneLine(text));
    for (const Given& result : row.Results) {
        const FieldValue is = made.Rows.Value(*result.Of);
        if (!IsEmpty(is) && is != FieldValue(0.0)) continue;
        made.Told.push_back(result.Head + ": the list has " + ValueText(result.Value) +
                            ", the calculation nothing");
    }
    return made;
}

bool ListRecords::SaysNothingNew(const Row& row, const RecordRows& stored) {
    return std::ranges::all_of(row.Cells, [&stored](const Given& given) {
        return given.Of->Name == "Program Name" || SameValue(stored.Value(*given.Of), Kept(given));
    });
}

ListRecords::Made ListRecords::Make(const ListHeads& heads, const SheetRow& sheetRow,
                                    const std::optional<RecordRows>& known) {
    const int program = ProgramOf(heads, sheetRow, known);
    // A record of another program is replaced as a whole.
    const std::optional<RecordRows> stored = known && known->Program() == program ? known : std::nullopt;
    const Row row = RowOf(heads, sheetRow, program);

    int unitSet = 1;
    if (const Given* number = row.Find("Program Number")) {
        const auto* value = std::get_if<double>(&number->Value);
        const int set = value == nullptr ? 0 : static_cast<int>(*value) % 100;
        if (*value > 90 && set >= 1 && set <= UserUnitSet) unitSet = set;
    }
    const bool isInTheseUnits =
        stored && std::ranges::all_of(heads.Units(program), [&stored](const auto& unit) {
            return ValueText(stored->Value(*FindColumn(unit.first))) == unit.second;
        });
    if (isInTheseUnits && SaysNothingNew(row, *stored)) return {*stored, {}};
    RecordRows rows = stored ? *stored : Fresh(program, unitSet);

    ListUnits units, ofRecord;
    for (const Given& given : row.Cells) {
        if (given.Of->Kind != ColumnKind::Unit || !given.Of->Name.ends_with(" Units")) continue;
        units[given.Of->Name] = {ValueText(given.Value), 0, given.Head};
        const Given* const factor = row.Find(given.Of->Name.substr(0, given.Of->Name.rfind(' ')) + " Factor");
        const auto* value = factor == nullptr ? nullptr : std::get_if<double>(&factor->Value);
        if (value != nullptr) units[given.Of->Name].Factor = *value;
    }
    for (const auto& [field, unit] : heads.Units(program)) {
        const auto [there, isNew] = units.emplace(field, ListUnit{unit, 0, field});
        if (!isNew && there->second.Name != unit)
            throw ListRefusal{there->second.Head,
                              there->second.Name + " here, and " + unit + " in the row of units"};
        if (isNew && stored && ValueText(stored->Value(*FindColumn(field))) != unit)
            ofRecord = UnitsOf(*stored);
    }
    {
        const HeldMessages held(Questions::Answered);
        TakeUnits(rows, units, stored.has_value());
    }

    for (const Given& given : row.Cells) {
        if (given.Of->Kind != ColumnKind::Mixture && given.Of->Name != "Program Name") Put(rows, given);
    }
    for (const RecordColumn& column : RecordColumns()) {
        if (column.Kind == ColumnKind::Result && column.IsOf(program)) rows.Set(column, FieldValue());
    }
    DropPipeName(rows, row, stored);
    PutMixture(rows, row);
    PutMaterial(rows, row);
    PutFluid(rows, row, stored);
    return Calculate(rows, row, stored, ofRecord);
}

}  // namespace quillmetra
