// See Controls.h.
#include "platform/Controls.h"

#include <algorithm>
#include <iterator>

#include "platform/Form.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"

namespace quillmetra {

namespace {
const std::string Nothing;

}  // namespace

std::string SpokenCaption(const std::string& caption) {
    std::string text;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) ++i;
        text += caption[i];
    }
    while (!text.empty() && (text.back() == ' ' || text.back() == ':')) text.pop_back();
    return text;
}

const char* Word(ControlKind kind) {
    switch (kind) {
        case ControlKind::TextBox: return "TextBox";
        case ControlKind::Label: return "Label";
        case ControlKind::CommandButton: return "CommandButton";
        case ControlKind::OptionButton: return "OptionButton";
        case ControlKind::CheckBox: return "CheckBox";
        case ControlKind::ListBox: return "ListBox";
        case ControlKind::ComboBox: return "ComboBox";
        case ControlKind::Frame: return "Frame";
        case ControlKind::MenuItem: return "MenuItem";
        case ControlKind::Grid: return "Grid";
        case ControlKind::Plot: return "Plot";
        case ControlKind::ProgressBar: return "ProgressBar";
    }
    return "";
}

Parent::Parent(Frame& frame) : Owner(frame.Owner()), Container(&frame) {}
Parent::Parent(MenuItem& head) : Owner(head.Owner()), Container(&head) {}

Control::Control(const Parent& parent, ControlKind kind, std::string name, std::string text, int index)
    : text_(std::move(text)),
      owner_(parent.Owner),
      container_(parent.Container),
      kind_(kind),
      name_(std::move(name)),
      index_(index) {
    owner_.Register(*this);
}

std::string Control::FullName() const {
    return index_ == NoIndex ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::Notify(Aspect aspect) {
    if (Host* host = CurrentHost()) host->ControlChanged(*this, aspect);
}

void Control::SetCaption(const std::string& caption) {
    if (caption == text_) return;
    text_ = caption;
    Notify(Aspect::Text);
}

void Control::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    Notify(Aspect::Enabled);
}

void Control::SetVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    Notify(Aspect::Visible);
}

bool Control::Seen() const { return visible_ && (container_ == nullptr || container_->Seen()); }

bool Control::Works() const { return enabled_ && visible_ && (container_ == nullptr || container_->Works()); }

void Control::SetToolTip(const std::string& text) {
    if (text == toolTip_) return;
    toolTip_ = text;
    Notify(Aspect::ToolTip);
}

void Control::SetColours(Colour back, Colour fore) {
    if (back == back_ && fore == fore_) return;
    back_ = back;
    fore_ = fore;
    Notify(Aspect::Colours);
}

void Control::Describe(Control* label, Control* unit, std::string column) {
    label_ = label;
    unit_ = unit;
    if (unit != nullptr && label != nullptr && unit->unitOf_ == nullptr) unit->unitOf_ = label;
    column_ = std::move(column);
}

std::string Control::AccessibleName() const {
    const bool showsText = kind_ == ControlKind::TextBox || kind_ == ControlKind::ListBox ||
                           kind_ == ControlKind::ComboBox || kind_ == ControlKind::Grid;
    std::string name;
    const auto add = [&name](const std::string& part) {
        if (!part.empty()) name += (name.empty() ? "" : ", ") + part;
    };
    if (label_ != nullptr) add(SpokenCaption(label_->Caption()));
    if (label_ == nullptr && unitOf_ != nullptr) add(SpokenCaption(unitOf_->Caption()) + " unit");
    add(column_);
    if (!showsText && SpokenCaption(text_) != name) add(SpokenCaption(text_));
    return name;
}

void TextBox::SetText(const std::string& text) {
    if (text == text_) return;
    text_ = text;
    Notify(Aspect::Text);
    if (Change) Change();
}

void Tickable::SetChecked(bool checked) {
    if (checked == checked_) return;
    checked_ = checked;
    Notify(Aspect::Checked);
}

