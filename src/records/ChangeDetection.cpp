// See ChangeDetection.h.
#include "records/ChangeDetection.h"

#include <string>

#include "core/CalcRecord.h"
#include "core/PhysicalConstants.h"
#include "core/Programs.h"
#include "core/Words.h"
#include "platform/NumberText.h"
#include "platform/TextCase.h"

namespace quillmetra {

namespace {

constexpr std::size_t UnitRowsKept = 28;

bool SameText(const std::string& a, const std::string& b) { return Trim(a) == Trim(b); }

template <typename Texts>
bool TextsDiffer(const Texts& live, const Texts& saved, std::size_t first, std::size_t last) {
    for (std::size_t i = first; i <= last; ++i) {
        if (!SameText(live[i], saved[i])) return true;
    }
    return false;
}

template <typename Numbers>
bool NumbersDiffer(const Numbers& live, const Numbers& saved, std::size_t first, std::size_t last) {
    for (std::size_t i = first; i <= last; ++i) {
        if (live[i] != saved[i]) return true;
    }
    return false;
}

void MarkIf(std::string& flag, bool changed) {
    if (changed) flag = words::Yes;
}

bool BasisDiffers() {
    if (Calc.FluidType == words::Liquid) return !SameText(Calc.LiquidBasis, Calc.LiquidBasisSaved);
    return Calc.FluidType == words::Gas && !SameText(Calc.Basis, Calc.BasisSaved);
}

// A record that was begun without a barometer has the usual one.
bool BarometerDiffers() {
    const auto inForce = [](double barometer) { return barometer > 0 ? barometer : SeaLevelBarometer; };
    return inForce(Calc.BaroPressure) != inForce(Calc.BaroPressureSaved);
}

// Inputs and units, without the rows of the standard conditions.
bool RowsDiffer() {
    for (std::size_t row = 0; row < UnitRowsKept; ++row) {
        if (row >= input::StdTemperature && row <= input::Barometer) continue;
        if (Calc.UnitFactor[row] != Calc.UnitFactorShown[row]) return true;
        for (int i = 0; i < CaseCount; ++i) {
            const double saved = Calc.CaseInputSaved[row][static_cast<std::size_t>(i)];
            if (StandingInput(static_cast<int>(row), i) != saved) return true;
        }
        if (!SameText(Calc.UnitName[row], Calc.UnitNameShown[row])) return true;
    }
    return false;
}

// What every program's own row holds beside its results.
bool CommonPartDiffers() {
    return RowsDiffer() || BasisDiffers() || TextsDiffer(Calc.CaseText, Calc.CaseTextSaved, 8, 11) ||
           !SameText(Calc.FluidName, Calc.FluidNameSaved) ||
           !SameText(Calc.ProgramTitle, Calc.ProgramTitleSaved);
}

bool CaseResultsDiffer() {
    for (int row = 1; row <= 6; ++row) {
        for (int i = 0; i < CaseCount; ++i) {
            const double saved =
                Calc.CaseResultSaved[static_cast<std::size_t>(row)][static_cast<std::size_t>(i)];
            if (StandingResult(row, i) != saved) return true;
        }
    }
    return false;
}

bool HammerResultsDiffer() {
    for (int row = 1; row <= 18; ++row) {
        if (StandingHammerResult(row) != Calc.HammerResultSaved[static_cast<std::size_t>(row)]) return true;
    }
    return false;
}

bool LineDiffers() {
    return Calc.PressureDirection != Calc.PressureDirectionSaved || CaseResultsDiffer() ||
           NumbersDiffer(Calc.PipeData, Calc.PipeDataSaved, 1, 6) ||
           NumbersDiffer(Calc.FittingCount, Calc.FittingCountShown, 1, 14) || CommonPartDiffers() ||
           Calc.PipeFouling != Calc.PipeFoulingSaved || !SameText(Calc.PipeMaterial, Calc.PipeMaterialSaved);
}

// A record under a new tag is new to the database: all that it has is to be written.
void MarkForNewTag() {
    Calc.RecordChanged = words::Yes;
    MarkIf(Calc.SavePDRow, IsYes(Calc.PDRowLoaded) || IsYes(Calc.CalculatedFlag));
    MarkIf(Calc.SaveFDRow, IsYes(Calc.FDRowLoaded));
    MarkIf(Calc.SaveWHRow, IsYes(Calc.WHRowLoaded) || IsYes(Calc.HammerCalculated));
    MarkIf(Calc.MixtureSave, IsYes(Calc.MixtureFlag));
}

void CompareWaterHammer() {
    MarkIf(Calc.SaveWHRow, HammerResultsDiffer() || CommonPartDiffers());
    MarkIf(Calc.RecordChanged, TextsDiffer(Calc.CaseUnitsText, Calc.CaseUnitsTextSaved, 1, 3));
}

void CompareMixture() {
    Calc.MixtureSave = words::No;
    MarkIf(Calc.MixtureSave, NumbersDiffer(Calc.FluidPercent, Calc.FluidPercentSaved, 0, 15) ||
                                 TextsDiffer(Calc.FluidData, Calc.FluidDataSaved, 0, 15));
}

}  // namespace

void DetectChanges() {
    if (Calc.ChangedFlag.empty()) return;
    Calc.RecordChanged = words::No;
    if (!SameName(Trim(Calc.Tag), Trim(Calc.TagSaved))) return MarkForNewTag();

    const int program = Calc.CurrentProgram;
    MarkIf(Calc.RecordChanged, !SameText(Calc.Tag, Calc.TagSaved));  // the case of its letters alone
    MarkIf(Calc.RecordChanged, Calc.PipeName != Calc.PipeNameSaved || Calc.Service != Calc.ServiceSaved);
    MarkIf(Calc.RecordChanged, !SameText(Calc.FluidName, Calc.FluidNameSaved) || IsYes(Calc.RecordUpdated) ||
                                   BasisDiffers() || BarometerDiffers() ||
                                   TextsDiffer(Calc.HeadingText, Calc.HeadingTextSaved, 2, 10));
    Calc.SaveFDRow = words::No;
    MarkIf(Calc.SaveFDRow, program::IsFluidData(program) && CommonPartDiffers());
    Calc.SavePDRow = words::No;
    MarkIf(Calc.SavePDRow, program::IsLine(program) && LineDiffers());
    if (program == program::WaterHammer) CompareWaterHammer();
    if (IsYes(Calc.MixtureFlag)) CompareMixture();
    MarkIf(Calc.RecordChanged, IsYes(Calc.SavePDRow) || IsYes(Calc.MixtureSave) || IsYes(Calc.SaveWHRow) ||
                                   IsYes(Calc.SaveFDRow));
    Calc.RecordUpdated.clear();
}

}  // namespace quillmetra
