// See ListCells.h.
#include "forms/ListCells.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/Clock.h"
#include "platform/NumberText.h"
#include "platform/Utf8.h"
#include "reports/FormRows.h"

namespace quillmetra {

std::string QuotedCell(const SheetCell& cell) {
    constexpr std::size_t most = 60;
    const std::string_view text = Trim(cell.Text);
    const std::string shown = FirstCharacters(text, most);
    return "\"" + shown + (shown.size() < text.size() ? "...\"" : "\"");
}

namespace {

ListRefusal Reason(std::string reason) { return {"", std::move(reason)}; }

// One sign in it, which may be that of decimals or of thousands: the reader takes neither for granted.
bool IsAmbiguous(std::string text) {
    const std::size_t sign = text.find_first_of(".,");
    if (sign == std::string::npos || text.find_first_of(".,", sign + 1) != std::string::npos) return false;
    text[sign] = '.';
    return ValReadsAll(text);
}

FieldValue NumberOf(const RecordColumn& column, const SheetCell& cell) {
    if (cell.Of == SheetCell::Kind::Date) throw Reason("a date, " + cell.Text + ", where a number belongs");
    if (!cell.Number && IsAmbiguous(cell.Text))
        throw Reason(QuotedCell(cell) + " is no number: its sign may be of decimals or of thousands");
    if (!cell.Number) throw Reason(QuotedCell(cell) + " is no number");
    if (column.Type() == FieldType::Integer && std::nearbyint(*cell.Number) != *cell.Number)
        throw Reason(QuotedCell(cell) + " is no whole number");
    if (column.Type() == FieldType::Text) return TrimmedStr(*cell.Number);
    return *cell.Number;
}

// A date with slashes has its month first here, and its day first where commas are decimal signs.
FieldValue DateOf(const SheetCell& cell, bool decimalCommas) {
    const std::string text(Trim(cell.Text));
    if (decimalCommas && text.find('/') != std::string::npos)
        throw Reason(QuotedCell(cell) + " may have its day or its month first: write it as 2026-11-26");
    const std::string day = IsoDate(cell.Of == SheetCell::Kind::Date ? text.substr(0, text.find(' ')) : text);
    if (day.empty()) throw Reason(QuotedCell(cell) + " is no date");
    return day;
}

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

FieldValue TextOf(const RecordColumn& column, const SheetCell& cell) {
    if (cell.Of == SheetCell::Kind::Date && column.Name == "Tag")
        throw Reason("a date, " + cell.Text + ": a tag wants cells that are texts");
    if (column.Name == "Tag" && std::ranges::any_of(Trim(cell.Text), IsControl))
        throw Reason("a line break or another character that does not show");
    return TextOfCell(std::string(Trim(cell.Text)));
}

const FormRow* RowOfBox(const Control* box) {
    return box == nullptr ? nullptr : RowOf(Calc.CurrentProgram, *box);
}

}  // namespace

FieldValue CellValue(const RecordColumn& column, const SheetCell& cell, bool decimalCommas) {
    if (cell.Of == SheetCell::Kind::Error) throw Reason("the cell has no value: " + cell.Text);
    if (column.Type() == FieldType::Date) return DateOf(cell, decimalCommas);
    return column.IsNumber() ? NumberOf(column, cell) : TextOf(column, cell);
}

std::string ColumnOfBox(const Control* box) {
    const FormRow* const row = RowOfBox(box);
    if (row == nullptr) return "";
    const int column = row->PerCase ? box->Index() : row->Column;
    for (const RecordColumn& each : RecordColumns()) {
        if (each.Kind != ColumnKind::Input || !each.IsOf(Calc.CurrentProgram)) continue;
        const RecordField& field = each.At.Table->Fields[each.At.Field];
        const auto* cell = std::get_if<Cell>(&field.From);
        const auto* made = std::get_if<Made>(&field.From);
        if (cell != nullptr) {
            const Source source = cell->Of == Group::CaseInput      ? Source::CaseInput
                                  : cell->Of == Group::PipeData     ? Source::PipeData
                                  : cell->Of == Group::FittingCount ? Source::FittingCount
                                                                    : Source::CaseResult;
            if (source == row->From && CellRow(field) == row->Row && cell->Case == column) return each.Name;
        } else if (made != nullptr && *made == Made::Temperature) {
            if (row->From == Source::CaseInput && row->Row == input::Temperature && field.Case == column)
                return each.Name;
        } else if (made != nullptr && *made == Made::Fouling && row->From == Source::PipeFouling) {
            return each.Name;
        }
    }
    return "";
}

}  // namespace quillmetra
