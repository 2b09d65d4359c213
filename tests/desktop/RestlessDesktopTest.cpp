// The restless user of tests/forms/RestlessSuite.h at the real windows: a quarter of his acts are keys and
// the mouse, on menus, submenus, boxes and whatever else a window shows, also a very narrow one.
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

#include "tests/desktop/DesktopFixture.h"
#include "tests/forms/RestlessSuite.h"

namespace quillmetra {

namespace {

class RestlessScreen : public RestlessHost<DesktopHost> {
public:
    using RestlessHost::RestlessHost;

    Answer ShowMessageBox(const MessageBox& box) override {
        User.Boxes.push_back(box);
        return DesktopHost::ShowMessageBox(box);
    }
    void ShowHelp(int) override {}
    bool Yield() override { return DesktopHost::Yield() || User.Below(50) == 0; }
    void ServeUser() override {
        DesktopHost::ServeUser();
        QWidget* const focus = QApplication::focusWidget();
        if (focus != nullptr && User.Below(20) == 0) QTest::keyClick(focus, Qt::Key_Escape);
    }
    void RunModal(Form& form) override {
        QTimer::singleShot(0, this, [this, name = form.Name()] {
            Form* const shown = LoadedForm(name);
            if (shown != nullptr && shown->Visible()) User.Stay(*shown);
        });
        DesktopHost::RunModal(form);
    }
};

constexpr Qt::Key MenuKeys[] = {Qt::Key_Down,   Qt::Key_Down, Qt::Key_Up, Qt::Key_Right, Qt::Key_Left,
                                Qt::Key_Return, Qt::Key_P,    Qt::Key_M,  Qt::Key_Escape};
constexpr Qt::Key DialogKeys[] = {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Y,  Qt::Key_N,
                                  Qt::Key_Tab,    Qt::Key_Space,  Qt::Key_F1, Qt::Key_Down};

class RestlessDesktop : public RestlessWalk {
protected:
    RestlessDesktop() {
        Begin();
        Nudge();
    }
    ~RestlessDesktop() override {
        ResetForms();
        Settle();
    }

    void Act() override {
        if (Below(4) == 0) {
            ActOnScreen();
            inputs_.fill({});
        } else {
            RestlessWalk::Act();
        }
        Settle();
        for (int tries = 0; tries < 20 && QApplication::activePopupWidget() != nullptr; ++tries) Settle();
        ExpectSound();
    }

private:
    template <std::size_t Count>
    Qt::Key AnyOf(const Qt::Key (&keys)[Count]) {
        return keys[Below(Count)];
    }

    // Menus and boxes are answered from within their own loops, the next turn being asked for before this
    // one, as it may well open another.
    void Nudge() {
        QTimer::singleShot(1, &turns_, [this] {
            Nudge();
            if (QWidget* const menu = QApplication::activePopupWidget()) {
                QTest::keyClick(menu, AnyOf(MenuKeys));
            } else if (auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                QTest::keyClick(box->focusWidget() == nullptr ? box : box->focusWidget(), AnyOf(DialogKeys));
            }
        });
    }

    void ActOnScreen() {
        const std::vector<quillmetra::Form*> forms = UsableForms();
        ASSERT_FALSE(forms.empty()) << "after " << last_;
        FormWindow* const window = Screen.WindowOf(*forms[static_cast<std::size_t>(Below(forms.size()))]);
        if (window == nullptr) return;
        window->activateWindow();
        static constexpr void (RestlessDesktop::*acts[])(FormWindow&) = {
            &RestlessDesktop::PressKeys, &RestlessDesktop::OpenMenuByKey, &RestlessDesktop::OpenMenuByMouse,
            &RestlessDesktop::ClickAnywhere, &RestlessDesktop::Resize};
        (this->*acts[Below(std::size(acts))])(*window);
    }

    void Note(const FormWindow& window, const QString& act) {
        last_ = (window.objectName() + ": " + act).toStdString();
    }

