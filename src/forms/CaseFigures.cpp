// See CaseFigures.h.
#include "forms/CaseFigures.h"

#include <cmath>

#include "core/Words.h"
#include "forms/ColourSchemes.h"
#include "platform/NumberText.h"
#include "units/Rounding.h"

namespace quillmetra {

CaseFigure::CaseFigure(Frame& inputs, const std::string& stem, const char* caption, int unitRow)
    : unitRow_(unitRow),
      label_(inputs, "lbl" + stem, caption),
      box_(inputs, "txt" + stem, {0, 1, 2}),
      unit_(inputs, "un" + stem) {
    box_.Each([this](TextBox& box, int i) {
        box.Describe(&label_, unitRow_ == NoUnit ? nullptr : &unit_,
                     words::Cases[static_cast<std::size_t>(i)]);
        box.Locked = true;
        box.TabStop = false;
        box.ColourGroup = 4;
        box.IsNumber = true;
    });
}

void CaseFigure::Show(int caseIndex, double value) {
    const bool hasUnit = unitRow_ != NoUnit;
    const double shown = RoundedFour(hasUnit ? value / Calc.UnitFactor[At(unitRow_)] : value);
    if (hasUnit) unit_.SetCaption(Calc.UnitName[At(unitRow_)]);
    Show(caseIndex, std::isfinite(shown) ? Str(shown) : "");
}

// In the colour of results that no input has changed since.
void CaseFigure::Show(int caseIndex, const std::string& text) {
    constexpr int unchanged = 4;
    TextBox& box = box_(caseIndex);
    box.SetText(text);
    box.SetColours(box.BackColour(), SlotColour(unchanged));
}

void CaseFigure::SetVisible(bool visible) {
    label_.SetVisible(visible);
    unit_.SetVisible(visible);
    box_.Each([visible](TextBox& box, int) { box.SetVisible(visible); });
}

LineRows::LineRows(Frame& inputs)
    : Regime(inputs, "Regime", "Flow zone"),
      TotalLoss(inputs, "TotalLoss", "Total loss", unit::PressureDrop),
      PipeAndFittings(inputs, "PipeAndFittings", "Pipe and fittings", unit::Length) {
    TotalLoss.SetToolTip("Source pressure less destination pressure");
    PipeAndFittings.SetToolTip("Equivalent length of the straight pipe and its fittings");
}

void LineRows::Show(int caseIndex, const LineFigures& figures) {
    Regime.Show(caseIndex, std::string(figures.Regime));
    TotalLoss.Show(caseIndex, figures.TotalLoss);
    PipeAndFittings.Show(caseIndex, figures.PipeAndFittings);
}

void LineRows::Blank(int caseIndex) {
    for (CaseFigure* row : {&Regime, &TotalLoss, &PipeAndFittings}) row->Blank(caseIndex);
}

LiquidRows::LiquidRows(Frame& inputs)
    : LineRows(inputs),
      PipeLoss(inputs, "PipeLoss", "   of the pipe", unit::PressureDrop),
      FittingsLoss(inputs, "FittingsLoss", "   of the fittings", unit::PressureDrop),
      EquipLoss(inputs, "EquipmentLoss", "   of the equipment", unit::PressureDrop),
      ElevationLoss(inputs, "ElevationLoss", "   of the elevation", unit::PressureDrop),
      VaporMargin(inputs, "VaporMargin", "Over vapor pressure", unit::PressureDrop),
      NpshAvailable(inputs, "NpshAvailable", "NPSH available", unit::Length) {
    VaporMargin.SetToolTip("Destination pressure less the vapor pressure of the liquid");
    NpshAvailable.SetToolTip(
        "The same as length of liquid at the destination; the velocity head is not added");
    ShowParts(false);
}

void LiquidRows::Show(int caseIndex, const LiquidFigures& figures) {
    LineRows::Show(caseIndex, figures);
    PipeLoss.Show(caseIndex, figures.PipeLoss);
    FittingsLoss.Show(caseIndex, figures.FittingsLoss);
    EquipLoss.Show(caseIndex, figures.EquipLoss);
    ElevationLoss.Show(caseIndex, figures.ElevationLoss);
    VaporMargin.Show(caseIndex, figures.VaporMargin);
    NpshAvailable.Show(caseIndex, figures.NpshAvailable);
}

void LiquidRows::Blank(int caseIndex) {
    LineRows::Blank(caseIndex);
    for (CaseFigure* row :
         {&PipeLoss, &FittingsLoss, &EquipLoss, &ElevationLoss, &VaporMargin, &NpshAvailable}) {
        row->Blank(caseIndex);
    }
}

void LiquidRows::ShowParts(bool visible) {
    for (CaseFigure* row : {&PipeLoss, &FittingsLoss, &EquipLoss, &ElevationLoss}) row->SetVisible(visible);
}

GasRows::GasRows(Frame& inputs)
    : LineRows(inputs),
      OutletMach(inputs, "OutletMach", "Mach number at outlet"),
      OutletDensity(inputs, "OutletDensity", "Outlet density", unit::Density) {
    OutletMach.SetToolTip("Velocity over sonic velocity where the gas leaves the line");
}

void GasRows::Show(int caseIndex, const GasFigures& figures) {
    LineRows::Show(caseIndex, figures);
    OutletMach.Show(caseIndex, figures.OutletMach);
    OutletDensity.Show(caseIndex, figures.OutletDensity);
}

void GasRows::Blank(int caseIndex) {
    LineRows::Blank(caseIndex);
    for (CaseFigure* row : {&OutletMach, &OutletDensity}) row->Blank(caseIndex);
}

}  // namespace quillmetra
