// The control model: what a form is made of, with no toolkit behind it. A control knows its name, text,
// state and handlers; a host draws it and passes on what the user does (UserActs.h).
//
// Events from code: setting the text of a box fires its Change when the text differs, and selecting a row
// of a list fires the list's Click, as the user's act does. Options, check boxes, captions and the filling
// of a list fire nothing.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Host.h"
#include "platform/RuntimeError.h"

namespace quillmetra {

class Form;
class Frame;
class MenuItem;

using Colour = std::uint32_t;  // 0x00BBGGRR
using Handler = std::function<void()>;

enum class ControlKind {
    TextBox,
    Label,
    CommandButton,
    OptionButton,
    CheckBox,
    ListBox,
    ComboBox,
    Frame,
    MenuItem,
    Grid,
    Plot,
    ProgressBar
};
const char* Word(ControlKind kind);

// A caption as it is read: without the "&" that marks its access key and without a colon at its end.
std::string SpokenCaption(const std::string& caption);

// A key press, by the names of Keys.h. A handler that uses the key up sets Handled.
struct Key {
    std::string Name;
    bool Handled = false;
};

// Where a control is put: on the form itself, in a frame, or under a menu head.
struct Parent {
    Parent(Form& form) : Owner(form) {}  // NOLINT: written as Label{*this, ...}
    Parent(Frame& frame);                // NOLINT
    Parent(MenuItem& head);              // NOLINT

    Form& Owner;
    class Control* Container = nullptr;
};

class Control {
public:
    static constexpr int NoIndex = -1;

    Control(const Parent& parent, ControlKind kind, std::string name, std::string text = {},
            int index = NoIndex);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& Name() const { return name_; }
    int Index() const { return index_; }
    std::string FullName() const;  // "txtFlow(0)" for an element of an array
    ControlKind Kind() const { return kind_; }
    Form& Owner() const { return owner_; }
    Control* Container() const { return container_; }

    // The text of a box, the caption of anything else, as a host shows it.
    const std::string& Text() const { return text_; }
    const std::string& Caption() const { return text_; }
    void SetCaption(const std::string& caption);

    bool Enabled() const { return enabled_; }
    bool Visible() const { return visible_; }
    void SetEnabled(bool enabled);
    void SetVisible(bool visible);
    // Seen: this and all that holds it is visible. Works: and enabled too.
    bool Seen() const;
    bool Works() const;

    const std::string& ToolTip() const { return toolTip_; }
    void SetToolTip(const std::string& text);

    Colour BackColour() const { return back_; }
    Colour ForeColour() const { return fore_; }
    void SetColours(Colour back, Colour fore);

    // What names this control to a screen reader and to a test: the label beside it and, in a table of
    // cases, the word of its column. Unit is the control that shows its unit, null for what has none; it is
    // named after the label too.
    void Describe(Control* label, Control* unit = nullptr, std::string column = {});
    // "Flow, Maximum" of a box, "Flow unit, lb/h" of the button that shows its unit, "Pipe material, Steel"
    // of a button beside a label, else the caption.
    std::string AccessibleName() const;
    Control* LabelControl() const { return label_; }
    Control* UnitControl() const { return unit_; }
    // Whether the name goes by the caption of another control.
    bool IsNamedBy(const Control& label) const { return label_ == &label || unitOf_ == &label; }

    // Gives this control the focus, at once outside of a handler, else when the outermost handler ends.
    void SetFocus();

    // The colour group 1 to 6 of a control, 0 for one that keeps the host's colours.
    int ColourGroup = 0;
    bool TabStop = false;

    Handler Click, DoubleClick, GotFocus, LostFocus;
    std::function<void(Key&)> KeyPress;

protected:
    void Notify(Aspect aspect);
    std::string text_;

private:
    Form& owner_;
    Control* container_;
    ControlKind kind_;
    std::string name_;
    int index_;
    bool enabled_ = true;
    bool visible_ = true;
    std::string toolTip_;
    Colour back_ = 0x00FFFFFF;
    Colour fore_ = 0;
    Control* label_ = nullptr;
    Control* unit_ = nullptr;
    Control* unitOf_ = nullptr;  // the label of what it is the unit of
    std::string column_;
};

class TextBox : public Control {
public:
    TextBox(const Parent& parent, std::string name, int index = NoIndex)
        : Control(parent, ControlKind::TextBox, std::move(name), {}, index) {
        TabStop = true;
    }

    // Sets the text and fires Change when it differs.
    void SetText(const std::string& text);
    void SelectAll() { Notify(Aspect::SelectAll); }

    // A result: read, selected and copied, never typed into.
    bool Locked = false;
    // Holds a number: hosts right-align it and select it whole on focus.
    bool IsNumber = false;
    // The most characters that the user can type; 0 for no limit.
    std::size_t MaxLength = 0;

