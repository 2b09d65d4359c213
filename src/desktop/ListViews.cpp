// Views of lists, combos and grids. The rows are read from the model as they are drawn, so that a list of
// 100,000 rows costs no more than the few that show.
#include <algorithm>
#include <utility>

#include <QAbstractListModel>
#include <QAbstractTableModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QTableView>
#include <QVBoxLayout>

#include "desktop/ControlView.h"
#include "desktop/Painting.h"

namespace quillmetra {

namespace {

class RowsModel : public QAbstractListModel {
public:
    RowsModel(const ListBox& list, QWidget* view) : QAbstractListModel(view), list_(list), view_(view) {}

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }

    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::DisplayRole) return ToRead(list_.Row(index.row()));
        if (role == Qt::SizeHintRole) return size_;
        return {};
    }

    void Renew() {
        beginResetModel();
        rows_ = list_.RowCount();
        const auto& rows = list_.Rows();
        const auto longest = std::max_element(
            rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a.size() < b.size(); });
        const QFontMetrics metrics(view_->font());
        const int width = longest == rows.end() ? 0 : metrics.horizontalAdvance(ToQt(*longest));
        size_ = QSize(width + 8, metrics.height() + 2);
        endResetModel();
    }

    void Empty() {
        beginResetModel();
        rows_ = 0;
        endResetModel();
    }

private:
    const ListBox& list_;
    QWidget* view_;
    int rows_ = 0;
    QSize size_;
};

// Letters find the row that begins with them, from the one in hand on, which stays in hand when it does. The
// same letter again goes on to the next. A row that a key has chosen is told when the widget has done with
// the key: the click of a row may put up a box or fill the list anew.
class RowList : public QListView {
public:
    using QListView::QListView;
    Handler KeyDone;
    bool InKey() const { return inKey_; }

    void keyboardSearch(const QString& letters) override {
        if (!typedAt_.isValid() || typedAt_.elapsed() > QApplication::keyboardInputInterval()) typed_.clear();
        typedAt_.start();
        typed_ += letters;
        QModelIndex found = Find(typed_, currentIndex().row());
        const bool again =
            typed_.size() > 1 && typed_.count(typed_.at(0), Qt::CaseInsensitive) == typed_.size();
        if (!found.isValid() && again) found = Find(typed_.left(1), currentIndex().row() + 1);
        if (found.isValid()) setCurrentIndex(found);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        {
            const QScopedValueRollback now(inKey_, true);
            QListView::keyPressEvent(event);
        }
        if (KeyDone) KeyDone();
    }

private:
    QModelIndex Find(const QString& start, int row) const {
        const int rows = model() == nullptr ? 0 : model()->rowCount();
        if (rows == 0) return {};
        const QModelIndex first = model()->index(std::max(row, 0) % rows, 0);
        return model()->match(first, Qt::DisplayRole, start, 1, Qt::MatchStartsWith | Qt::MatchWrap).value(0);
    }

    QString typed_;
    QElapsedTimer typedAt_;
    bool inKey_ = false;
};

// Keeps a list widget and the selection of its model alike. While the mouse is down the user is still
// choosing; the model hears of it at the release.
class ListBoxView : public ControlView {
public:
    ListBoxView(ListBox& list, QWidget* widget, RowList* view)
        : ControlView(list, widget),
          list_(list),
          view_(view),
          rows_(new RowsModel(list, view)),
          viewport_(view->viewport()) {
        view_->setUniformItemSizes(true);
        view_->setTextElideMode(Qt::ElideNone);
        view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
        view_->setSelectionMode(list.Multiple ? QAbstractItemView::MultiSelection
                                              : QAbstractItemView::SingleSelection);
        view_->setModel(rows_);
        view_->viewport()->installEventFilter(this);
        connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
            if (view_->InKey()) {
                chosenByKey_ = chosenByKey_ || !renewing_;
            } else if (!mouseDown_ && !renewing_) {
                Chosen(false);
            }
        });
        view_->KeyDone = [this] {
            if (std::exchange(chosenByKey_, false)) Chosen(false);
        };
    }

    QWidget* KeyTarget() const override { return view_; }
    QWidget* MouseTarget() const override { return view_->viewport(); }

    void Forget() override {
        const QScopedValueRollback quiet(renewing_, true);
        rows_->Empty();
        ControlView::Forget();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != viewport_) return ControlView::eventFilter(watched, event);
        if (event->type() == QEvent::MouseButtonPress) mouseDown_ = true;
        if (event->type() == QEvent::MouseButtonRelease && mouseDown_) {
            mouseDown_ = false;
            Later([this] { Chosen(true); });
        }
        return ControlView::eventFilter(watched, event);
    }

