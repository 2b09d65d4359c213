// The frame of the base conditions on the gas forms: standard pressure and temperature, to which volumes of
// gas refer, and the pressure of the air.
#pragma once

#include <array>
#include <string>

#include "platform/Form.h"

namespace quillmetra {

class CalculationForm;

class BaseConditions {
public:
    explicit BaseConditions(CalculationForm& form);

    // Opens the frame over the inputs, which take none until it closes.
    void Open();
    void Close();
    // Its controls at the end of the form's tab order.
    void AppendTabs();

    // OK takes the values for this calculation, Save also writes them to the file that every new calculation
    // starts from. A pressure that is not above 0 or a temperature of absolute zero is refused.
    void cmdOKSTP_Click();
    void cmdSaveSTP_Click();
    void cmdCancelSTP_Click();

    MenuItem mnuSTP;
    Frame fraSTP;
    Label lblSTPPressure;
    TextBox txtSTPPressure;
    Label unSTPPressure;
    Label lblSTPTemp;
    TextBox txtSTPTemp;
    Label unSTPTemp;
    Label lblSTPBaro;
    TextBox txtSTPBaro;
    Label unSTPBaro;
    Label lblSTPNote;
    CommandButton cmdSTPEnglish;
    CommandButton cmdSTPSI;
    CommandButton cmdOKSTP;
    CommandButton cmdSaveSTP;
    CommandButton cmdCancelSTP;

    // Run when a value has changed.
    Handler Changed;

private:
    void SwitchTo(bool si);
    void Show();
    bool Take();
    std::string ReadDifferently() const;
    // Closes the frame and says in the status line what was not read to its end, and what else there is.
    void CloseWith(const std::string& note);

    CalculationForm& form_;
    Control* cameFrom_ = nullptr;
    std::string systemBefore_;
    std::array<std::string, 3> shown_;  // the texts of the boxes as they were filled
};

}  // namespace quillmetra
