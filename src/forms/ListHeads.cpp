// See ListHeads.h.
#include "forms/ListHeads.h"

#include <algorithm>

#include "core/Programs.h"
#include "core/Words.h"
#include "forms/ListUnits.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "platform/TextCase.h"

namespace quillmetra {

ListHeads::ListHeads(const SheetRow& heads, bool decimalCommas) : decimalCommas_(decimalCommas) {
    for (const SheetCell& cell : heads.Cells) names_[cell.Column] = TextOfCell(std::string(Trim(cell.Text)));
    for (const Program& program : Programs) AddProgram(program.Number);
    for (const auto& [column, name] : names_) {
        const auto isOf = [at = column](const Head& head) { return head.Column == at; };
        const bool known = std::ranges::any_of(
            heads_, [&isOf](const std::vector<Head>& own) { return std::ranges::any_of(own, isOf); });
        if (SameName(name, "Tag") && tag_ < 0) tag_ = column;
        if (!known)
            leftAlone_.push_back("Column " + ColumnLetters(column) + ", " + name + ": left alone" +
                                 WhyTwice(column));
    }
}

void ListHeads::AddProgram(int program) {
    std::vector<Head>& own = heads_.at(static_cast<std::size_t>(program));
    const auto add = [&own](int column, const RecordColumn* found) {
        if (found != nullptr && std::ranges::find(own, found, &Head::Of) == own.end())
            own.push_back({column, found});
    };
    // A whole name goes before the short one of another column.
    for (const auto& [column, name] : names_) {
        const RecordColumn* const found = FindColumn(name);
        if (found != nullptr && found->IsOf(program)) add(column, found);
    }
    for (const auto& [column, name] : names_) add(column, FindColumn(name, program));
}

const SheetCell* ListHeads::Find(const SheetRow& row, const char* name) const {
    for (const SheetCell& cell : row.Cells) {
        const auto head = names_.find(cell.Column);
        if (head != names_.end() && SameName(head->second, name)) return &cell;
    }
    return nullptr;
}

std::string ListHeads::WhyTwice(int column) const {
    const auto first = std::ranges::find_if(
        names_, [this, column](const auto& each) { return SameName(each.second, names_.at(column)); });
    return first->first == column ? "" : ", it stands in column " + ColumnLetters(first->first) + " too";
}

bool ListHeads::HasUnit(int column) const {
    return std::ranges::any_of(Programs, [this, column](const Program& program) {
        return std::ranges::any_of(Of(program.Number), [&](const Head& head) {
            return head.Column == column &&
                   (!UnitFieldOf(*head.Of).empty() || IsGravity(*head.Of, program.Number));
        });
    });
}

// Texts alone, and a word for units in the place of the tag, or one of the library where it belongs. A row
// without a tag is taken for one by its place: values must not be taken in units that they are not in.
bool ListHeads::LooksLikeUnits(const SheetRow& row) const {
    bool hasTag = false, isSaid = false, isFound = false, mayBe = false;
    for (const SheetCell& cell : row.Cells) {
        const std::string text(Trim(cell.Text));
        if (cell.Column == tag_) {
            isSaid = SameName(text, "Unit") || SameName(text, "Units");
            hasTag = text != "-";
            continue;
        }
        if (cell.Of != SheetCell::Kind::Text || cell.Number) return false;
        const bool isInPlace = HasUnit(cell.Column);
        mayBe = mayBe || isInPlace || IsUnitName(text);
        isFound = isFound || (isInPlace && IsUnitName(text));
    }
    return isSaid || isFound || (!hasTag && mayBe);
}

bool ListHeads::TakeUnits(const SheetRow& row) {
    if (!LooksLikeUnits(row)) return false;
    for (const Program& program : Programs) {
        for (const Head& head : Of(program.Number)) {
            const auto cell = std::ranges::find(row.Cells, head.Column, &SheetCell::Column);
            const std::string unit(cell == row.Cells.end() ? "" : Trim(cell->Text));
            if (!unit.empty() && unit != "-") TakeUnit(program.Number, *head.Of, row.Number, unit);
        }
    }
    return true;
}

void ListHeads::TakeUnit(int program, const RecordColumn& column, int row, const std::string& unit) {
    std::string& mode = densityModes_.at(static_cast<std::size_t>(program));
    std::string field = UnitFieldOf(column);
    if (IsGravity(column, program)) {
        mode = SameName(unit, "SG") ? words::Gravity : words::Density;
        field = mode == words::Density ? DensityField : "";
    }
    const std::string place = "Row " + std::to_string(row) + ": ", fixed = FixedUnitOf(column);
    if (!fixed.empty() && !SameName(unit, fixed))
        throw RuntimeError{321, place + column.Name + " is in " + fixed + ", not in " + unit};
    if (field.empty()) return;
    const auto [there, isNew] = units_.at(static_cast<std::size_t>(program)).emplace(field, unit);
    if (!isNew && there->second != unit)
        throw RuntimeError{321, place + "two " + field + ", " + there->second + " and " + unit};
}

}  // namespace quillmetra
