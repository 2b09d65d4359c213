// What a line of a service should keep to: the reasonable figures of a table, and what of them a line
// exceeds.
#pragma once

#include <string>

#include "lineloss/LineFigures.h"

namespace quillmetra {

// A figure of 0 asks nothing.
struct LineCriterion {
    std::string Service;
    double LargestVelocity = 0;  // ft/s
    double ErosionalC = 0;       // of the velocity C / sqrt(density), ft/s of lb/ft3, as API RP 14E has it
    double LargestLoss = 0;      // psi per 100 ft
    std::string Source;
};

// "velocity above 10 ft/s, loss above 2 psi per 100 ft" in the units of the record in hand; empty when the
// line keeps to all. The velocity is that at the outlet, where it is greatest unless the pressure rises on
// the way. lossPer100: as the record has it.
std::string ExcessOf(const LineCriterion& criterion, const LineFigures& figures, double lossPer100);

// "velocity up to 10 ft/s", in the same units.
std::string LimitsOf(const LineCriterion& criterion);

// " (Crane TP-410)"; empty where the table names no source.
std::string SourceOf(const LineCriterion& criterion);

}  // namespace quillmetra
