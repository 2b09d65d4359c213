// Rows and named values on a server, see Engine.h.
#include <algorithm>
#include <array>
#include <charconv>
#include <deque>

#include "platform/KeyOrder.h"
#include "platform/PostgresEngine.h"
#include "platform/Utf8.h"

namespace quillmetra {

namespace {

// Stands for the byte 0; the others follow.
constexpr char32_t FirstStandIn = 0x10FF00;
constexpr std::string_view StandInStart = "\xF4\x8F";

// How many bytes the character has that begins here; none for a byte that the server would not take.
std::size_t CharacterLength(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    if (byte(0) < 0x80) return byte(0) == 0 ? 0 : 1;
    const std::size_t length = byte(0) < 0xE0 ? 2 : byte(0) < 0xF0 ? 3 : 4;
    if (byte(0) < 0xC2 || byte(0) > 0xF4 || length > text.size() || !IsUtf8(text.substr(0, length))) return 0;
    // Longer than needed, half a pair, beyond the last character, and what stands for a byte.
    if ((byte(0) == 0xE0 && byte(1) < 0xA0) || (byte(0) == 0xED && byte(1) > 0x9F)) return 0;
    if ((byte(0) == 0xF0 && byte(1) < 0x90) || (byte(0) == 0xF4 && byte(1) > 0x8F)) return 0;
    return text.starts_with(StandInStart) && byte(2) >= 0xBC ? 0 : length;
}

FieldValue ValueOf(FieldType type, std::string_view text) {
    if (type == FieldType::Text || type == FieldType::Date) return FromServer(text);
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return NumberRead(type, number);
}

std::string NumberText(FieldType type, double value) {
    std::array<char, 32> text{};
    char* const end = text.data() + text.size();
    // The engine of files keeps no sign of a zero.
    const auto written = type == FieldType::Single
                             ? std::to_chars(text.data(), end, static_cast<float>(value) + 0.0F)
                             : std::to_chars(text.data(), end, value + 0.0);
    return {text.data(), written.ptr};
}

std::string KeyOf(const FieldValue& key) {
    const auto* text = std::get_if<std::string>(&key);
    return text == nullptr ? "" : SortKey(*text);
}

std::string FieldsOf(const TableShape& table) {
    std::string fields;
    for (const FieldShape& field : table.Fields) fields += (fields.empty() ? "" : ", ") + Quoted(field.Name);
    return fields;
}

// All of a key, with who has written it last and when behind the fields.
std::string SelectOfKey(const PostgresEngine& engine, const TableShape& table) {
    return "SELECT " + FieldsOf(table) + ", changed_by, changed_at FROM " + engine.Named(table.Name) +
           " WHERE key_order = $1";
}

class PostgresRows : public EngineRows {
public:
    PostgresRows(PostgresEngine& engine, const TableShape& table)
        : engine_(engine), table_(table), name_(engine.Named(table.Name)) {}

    bool Fetch(RowAt place, std::string_view key, RowData& row) override;
    bool FetchNextOf(std::string_view key, RowData& row, const std::function<bool()>& wanted) override;
    RowChange LastChange(std::string_view key) override;
    std::int64_t Count() override { return engine_.Run("SELECT count(*) FROM " + name_).Number(0, 0); }
    std::vector<std::string> Keys() override;
    void EachRow(std::span<const std::string_view> fields,
                 const std::function<void(Recordset::TextRow)>& act) override;
    void Insert(const RowData& row) override;
    void InsertAll(std::span<const RowData> rows) override;
    void Update(const FieldValue& key, const RowData& row) override;
    void Delete(const FieldValue& key) override;

private:
    // Parameters of a statement that writes, and the texts behind them.
    struct WrittenRows {
        std::deque<std::string> Texts;
        PostgresParameters Parameters;

        void AddKey(const FieldValue& key);
        void Add(const TableShape& table, const RowData& row);
    };

    const std::string& Select(RowAt place);
    void ReadRow(const PostgresResult& result, int number, RowData& row) const;
    std::string InsertOf(std::size_t rows) const;

