// See Menus.h.
#include "desktop/Menus.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>

#include "desktop/HeldBoxes.h"
#include "desktop/Painting.h"
#include "desktop/ReadyForUser.h"
#include "platform/Form.h"

namespace quillmetra {

namespace {

// A menu whose head is asked before it shows; one that is refused stays shut.
class HeadMenu : public QMenu {
public:
    using QMenu::QMenu;
    bool Refused = false;

    void setVisible(bool visible) override {
        if (visible && Refused) return;
        QMenu::setVisible(visible);
    }
};

class MenuView : public ControlView {
public:
    MenuView(MenuItem& item, QAction* action, QObject* parent) : ControlView(item, nullptr), action_(action) {
        setParent(parent);
        action_->setObjectName(ToQt(item.FullName()));
        if (!item.Shortcut.empty()) action_->setShortcut(QKeySequence(ToQt(item.Shortcut)));
    }

protected:
    MenuItem& Entry() const { return static_cast<MenuItem&>(*Model()); }

    void RenewText() override { action_->setText(ToRead(Entry().Caption())); }
    void RenewEnabled() override { action_->setEnabled(Entry().Enabled()); }
    void RenewVisible() override { action_->setVisible(Entry().Visible()); }
    void RenewColours() override {}
    void RenewToolTip() override { action_->setToolTip(ToQt(Entry().ToolTip())); }

    void RenewChecked() override {
        if (Entry().Checked()) action_->setCheckable(true);
        action_->setChecked(Entry().Checked());
    }

    QAction* action_;
};

class EntryView : public MenuView {
public:
    EntryView(MenuItem& item, QAction* action, QObject* parent) : MenuView(item, action, parent) {
        connect(action_, &QAction::triggered, this, [this] {
            if (Model() == nullptr) return;
            ClickControl(*Model());
            if (Model() != nullptr) RenewChecked();  // an action that can be ticked ticks itself
        });
    }
};

class HeadView : public MenuView {
public:
    HeadView(MenuItem& item, HeadMenu* menu, QMenuBar* bar, std::function<void()> closed)
        : MenuView(item, menu->menuAction(), bar), menu_(menu), bar_(bar), closed_(std::move(closed)) {
        connect(menu_, &QMenu::aboutToShow, this, [this] { Open(); });
        // Later, as another menu may open in its place.
        connect(
            menu_, &QMenu::aboutToHide, this, [this] { Hidden(); }, Qt::QueuedConnection);
    }

private:
    void Open() {
        const HeldBoxes held;
        menu_->Refused = Model() == nullptr || !OpenMenu(Entry());
        if (!menu_->Refused) return;
        QTimer::singleShot(0, this, [this, boxes = held.Boxes()] {
            const QPointer<HeadView> self(this);
            CloseMenus();
            // The menus stand as long as their window. NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage)
            LeaveBar();
            for (const MessageBox& box : boxes) ShowMessage(box);
            if (self != nullptr) closed_();
        });
    }

    // As the user leaves it: without an active head alone the bar would count as open, and hovering would
    // open a menu.
    void LeaveBar() {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(bar_, &escape);
    }

    void Hidden() {
        if (QApplication::activePopupWidget() == nullptr) closed_();
    }

    HeadMenu* menu_;
    QMenuBar* bar_;
    std::function<void()> closed_;
};

// In the order of their making, but for those that stand last.
std::vector<MenuItem*> EntriesOf(const Form& form) {
    std::vector<MenuItem*> entries;
    for (Control* control : form.Controls()) {
        if (control->Kind() == ControlKind::MenuItem) entries.push_back(static_cast<MenuItem*>(control));
    }
    std::stable_partition(entries.begin(), entries.end(),
                          [](const MenuItem* entry) { return !entry->StandsLast; });
    return entries;
}

}  // namespace

std::vector<ControlView*> MakeMenus(const Form& form, QMenuBar& bar, const std::function<void()>& closed) {
    std::vector<ControlView*> views;
    std::unordered_map<const Control*, HeadMenu*> heads;
    const std::vector<MenuItem*> entries = EntriesOf(form);
    for (const MenuItem* entry : entries) {
        if (entry->Container() != nullptr) heads[entry->Container()] = nullptr;
    }
    for (MenuItem* entry : entries) {
        MenuItem& item = *entry;
        HeadMenu* const under = item.Container() == nullptr ? nullptr : heads[item.Container()];
        QWidget* const place = under == nullptr ? static_cast<QWidget*>(&bar) : under;
        if (item.SeparatorBefore && under != nullptr) under->addSeparator();
        const auto head = heads.find(entry);
        if (head == heads.end()) {
            auto* const action = new QAction(place);
            place->addAction(action);
            views.push_back(new EntryView(item, action, &bar));
        } else {
            head->second = new HeadMenu(place);
            place->addAction(head->second->menuAction());
            views.push_back(new HeadView(item, head->second, &bar, closed));
        }
    }
    return views;
}

}  // namespace quillmetra