void OptionButton::SetChecked(bool checked) {
    if (checked) {
        for (Control* other : Owner().Controls()) {
            if (other == this || other->Kind() != ControlKind::OptionButton) continue;
            if (other->Container() == Container()) static_cast<OptionButton*>(other)->SetChecked(false);
        }
    }
    Tickable::SetChecked(checked);
}

ListBox::ListBox(const Parent& parent, ControlKind kind, std::string name, int index)
    : Control(parent, kind, std::move(name), {}, index) {
    TabStop = true;
}

const std::string& ListBox::Row(int row) const {
    return row < 0 || row >= RowCount() ? Nothing : rows_[static_cast<std::size_t>(row)];
}

void ListBox::SetRows(std::vector<std::string> rows) {
    rows_ = std::move(rows);
    picked_.assign(rows_.size(), false);
    selected_ = -1;
    if (Kind() == ControlKind::ListBox) text_.clear();
    Notify(Aspect::Rows);
}

void ListBox::Preselect(int row) {
    if (row < -1 || row >= RowCount() || row == selected_) return;
    selected_ = row;
    text_ = Row(row);
    Notify(Aspect::Selection);
}

void ListBox::Select(int row) {
    if (row == selected_ || row < -1 || row >= RowCount()) return;
    Preselect(row);
    if (row >= 0 && Click) Click();
}

bool ListBox::IsPicked(int row) const {
    if (row < 0 || row >= RowCount()) return false;
    return Multiple ? picked_[static_cast<std::size_t>(row)] : row == selected_;
}

void ListBox::Pick(int row, bool picked) {
    if (row < 0 || row >= RowCount()) return;
    picked_[static_cast<std::size_t>(row)] = picked;
    selected_ = row;
    text_ = Row(row);
    Notify(Aspect::Selection);
    if (Click) Click();
}

void ListBox::PickAll() {
    if (rows_.empty()) return;
    picked_.assign(rows_.size(), true);
    Pick(RowCount() - 1, true);
}

void ProgressBar::SetProgress(int done, int total) {
    done_ = done;
    total_ = total;
    SetCaption(std::to_string(done) + " of " + std::to_string(total));
}

void ComboBox::SetText(const std::string& text) {
    if (text == text_) return;
    text_ = text;
    Notify(Aspect::Text);
    if (Change) Change();
}

const std::string& Grid::Cell(int row, int column) const {
    if (row < 0 || row >= RowCount() || column < 0 || column >= columns_) {
        throw failure::SubscriptOutOfRange();
    }
    if (source_) return source_(row, column);
    return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

void Grid::SetSize(int rows, int columns) {
    columns_ = std::max(columns, 0);
    cells_.resize(static_cast<std::size_t>(std::max(rows, 0)));
    MendRows(0);
    KeepSelectionInside();
    Notify(Aspect::Rows);
}

void Grid::SetSource(int rows, int columns, CellOf cell) {
    columns_ = std::max(columns, 0);
    cells_.clear();
    source_ = std::move(cell);
    sourceRows_ = std::max(rows, 0);
    selected_ = -1;
    selectedColumn_ = 0;
    picked_.clear();
    Notify(Aspect::Rows);
}

void Grid::SetRows(std::vector<Cells> rows, int columns) {
    source_ = nullptr;
    columns_ = std::max(columns, 0);
    cells_ = std::move(rows);
    hidden_.clear();
    Draft.reset();
    MendRows(0);
    selected_ = -1;
    selectedColumn_ = 0;
    picked_.clear();
    Notify(Aspect::Rows);
}

void Grid::SetRow(int row, Cells cells) {
    if (row < 0 || row >= RowCount()) throw failure::SubscriptOutOfRange();
    cells_[static_cast<std::size_t>(row)] = std::move(cells);
    MendRow(row);
    Notify(Aspect::Rows);
}

void Grid::InsertRow(int row, Cells cells) {
    if (row < 0 || row > RowCount()) throw failure::SubscriptOutOfRange();
    if (selected_ >= row) ++selected_;
    std::vector<Cells> rows;
    rows.push_back(std::move(cells));
    ReplaceRows(row, 0, std::move(rows));
}

void Grid::RemoveRow(int row) {
    if (row < 0 || row >= RowCount()) throw failure::SubscriptOutOfRange();
    if (selected_ > row) --selected_;
    ReplaceRows(row, 1, {});
}

void Grid::ReplaceRows(int first, int count, std::vector<Cells> rows) {
    if (first < 0 || count < 0 || first + count > RowCount()) throw failure::SubscriptOutOfRange();
    hidden_.resize(cells_.size());
    const auto place = cells_.erase(cells_.begin() + first, cells_.begin() + first + count);
    const auto flags = hidden_.erase(hidden_.begin() + first, hidden_.begin() + first + count);
    hidden_.insert(flags, rows.size(), false);
    cells_.insert(place, std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end()));
    MendRows(first);
    KeepSelectionInside();
    Notify(Aspect::Rows);
}

