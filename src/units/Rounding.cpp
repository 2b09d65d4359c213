// See Rounding.h.
#include "units/Rounding.h"

#include <cmath>
#include <cstddef>

#include "core/CalcRecord.h"

namespace quillmetra {

namespace {

// A power of ten by repeated multiplication is off in its last digit beyond 1e22, and with it the rounding.
#define DECADE(tens)                                                                                        \
    1e##tens##0, 1e##tens##1, 1e##tens##2, 1e##tens##3, 1e##tens##4, 1e##tens##5, 1e##tens##6, 1e##tens##7, \
        1e##tens##8, 1e##tens##9
constexpr double PowersOfTen[] = {DECADE(0),  DECADE(1),  DECADE(2),  DECADE(3),  DECADE(4),  DECADE(5),
                                  DECADE(6),  DECADE(7),  DECADE(8),  DECADE(9),  DECADE(10), DECADE(11),
                                  DECADE(12), DECADE(13), DECADE(14), DECADE(15), DECADE(16), DECADE(17),
                                  DECADE(18), DECADE(19), DECADE(20), DECADE(21), DECADE(22), DECADE(23),
                                  DECADE(24), DECADE(25), DECADE(26), DECADE(27), DECADE(28), DECADE(29)};
#undef DECADE

// The smallest magnitude that the table lifts to any of the limits.
constexpr double SmallestRounded = 1e-290;

double Rounded(double value, double limit) {
    const double magnitude = std::fabs(value);
    if (!std::isfinite(value) || magnitude < SmallestRounded) return value;
    std::size_t power = 0;
    double scaled = magnitude;
    while (scaled < limit) scaled = magnitude * PowersOfTen[++power];
    return std::copysign(std::floor(scaled + 0.5) / PowersOfTen[power], value);
}

}  // namespace

double RoundedThree(double value) { return Rounded(value, 100); }
double RoundedFour(double value) { return Rounded(value, 1000); }
double RoundedSix(double value) { return Rounded(value, 100000); }

void RoundThree() { Calc.Scratch = RoundedThree(Calc.Scratch); }
void RoundFour() { Calc.Scratch = RoundedFour(Calc.Scratch); }
void RoundSix() { Calc.Scratch = RoundedSix(Calc.Scratch); }

}  // namespace quillmetra
