// See LayoutBuilder.h.
#include "desktop/LayoutBuilder.h"

#include <algorithm>

#include <QEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QVBoxLayout>

#include "desktop/Painting.h"

namespace quillmetra {

namespace {

constexpr int Gap = 6;
constexpr int PageGap = 8;  // between cards, and around them
constexpr int LineGap = 4;
constexpr int UsualDigits = 10;

bool IsListKind(ControlKind kind) {
    return kind == ControlKind::ListBox || kind == ControlKind::ComboBox || kind == ControlKind::Grid;
}

// Puts a list below its anchor each time it shows.
class DropDown : public QObject {
public:
    DropDown(QWidget* list, QWidget* anchor) : QObject(list), list_(list), anchor_(anchor) {
        list_->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show) {
            const QWidget* const pane = list_->parentWidget();
            const QPoint below = anchor_->mapTo(pane, QPoint(0, anchor_->height() + 1));
            const QSize size = list_->minimumSize();
            const QPoint most(pane->width() - size.width(), pane->height() - size.height());
            list_->setGeometry(
                QRect(QPoint(std::min(below.x(), most.x()), std::min(below.y(), most.y())), size));
            list_->raise();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget* list_;
    QWidget* anchor_;
};

}  // namespace

void LayoutBuilder::Build(const Node& tree, const std::vector<ControlView*>& views) {
    auto* const column = new QVBoxLayout(&pane_);
    column->setContentsMargins(PageGap, PageGap, PageGap, PageGap);
    column->setSpacing(PageGap);
    AddTo(*column, tree);

    QHBoxLayout* row = nullptr;
    for (ControlView* view : views) {
        if (view->Widget() == nullptr ||
            std::find(placed_.begin(), placed_.end(), view->Widget()) != placed_.end()) {
            continue;
        }
        constexpr int across = 6;
        if (row == nullptr || row->count() == across) {
            row = new QHBoxLayout;
            column->addLayout(row);
        }
        Size(*view, layout::Item(view->Model()->FullName()));
        row->addWidget(view->Widget());
        TakeColours(*view->Model());
    }
}

void LayoutBuilder::AddTo(QBoxLayout& box, const Node& node) {
    const int share = node.Grows || node.What == Node::Kind::Stretch ? 1 : 0;
    if (node.What == Node::Kind::Stretch) {
        box.addStretch(share);
    } else if (node.What == Node::Kind::Reserve) {
        const int height = node.Rows * QFontMetrics(pane_.font()).height();
        box.addItem(new QSpacerItem(0, height, QSizePolicy::Minimum, QSizePolicy::Preferred));
    } else if (QWidget* widget = MakeWidget(node)) {
        const bool hugs = node.What == Node::Kind::Item && box.direction() == QBoxLayout::TopToBottom &&
                          !node.Grows && node.Digits > 0 && node.Rows == 0;
        box.addWidget(widget, share, hugs ? Qt::AlignLeft : Qt::Alignment());
    } else if (QLayout* inner = MakeLayout(node)) {
        box.addLayout(inner, share);
    }
}

void LayoutBuilder::AddCell(QGridLayout& grid, const Node& node, int row, int column) {
    if (node.What == Node::Kind::Stretch || node.Grows) grid.setColumnStretch(column, 1);
    if (QWidget* widget = MakeWidget(node)) {
        // Rows that a heading begins stand apart from those before.
        if (node.Columns == Node::AllColumns && row > 0) widget->setContentsMargins(0, Gap, 0, 0);
        const bool isCentred = node.IsCentred && qobject_cast<QLabel*>(widget) != nullptr;
        grid.addWidget(widget, row, column, 1, node.Columns, isCentred ? Qt::AlignHCenter : Qt::Alignment());
    } else if (QLayout* inner = MakeLayout(node)) {
        grid.addLayout(inner, row, column);
    }
}

QLayout* LayoutBuilder::MakeLayout(const Node& node) {
    if (node.What == Node::Kind::Table) {
        auto* const grid = new QGridLayout;
        grid->setHorizontalSpacing(Gap);
        grid->setVerticalSpacing(LineGap);
        grid->setColumnMinimumWidth(0, DigitsWide(pane_, node.Digits));
        for (std::size_t row = 0; row < node.Parts.size(); ++row) {
            const auto& cells = node.Parts[row].Parts;
            for (std::size_t column = 0; column < cells.size(); ++column) {
                AddCell(*grid, cells[column], static_cast<int>(row), static_cast<int>(column));
            }
        }
        return grid;
    }
    if (node.What != Node::Kind::Column && node.What != Node::Kind::Row && node.What != Node::Kind::Buttons) {
        return nullptr;
    }
    const bool down = node.What == Node::Kind::Column;
    auto* const box = new QBoxLayout(down ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    box->setSpacing(Gap);
    if (node.What == Node::Kind::Buttons) box->addStretch(1);
    for (const Node& part : node.Parts) AddTo(*box, part);
    return box;
}

QWidget* LayoutBuilder::MakeWidget(const Node& node) {
    switch (node.What) {
        case Node::Kind::Item: return node.Name.empty() ? nullptr : MakeItem(node);
        case Node::Kind::Words: return MakeWords(node);
        case Node::Kind::Panel:
        case Node::Kind::Frame: return MakeArea(node);
        case Node::Kind::Over: return MakeOver(node);
        default: return nullptr;
    }
}

QWidget* LayoutBuilder::MakeItem(const Node& node) {
    ControlView* const view = find_(node.Name);
    if (view == nullptr || view->Widget() == nullptr) return nullptr;
    QWidget* const widget = view->Widget();
    placed_.push_back(widget);
    TakeColours(*view->Model());
    Size(*view, node);
    if (node.Anchor.empty()) return widget;
    ControlView* const anchor = find_(node.Anchor);
    if (anchor == nullptr) return widget;
    widget->setParent(&pane_);
    new DropDown(widget, anchor->Widget());
    return nullptr;
}

QWidget* LayoutBuilder::MakeWords(const Node& node) {
    auto* const words = new QLabel(ToQt(node.Name), &pane_);
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(node.Wraps);
    if (node.IsBold) {
        QFont bold = words->font();
        bold.setBold(true);
        words->setFont(bold);
    }
    return words;
}

QWidget* LayoutBuilder::MakeArea(const Node& node) {
    QWidget* area = nullptr;
    if (node.What == Node::Kind::Frame) {
        ControlView* const view = find_(node.Name);
        if (view == nullptr) return nullptr;
        area = view->Widget();
        placed_.push_back(area);
        painted_.push_back({area, view->Model()->ColourGroup == 0 ? nullptr : view->Model()});
    } else {
        area = new Panel(&pane_, ToQt(node.Name));
        painted_.push_back({area, nullptr});
    }
    if (node.IsBare) static_cast<Panel*>(area)->SetBare();
    open_.push_back(painted_.size() - 1);
    auto* const column = new QVBoxLayout(area);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap);
    for (const Node& part : node.Parts) AddTo(*column, part);
    open_.pop_back();
    return area;
}

QWidget* LayoutBuilder::MakeOver(const Node& node) {
    auto* const both = new QWidget(&pane_);
    auto* const grid = new QGridLayout(both);
    grid->setContentsMargins(0, 0, 0, 0);
    auto* const base = new QWidget(both);
    auto* const column = new QVBoxLayout(base);
    column->setContentsMargins(0, 0, 0, 0);
    AddTo(*column, node.Parts.front());
    grid->addWidget(base, 0, 0);

    // The parts share the width when one of them grows, else they stand in the middle.
    auto* const top = new QWidget(both);
    auto* const row = new QHBoxLayout(top);
    row->setContentsMargins(0, 0, 0, 0);
    const std::vector<Node>& parts = node.Parts.back().Parts;
    const bool grows = std::any_of(parts.begin(), parts.end(), [](const Node& part) { return part.Grows; });
    floating_ = true;
    for (const Node& part : parts) {
        QWidget* const area = MakeWidget(part);
        if (area == nullptr) continue;
        if (auto* const panel = dynamic_cast<Panel*>(area)) panel->SetRaised(true);
        row->addWidget(area, part.Grows ? 1 : 0, part.Grows ? Qt::AlignVCenter : Qt::AlignCenter);
    }
    floating_ = false;
    grid->addWidget(top, 0, 0, grows ? Qt::AlignVCenter : Qt::AlignCenter);
    const int line = QFontMetrics(both->font()).height();
    both->setMinimumSize(DigitsWide(*both, node.Digits), line * node.Rows);
    return both;
}

namespace {

QSize ListSize(const QWidget& list, int digits, int rows) {
    return {DigitsWide(list, digits) + 16 + list.style()->pixelMetric(QStyle::PM_ScrollBarExtent),
            rows * (QFontMetrics(list.font()).height() + 2) + 6};
}

}  // namespace

void LayoutBuilder::Size(ControlView& view, const Node& node) {
    QWidget* const widget = view.Widget();
    const ControlKind kind = view.Model()->Kind();
    if (node.IsTyped) widget->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    if (auto* const label = qobject_cast<QLabel*>(widget)) {
        label->setWordWrap(node.Wraps);
        if (node.Rows > 0) label->setMinimumHeight(node.Rows * label->fontMetrics().lineSpacing());
    }
    if (kind == ControlKind::Frame) return;

    QSizePolicy policy = widget->sizePolicy();
    // A field that comes and goes keeps its place, so that the others do not jump.
    const bool isField = kind == ControlKind::TextBox || kind == ControlKind::Label;
    policy.setRetainSizeWhenHidden(isField && !floating_ && !node.Collapses);
    if (kind == ControlKind::TextBox) {
        const int width = DigitsWide(*widget, node.Digits > 0 ? node.Digits : UsualDigits) + 14;
        widget->setMinimumWidth(width);
        if (!node.Grows && node.Columns == 1) widget->setMaximumWidth(width);
    } else if (node.Digits > 0) {
        widget->setMinimumWidth(DigitsWide(*widget, node.Digits) + 14);
    }
    if (kind == ControlKind::Label && node.Digits > 0) policy.setHorizontalPolicy(QSizePolicy::Minimum);
    if (kind == ControlKind::Label && node.Rows > 0) {
        widget->setMinimumHeight(node.Rows * QFontMetrics(widget->font()).height());
    }
    if (IsListKind(kind)) {
        const QSize size = ListSize(*widget, node.Digits, node.Rows > 0 ? node.Rows : 8);
        widget->setMinimumHeight(size.height());
        if (node.Digits > 0) widget->setMinimumWidth(size.width());
        if (node.LeastRows > 0) {
            widget->setProperty(FirstSize, size);
            widget->setMinimumSize(ListSize(*widget, node.LeastDigits, node.LeastRows));
        }
        if (!node.Grows && node.Rows > 0) widget->setMaximumHeight(widget->minimumHeight());
    }
    widget->setSizePolicy(policy);
}

void LayoutBuilder::TakeColours(const Control& control) {
    const ControlKind kind = control.Kind();
    if (control.ColourGroup == 0 ||
        (kind != ControlKind::Label && kind != ControlKind::OptionButton && kind != ControlKind::CheckBox)) {
        return;
    }
    for (const std::size_t area : open_) {
        if (painted_[area].As == nullptr) painted_[area].As = &control;
    }
}

}  // namespace quillmetra
