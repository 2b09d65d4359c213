// What stands on the screen for a control of the model. A view shows what the model says and passes on what
// the user does through platform/UserActs.h; it decides nothing.
#pragma once

#include <QObject>
#include <QWidget>

#include "platform/Controls.h"
#include "platform/UserActs.h"

namespace quillmetra {

class Plot;

class ControlView : public QObject {
public:
    ControlView(Control& control, QWidget* widget);

    // Null once the form is gone: the view may outlive it until the event in hand has ended.
    Control* Model() const { return control_; }
    virtual void Forget() { control_ = nullptr; }

    // The widget that stands in the layout; null for a menu entry.
    QWidget* Widget() const { return widget_; }
    // The widget in it that has the keyboard.
    virtual QWidget* KeyTarget() const { return widget_; }
    // The part of it that a mouse press meets, where that is another one than the widget itself.
    virtual QWidget* MouseTarget() const { return KeyTarget(); }
    // True when the widget takes the keyboard at the press of the mouse; the model hears of it at the
    // release.
    virtual bool FocusesOnPress() const { return false; }

    // Shows an aspect of the model as it now stands.
    void Renew(Aspect aspect);
    void RenewAll();

protected:
    virtual void RenewText() {}
    virtual void RenewChecked() {}
    virtual void RenewRows() {}
    virtual void RenewSelection() {}
    virtual void SelectAll() {}
    virtual void RenewEnabled();
    virtual void RenewVisible();
    virtual void RenewColours();
    virtual void RenewToolTip();
    // See FormWindow.
    void Later(const Handler& act);

private:
    Control* control_;
    QWidget* widget_;
};

// Makes the view of any control but a menu entry, with its widget in the given one.
ControlView* MakeView(Control& control, QWidget* parent);

// The makers by kind, each with its family: texts, buttons, lists, plots.
ControlView* MakeTextView(Control& control, QWidget* parent);
ControlView* MakeButtonView(Control& control, QWidget* parent);
ControlView* MakeListView(Control& control, QWidget* parent);
ControlView* MakeGridView(Grid& grid, QWidget* parent);
ControlView* MakePlotView(Plot& plot, QWidget* parent);

}  // namespace quillmetra
