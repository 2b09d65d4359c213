// The record's units in force and the previous ones. Units under which values stand are changed by a
// UnitChange; who brings units together with their values (a record that is loaded, a new one) calls
// RememberUnits.
#pragma once

namespace quillmetra {

// A factor that values can be multiplied and divided by: above zero, finite, and not so small that its
// reciprocal overflows.
bool IsUsableFactor(double factor);

// Replaces factors of the record that are not usable by 1, in the rows in force and the previous ones. To be
// called after whatever brings factors in: a set, a load, a file, a closed panel.
void MendUnitFactors();

// Copies names and factors in force to the previous ones, all rows, and both flow bases.
void RememberUnits();

// Takes the units of temperature, critical temperature and viscosity in force as those of the values.
void RenewChosenUnitNames();

}  // namespace quillmetra
