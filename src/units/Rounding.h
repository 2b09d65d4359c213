// Rounding to significant figures, in force wherever the suite stores or shows a calculated number.
#pragma once

namespace quillmetra {

// The value scaled by whole powers of ten to reach 100 (1000, 100000), its half rounded away from zero, and
// scaled back: three (four, six) significant figures. A value that has as many figures before the point
// already keeps them all and loses its decimals: RoundedFour(1234567.8) is 1234568. Zero, a value that is
// not finite, and one of a magnitude below 1e-290 come back as they are.
double RoundedThree(double value);
double RoundedFour(double value);
double RoundedSix(double value);

// The same on the record's Scratch, in and out: kept for their names, since the rest of the suite rounds what
// it has in hand.
void RoundThree();
void RoundFour();
void RoundSix();

}  // namespace quillmetra
