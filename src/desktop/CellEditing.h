// The editor that opens over a cell of a grid. Each keystroke goes to the model as the draft of the cell;
// Enter and Tab take it, Escape gives it up.
#pragma once

#include <QStyledItemDelegate>

#include "platform/Controls.h"

namespace quillmetra {

class CellDelegate : public QStyledItemDelegate {
public:
    // later: runs an act after those of the user before it.
    CellDelegate(Grid& grid, std::function<void(Handler)> later, QObject* parent);

    // Opens the editor of the cell in hand.
    Handler Open;

    bool IsOpen() const { return open_ > 0; }
    void Forget() { grid_ = nullptr; }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

protected:
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    // Takes what was typed and goes on by so many rows or columns; by columns the next cell opens.
    void Take(int rows, int columns) const;

    Grid* grid_;  // null once the form is gone
    std::function<void(Handler)> later_;
    mutable int open_ = 0;
};

}  // namespace quillmetra
