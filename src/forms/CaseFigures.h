// Rows of a line-loss form that follow from the record: a figure or a word for each case, with label and
// unit. They are no results of the record, so no report, save or export has them.
#pragma once

#include <string>

#include "core/CalcRecord.h"
#include "lineloss/LineFigures.h"
#include "platform/Controls.h"

namespace quillmetra {

class CaseFigure {
public:
    // Named after a stem: the label "lblStem", the boxes "txtStem", the unit "unStem".
    CaseFigure(Frame& inputs, const std::string& stem, const char* caption, int unitRow = NoUnit);

    // In the unit of the row, four figures; blank where it is not known.
    void Show(int caseIndex, double value);
    void Show(int caseIndex, const std::string& text);
    void Blank(int caseIndex) { box_(caseIndex).SetText(""); }
    void SetVisible(bool visible);
    void SetToolTip(const std::string& text) { label_.SetToolTip(text); }

private:
    static constexpr int NoUnit = -1;

    int unitRow_;
    Label label_;
    ControlArray<TextBox> box_;
    Label unit_;
};

// The rows that both lines have.
struct LineRows {
    explicit LineRows(Frame& inputs);
    void Show(int caseIndex, const LineFigures& figures);
    void Blank(int caseIndex);

    CaseFigure Regime, TotalLoss, PipeAndFittings;
};

struct LiquidRows : LineRows {
    explicit LiquidRows(Frame& inputs);
    void Show(int caseIndex, const LiquidFigures& figures);
    void Blank(int caseIndex);
    // The parts of the total loss.
    void ShowParts(bool visible);

    CaseFigure PipeLoss, FittingsLoss, EquipLoss, ElevationLoss, VaporMargin, NpshAvailable;
};

struct GasRows : LineRows {
    explicit GasRows(Frame& inputs);
    void Show(int caseIndex, const GasFigures& figures);
    void Blank(int caseIndex);

    CaseFigure OutletMach, OutletDensity;
};

}  // namespace quillmetra
