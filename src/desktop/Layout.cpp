// See Layout.h.
#include "desktop/Layout.h"

#include "desktop/layouts/Layouts.h"
#include "platform/TextCase.h"

namespace quillmetra::layout {

namespace {
struct Entry {
    const char* Form;
    Node (*Tree)();
};

constexpr Entry Layouts[] = {
    {"frmTRProg", frmTRProg},
    {"frmObxProg", frmObxProg},
    {"frmLiqLineLoss", frmLiqLineLoss},
    {"frmGasLineLoss", frmGasLineLoss},
    {"frmFluid", frmFluid},
    {"frmLiqData", frmLiqData},
    {"frmGasData", frmGasData},
    {"frmPipeSize", frmPipeSize},
    {"frmUnits", frmUnits},
    {"frmBackups", frmBackups},
    {"frmCompare", frmCompare},
    {"frmCopyAll", frmCopyAll},
    {"frmServer", frmServer},
    {"frmCalcOptions", frmCalcOptions},
    {"FindDialog", FindDialog},
    {"frmWaterHammer", frmWaterHammer},
    {"frmObxPrintCalc", frmObxPrintCalc},
    {"frmTables", frmTables},
    {"WinSeek", WinSeek},
    {"frmPrintControl", frmPrintControl},
    {"frmShippedRows", frmShippedRows},
    {"frmImport", frmImport},
    {"frmRecalculate", frmRecalculate},
    {"frmSizes", frmSizes},
    {"frmLineFlow", frmLineFlow},
};
}  // namespace

Node Node::Wide(int digits) && {
    Digits = digits;
    return std::move(*this);
}

Node Node::Tall(int rows) && {
    Rows = rows;
    return std::move(*this);
}

Node Node::Least(int digits, int rows) && {
    LeastDigits = digits;
    LeastRows = rows;
    return std::move(*this);
}

Node Node::Grow() && {
    Grows = true;
    return std::move(*this);
}

Node Node::Typed() && {
    IsTyped = true;
    return std::move(*this);
}

Node Node::Under(std::string control) && {
    Anchor = std::move(control);
    return std::move(*this);
}

Node Node::Wrapped() && {
    Wraps = true;
    return std::move(*this);
}

Node Node::Centred() && {
    IsCentred = true;
    return std::move(*this);
}

Node Node::Bold() && {
    IsBold = true;
    return std::move(*this);
}

Node Node::Across(int columns) && {
    Columns = columns;
    return std::move(*this);
}

Node Node::Collapsing() && {
    Collapses = true;
    return std::move(*this);
}

Node Node::Bare() && {
    IsBare = true;
    return std::move(*this);
}

Node Item(std::string control) { return {std::move(control)}; }
Node Item(const std::string& array, int index) {
    std::string name = array;
    return {name.append("(").append(std::to_string(index)).append(")")};
}

Node Words(std::string words) { return {Node::Kind::Words, std::move(words)}; }
Node Heading(std::string words) { return Words(std::move(words)).Bold().Across(Node::AllColumns); }
Node Column(std::vector<Node> parts) { return {Node::Kind::Column, {}, std::move(parts)}; }
Node Row(std::vector<Node> parts) { return {Node::Kind::Row, {}, std::move(parts)}; }
Node Buttons(std::vector<Node> parts) { return {Node::Kind::Buttons, {}, std::move(parts)}; }
Node Panel(std::string heading, Node content) {
    return {Node::Kind::Panel, std::move(heading), {std::move(content)}};
}
Node Frame(std::string control, Node content) {
    return {Node::Kind::Frame, std::move(control), {std::move(content)}};
}
Node Stretch() { return {Node::Kind::Stretch, {}}; }
Node Reserve(int lines) { return Node(Node::Kind::Reserve, {}).Tall(lines); }

Node Table(std::vector<std::vector<Node>> rows) {
    Node table{Node::Kind::Table, {}};
    for (auto& row : rows) table.Parts.push_back(Row(std::move(row)));
    return table;
}

Node Over(Node base, std::vector<Node> parts) {
    Node over{Node::Kind::Over, {}};
    over.Parts.push_back(std::move(base));
    over.Parts.push_back(Row(std::move(parts)));
    return over;
}

std::vector<Node> Cases(const std::string& label, const std::string& boxes, const std::string& unit) {
    std::vector<Node> cells{label};
    for (int i = 0; i < 3; ++i) cells.push_back(Item(boxes, i).Wide(CaseDigits));
    cells.push_back(Item(unit).Centred());
    return cells;
}

Node LayoutOf(std::string_view form) {
    for (const Entry& each : Layouts) {
        if (SameName(each.Form, form)) return each.Tree();
    }
    return Column({});
}

}  // namespace quillmetra::layout
