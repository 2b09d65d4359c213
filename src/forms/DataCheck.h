// The checks that stand before every calculation. Each failure is told in a message box titled "Data
// checking", and the focus goes to the box that is to be mended.
#pragma once

#include <string>
#include <vector>

#include "platform/Controls.h"
#include "platform/Dialogs.h"
#include "platform/RuntimeError.h"

namespace quillmetra {

class CalculationForm;

// Tells a failed check and moves the focus; returns false for the caller to return.
bool RefuseData(const std::string& message, Control& box, Icon icon = Icon::Stop);

// What was refused since it was made, and at which box, for a run that has to say so of many records. It
// nests.
class DataRefusals {
public:
    struct Refusal {
        std::string Text;
        const Control* Box = nullptr;
    };
    DataRefusals();
    ~DataRefusals();
    DataRefusals(const DataRefusals&) = delete;
    DataRefusals& operator=(const DataRefusals&) = delete;

    const std::vector<Refusal>& All() const { return all_; }

private:
    friend bool RefuseData(const std::string& message, Control& box, Icon icon);
    DataRefusals* outer_;
    std::vector<Refusal> all_;
};

// " must be greater than minus 14.7", the barometer in its unit: for a gauge pressure below a vacuum.
std::string AboveVacuum();

// For a failure in a calculation: tells that data which passed the checks give no number, and where to look.
// False, with nothing told, for any other failure, which the caller throws on.
bool TellNoResult(const RuntimeError& error);

// The boxes of the case in hand that the temperature and pressure check leads to.
struct TempPressureBoxes {
    TextBox& Temperature;
    TextBox& Pressure;
};

// How the programs differ in the check.
struct TempPressureRules {
    const char* AbsoluteText;  // an absolute pressure that is not above 0
    bool GaugeAboveZero;    // a pressure below that of the atmosphere is refused, not only one below a vacuum
    bool HasVaporPressure;  // row 8 is the fluid's, and the pressure must exceed it
};
inline constexpr TempPressureRules LiquidRules{"Pressure must be greater than zero", false, true};
inline constexpr TempPressureRules GasRules{"Flow pressure must be greater than zero", true, false};

// Stores the form, restores missing standard conditions, and takes FlowTemperature (degF) and FlowPressure
// (psia) of the case in hand. Refuses a temperature at absolute zero or below or an empty one, a pressure
// as the rules have it, and one that does not exceed the vapour pressure (row 8). Sets TempPressureOk; true
// when it is "Yes".
bool CheckTempPressure(CalculationForm& form, const TempPressureBoxes& boxes, const TempPressureRules& rules);

// The same for FlowPressure alone.
bool CheckPressure(TextBox& box, const TempPressureRules& rules);

}  // namespace quillmetra
