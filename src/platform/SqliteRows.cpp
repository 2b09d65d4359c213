// Rows and named values in an SQLite file, see Engine.h.
#include <array>

#include "platform/SqliteEngine.h"

namespace quillmetra {

namespace {

FieldValue ValueAt(sqlite3_stmt* statement, int column, FieldType type) {
    if (sqlite3_column_type(statement, column) == SQLITE_NULL) return {};
    switch (type) {
        case FieldType::Text:
        case FieldType::Date: return TextAt(statement, column);
        default: return NumberRead(type, sqlite3_column_double(statement, column));
    }
}

void BindText(sqlite3_stmt* statement, int place, std::string_view text) {
    sqlite3_bind_text(statement, place, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
}

class SqliteRows : public EngineRows {
public:
    SqliteRows(SqliteEngine& engine, const TableShape& table) : engine_(engine), table_(table) {}

    bool Fetch(RowAt place, std::string_view key, RowData& row) override;
    bool FetchNextOf(std::string_view key, RowData& row, const std::function<bool()>& wanted) override;
    std::int64_t Count() override;
    std::vector<std::string> Keys() override;
    void EachRow(std::span<const std::string_view> fields,
                 const std::function<void(Recordset::TextRow)>& act) override;
    void Insert(const RowData& row) override { Write(Act::Insert, row, nullptr); }
    void Update(const FieldValue& key, const RowData& row) override { Write(Act::Update, row, &key); }
    void Delete(const FieldValue& key) override { Write(Act::Delete, {}, &key); }

private:
    // The first ones are those of RowAt.
    enum class Act { Seek, First, Last, Next, Previous, Following, Count, Insert, Update, Delete };

    sqlite3_stmt* Statement(Act act);
    std::string SqlOf(Act act) const;
    void ReadRow(sqlite3_stmt* statement, RowData& row) const;
    void Write(Act act, const RowData& row, const FieldValue* key);

    SqliteEngine& engine_;
    const TableShape& table_;
    std::array<sqlite3_stmt*, 10> statements_{};
};

std::string SqliteRows::SqlOf(Act act) const {
    const std::string table = Quoted(table_.Name);
    const std::string key = Quoted(table_.Fields[0].Name);
    std::string fields, marks, sets;
    for (std::size_t i = 0; i < table_.Fields.size(); ++i) {
        for (std::string* list : {&fields, &marks, &sets}) *list += i == 0 ? "" : ", ";
        const std::string name = Quoted(table_.Fields[i].Name);
        fields += name;
        marks += '?';
        sets += name + " = ?";
    }
    const std::string select = "SELECT " + fields + " FROM " + table;
    switch (act) {
        case Act::Seek: return select + " WHERE " + key + " = ?1";
        case Act::First: return select + " ORDER BY " + key + " LIMIT 1";
        case Act::Last: return select + " ORDER BY " + key + " DESC LIMIT 1";
        case Act::Next: return select + " WHERE " + key + " > ?1 ORDER BY " + key + " LIMIT 1";
        case Act::Previous: return select + " WHERE " + key + " < ?1 ORDER BY " + key + " DESC LIMIT 1";
        case Act::Following: return select + " WHERE " + key + " > ?1 ORDER BY " + key;
        case Act::Count: return "SELECT count(*) FROM " + table;
        case Act::Insert: return "INSERT INTO " + table + "(" + fields + ") VALUES(" + marks + ")";
        case Act::Update: return "UPDATE " + table + " SET " + sets + " WHERE " + key + " = ?";
        case Act::Delete: return "DELETE FROM " + table + " WHERE " + key + " = ?1";
    }
    return {};
}

sqlite3_stmt* SqliteRows::Statement(Act act) {
    sqlite3_stmt*& statement = statements_[static_cast<std::size_t>(act)];
    if (statement == nullptr) statement = engine_.Prepared(SqlOf(act));
    return statement;
}

void SqliteRows::ReadRow(sqlite3_stmt* statement, RowData& row) const {
    row.resize(table_.Fields.size());
    for (std::size_t i = 0; i < row.size(); ++i) {
        row[i] = ValueAt(statement, static_cast<int>(i), table_.Fields[i].Type);
    }
}

bool SqliteRows::Fetch(RowAt place, std::string_view key, RowData& row) {
    sqlite3_stmt* const statement = Statement(static_cast<Act>(place));
    const Run run(statement);
    BindText(statement, 1, key);
    const int result = sqlite3_step(statement);
    if (result == SQLITE_DONE) return false;
    if (result != SQLITE_ROW) engine_.Fail();
    ReadRow(statement, row);
    return true;
}

bool SqliteRows::FetchNextOf(std::string_view key, RowData& row, const std::function<bool()>& wanted) {
    sqlite3_stmt* const statement = Statement(Act::Following);
    const Run run(statement);
    BindText(statement, 1, key);
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement)) == SQLITE_ROW) {
        ReadRow(statement, row);
        if (wanted()) return true;
    }
    if (result != SQLITE_DONE) engine_.Fail();
    return false;
}

