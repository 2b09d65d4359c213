// See DataCheck.h.
#include "forms/DataCheck.h"

#include "core/CalcRecord.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/CalculationForm.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"

namespace quillmetra {

namespace {

// Absolute zero in degF, and how each unit of temperature leads to degF.
constexpr double AbsoluteZero = -459.67;

struct TemperatureRule {
    const char* Unit;
    double Factor;
    double Offset;   // degF = value x factor + offset
    double Minimum;  // absolute zero in the unit, as the message shows it
};

constexpr TemperatureRule TemperatureRules[] = {
    {"degC", 1.8, 32, -491.67 / 1.8},
    {"degR", 1, AbsoluteZero, 0},
    {"degK", 1.8, AbsoluteZero, 0},
};

TemperatureRule RuleOf(const std::string& unit, double factor) {
    for (const TemperatureRule& rule : TemperatureRules) {
        if (unit == rule.Unit) return rule;
    }
    return {"", factor, 0, AbsoluteZero};
}

bool RefusePressure(Control& box) {
    if (Calc.PressureMode == words::Absolute) {
        return RefuseData("Pressure must be greater than zero", box);
    }
    return RefuseData("Pressure must be greater than minus" + Str(Calc.BaroPressure / Calc.UnitFactor[23]),
                      box);
}

}  // namespace

bool RefuseData(const std::string& message, Control& box) {
    Tell(message, "Data checking", Icon::Stop);
    box.SetFocus();
    return false;
}

bool CheckTempPressure(CalculationForm& form, const TempPressureBoxes& boxes) {
    form.StoreForm();
    Calc.TempPressureOk = words::No;
    RestoreStandardConditions();

    const auto i = static_cast<std::size_t>(Calc.CaseIndex);
    if (Calc.TemperatureBlank[i] == 1 && Suite.BatchPrinting == words::Yes) return false;
    const TemperatureRule rule = RuleOf(Calc.UnitName[2], Calc.UnitFactor[2]);
    Calc.FlowTemperature = Calc.CaseInput[2][i] * rule.Factor + rule.Offset;
    if (Calc.FlowTemperature <= AbsoluteZero || Calc.TemperatureBlank[i] == 1) {
        return RefuseData("Flow Temperature must be greater than " + Str(rule.Minimum), boxes.Temperature);
    }

    Calc.EnteredPressure = Calc.CaseInput[3][i] * Calc.UnitFactor[3];
    Calc.FlowPressure = Calc.EnteredPressure;
    if (Calc.PressureMode == words::Absolute) {
        if (!(Calc.FlowPressure > 0)) return RefusePressure(boxes.Pressure);
    } else {
        Calc.FlowPressure += Calc.BaroPressure;
        if (Calc.FlowPressure < 0) return RefusePressure(boxes.Pressure);
    }

    Calc.VaporPressure = Calc.CaseInput[8][i] * Calc.UnitFactor[8];
    if (Calc.VaporPressure >= Calc.FlowPressure) {
        return RefuseData("Inlet pressure must be greater than Vapor pressure", boxes.Pressure);
    }
    Calc.TempPressureOk = words::Yes;
    return true;
}

}  // namespace quillmetra
