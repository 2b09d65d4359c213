// The fluid of a row of a list: what its table has for the name, a mixture by its components, steam; see
// ListRecord.h.
#include <algorithm>
#include <cmath>
#include <utility>

#include "core/Programs.h"
#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "fluids/Mixtures.h"
#include "forms/FluidForm.h"
#include "forms/ListRecord.h"
#include "platform/NumberText.h"
#include "platform/TextCase.h"
#include "records/OptionCodes.h"
#include "records/RecordTransfer.h"

namespace quillmetra {

namespace {

constexpr const char* Mixture = "Mixture";

// The state that a fluid has its properties at.
bool IsState(const RecordColumn& column) {
    if (column.IsExtra() || column.Kind != ColumnKind::Input) return false;
    const RecordField& field = column.At.Table->Fields[column.At.Field];
    const auto* cell = std::get_if<Cell>(&field.From);
    const auto* made = std::get_if<Made>(&field.From);
    return (cell != nullptr && cell->Of == Group::CaseInput && cell->Row == input::Pressure) ||
           (made != nullptr && *made == Made::Temperature);
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

// The properties of a fluid among the inputs of a program.
bool ListRecords::IsProperty(const RecordColumn& column) {
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

// The line of a fluid in the table of its type; empty when that has none.
std::string ListRecords::FluidLine(const RecordRows& rows, const std::string& name, const std::string& head) {
    const std::string type = rows.FluidType();
    auto& known = fluids_[type];
    if (known.empty()) {
        try {
            for (std::string& row : ReadFluidRows(type))
                known.emplace(LowerCase(std::string(FluidRowName(row))), std::move(row));
        } catch (const RuntimeError& error) {
            throw ListRefusal{head, type + ".txt: " + error.Description};
        }
    }
    const auto found = known.find(LowerCase(name));
    return found == known.end() ? "" : found->second;
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

void ListRecords::PutPure(RecordRows& rows, const Given& name) {
    const std::string fluid = ValueText(name.Value);
    const std::string line = FluidLine(rows, fluid, name.Head);
    if (line.empty())
        throw ListRefusal{name.Head, fluid + " is not in " + rows.FluidType() +
                                         ".txt; another fluid needs its properties in the list"};
    rows.Set(*FindColumn("Fluid Name"), std::string(FluidRowName(line)));
    SetHeadCode(rows, "Other Calcs", code::PureFluid);
}

// A fluid without properties in the list brings those of its table, and so does one that is loaded from the
// table when its state is another one than before.
void ListRecords::PutFluid(RecordRows& rows, const Row& row, const std::optional<RecordRows>& stored) {
    const auto differs = [&stored](const Given& given) {
        return !stored || !AreAlike(stored->Value(*given.Of), Kept(given));
    };
    const auto given = [&](const auto& isWanted) {
        return std::ranges::any_of(row.Cells, [&](const Given& each) {
            return isWanted(*each.Of) && !ValueText(each.Value).empty() && differs(each);
        });
    };
    renews_ = false;
    note_.clear();
    const Given* const name = row.Find("Fluid Name");
    const bool isOther = name != nullptr && differs(*name);
    if (isOther) DropVaporPressures(rows, row);
    const auto isLoaded = [&rows] {
        return HasCode(ValueText(rows.Value(*FindColumn("Calc Option"))), code::FluidLoaded);
    };
    if (given(IsProperty)) {
        if (stored && isLoaded() && (isOther || given(IsState)))
            note_ = "the properties that the list does not have are those of the former fluid or state";
        if (isOther && row.Find("Calc Option") == nullptr)
            SetHeadCode(rows, "Calc Option", code::FluidNotLoaded);
        return;
    }
    if (row.Find("Other Calcs") == nullptr && isOther && !rows.FluidType().empty()) {
        const bool hasTemperature = given([](const RecordColumn& column) {
            return IsState(column) && column.Name.find("Temperature") != std::string::npos;
        });
        if (program::IsOfGas(row.Program) && SameName(ValueText(name->Value), "Steam")) {
            SetHeadCode(rows, "Other Calcs", hasTemperature ? code::Superheated : code::Saturated);
        } else if (row.Find("Fluid Percent0") == nullptr) {
            PutPure(rows, *name);
        }
        SetHeadCode(rows, "Calc Option", code::FluidLoaded);
    }
    renews_ = isLoaded() && (isOther || given(IsState) || !stored);
    // An export whose temperature was changed would bring the former ones back.
    const auto isProperty = [](const Given& each) {
        return IsProperty(*each.Of) && !ValueText(each.Value).empty();
    };
    if (renews_ && std::ranges::any_of(row.Cells, isProperty))
        note_ = "the list has the properties of the former fluid or state: those of the table are taken";
}

// Components go by their names, or by their whole rows.
void ListRecords::PutMixture(RecordRows& rows, const Row& row) {
    const auto isPart = [](const Given& given) {
        return given.Of->Kind == ColumnKind::Mixture && !ValueText(given.Value).empty();
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
        const std::string line = FluidLine(rows, text, given.Head);
        if (line.empty()) throw ListRefusal{given.Head, text + " is not in " + rows.FluidType() + ".txt"};
        Put(rows, {given.Of, CompactFluidRow(line), given.Head});
    }
}

// As the dialog of the mixture checks it; a field keeps seven digits of a percentage.
void ListRecords::CheckMixture(const RecordRows& rows) {
    if (!HasCode(ValueText(rows.Value(*FindColumn("Other Calcs"))), code::Mixture)) return;
    std::vector<double> percents;
    for (const RecordColumn& column : RecordColumns()) {
        if (column.Kind != ColumnKind::Mixture || !column.IsNumber()) continue;
        const FieldValue value = rows.Value(column);
        const auto* percent = std::get_if<double>(&value);
        if (percent == nullptr) continue;
        if (*percent < 0) throw ListRefusal{column.Name, "A percentage must not be less than zero"};
        percents.push_back(*percent);
    }
    constexpr double sevenDigits = 1e-3;
    if (std::fabs(RemainingPercent(percents)) > sevenDigits)
        throw ListRefusal{"Fluid Percent0", "Sum of percentages must equal 100"};
}

void ListRecords::TakeFluids(FluidForm& form) const {
    if (!renews_) return;
    if (Calc.SteamKind != words::Saturated) return form.RenewFluids();
    for (int i = 0; i < form.FluidCases(); ++i) {
        if (form.LackOf(i, FluidPick::Kind::Saturated).empty())
            form.Pick(i, {.What = FluidPick::Kind::Saturated});
    }
}

}  // namespace quillmetra
