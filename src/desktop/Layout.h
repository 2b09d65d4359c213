// How the controls of a form are placed: a small tree that names controls and says no more about them than
// where they stand. Each form has one file under layouts/ that returns its tree.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillmetra::layout {

struct Node {
    enum class Kind {
        Item,     // a control by its full name; nothing where the form has none of that name
        Words,    // words of the layout's own, as the head of a column
        Column,   // one below the other
        Row,      // side by side
        Table,    // rows of cells in common columns; each part is a row
        Buttons,  // side by side at the right end, of one width
        Panel,    // an area with a border and a heading
        Frame,    // the frame of that name with its contents
        Over,     // the first part, with the others over its middle for as long as they show
        Stretch,  // takes the room that is left
        Reserve,  // see the function of that name
    };

    Node(const char* control) : Name(control) {}             // NOLINT: layouts name controls plainly
    Node(std::string control) : Name(std::move(control)) {}  // NOLINT
    Node(Kind what, std::string name, std::vector<Node> parts = {})
        : What(what), Name(std::move(name)), Parts(std::move(parts)) {}

    // At least so many digits wide, and so many rows of a list or lines of words high; of a table, the width
    // of its first column.
    Node Wide(int digits) &&;
    Node Tall(int rows) &&;
    // A list that takes its size at first and may become as small as this, where the screen is small.
    Node Least(int digits, int rows) &&;
    // Takes its share of the room that is left, in a row its width and in a column its height.
    Node Grow() &&;
    // In letters of one width, for rows whose columns are counted in characters.
    Node Typed() &&;
    // Not in the flow: a list that drops down from a control.
    Node Under(std::string control) &&;
    // Several lines where the words are longer than the room.
    Node Wrapped() &&;
    Node Centred() &&;
    Node Bold() &&;
    // In a table, over so many columns; AllColumns to the end of the row.
    static constexpr int AllColumns = -1;
    Node Across(int columns) &&;
    // Takes no room while it is hidden.
    Node Collapsing() &&;
    // An area without border and margins, that only holds things together.
    Node Bare() &&;

    Kind What = Kind::Item;
    std::string Name;
    std::vector<Node> Parts;
    int Digits = 0;
    int Rows = 0;
    int LeastDigits = 0, LeastRows = 0;
    bool Grows = false;
    bool IsTyped = false;
    bool Wraps = false;
    bool IsCentred = false;
    bool IsBare = false;
    bool Collapses = false;
    bool IsBold = false;
    int Columns = 1;
    std::string Anchor;
};

Node Item(std::string control);
Node Item(const std::string& array, int index);
Node Words(std::string words);
// Words in bold over a whole row of a table, that head the rows below.
Node Heading(std::string words);
Node Column(std::vector<Node> parts);
Node Row(std::vector<Node> parts);
Node Table(std::vector<std::vector<Node>> rows);
Node Buttons(std::vector<Node> parts);
Node Panel(std::string heading, Node content);
Node Frame(std::string control, Node content);
Node Over(Node base, std::vector<Node> parts);
Node Stretch();
// Room that a window opens with and that its contents may take later: so many lines of words.
Node Reserve(int lines);

// The digits of the first column of labels, so that the boxes of all cards of a form stand in one line.
inline constexpr int LabelDigits = 18;
inline constexpr int CaseDigits = 12;

// The row of a table for a value of three cases: label, a box for each case, unit.
std::vector<Node> Cases(const std::string& label, const std::string& boxes, const std::string& unit);

// The tree of a form; of a form without one, nothing, so that its controls stand as it made them.
Node LayoutOf(std::string_view form);

}  // namespace quillmetra::layout
