// Tables as spreadsheets of many kinds leave them, whole, damaged and hostile.
#include "platform/SheetReader.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>
#include <utility>

#include <gtest/gtest.h>
#ifdef QUILLMETRA_WORKBOOKS
#include <minizip/zip.h>
#endif

#include "platform/RuntimeError.h"
#include "platform/TemporaryFolder.h"
#include "platform/TextFiles.h"

namespace quillmetra {
namespace {

// All that a reader tells, in one text: "[sheet] 1A=s:Tag ...", a line a row.
struct Told : SheetTaker {
    std::string Text;
    int Rows = 0;
    bool TakeSheet(const std::string& name, bool decimalCommas) override {
        Text += "[" + name + (decimalCommas ? ",]" : "]");
        return true;
    }
    bool TakeRow(const SheetRow& row) override {
        ++Rows;
        Text += "\n" + std::to_string(row.Number);
        for (const SheetCell& cell : row.Cells) {
            Text += std::string(" ") + ColumnLetters(cell.Column) + "=" + "tnbed"[static_cast<int>(cell.Of)] +
                    ":" + cell.Text;
            if (cell.Number && cell.Of == SheetCell::Kind::Text) Text += "(n)";
        }
        return true;
    }
    void TakeMerged(const std::string& range) override { Text += "\nmerged " + range; }
};

class SheetReader : public ::testing::Test {
protected:
    std::string Read(std::string_view bytes) {
        std::ofstream(File, std::ios::binary) << bytes;
        return ReadFile();
    }
    std::string ReadFile() const {
        Told told;
        try {
            ReadSheets(SuitePath(File), told);
        } catch (const RuntimeError& error) {
            return error.Description;
        }
        return told.Text;
    }

private:
    const TemporaryFolder own_;

protected:
    const std::filesystem::path File = own_.Path() / "list.dat";
};

std::string Utf16(std::string_view ascii, bool highFirst) {
    std::string text;
    for (const char c : ascii) (text += highFirst ? '\0' : c) += highFirst ? c : '\0';
    return text;
}

TEST_F(SheetReader, SeparatedValues) {
    using namespace std::string_literals;
    const std::pair<std::string, std::string> rows[] = {
        {"Tag,Flow\r\nP-1,1.5\r\n", "[]\n1 A=t:Tag B=t:Flow\n2 A=t:P-1 B=n:1.5"},
        {"Tag;Flow\nP-1;1,5\nP-2;1.5\n", "[,]\n1 A=t:Tag B=t:Flow\n2 A=t:P-1 B=n:1,5\n3 A=t:P-2 B=t:1.5"},
        {"Tag;Flow\nP-1;1.5\nP-2;1,234", "[]\n1 A=t:Tag B=t:Flow\n2 A=t:P-1 B=n:1.5\n3 A=t:P-2 B=t:1,234"},
        {"Tag\tFlow\nP-1\t1,234\n", "[]\n1 A=t:Tag B=t:Flow\n2 A=t:P-1 B=t:1,234"},
        {"a;1.000\nb;4,026\nc;1.234,5", "[,]\n1 A=t:a B=t:1.000\n2 A=t:b B=n:4,026\n3 A=t:c B=t:1.234,5"},
        {"a;1.000\nb;1.234.567", "[,]\n1 A=t:a B=t:1.000\n2 A=t:b B=t:1.234.567"},
        {"a;1.000\nb\"x;\"0.5\"", "[]\n1 A=t:a B=n:1.000\n2 A=t:b\"x B=n:0.5"},
        {"a;1.000;100.000", "[]\n1 A=t:a B=t:1.000 C=t:100.000"},
        {"Tag\tFlow\rP-1\t-0,5\r", "[,]\n1 A=t:Tag B=t:Flow\n2 A=t:P-1 B=n:-0,5"},
        {"sep=;\r\na,b;c\r\n", "[]\n2 A=t:a,b B=t:c"},
        {"a,\"b\"\"c,\nd\",e\n\n,,\n1", "[]\n1 A=t:a B=t:b\"c,\nd C=t:e\n4 A=n:1"},
        {"a\n\"b,c\n", "The quotes that open in row 2 are not closed"},
        {"\xEF\xBB\xBF\xC3\xA9,1", "[]\n1 A=t:\xC3\xA9 B=n:1"},
        {"\xE9,1", "[]\n1 A=t:\xC3\xA9 B=n:1"},
        {"\xC3\xA9\xF0\x9F\x98\x80,1", "[]\n1 A=t:\xC3\xA9\xF0\x9F\x98\x80 B=n:1"},
        {"\xFF\xFE" + Utf16("a,1", false), "[]\n1 A=t:a B=n:1"},
        {"\xFE\xFF" + Utf16("a\t1", true) + "\xD8\x3D\xDE\x00\xD8\x00"s,
         "[]\n1 A=t:a B=t:1\xF0\x9F\x98\x80\xEF\xBF\xBD"},
        {Utf16("a;2", false), "[]\n1 A=t:a B=n:2"},
        {"1e5,1e999,1e,.,5%,1 2,0x10,nan,+.5,1E-3",
         "[]\n1 A=n:1e5 B=t:1e999 C=t:1e D=t:. E=t:5% F=t:1 2 G=t:0x10 H=t:nan I=n:+.5 J=n:1E-3"},
        {"", "[]"},
        {"a\0\0\0b"s, "This is neither a text nor a workbook (.xlsx)"},
        {"\xD0\xCF\x11\xE0 old", "The workbook has a password or is of the former format: save it as .xlsx"},
        {"a\n" + std::string(16384, ','), "Row 2 has more than 16384 columns: this is no table"}};
    for (const auto& [bytes, told] : rows) EXPECT_EQ(Read(bytes), told) << bytes;
    std::filesystem::remove(File);
    EXPECT_EQ(ReadFile(), "File not found");
    std::ofstream(File) << "a";
    std::filesystem::resize_file(File, 257U << 20U);
    EXPECT_EQ(ReadFile(), "The file has more than 256 MB");
}

#ifdef QUILLMETRA_WORKBOOKS

using Parts = std::vector<std::pair<std::string, std::string>>;

class Workbook : public SheetReader {
protected:
    void Pack(const Parts& parts) const {
        std::filesystem::remove(File);
        const zipFile zip = zipOpen64(File.string().c_str(), APPEND_STATUS_CREATE);
        for (const auto& [name, text] : parts) {
            const zip_fileinfo info{};
            zipOpenNewFileInZip(zip, name.c_str(), &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, 6);
            zipWriteInFileInZip(zip, text.data(), static_cast<unsigned>(text.size()));
            zipCloseFileInZip(zip);
        }
        zipClose(zip, nullptr);
    }
    static Parts BookOf(const std::string& sheet, const std::string& second = "") {
        const std::string relation = "<Relationship Type='http://x/";
        return {
            {"_rels/.rels", "<Relationships>" + relation +
                                "officeDocument' Id='a' Target='xl/workbook.xml'/></Relationships>"},
            {"xl/workbook.xml",
             "<x:workbook xmlns:x='x' xmlns:r='r'><x:sheets><x:sheet name='One' r:id='b'/>" +
                 std::string(second.empty() ? "" : "<x:sheet name='Two' r:id='c'/>") +
                 "</x:sheets></x:workbook>"},
            {"xl/_rels/workbook.xml.rels",
             "<Relationships>" + relation + "worksheet' Id='b' Target='worksheets/sheet1.xml'/>" + relation +
                 "worksheet' Id='c' Target='/xl/worksheets/sheet2.xml'/>" + relation +
                 "styles' Id='d' Target='styles.xml'/>" + relation +
                 "sharedStrings' Id='e' Target='sharedStrings.xml'/></Relationships>"},
            {"xl/styles.xml",
             "<styleSheet><numFmts><numFmt numFmtId='164' formatCode='dd/mm/yyyy'/><numFmt numFmtId='165' "
             "formatCode='[Red]0.00\"days\"'/><numFmt numFmtId='166' formatCode='0.0%'/><numFmt "
             "numFmtId='167' "
             "formatCode='[hh]:mm'/></numFmts><cellStyleXfs><xf "
             "numFmtId='14'/></cellStyleXfs><cellXfs>"
             "<xf numFmtId='0'/><xf numFmtId='164'/><xf numFmtId='165'/><xf "
             "numFmtId='22'/><xf numFmtId='9'/><xf numFmtId='166'/><xf "
             "numFmtId='167'/></cellXfs></styleSheet>"},
            {"xl/sharedStrings.xml",
             "<sst><si><t>Tag</t></si><si><r><t>P-</t></r><r><t>1</t></r><rPh><t>no</t></rPh></si></sst>"},
            {"xl/worksheets/sheet1.xml", "<worksheet><sheetData>" + sheet + "</sheetData></worksheet>"},
            {"xl/worksheets/sheet2.xml", "<worksheet><sheetData>" + second + "</sheetData></worksheet>"}};
    }
    std::string Pass(const std::string& sheet, const std::string& second = "") const {
        Pack(BookOf(sheet, second));
        return ReadFile();
    }
    static std::string Cell(const std::string& attributes, const std::string& inner) {
        return "<row r='3'><c r='B3' " + attributes + ">" + inner + "</c></row>";
    }
};

TEST_F(Workbook, Cells) {
    struct Case {
        std::string Attributes, Inner, Told;
    };
    const Case cases[] = {{"t='s'", "<v>1</v>", "t:P-1"},
                          {"t='inlineStr'", "<is><t>a &lt; b_x000A_c</t></is>", "t:a < b\nc"},
                          {"t='str'", "<f>A1&amp;\"x\"</f><v>12.5</v>", "t:12.5(n)"},
                          {"", "<f>1/8</f><v>0.1</v>", "n:0.1"},
                          {"", "<v>0.30000000000000004</v>", "n:0.3"},
                          {"", "<f>1/8</f>", "e:a formula without its value"},
                          {"t='b'", "<v>1</v>", "b:TRUE"},
                          {"t='e'", "<v>#DIV/0!</v>", "e:#DIV/0!"},
                          {"t='d'", "<v>2026-11-26T00:00:00</v>", "d:2026-11-26"},
                          {"s='1'", "<v>46352</v>", "d:2026-11-26"},
                          {"s='3'", "<v>60.5</v>", "d:1900-02-28 12:00:00"},
                          {"s='1'", "<v>59</v>", "d:1900-02-28"},
                          {"s='1'", "<v>1e9</v>", "d:1000000000"},
                          {"s='2'", "<v>46352</v>", "n:46352"},
                          {"s='4'", "<v>0.05</v>", "t:5%"},
                          {"s='5'", "<v>0.055</v>", "t:5.5%"},
                          {"s='6'", "<v>0.5</v>", "d:1899-12-31 12:00:00"},
                          {"s='99'", "<v>7</v>", "n:7"}};
    for (const Case& each : cases)
        EXPECT_EQ(Pass(Cell(each.Attributes, each.Inner)), "[One]\n3 B=" + each.Told) << each.Inner;
    EXPECT_EQ(Pass("<row/><row><c><v>1</v></c><c r='AA2'><v>2</v></c></row><row r='9'><c/></row>",
                   "<row><c t='s'><v>0</v></c></row>"),
              "[One]\n2 A=n:1 AA=n:2[Two]\n1 A=t:Tag");
    Parts parts = BookOf("<row><c><v>1</v></c></row>");
    parts[2].second.replace(parts[2].second.find("worksheets/sheet1"), 17, "one/any");
    parts[5].first = "xl\\one\\any.xml";
    Pack(parts);
    EXPECT_EQ(ReadFile(), "[One]\n1 A=n:1");
    EXPECT_EQ(Pass("</sheetData><mergeCells><mergeCell ref='B4:C6'/></mergeCells><sheetData>"),
              "[One]\nmerged B4:C6");
}

TEST_F(Workbook, HostileOnesAreRefused) {
    const std::string damaged = "The workbook is damaged: ";
    EXPECT_EQ(Pass(Cell("t='s'", "<v>9</v>")), damaged + "a text in row 3");
    EXPECT_EQ(Pass(Cell("t='s'", "<v>-1</v>")), damaged + "a text in row 3");
    EXPECT_EQ(Pass(Cell("", "<v>1</v><v>2</v>")), damaged + "row 3 has a cell with two values");
    EXPECT_EQ(Pass(Cell("", "<v>nan</v>")), damaged + "a number in row 3");
    EXPECT_EQ(Pass("<row r='3'><c r='XFE3'/></row>"), damaged + "row 3 has too many columns");
    EXPECT_EQ(Pass("<row r='1048577'/>"), damaged + "row 1048577");
    EXPECT_EQ(Pass("<row r='3'><c r='B3'/><c r='B3'/></row>"),
              damaged + "row 3 has cells twice or in no order");
    const std::string sheet = damaged + "xl/worksheets/sheet1.xml has ";
    std::string deep;
    for (int i = 0; i < 100; ++i) deep += "<a>";
    EXPECT_EQ(Pass(deep), sheet + "elements in one another without end");
    EXPECT_EQ(Pass("<a b='" + std::string(17U << 20U, 'x') + "'/>"), sheet + "a tag of more than 16 MB");
    EXPECT_EQ(Pass("<row>"), damaged + "xl/worksheets/sheet1.xml, line 1, mismatched tag");

    Parts parts = BookOf("");
    parts[5].second = "<!DOCTYPE a [<!ENTITY b 'cc'>]><worksheet>&b;</worksheet>";
    Pack(parts);
    EXPECT_EQ(ReadFile(), damaged + "a part of it declares a type");
    std::string texts;
    for (int i = 0; i < 1 << 22; ++i) texts += "<si/>";
    parts[4].second = "<sst>" + texts + "</sst>";
    Pack(parts);
    EXPECT_EQ(ReadFile(), damaged + "xl/sharedStrings.xml has too many elements");
    parts.erase(parts.begin() + 2);
    Pack(parts);
    EXPECT_EQ(ReadFile(), damaged + "its sheet One is missing");
    Pack({{"a.txt", "no workbook"}});
    EXPECT_EQ(ReadFile(), "This is an archive, but no workbook (.xlsx)");
    Pack({{"a", std::string(200U << 20U, ' ')}, {"b", std::string(60U << 20U, ' ')}});
    EXPECT_EQ(ReadFile(), "The workbook would unpack to more than 256 MB: save it as CSV");
}

// Cut and changed at random: refused in words, whatever comes of it.
TEST_F(Workbook, Damaged) {
    Pack(BookOf(Cell("t='s'", "<v>1</v>"), Cell("s='1'", "<v>46352</v>")));
    const std::string sound = ReadBytes(SuitePath(File));
    std::mt19937 random(20);
    for (int i = 0; i < 300; ++i) {
        std::string bytes = sound;
        for (int blows = 0; blows < 3; ++blows) bytes[random() % bytes.size()] = static_cast<char>(random());
        if (i % 4 == 0) bytes.resize(random() % bytes.size());
        EXPECT_FALSE(Read(bytes).empty());
    }
}

TEST_F(Workbook, AHundredThousandRows) {
    std::string sheet;
    for (int row = 1; row <= 100000; ++row) {
        sheet += "<row>";
        for (int i = 0; i < 20; ++i) sheet += "<c><v>" + std::to_string(row) + ".25</v></c>";
        sheet += "</row>";
    }
    Pack(BookOf(sheet));
    Told told;
    const auto start = std::chrono::steady_clock::now();
    ReadSheets(SuitePath(File), told);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
    EXPECT_EQ(told.Rows, 100000);
}

#endif

}  // namespace
}  // namespace quillmetra