    Handler Change;
};

class Label : public Control {
public:
    Label(const Parent& parent, std::string name, std::string caption = {}, int index = NoIndex)
        : Control(parent, ControlKind::Label, std::move(name), std::move(caption), index) {}
};

class CommandButton : public Control {
public:
    CommandButton(const Parent& parent, std::string name, std::string caption = {}, int index = NoIndex)
        : Control(parent, ControlKind::CommandButton, std::move(name), std::move(caption), index) {
        TabStop = true;
    }
};

// An option button or a check box.
class Tickable : public Control {
public:
    using Control::Control;
    bool Checked() const { return checked_; }
    virtual void SetChecked(bool checked);

private:
    bool checked_ = false;
};

// Option buttons of one container exclude one another.
class OptionButton : public Tickable {
public:
    OptionButton(const Parent& parent, std::string name, std::string caption = {}, int index = NoIndex)
        : Tickable(parent, ControlKind::OptionButton, std::move(name), std::move(caption), index) {
        TabStop = true;
    }
    void SetChecked(bool checked) override;

    bool IsTab = false;  // chooses what the form shows: hosts draw it as a tab
};

class CheckBox : public Tickable {
public:
    CheckBox(const Parent& parent, std::string name, std::string caption = {}, int index = NoIndex)
        : Tickable(parent, ControlKind::CheckBox, std::move(name), std::move(caption), index) {
        TabStop = true;
    }
};

// A menu head or entry. A head with a Click runs it before its entries show.
class MenuItem : public Tickable {
public:
    MenuItem(const Parent& parent, std::string name, std::string caption = {}, int index = NoIndex)
        : Tickable(parent, ControlKind::MenuItem, std::move(name), std::move(caption), index) {}

    std::string Shortcut;  // "Ctrl+S"
    bool SeparatorBefore = false;
    bool StandsLast = false;  // in its menu or bar, whatever is made after it
};

// A column of a list that hosts draw as a table: its head, with the unit of its numbers.
struct ListColumn {
    std::string Head;
    bool IsNumber = false;  // stands at the right
};

// A list of rows with one of them selected, or several when Multiple is set.
class ListBox : public Control {
public:
    ListBox(const Parent& parent, std::string name, int index = NoIndex)
        : ListBox(parent, ControlKind::ListBox, std::move(name), index) {}

    const std::vector<std::string>& Rows() const { return rows_; }
    int RowCount() const { return static_cast<int>(rows_.size()); }
    // The text of a row, empty outside of the list.
    const std::string& Row(int row) const;
    // Fills the list in one call; nothing is selected after it.
    void SetRows(std::vector<std::string> rows);
    void Clear() { SetRows({}); }

    // The selected row, -1 for none. Selecting by code fires Click when the row differs and exists.
    int Selected() const { return selected_; }
    void Select(int row);
    // As Select, without the event, for a list that is being filled.
    void Preselect(int row);

    bool IsPicked(int row) const;
    void Pick(int row, bool picked);  // in a list of several selections
    // Picks every row in one call with one Click, and goes to the last.
    void PickAll();

    bool Multiple = false;

    // Hosts draw the rows as a table of these columns, if there are any; CellsOf says what of a row stands in
    // each. The rows stay what they are.
    std::vector<ListColumn> Columns;
    std::function<std::vector<std::string>(const std::string& row)> CellsOf;

protected:
    ListBox(const Parent& parent, ControlKind kind, std::string name, int index);

private:
    std::vector<std::string> rows_;
    std::vector<bool> picked_;
    int selected_ = -1;
};

// A text box over a list that is always open.
class ComboBox : public ListBox {
public:
    ComboBox(const Parent& parent, std::string name, int index = NoIndex)
        : ListBox(parent, ControlKind::ComboBox, std::move(name), index) {}

    void SetText(const std::string& text);
    Handler Change;
};

class Frame : public Control {
public:
    Frame(const Parent& parent, std::string name, std::string caption = {}, int index = NoIndex)
        : Control(parent, ControlKind::Frame, std::move(name), std::move(caption), index) {}
};

// How far a long run has come; its text says so in words ("12 of 40").
class ProgressBar : public Control {
public:
    ProgressBar(const Parent& parent, std::string name, int index = NoIndex)
        : Control(parent, ControlKind::ProgressBar, std::move(name), {}, index) {}

    int Done() const { return done_; }
    int Total() const { return total_; }
    void SetProgress(int done, int total);

private:
    int done_ = 0;
    int total_ = 0;
};

// Cells from corner to corner, both included.
struct CellRange {
    int Top = -1, Left = 0, Bottom = -1, Right = 0;
};

// Rows and columns of text with a row in hand.
class Grid : public Control {
public:
    Grid(const Parent& parent, std::string name, int index = NoIndex)
        : Control(parent, ControlKind::Grid, std::move(name), {}, index) {
        TabStop = true;
    }

