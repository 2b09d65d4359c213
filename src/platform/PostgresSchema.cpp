// How a database on a server is made, and brought from an earlier form to the present one; see
// PostgresEngine.h.
#include <algorithm>
#include <functional>

#include "platform/PostgresEngine.h"
#include "platform/ServerEngine.h"

namespace quillmetra {

namespace {

const char* ServerType(FieldType type) {
    switch (type) {
        case FieldType::Integer: return "smallint";
        case FieldType::Single: return "real";
        default: return "text";
    }
}

std::string Literal(std::string_view text) {
    std::string quoted(1, '\'');
    for (const char c : text) quoted.append(c == '\'' ? 2 : 1, c);
    return quoted.append(1, '\'');
}

// Each letter behind a "%" gives way to what is named by it.
std::string Filled(std::string_view pattern, const std::function<std::string(char)>& named) {
    std::string sql;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] != '%') {
            sql += pattern[i];
        } else {
            sql += named(pattern[++i]);
        }
    }
    return sql;
}

// The first writing statement of a transaction gives the database its new number, and tells the others of it
// when the transaction is through.
constexpr std::string_view Functions[] = {
    R"(CREATE OR REPLACE FUNCTION %s.note_author() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    NEW.changed_by := session_user;
    NEW.changed_at := now();
    RETURN NEW;
END $$)",
    R"(CREATE OR REPLACE FUNCTION %s.note_change() RETURNS trigger LANGUAGE plpgsql
SECURITY DEFINER SET search_path = pg_catalog AS $$
DECLARE
    own bigint := pg_current_xact_id()::text::bigint;
BEGIN
    UPDATE %s."Suite" SET change = own WHERE change <> own;
    IF FOUND THEN
        PERFORM pg_notify('quillmetra', %l);
    END IF;
    RETURN NULL;
END $$)"};

constexpr std::string_view SuiteTable =
    "CREATE TABLE IF NOT EXISTS %s.\"Suite\"(application bigint NOT NULL, number integer NOT NULL, change "
    "bigint NOT NULL)";

// Whoever deletes a row takes along what is named of it, so that nobody needs to look for what is left over.
// "%n" is the table of names, "%k" that of their rows, "%t" the name of the tie.
constexpr std::string_view Tie =
    "ALTER TABLE %n ADD CONSTRAINT %t FOREIGN KEY (key_order) REFERENCES %k"
    " ON UPDATE CASCADE ON DELETE CASCADE";

// What brings a database to the form of a number from the one before it.
struct Step {
    int Number;
    std::string_view Statement;
};
constexpr Step Steps[] = {
    // The first form had no tie, and names of rows that were gone could be left over.
    {2, "ALTER TABLE %n DROP CONSTRAINT IF EXISTS %t"},
    {2, "DELETE FROM %n AS n WHERE NOT EXISTS (SELECT FROM %k AS k WHERE k.key_order = n.key_order)"},
    {2, Tie},
};

// That of the tables goes with the fields of a file as well.
int NewestNumber(const DatabaseKind& kind) { return std::max(kind.Schema, std::rbegin(Steps)->Number); }

}  // namespace

std::string OfSchema(std::string_view pattern, const std::string& schema) {
    return Filled(pattern, [&](char name) { return name == 's' ? Quoted(schema) : Literal(schema); });
}

void PostgresEngine::TakeNumber(const PostgresResult& found, const DatabaseKind& kind) {
    if (found.Rows() == 0 || found.Number(0, 0) != kind.Application) throw failure::DatabaseInvalid();
    newest_ = NewestNumber(kind);
    number_ = static_cast<int>(found.Number(0, 1));
    if (number_ > newest_) throw failure::DatabaseNewer();
}

void PostgresEngine::Create(const ServerLink& link, const DatabaseKind& kind,
                            const std::vector<TableShape>& tables) {
    PostgresEngine engine(link);
    if (!engine.Run(OfSchema("SELECT to_regclass(quote_ident(%l) || '.\"Suite\"')", link.Schema))
             .IsNull(0, 0)) {
        engine.CheckKind(kind);
        const auto isThere = [&](const TableShape& table) { return engine.HasTable(table.Name); };
        // Who may not change it can follow the link all the same.
        if (engine.IsOfEarlierForm() || !std::ranges::all_of(tables, isThere)) engine.BringUp(tables);
        return;
    }
    engine.Begin(0);
    try {
        // Who has been given a schema need not have the right to make one.
        const bool isThere =
            !engine.Run(OfSchema("SELECT to_regnamespace(quote_ident(%l))", link.Schema)).IsNull(0, 0);
        if (!isThere) engine.Run(OfSchema("CREATE SCHEMA %s", link.Schema));
        engine.Run(OfSchema(SuiteTable, link.Schema));
        for (const std::string_view function : Functions) engine.Run(OfSchema(function, link.Schema));
        engine.Run("INSERT INTO " + engine.Named("Suite") + " SELECT " + std::to_string(kind.Application) +
                   ", " + std::to_string(NewestNumber(kind)) + ", 0 WHERE NOT EXISTS (SELECT FROM " +
                   engine.Named("Suite") + ")");
        engine.CheckKind(kind);
        engine.AddMissing(tables);
        engine.Commit(0);
    } catch (const RuntimeError&) {
        engine.Undo(0);
        throw;
    }
}

