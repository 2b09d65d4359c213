// Views of lists and combos. The rows are read from the model as they are drawn, so that a list of
// 100,000 rows costs no more than the few that show.
#include <algorithm>
#include <utility>

#include <QAbstractListModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QScopedValueRollback>
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

    QSize sizeHint() const override {
        const QSize first = property(FirstSize).toSize();
        return first.isValid() ? first : QListView::sizeHint();
    }

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

}  // namespace

ControlView* MakeListView(Control& control, QWidget* parent) {
    if (control.Kind() == ControlKind::Grid) return MakeGridView(static_cast<Grid&>(control), parent);
    if (control.Kind() == ControlKind::ListBox) {
        auto* const view = new RowList(parent);
        return new ListBoxView(static_cast<ListBox&>(control), view, view);
    }
    auto* const whole = new QWidget(parent);
    return new ComboView(static_cast<ComboBox&>(control), whole, new QLineEdit(whole), new RowList(whole));
}

}  // namespace quillmetra
