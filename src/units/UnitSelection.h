// The units of a calculation row by row, as the unit window takes them in hand: which rows a program shows
// and in which order, and the two halves of a flow unit.
#pragma once

#include <span>
#include <string>
#include <utility>

#include "core/Rows.h"

namespace quillmetra {

// The rows of the unit window by position 1 to 12 (element 0 is unused), for liquid programs (1, 3, 4) or
// gas programs (2, 5).
constexpr int UnitPositions = 12;
std::span<const int, UnitPositions + 1> UnitDisplayOrder(bool gas);
// The position that is shown and not taken: a liquid's viscosity is taken at position 12, and a gas keeps the
// unit of its critical temperature.
constexpr int PassedPosition = 6;
// Whether a choice for the row is taken in these programs.
bool IsUnitTaken(bool gas, int row);

// Quantity and time base of a flow unit.
constexpr std::pair<int, int> FlowParts[] = {{unit::GasFlow, unit::GasTimeBase},
                                             {unit::LiquidFlow, unit::LiquidTimeBase}};
// The other part of a flow unit; -1 for a row that is no part of one.
int OtherFlowPart(int row);

// "kg/s" is {"kg", "/s"}: the quantity, and the time base with its slash, empty where there is none.
std::pair<std::string, std::string> SplitFlowUnit(const std::string& unit);

// The list that serves a row of the record in hand, by its basis for the flow rows, and how many of its
// first lines are the suite's own.
int UnitListOf(int row);
int ProtectedLinesOf(int row);

// The factor of a name in a list of the library, by exact text; 0 when no line has it.
double FindUnitFactor(int list, const std::string& name);

// Replaces a line (1 to 10) of a list; a line of the operating pressures (list 5) renews its stem too.
void ReplaceUnitLine(int list, int line, const std::string& name, double factor);

}  // namespace quillmetra
