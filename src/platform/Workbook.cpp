// Sheets of workbooks (XLSX), see SheetReader.h: an archive of XML parts that name one another.
#include <charconv>
#include <cstdint>
#include <map>
#include <memory>
#include <utility>

#include "platform/NumberFormats.h"
#include "platform/NumberText.h"
#include "platform/SheetFormats.h"
#include "platform/TextCase.h"
#include "platform/Utf8.h"
#include "platform/XmlPart.h"

namespace quillmetra {

bool ReadsWorkbooks() { return true; }

namespace sheets {

namespace {

RuntimeError Damaged(const std::string& what) { return Refused("The workbook is damaged: " + what); }

// The targets of a part's relations by their id, as full names of parts.
class Relations : public XmlTaker {
public:
    explicit Relations(std::string folder) : folder_(std::move(folder)) {}

    void Start(std::string_view name, const Attributes& attributes) override {
        if (name != "Relationship") return;
        std::string target = attributes.Text("Target");
        target = target.starts_with('/') ? target.substr(1) : folder_ + target;
        std::string type = attributes.Text("Type");
        type.erase(0, type.rfind('/') + 1);
        ById[attributes.Text("Id")] = {type, target};
        ByType.emplace(type, target);
    }

    struct Relation {
        std::string Type, Target;
    };
    std::map<std::string, Relation> ById;
    std::map<std::string, std::string> ByType;

private:
    std::string folder_;
};

std::string FolderOfPart(const std::string& part) { return part.substr(0, part.rfind('/') + 1); }

Relations RelationsOf(ZipArchive& archive, const std::string& part) {
    const std::string folder = FolderOfPart(part);
    Relations relations(folder);
    const std::string file = folder + "_rels/" + part.substr(folder.size()) + ".rels";
    if (archive.Has(file)) ReadXml(archive, file, relations, MostKept);
    return relations;
}

class SheetNames : public XmlTaker {
public:
    void Start(std::string_view name, const Attributes& attributes) override {
        if (name == "workbookPr") {
            const std::string later = attributes.Text("date1904");
            From1904 = later == "1" || later == "true";
        }
        if (name == "sheet") Sheets.emplace_back(attributes.Text("name"), attributes.Text("id"));
    }

    bool From1904 = false;
    std::vector<std::pair<std::string, std::string>> Sheets;  // name and relation
};

enum class Shown : std::uint8_t { Number, Date, Percent };

// What each of the cell formats shows a number as.
class CellFormats : public XmlTaker {
public:
    void Start(std::string_view name, const Attributes& attributes) override {
        if (name == "numFmt") {
            const std::string code = attributes.Text("formatCode");
            own_[attributes.Whole("numFmtId")] = OneOf(IsDateFormat(code), IsPercentFormat(code));
        }
        if (name == "cellXfs") inCells_ = true;
        if (name == "xf" && inCells_) OfStyle.push_back(Shows(attributes.Whole("numFmtId")));
    }
    void End(std::string_view name) override {
        if (name == "cellXfs") inCells_ = false;
    }

    std::vector<Shown> OfStyle;

private:
    static Shown OneOf(bool isDate, bool isPercent) {
        return isDate ? Shown::Date : isPercent ? Shown::Percent : Shown::Number;
    }
    Shown Shows(int format) const {
        const auto own = own_.find(format);
        if (own != own_.end()) return own->second;
        return OneOf(IsBuiltInDateFormat(format), IsBuiltInPercentFormat(format));
    }

