// See ListTables.h.
#include "forms/ListTables.h"

#include <numeric>
#include <utility>
#include <vector>

#include "fluids/FluidTables.h"
#include "platform/NumberText.h"
#include "tables/TableFiles.h"

namespace quillmetra {

namespace {

constexpr int LiquidColumns[] = {1, 2, 3, 4, 11, 5, 10, 6, 7, 8, 9, 14, 15, 16, 12, 13, 17};
constexpr int GasColumns[] = {1, 2, 5, 4, 6, 11, 3, 7, 8, 9, 10, 12, 13, 14, 15};

constexpr int KindColumn = 2;

// Names, kinds and schedules are words, all else is numbers.
bool IsNumber(const TableDescription& table, int column) {
    if (&table == &table::Pipe) return column != 2;
    return column > (&table == &table::Modulus ? 1 : KindColumn);
}

std::string HeadOf(const TableDescription& table, int column, const std::string& lengthUnit) {
    constexpr std::string_view inches = ", in";
    std::string head(TableHead(table, column));
    if (head.ends_with(inches)) head.replace(head.size() - inches.size(), inches.size(), ", " + lengthUnit);
    return head;
}

}  // namespace

void ShowAsTable(ListBox& list, const TableDescription& table, std::span<const int> columns,
                 const std::string& lengthUnit) {
    std::vector<int> shown(columns.begin(), columns.end());
    if (shown.empty()) {
        shown.resize(table.Columns.size());
        std::iota(shown.begin(), shown.end(), 1);
    }
    list.Columns.clear();
    for (const int column : shown) {
        list.Columns.push_back({HeadOf(table, column, lengthUnit), IsNumber(table, column)});
    }
    list.CellsOf = [&table, shown](const std::string& row) {
        const TableFields fields = SplitFields(table, row);
        std::vector<std::string> cells;
        cells.reserve(shown.size());
        for (const int column : shown) cells.emplace_back(Trim(fields[static_cast<std::size_t>(column - 1)]));
        return cells;
    };
}

void ShowAsFluids(ListBox& list, bool isGas) {
    isGas ? ShowAsTable(list, table::Gas, GasColumns) : ShowAsTable(list, table::Liquid, LiquidColumns);
    list.CellsOf = [cellsOf = std::move(list.CellsOf)](const std::string& row) {
        std::vector<std::string> cells = cellsOf(row);
        std::string& kind = cells[KindColumn - 1];
        if (!kind.empty()) kind = FluidKindOf(FluidClassOf(kind));
        return cells;
    };
}

}  // namespace quillmetra
