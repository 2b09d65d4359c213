// See FormWindow.h.
#include "desktop/FormWindow.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QStyle>
#include <QUrl>

#include "desktop/KeyNames.h"
#include "desktop/Menus.h"
#include "desktop/Painting.h"
#include "desktop/ReadyForUser.h"
#include "desktop/WindowPlaces.h"
#include "forms/ColourSchemes.h"
#include "forms/ColourShades.h"
#include "forms/WindowTitle.h"
#include "platform/Forms.h"
#include "platform/Keys.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace {

bool HasMenus(const Form& form) {
    return std::any_of(form.Controls().begin(), form.Controls().end(),
                       [](const Control* control) { return control->Kind() == ControlKind::MenuItem; });
}

bool IsIn(const Control& control, const Control& container) {
    for (const Control* outer = control.Container(); outer != nullptr; outer = outer->Container()) {
        if (outer == &container) return true;
    }
    return false;
}

// The keys that go by the form's rules; all others are the widget's own.
bool FormRules(const std::string& key) {
    return key == keys::Enter || key == keys::Escape || key == keys::Tab || key == keys::BackTab ||
           key == keys::Help;
}

// A character with Alt that is nobody's access key is no text, least of all a digit of a number; a keyboard
// that makes another character with it is.
bool IsStrayAccessKey(const QKeyEvent& event) {
    const auto held = event.modifiers() & (Qt::AltModifier | Qt::ControlModifier);
    const QString text = event.text();
    return held == Qt::AltModifier && text.size() == 1 && text.at(0).isPrint() &&
           text.at(0).toUpper() == QChar(static_cast<char16_t>(event.key()));
}

// The whole of it where the window has room for that, else its cursor or row at least.
void ScrollTo(QScrollArea& area, QWidget& target) {
    constexpr int margin = 8;
    const QSize room = target.size() + QSize(2 * margin, 2 * margin);
    if (!QRect({}, area.viewport()->size()).contains(QRect({}, room))) {
        return area.ensureWidgetVisible(&target, margin, margin);
    }
    const QPoint half(room.width() / 2, room.height() / 2);
    const QPoint middle = target.mapTo(area.widget(), target.rect().center());
    area.ensureVisible(middle.x(), middle.y(), half.x(), half.y());
}

// The toolkit's own way from option to option would leave the model behind.
bool IsOptionArrow(const Control& control, const std::string& key) {
    return control.Kind() == ControlKind::OptionButton &&
           (key == keys::Up || key == keys::Down || key == keys::Left || key == keys::Right);
}

}  // namespace

