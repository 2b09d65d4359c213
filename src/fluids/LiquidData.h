// The liquid of the record in hand at its flowing temperature and pressure. The formulas and their units are
// those of LiquidCorrelations.h.
#pragma once

namespace quillmetra {

struct CalcRecord;

// From the record to the record:
void CalcVaporPressure();               // VaporPressure, both reduced temperatures
void CalcLiquidCompressibility();       // CompressibilityAt60, LiquidCompressibility, ReducedTemperature
void CalcLiquidSG();                    // CritCompressFactor, FlowingSG
void CalcLightLiquidCompressibility();  // CompressibilityAt60, LiquidCompressibility
void CalcWaterProperties();             // FlowingSG, FluidViscosity

// The properties at FlowTemperature and FlowPressure of the liquid that ParseLiquidRow or a mixture has left
// in the record: VaporPressure, FlowingSG, FluidViscosity, PressureCorrection. Asks whether to go on above
// the critical temperature and below the vapor pressure. False when the pick does not go on: the user
// answered No, or a property cannot be calculated, which it says, with the three results left at 0.
bool ProcessLiquidData();

// Whether the gravity of a mixture is corrected from its vapor pressure at 60 degF on, as that of a pure
// liquid is.
bool MixtureHasOffset(const CalcRecord& mixture);

// Says that a property cannot be calculated, for one that is not finite in the unit shown either; sets the
// three results to 0 and returns false for the caller to return.
bool TellNotCalculated();

}  // namespace quillmetra
