// See ListHeads.h.
#include "forms/ListHeads.h"

#include <algorithm>

#include "core/Programs.h"
#include "forms/ListUnits.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "platform/TextCase.h"

namespace quillmetra {

ListHeads::ListHeads(const SheetRow& heads) {
    for (const SheetCell& cell : heads.Cells) names_[cell.Column] = TextOfCell(std::string(Trim(cell.Text)));
    for (const Program& program : Programs) AddProgram(program.Number);
    for (const auto& [column, name] : names_) {
        const auto isOf = [at = column](const Head& head) { return head.Column == at; };
        const bool known = std::ranges::any_of(
            heads_, [&isOf](const std::vector<Head>& own) { return std::ranges::any_of(own, isOf); });
        if (SameName(name, "Tag") && tag_ < 0) tag_ = column;
        if (!known) leftAlone_.push_back("Column " + ColumnLetters(column) + ", " + name + ": left alone");
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

// No tag but perhaps a word for what it is, and units alone.
bool ListHeads::LooksLikeUnits(const SheetRow& row) const {
    bool any = false;
    for (const SheetCell& cell : row.Cells) {
        if (cell.Column == tag_) {
            if (!SameName(Trim(cell.Text), "Unit") && !SameName(Trim(cell.Text), "Units")) return false;
            any = true;
        } else if (cell.Of != SheetCell::Kind::Text || cell.Number) {
            return false;
        }
    }
    const auto isUnit = [](const SheetCell& cell) { return IsUnitName(std::string(Trim(cell.Text))); };
    return any || (!row.Cells.empty() && std::ranges::any_of(row.Cells, isUnit));
}

bool ListHeads::TakeUnits(const SheetRow& row) {
    if (!LooksLikeUnits(row)) return false;
    for (const Program& program : Programs) {
        auto& units = units_.at(static_cast<std::size_t>(program.Number));
        for (const Head& head : Of(program.Number)) {
            const auto cell = std::ranges::find(row.Cells, head.Column, &SheetCell::Column);
            if (cell == row.Cells.end() || head.Of->IsExtra()) continue;
            const std::string unit(Trim(cell->Text));
            const std::string field = UnitFieldOf(*head.Of, program.Number, unit);
            if (field.empty()) continue;
            const auto [there, isNew] = units.emplace(field, unit);
            if (isNew || there->second == unit) continue;
            std::string text = "Row " + std::to_string(row.Number) + " has two ";
            text.append(field).append(": ").append(there->second).append(" and ").append(unit);
            throw RuntimeError{321, text};
        }
    }
    return true;
}

}  // namespace quillmetra