void Grid::SetHeads(std::vector<Head> heads) {
    heads_ = std::move(heads);
    Notify(Aspect::Rows);
}

void Grid::Hide(std::vector<bool> rows) {
    hidden_ = std::move(rows);
    Notify(Aspect::Rows);
}

bool Grid::IsHidden(int row) const {
    const auto place = static_cast<std::size_t>(row);
    return row >= 0 && place < hidden_.size() && hidden_[place];
}

void Grid::TakeDraft() {
    if (!Draft) return;
    const CellText typed = *std::exchange(Draft, std::nullopt);
    if (CellTyped && typed.Row < RowCount()) CellTyped(typed.Row, typed.Column, typed.Text);
}

void Grid::MendRows(int from) {
    for (int row = from; row < RowCount(); ++row) MendRow(row);
}

void Grid::MendRow(int row) {
    Cells& cells = cells_[static_cast<std::size_t>(row)];
    cells.resize(static_cast<std::size_t>(columns_));
    if (NumbersRows && columns_ > 0) cells[0] = TrimmedStr(row);
}

void Grid::KeepSelectionInside() {
    if (selected_ < RowCount() && selectedColumn_ < columns_) return;
    selected_ = -1;
    selectedColumn_ = 0;
}

void Grid::SetCell(int row, int column, const std::string& text) {
    if (Cell(row, column) == text) return;
    cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = text;
    Notify(Aspect::Rows);
}

void Grid::Select(int row, int column) {
    Preselect(row, column);
    if (Click) Click();
}

void Grid::Preselect(int row, int column) {
    text_ = Cell(row, column);
    selected_ = rangeRow_ = row;
    selectedColumn_ = rangeColumn_ = column;
    picked_.clear();
    if (IsList && row >= FixedRows) picked_.push_back(row);
    Notify(Aspect::Selection);
}

void Grid::PickRange(int fromRow, int fromColumn, int row, int column) {
    text_ = Cell(row, column);
    selected_ = row;
    selectedColumn_ = column;
    rangeRow_ = std::clamp(fromRow, 0, RowCount() - 1);
    rangeColumn_ = std::clamp(fromColumn, 0, columns_ - 1);
    Notify(Aspect::Selection);
}

CellRange Grid::Range() const {
    if (selected_ < 0) return {};
    const int row = rangeRow_ < 0 ? selected_ : std::min(rangeRow_, RowCount() - 1);
    const auto [top, bottom] = std::minmax({row, selected_});
    const auto [left, right] = std::minmax({rangeColumn_, selectedColumn_});
    return {.Top = top, .Left = left, .Bottom = bottom, .Right = right};
}

void Grid::Deselect() {
    if (selected_ < 0) return;
    text_.clear();
    selected_ = -1;
    picked_.clear();
    Notify(Aspect::Selection);
}

void Grid::PickRows(std::vector<int> rows, int row) {
    std::sort(rows.begin(), rows.end());
    text_ = Cell(row, 0);
    selected_ = row;
    picked_ = std::move(rows);
    Notify(Aspect::Selection);
    if (Click) Click();
}

}  // namespace quillmetra
