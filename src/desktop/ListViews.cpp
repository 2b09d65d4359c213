// Views of lists, also of those that read as tables, and combos. The rows are read from the model as they are
// drawn, so that a list of 100,000 rows costs no more than the few that show.
#include <algorithm>
#include <utility>

#include <QAbstractTableModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QVBoxLayout>

#include "desktop/ControlView.h"
#include "desktop/Painting.h"

namespace quillmetra {

namespace {

// The rows of a list in one column, or in those that it has.
class RowsModel : public QAbstractTableModel {
public:
    RowsModel(const ListBox& list, QWidget* view) : QAbstractTableModel(view), list_(list), view_(view) {}

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
    int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : columns_; }

    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::DisplayRole) return TextOf(index);
        if (list_.Columns.empty()) return role == Qt::SizeHintRole ? QVariant(size_) : QVariant();
        return role == Qt::TextAlignmentRole ? QVariant(SideOf(index.column())) : QVariant();
    }

    QVariant headerData(int section, Qt::Orientation, int role) const override {
        if (section >= columns_ || list_.Columns.empty()) return {};
        if (role == Qt::TextAlignmentRole) return SideOf(section);
        if (role != Qt::DisplayRole) return {};
        return ToQt(list_.Columns[static_cast<std::size_t>(section)].Head);
    }

    void Renew() {
        beginResetModel();
        rows_ = list_.RowCount();
        columns_ = std::max(1, static_cast<int>(list_.Columns.size()));
        split_ = -1;
        if (list_.Columns.empty()) size_ = SizeOfRows();
        endResetModel();
    }

    // The list is going: nothing of it is asked for any more, though its view lives until the events that
    // it has in hand are done.
    void Empty() {
        beginResetModel();
        rows_ = columns_ = 0;
        endResetModel();
    }

private:
    QSize SizeOfRows() const {
        const auto& rows = list_.Rows();
        const auto longest = std::max_element(
            rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a.size() < b.size(); });
        const QFontMetrics metrics(view_->font());
        const int width = longest == rows.end() ? 0 : metrics.horizontalAdvance(ToQt(*longest));
        return {width + 8, metrics.height() + 2};
    }

    // A row is asked for cell by cell.
    QString TextOf(const QModelIndex& index) const {
        if (list_.Columns.empty()) return ToRead(list_.Row(index.row()));
        if (split_ != index.row()) cells_ = list_.CellsOf(list_.Row(index.row()));
        split_ = index.row();
        const auto column = static_cast<std::size_t>(index.column());
        return column < cells_.size() ? ToQt(cells_[column]) : QString();
    }

    int SideOf(int column) const {
        const bool isNumber = list_.Columns[static_cast<std::size_t>(column)].IsNumber;
        return static_cast<int>(Qt::AlignVCenter) |
               static_cast<int>(isNumber ? Qt::AlignRight : Qt::AlignLeft);
    }

    const ListBox& list_;
    QWidget* view_;
    int rows_ = 0;
    int columns_ = 1;
    QSize size_;
    mutable int split_ = -1;
    mutable std::vector<std::string> cells_;  // of the row that was split last
};

// What a list does beside its toolkit's own. A row that a key has chosen is told when the widget has done
// with the key: the click of a row may put up a box or fill the list anew.
struct RowKeys {
    Handler KeyDone;
    bool InKey = false;
    QString Typed;
    QElapsedTimer TypedAt;
};

// Letters find the row that begins with them, from the one in hand on, which stays in hand when it does. The
// same letter again goes on to the next.
template <typename View>
class RowList : public View {
public:
    using View::View;
    RowKeys Keys;

    QSize sizeHint() const override {
        const QSize first = this->property(FirstSize).toSize();
        return first.isValid() ? first : View::sizeHint();
    }

    void keyboardSearch(const QString& letters) override {
        if (!Keys.TypedAt.isValid() || Keys.TypedAt.elapsed() > QApplication::keyboardInputInterval()) {
            Keys.Typed.clear();
        }
        Keys.TypedAt.start();
        QString& typed = Keys.Typed;
        typed += letters;
        const int row = this->currentIndex().row();
        QModelIndex found = Find(typed, row);
        const bool again = typed.size() > 1 && typed.count(typed.at(0), Qt::CaseInsensitive) == typed.size();
        if (!found.isValid() && again) found = Find(typed.left(1), row + 1);
        if (found.isValid()) this->setCurrentIndex(found);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        {
            const QScopedValueRollback now(Keys.InKey, true);
            View::keyPressEvent(event);
        }
        if (Keys.KeyDone) Keys.KeyDone();
    }

private:
    QModelIndex Find(const QString& start, int row) const {
        const QAbstractItemModel* const model = this->model();
        const int rows = model == nullptr ? 0 : model->rowCount();
        if (rows == 0) return {};
        const QModelIndex first = model->index(std::max(row, 0) % rows, 0);
        return model->match(first, Qt::DisplayRole, start, 1, Qt::MatchStartsWith | Qt::MatchWrap).value(0);
    }
};

