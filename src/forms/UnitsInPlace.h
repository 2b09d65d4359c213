// The list that a unit button of a calculation form drops: the units of its family, of which one that is
// taken converts the calculation at once, as if it had been picked alone in the unit window and confirmed
// there.
#pragma once

#include "platform/DropButton.h"

namespace quillmetra {

// The row of the unit window that a row of a form belongs to.
int UnitWindowRow(int row);

// The units that the library has for a row: a flow in the present basis with the present time base, and a
// last line that leads to all others.
DropLines UnitsOffered(int row);

// Takes a line of that list and converts the record; false for the line that leads to the unit window.
bool TakeOfferedUnit(int row, int line);

}  // namespace quillmetra
