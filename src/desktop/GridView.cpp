// Views of grids. The cells are read from the model as they are drawn, so that 100,000 rows cost no more than
// the few that show.
#include <algorithm>
#include <utility>

#include <QAbstractTableModel>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QTableView>

#include "desktop/CellEditing.h"
#include "desktop/ControlView.h"
#include "desktop/Painting.h"

namespace quillmetra {

namespace {

// The first of the fixed rows and columns are the headers of the table.
class CellsModel : public QAbstractTableModel {
public:
    CellsModel(const Grid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {}

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
    int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : columns_; }

    Qt::ItemFlags flags(const QModelIndex& index) const override {
        const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
        return grid_.CellTyped ? flags | Qt::ItemIsEditable : flags;
    }

    QVariant data(const QModelIndex& index, int role) const override {
        // The view copies the cell in hand, of which there may be none.
        if (!index.isValid()) return {};
        if (role == Qt::TextAlignmentRole) return SideOf(index.column());
        if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
        const QString text = TextOf(index);
        return role == Qt::EditRole ? text.trimmed() : text;
    }

    QString TextOf(const QModelIndex& index) const {
        return ToQt(grid_.Cell(index.row() + grid_.FixedRows, index.column() + grid_.FixedColumns));
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        const bool lies = orientation == Qt::Horizontal;
        if (role == Qt::TextAlignmentRole && lies) return SideOf(section);
        const std::size_t head =
            static_cast<std::size_t>(section) + static_cast<std::size_t>(grid_.FixedColumns);
        if (lies && head < grid_.Heads().size()) return HeadOf(grid_.Heads()[head], role);
        if (role != Qt::DisplayRole) return {};
        if (lies) {
            return grid_.FixedRows == 0 ? QVariant() : ToQt(grid_.Cell(0, section + grid_.FixedColumns));
        }
        return grid_.FixedColumns == 0 ? QVariant() : ToQt(grid_.Cell(section + grid_.FixedRows, 0));
    }

