// See Salvage.h.
#include "records/Salvage.h"

#include <algorithm>
#include <map>
#include <memory>
#include <set>

#include "platform/DatabasePages.h"
#include "platform/KeyOrder.h"
#include "records/OptionCodes.h"
#include "records/RecordExtras.h"
#include "records/RecordTables.h"

namespace quillmetra {

namespace {

// The engine's own list of tables, by the fields that it has.
const TableShape& SchemaShape() {
    static const TableShape shape = {"sqlite_master",
                                     {{"type", FieldType::Text},
                                      {"name", FieldType::Text},
                                      {"tbl_name", FieldType::Text},
                                      {"rootpage", FieldType::Integer},
                                      {"sql", FieldType::Text}}};
    return shape;
}

std::vector<TableShape> AllShapes() {
    std::vector<TableShape> shapes;
    for (const RecordTable* table : RecordTables()) shapes.push_back(table->Shape);
    shapes.push_back(SchemaShape());
    shapes.push_back(ExtrasTable());
    return shapes;
}

std::string TextOf(const FieldValue& value) {
    const auto* text = std::get_if<std::string>(&value);
    return text == nullptr ? "" : *text;
}

// What is known of a record: which tables gave a row of it, and what its head says.
struct Trace {
    std::set<const RecordTable*> Found;
    const RecordTable* Program = nullptr;
    bool IsMixture = false;

    bool Has(const RecordTable& table) const { return Found.contains(&table); }
    bool HasProgramRow() const {
        return Has(PressureDropTable()) || Has(WaterhammerTable()) || Has(FluidDataTable());
    }
};

struct InKeyOrder {
    bool operator()(const std::string& a, const std::string& b) const { return CompareKeys(a, b) < 0; }
};

class Salvager {
public:
    explicit Salvager(Database& target) {
        for (const RecordTable* table : RecordTables()) {
            rows_.push_back(std::make_unique<Recordset>(target, table->Shape, Recordset::Unplaced()));
            rows_.back()->Index(TagIndex);
        }
    }

    void TakeRow(const PageRow& row) {
        if (row.Table == rows_.size()) return TakeSchema(row.Values);
        if (row.Table > rows_.size()) return extras_.push_back(row.Values);
        const RecordTable& table = *RecordTables()[row.Table];
        const std::string tag = TextOf(row.Values[0]);
        Trace& trace = traces_[tag];
        if (trace.Has(table) || !Copied(*rows_[row.Table], row.Values)) return;
        trace.Found.insert(&table);
        if (&table == &HeadTable()) TakeHead(trace, *rows_[row.Table], tag);
    }

    void TakeKey(const std::string& tag) { traces_[tag]; }

    // Once all heads are known: an extra without one is of no record.
    void PutExtras(Database& target) const {
        NamedValues extras(target, ExtrasTable());
        for (const std::vector<FieldValue>& each : extras_) {
            const auto trace = traces_.find(TextOf(each[0]));
            if (trace == traces_.end() || !trace->second.Has(HeadTable())) continue;
            extras.MakeTable();
            extras.Set(trace->first, TextOf(each[1]), TextOf(each[2]));
        }
    }

    SalvageReport Report() const {
        SalvageReport report{.IsOurs = IsOurs()};
        for (const auto& [tag, trace] : traces_) {
            report.Records += trace.Has(HeadTable()) ? 1 : 0;
            report.Rows += trace.Found.size();
            for (std::string& row : Missing(trace)) report.Lost.push_back(row.append(": ").append(tag));
        }
        return report;
    }

private:
    // False for values that no field can hold: the row is damaged.
    static bool Copied(Recordset& target, const std::vector<FieldValue>& values) {
        target.AddNew();
        try {
            target.SetAll(values);
        } catch (const RuntimeError&) {
            return false;
        }
        target.Update();
        return true;
    }

    static void TakeHead(Trace& trace, Recordset& heads, const std::string& tag) {
        heads.Seek(tag);
        const auto stored = static_cast<int>(heads.Number("Program Number"));
        trace.Program = ProgramTable(ProgramOf(stored));
        trace.IsMixture = HasCode(heads.Text("Other Calcs"), code::Mixture);
    }

    void TakeSchema(const std::vector<FieldValue>& values) {
        if (TextOf(values[0]) == "table") schema_[TextOf(values[1])] = TextOf(values[4]);
    }

    bool IsOurs() const {
        std::size_t known = 0;
        for (const RecordTable* table : RecordTables()) {
            const auto found = schema_.find(table->Shape.Name);
            if (found == schema_.end()) continue;
            if (found->second != Database::SchemaText(table->Shape)) return false;
            ++known;
        }
        const auto extras = schema_.find(ExtrasTable().Name);
        if (extras != schema_.end() && extras->second != Database::SchemaText(ExtrasTable())) return false;
        return known == TableCount() && known + 1 >= RecordTables().size();
    }

    // Without the extras, which not every database has.
    std::size_t TableCount() const { return schema_.size() - schema_.count(ExtrasTable().Name); }

    // A database that was made elsewhere may have no table of settings: it knows all the others.
    bool HasSettings() const {
        return TableCount() + 1 != RecordTables().size() || schema_.contains(SettingsTable().Shape.Name);
    }

    std::vector<std::string> Missing(const Trace& trace) const {
        std::vector<std::string> names;
        const auto expect = [&](const RecordTable& table) {
            if (!trace.Has(table)) names.push_back(table.Shape.Name);
        };
        expect(HeadTable());
        expect(UnitsTable());
        if (trace.Program != nullptr) expect(*trace.Program);
        if (trace.Program == nullptr && !trace.HasProgramRow()) names.emplace_back("Calculation");
        if (trace.IsMixture) expect(MixtureTable());
        if (HasSettings()) expect(SettingsTable());
        return names;
    }

    std::vector<std::unique_ptr<Recordset>> rows_;
    std::map<std::string, Trace, InKeyOrder> traces_;
    std::map<std::string, std::string> schema_;
    std::vector<std::vector<FieldValue>> extras_;
};

}  // namespace

SalvageReport Salvage(const std::filesystem::path& damaged, Database& target) {
    const std::vector<TableShape> shapes = AllShapes();
    DatabasePages pages(damaged, shapes);
    Salvager salvager(target);
    Transaction all(target);
    pages.Read([&](const PageRow& row) { salvager.TakeRow(row); },
               [&](const std::string& key) { salvager.TakeKey(key); });
    salvager.PutExtras(target);
    all.Commit();
    SalvageReport report = salvager.Report();
    report.MissingPages = pages.MissingPages();
    return report;
}

}  // namespace quillmetra