    int RowCount() const { return source_ ? sourceRows_ : static_cast<int>(cells_.size()); }
    int ColumnCount() const { return columns_; }
    const std::string& Cell(int row, int column) const;  // throws outside of the grid
    // Rows that the form keeps, heads included: a cell is asked for when it is seen. Nothing is selected
    // after it.
    using CellOf = std::function<const std::string&(int row, int column)>;
    void SetSource(int rows, int columns, CellOf cell);
    void SetSize(int rows, int columns);
    void SetCell(int row, int column, const std::string& text);
    // Whole rows, each in one call whatever the size of the grid. Missing cells are empty, those past the
    // last column are left out. InsertRow puts the row before that of its number, or last.
    using Cells = std::vector<std::string>;
    void SetRows(std::vector<Cells> rows, int columns);
    void SetRow(int row, Cells cells);
    void InsertRow(int row, Cells cells);
    void RemoveRow(int row);
    // Puts rows in the place of some, which may be more or fewer or none.
    void ReplaceRows(int first, int count, std::vector<Cells> rows);
    const std::vector<Cells>& Rows() const { return cells_; }

    // Heads that say more than row 0 does, from column 0 on; none: row 0 is the heads.
    struct Head {
        std::string Text, Unit, Tip;
    };
    void SetHeads(std::vector<Head> heads);
    const std::vector<Head>& Heads() const { return heads_; }

    // Rows that do not show; they keep their numbers. Rows that are put in show.
    void Hide(std::vector<bool> rows);
    bool IsHidden(int row) const;

    // Takes what the user has typed into a cell; null for cells that are not edited. Until it is taken the
    // text is the Draft.
    std::function<void(int row, int column, const std::string& text)> CellTyped;
    struct CellText {
        int Row, Column;
        std::string Text;
    };
    std::optional<CellText> Draft;
    void TakeDraft();

    int Selected() const { return selected_; }
    int SelectedColumn() const { return selectedColumn_; }
    void Select(int row, int column);
    // As Select, without the event.
    void Preselect(int row, int column);
    void Deselect();

    // From a cell to that in hand, which it becomes.
    void PickRange(int fromRow, int fromColumn, int row, int column);
    CellRange Range() const;

    // The rows selected together, in their order, and the one of them in hand; with Click.
    void PickRows(std::vector<int> rows, int row);
    const std::vector<int>& Picked() const { return picked_; }

    // A list with columns: whole rows are selected, several at once too, a move by the arrow keys selects,
    // and a click on a head is told as one on row 0.
    bool IsList = false;
    bool PicksOne = false;           // a list of one row at a time
    std::vector<int> NumberColumns;  // stand at the right
    // Its entries show at a click of the right button, on the row below it.
    MenuItem* PopUp = nullptr;

    int FixedRows = 1;
    int FixedColumns = 1;
    // Column 0 shows the number of its row, whatever is put there.
    bool NumbersRows = false;

private:
    // Brings the rows from one on, or one alone, to the width of the grid and to their numbers.
    void MendRows(int from);
    void MendRow(int row);
    void KeepSelectionInside();

    std::vector<Cells> cells_;
    CellOf source_;
    int sourceRows_ = 0;
    int columns_ = 0;
    int selected_ = -1;
    int selectedColumn_ = 0;
    int rangeRow_ = -1;  // where the range begins that ends at the selected cell
    int rangeColumn_ = 0;
    std::vector<int> picked_;
    std::vector<bool> hidden_;  // may be shorter than the grid
    std::vector<Head> heads_;
};

// Controls of one name told apart by their index. It holds the indices it was made with and no others: a
// wrong index is a failure, never a new control.
template <typename T>
class ControlArray {
public:
    template <typename... More>
    ControlArray(const Parent& parent, const std::string& name, std::initializer_list<int> indices,
                 const More&... more) {
        for (const int index : indices) {
            elements_.push_back(std::make_unique<T>(parent, name, more..., index));
        }
    }

    // One in each frame of an array, under the frame's index.
    template <typename... More>
    ControlArray(const ControlArray<Frame>& frames, const std::string& name, const More&... more) {
        frames.Each([&](Frame& frame, int index) {
            elements_.push_back(std::make_unique<T>(frame, name, more..., index));
        });
    }

    T& operator()(int index) const {
        for (const auto& element : elements_) {
            if (element->Index() == index) return *element;
        }
        throw failure::NoSuchElement(elements_.empty() ? std::string() : elements_.front()->Name(), index);
    }

    bool Has(int index) const {
        for (const auto& element : elements_) {
            if (element->Index() == index) return true;
        }
        return false;
    }

    // Runs act(element, index) over the array in the order of its indices.
    template <typename Act>
    void Each(Act act) const {
        for (const auto& element : elements_) act(*element, element->Index());
    }

private:
    std::vector<std::unique_ptr<T>> elements_;
};

}  // namespace quillmetra
