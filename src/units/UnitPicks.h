// The units that a user picks for a calculation, row by row, and their way into the record. The unit window
// has all rows in hand, a unit button of a form one of them.
#pragma once

#include <array>
#include <string>

#include "core/CalcRecord.h"

namespace quillmetra {

class UnitPicks {
public:
    struct Pick {
        std::string Name;
        double Factor = 0;  // 0 for a unit that the library does not have
        bool Touched = false;
    };
    static constexpr int NoRow = -1;

    // The units in force: a flow in its two parts, the density of a liquid in row 9, whatever row the program
    // keeps it in. To be called when a UnitChange has begun.
    void Begin();

    const Pick& Of(int row) const { return picks_[At(row)]; }
    void Set(int row, const std::string& name, double factor) { picks_[At(row)] = {name, factor, true}; }
    // Whether the program in hand has the row: a liquid with gravity leaves its density out.
    static bool Has(int row);

    // Puts what was touched into the record. A unit that was not keeps the record's factor, which may have
    // more digits than the library's. Gives the row whose unit has no usable factor, with the record as it
    // was; NoRow for none.
    int PutIntoRecord() const;

private:
    int Put() const;
    int PutFlow(int row, int baseRow) const;
    int PutRow(int row) const;

    std::array<Pick, 36> picks_;
};

}  // namespace quillmetra
