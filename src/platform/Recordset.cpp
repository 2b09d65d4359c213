// The rows of a table, see Database.h.
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/Database.h"
#include "platform/Engine.h"
#include "platform/NumberText.h"
#include "platform/Utf8.h"

namespace quillmetra {

namespace {

RuntimeError TooLong(const FieldShape& field) {
    return {failure::ValueRefused,
            "The field '" + field.Name + "' holds at most " + std::to_string(field.Size) + " characters"};
}

RuntimeError OutOfRange(const FieldShape& field) {
    return {failure::ValueRefused,
            field.Type == FieldType::Integer
                ? "The field '" + field.Name + "' holds whole numbers from -32768 to 32767"
                : "The field '" + field.Name + "' holds no number above 3.402823E+38"};
}

FieldValue ValueAt(sqlite3_stmt* statement, int column, FieldType type) {
    if (sqlite3_column_type(statement, column) == SQLITE_NULL) return {};
    switch (type) {
        case FieldType::Text:
        case FieldType::Date: return TextAt(statement, column);
        default: return NumberRead(type, sqlite3_column_double(statement, column));
    }
}

}  // namespace

double NumberRead(FieldType type, double stored) {
    if (type != FieldType::Integer) return SingleRead(stored);
    return stored >= -32768 && stored < 32768 ? std::trunc(stored) : 0;
}

double SingleRead(double stored) {
    if (!std::isfinite(stored) || std::abs(stored) > std::numeric_limits<float>::max()) return 0;
    std::array<char, 32> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), static_cast<float>(stored));
    return Val({text.data(), static_cast<std::size_t>(written.ptr - text.data())});
}

FieldValue FittedValue(const FieldShape& field, FieldValue value) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        const bool isTooLong =
            field.Type == FieldType::Text && CharacterCount(*text) > static_cast<std::size_t>(field.Size);
        if (isTooLong && AnyLength::Count == 0) throw TooLong(field);
        return value;
    }
    const auto* number = std::get_if<double>(&value);
    if (number == nullptr || !std::isfinite(*number)) return {};
    if (field.Type == FieldType::Integer) {
        const double whole = std::nearbyint(*number);
        if (whole < -32768 || whole > 32767) throw OutOfRange(field);
        return whole;
    }
    const auto single = static_cast<float>(*number);
    if (std::isinf(single)) throw OutOfRange(field);
    return std::fpclassify(single) == FP_SUBNORMAL ? 0.0 : static_cast<double>(single);
}

Recordset::Recordset(Database& database, const TableShape& table) : database_(database), table_(table) {
    place_ = Fetch(Act::First) ? Place::Row : Place::Empty;
}

Recordset::Recordset(Database& database, const TableShape& table, Unplaced)
    : database_(database), table_(table), place_(Place::Nowhere) {}

std::string Recordset::SqlOf(Act act) const {
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
        case Act::Following: return select + " WHERE " + key + " > ?1 ORDER BY " + key;
        case Act::Previous: return select + " WHERE " + key + " < ?1 ORDER BY " + key + " DESC LIMIT 1";
        case Act::Count: return "SELECT count(*) FROM " + table;
        case Act::Insert: return "INSERT INTO " + table + "(" + fields + ") VALUES(" + marks + ")";
        case Act::Update: return "UPDATE " + table + " SET " + sets + " WHERE " + key + " = ?";
        case Act::Delete: return "DELETE FROM " + table + " WHERE " + key + " = ?1";
    }
    return {};
}

sqlite3_stmt* Recordset::Statement(Act act) {
    sqlite3_stmt*& statement = statements_[static_cast<std::size_t>(act)];
    if (statement == nullptr) statement = database_.Prepared(SqlOf(act));
    return statement;
}

void Recordset::ReadRow(sqlite3_stmt* statement) {
    row_.resize(table_.Fields.size());
    for (std::size_t i = 0; i < row_.size(); ++i) {
        row_[i] = ValueAt(statement, static_cast<int>(i), table_.Fields[i].Type);
    }
}

bool Recordset::Fetch(Act act, std::string_view key) {
    sqlite3_stmt* const statement = Statement(act);
    const Run run(statement);
    sqlite3_bind_text(statement, 1, key.data(), static_cast<int>(key.size()), SQLITE_STATIC);
    const int result = sqlite3_step(statement);
    if (result == SQLITE_DONE) return false;
    if (result != SQLITE_ROW) database_.Fail();
    ReadRow(statement);
    return true;
}

void Recordset::Index(std::string_view name) {
    if (name != TagIndex) throw failure::NoSuchField(name);
    indexed_ = true;
}

bool Recordset::Seek(std::string_view key) {
    if (!indexed_) throw failure::NoIndex();
    buffered_ = Buffer::None;
    noMatch_ = !Fetch(Act::Seek, key);
    place_ = noMatch_ ? Place::Nowhere : Place::Row;
    return !noMatch_;
}

void Recordset::MoveFirst() {
    buffered_ = Buffer::None;
    place_ = Fetch(Act::First) ? Place::Row : Place::Empty;
    if (place_ == Place::Empty) throw failure::NoCurrentRecord();
}

void Recordset::MoveLast() {
    buffered_ = Buffer::None;
    place_ = Fetch(Act::Last) ? Place::Row : Place::Empty;
    if (place_ == Place::Empty) throw failure::NoCurrentRecord();
}

void Recordset::MoveNext() {
    if (place_ == Place::Start) return MoveFirst();
    Step(Act::Next, Place::End);
}

void Recordset::MovePrevious() {
    if (place_ == Place::End) return MoveLast();
    Step(Act::Previous, Place::Start);
}

