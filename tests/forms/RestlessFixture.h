// What a restless user does with whatever he finds, by a seed.
#pragma once

#include <random>

#include "core/Words.h"
#include "forms/CalculationForm.h"
#include "forms/RegisterForms.h"
#include "platform/UserActs.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {

class RestlessFixture : public SuiteTest {
protected:
    explicit RestlessFixture(unsigned seed) : random_(seed) { RegisterForms(); }

    // The calculation form that is loaded; null for none.
    static CalculationForm* Calculation() {
        for (const char* name :
             {"frmLiqLineLoss", "frmGasLineLoss", "frmWaterHammer", "frmLiqData", "frmGasData"}) {
            auto* form = dynamic_cast<CalculationForm*>(LoadedForm(name));
            if (form != nullptr && form->ProgramNumber() == Calc.CurrentProgram) return form;
        }
        return nullptr;
    }

    // The control of a case, or the only one of that name.
    static Control* OfCase(CalculationForm& form, const char* name, int i) {
        Control* const control = form.Find(name, i);
        return control != nullptr || i > 0 ? control : form.Find(name);
    }
    static Control* CalculateButton(CalculationForm& form, int i) {
        Control* const button = OfCase(form, "cmdCalculate", i);
        if (button != nullptr) return button;
        return OfCase(form, form.ProgramNumber() == 3 ? "cmdCalculateliq" : "cmdOK", i);
    }

    // A case that calculates: 1000 ft of 4 in pipe with a light liquid or methane.
    static void FillGoodCase(CalculationForm& form, int i) {
        Suite.HideFluidReminder = words::Yes;
        for (const auto& [box, text] : {std::pair{"txtInletPipeLen", "1000"},
                                        {"txtInletPipeID", "4.026"},
                                        {"txtFlow", form.ProgramNumber() == 1 ? "100000" : "5000"},
                                        {"txtTemp", "60"},
                                        {"txtPressure", "100"},
                                        {"txtSGFlow", "1"},
                                        {"txtViscosity", "0.1"},
                                        {"txtMW", "16.04"},
                                        {"txtRatioSH", "1.3"},
                                        {"txtCritTemp", "343"},
                                        {"txtCritPressure", "667"},
                                        {"txtMaxLiqFlow", "100000"},
                                        {"txtFlowTemp", "60"},
                                        {"txtOperPressure", "100"},
                                        {"txtBulkModulus", "300000"},
                                        {"txtLineLength", "1000"},
                                        {"txtPipeID", "4.026"},
                                        {"txtPipeWall", "0.237"},
                                        {"txtLineModulus", "2e7"},
                                        {"txtMaxAllowPressure", "300"},
                                        {"txtSelectedTime", "2"}}) {
            Control* const control = OfCase(form, box, i);
            if (control != nullptr && !static_cast<TextBox*>(control)->Locked) Type(*control, text);
        }
        if (form.ProgramNumber() < 4) return;
        // A fluid of the table is the calculation of these.
        const std::string entry = form.ProgramNumber() == 4 ? "mnuLiquid" : "mnuPureGases";
        ClickControl(*form.Find(entry + std::to_string(i + 1)));
        if (CanAct(form.Fluids.cmdSelect)) ClickControl(form.Fluids.cmdSelect);
    }
    static void Type(Control& box, const std::string& text) {
        MoveFocus(box);
        TypeText(box, text);
    }

    int Below(std::size_t count) { return static_cast<int>(random_() % count); }

    // What is no number is typed in capitals, so that "nan" and "inf" on a form come from a calculation.
    std::string AnyText() {
        static const char* const texts[] = {
            "",        "0",     "1",    "60",       "100", "4.026", "1e300",    "-1e300", "1e-310",
            "-5",      "abc",   "12,5", "NAN",      "INF", "0x10",  "1e999999", " 7 ",    "+3",
            "-459.67", "-14.7", "705",  "99999999", "\"",  "1e15",  "T-1",      "T-3"};
        return texts[Below(std::size(texts))];
    }

    // Types, picks or clicks, as the control takes it.
    void ActOn(Control& control) {
        switch (control.Kind()) {
            case ControlKind::TextBox:
                MoveFocus(control);
                TypeText(control, AnyText());
                break;
            case ControlKind::ListBox: {
                auto& list = static_cast<ListBox&>(control);
                if (list.RowCount() > 0) PickRow(list, BelowOrLast(list.RowCount()));
                if (Below(2) == 0) DoubleClickControl(control);
                break;
            }
            case ControlKind::Grid: {
                auto& grid = static_cast<Grid&>(control);
                if (grid.RowCount() > 0)
                    PickCell(grid, BelowOrLast(grid.RowCount()), BelowOrLast(grid.ColumnCount()));
                break;
            }
            default:
                if (!TakesDropLine(control)) ClickControl(control);
        }
    }

    bool TakesDropLine(Control& control) {
        auto* const button = dynamic_cast<DropButton*>(&control);
        if (button == nullptr || Below(2) == 0) return false;
        const DropLines lines = OpenDropList(*button);
        return !lines.empty() && TakeDropLine(*button, Below(lines.size()));
    }

    // In the control that has the focus, but for a calculation, which a caller has to know of.
    void PressAnyKey(const quillmetra::Form& form) {
        static const char* const keys[] = {"Enter", "Escape", "Tab", "Shift+Tab",
                                           "Down",  "PageUp", "R",   "Backspace"};
        Control* const current = form.Focus.Current();
        if (current != nullptr && !current->Name().starts_with("cmdCalculate")) {
            PressKey(*current, keys[Below(std::size(keys))]);
        }
    }

private:
    int BelowOrLast(int count) { return Below(static_cast<std::size_t>(count)); }

    std::mt19937 random_;
};

}  // namespace quillmetra
