// The whole record brought from the previous units to those in force, program by program, and rounded, as a
// part of a UnitChange.
//
// Before: RememberUnits ran and the new names, factors and bases stand; ChosenUnitRowNames are the units that
// the values are in. After: the previous units and bases equal those in force, so that a second conversion
// changes nothing, and RoundedFlag tells whether the values were rounded. What is shown is the caller's
// business: no form is refreshed.
#pragma once

#include <functional>

namespace quillmetra {

// An empty temperature is 0 as well, so 0 is not converted unless the caller knows better: where the boxes
// were read, TemperatureBlank tells the typed 0 from the empty box.
enum class ZeroTemperature { Stays, IsConverted };

// Converts the record of CurrentProgram; nothing for a number that is no program.
void ConvertProgramData(ZeroTemperature zero = ZeroTemperature::Stays);

// The same by program: 2, 1, 3, 4, 5. ConvertWaterHammerData sets the unit of force, row 0.
void ConvertGasLineData(ZeroTemperature zero = ZeroTemperature::Stays);
void ConvertLiquidLineData(ZeroTemperature zero = ZeroTemperature::Stays);
void ConvertWaterHammerData(ZeroTemperature zero = ZeroTemperature::Stays);
void ConvertLiquidData(ZeroTemperature zero = ZeroTemperature::Stays);
void ConvertGasData(ZeroTemperature zero = ZeroTemperature::Stays);

// Pressures, densities, results and pipe of CurrentProgram (1, 2, 4, 5): what goes by factors alone. Closes
// the pipe size dialog and the printout form. In program 1 FlowingSG becomes the gravity of the last case.
void ConvertCommonRows();

// The unit of force of the water hammer program in row 0: lb with an inch or foot pipe, else kg.
void SetForceUnit();

// Asks whether to round, unless HideRoundReminder is set or Suite.ConvertedFigures knows the answer, and
// rounds. Cancel rounds too, sets HideRoundReminder and saves it with the standard conditions. RoundedFlag
// becomes "Yes" when rounded and stays as it is on No.
void RoundRecord();

// Rounds inputs, pipe and results to six figures and hammer results to four, without a question.
void RoundNumbers();

// For its life, show is called before the question, so that the form has the numbers that are asked about.
class BeforeRounding {
public:
    explicit BeforeRounding(std::function<void()> show);
    ~BeforeRounding();
    BeforeRounding(const BeforeRounding&) = delete;
    BeforeRounding& operator=(const BeforeRounding&) = delete;

private:
    std::function<void()> outer_;
};

}  // namespace quillmetra
