// See ControlView.h.
#include "desktop/ControlView.h"

#include "desktop/FormWindow.h"
#include "desktop/Painting.h"
#include "platform/Plot.h"

namespace quillmetra {

ControlView::ControlView(Control& control, QWidget* widget)
    : QObject(widget), control_(&control), widget_(widget) {
    if (widget_ != nullptr) widget_->setObjectName(ToQt(control.FullName()));
}

void ControlView::Renew(Aspect aspect) {
    if (control_ == nullptr) return;
    switch (aspect) {
        case Aspect::Text: RenewText(); break;
        case Aspect::Checked: RenewChecked(); break;
        case Aspect::Enabled: RenewEnabled(); break;
        case Aspect::Visible: RenewVisible(); break;
        case Aspect::Colours: RenewColours(); break;
        case Aspect::ToolTip: RenewToolTip(); break;
        case Aspect::Rows: RenewRows(); break;
        case Aspect::Selection: RenewSelection(); break;
        case Aspect::SelectAll: SelectAll(); break;
    }
}

void ControlView::RenewAll() {
    for (const Aspect aspect : {Aspect::Rows, Aspect::Text, Aspect::Checked, Aspect::Selection,
                                Aspect::Colours, Aspect::ToolTip, Aspect::Enabled, Aspect::Visible}) {
        Renew(aspect);
    }
}

// By what works and is seen, not by the control's own state: a layout may place a control outside of the
// widget of its container.
void ControlView::RenewEnabled() { widget_->setEnabled(control_->Works()); }

void ControlView::RenewVisible() {
    widget_->setVisible(control_->Seen());
    RenewEnabled();
}

void ControlView::RenewColours() {
    if (control_->ColourGroup == 0) return;
    PaintArea(*widget_, control_->BackColour(), control_->ForeColour());
    MarkChanged(*widget_, *control_);
}

void ControlView::RenewToolTip() { widget_->setToolTip(ToQt(control_->ToolTip())); }

void ControlView::Later(const Handler& act) { static_cast<FormWindow*>(widget_->window())->Later(act); }

ControlView* MakeView(Control& control, QWidget* parent) {
    switch (control.Kind()) {
        case ControlKind::CommandButton:
        case ControlKind::OptionButton:
        case ControlKind::CheckBox: return MakeButtonView(control, parent);
        case ControlKind::ListBox:
        case ControlKind::ComboBox:
        case ControlKind::Grid: return MakeListView(control, parent);
        case ControlKind::Plot: return MakePlotView(static_cast<Plot&>(control), parent);
        default: return MakeTextView(control, parent);
    }
}

}  // namespace quillmetra
