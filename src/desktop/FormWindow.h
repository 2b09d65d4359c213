// The window of any form: makes the widgets from the model, places them by the form's layout, and keeps the
// two alike. The focus belongs to the model. A move that the user makes with the keyboard or the mouse is
// asked of it, and where it stands afterwards is where the keyboard goes; what the toolkit does with the
// focus of its own accord (menus, boxes, another window, a widget switched off) is put right and no loss of
// focus.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include <QMainWindow>

#include "desktop/ControlView.h"
#include "desktop/LayoutBuilder.h"
#include "platform/Form.h"

class QLabel;
class QScrollArea;

namespace quillmetra {

class FormWindow : public QMainWindow {
public:
    explicit FormWindow(Form& form);

    // The form and its controls are about to be destroyed.
    void Forget();

    void Renew(const Control& control, Aspect aspect);
    // Caption, status line, colour and whether the form takes input.
    void RenewForm();
    // Gives the keyboard to the control that has the focus in the model.
    void FollowFocus();
    // Runs an act of the user once the event in hand has ended, and after the acts that wait already: none
    // begins while a box of the one before is still open.
    void Later(std::function<void()> act);

    // Null for a control of another form.
    ControlView* ViewOf(const Control& control) const;
    // The widget of the form's cancel button, as long as that works.
    bool IsCancelButton(const QWidget& widget) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void MakeViews();
    void Connect(ControlView& view);
    void TakeFirstSize();
    void SelectFirst();
    void PaintAreas();
    void NameForReaders(ControlView& view);
    void SetTabOrder();

    bool KeyCame(const QObject& receiver, ControlView* view, const class QKeyEvent& event);
    bool KeyPressed(Control& control, const QKeyEvent& event);
    void RunActs();
    void MouseTookFocus(ControlView& view);
    void UserReached(Control& control);
    void FollowFocusSoon();
    void FollowFormSoon();
    void RenewTitle();
    void RenewStatus();
    void MarkDefaultButton();

    Form* form_;
    QWidget* pane_;
    QScrollArea* scroll_;
    QLabel* status_;
    std::vector<ControlView*> views_;
    std::unordered_map<const Control*, ControlView*> byControl_;
    std::unordered_map<const QObject*, ControlView*> byTarget_;
    std::vector<LayoutBuilder::PaintedArea> areas_;
    ControlView* pressed_ = nullptr;  // took the keyboard at the press of the mouse, its release is to come
    bool followSoon_ = false;
    bool followFormSoon_ = false;
    std::deque<std::function<void()>> acts_;  // see Later
    bool acting_ = false;
};

}  // namespace quillmetra
