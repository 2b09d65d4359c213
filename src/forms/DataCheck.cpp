// See DataCheck.h.
#include "forms/DataCheck.h"

#include "core/CalcRecord.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/CalculationForm.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "units/Border.h"
#include "units/Temperature.h"

namespace quillmetra {

namespace {
DataRefusals* Refusals = nullptr;
}

DataRefusals::DataRefusals() : outer_(Refusals) { Refusals = this; }
DataRefusals::~DataRefusals() { Refusals = outer_; }

bool RefuseData(const std::string& message, Control& box, Icon icon) {
    if (Refusals != nullptr) Refusals->all_.push_back({message, &box});
    Tell(message, "Data checking", icon);
    box.SetFocus();
    return false;
}

bool TellNoResult(const RuntimeError& error) {
    const int number = error.Number;
    if (number != failure::Overflow().Number && number != failure::DivisionByZero().Number) return false;
    Tell(error.Description + ": there is no result.\nA value is far too large or far too small",
         "Data checking", Icon::Stop);
    return true;
}

std::string AboveVacuum() {
    return " must be greater than minus" + Str(Calc.BaroPressure / Calc.UnitFactor[unit::Barometer]);
}

bool CheckPressure(TextBox& box, const TempPressureRules& rules) {
    RestoreStandardConditions();
    TakePressure(static_cast<std::size_t>(Calc.CaseIndex));
    if (Calc.PressureMode == words::Absolute) {
        return Calc.FlowPressure > 0 || RefuseData(rules.AbsoluteText, box);
    }
    const double lowest = rules.GaugeAboveZero ? Calc.BaroPressure : 0;
    return Calc.FlowPressure >= lowest || RefuseData("Pressure" + AboveVacuum(), box);
}

bool CheckTempPressure(CalculationForm& form, const TempPressureBoxes& boxes,
                       const TempPressureRules& rules) {
    form.StoreForm();
    Calc.TempPressureOk = words::No;
    RestoreStandardConditions();

    const auto i = static_cast<std::size_t>(Calc.CaseIndex);
    if (Calc.TemperatureBlank[i] == 1 && IsYes(Suite.BatchPrinting)) return false;
    const std::string& unit = Calc.UnitName[unit::Temperature];
    Calc.FlowTemperature = TemperatureIn(Calc.CaseInput[input::Temperature][i]);
    if (!IsAboveAbsoluteZero(Calc.FlowTemperature) || Calc.TemperatureBlank[i] == 1) {
        return RefuseData("Flow Temperature must be greater than " + Str(AbsoluteZeroIn(unit)),
                          boxes.Temperature);
    }
    if (!CheckPressure(boxes.Pressure, rules)) return false;

    if (rules.HasVaporPressure) {
        Calc.VaporPressure = Calc.CaseInput[input::VaporPressure][i] * Calc.UnitFactor[unit::VaporPressure];
        if (Calc.VaporPressure >= Calc.FlowPressure) {
            return RefuseData("Inlet pressure must be greater than Vapor pressure", boxes.Pressure);
        }
    }
    Calc.TempPressureOk = words::Yes;
    return true;
}

}  // namespace quillmetra