void PostgresEngine::AddMissing(const std::vector<TableShape>& tables) {
    for (const TableShape& table : tables) {
        if (HasTable(table.Name)) continue;
        AddTable(table);
        if (table.KeyFields > 1) Run(OfNames(Tie, table, tables.front()));
    }
}

void PostgresEngine::AddTable(const TableShape& table) {
    if (HasTable(table.Name)) return;
    std::string sql = "CREATE TABLE " + Named(table.Name) + "(key_order bytea NOT NULL";
    std::string key = "key_order";
    for (std::size_t i = 0; i < table.Fields.size(); ++i) {
        const std::string name = Quoted(table.Fields[i].Name);
        sql += ", " + name + " " + ServerType(table.Fields[i].Type);
        if (i < table.KeyFields) sql += " COLLATE \"C\" NOT NULL";
        if (i > 0 && i < table.KeyFields) key += ", " + name;
    }
    Run(sql + ", changed_by text, changed_at timestamptz, PRIMARY KEY(" + key + "))");
    Run("CREATE TRIGGER note_author BEFORE INSERT OR UPDATE ON " + Named(table.Name) +
        " FOR EACH ROW EXECUTE FUNCTION " + Named("note_author") + "()");
    Run("CREATE TRIGGER note_change AFTER INSERT OR UPDATE OR DELETE OR TRUNCATE ON " + Named(table.Name) +
        " FOR EACH STATEMENT EXECUTE FUNCTION " + Named("note_change") + "()");
    tables_.insert(table.Name);
    added_.insert(table.Name);
}

std::string PostgresEngine::OfNames(std::string_view pattern, const TableShape& names,
                                    const TableShape& keys) const {
    return Filled(pattern, [&](char name) {
        if (name == 't') return Quoted(names.Name + "_key_order_fkey");
        return Named(name == 'n' ? names.Name : keys.Name);
    });
}

// Within a transaction. What another has done meanwhile is not done again.
void PostgresEngine::TakeSteps(const std::vector<TableShape>& tables) {
    for (const Step& step : Steps) {
        if (step.Number <= number_) continue;
        for (const TableShape& table : tables) {
            if (table.KeyFields > 1) Run(OfNames(step.Statement, table, tables.front()));
        }
    }
    if (number_ == newest_) return;
    Run("UPDATE " + Named("Suite") + " SET number = " + std::to_string(newest_));
    number_ = newest_;
}

void PostgresEngine::MustBeOwner() {
    const PostgresResult found =
        Run(OfSchema("SELECT pg_get_userbyid(relowner), pg_has_role(relowner, 'USAGE') FROM pg_class"
                     " WHERE oid = to_regclass(quote_ident(%l) || '.\"Suite\"')",
                     link_.Schema));
    if (found.Rows() == 0 || found.At(0, 1) == "t") return;
    throw RuntimeError(
        ServerRefused,
        "The records on the server have the form of an earlier version of the suite\nAsk their "
        "owner, " +
            std::string(found.At(0, 0)) + ", to open them once with this version\n" + link_.Words());
}

void PostgresEngine::BringUp(const std::vector<TableShape>& tables) {
    if (IsOfEarlierForm()) MustBeOwner();
    Begin(0);
    const int former = number_;
    try {
        number_ = static_cast<int>(Run("SELECT number FROM " + Named("Suite")).Number(0, 0));
        AddMissing(tables);
        TakeSteps(tables);
        Commit(0);
    } catch (const RuntimeError&) {
        Undo(0);
        number_ = former;
        throw;
    }
}

void CreateOnServer(const ServerLink& link, const DatabaseKind& kind, const std::vector<TableShape>& tables) {
    PostgresEngine::Create(link, kind, tables);
}

}  // namespace quillmetra