protected:
    void RenewRows() override {
        const QScopedValueRollback quiet(renewing_, true);
        rows_->Renew();
    }

    void RenewSelection() override {
        const QScopedValueRollback quiet(renewing_, true);
        QItemSelectionModel* const selection = view_->selectionModel();
        const QModelIndex row = rows_->index(list_.Selected());
        if (!list_.Multiple) {
            selection->setCurrentIndex(row, QItemSelectionModel::ClearAndSelect);
        } else {
            selection->select(Picked(), QItemSelectionModel::ClearAndSelect);
            selection->setCurrentIndex(row, QItemSelectionModel::NoUpdate);
        }
        if (row.isValid()) view_->scrollTo(row);
    }

    void RenewColours() override {
        if (Model()->ColourGroup != 0) PaintField(*view_, Model()->BackColour(), Model()->ForeColour());
    }

private:
    void Chosen(bool byMouse) {
        if (Model() == nullptr) return;
        if (list_.Multiple) {
            PassPicks();
        } else {
            const QModelIndexList chosen = view_->selectionModel()->selectedIndexes();
            if (!chosen.isEmpty() && (byMouse || chosen.first().row() != list_.Selected())) {
                PickRow(list_, chosen.first().row());
            }
        }
        if (Model() != nullptr) RenewSelection();
    }

    // Rows that follow one another are one range, so that a long list with all picked costs little.
    QItemSelection Picked() const {
        QItemSelection picked;
        for (int first = 0; first < list_.RowCount(); ++first) {
            if (!list_.IsPicked(first)) continue;
            int last = first;
            while (list_.IsPicked(last + 1)) ++last;
            picked.append(QItemSelectionRange(rows_->index(first), rows_->index(last)));
            first = last;
        }
        return picked;
    }

    // The differences are gathered first: each pick that is passed on shows the model's selection again.
    void PassPicks() {
        std::vector<int> changed;
        for (int row = 0; row < list_.RowCount(); ++row) {
            if (view_->selectionModel()->isSelected(rows_->index(row)) != list_.IsPicked(row))
                changed.push_back(row);
        }
        for (const int row : changed) {
            if (Model() == nullptr) return;
            if (list_.IsPicked(row)) {
                UnpickRow(list_, row);
            } else {
                PickRow(list_, row);
            }
        }
    }

protected:
    ListBox& list_;
    RowList* view_;

private:
    RowsModel* rows_;
    const QObject* viewport_;  // also asked for while the view is being destroyed
    bool mouseDown_ = false;
    bool chosenByKey_ = false;
    bool renewing_ = false;
};

// A box over a list that is always open.
class ComboView : public ListBoxView {
public:
    ComboView(ComboBox& combo, QWidget* widget, QLineEdit* edit, RowList* view)
        : ListBoxView(combo, widget, view), edit_(edit) {
        auto* const column = new QVBoxLayout(widget);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(2);
        column->addWidget(edit);
        column->addWidget(view);
        widget->setFocusProxy(edit);
        view->setFocusPolicy(Qt::NoFocus);  // the box has the keyboard for both
        edit->installEventFilter(this);
        connect(edit, &QLineEdit::textEdited, this, [this](const QString& text) {
            if (Model() == nullptr) return;
            TypeText(*Model(), text.toStdString());
            if (Model() != nullptr) RenewText();
        });
    }

    QWidget* KeyTarget() const override { return edit_; }

    // Up and down go through the rows from within the box.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == edit_ && event->type() == QEvent::KeyPress) {
            switch (static_cast<QKeyEvent*>(event)->key()) {
                case Qt::Key_Up:
                case Qt::Key_Down:
                case Qt::Key_PageUp:
                case Qt::Key_PageDown: return QApplication::sendEvent(view_, event);
                default: break;
            }
        }
        return ListBoxView::eventFilter(watched, event);
    }

protected:
    void RenewText() override {
        const QString text = ToQt(list_.Text());
        if (edit_->text() != text) edit_->setText(text);
    }

    void RenewSelection() override {
        ListBoxView::RenewSelection();
        RenewText();
    }

    void RenewColours() override {
        ListBoxView::RenewColours();
        if (Model()->ColourGroup != 0) PaintField(*edit_, Model()->BackColour(), Model()->ForeColour());
    }

    void SelectAll() override { edit_->selectAll(); }

private:
    QLineEdit* edit_;
};

