// Mixtures: table rows with percentages, and the one fluid that their percent-weighted sums stand for.
//
// FluidData and FluidPercent of the record hold the components; a form fills the percentages before it
// calculates. Every calculation below follows one course. It refuses percentages that do not add up to 100,
// unless MixtureFlag tells of a mixture already calculated. It leaves the pseudo properties in the fields of
// a parsed row. Then it sets MixtureFlag and drops the components without a percentage: FluidData,
// FluidPercent and MixtureCount change, so the form is to show them anew. The properties at flow are for
// ProcessLiquidData or ProcessGasData to find.
//
// False when nothing was calculated: the percentages do not add up, there is no component, or the sums are no
// numbers. All are told, and the components stand as they were; FluidRow is that of a component.
#pragma once

#include <span>
#include <string>

namespace quillmetra {

// The most components of a mixture.
constexpr int MostComponents = 16;

// Takes a table row as the next component and returns its place. The sixteenth and any later one take the
// last place, and the user is told of the maximum.
int AddComponent(const std::string& row);

// How many components there are. MixtureCount stops at 15, so it does not tell the sixteenth.
int ComponentCount();

// What the percentages leave of 100, rounded so that percentages which add up but for their last bits leave
// 0. A sum beyond all sense counts as 1e15.
double RemainingPercent(std::span<const double> percents);

// The liquid rule. The mixture takes NormalBoilingPoint of its last component. In the water hammer program a
// component without a percentage is kept, with the row of the component before it; the first keeps its own.
bool CalcLiquidMixture();

// The gas rule of the line-loss program.
bool CalcGasMixtureForLine();

// The gas rule of the gas data program, which also finds the boiling point and the latent heat of the
// mixture, and cautions the user.
bool CalcGasMixtureForData();

// LatentHeatAtPressure (Btu/lb, whole) from the pseudo properties and EnteredPressure (psig), and row 13 of
// the case in hand, in the unit of row 16 (whole).
void CalcMixtureLatentHeat();

}  // namespace quillmetra
