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

Recordset::Recordset(Database& database, const TableShape& table) : Recordset(database, table, Unplaced()) {
    place_ = rows_->Fetch(RowAt::First, {}, row_) ? Place::Row : Place::Empty;
}

Recordset::Recordset(Database& database, const TableShape& table, Unplaced)
    : table_(table), rows_(database.engine_->Rows(table)), place_(Place::Nowhere) {}

Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&& other) noexcept = default;

void Recordset::Index(std::string_view name) {
    if (name != TagIndex) throw failure::NoSuchField(name);
    indexed_ = true;
}

bool Recordset::Seek(std::string_view key) {
    if (!indexed_) throw failure::NoIndex();
    buffered_ = Buffer::None;
    noMatch_ = !rows_->Fetch(RowAt::Key, key, row_);
    place_ = noMatch_ ? Place::Nowhere : Place::Row;
    return !noMatch_;
}

void Recordset::MoveFirst() {
    buffered_ = Buffer::None;
    place_ = rows_->Fetch(RowAt::First, {}, row_) ? Place::Row : Place::Empty;
    if (place_ == Place::Empty) throw failure::NoCurrentRecord();
}

void Recordset::MoveLast() {
    buffered_ = Buffer::None;
    place_ = rows_->Fetch(RowAt::Last, {}, row_) ? Place::Row : Place::Empty;
    if (place_ == Place::Empty) throw failure::NoCurrentRecord();
}

void Recordset::MoveNext() {
    if (place_ == Place::Start) return MoveFirst();
    place_ = rows_->Fetch(RowAt::Next, LeaveRow(), row_) ? Place::Row : Place::End;
}

void Recordset::MovePrevious() {
    if (place_ == Place::End) return MoveLast();
    place_ = rows_->Fetch(RowAt::Previous, LeaveRow(), row_) ? Place::Row : Place::Start;
}

void Recordset::MoveToNext(const std::function<bool(const Recordset&)>& wanted) {
    const std::string key = LeaveRow();
    const auto isWanted = [&] {
        place_ = Place::Row;
        return wanted(*this);
    };
    if (!rows_->FetchNextOf(key, row_, isWanted)) place_ = Place::End;
}

std::string Recordset::LeaveRow() {
    buffered_ = Buffer::None;
    if (place_ != Place::Row && place_ != Place::Deleted) throw failure::NoCurrentRecord();
    const auto* key = std::get_if<std::string>(row_.data());
    return key == nullptr ? "" : *key;
}

RowChange Recordset::LastChange(std::string_view key) { return rows_->LastChange(key); }

std::int64_t Recordset::RecordCount() { return rows_->Count(); }

std::vector<std::string> Recordset::Keys() { return rows_->Keys(); }

void Recordset::EachRow(std::span<const std::string_view> fields, const std::function<void(TextRow)>& act) {
    rows_->EachRow(fields, act);
}

std::size_t Recordset::FieldNumber(std::string_view name) const {
    for (std::size_t i = 0; i < table_.Fields.size(); ++i) {
        if (table_.Fields[i].Name == name) return i;
    }
    throw failure::NoSuchField(name);
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
    for (std::size_t i = 0; i < buffer_.size(); ++i) {
        // A single that was read is a short decimal: it goes back to its 32 bits.
        const auto* number = std::get_if<double>(&buffer_[i]);
        if (number != nullptr && table_.Fields[i].Type == FieldType::Single) {
            buffer_[i] = static_cast<double>(static_cast<float>(*number));
        }
    }
    isNew ? rows_->Insert(buffer_) : rows_->Update(row_[0], buffer_);
    buffered_ = Buffer::None;
    if (!isNew) rows_->Fetch(RowAt::Key, std::get<std::string>(buffer_[0]), row_);
}

void Recordset::AddAll(std::vector<std::vector<FieldValue>> rows) {
    for (std::vector<FieldValue>& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            row[i] = FittedValue(table_.Fields[i], std::move(row[i]));
    }
    rows_->InsertAll(rows);
}

void Recordset::Delete() {
    if (place_ != Place::Row) throw failure::NoCurrentRecord();
    rows_->Delete(row_[0]);
    place_ = Place::Deleted;
}

}  // namespace quillmetra