FormWindow::FormWindow(Form& form)
    : form_(&form), pane_(new QWidget), scroll_(new QScrollArea), status_(new QLabel) {
    setObjectName(ToQt(form.Name()));
    setAcceptDrops(form.FileDropped != nullptr);
    if (form.Fixed) setWindowFlags(DialogFlags);
    scroll_->setWidgetResizable(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setWidget(pane_);
    setCentralWidget(scroll_);
    pane_->setObjectName("pane");
    pane_->setAutoFillBackground(true);
    pane_->installEventFilter(this);

    MakeViews();
    status_->setTextFormat(Qt::PlainText);
    status_->setWordWrap(true);
    // A long text does not widen the window.
    status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(status_, 1);
    statusBar()->setSizeGripEnabled(!form.Fixed);
    for (ControlView* view : views_) view->RenewAll();
    PaintAreas();
    RenewForm();
    SetTabOrder();
    TakeFirstSize();
    SelectFirst();
}

// The model has selected what its first focus is on before there was a box to show it.
void FormWindow::SelectFirst() {
    const auto* const box = dynamic_cast<const TextBox*>(form_->Focus.Current());
    if (box != nullptr && box->IsNumber) ViewOf(*box)->Renew(Aspect::SelectAll);
}

void FormWindow::MakeViews() {
    for (Control* control : form_->Controls()) {
        if (control->Kind() != ControlKind::MenuItem) views_.push_back(MakeView(*control, pane_));
    }
    LayoutBuilder builder(*pane_, [this](const std::string& name) -> ControlView* {
        const auto found = std::find_if(views_.begin(), views_.end(), [&](const ControlView* view) {
            return SameName(view->Model()->FullName(), name);
        });
        return found == views_.end() ? nullptr : *found;
    });
    builder.Build(layout::LayoutOf(form_->Name()), views_);
    areas_ = builder.PaintedAreas();

    if (HasMenus(*form_)) {
        const std::vector<ControlView*> menus = MakeMenus(*form_, *menuBar(), [this] { FollowFocus(); });
        views_.insert(views_.end(), menus.begin(), menus.end());
    }
    for (ControlView* view : views_) Connect(*view);
}

void FormWindow::Connect(ControlView& view) {
    byControl_[view.Model()] = &view;
    if (view.Widget() == nullptr) return;
    for (QWidget* target : {view.Widget(), view.KeyTarget(), view.MouseTarget()}) {
        if (byTarget_.emplace(target, &view).second) target->installEventFilter(this);
    }
    NameForReaders(view);
    auto* const label = view.Model()->LabelControl() == nullptr
                            ? nullptr
                            : qobject_cast<QLabel*>(ViewOf(*view.Model()->LabelControl()) == nullptr
                                                        ? nullptr
                                                        : ViewOf(*view.Model()->LabelControl())->Widget());
    if (label != nullptr && label->buddy() == nullptr) label->setBuddy(view.KeyTarget());
}

void FormWindow::NameForReaders(ControlView& view) {
    if (view.Widget() == nullptr) return;
    const Control& control = *view.Model();
    view.KeyTarget()->setAccessibleName(ToQt(control.AccessibleName()));
    if (const Control* const unit = control.UnitControl()) {
        view.KeyTarget()->setAccessibleDescription(ToQt(unit->Caption()));
    }
}

// The toolkit's own order serves screen readers; Tab itself goes by the model.
void FormWindow::SetTabOrder() {
    QWidget* former = nullptr;
    for (Control* stop : form_->TabStops()) {
        ControlView* const view = ViewOf(*stop);
        if (view == nullptr || view->Widget() == nullptr) continue;
        if (former != nullptr) QWidget::setTabOrder(former, view->KeyTarget());
        former = view->KeyTarget();
    }
}

// As large as its contents, or as the screen allows; then it scrolls.
void FormWindow::TakeFirstSize() {
    ensurePolished();
    // Inner layouts first: an outer one asks for the sizes that they had when they were last active.
    QList<QWidget*> areas = pane_->findChildren<QWidget*>();
    std::reverse(areas.begin(), areas.end());
    areas.append(pane_);
    for (const QWidget* area : areas) {
        if (area->layout() != nullptr) area->layout()->activate();
    }
    QSize size = pane_->sizeHint();
    if (menuWidget() != nullptr) {
        size.setWidth(std::max(size.width(), menuBar()->sizeHint().width()));
        size.rheight() += menuBar()->sizeHint().height();
    }
    size.rheight() += statusBar()->sizeHint().height();
    const QSize most = screen()->availableGeometry().marginsRemoved(FrameOf(*this)).size();
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (size.height() > most.height()) size.rwidth() += bar;
    if (size.width() > most.width()) size.rheight() += bar;
    size = size.boundedTo(most);
    if (form_->Fixed) {
        setFixedSize(size);
    } else {
        resize(size);
    }
    if (isVisible()) MoveIntoScreen(*this);
}

void FormWindow::Forget() {
    form_ = nullptr;
    for (ControlView* view : views_) view->Forget();
    byControl_.clear();
    areas_.clear();
    hide();
    deleteLater();
}

ControlView* FormWindow::ViewOf(const Control& control) const {
    const auto found = byControl_.find(&control);
    return found == byControl_.end() ? nullptr : found->second;
}

bool FormWindow::IsCancelButton(const QWidget& widget) const {
    const CommandButton* const button = form_ == nullptr ? nullptr : form_->CancelButton;
    if (button == nullptr || !button->Works()) return false;
    const ControlView* const view = ViewOf(*button);
    return view != nullptr && view->Widget() == &widget;
}

void FormWindow::Renew(const Control& control, Aspect aspect) {
    ControlView* const view = ViewOf(control);
    if (view == nullptr) return;
    view->Renew(aspect);
    FollowFormSoon();
    switch (aspect) {
        case Aspect::Text:
            if (control.Kind() == ControlKind::TextBox) break;
            for (ControlView* each : views_) {
                const Control& named = *each->Model();
                if (each == view || named.IsNamedBy(control) || named.UnitControl() == &control) {
                    NameForReaders(*each);
                }
            }
            break;
        case Aspect::Colours: PaintAreas(); break;
        case Aspect::Enabled:
        case Aspect::Visible:
            if (control.Kind() == ControlKind::Frame) {
                for (ControlView* each : views_) {
                    if (IsIn(*each->Model(), control)) each->Renew(Aspect::Visible);
                }
                if (form_->FitsFrames) TakeFirstSize();
            }
            FollowFocusSoon();
            break;
        default: break;
    }
}

void FormWindow::RenewForm() {
    RenewTitle();
    RenewStatus();
    PaintArea(*pane_, form_->BackColour(), Readable(form_->BackColour(), SlotColour(slot::AreaText)));
    pane_->setEnabled(form_->Enabled());
    if (menuWidget() != nullptr) menuBar()->setEnabled(form_->Enabled());
    FollowFocusSoon();
}

// In as many lines as its words need, up to three; a longer text is whole in the tool tip.
void FormWindow::RenewStatus() {
    constexpr int most = 3;
    const QString text = ToRead(form_->Status());
    const QFontMetrics metrics = status_->fontMetrics();
    const QRect room(0, 0, width() - 4 * metrics.averageCharWidth(), most * metrics.lineSpacing());
    status_->setText(text);
    status_->setToolTip(text);
    const int lines = metrics.boundingRect(room, Qt::TextWordWrap, text).height() / metrics.lineSpacing();
    status_->setFixedHeight(std::clamp(lines, 1, most) * metrics.lineSpacing());
}

void FormWindow::RenewTitle() { setWindowTitle(ToQt(WindowTitle(*form_))); }

void FormWindow::PaintAreas() {
    for (const LayoutBuilder::PaintedArea& area : areas_) {
        if (area.As != nullptr) PaintArea(*area.Area, area.As->BackColour(), area.As->ForeColour());
    }
}

void FormWindow::FollowFocus() {
    if (form_ == nullptr || pressed_ != nullptr) return;
    // The toolkit marks the focus once its own Tab was pressed, which the model has replaced.
    setAttribute(Qt::WA_KeyboardFocusChange);
    MarkDefaultButton();
    const Control* const current = form_->Focus.Current();
    ControlView* const view = current == nullptr ? nullptr : ViewOf(*current);
    QWidget* target = pane_;
    if (view != nullptr && view->Widget() != nullptr && view->Widget()->isEnabled() && current->Seen()) {
        target = view->KeyTarget();
    }
    // The editor of a cell is a part of its grid.
    const bool isWithin = focusWidget() != nullptr && target != pane_ && target->isAncestorOf(focusWidget());
    if (focusWidget() != target && !isWithin) {
        // The toolkit does this in the active window only.
        if (auto* const left = qobject_cast<QLineEdit*>(focusWidget())) left->deselect();
        target->setFocus(Qt::OtherFocusReason);
    }
    if (target != pane_) ScrollTo(*scroll_, *target);
}

// Drawn as what Enter presses; the key itself goes by the form's rules.
void FormWindow::MarkDefaultButton() {
    for (const ControlView* view : views_) {
        auto* const button = qobject_cast<QPushButton*>(view->Widget());
        const bool isDefault = view->Model() == form_->DefaultButton;
        if (button != nullptr && button->isDefault() != isDefault) button->setDefault(isDefault);
    }
}

// Once for all that an act changes: what the title says of the record is decided after its controls are told.
void FormWindow::FollowFormSoon() {
    if (followFormSoon_) return;
    followFormSoon_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            followFormSoon_ = false;
            if (form_ != nullptr) RenewTitle();
        },
        Qt::QueuedConnection);
}

