// The heads of a list that is imported: which column of a record each of its columns is, and in which unit.
#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "platform/SheetReader.h"
#include "records/RecordColumns.h"

namespace quillmetra {

class ListHeads {
public:
    // From the first row of a sheet.
    ListHeads(const SheetRow& heads, bool decimalCommas);

    bool HasDecimalCommas() const { return decimalCommas_; }

    bool HasTag() const { return tag_ >= 0; }
    int TagColumn() const { return tag_; }
    // In words, of columns that are left alone: no record has them, or they stand there twice.
    const std::vector<std::string>& LeftAlone() const { return leftAlone_; }

    struct Head {
        int Column = 0;  // of the list
        const RecordColumn* Of = nullptr;
    };
    // What a program knows of the list.
    const std::vector<Head>& Of(int program) const { return heads_.at(static_cast<std::size_t>(program)); }
    // As the list has it.
    const std::string& NameOf(int column) const { return names_.at(column); }
    // A cell by the name of its column; null when the list has no such column or its cell is empty.
    const SheetCell* Find(const SheetRow& row, const char* name) const;

    // Takes a row as that of the units if it is one. Throws when one quantity has two units.
    bool TakeUnits(const SheetRow& row);
    // By the field of the record's units that names them: "Flow Units" is "gpm".
    const std::map<std::string, std::string>& Units(int program) const {
        return units_.at(static_cast<std::size_t>(program));
    }

    // Whether the gravities of a liquid are gravities or densities, by their unit; empty where it says
    // nothing.
    const std::string& DensityMode(int program) const {
        return densityModes_.at(static_cast<std::size_t>(program));
    }

private:
    void AddProgram(int program);
    std::string WhyTwice(int column) const;
    bool LooksLikeUnits(const SheetRow& row) const;
    bool HasUnit(int column) const;
    void TakeUnit(int program, const RecordColumn& column, int row, const std::string& unit);

    std::map<int, std::string> names_;
    std::array<std::vector<Head>, 6> heads_;
    std::array<std::map<std::string, std::string>, 6> units_;
    std::array<std::string, 6> densityModes_;
    std::vector<std::string> leftAlone_;
    bool decimalCommas_ = false;
    int tag_ = -1;
};

}  // namespace quillmetra