    PostgresEngine& engine_;
    const TableShape& table_;
    const std::string name_;
    std::array<std::string, 5> selects_;
};

const std::string& PostgresRows::Select(RowAt place) {
    static constexpr const char* ends[] = {"", " ORDER BY key_order LIMIT 1",
                                           " ORDER BY key_order DESC LIMIT 1",
                                           " WHERE key_order > $1 ORDER BY key_order LIMIT 1",
                                           " WHERE key_order < $1 ORDER BY key_order DESC LIMIT 1"};
    const auto number = static_cast<std::size_t>(place);
    std::string& select = selects_[number];
    if (!select.empty()) return select;
    return select = place == RowAt::Key ? SelectOfKey(engine_, table_)
                                        : "SELECT " + FieldsOf(table_) + " FROM " + name_ + ends[number];
}

void PostgresRows::ReadRow(const PostgresResult& result, int number, RowData& row) const {
    row.assign(table_.Fields.size(), {});
    for (std::size_t i = 0; i < row.size(); ++i) {
        const int column = static_cast<int>(i);
        if (!result.IsNull(number, column))
            row[i] = ValueOf(table_.Fields[i].Type, result.At(number, column));
    }
}

bool PostgresRows::Fetch(RowAt place, std::string_view key, RowData& row) {
    const bool isEnd = place == RowAt::First || place == RowAt::Last;
    const PostgresResult found = isEnd ? engine_.Run(Select(place)) : engine_.OfKey(Select(place), key);
    if (found.Rows() == 0) return false;
    ReadRow(found, 0, row);
    return true;
}

bool PostgresRows::FetchNextOf(std::string_view key, RowData& row, const std::function<bool()>& wanted) {
    constexpr int atOnce = 500;
    const std::string sql = "SELECT " + FieldsOf(table_) + " FROM " + name_ +
                            " WHERE key_order > $1 ORDER BY key_order LIMIT " + std::to_string(atOnce);
    std::string order = SortKey(key);
    for (int count = atOnce; count == atOnce; order = KeyOf(row[0])) {
        PostgresParameters parameters;
        parameters.AddBytes(order);
        const PostgresResult found = engine_.Run(sql, parameters);
        count = found.Rows();
        for (int i = 0; i < count; ++i) {
            ReadRow(found, i, row);
            if (wanted()) return true;
        }
        if (count == 0) break;
    }
    return false;
}

RowChange PostgresRows::LastChange(std::string_view key) {
    const PostgresResult found = engine_.OfKey(Select(RowAt::Key), key);
    if (found.Rows() == 0) return {};
    const int behindFields = static_cast<int>(table_.Fields.size());
    return {std::string(found.At(0, behindFields)), std::string(found.At(0, behindFields + 1))};
}

std::vector<std::string> PostgresRows::Keys() {
    const PostgresResult found =
        engine_.Run("SELECT " + Quoted(table_.Fields[0].Name) + " FROM " + name_ + " ORDER BY key_order");
    std::vector<std::string> keys;
    keys.reserve(static_cast<std::size_t>(found.Rows()));
    for (int i = 0; i < found.Rows(); ++i) keys.push_back(FromServer(found.At(i, 0)));
    return keys;
}

void PostgresRows::EachRow(std::span<const std::string_view> fields,
                           const std::function<void(Recordset::TextRow)>& act) {
    std::string sql;
    for (const std::string_view field : fields) sql += (sql.empty() ? "SELECT " : ", ") + Quoted(field);
    const PostgresResult found = engine_.Run(sql + " FROM " + name_);
    std::vector<std::string_view> texts(fields.size());
    std::deque<std::string> changed;
    for (int row = 0; row < found.Rows(); ++row) {
        changed.clear();
        for (std::size_t i = 0; i < texts.size(); ++i) {
            texts[i] = found.At(row, static_cast<int>(i));
            if (texts[i].find(StandInStart) == std::string_view::npos) continue;
            texts[i] = changed.emplace_back(FromServer(texts[i]));
        }
        act(texts);
    }
}

void PostgresRows::WrittenRows::AddKey(const FieldValue& key) {
    Parameters.AddBytes(Texts.emplace_back(KeyOf(key)));
}

void PostgresRows::WrittenRows::Add(const TableShape& table, const RowData& row) {
    AddKey(row[0]);
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (const auto* text = std::get_if<std::string>(&row[i])) {
            Parameters.AddText(Texts.emplace_back(ToServer(*text)));
        } else if (const auto* number = std::get_if<double>(&row[i])) {
            Parameters.AddText(Texts.emplace_back(NumberText(table.Fields[i].Type, *number)));
        } else {
            Parameters.AddNull();
        }
    }
}

std::string PostgresRows::InsertOf(std::size_t rows) const {
    std::string sql = "INSERT INTO " + name_ + "(key_order, " + FieldsOf(table_) + ") VALUES";
    std::size_t mark = 0;
    for (std::size_t row = 0; row < rows; ++row) {
        sql += row == 0 ? "(" : ", (";
        for (std::size_t i = 0; i <= table_.Fields.size(); ++i)
            sql += (i == 0 ? "$" : ", $") + std::to_string(++mark);
        sql += ")";
    }
    return sql;
}

void PostgresRows::InsertAll(std::span<const RowData> rows) {
    constexpr std::size_t mostMarks = 20'000;  // of a statement; the server takes 65,535
    const std::size_t atOnce = std::max<std::size_t>(1, mostMarks / (table_.Fields.size() + 1));
    for (; !rows.empty(); rows = rows.subspan(std::min(atOnce, rows.size()))) {
        const auto these = rows.first(std::min(atOnce, rows.size()));
        WrittenRows written;
        for (const RowData& row : these) written.Add(table_, row);
        engine_.Run(InsertOf(these.size()), written.Parameters);
    }
}

void PostgresRows::Insert(const RowData& row) { InsertAll({&row, 1}); }

void PostgresRows::Update(const FieldValue& key, const RowData& row) {
    std::string sets = "key_order = $1";
    for (std::size_t i = 0; i < row.size(); ++i)
        sets += ", " + Quoted(table_.Fields[i].Name) + " = $" + std::to_string(i + 2);
    WrittenRows written;
    written.Add(table_, row);
    written.AddKey(key);
    engine_.Run("UPDATE " + name_ + " SET " + sets + " WHERE key_order = $" + std::to_string(row.size() + 2),
                written.Parameters);
}

void PostgresRows::Delete(const FieldValue& key) {
    const std::string order = KeyOf(key);
    PostgresParameters parameters;
    parameters.AddBytes(order);
    engine_.Run("DELETE FROM " + name_ + " WHERE key_order = $1", parameters);
}

class PostgresNames : public EngineNames {
public:
    PostgresNames(PostgresEngine& engine, const TableShape& table)
        : engine_(engine), table_(engine.Named(table.Name)), select_(SelectOfKey(engine, table)) {
        key_ = Quoted(table.Fields[0].Name);
        name_ = Quoted(table.Fields[1].Name);
        value_ = Quoted(table.Fields[2].Name);
    }

