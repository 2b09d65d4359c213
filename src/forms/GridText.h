// The texts of a grid: its cells for a spreadsheet, its heads for the eye.
#pragma once

#include <string>
#include <vector>

#include "platform/Controls.h"

namespace quillmetra {

// Heads and rows, tab separated.
inline std::string TabSeparated(const Grid& grid) {
    std::string text;
    for (int row = 0; row < grid.RowCount(); ++row) {
        for (int column = 0; column < grid.ColumnCount(); ++column)
            text.append(column > 0 ? "\t" : "").append(grid.Cell(row, column));
        text += '\n';
    }
    return text;
}

// The unit behind the last comma of a head stands in a line of its own, so that columns are narrow.
inline std::vector<Grid::Head> WithUnitsBelow(const Grid::Cells& heads) {
    std::vector<Grid::Head> split;
    for (const std::string& head : heads) {
        const auto comma = head.rfind(", ");
        const bool hasUnit = comma != std::string::npos;
        split.push_back({head.substr(0, comma), hasUnit ? head.substr(comma + 2) : "", ""});
    }
    return split;
}

}  // namespace quillmetra