    // True when the columns are others than before, or there are rows for the first time. Else the view keeps
    // its place: a row more or less is told as one at the end, and all cells as changed, of which the view
    // fetches those that are seen.
    bool Renew() {
        const int columns = std::max(0, grid_.ColumnCount() - grid_.FixedColumns);
        const int rows = std::max(0, grid_.RowCount() - grid_.FixedRows);
        if (columns != columns_ || (rows_ == 0 && rows > 0)) {
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
    // Numbers at the right, the rest where the view has it.
    QVariant SideOf(int column) const {
        const auto& numbers = grid_.NumberColumns;
        if (std::find(numbers.begin(), numbers.end(), column + grid_.FixedColumns) == numbers.end())
            return {};
        return static_cast<int>(Qt::AlignRight) | static_cast<int>(Qt::AlignVCenter);
    }

    // In lines of a few words, so that the column is no wider than its numbers need.
    static QVariant HeadOf(const Grid::Head& head, int role) {
        constexpr qsizetype wide = 12;
        if (role == Qt::ToolTipRole) return ToQt(head.Tip);
        if (role != Qt::DisplayRole) return {};
        QString lines, line;
        for (const QString& word : ToQt(head.Text).split(QLatin1Char(' '))) {
            if (!line.isEmpty() && line.size() + 1 + word.size() > wide) {
                lines += line + QLatin1Char('\n');
                line.clear();
            }
            line += (line.isEmpty() ? QString() : QStringLiteral(" ")) + word;
        }
        lines += line;
        return head.Unit.empty() ? lines : lines + QLatin1Char('\n') + ToQt(head.Unit);
    }

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

class GridTable : public QTableView {
public:
    using QTableView::QTableView;
    QSize sizeHint() const override {
        const QSize first = property(FirstSize).toSize();
        return first.isValid() ? first : QTableView::sizeHint();
    }
};

class GridView : public ControlView {
public:
    GridView(Grid& grid, QTableView* table)
        : ControlView(grid, table),
          grid_(grid),
          table_(table),
          cells_(new CellsModel(grid, table)),
          viewport_(table->viewport()) {
        table_->setModel(cells_);
        table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
        table_->setSelectionMode(grid.IsList && !grid.PicksOne ? QAbstractItemView::ExtendedSelection
                                                               : QAbstractItemView::SingleSelection);
        table_->setTabKeyNavigation(false);
        table_->horizontalHeader()->setVisible(grid.FixedRows > 0);
        table_->verticalHeader()->setVisible(grid.FixedColumns > 0);
        // All rows of one height, so that none has to be measured.
        table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 6);
        table_->viewport()->installEventFilter(this);
        if (grid.IsList) {
            BeAList();
            return;
        }
        if (grid.CellTyped) EditCells();
        // Later, as the grid first takes the focus of the mouse, which its click may pass on.
        connect(table_, &QTableView::clicked, this, [this](const QModelIndex& cell) {
            Later([this, place = QPersistentModelIndex(cell)] { Chosen(place); });
        });
        connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this,
                [this](const QModelIndex& cell) { Reached(cell); });
    }

    QWidget* MouseTarget() const override { return table_->viewport(); }

    void Forget() override {
        renewing_ = true;
        if (editing_ != nullptr) editing_->Forget();
        cells_->Empty();
        ControlView::Forget();
    }

    // While the mouse is down the user is still choosing rows.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonRelease) {
            grid_.IsList ? PassPicksLater() : PassRangeLater(watched != viewport_ || IsRight(*event));
        }
        if (watched == viewport_ && event->type() == QEvent::ContextMenu && Model() != nullptr) {
            ShowPopUp(static_cast<QContextMenuEvent*>(event)->globalPos());
            return true;
        }
        return ControlView::eventFilter(watched, event);
    }

protected:
    void RenewColours() override {
        if (Model()->ColourGroup != 0) PaintField(*table_, Model()->BackColour(), Model()->ForeColour());
    }

    void RenewRows() override {
        renewing_ = true;
        cells_->Renew() ? FitColumns() : GrowColumns();
        for (int row = grid_.CellTyped ? cells_->rowCount({}) - 1 : -1; row >= 0; --row) {
            const bool hidden = grid_.IsHidden(row + grid_.FixedRows);
            if (hidden != table_->isRowHidden(row)) table_->setRowHidden(row, hidden);
        }
        renewing_ = false;
        RenewSelection();
    }

    void RenewSelection() override {
        const QModelIndex cell =
            cells_->index(grid_.Selected() - grid_.FixedRows, grid_.SelectedColumn() - grid_.FixedColumns);
        if (cell == table_->currentIndex() && (!grid_.IsList || PickedRows() == grid_.Picked()) &&
            (!grid_.CellTyped || SelectedCells() == RangeOfModel())) {
            return;
        }
        renewing_ = true;
        if (grid_.IsList) {
            table_->selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
            table_->selectionModel()->select(PickedByModel(), QItemSelectionModel::ClearAndSelect);
            if (cell.isValid()) ScrollTo(cell);
        } else if (grid_.CellTyped && cell.isValid()) {
            ShowRange(cell);
        } else {
            table_->setCurrentIndex(cell);
        }
        renewing_ = false;
    }

private:
    static bool IsRight(const QEvent& event) {
        return static_cast<const QMouseEvent&>(event).button() == Qt::RightButton;
    }

