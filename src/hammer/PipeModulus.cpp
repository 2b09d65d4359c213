// See PipeModulus.h.
#include "hammer/PipeModulus.h"

#include "core/CalcRecord.h"
#include "platform/Arithmetic.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"

namespace quillmetra {

namespace {

constexpr double Multiplier = 10000000;  // psi in one of the table
constexpr double LowestTemperature = 50, HighestTemperature = 1200;
constexpr std::size_t Columns = 13;  // of moduli, from field 1 on

// Of a column from 1: 0 past the end of the row.
double Modulus(ModulusFields fields, std::size_t column) {
    return column < fields.size() ? Val(fields[column]) : 0;
}

void TakeMaterial(const std::string& name, double modulus, double shown) {
    Calc.PipeMaterial = Calc.CaseText[text::PipeMaterial] = Calc.CaseUnitsText[printed::PipeMaterial] = name;
    Calc.PipeModulus = modulus;
    Calc.CaseInput[input::Modulus][column::OfPipe] = shown;
}

}  // namespace

double ModulusLimit(ModulusFields fields) {
    for (std::size_t column = 1; column <= Columns; ++column) {
        if (Modulus(fields, column) == 0) return (static_cast<double>(column) - 2) * 100;
    }
    return HighestTemperature;
}

double ModulusAt(ModulusFields fields, double temperature) {
    if (temperature < 100) return Modulus(fields, 1) * Multiplier;
    const double hundreds = Int(temperature / 100);
    const auto column = static_cast<std::size_t>(hundreds) + 1;
    const double here = Modulus(fields, column);
    const double next = Modulus(fields, column + 1);  // at the last temperature it counts for nothing
    return (here + ((here - next) * (hundreds * 100 - temperature)) / 100) * Multiplier;
}

bool LoadPipeModulus(ModulusFields fields) {
    const std::string name = fields.empty() ? "" : std::string(Trim(fields[0]));
    const double limit = ModulusLimit(fields);
    if (Calc.FlowTemperature < LowestTemperature || Calc.FlowTemperature > limit) {
        Tell("Table has data for temperatures 50 to " + TrimmedStr(limit) + " degF only", name, Icon::Stop);
        TakeMaterial("", 0, 0);
        return false;
    }
    const double modulus = ModulusAt(fields, Calc.FlowTemperature);
    TakeMaterial(name, modulus, CheckFinite(Int(modulus / Calc.UnitFactor[unit::Modulus])));
    return true;
}

}  // namespace quillmetra
