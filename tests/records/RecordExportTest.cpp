// Records as one table for spreadsheets: its columns, and the files that the export writes.
#include "records/RecordExport.h"

#include <map>
#include <set>

#include "platform/NumberText.h"
#include "platform/SheetReader.h"
#include "platform/TextCase.h"
#include "platform/WorkbookWriter.h"
#include "records/RecordColumns.h"
#include "tests/records/RecordFixture.h"

namespace quillmetra {
namespace {

class RecordExportTest : public RecordTest {
protected:
    // The lines of an export of all records.
    std::vector<std::string> Exported() const {
        const std::string file = SuitePath(Folder / "records.csv");
        ExportRecords(Suite.DatabaseFile, file);
        LineReader reader(file);
        std::vector<std::string> lines;
        for (std::string line; reader.Next(line);) lines.push_back(line);
        return lines;
    }
};

// Head to cell of a line without quotes.
std::map<std::string, std::string> Cells(const std::string& line) {
    std::map<std::string, std::string> cells;
    std::size_t start = 0;
    for (const RecordColumn& column : RecordColumns()) {
        const std::size_t end = std::min(line.find(',', start), line.size());
        cells[column.Name] = line.substr(start, end - start);
        start = end + 1;
    }
    return cells;
}

// The cells of a file's sheets by the tag of their row, for the units the name of the sheet, and by their
// head.
struct SheetsByTag : SheetTaker {
    explicit SheetsByTag(const std::string& file) { ReadSheets(file, *this); }
    bool TakeSheet(const std::string& name, bool) override {
        Names.push_back(name);
        heads_.clear();
        return true;
    }
    bool TakeRow(const SheetRow& row) override {
        if (heads_.empty()) {
            for (const SheetCell& cell : row.Cells) heads_[cell.Column] = cell.Text;
            return true;
        }
        const bool isUnits = row.Cells.front().Text == "Units";
        const std::string tag = isUnits ? Names.back() : row.Cells.front().Text;
        for (const SheetCell& cell : row.Cells) Rows[tag][heads_.at(cell.Column)] = cell;
        return true;
    }

