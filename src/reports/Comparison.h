// Two calculations side by side: inputs, results and what else names them, the second in the units of the
// first.
#pragma once

#include <string>
#include <vector>

#include "core/CalcRecord.h"
#include "platform/Form.h"

namespace quillmetra {

struct ComparedRow {
    std::string Name, Case, First, Second, Unit;
    // Second less first, and in percent of the first where that has a meaning; of numbers that differ.
    std::string Difference, Percent;
    bool Differs = false;
};

struct Comparison {
    std::string FirstTag, SecondTag;
    std::string Title;         // the calculation of the first
    bool OfOneProgram = true;  // else the rows are those that both programs have
    std::vector<ComparedRow> Rows;
    int Differing() const;
};

// The form is that of the first's program, filled with it: its labels name the rows. Rows that are empty in
// both are left out. Numbers of one unit differ when their texts do, converted ones from half of their fourth
// figure on. Pressures go by their end of the line, whichever was given. The record in hand stays as it is.
Comparison CompareRecords(const CalcRecord& first, const CalcRecord& second, const Form& form);

// One that differs is marked so, for those who tell no colours apart.
inline constexpr const char* DiffersMark = "\u2260";

// The heads, then a line for each row, as they are shown; all of them, or those that differ.
std::vector<std::vector<std::string>> ComparisonCells(const Comparison& comparison, bool onlyDiffering);
// The same for a spreadsheet: columns apart by tabs.
std::string ComparisonTable(const Comparison& comparison, bool onlyDiffering);

}  // namespace quillmetra
