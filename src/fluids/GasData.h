// The gas of the record in hand at its flowing temperature and pressure. The formulas and their units are
// those of GasCorrelations.h.
#pragma once

namespace quillmetra {

// From the record to the record:

// CompressFactor, Density (lb/ft3) and IterationCount from FlowTemperature, FlowPressure and the critical
// constants. Warns when the iteration does not converge, and goes on with its last value.
void CalcCompressibility();
// The same without the warning, for a caller that calculates many times and warns once; false when it did
// not converge.
bool FindCompressibility();
void WarnOfCompressibility();

// Of the row that a gas parser has left: CritCompressFactor, both reduced values, the viscosity line,
// FluidViscosity, GasSpecificHeat, RatioSpecificHeats. CompressFactor is working storage.
void CalcGasProperties();

// LatentHeatAtFlow (Btu/lb) from LatentHeatRefValue, known at LatentHeatRefTemp.
void CalcGasLatentHeat();

// The properties at FlowTemperature and FlowPressure of the gas that ParseGasRow or a mixture has left in the
// record: those of CalcGasProperties for a pure gas, VaporPressure (0 for a mixture), CompressFactor and
// Density, in the gas data program LatentHeatAtFlow. Asks whether to go on when a pure gas would be liquid.
// False when the pick does not go on: the user answered No, or a property cannot be calculated, which it
// says, with these results left at 0.
bool ProcessGasData();

// Says that a property cannot be calculated, for one that is not finite in the unit shown either; sets these
// results to 0 and returns false for the caller to return.
bool TellGasNotCalculated();

}  // namespace quillmetra
