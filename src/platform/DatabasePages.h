// The rows of a database file, page by page and without the engine: of a damaged file that the engine
// refuses, every row that lies on whole pages can still be had.
//
// It knows of the file format: pages of one size, of which the leaves of tables hold rows with the number and
// kinds of their fields, and those of indexes the keys. It trusts nothing that a page says.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Database.h"

namespace quillmetra {

struct PageRow {
    std::size_t Table;  // among those that were asked for
    std::vector<FieldValue> Values;
    std::vector<std::uint32_t> Pages;  // where it lies, counted from 1
};

class DatabasePages {
public:
    // Tables are told apart by the number of their fields. Throws when there is no such file, or no right to
    // read it.
    DatabasePages(const std::filesystem::path& file, std::span<const TableShape> tables);

    // How many pages the file lacks at its end, as one that broke off, by what its first page says.
    std::uint32_t MissingPages() const { return missing_; }

    // Tells each row of the tables, and each key that an index of theirs knows, in the order of the pages. A
    // row of damaged pages that can still be taken apart may hold other values than were written.
    void Read(const std::function<void(PageRow&)>& row, const std::function<void(const std::string&)>& key);

private:
    struct Cell {
        std::string Record;
        std::vector<std::uint32_t> Pages;
    };

    std::size_t RowCount(std::size_t pageSize);
    std::string PageAt(std::uint32_t number);
    void ReadPage(std::uint32_t number, const std::function<void(PageRow&)>& row,
                  const std::function<void(const std::string&)>& key);
    std::optional<Cell> CellAt(std::uint32_t number, std::string_view page, std::size_t place, bool isRow);
    bool AppendOverflow(Cell& cell, std::uint32_t first, std::size_t size);

    std::filesystem::path file_;
    std::ifstream stream_;
    std::span<const TableShape> tables_;
    std::size_t pageSize_ = 0;
    std::uint32_t pageCount_ = 0, missing_ = 0;
};

}  // namespace quillmetra