void FormWindow::FollowFocusSoon() {
    if (followSoon_) return;
    followSoon_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            followSoon_ = false;
            FollowFocus();
        },
        Qt::QueuedConnection);
}

void FormWindow::Later(std::function<void()> act) {
    acts_.push_back(std::move(act));
    QMetaObject::invokeMethod(
        this, [this] { RunActs(); }, Qt::QueuedConnection);
}

void FormWindow::RunActs() {
    if (acting_) return;
    const QScopedValueRollback now(acting_, true);
    while (!acts_.empty()) {
        const std::function<void()> act = std::move(acts_.front());
        acts_.pop_front();
        act();
    }
}

void FormWindow::UserReached(Control& control) {
    MoveFocus(control);
    FollowFocus();  // the model may have stayed, or gone elsewhere
}

bool FormWindow::focusNextPrevChild(bool) { return true; }

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    Later([this] {
        if (form_ != nullptr) CloseWindow(*form_);
    });
}

namespace {
// The one file that is let fall; empty for anything else.
QString FileIn(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}
}  // namespace

void FormWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!FileIn(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void FormWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    Later([this, file = FileIn(*event->mimeData())] {
        if (form_ != nullptr && !file.isEmpty()) DropFile(*form_, SuitePath(file.toStdU16String()));
    });
}