std::int64_t SqliteRows::Count() {
    sqlite3_stmt* const statement = Statement(Act::Count);
    const Run run(statement);
    if (sqlite3_step(statement) != SQLITE_ROW) engine_.Fail();
    return sqlite3_column_int64(statement, 0);
}

std::vector<std::string> SqliteRows::Keys() {
    const std::string key = Quoted(table_.Fields[0].Name);
    sqlite3_stmt* const statement =
        engine_.Prepared("SELECT " + key + " FROM " + Quoted(table_.Name) + " ORDER BY " + key);
    const Run run(statement);
    std::vector<std::string> keys;
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement)) == SQLITE_ROW) keys.push_back(TextAt(statement, 0));
    if (result != SQLITE_DONE) engine_.Fail();
    return keys;
}

void SqliteRows::EachRow(std::span<const std::string_view> fields,
                         const std::function<void(Recordset::TextRow)>& act) {
    std::string sql;
    for (const std::string_view field : fields) sql += (sql.empty() ? "SELECT " : ", ") + Quoted(field);
    sql += " FROM " + Quoted(table_.Name);
    sqlite3_stmt* const statement = engine_.Prepared(sql);
    const Run run(statement);
    std::vector<std::string_view> texts(fields.size());
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement)) == SQLITE_ROW) {
        for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = ViewAt(statement, static_cast<int>(i));
        act(texts);
    }
    if (result != SQLITE_DONE) engine_.Fail();
}

void SqliteRows::Write(Act act, const RowData& row, const FieldValue* key) {
    sqlite3_stmt* const statement = Statement(act);
    const Run run(statement);
    int place = 0;
    for (const FieldValue& value : row) Bind(statement, ++place, value);
    if (key != nullptr) Bind(statement, ++place, *key);
    if (sqlite3_step(statement) != SQLITE_DONE) engine_.Fail();
}

class SqliteNames : public EngineNames {
public:
    SqliteNames(SqliteEngine& engine, const TableShape& table) : engine_(engine), table_(table) {}

    std::string Value(std::string_view key, std::string_view name) override {
        return Run("SELECT %v FROM %t WHERE %k = ?1 AND %n = ?2", {key, name});
    }
    void Put(std::string_view key, std::string_view name, std::string_view value) override {
        Run("INSERT OR REPLACE INTO %t(%k, %n, %v) VALUES(?1, ?2, ?3)", {key, name, value});
    }
    void Remove(std::string_view key, std::string_view name) override {
        Run("DELETE FROM %t WHERE %k = ?1 AND %n = ?2", {key, name});
    }
    void RemoveAll(std::string_view key) override { Run("DELETE FROM %t WHERE %k = ?1", {key}); }
    void Copy(std::string_view key, std::string_view newKey) override {
        Run("INSERT OR REPLACE INTO %t(%k, %n, %v) SELECT ?2, %n, %v FROM %t WHERE %k = ?1", {key, newKey});
    }
    void RemoveWithout(const TableShape& keys) override {
        Run("DELETE FROM %t WHERE %k NOT IN (SELECT " + Quoted(keys.Fields[0].Name) + " FROM " +
                Quoted(keys.Name) + ")",
            {});
    }

private:
    std::string SqlOf(std::string_view pattern) const;
    // The first column of what the statement gives, if anything.
    std::string Run(std::string_view pattern, std::initializer_list<std::string_view> texts);

    SqliteEngine& engine_;
    const TableShape& table_;
};

// In the statement "%t" is the table, "%k", "%n" and "%v" are its fields.
std::string SqliteNames::SqlOf(std::string_view pattern) const {
    std::string sql;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] != '%') {
            sql += pattern[i];
            continue;
        }
        constexpr std::string_view fields = "knv";
        const char mark = pattern[++i];
        sql += Quoted(mark == 't' ? table_.Name : table_.Fields[fields.find(mark)].Name);
    }
    return sql;
}

std::string SqliteNames::Run(std::string_view pattern, std::initializer_list<std::string_view> texts) {
    sqlite3_stmt* const statement = engine_.Prepared(SqlOf(pattern));
    const quillmetra::Run run(statement);
    int place = 0;
    for (const std::string_view text : texts) BindText(statement, ++place, text);
    const int result = sqlite3_step(statement);
    if (result == SQLITE_ROW) return TextAt(statement, 0);
    if (result != SQLITE_DONE) engine_.Fail();
    return {};
}

}  // namespace

std::unique_ptr<EngineRows> SqliteEngine::Rows(const TableShape& table) {
    return std::make_unique<SqliteRows>(*this, table);
}

std::unique_ptr<EngineNames> SqliteEngine::Names(const TableShape& table) {
    return std::make_unique<SqliteNames>(*this, table);
}

}  // namespace quillmetra
