// The cells of a grid as text for a spreadsheet: heads and rows, tab separated.
#pragma once

#include <string>

#include "platform/Controls.h"

namespace quillmetra {

inline std::string TabSeparated(const Grid& grid) {
    std::string text;
    for (int row = 0; row < grid.RowCount(); ++row) {
        for (int column = 0; column < grid.ColumnCount(); ++column)
            text.append(column > 0 ? "\t" : "").append(grid.Cell(row, column));
        text += '\n';
    }
    return text;
}

}  // namespace quillmetra