// A form that waits for its panel leaves the front to it: the two are windows of their own.
bool FormWindow::event(QEvent* event) {
    if (form_ == nullptr) return QMainWindow::event(event);
    if (event->type() == QEvent::Resize) RenewStatus();
    if (event->type() == QEvent::WindowActivate && !form_->Enabled()) {
        Later([] {
            for (QWidget* window : QApplication::topLevelWidgets()) {
                const auto* const panel = dynamic_cast<FormWindow*>(window);
                if (panel == nullptr || !panel->isVisible() || panel->form_ == nullptr ||
                    !panel->form_->Enabled())
                    continue;
                window->raise();
                window->activateWindow();
            }
        });
    }
    return QMainWindow::event(event);
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (form_ == nullptr) return false;
    const auto found = byTarget_.find(watched);
    ControlView* const view = found == byTarget_.end() ? nullptr : found->second;
    if (event->type() == QEvent::KeyPress) return KeyCame(*watched, view, *static_cast<QKeyEvent*>(event));
    if (view == nullptr) return false;
    Control& control = *view->Model();
    switch (event->type()) {
        case QEvent::FocusIn: {
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            if (form_->Focus.Current() == &control) break;
            if (reason == Qt::MouseFocusReason) pressed_ = view;
            if (reason == Qt::ShortcutFocusReason) {
                Later([this, view] {
                    if (view->Model() != nullptr) UserReached(*view->Model());
                });
            }
            if (reason == Qt::OtherFocusReason || reason == Qt::TabFocusReason) FollowFocusSoon();
            break;
        }
        case QEvent::MouseButtonRelease:
            if (pressed_ != nullptr) MouseTookFocus(*pressed_);
            if (control.Kind() == ControlKind::Label && control.Click) ClickControl(control);
            break;
        case QEvent::MouseButtonDblClick:
            if (!control.DoubleClick) break;
            Later([view] {
                if (view->Model() != nullptr) DoubleClickControl(*view->Model());
            });
            break;
        default: break;
    }
    return false;
}

// The release first goes on to the widget; then the focus moves, as its handlers may put up boxes.
void FormWindow::MouseTookFocus(ControlView& view) {
    Later([this, &view] {
        if (pressed_ == &view) pressed_ = nullptr;
        if (view.Model() != nullptr) UserReached(*view.Model());
    });
}

// A key that its receiver has no use for comes by again on its way up: past the frames around the receiver,
// and past the pane. It counts once, and a frame never has the keyboard.
bool FormWindow::KeyCame(const QObject& receiver, ControlView* view, const QKeyEvent& event) {
    if (view == nullptr) {
        const bool hasKeyboard = &receiver == pane_ && pane_->hasFocus();
        return hasKeyboard && PressKey(*form_, NameOfKey(event));
    }
    Control& control = *view->Model();
    const bool isBackground = control.Kind() == ControlKind::Frame || control.Kind() == ControlKind::Label;
    if (isBackground || &receiver != view->KeyTarget()) return false;
    return KeyPressed(control, event) || IsStrayAccessKey(event);
}

bool FormWindow::KeyPressed(Control& control, const QKeyEvent& event) {
    const std::string key = NameOfKey(event);
    if (key.empty()) return false;
    if (form_->Focus.Current() != &control) {  // typed with the mouse still down
        pressed_ = nullptr;
        UserReached(control);
        if (form_ == nullptr || form_->Focus.Current() != &control) return true;
    }
    if (FormRules(key) || IsOptionArrow(control, key)) return PressKey(control, key);
    return OfferKey(control, key);
}

}  // namespace quillmetra
