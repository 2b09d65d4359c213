// A database of 100,000 records in a folder that lasts as long as the process, and an empty one for rows in
// bulk.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "platform/TemporaryFolder.h"
#include "platform/TextFiles.h"
#include "records/RecordFiles.h"
#include "records/RecordTables.h"
#include "records/RecordTransfer.h"
#include "script/ScriptHost.h"
#include "tests/OnServer.h"
#include "units/NamedUnitSets.h"

namespace quillmetra {

constexpr int ManyRecords = 100000;

// Tags in no order, as they come about in an office.
inline std::string TagOf(int i) { return "FT-" + std::to_string(i * 7919LL % 1000003); }

inline void TakeRecord(int i) {
    Calc = CalcRecord();
    Calc.CurrentProgram = 1;
    Calc.FluidType = words::Liquid;
    ApplyNamedUnitSet(1);
    Calc.Tag = TagOf(i);
    Calc.FluidName = "Water";
    Calc.ProgramTitle = FindProgram(1)->Title;
    Calc.CaseText[8] = "by";
    Calc.CaseText[10] = "11/24/2026";
    Calc.CaseText[11] = i == ManyRecords / 2 ? "11/25/2026" : "11/20/2026";
    Calc.OtherCalcs = "PDXXXXXX";
    Calc.CalcOption = "SGGANXXX";
    for (std::size_t row = 0; row < 13; ++row) Calc.CaseInput[row].fill(static_cast<double>(i));
}

inline void AddRow(Recordset& rows, const RowValues& values) {
    rows.AddNew();
    for (std::size_t f = 0; f < values.size(); ++f) {
        if (values[f]) rows.Set(f, *values[f]);
    }
    rows.Update();
}

// The rows of all records in a table, a thousand at a time, which a server takes much quicker.
inline void AddManyRows(Database& database, const RecordTable& table) {
    constexpr int atOnce = 1000;
    Recordset rows(database, table.Shape);
    for (int first = 0; first < ManyRecords; first += atOnce) {
        std::vector<std::vector<FieldValue>> some(atOnce);
        for (int i = 0; i < atOnce; ++i) {
            TakeRecord(first + i);
            for (const std::optional<FieldValue>& value : RowOfRecord(table))
                some[static_cast<std::size_t>(i)].push_back(value.value_or(FieldValue()));
        }
        rows.AddAll(std::move(some));
    }
}

// Every head with its rows of units and of the line; the name of the file.
inline const std::string& ManyRecordsFile() {
    static const TemporaryFolder folder;
    static std::ostringstream out;
    static ScriptHost host(out);
    static const std::string file = [] {
        InstallHost(&host);
        Suite = SuiteState();
        Suite.DatabasePath = SuitePath(folder.Path());
        Suite.DatabaseFile = DatabaseFileOf(Suite.DatabasePath);
        OnServer() ? MakeServerDatabase(Suite.DatabaseFile, NewServerLink())
                   : MakeEmptyDatabase(Suite.DatabaseFile);
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        Transaction all(*database);
        for (const RecordTable* table :
             {&HeadTable(), &UnitsTable(), &PressureDropTable(), &SettingsTable()}) {
            AddManyRows(*database, *table);
        }
        all.Commit();
        return Suite.DatabaseFile;
    }();
    Suite.DatabaseFile = file;
    return file;
}

// A new database with one table, that of the heads.
class EmptyHeads {
public:
    EmptyHeads() { Database::Create(File(), Kind, {HeadTable().Shape}); }
    std::filesystem::path File() const { return folder_.Path() / "heads.db"; }
    static constexpr DatabaseKind Kind = {.Application = 1, .Schema = 1};

private:
    TemporaryFolder folder_;
};

}  // namespace quillmetra