    // Cells are edited in place and selected in ranges, rows by their numbers.
    void EditCells() {
        editing_ = new CellDelegate(
            grid_, [this](const Handler& act) { Later(act); }, table_);
        table_->setItemDelegate(editing_);
        table_->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
        table_->setSelectionMode(QAbstractItemView::ContiguousSelection);
        table_->verticalHeader()->viewport()->installEventFilter(this);
        editing_->Open = [this] { OpenEditor(table_->currentIndex()); };
        connect(table_, &QTableView::doubleClicked, this, [this](const QModelIndex& cell) {
            Later([this, place = QPersistentModelIndex(cell)] { OpenEditor(place); });
        });
        connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
            if (!renewing_ && QApplication::mouseButtons() == Qt::NoButton) PassRangeLater(true);
        });
    }

    void OpenEditor(const QModelIndex& cell) {
        if (Model() == nullptr || !cell.isValid()) return;
        MoveFocus(grid_);
        table_->setFocus();
        table_->setCurrentIndex(cell);
        table_->edit(cell);
    }

    // The next range of the keys with Shift begins where this one does.
    void ShowRange(const QModelIndex& cell) {
        const CellRange range = grid_.Range();
        const int row = range.Top == grid_.Selected() ? range.Bottom : range.Top;
        const int column = range.Left == grid_.SelectedColumn() ? range.Right : range.Left;
        table_->setCurrentIndex(cells_->index(row - grid_.FixedRows, column - grid_.FixedColumns));
        table_->selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
        table_->selectionModel()->select(RangeOfModel(), QItemSelectionModel::ClearAndSelect);
        table_->scrollTo(cell);
    }

    QItemSelection SelectedCells() const { return table_->selectionModel()->selection(); }

    QItemSelection RangeOfModel() const {
        const CellRange range = grid_.Range();
        return {cells_->index(range.Top - grid_.FixedRows, range.Left - grid_.FixedColumns),
                cells_->index(range.Bottom - grid_.FixedRows, range.Right - grid_.FixedColumns)};
    }

    // A single cell that was clicked is told by its click.
    void PassRangeLater(bool alsoOne) {
        if (!grid_.CellTyped) return;
        Later([this, alsoOne] {
            const QModelIndex cell = table_->currentIndex();
            const QItemSelection cells = SelectedCells();
            if (Model() == nullptr || renewing_ || !cell.isValid() || cells.isEmpty()) return;
            const QItemSelectionRange& range = cells.first();
            const bool isOne = range.width() == 1 && range.height() == 1;
            if ((isOne && !alsoOne) || cells == RangeOfModel() || editing_->IsOpen()) return;
            const int row = cell.row() == range.top() ? range.bottom() : range.top();
            const int column = cell.column() == range.left() ? range.right() : range.left();
            PickRange(grid_, row + grid_.FixedRows, column + grid_.FixedColumns, cell.row() + grid_.FixedRows,
                      cell.column() + grid_.FixedColumns);
        });
    }

    void BeAList() {
        table_->setSelectionBehavior(QAbstractItemView::SelectRows);
        table_->setShowGrid(false);
        table_->setWordWrap(false);
        table_->horizontalHeader()->setStretchLastSection(true);
        table_->horizontalHeader()->setSectionsClickable(true);
        table_->horizontalHeader()->setHighlightSections(false);
        table_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        connect(table_->horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int section) {
            Later([this, section] {
                if (Model() != nullptr) PickCell(grid_, 0, section + grid_.FixedColumns);
            });
        });
        connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
            if (!renewing_ && QApplication::mouseButtons() == Qt::NoButton) PassPicksLater();
        });
    }

    // With what stands around it, unless it is seen.
    void ScrollTo(const QModelIndex& cell) {
        const bool isSeen = table_->viewport()->rect().contains(table_->visualRect(cell));
        if (!isSeen) table_->scrollTo(cell, QAbstractItemView::PositionAtCenter);
    }

    // With room for the arrow that a head may get; the last column takes what is left.
    void FitColumns() {
        table_->resizeColumnsToContents();
        widths_.clear();
        if (!grid_.IsList) return;
        for (int i = 0; i + 1 < cells_->columnCount({}); ++i) {
            widths_.push_back(table_->columnWidth(i) + RoomOfArrow());
            table_->setColumnWidth(i, widths_.back());
        }
    }

    // In a short list a text that is longer than all before it gets its room.
    void GrowColumns() {
        constexpr int shortList = 1000;
        if (cells_->rowCount({}) > shortList) return;
        const QAbstractItemView& view = *table_;
        for (int i = 0; i < static_cast<int>(widths_.size()); ++i) {
            int& widest = widths_[static_cast<std::size_t>(i)];
            const int width = view.sizeHintForColumn(i) + RoomOfArrow();
            if (width > widest) table_->setColumnWidth(i, std::max(table_->columnWidth(i), width));
            widest = std::max(widest, width);
        }
    }

    int RoomOfArrow() const { return table_->fontMetrics().horizontalAdvance(QStringLiteral(" \u25B2")); }

    std::vector<int> PickedRows() const {
        std::vector<int> rows;
        for (const QItemSelectionRange& range : table_->selectionModel()->selection()) {
            for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row + grid_.FixedRows);
        }
        std::sort(rows.begin(), rows.end());
        rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
        return rows;
    }

    // Rows that follow one another are one range.
    QItemSelection PickedByModel() const {
        QItemSelection picked;
        const std::vector<int>& rows = grid_.Picked();
        for (std::size_t first = 0; first < rows.size();) {
            std::size_t last = first;
            while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1) ++last;
            picked.append(QItemSelectionRange(
                cells_->index(rows[first] - grid_.FixedRows, 0),
                cells_->index(rows[last] - grid_.FixedRows, cells_->columnCount({}) - 1)));
            first = last + 1;
        }
        return picked;
    }

    // Later, as the grid first takes the focus of the mouse.
    void PassPicksLater() {
        if (std::exchange(passing_, true)) return;
        Later([this] {
            passing_ = false;
            if (Model() == nullptr || !table_->currentIndex().isValid()) return;
            const std::vector<int> rows = PickedRows();
            const int row = table_->currentIndex().row() + grid_.FixedRows;
            if (!rows.empty() && (rows != grid_.Picked() || row != grid_.Selected()))
                PickRows(grid_, rows, row);
            if (Model() != nullptr) RenewSelection();
        });
    }

    void ShowPopUp(const QPoint& place) {
        const auto* const window = qobject_cast<QMainWindow*>(table_->window());
        if (grid_.PopUp == nullptr || window == nullptr || !CanAct(grid_)) return;
        for (const QAction* head : window->menuBar()->actions()) {
            if (head->objectName() != ToQt(grid_.PopUp->FullName()) || head->menu() == nullptr) continue;
            Later([menu = QPointer<QMenu>(head->menu()), place] {
                if (menu != nullptr) menu->popup(place);
            });
        }
    }

    // By the arrow keys; a press of the mouse is told when it is a click.
    void Reached(const QModelIndex& cell) {
        if (Model() == nullptr || renewing_ || !cell.isValid() || grid_.CellTyped ||
            QApplication::mouseButtons() != Qt::NoButton)
            return;
        MoveToCell(grid_, cell.row() + grid_.FixedRows, cell.column() + grid_.FixedColumns);
    }

    void Chosen(const QModelIndex& cell) {
        if (Model() == nullptr || (editing_ != nullptr && editing_->IsOpen())) return;
        PickCell(grid_, cell.row() + grid_.FixedRows, cell.column() + grid_.FixedColumns);
    }

    Grid& grid_;
    QTableView* table_;
    CellsModel* cells_;
    CellDelegate* editing_ = nullptr;
    const QObject* viewport_;  // also asked for while the view is being destroyed
    bool passing_ = false;
    std::vector<int> widths_;  // that the columns of a list have asked for
    bool renewing_ = false;    // the view follows the model, not the user
};

}  // namespace

ControlView* MakeGridView(Grid& grid, QWidget* parent) { return new GridView(grid, new GridTable(parent)); }

}  // namespace quillmetra
