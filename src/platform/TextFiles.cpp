// See TextFiles.h.
#include "platform/TextFiles.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <system_error>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "platform/SafeFiles.h"
#include "platform/TextCase.h"
#include "platform/Utf8.h"

namespace quillmetra {

namespace fs = std::filesystem;

namespace {

// Code page 1252, bytes 0x80 to 0x9F; 0 where the code page has no character.
constexpr std::array<char32_t, 32> HighControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

// The byte of a character of up to three UTF-8 bytes; -1 when the code page does not have it.
int ByteOf(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<int>(c);
    const auto found = std::find(HighControls.begin(), HighControls.end(), c);
    if (found != HighControls.end()) return 0x80 + static_cast<int>(found - HighControls.begin());
    // The five bytes without a character are held as the control characters of their number.
    if (c >= 0x80 && c < 0xA0 && HighControls[c - 0x80] == 0) return static_cast<int>(c);
    return -1;
}

constexpr std::uintmax_t LargestFile = 256U << 20U;

// Such a text is its own UTF-8.
bool IsAscii(std::string_view bytes) {
    unsigned char bits = 0;
    for (const char byte : bytes) bits |= static_cast<unsigned char>(byte);
    return bits < 0x80;
}

// The text to the byte that ends a file, and what stands behind it unless these are blanks.
std::string TextOf(std::string bytes, std::string* behind = nullptr) {
    if (const std::size_t end = bytes.find('\x1A'); end != std::string::npos) {
        const std::size_t text = bytes.find_first_not_of("\x1A \t\r\n", end);
        if (behind != nullptr && text != std::string::npos) *behind = Utf8From1252(bytes.substr(text));
        bytes.resize(end);
    }
    if (IsAscii(bytes)) return bytes;
    return Utf8From1252(bytes);
}

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

std::string ItemsOf(std::string bytes) {
    if (!bytes.starts_with(Utf8Mark)) return TextOf(std::move(bytes));
    return bytes.substr(Utf8Mark.size(), bytes.find('\x1A') - Utf8Mark.size());
}

bool IsEndOfLine(char c) { return c == '\r' || c == '\n'; }

// Steps over one end of a line: CR LF, LF or CR.
void SkipEndOfLine(const std::string& text, std::size_t& next) {
    if (next < text.size() && text[next] == '\r') {
        ++next;
        if (next < text.size() && text[next] == '\n') ++next;
    } else if (next < text.size() && text[next] == '\n') {
        ++next;
    }
}

bool UserMayWrite([[maybe_unused]] const fs::path& path) {
#ifdef _WIN32
    return true;  // the system's only mark is the one that nobody may write
#else
    return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
#endif
}

fs::path PathOf(std::string_view utf8) { return std::u8string(utf8.begin(), utf8.end()); }

// The length of "//server/share", the root of a path over the network: not every library takes it for one.
std::size_t ShareLength([[maybe_unused]] std::string_view path) {
#ifdef _WIN32
    if (!path.starts_with("//") || path.starts_with("///")) return 0;
    const std::size_t share = path.find('/', 2);
    return share == std::string_view::npos ? path.size() : std::min(path.find('/', share + 1), path.size());
#else
    return 0;
#endif
}

// The name in a folder that matches a wanted one without regard to case.
fs::path MatchInFolder(const fs::path& folder, const std::string& wanted) {
    std::error_code error;
    fs::path exact = folder / PathOf(wanted);
    if (fs::exists(exact, error)) return exact;
    for (fs::directory_iterator entry(folder.empty() ? "." : folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (SameName(SuitePath(entry->path().filename()), wanted)) return folder / entry->path().filename();
    }
    return exact;
}

}  // namespace

fs::path MachinePath(std::string_view suitePath) {
    std::string text(suitePath);
    std::replace(text.begin(), text.end(), '\\', '/');
    const std::size_t share = ShareLength(text);
    const fs::path path = PathOf(std::string_view(text).substr(share)).lexically_normal();
    fs::path found = share == 0 ? path.root_path() : PathOf(text.substr(0, share)).make_preferred();
    std::error_code error;
    const fs::path rest = path.relative_path();
    if (fs::path whole = rest.empty() ? found : found / rest; fs::exists(whole, error)) return whole;
    for (const fs::path& part : rest) {
        found = part == ".." ? found / part : MatchInFolder(found, SuitePath(part));
    }
    return found;
}

std::string SuitePath(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

bool FileExists(std::string_view suitePath) {
    std::error_code error;
    return fs::is_regular_file(MachinePath(suitePath), error);
}

bool IsWriteProtected(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) return false;
    // A file that nobody may write was protected on purpose, also against an administrator.
    constexpr fs::perms anyone = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    return (status.permissions() & anyone) == fs::perms::none || !UserMayWrite(path);
}

std::string ReadBytes(std::string_view suitePath) {
    const fs::path path = MachinePath(suitePath);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) throw failure::FileNotFound();
    // A folder, a pipe or a device under the name of a table is no file, and reading it could wait for ever.
    if (status.type() != fs::file_type::regular) throw failure::PathAccess();
    const std::uintmax_t size = fs::file_size(path, error);
    if (error || size > LargestFile) throw failure::PathAccess();
    std::ifstream file(path, std::ios::binary);
    if (!file) throw failure::PathAccess();
    std::string bytes(static_cast<std::size_t>(size), '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(size));
    if (file.bad()) throw failure::DeviceError();
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

FileStamp StampOf(const fs::path& path) {
    std::error_code error;
    const fs::file_time_type changed = fs::last_write_time(path, error);
    if (error) return {};
    const std::uintmax_t size = fs::file_size(path, error);
    return {.Changed = changed, .Size = size};
}

std::string Utf8From1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char raw : bytes) {
        const auto byte = static_cast<unsigned char>(raw);
        if (byte < 0x80) {
            text += raw;
        } else {
            const char32_t high = byte < 0xA0 ? HighControls[byte - 0x80U] : 0;
            AppendUtf8(text, high == 0 ? byte : high);
        }
    }
    return text;
}

std::string Code1252From(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        const std::size_t length = lead < 0xC2 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 1;
        if (length == 1 || i + length > utf8.size()) {
            bytes += utf8[i++];
            continue;
        }
        char32_t c = lead & (length == 2 ? 0x1FU : 0x0FU);
        bool whole = true;
        for (std::size_t k = 1; k < length; ++k) {
            const auto next = static_cast<unsigned char>(utf8[i + k]);
            whole = whole && (next & 0xC0U) == 0x80U;
            c = (c << 6U) | (next & 0x3FU);
        }
        if (!whole) {
            bytes += utf8[i++];
            continue;
        }
        const int byte = ByteOf(c);
        if (byte >= 0) {
            bytes += static_cast<char>(byte);
        } else {
            bytes += utf8.substr(i, length);
        }
        i += length;
    }
    return bytes;
}

