// See frmWaterHammer.h: from the press of Calculate to the results. A failed check of temperature and
// pressure is told at once, but stops the others only after those of gravity and flow: a deliberate order.
#include <utility>

#include "core/Filling.h"
#include "core/StartUp.h"
#include "core/Words.h"
#include "forms/DataCheck.h"
#include "forms/frmWaterHammer.h"
#include "hammer/HammerRanges.h"
#include "hammer/WaterHammer.h"
#include "platform/NumberText.h"
#include "reports/FormRefresh.h"
#include "reports/FormRows.h"
#include "units/Border.h"
#include "units/Conversion.h"
#include "units/CorrelationRange.h"
#include "units/Temperature.h"

namespace quillmetra {

namespace {

// psia, where the other programs fall back on 14.7.
constexpr double UsualStdPressure = 14.73;

void ClearWorkingLayer() {
    Calc.FlowingSG = Calc.LiquidMassFlow = Calc.Density = 0;
    Calc.FlowTemperature = Calc.FlowPressure = Calc.EnteredPressure = Calc.MaxAllowPressure = 0;
    Calc.BulkModulus = Calc.PipeModulus = 0;
    Calc.LineLength = Calc.PipeDiameter = Calc.WallThickness = Calc.SelectedTime = 0;
}

}  // namespace

bool frmWaterHammer::CheckTempPressure() {
    StoreForm();
    Calc.TempPressureOk = words::No;
    RestoreStandardConditions(UsualStdPressure);

    const std::string& unit = Calc.UnitName[unit::Temperature];
    Calc.FlowTemperature = TemperatureIn(Calc.CaseInput[input::Temperature][0]);
    if (Calc.FlowTemperature < AbsoluteZeroF) {
        return RefuseData("Flow temperature must be greater than " + Str(AbsoluteZeroIn(unit)), txtFlowTemp);
    }
    TakePressure(column::Operating);
    if (Calc.PressureMode == words::Absolute && !(Calc.FlowPressure > 0)) {
        return RefuseData("Operating pressure must be greater than zero", txtOperPressure, Icon::None);
    }
    if (Calc.PressureMode != words::Absolute && Calc.FlowPressure < 0)
        return RefuseData("Operating pressure" + AboveVacuum(), txtOperPressure);
    Calc.TempPressureOk = words::Yes;
    return true;
}

bool frmWaterHammer::CheckFlow() {
    Calc.FlowingSG = GravityOfFirstCase();
    if (!(Calc.FlowingSG > 0)) {
        return RefuseData(Calc.LiquidDensityMode == words::Density
                              ? "Flowing Density must be greater than zero"
                              : "Flowing specific gravity must be greater than zero",
                          txtSGFlow);
    }
    Calc.LiquidMassFlow = LiquidFlowIn(Calc.CaseInput[input::LiquidFlow][0], Calc.FlowingSG);
    if (!(Calc.LiquidMassFlow > 0)) {
        return RefuseData("Maximum flow must be greater than zero", txtMaxLiqFlow);
    }
    return true;
}

bool frmWaterHammer::CheckLine() {
    Calc.MaxAllowPressure = PressureIn(Calc.CaseInput[input::Pressure][column::Allowable]);
    if (Calc.MaxAllowPressure <= Calc.FlowPressure) {
        return RefuseData("Maximum allowable pressure must be greater than operating pressure",
                          txtMaxAllowPressure);
    }
    const struct {
        double CalcRecord::*Field;
        TextBox& Box;
        std::size_t Row, Column;  // of CaseInput; the row is that of its unit too
        const char* What;
    } tests[] = {
        {&CalcRecord::BulkModulus, txtBulkModulus, input::Modulus, column::OfLiquid, "Bulk modulus"},
        {&CalcRecord::PipeModulus, txtLineModulus, input::Modulus, column::OfPipe, "Pipe modulus"},
        {&CalcRecord::LineLength, txtLineLength, input::LineLength, 0, "Line length"},
        {&CalcRecord::WallThickness, txtPipeWall, input::PipeSize, column::Wall, "Wall thickness"},
        {&CalcRecord::PipeDiameter, txtPipeID, input::PipeSize, column::InsideDiameter, "Pipe diameter"}};
    for (const auto& test : tests) {
        Calc.*test.Field = Calc.CaseInput[test.Row][test.Column] * Calc.UnitFactor[test.Row];
        if (Calc.*test.Field > 0) continue;
        return RefuseData(std::string(test.What) + " must be greater than zero", test.Box, Icon::None);
    }
    return true;
}

// A time that is asked for and not given still leaves the results that need none.
bool frmWaterHammer::CheckSelectedTime() {
    if (!txtSelectedTime.Visible() && !(Calc.CaseInput[input::SelectedTime][0] > 0)) return true;
    Calc.SelectedTime = Calc.CaseInput[input::SelectedTime][0];
    if (Calc.SelectedTime > 0) return true;
    CalcCriticalClosing();
    ShowResults(false);
    mnuPrint.SetEnabled(false);  // a report is of a calculation that is whole
    return RefuseData("Selected closing time must be greater than zero", txtSelectedTime, Icon::None);
}

bool frmWaterHammer::CheckHammerData() {
    Calc.DataOk = words::No;
    ClearWorkingLayer();
    const bool stateIsRight = CheckTempPressure();
    if (!CheckFlow() || !stateIsRight || !CheckLine() || !CheckSelectedTime()) return false;
    Calc.Density = Calc.FlowingSG * WaterDensity;
    ShowCalculation();
    Calc.DataOk = words::Yes;
    return true;
}

void frmWaterHammer::cmdCalculateliq_Click() {
    StoreForm();
    lblLiqTestBasis.SetCaption(Calc.LiquidBasis);
    const bool selected = txtSelectedTime.Visible();
    try {
        if (!CheckHammerData()) return;
        CalcCriticalClosing();
        if (selected) CalcSelectedClosing();
    } catch (const RuntimeError& error) {
        if (!TellNoResult(error)) throw;
        return;
    }
    ShowResults(selected);
    ShowSelectedTime(true);
    txtBy.SetFocus();
    Calc.HammerCalculated = words::Yes;
}

HintList frmWaterHammer::Hints() const { return Together(FluidForm::Hints(), HammerHints()); }

void frmWaterHammer::ShowResults(bool selected) {
    constexpr int firstOfSelected = 17;
    {
        const Filling filling;
        for (const FormRow& row : FormRows(ProgramNumber())) {
            if (!row.IsResult()) continue;
            auto& box = static_cast<TextBox&>(RowControl(*this, row, 0));
            if (row.Row < firstOfSelected || selected) {
                ShowNumber(box, LiveValue(row, 0));
            } else {
                box.SetText("");
            }
        }
    }
    Calc.ResultsClearable[0] = words::Yes;
    ShowCalculated();
}

void frmWaterHammer::DrawResults() {
    if (!ResultsStand(0) || !(Calc.HammerResult[wave::CriticalTime] > 0)) return pltClosing.Clear();
    ClosingCurve curve = ClosingCurveOfRecord();
    PlotDrawing drawing{.Title = {},
                        .Bottom = {"Closing time", unCloseTime.Caption()},
                        .Left = {"Pressure", Calc.UnitName[unit::Pressure]},
                        .Right = {},
                        .Series = {{"Pressure wave", std::move(curve.Times), std::move(curve.Pressures)}},
                        .Marks = {{"critical", Calc.HammerResult[wave::CriticalTime]},
                                  {"minimum", Calc.HammerResult[wave::MinimumTime]}}};
    if (HasSelectedClosing()) drawing.Marks.push_back({"selected", Calc.CaseInput[input::SelectedTime][0]});
    drawing.Marks.push_back({"allowable", Calc.CaseInput[input::Pressure][column::Allowable], false});
    pltClosing.Draw(std::move(drawing));
}

}  // namespace quillmetra
