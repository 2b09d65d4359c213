// A table of liquids of any length in the tables' folder, for what is measured on it.
#pragma once

#include "core/Suite.h"
#include "tables/TableSheet.h"

namespace quillmetra {

inline std::vector<TableFields> ManyLiquids(int rows) {
    std::vector<TableFields> table{{"Name", "Tp", "MW"}};
    for (int i = 1; i < rows; ++i) {
        TableFields fields;
        for (std::size_t k = 0; k < table::Liquid.Columns.size(); ++k)
            fields[k] = std::to_string(1000 + i) + ".25";
        fields[0] = "Liquid " + std::to_string(i);
        table.push_back(fields);
    }
    return table;
}

}  // namespace quillmetra
