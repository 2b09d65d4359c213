// See CellEditing.h.
#include "desktop/CellEditing.h"

#include <utility>

#include <QKeyEvent>
#include <QLineEdit>

#include "platform/UserActs.h"

namespace quillmetra {

CellDelegate::CellDelegate(Grid& grid, std::function<void(Handler)> later, QObject* parent)
    : QStyledItemDelegate(parent), grid_(&grid), later_(std::move(later)) {}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const {
    auto* const editor = new QLineEdit(parent);
    editor->setFrame(false);
    ++open_;
    const int row = index.row() + grid_->FixedRows, column = index.column() + grid_->FixedColumns;
    connect(editor, &QLineEdit::textEdited, this, [this, row, column](const QString& text) {
        if (grid_ != nullptr) TypeInCell(*grid_, row, column, text.toStdString());
    });
    return editor;
}

void CellDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const {
    --open_;
    QStyledItemDelegate::destroyEditor(editor, index);
}

void CellDelegate::setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const { Take(0, 0); }

void CellDelegate::Take(int rows, int columns) const {
    later_([this, rows, columns] {
        if (grid_ == nullptr) return;
        EndCell(*grid_, true);
        if (rows == 0 && columns == 0) return;
        int row = grid_->Selected() + rows;
        while (grid_->IsHidden(row)) row += rows;
        const int column = grid_->SelectedColumn() + columns;
        if (column < grid_->FixedColumns || !MoveToCell(*grid_, row, column)) return;
        if (columns != 0) Open();
    });
}

// Past what a key means to the form.
bool CellDelegate::eventFilter(QObject* editor, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QStyledItemDelegate::eventFilter(editor, event);
    auto* const widget = qobject_cast<QWidget*>(editor);
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: Take(1, 0); break;
        case Qt::Key_Tab: Take(0, 1); break;
        case Qt::Key_Backtab: Take(0, -1); break;
        case Qt::Key_Escape:
            if (grid_ != nullptr) EndCell(*grid_, false);
            break;
        default: return QStyledItemDelegate::eventFilter(editor, event);
    }
    emit closeEditor(widget, NoHint);
    return true;
}

}  // namespace quillmetra