    std::vector<std::string> Names;
    std::map<std::string, std::map<std::string, SheetCell>> Rows;

private:
    std::map<int, std::string> heads_;
};

TEST_F(RecordExportTest, EachFieldHasOneColumn) {
    std::set<std::string> names;
    std::set<std::pair<const RecordTable*, std::size_t>> fields;
    for (const RecordColumn& column : RecordColumns()) {
        EXPECT_TRUE(names.insert(LowerCase(column.Name)).second) << column.Name;
        EXPECT_TRUE(column.IsExtra() || fields.emplace(column.At.Table, column.At.Field).second);
        for (const FieldPlace& copy : column.Copies)
            EXPECT_TRUE(fields.emplace(copy.Table, copy.Field).second) << column.Name;
        EXPECT_EQ(FindColumn(LowerCase(column.Name)), &column);
    }
    for (const RecordTable* table : RecordTables()) {
        for (std::size_t i = 0; i < table->Fields.size(); ++i) {
            const bool isSpare = std::holds_alternative<Spare>(table->Fields[i].From);
            EXPECT_NE(fields.contains({table, i}), isSpare) << table->Fields[i].Shape.Name;
        }
    }
    EXPECT_EQ(FindColumn("Case 1 Viscosity")->At.Table, &FluidDataTable());
    EXPECT_EQ(FindColumn("Case 1 Viscosity", 2)->Name, "Pressure Drop Case 1 Viscosity");
    EXPECT_EQ(FindColumn("Pipe Length", 3), nullptr);
}

TEST_F(RecordExportTest, TextsThatLookLikeFormulasComeBack) {
    for (const auto& [text, cell] : {std::pair{"=1+1", "'=1+1"},
                                     {"@x", "'@x"},
                                     {"-5", "-5"},
                                     {"+1.5E3", "+1.5E3"},
                                     {"-5 psig", "'-5 psig"},
                                     {"'=x", "''=x"},
                                     {"''+x", "'''+x"},
                                     {"'-5", "'-5"},
                                     {"'tis", "'tis"},
                                     {"", ""},
                                     {"'", "'"}}) {
        EXPECT_EQ(CellOfText(text), cell);
        EXPECT_EQ(TextOfCell(cell), text);
    }
}

TEST_F(RecordExportTest, EachProgramFillsItsOwnColumns) {
    for (int program = 1; program <= 5; ++program) SaveNew("P" + std::to_string(program), program);
    TakeFilledRecord(1, 1, "odd, \"tag\"");
    Calc.HeadingText[8] = "=heading";
    Calc.ResultsClearable.fill(words::No);
    ASSERT_TRUE(SaveTRCalc());
    const std::vector<std::string> lines = Exported();
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_TRUE(lines[0].starts_with("Tag,Fluid Type,Program Number,"));
    EXPECT_NE(lines[0].find(",Case 3 Bulk Modulus,Pipe,Service,Flow Factor,"), std::string::npos)
        << "the former first";
    EXPECT_TRUE(lines[1].starts_with("\"odd, \"\"tag\"\"\",Liquid,101,"));
    EXPECT_NE(lines[1].find(",'=heading,"), std::string::npos);
    const auto columns = std::count(lines[0].begin(), lines[0].end(), ',');
    for (std::size_t i = 2; i < lines.size(); ++i)
        EXPECT_EQ(std::count(lines[i].begin(), lines[i].end(), ','), columns) << lines[i];

    TakeFilledRecord(1, 1, "P1");
    auto line = Cells(lines[2]), hammer = Cells(lines[4]), fluid = Cells(lines[5]);
    EXPECT_EQ(line["Case 1 Final Pressure"], TrimmedStr(Calc.CaseResult[1][0]));
    EXPECT_EQ(line["Pressure Drop Normal Viscosity"], TrimmedStr(Calc.CaseInput[7][1]));
    EXPECT_EQ(line["Pipe"], Calc.PipeName);
    EXPECT_EQ(line["Critical Time"] + line["Waterhammer Pipe Size"], "");
    EXPECT_EQ(line["Pressure Units"], "psig");
    EXPECT_EQ(line["Calc Date"], "2026-11-24");
    EXPECT_EQ(hammer["Waterhammer Pipe Size"], TrimmedStr(Calc.CaseInput[18][0]));
    EXPECT_NE(hammer["Critical Time"], "");
    EXPECT_NE(fluid["Case 3 Norm BP"], "");
    EXPECT_THROW(ExportRecords(SuitePath(Folder / "none.mdb"), SuitePath(Folder / "x.csv")), RuntimeError);

    // A letter that the code page of the file does not have.
    SaveNew("\u03a9-1");
    Exported();
    const std::string bytes = ReadBytes(SuitePath(Folder / "records.csv"));
    EXPECT_TRUE(bytes.starts_with("\xEF\xBB\xBFTag,"));
    EXPECT_NE(bytes.find("\n\u03a9-1,"), std::string::npos);
}

TEST_F(RecordExportTest, AWorkbookSaysWhatTheValuesSay) {
    if (!WritesWorkbooks() || !ReadsWorkbooks()) GTEST_SKIP();
    for (int program = 1; program <= 5; ++program) SaveNew("P" + std::to_string(program), program);
    TakeFilledRecord(1, 4, "=SI");
    Calc.HeadingText[8] = "\x01_x0041_x0042_ \U0001F527";
    Calc.HeadingText[9] = "caf\xE9";  // of another program
    ASSERT_TRUE(SaveTRCalc());
    TakeMixture("MIX");
    ASSERT_TRUE(SaveTRCalc());
    const std::string values = SuitePath(Folder / "all.csv"),
                      workbook = SuitePath(Folder / "new" / "all.XLSX");
    EXPECT_EQ(ExportRecords(Suite.DatabaseFile, values), 7);
    EXPECT_EQ(ExportRecords(Suite.DatabaseFile, workbook), 7);
    SheetsByTag csv(values), book(workbook);
    EXPECT_EQ(book.Names.size(), 5U);
    ASSERT_TRUE(csv.Rows.contains("'=SI"));
    for (auto& [tag, cells] : csv.Rows) {
        EXPECT_EQ(book.Rows[tag].size(), cells.size()) << tag;
        for (const auto& [head, cell] : cells) {
            const SheetCell& same = book.Rows[tag][head];
            EXPECT_EQ(same.Number, cell.Number) << tag << head;
            EXPECT_TRUE(cell.Number || same.Text == cell.Text) << tag << head << same.Text << cell.Text;
        }
    }
    EXPECT_EQ(book.Rows["P1"]["Calc Date"].Of, SheetCell::Kind::Date);
    EXPECT_EQ(book.Rows["P1"]["Pipe Fouling"].Of, SheetCell::Kind::Number);
    EXPECT_EQ(book.Rows["Water hammer"]["Operating Pressure"].Text, "psig");
    EXPECT_FALSE(book.Rows["Liquid line loss"].contains("Case 1 Final Pressure")) << "two units";
    TakeFilledRecord(3, 1, "DENSITY");
    Calc.LiquidDensityMode = words::Density;
    ASSERT_TRUE(SaveTRCalc());
    EXPECT_EQ(ExportRecords(Suite.DatabaseFile, workbook, {"DENSITY"}), 1);
    SheetsByTag one(workbook);
    EXPECT_EQ(one.Names, std::vector<std::string>{"Water hammer"});
    EXPECT_EQ(one.Rows["Water hammer"]["SG @ FTP"].Text, "lb/ft3") << "a density in the place of the gravity";
    EXPECT_FALSE(book.Rows["Water hammer"].contains("SG @ FTP"));
    EXPECT_THROW(ExportRecords(Suite.DatabaseFile, SuitePath(Folder / "all.csv" / "x.xlsx")), RuntimeError);
}

}  // namespace
}  // namespace quillmetra
