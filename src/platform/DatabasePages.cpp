// See DatabasePages.h.
#include "platform/DatabasePages.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <system_error>

#include "platform/Engine.h"
#include "platform/SafeFiles.h"

namespace quillmetra {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t UsualPageSize = 4096;
constexpr std::size_t FileHeader = 100;         // at the start of the first page
constexpr std::size_t LongestRecord = 1 << 16;  // no row of ours is near it
constexpr std::uint32_t MostMissing = 1 << 20;
constexpr unsigned char TableLeaf = 0x0D, IndexLeaf = 0x0A;

std::uint64_t BigEndian(std::string_view bytes) {
    std::uint64_t value = 0;
    for (const char byte : bytes) value = value << 8U | static_cast<unsigned char>(byte);
    return value;
}

// A number of seven bits a byte, high ones first, the last of nine bytes whole; nothing past the end.
std::optional<std::uint64_t> TakeVarint(std::string_view bytes, std::size_t& place) {
    std::uint64_t value = 0;
    for (int i = 0; i < 9 && place < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[place++]);
        if (i == 8) return value << 8U | byte;
        value = value << 7U | (byte & 0x7FU);
        if (byte < 0x80) return value;
    }
    return {};
}

// Kinds of values: 0 none, 1 to 6 whole numbers, 7 a real one, 8 and 9 the numbers 0 and 1, from 12 on bytes
// and from 13 on texts, by turns.
bool IsText(std::uint64_t kind) { return kind >= 13 && kind % 2 == 1; }

std::optional<std::size_t> SizeOf(std::uint64_t kind) {
    constexpr std::size_t sizes[] = {0, 1, 2, 3, 4, 6, 8, 8, 0, 0};
    if (kind < std::size(sizes)) return sizes[kind];
    if (kind < 12 || kind > 2 * LongestRecord) return {};
    return static_cast<std::size_t>((kind - 12) / 2);
}

double NumberOf(std::uint64_t kind, std::string_view bytes) {
    if (kind >= 8) return static_cast<double>(kind - 8);
    const std::uint64_t bits = BigEndian(bytes);
    if (kind == 7) return std::bit_cast<double>(bits);
    const auto unused = static_cast<unsigned>(64 - 8 * bytes.size());
    return static_cast<double>(static_cast<std::int64_t>(bits << unused) >> unused);
}

bool Fits(FieldType type, std::uint64_t kind) {
    if (kind == 0) return true;
    return (type == FieldType::Text || type == FieldType::Date) ? IsText(kind) : kind <= 9;
}

// A record is the kinds of its values and then the values.
struct Parts {
    std::vector<std::uint64_t> Kinds;
    std::vector<std::string_view> Values;
};

std::optional<Parts> Taken(std::string_view record) {
    Parts parts;
    std::size_t place = 0;
    const auto headerSize = TakeVarint(record, place);
    if (!headerSize || *headerSize > record.size()) return {};
    std::size_t value = *headerSize;
    while (place < *headerSize) {
        const auto kind = TakeVarint(record.substr(0, *headerSize), place);
        const auto size = kind ? SizeOf(*kind) : std::nullopt;
        if (!size || *size > record.size() - value) return {};
        parts.Kinds.push_back(*kind);
        parts.Values.push_back(record.substr(value, *size));
        value += *size;
    }
    if (value != record.size() || parts.Kinds.empty()) return {};
    return parts;
}

std::optional<std::vector<FieldValue>> RowOf(const TableShape& table, const Parts& parts) {
    std::vector<FieldValue> values(table.Fields.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const FieldType type = table.Fields[i].Type;
        if (!Fits(type, parts.Kinds[i])) return {};
        if (IsText(parts.Kinds[i]))
            values[i] = std::string(parts.Values[i]);
        else if (parts.Kinds[i] != 0)
            values[i] = NumberRead(type, NumberOf(parts.Kinds[i], parts.Values[i]));
    }
    const auto* key = std::get_if<std::string>(values.data());
    if (key == nullptr || key->empty()) return {};
    return values;
}

// What a cell keeps of a record in its own page; the rest lies on pages of its own.
std::size_t LocalSize(std::size_t size, std::size_t page, bool isRow) {
    const std::size_t most = isRow ? page - 35 : (page - 12) * 64 / 255 - 23;
    if (size <= most) return size;
    const std::size_t least = (page - 12) * 32 / 255 - 23;
    const std::size_t local = least + (size - least) % (page - 4);
    return local <= most ? local : least;
}

}  // namespace

