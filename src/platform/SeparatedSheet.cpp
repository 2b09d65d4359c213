// Sheets of separated values, see SheetReader.h: which coding, which separator and which decimal sign a file
// has is found in the file itself.
#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "platform/NumberText.h"
#include "platform/SheetFormats.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"
#include "platform/Utf8.h"

namespace quillmetra::sheets {

namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF", LowFirstMark = "\xFF\xFE", HighFirstMark = "\xFE\xFF";

std::string FromUtf16(std::string_view bytes, bool highFirst) {
    const auto unit = [&](std::size_t at) {
        const auto first = static_cast<unsigned char>(bytes[at]),
                   second = static_cast<unsigned char>(bytes[at + 1]);
        return static_cast<char32_t>(highFirst ? first << 8U | second : second << 8U | first);
    };
    constexpr char32_t Replacement = 0xFFFD;
    std::string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        char32_t c = unit(i);
        if (c >= 0xD800 && c < 0xE000) {
            const char32_t low = c < 0xDC00 && i + 3 < bytes.size() ? unit(i + 2) : 0;
            const bool isPair = low >= 0xDC00 && low < 0xE000;
            c = isPair ? 0x10000U + ((c - 0xD800U) << 10U) + (low - 0xDC00U) : Replacement;
            if (isPair) i += 2;
        }
        AppendUtf8(text, c);
    }
    return text;
}

// Where the zero bytes of letters stand in UTF-16 without its mark; neither in a text of bytes.
bool HasZeros(std::string_view bytes, std::size_t parity) {
    for (std::size_t i = parity; i < std::min<std::size_t>(bytes.size(), 64); i += 2) {
        if (bytes[i] != '\0') return false;
    }
    return bytes.size() > 1;
}

std::string DecodedText(const std::string& bytes) {
    if (bytes.starts_with(Utf8Mark)) return bytes.substr(Utf8Mark.size());
    if (bytes.starts_with(LowFirstMark)) return FromUtf16(std::string_view(bytes).substr(2), false);
    if (bytes.starts_with(HighFirstMark)) return FromUtf16(std::string_view(bytes).substr(2), true);
    if (HasZeros(bytes, 1)) return FromUtf16(bytes, false);
    if (HasZeros(bytes, 0)) return FromUtf16(bytes, true);
    return IsUtf8(bytes) ? bytes : Utf8From1252(bytes);
}

struct Item {
    std::string Text;
    int Column = 0;
};

// The lines of items one by one; quotes may hold separators and ends of lines.
class Items {
public:
    Items(std::string_view text, char separator) : text_(text), separator_(separator) {}

    int Line() const { return line_; }
    // The next line without its empty items; false at the end.
    bool Next(std::vector<Item>& line) {
        line.clear();
        if (next_ >= text_.size()) return false;
        ++line_;
        for (int column = 0;; ++column) {
            if (column == MostColumns)
                throw Refused("Row " + std::to_string(line_) +
                              " has more than 16384 columns: this is no table");
            Item item{NextItem(), column};
            if (!Trim(item.Text).empty()) line.push_back(std::move(item));
            if (next_ >= text_.size() || text_[next_] != separator_) break;
            ++next_;
        }
        if (next_ < text_.size() && text_[next_] == '\r') ++next_;
        if (next_ < text_.size() && text_[next_] == '\n') ++next_;
        return true;
    }

private:
    bool AtEndOfItem() const {
        const char c = text_[next_];
        return c == separator_ || c == '\r' || c == '\n';
    }
    std::string NextItem() {
        std::string item;
        if (next_ < text_.size() && text_[next_] == '"') item = Quoted();
        const std::size_t first = next_;
        while (next_ < text_.size() && !AtEndOfItem()) ++next_;
        return item.append(text_.substr(first, next_ - first));
    }
    std::string Quoted() {
        std::string item;
        for (++next_;;) {
            const std::size_t quote = text_.find('"', next_);
            if (quote == std::string_view::npos)
                throw Refused("The quotes that open in row " + std::to_string(line_) + " are not closed");
            item.append(text_.substr(next_, quote - next_));
            next_ = quote + 1;
            if (next_ >= text_.size() || text_[next_] != '"') return item;
            item += '"';
            ++next_;
        }
    }

    std::string_view text_;
    char separator_;
    std::size_t next_ = 0;
    int line_ = 0;
};

// The one that is found most in the heads, outside of quotes.
char SeparatorOf(std::string_view text) {
    constexpr std::string_view candidates = ",;\t";
    std::array<int, candidates.size()> counts{};
    bool quoted = false;
    for (const char c : text) {
        if (c == '"') quoted = !quoted;
        if (quoted) continue;
        if (c == '\r' || c == '\n') break;
        if (const std::size_t at = candidates.find(c); at != std::string_view::npos) ++counts.at(at);
    }
    return candidates[static_cast<std::size_t>(std::max_element(counts.begin(), counts.end()) -
                                               counts.begin())];
}

// What the numbers of a file say of one decimal sign.
struct Evidence {
    bool Any = false, Sure = false;

    void Take(std::string_view text, char point) {
        if (text.find_first_of(".,") == std::string_view::npos) return;
        Sure = Sure || ShowsDecimalSign(text, point);
        Any = Any || Sure || (text.find(point) != std::string_view::npos && NumberIn(text, point));
    }
};

// The decimal sign, or none where nothing tells whether 1.234 has decimals or thousands. Semicolons are what
// a comma locale separates by; tabs say nothing.
char DecimalSignOf(std::string_view text, char separator) {
    if (separator == ',') return '.';
    Evidence commas, points;
    std::vector<Item> line;
    for (Items items(text, separator); items.Next(line);) {
        for (const Item& item : line) {
            commas.Take(Trim(item.Text), ',');
            points.Take(Trim(item.Text), '.');
        }
    }
    const bool isOfCommas = separator == ';';
    if (commas.Sure != points.Sure) return commas.Sure ? ',' : '.';
    if (commas.Sure || (isOfCommas && commas.Any)) return isOfCommas ? ',' : '.';
    return commas.Any || points.Any ? '\0' : '.';
}

}  // namespace

void ReadSeparated(const std::string& bytes, SheetTaker& taker) {
    const std::string text = DecodedText(bytes);
    if (text.find('\0') != std::string::npos) throw Refused("This is neither a text nor a workbook (.xlsx)");
    std::string_view rows = text;
    char separator = 0;
    int firstRow = 0;
    // A line that spreadsheets put before the heads.
    if (rows.size() > 4 && SameName(rows.substr(0, 4), "sep=") &&
        (rows.size() == 5 || rows[5] == '\r' || rows[5] == '\n')) {
        separator = rows[4];
        rows.remove_prefix(std::min<std::size_t>(rows.size(), rows.substr(5).starts_with("\r\n") ? 7 : 6));
        firstRow = 1;
    } else {
        separator = SeparatorOf(rows);
    }
    const char point = DecimalSignOf(rows, separator);
    if (!taker.TakeSheet("", point == ',')) return;
    std::vector<Item> line;
    SheetRow row;
    for (Items items(rows, separator); items.Next(line);) {
        if (line.empty()) continue;
        row.Number = firstRow + items.Line();
        row.Cells.clear();
        for (Item& item : line) {
            const std::optional<double> number = NumberIn(item.Text, point);
            row.Cells.push_back({item.Column, number ? SheetCell::Kind::Number : SheetCell::Kind::Text,
                                 std::move(item.Text), number});
        }
        if (!taker.TakeRow(row)) return;
    }
}

}  // namespace quillmetra::sheets