    std::string Value(std::string_view key, std::string_view name) override {
        const PostgresResult found = engine_.OfKey(select_, key);
        for (int i = 0; i < found.Rows(); ++i) {
            if (FromServer(found.At(i, 1)) == name) return FromServer(found.At(i, 2));
        }
        return "";
    }
    void Put(std::string_view key, std::string_view name, std::string_view value) override {
        Run("INSERT INTO " + table_ + "(key_order, " + name_ + ", " + key_ + ", " + value_ +
                ") VALUES($1, $2, $3, $4) ON CONFLICT (key_order, " + name_ + ") DO UPDATE SET " + key_ +
                " = $3, " + value_ + " = $4",
            key, {name, key, value});
    }
    void Remove(std::string_view key, std::string_view name) override {
        Run("DELETE FROM " + table_ + " WHERE key_order = $1 AND " + name_ + " = $2", key, {name});
    }
    void RemoveAll(std::string_view key) override {
        Run("DELETE FROM " + table_ + " WHERE key_order = $1", key, {});
    }
    void Copy(std::string_view key, std::string_view newKey) override {
        RemoveAll(newKey);
        const std::string order = SortKey(newKey);
        Run("INSERT INTO " + table_ + "(key_order, " + key_ + ", " + name_ + ", " + value_ +
                ") SELECT $2::bytea, $3, " + name_ + ", " + value_ + " FROM " + table_ +
                " WHERE key_order = $1",
            key, {newKey}, &order);
    }
    void RemoveWithout(const TableShape&) override {}  // the server has done it

private:
    void Run(const std::string& sql, std::string_view key, std::initializer_list<std::string_view> more,
             const std::string* bytes = nullptr) {
        const std::string order = SortKey(key);
        std::deque<std::string> texts;
        PostgresParameters parameters;
        parameters.AddBytes(order);
        if (bytes != nullptr) parameters.AddBytes(*bytes);
        for (const std::string_view text : more) parameters.AddText(texts.emplace_back(ToServer(text)));
        engine_.Run(sql, parameters);
    }

    PostgresEngine& engine_;
    const std::string table_, select_;
    std::string key_, name_, value_;
};

}  // namespace

std::string ToServer(std::string_view text) {
    std::string kept;
    kept.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        if (length == 0) AppendUtf8(kept, FirstStandIn + static_cast<unsigned char>(text[0]));
        kept += text.substr(0, length);
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return kept;
}

std::string FromServer(std::string_view text) {
    if (text.find(StandInStart) == std::string_view::npos) return std::string(text);
    std::string read;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string_view rest = text.substr(i);
        const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(rest[k]); };
        if (!rest.starts_with(StandInStart) || rest.size() < 4 || byte(2) < 0xBC) {
            read += text[i];
            continue;
        }
        read += static_cast<char>((byte(2) & 0x03U) << 6U | (byte(3) & 0x3FU));
        i += 3;
    }
    return read;
}

// A failure would be that of a transaction as well. Outside of one it comes again when the row is sought.
void PostgresEngine::ReadAhead(std::string_view key, std::span<const TableShape* const> tables) {
    ForgetAhead();
    if (depth_ > 0) return;
    aheadOf_ = SortKey(key);
    std::vector<std::string> statements;
    for (const TableShape* table : tables) {
        if (HasTable(table->Name)) statements.push_back(SelectOfKey(*this, *table));
    }
    PostgresParameters parameters;
    parameters.AddBytes(aheadOf_);
    try {
        const std::vector<PostgresResult> answers = Ask(statements, parameters);
        for (std::size_t i = 0; i < answers.size(); ++i) ahead_.emplace(statements[i], answers[i]);
    } catch (const RuntimeError&) {
        if (connection_ == nullptr || !connection_->IsAlive()) throw;
    }
}

std::unique_ptr<EngineRows> PostgresEngine::Rows(const TableShape& table) {
    return std::make_unique<PostgresRows>(*this, table);
}

std::unique_ptr<EngineNames> PostgresEngine::Names(const TableShape& table) {
    return std::make_unique<PostgresNames>(*this, table);
}

}  // namespace quillmetra
