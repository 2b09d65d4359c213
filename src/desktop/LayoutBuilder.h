// Turns a layout into the widgets of a window.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <QLayout>

#include "desktop/ControlView.h"
#include "desktop/Layout.h"

namespace quillmetra {

class LayoutBuilder {
public:
    using Finder = std::function<ControlView*(const std::string& fullName)>;

    LayoutBuilder(QWidget& pane, Finder find) : pane_(pane), find_(std::move(find)) {}

    // Places what the tree names on the pane, and what it forgets below it.
    void Build(const layout::Node& tree, const std::vector<ControlView*>& views);

    // An area that has no colours of its own is painted as the first control in it that has some.
    struct PaintedArea {
        QWidget* Area;
        const Control* As;
    };
    const std::vector<PaintedArea>& PaintedAreas() const { return painted_; }

private:
    using Node = layout::Node;

    // Adds a node to a row or a column, with its share of the room that is left.
    void AddTo(QBoxLayout& box, const Node& node);
    void AddCell(QGridLayout& grid, const Node& node, int row, int column);
    QLayout* MakeLayout(const Node& node);
    QWidget* MakeWidget(const Node& node);  // null for what is a layout alone, or nothing
    QWidget* MakeItem(const Node& node);
    QWidget* MakeArea(const Node& node);
    QWidget* MakeWords(const Node& node);
    QWidget* MakeOver(const Node& node);
    void Size(ControlView& view, const Node& node);
    void TakeColours(const Control& control);

    QWidget& pane_;
    Finder find_;
    std::vector<QWidget*> placed_;
    bool floating_ = false;  // within a part that shows over others
    std::vector<PaintedArea> painted_;
    std::vector<std::size_t> open_;  // the areas being filled, by their place in painted_
};

}  // namespace quillmetra