using PlainRows = RowList<QListView>;

PlainRows* MakePlainRows(QWidget* parent) {
    auto* const view = new PlainRows(parent);
    view->setUniformItemSizes(true);
    return view;
}

// With some room around the words.
class RoomyRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(8, 4);
    }
};

// Rows in columns under their heads.
class TableRows : public RowList<QTreeView> {
public:
    explicit TableRows(QWidget* parent) : RowList(parent) {
        setRootIsDecorated(false);
        setItemsExpandable(false);
        setUniformRowHeights(true);
        setItemDelegate(new RoomyRows(this));
        setAllColumnsShowFocus(true);
        header()->setSectionsMovable(false);
        header()->setStretchLastSection(false);
    }

    void reset() override {
        RowList::reset();
        if (model() == nullptr) return;
        for (int i = 0; i < model()->columnCount(); ++i) resizeColumnToContents(i);
    }
};

// Keeps a list widget and the selection of its model alike. While the mouse is down the user is still
// choosing; the model hears of it at the release.
class ListBoxView : public ControlView {
public:
    ListBoxView(ListBox& list, QWidget* widget, QAbstractItemView* view, RowKeys& keys)
        : ControlView(list, widget),
          list_(list),
          view_(view),
          keys_(keys),
          rows_(new RowsModel(list, view)),
          viewport_(view->viewport()) {
        view_->setTextElideMode(Qt::ElideNone);
        view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
        view_->setSelectionMode(list.Multiple ? QAbstractItemView::MultiSelection
                                              : QAbstractItemView::SingleSelection);
        view_->setModel(rows_);
        view_->viewport()->installEventFilter(this);
        connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
            if (keys_.InKey) {
                chosenByKey_ = chosenByKey_ || !renewing_;
            } else if (!mouseDown_ && !renewing_) {
                Chosen(false);
            }
        });
        keys_.KeyDone = [this] {
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
        const QModelIndex row = rows_->index(list_.Selected(), 0);
        if (!list_.Multiple) {
            selection->setCurrentIndex(row, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
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

    int LastColumn() const { return rows_->columnCount({}) - 1; }

    // Rows that follow one another are one range, so that a long list with all picked costs little.
    QItemSelection Picked() const {
        QItemSelection picked;
        for (int first = 0; first < list_.RowCount(); ++first) {
            if (!list_.IsPicked(first)) continue;
            int last = first;
            while (list_.IsPicked(last + 1)) ++last;
            picked.append(QItemSelectionRange(rows_->index(first, 0), rows_->index(last, LastColumn())));
            first = last;
        }
        return picked;
    }

    // The differences are gathered first: each pick that is passed on shows the model's selection again.
    void PassPicks() {
        std::vector<int> changed;
        for (int row = 0; row < list_.RowCount(); ++row) {
            if (view_->selectionModel()->isSelected(rows_->index(row, 0)) != list_.IsPicked(row))
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
    QAbstractItemView* view_;

private:
    RowKeys& keys_;  // of the view
    RowsModel* rows_;
    const QObject* viewport_;  // also asked for while the view is being destroyed
    bool mouseDown_ = false;
    bool chosenByKey_ = false;
    bool renewing_ = false;
};

// A box over a list that is always open.
class ComboView : public ListBoxView {
public:
    ComboView(ComboBox& combo, QWidget* widget, QLineEdit* edit, PlainRows* view)
        : ListBoxView(combo, widget, view, view->Keys), edit_(edit) {
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

}  // namespace

ControlView* MakeListView(Control& control, QWidget* parent) {
    if (control.Kind() == ControlKind::Grid) return MakeGridView(static_cast<Grid&>(control), parent);
    auto& list = static_cast<ListBox&>(control);
    if (!list.Columns.empty()) {
        auto* const table = new TableRows(parent);
        return new ListBoxView(list, table, table, table->Keys);
    }
    if (control.Kind() == ControlKind::ListBox) {
        auto* const view = MakePlainRows(parent);
        return new ListBoxView(list, view, view, view->Keys);
    }
    auto* const whole = new QWidget(parent);
    return new ComboView(static_cast<ComboBox&>(control), whole, new QLineEdit(whole), MakePlainRows(whole));
}

}  // namespace quillmetra