bool IsIn1252(std::string_view utf8) { return Utf8From1252(Code1252From(utf8)) == utf8; }

LineReader::LineReader(std::string_view suitePath)
    : text_(TextOf(ReadBytes(suitePath), &behind_)), lineFeed_(std::min(text_.find('\n'), text_.size())) {}

std::size_t LineReader::EndOfLine() {
    // Looked for once, also in a file whose lines all end in CR.
    if (lineFeed_ < next_) lineFeed_ = std::min(text_.find('\n', next_), text_.size());
    const std::string_view line = std::string_view(text_).substr(next_, lineFeed_ - next_);
    return next_ + std::min(line.find('\r'), line.size());
}

bool LineReader::Next(std::string& line) {
    if (AtEnd()) return false;
    const std::size_t end = EndOfLine();
    line.assign(text_, next_, end - next_);
    next_ = end;
    SkipEndOfLine(text_, next_);
    return true;
}

std::string LineReader::NextWhole() {
    if (EndOfLine() == text_.size()) throw failure::InputPastEnd();
    std::string line;
    Next(line);
    return std::string(Trim(line));
}

ItemReader::ItemReader(std::string_view suitePath) : text_(ItemsOf(ReadBytes(suitePath))) {}

void ItemReader::SkipBlanks() {
    while (next_ < text_.size() && (text_[next_] == ' ' || text_[next_] == '\t')) ++next_;
}

std::string ItemReader::NextText() {
    SkipBlanks();
    if (AtEnd()) throw failure::InputPastEnd();
    std::string item;
    if (text_[next_] == '"') {
        const std::size_t end = std::min(text_.find('"', next_ + 1), text_.size());
        item = text_.substr(next_ + 1, end - next_ - 1);
        next_ = std::min(end + 1, text_.size());
        SkipBlanks();
    } else {
        const std::size_t end = std::min(text_.find_first_of(",\r\n", next_), text_.size());
        item = std::string(Trim(std::string_view(text_).substr(next_, end - next_)));
        next_ = end;
    }
    if (!AtEnd() && text_[next_] == ',') {
        ++next_;
    } else if (!AtEnd() && IsEndOfLine(text_[next_])) {
        SkipEndOfLine(text_, next_);
    }
    return item;
}

double ItemReader::NextNumber() { return Val(NextText()); }

namespace {

void WriteBytes(const fs::path& path, std::string_view bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    if (!file) throw failure::PathAccess();
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) throw failure::PathAccess();
}

}  // namespace

void ReplaceFile(std::string_view suitePath, std::string_view bytes) {
    const fs::path target = MachinePath(suitePath);
    if (IsWriteProtected(target)) throw failure::PathAccess();
    std::error_code error;
    const fs::file_type type = fs::status(target, error).type();
    // A pipe or a device has nothing that could be lost, and must stay what it is.
    if (type == fs::file_type::fifo || type == fs::file_type::character) return WriteBytes(target, bytes);
    fs::path beside = target;
    beside += ".quillmetra-new";
    try {
        WriteBytes(beside, bytes);
        MoveOver(beside, target);
    } catch (const RuntimeError&) {
        RemoveIfThere(beside);
        throw;
    }
}

TextWriter::TextWriter(std::string_view suitePath) : path_(suitePath) {}

void TextWriter::UseUtf8() {
    utf8_ = true;
    text_ = Utf8Mark;
}

void TextWriter::Line(std::string_view text) {
    text_ += utf8_ ? std::string(text) : Code1252From(text);
    text_ += "\r\n";
}

void TextWriter::Quoted(std::string_view text) { Line('"' + std::string(text) + '"'); }

void TextWriter::Number(double value) { Line(Str(value)); }

void TextWriter::Commit() {
    std::error_code ignored;
    fs::create_directories(MachinePath(path_).parent_path(), ignored);
    ReplaceFile(path_, text_);
}

}  // namespace quillmetra