DatabasePages::DatabasePages(const fs::path& file, std::span<const TableShape> tables)
    : file_(file), tables_(tables) {
    std::error_code error;
    if (!fs::is_regular_file(file, error)) throw failure::DatabaseInvalid();
    errno = 0;
    stream_.open(file, std::ios::binary);
    if (!stream_) throw FileFailure(file, {errno, std::generic_category()});
    // The size of the pages stands in the file, where it may be damaged.
    std::string header(FileHeader, '\0');
    stream_.read(header.data(), FileHeader);
    std::size_t stated = BigEndian(std::string_view(header).substr(16, 2));
    if (stated == 1) stated = 65536;
    const bool isSize = std::has_single_bit(stated) && stated >= 512;
    const bool isBetter = isSize && stated != UsualPageSize && RowCount(stated) > RowCount(UsualPageSize);
    RowCount(isBetter ? stated : UsualPageSize);
    const std::uint64_t whole = fs::file_size(file_) / pageSize_;
    const std::uint64_t pages = BigEndian(std::string_view(header).substr(28, 4));
    // A number that cannot be is one that is damaged.
    if (pages > whole && pages - whole < MostMissing) missing_ = static_cast<std::uint32_t>(pages - whole);
}

std::size_t DatabasePages::RowCount(std::size_t pageSize) {
    pageSize_ = pageSize;
    pageCount_ = static_cast<std::uint32_t>((fs::file_size(file_) + pageSize - 1) / pageSize);
    std::size_t count = 0;
    Read([&](PageRow&) { ++count; }, [](const std::string&) {});
    return count;
}

std::string DatabasePages::PageAt(std::uint32_t number) {
    std::string page(pageSize_, '\0');
    stream_.clear();
    stream_.seekg(static_cast<std::streamoff>((number - 1) * static_cast<std::uint64_t>(pageSize_)));
    stream_.read(page.data(), static_cast<std::streamsize>(pageSize_));
    page.resize(static_cast<std::size_t>(stream_.gcount()));
    return page;
}

void DatabasePages::Read(const std::function<void(PageRow&)>& row,
                         const std::function<void(const std::string&)>& key) {
    for (std::uint32_t number = 1; number <= pageCount_; ++number) ReadPage(number, row, key);
}

void DatabasePages::ReadPage(std::uint32_t number, const std::function<void(PageRow&)>& row,
                             const std::function<void(const std::string&)>& key) {
    const std::string page = PageAt(number);
    const std::size_t start = number == 1 ? FileHeader : 0;
    constexpr std::size_t header = 8;
    if (page.size() < start + header) return;
    const auto kind = static_cast<unsigned char>(page[start]);
    if (kind != TableLeaf && kind != IndexLeaf) return;
    const auto wordAt = [&](std::size_t place) {
        return static_cast<std::size_t>(BigEndian(std::string_view(page).substr(place, 2)));
    };
    const std::size_t last = start + header + 2 * wordAt(start + 3);
    for (std::size_t place = start + header; place + 2 <= std::min(last, page.size()); place += 2) {
        std::optional<Cell> cell = CellAt(number, page, wordAt(place), kind == TableLeaf);
        const std::optional<Parts> parts = cell ? Taken(cell->Record) : std::nullopt;
        if (!parts) continue;
        if (kind == IndexLeaf && parts->Kinds.size() == 2 && IsText(parts->Kinds[0])) {
            key(std::string(parts->Values[0]));
        }
        for (std::size_t table = 0; kind == TableLeaf && table < tables_.size(); ++table) {
            if (tables_[table].Fields.size() != parts->Kinds.size()) continue;
            if (auto values = RowOf(tables_[table], *parts)) {
                PageRow found{table, std::move(*values), std::move(cell->Pages)};
                row(found);
            }
            break;
        }
    }
}

// A cell is the size of its record, the number of the row, and the record.
std::optional<DatabasePages::Cell> DatabasePages::CellAt(std::uint32_t number, std::string_view page,
                                                         std::size_t place, bool isRow) {
    const auto size = TakeVarint(page, place);
    if (!size || *size > LongestRecord || (isRow && !TakeVarint(page, place))) return {};
    const std::size_t local = LocalSize(*size, pageSize_, isRow);
    const std::size_t link = local < *size ? 4 : 0;
    if (place > page.size() || local + link > page.size() - place) return {};
    Cell cell{std::string(page.substr(place, local)), {number}};
    if (link == 0) return cell;
    const auto next = static_cast<std::uint32_t>(BigEndian(page.substr(place + local, link)));
    if (!AppendOverflow(cell, next, *size)) return {};
    return cell;
}

bool DatabasePages::AppendOverflow(Cell& cell, std::uint32_t next, std::size_t size) {
    constexpr std::size_t link = 4;
    while (cell.Record.size() < size) {
        if (next < 2 || next > pageCount_) return false;
        const std::string page = PageAt(next);
        const std::size_t part = std::min(size - cell.Record.size(), pageSize_ - link);
        if (page.size() < link + part) return false;
        cell.Pages.push_back(next);
        cell.Record.append(page, link, part);
        next = static_cast<std::uint32_t>(BigEndian(std::string_view(page).substr(0, link)));
    }
    return true;
}

}  // namespace quillmetra