void Recordset::MoveToNext(const std::function<bool(const Recordset&)>& wanted) {
    buffered_ = Buffer::None;
    if (place_ != Place::Row && place_ != Place::Deleted) throw failure::NoCurrentRecord();
    const std::string key = Key();
    sqlite3_stmt* const statement = Statement(Act::Following);
    const Run run(statement);
    sqlite3_bind_text(statement, 1, key.data(), static_cast<int>(key.size()), SQLITE_STATIC);
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement)) == SQLITE_ROW) {
        ReadRow(statement);
        place_ = Place::Row;
        if (wanted(*this)) return;
    }
    if (result != SQLITE_DONE) database_.Fail();
    place_ = Place::End;
}

void Recordset::Step(Act act, Place past) {
    buffered_ = Buffer::None;
    if (place_ != Place::Row && place_ != Place::Deleted) throw failure::NoCurrentRecord();
    place_ = Fetch(act, Key()) ? Place::Row : past;
}

std::int64_t Recordset::RecordCount() {
    sqlite3_stmt* const statement = Statement(Act::Count);
    const Run run(statement);
    if (sqlite3_step(statement) != SQLITE_ROW) database_.Fail();
    return sqlite3_column_int64(statement, 0);
}

std::vector<std::string> Recordset::Keys() {
    const std::string key = Quoted(table_.Fields[0].Name);
    sqlite3_stmt* const statement =
        database_.Prepared("SELECT " + key + " FROM " + Quoted(table_.Name) + " ORDER BY " + key);
    const Run run(statement);
    std::vector<std::string> keys;
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement)) == SQLITE_ROW) keys.push_back(TextAt(statement, 0));
    if (result != SQLITE_DONE) database_.Fail();
    return keys;
}

void Recordset::EachRow(std::span<const std::string_view> fields, const std::function<void(TextRow)>& act) {
    std::string sql;
    for (const std::string_view field : fields) sql += (sql.empty() ? "SELECT " : ", ") + Quoted(field);
    sql += " FROM " + Quoted(table_.Name);
    sqlite3_stmt* const statement = database_.Prepared(sql);
    const Run run(statement);
    std::vector<std::string_view> texts(fields.size());
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement)) == SQLITE_ROW) {
        for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = ViewAt(statement, static_cast<int>(i));
        act(texts);
    }
    if (result != SQLITE_DONE) database_.Fail();
}

std::size_t Recordset::FieldNumber(std::string_view name) const {
    for (std::size_t i = 0; i < table_.Fields.size(); ++i) {
        if (table_.Fields[i].Name == name) return i;
    }
    throw failure::NoSuchField(name);
}

std::string Recordset::Key() const {
    const auto* key = std::get_if<std::string>(&row_[0]);
    return key == nullptr ? "" : *key;
}

const FieldValue& Recordset::Value(std::size_t field) const {
    if (place_ != Place::Row) throw failure::NoCurrentRecord();
    return row_.at(field);
}

const FieldValue& Recordset::Value(std::string_view field) const { return Value(FieldNumber(field)); }

std::string Recordset::Text(std::string_view field) const {
    const auto* text = std::get_if<std::string>(&Value(field));
    return text == nullptr ? "" : *text;
}

double Recordset::Number(std::string_view field) const {
    const auto* number = std::get_if<double>(&Value(field));
    return number == nullptr ? 0 : *number;
}

void Recordset::AddNew() {
    buffer_.assign(table_.Fields.size(), {});
    buffered_ = Buffer::New;
}

void Recordset::Edit() {
    if (place_ != Place::Row) throw failure::NoCurrentRecord();
    buffer_ = row_;
    buffered_ = Buffer::Edited;
}

void Recordset::Set(std::size_t field, FieldValue value) {
    if (buffered_ == Buffer::None) throw failure::NothingToUpdate();
    buffer_.at(field) = FittedValue(table_.Fields.at(field), std::move(value));
}

void Recordset::Set(std::string_view field, FieldValue value) { Set(FieldNumber(field), std::move(value)); }

void Recordset::SetAll(const std::vector<FieldValue>& values) {
    for (std::size_t i = 0; i < table_.Fields.size(); ++i) Set(i, values.at(i));
}

void Recordset::Update() {
    if (buffered_ == Buffer::None) throw failure::NothingToUpdate();
    const bool isNew = buffered_ == Buffer::New;
    sqlite3_stmt* const statement = Statement(isNew ? Act::Insert : Act::Update);
    const Run run(statement);
    for (std::size_t i = 0; i < buffer_.size(); ++i) {
        // A single that was read is a short decimal: it goes back to its 32 bits.
        const auto* number = std::get_if<double>(&buffer_[i]);
        if (number != nullptr && table_.Fields[i].Type == FieldType::Single) {
            buffer_[i] = static_cast<double>(static_cast<float>(*number));
        }
        Bind(statement, static_cast<int>(i) + 1, buffer_[i]);
    }
    if (!isNew) Bind(statement, static_cast<int>(buffer_.size()) + 1, row_[0]);
    if (sqlite3_step(statement) != SQLITE_DONE) database_.Fail();
    buffered_ = Buffer::None;
    if (!isNew) Fetch(Act::Seek, std::get<std::string>(buffer_[0]));
}

void Recordset::Delete() {
    if (place_ != Place::Row) throw failure::NoCurrentRecord();
    sqlite3_stmt* const statement = Statement(Act::Delete);
    const Run run(statement);
    Bind(statement, 1, row_[0]);
    if (sqlite3_step(statement) != SQLITE_DONE) database_.Fail();
    place_ = Place::Deleted;
}

}  // namespace quillmetra
