// A list of calculations, as a spreadsheet has it, becomes records of the database: each row is checked and
// calculated by its form first, so that a preview tells what would come of it. Nothing is written before
// Save, and then all or nothing.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "forms/ListRecord.h"
#include "platform/KeyOrder.h"
#include "platform/TemporaryFolder.h"

namespace quillmetra {

struct KeyLess {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return CompareKeys(a, b) < 0; }
};

enum class ImportState : std::uint8_t { New, Changed, Equal, Refused, Told };
const char* Word(ImportState state);

// A row of the list and what comes of it; what is told of a row, or of a whole sheet (row 0), beside it.
struct ImportLine {
    int Row = 0;
    std::string Tag;
    ImportState State = ImportState::New;
    std::string Column, Text;
};

class Import {
public:
    // Of Suite.DatabaseFile. Throws as OpenRecords.
    explicit Import(std::string file);
    ~Import();
    Import(const Import&) = delete;
    Import& operator=(const Import&) = delete;

    // Reads the list. It is asked before each row, and with the number of all; false ends it. False when it
    // was ended so: nothing may be saved then. Throws for a file that cannot be read, or is no such list.
    using GoesOn = std::function<bool(int done, int all)>;
    bool Run(const GoesOn& goesOn);

    const std::vector<ImportLine>& Lines() const { return lines_; }
    int Count(ImportState state) const { return counts_.at(static_cast<std::size_t>(state)); }
    // "3 new, 1 changed, 12 equal, 2 refused"
    std::string Summary() const;

    // Writes what is new and, with replaces, what has changed, in one transaction. Gives the number of
    // records. Throws, with nothing written, when the database has changed since or refuses.
    int Save(bool replaces);

private:
    class Taker;

    void TakeRow(const ListHeads& heads, const SheetRow& row, const std::string& sheet);
    void MakeRecord(const ListHeads& heads, const SheetRow& row, const std::string& tag);
    void Add(ImportLine line);

    const std::string file_;
    const std::unique_ptr<Database> database_;
    const std::int64_t version_;
    RowStore stored_;
    const std::set<std::string, KeyLess> tags_;  // on file
    // What is to be saved waits in a database of its own, whatever the length of the list.
    const TemporaryFolder folder_;
    std::unique_ptr<Database> waiting_;
    std::unique_ptr<Transaction> filling_;
    std::unique_ptr<RowStore> made_;
    ListRecords records_;
    std::vector<ImportLine> lines_;
    std::array<int, 5> counts_{};
    struct Place {
        int Row;
        std::string Sheet;
    };
    std::map<std::string, Place, KeyLess> rowOfTag_;
};

}  // namespace quillmetra