    void PressKeys(FormWindow& window) {
        static constexpr Qt::KeyboardModifier modifiers[] = {
            Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};
        const QPointer<QWidget> there(&window);
        for (int i = Below(4); i >= 0 && there != nullptr; --i) {
            const int code = codes_[static_cast<std::size_t>(Below(codes_.size()))];
            const Qt::KeyboardModifier held = modifiers[Below(std::size(modifiers))];
            Note(window, QKeySequence(code | static_cast<int>(held)).toString());
            QWidget* const focus = window.focusWidget();
            QTest::keyClick(focus == nullptr ? &window : focus, static_cast<Qt::Key>(code), held);
        }
    }

    // The heads of the menu bar that can be seen.
    static std::vector<QAction*> Heads(FormWindow& window) {
        std::vector<QAction*> heads;
        if (window.menuWidget() == nullptr) return heads;
        for (QAction* head : window.menuBar()->actions()) {
            if (head->isVisible() && head->isEnabled()) heads.push_back(head);
        }
        return heads;
    }

    void OpenMenuByKey(FormWindow& window) {
        const std::vector<QAction*> heads = Heads(window);
        if (heads.empty()) return;
        const QString text = heads[static_cast<std::size_t>(Below(heads.size()))]->text();
        const QKeySequence key = QKeySequence::mnemonic(text);
        Note(window, "the menu " + text + " by key");
        if (key.isEmpty()) return;
        QWidget* const focus = window.focusWidget();
        QTest::keyClick(focus == nullptr ? &window : focus, key[0].key(), key[0].keyboardModifiers());
    }

    // From head to entry, on the way over the entries between.
    void OpenMenuByMouse(FormWindow& window) {
        const std::vector<QAction*> heads = Heads(window);
        if (heads.empty()) return;
        const QAction* const head = heads[static_cast<std::size_t>(Below(heads.size()))];
        Note(window, "the menu " + head->text() + " by mouse");
        QTest::mouseClick(window.menuBar(), Qt::LeftButton, {},
                          window.menuBar()->actionGeometry(const_cast<QAction*>(head)).center());
        for (int i = Below(4); i > 0; --i) {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr) return;
            const QPoint place(menu->width() / 2, 3 + Below(static_cast<std::size_t>(menu->height())));
            QTest::mouseMove(menu, place);
            if (Below(2) == 0) QTest::mouseClick(menu, Qt::LeftButton, {}, place);
            Settle();
        }
    }

    void ClickAnywhere(FormWindow& window) {
        const QPoint place(Below(static_cast<std::size_t>(window.width())),
                           Below(static_cast<std::size_t>(window.height())));
        QWidget* const widget = window.childAt(place);
        if (widget == nullptr || !widget->isEnabled()) return;
        Note(window, "a click on " + widget->objectName());
        const QPoint within = widget->mapFrom(&window, place);
        const Qt::MouseButton button = Below(5) == 0 ? Qt::RightButton : Qt::LeftButton;
        if (Below(4) == 0) {
            QTest::mouseDClick(widget, button, {}, within);
        } else {
            QTest::mouseClick(widget, button, {}, within);
        }
    }

    // In a narrow window the menus are behind the extension of the bar.
    void Resize(FormWindow& window) {
        window.resize(60 + Below(900), 60 + Below(700));
        Settle();
        auto* const extension = window.findChild<QToolButton*>("qt_menubar_ext_button");
        if (extension == nullptr || !extension->isVisible() || !extension->isEnabled()) return;
        Note(window, "the extension of the menu bar");
        QTest::mouseClick(extension, Qt::LeftButton);
    }

    RestlessScreen Screen{User};
    const std::vector<int> codes_ = KeyCodes();
    QObject turns_;
};

TEST_P(RestlessDesktop, StaysWhole) { Walk(300); }

INSTANTIATE_TEST_SUITE_P(Seeds, RestlessDesktop,
                         ::testing::Combine(::testing::Range(0, 1),
                                            ::testing::Range(1, 1 + Setting("QUILLMETRA_SEEDS", 2))));

}  // namespace

}  // namespace quillmetra