// The first of the fixed rows and columns are the headers of the table.
class CellsModel : public QAbstractTableModel {
public:
    CellsModel(const Grid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {}

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
    int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : columns_; }

    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole) return {};
        return ToQt(grid_.Cell(index.row() + grid_.FixedRows, index.column() + grid_.FixedColumns));
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (role != Qt::DisplayRole) return {};
        if (orientation == Qt::Horizontal) {
            return grid_.FixedRows == 0 ? QVariant() : ToQt(grid_.Cell(0, section + grid_.FixedColumns));
        }
        return grid_.FixedColumns == 0 ? QVariant() : ToQt(grid_.Cell(section + grid_.FixedRows, 0));
    }

    // True when the columns are others than before. Else the view keeps its place: a row more or less is told
    // as one at the end, and all cells as changed, of which the view fetches those that are seen.
    bool Renew() {
        const int columns = std::max(0, grid_.ColumnCount() - grid_.FixedColumns);
        const int rows = std::max(0, grid_.RowCount() - grid_.FixedRows);
        if (columns != columns_) {
            SetSize(rows, columns);
            return true;
        }
        SetRowCount(rows);
        if (rows > 0 && columns > 0) {
            emit dataChanged(index(0, 0), index(rows - 1, columns - 1));
            emit headerDataChanged(Qt::Horizontal, 0, columns - 1);
        }
        return false;
    }

    void Empty() { SetSize(0, 0); }

private:
    void SetSize(int rows, int columns) {
        beginResetModel();
        rows_ = rows;
        columns_ = columns;
        endResetModel();
    }

    void SetRowCount(int rows) {
        if (rows > rows_) {
            beginInsertRows({}, rows_, rows - 1);
            rows_ = rows;
            endInsertRows();
        } else if (rows < rows_) {
            beginRemoveRows({}, rows, rows_ - 1);
            rows_ = rows;
            endRemoveRows();
        }
    }

    const Grid& grid_;
    int rows_ = 0;
    int columns_ = 0;
};

class GridView : public ControlView {
public:
    GridView(Grid& grid, QTableView* table)
        : ControlView(grid, table), grid_(grid), table_(table), cells_(new CellsModel(grid, table)) {
        table_->setModel(cells_);
        table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
        table_->setSelectionMode(QAbstractItemView::SingleSelection);
        table_->setTabKeyNavigation(false);
        table_->horizontalHeader()->setVisible(grid.FixedRows > 0);
        table_->verticalHeader()->setVisible(grid.FixedColumns > 0);
        // All rows of one height, so that none has to be measured.
        table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 6);
        // Later, as the grid first takes the focus of the mouse, which its click may pass on.
        connect(table_, &QTableView::clicked, this, [this](const QModelIndex& cell) {
            Later([this, place = QPersistentModelIndex(cell)] { Chosen(place); });
        });
        connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this,
                [this](const QModelIndex& cell) { Reached(cell); });
    }

    QWidget* MouseTarget() const override { return table_->viewport(); }

    void Forget() override {
        cells_->Empty();
        ControlView::Forget();
    }

protected:
    void RenewColours() override {
        if (Model()->ColourGroup != 0) PaintField(*table_, Model()->BackColour(), Model()->ForeColour());
    }

    void RenewRows() override {
        renewing_ = true;
        if (cells_->Renew()) table_->resizeColumnsToContents();
        renewing_ = false;
        RenewSelection();
    }

    void RenewSelection() override {
        const QModelIndex cell =
            cells_->index(grid_.Selected() - grid_.FixedRows, grid_.SelectedColumn() - grid_.FixedColumns);
        if (cell == table_->currentIndex()) return;
        renewing_ = true;
        table_->setCurrentIndex(cell);
        renewing_ = false;
    }

private:
    // By the arrow keys; a press of the mouse is told when it is a click.
    void Reached(const QModelIndex& cell) {
        if (Model() == nullptr || renewing_ || !cell.isValid() ||
            QApplication::mouseButtons() != Qt::NoButton)
            return;
        MoveToCell(grid_, cell.row() + grid_.FixedRows, cell.column() + grid_.FixedColumns);
    }

    void Chosen(const QModelIndex& cell) {
        if (Model() == nullptr) return;
        PickCell(grid_, cell.row() + grid_.FixedRows, cell.column() + grid_.FixedColumns);
    }

    Grid& grid_;
    QTableView* table_;
    CellsModel* cells_;
    bool renewing_ = false;  // the view follows the model, not the user
};

}  // namespace

ControlView* MakeListView(Control& control, QWidget* parent) {
    if (control.Kind() == ControlKind::Grid)
        return new GridView(static_cast<Grid&>(control), new QTableView(parent));
    if (control.Kind() == ControlKind::ListBox) {
        auto* const view = new RowList(parent);
        return new ListBoxView(static_cast<ListBox&>(control), view, view);
    }
    auto* const whole = new QWidget(parent);
    return new ComboView(static_cast<ComboBox&>(control), whole, new QLineEdit(whole), new RowList(whole));
}

}  // namespace quillmetra
