// The rows of Liquid.txt and Gas.txt: found by name, listed for a pick, and parsed into the record.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmetra {

// The lines of the fluid table after its heading, whole, for "Liquid" or "Gas". Throws the RuntimeError of a
// file that cannot be read or has not even a heading; a heading alone gives no rows.
std::vector<std::string> ReadFluidRows(std::string_view fluidType);

// The fluid name of a row: its text before the first comma, trimmed.
std::string_view FluidRowName(std::string_view row);

// The class that the text of a row stands for; what is neither organic nor water is inorganic.
int FluidClassOf(std::string_view text);
// In a word.
const char* FluidKindOf(int fluidClass);

// What tells a fluid from others, as its row has it: degF and psia. The gravity is that of a liquid at 60
// degF to water, of a gas to air.
struct FluidConstants {
    int Class = 0;  // see fluidclass
    double MolecularWeight = 0;
    double Gravity = 0;
    double BoilingPoint = 0;
    double CritTemperature = 0;
    double CritPressure = 0;
};
FluidConstants FluidConstantsOf(std::string_view row, bool isGas);

// The index of the first row with exactly this name; -1 when there is none.
int FindFluidName(const std::vector<std::string>& rows, std::string_view name);

// Sets FluidRow to the row of FluidName in the table of FluidType. A file failure empties it, a name that the
// table does not have leaves it as it was.
void FindFluidRow();

// Splits FluidRow into the liquid fields of the record and derives viscosity and specific heat at
// FlowTemperature. A field that is missing or no number reads 0; the derived values may then be infinite or
// no numbers, which ProcessLiquidData tells of. MessageText becomes the row with its fields trimmed.
void ParseLiquidRow();

// Splits FluidRow into the gas fields of the record, and MessageText likewise. Nothing is derived: see
// GasData.h.
void ParseGasRow();

// The same for the components of the gas data program's mixtures, which take their critical temperature to
// degR by 459.67 where every other row takes 460: it comes out 0.33 degR lower than that of the gas alone.
void ParseGasRowForMixture();

}  // namespace quillmetra