    std::map<int, Shown> own_;
    bool inCells_ = false;
};

// Control characters stand as _x000D_ in a workbook's texts.
std::string Unescaped(std::string text) {
    constexpr std::size_t length = 7;
    std::string plain;
    std::size_t next = 0;
    for (std::size_t at = 0; (at = text.find("_x", at)) != std::string::npos;) {
        unsigned code = 0;
        const char* const first = text.data() + at + 2;
        if (at + length > text.size() || first[4] != '_' ||
            std::from_chars(first, first + 4, code, 16).ptr != first + 4) {
            at += 2;
            continue;
        }
        plain.append(text, next, at - next);
        AppendUtf8(plain, code >= 0xD800 && code < 0xE000 ? 0xFFFD : code);
        next = at += length;
    }
    return next == 0 ? text : plain.append(text, next);
}

// A text with runs of formats, and without what is written above it for its pronunciation.
class RichText {
public:
    void Start(std::string_view name) {
        if (name == "rPh") spoken_ = true;
        inText_ = name == "t" && !spoken_;
    }
    void End(std::string_view name) {
        if (name == "rPh") spoken_ = false;
        inText_ = false;
    }
    void Text(std::string_view text) {
        if (inText_) text_ += text;
    }
    std::string Take() { return Unescaped(std::exchange(text_, {})); }

private:
    bool inText_ = false, spoken_ = false;
    std::string text_;
};

class SharedTexts : public XmlTaker {
public:
    void Start(std::string_view name, const Attributes&) override { rich_.Start(name); }
    void End(std::string_view name) override {
        rich_.End(name);
        if (name == "si") Texts.push_back(rich_.Take());
    }
    void Text(std::string_view text) override { rich_.Text(text); }

    std::vector<std::string> Texts;

private:
    RichText rich_;
};

struct Book {
    bool From1904 = false;
    std::vector<Shown> OfStyle;
    std::vector<std::string> Texts;
};

class SheetRows : public XmlTaker {
public:
    SheetRows(const Book& book, SheetTaker& taker) : book_(book), taker_(taker) {}

    bool IsStopped() const { return stopped_; }

    void Start(std::string_view name, const Attributes& attributes) override {
        if (name == "row") return StartRow(attributes);
        if (name == "c") return StartCell(attributes);
        if (name == "mergeCell") taker_.TakeMerged(attributes.Text("ref"));
        if (name == "f") hasFormula_ = true;
        if (name == "v" && !value_.empty())
            throw Damaged("row " + std::to_string(row_.Number) + " has a cell with two values");
        inValue_ = name == "v";
        rich_.Start(name);
    }
    void End(std::string_view name) override {
        inValue_ = false;
        rich_.End(name);
        if (name == "c") EndCell();
        if (name == "row" && !row_.Cells.empty() && !taker_.TakeRow(row_)) Enough = stopped_ = true;
    }
    void Text(std::string_view text) override {
        if (inValue_) value_ += text;
        rich_.Text(text);
    }

private:
    // Rows and cells may say their place, or just follow one another.
    void StartRow(const Attributes& attributes) {
        const int said = attributes.Whole("r");
        row_.Number = said > 0 ? said : row_.Number + 1;
        if (row_.Number > MostRows) throw Damaged("row " + std::to_string(row_.Number));
        row_.Cells.clear();
        column_ = -1;
    }
    void StartCell(const Attributes& attributes) {
        const std::string place = attributes.Text("r");
        int column = 0;
        for (std::size_t i = 0; i < place.size() && IsLetter(place[i]) && column <= MostColumns; ++i)
            column = 26 * column + (LowerCase(place[i]) - 'a' + 1);
        const int next = column > 0 ? column - 1 : column_ + 1;
        if (next <= column_)
            throw Damaged("row " + std::to_string(row_.Number) + " has cells twice or in no order");
        column_ = next;
        if (column_ >= MostColumns)
            throw Damaged("row " + std::to_string(row_.Number) + " has too many columns");
        type_ = attributes.Text("t");
        style_ = attributes.Whole("s");
        hasFormula_ = false;
        value_.clear();
        rich_.Take();
    }

    void EndCell() {
        SheetCell cell{column_};
        if (type_ == "inlineStr") {
            cell.Text = rich_.Take();
        } else if (value_.empty()) {
            if (!hasFormula_ || type_ == "str") return;
            cell.Of = SheetCell::Kind::Error;
            cell.Text = "a formula without its value";
        } else {
            TakeValue(cell);
        }
        if (cell.Of == SheetCell::Kind::Text) cell.Number = NumberIn(cell.Text, '.');
        if (!Trim(cell.Text).empty()) row_.Cells.push_back(std::move(cell));
    }
    void TakeValue(SheetCell& cell) {
        if (type_ == "s") {
            cell.Text = SharedText();
        } else if (type_ == "str") {
            cell.Text = Unescaped(value_);
        } else if (type_ == "b") {
            cell.Of = SheetCell::Kind::Truth;
            cell.Text = value_ == "0" ? "FALSE" : "TRUE";
        } else if (type_ == "e") {
            cell.Of = SheetCell::Kind::Error;
            cell.Text = value_;
        } else if (type_ == "d") {
            cell.Of = SheetCell::Kind::Date;
            cell.Text = value_.substr(0, value_.find('T'));
        } else {
            TakeNumber(cell);
        }
    }
    void TakeNumber(SheetCell& cell) {
        const std::optional<double> number = NumberIn(value_, '.');
        if (!number) throw Damaged("a number in row " + std::to_string(row_.Number));
        switch (ShownAs()) {
            case Shown::Date:
                cell.Of = SheetCell::Kind::Date;
                cell.Text = DateOfSerial(*number, book_.From1904);
                break;
            case Shown::Percent: cell.Text = TrimmedStr(*number * 100) + "%"; break;
            default:
                cell.Of = SheetCell::Kind::Number;
                cell.Text = TrimmedStr(*number);
                cell.Number = number;
        }
    }
    Shown ShownAs() const {
        const auto style = static_cast<std::size_t>(style_);
        return style_ >= 0 && style < book_.OfStyle.size() ? book_.OfStyle[style] : Shown::Number;
    }
    std::string SharedText() const {
        std::size_t index = 0;
        const auto [end, error] = std::from_chars(value_.data(), value_.data() + value_.size(), index);
        if (error != std::errc{} || index >= book_.Texts.size())
            throw Damaged("a text in row " + std::to_string(row_.Number));
        return book_.Texts[index];
    }

    const Book& book_;
    SheetTaker& taker_;
    SheetRow row_;
    RichText rich_;
    std::string type_, value_;
    int column_ = -1, style_ = -1;
    bool inValue_ = false, hasFormula_ = false, stopped_ = false;
};

std::string PartOfType(const Relations& relations, const char* type) {
    const auto found = relations.ByType.find(type);
    return found == relations.ByType.end() ? "" : found->second;
}

template <typename Taker>
Taker ReadIfThere(ZipArchive& archive, const std::string& part) {
    Taker taker;
    if (archive.Has(part)) ReadXml(archive, part, taker, MostKept);
    return taker;
}

}  // namespace

void ReadWorkbook(const std::string& bytes, SheetTaker& taker) {
    ZipArchive archive(bytes);
    const std::string main = PartOfType(RelationsOf(archive, ""), "officeDocument");
    if (!archive.Has(main)) throw Refused("This is an archive, but no workbook (.xlsx)");

    SheetNames names;
    ReadXml(archive, main, names, MostKept);
    const Relations parts = RelationsOf(archive, main);
    const Book book{names.From1904, ReadIfThere<CellFormats>(archive, PartOfType(parts, "styles")).OfStyle,
                    ReadIfThere<SharedTexts>(archive, PartOfType(parts, "sharedStrings")).Texts};
    for (const auto& [name, id] : names.Sheets) {
        const auto part = parts.ById.find(id);
        if (part == parts.ById.end()) throw Damaged("its sheet " + name + " is missing");
        if (part->second.Type != "worksheet") continue;  // a chart
        if (!taker.TakeSheet(name, false)) continue;
        SheetRows rows(book, taker);
        ReadXml(archive, part->second.Target, rows);
        if (rows.IsStopped()) return;
    }
}

}  // namespace sheets

}  // namespace quillmetra
