// Descriptions and readers of the data tables, on good and on hostile files.
#include "tables/TableFiles.h"

#include <filesystem>
#include <set>

#include <gtest/gtest.h>

#include "platform/RuntimeError.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

namespace fs = std::filesystem;

class TableFiles : public SuiteTest {};

std::string Joined(const TableDescription& table, const std::string& line) {
    const TableFields fields = SplitTableLine(table, line);
    std::string joined;
    for (std::size_t i = 0; i < table.Columns.size(); ++i) joined += "[" + fields[i] + "]";
    for (std::size_t i = table.Columns.size(); i < MostFields; ++i) joined += fields[i];
    return joined;
}

TEST_F(TableFiles, SplitsALineByItsTable) {
    const struct {
        const TableDescription& Table;
        const char* Line;
        const char* Fields;
    } cases[] = {
        {table::Pipe, "1, 40S ,1.049,0.133,", "[1][40S][1.049][0.133]"},
        {table::Pipe, "1,40S,1.049,0.133", "[1][40S][1.049][0.133]"},  // no comma at the end
        {table::Pipe, "1,40S,1.049,0.133,more,text", "[1][40S][1.049][0.133]"},
        {table::Pipe, "12345678901", "[12345678901][][][]"},
        {table::Pipe, "1,40S,1.04", "[][][][]"},  // ten characters are not longer than the limit
        {table::Pipe, "1,40S,1.049", "[1][40S][1.049][]"},
        {table::Pipe, ",,,,,,,,,,,,,,,,,,,,,,,,,,,,,,", "[][][][]"},
        {table::Pipe, "", "[][][][]"},
        {table::Material, "Carbon Steel   , 6.8 ,7.4,", "[Carbon Steel   ][ 6.8 ][7.4]"},  // keeps blanks
        {table::Rotameter, "Steel          , 8.02 ,", "[Steel][8.02]"},
        {table::Elbow, "2,3", "[][]"},
        {table::Elbow, "2,3.5", "[2][3.5]"},
        {table::Wedge, "0.50,\xC3\xA9\xC3\xA9\xC3\xA9,45", "[0.50][\xC3\xA9\xC3\xA9\xC3\xA9][45][][]"},
        {table::Wedge, "0.5,\xC3\xA9\xC3\xA9\xC3\xA9,", "[][][][][]"},  // eight characters in eleven bytes
    };
    for (const auto& each : cases) EXPECT_EQ(Joined(each.Table, each.Line), each.Fields) << each.Line;
}

TEST_F(TableFiles, ReadsRowsAndFindsOneByItsName) {
    fs::remove(DataFolder() / "Liquid.txt");
    WriteData(
        "LIQUID.TXT",
        "Name,Tp\r\nWater      ,3,18\r\n  Toluene ,1,92\r\nshort\r\n\r\nWater      ,2,19\r\nwater      ,1,1");
    const std::vector<std::string> rows = ReadTable(table::Liquid);
    ASSERT_EQ(rows.size(), 4) << "the heading and lines of less than ten characters are no rows";
    EXPECT_EQ(rows[1], "  Toluene ,1,92") << "a row is kept whole";
    const struct {
        const char* Name;
        int Row;
    } cases[] = {{"Water", 0}, {"Toluene", 1}, {" Toluene ", 1}, {"water", 3}, {"Benzene", 0}, {"", 0}};
    for (const auto& each : cases) EXPECT_EQ(FindTableRow(rows, each.Name), each.Row) << each.Name;
    EXPECT_EQ(FindTableRow({}, "Water"), 0);
}

TEST_F(TableFiles, TellsWhatCannotBeRead) {
    fs::remove(DataFolder() / "Gas.txt");
    EXPECT_THROW(ReadTable(table::Gas), RuntimeError) << "missing";
    fs::create_directories(DataFolder() / "Gas.txt");
    EXPECT_THROW(ReadTable(table::Gas), RuntimeError) << "a folder of that name";
    for (const char* bytes : {"",
                              "\x1A"
                              "Name,\r\nAir            ,2,0.04\r\n"}) {
        WriteData("Liquid.txt", bytes);
        EXPECT_THROW(ReadTable(table::Liquid), RuntimeError) << "empty";
    }
    WriteData("Liquid.txt", "Name,Tp");
    EXPECT_TRUE(ReadTable(table::Liquid).empty()) << "a heading only";
    Suite.DefaultPaths[4] += "\\no such folder";
    EXPECT_THROW(ReadTable(table::Liquid), RuntimeError);
}

TEST(TableDescriptions, FitTheirReadersAndEditor) {
    std::set<std::string_view> files;
    for (const char* word : {"Valve", "Valve3", "Gas", "Liquid", "Pipe", "Modulus", "Material", "Wedge",
                             "Rotameter", "IFOA", "Annubar", "Elbow"}) {
        const TableDescription* const each = FindTable(word);
        ASSERT_NE(each, nullptr) << word;
        EXPECT_EQ(each->KeyWord, word);
        EXPECT_LT(each->Columns.size(), MostFields) << word;
        if (!each->FileName.empty()) {
            EXPECT_TRUE(files.insert(each->FileName).second) << each->FileName;
        }
        for (int column = 1; column <= each->ColumnCount(); ++column) {
            const NoteLines notes = TableNotes(*each, column, {"file.txt", AnnubarModels[1]});
            EXPECT_EQ(notes[0].empty(), column > 11 && each == &table::Valve) << word << " column " << column;
            for (const std::string& line : notes) EXPECT_EQ(line.find('{'), std::string::npos) << line;
        }
        for (const int outside : {0, -1, each->ColumnCount() + 1}) {
            EXPECT_EQ(TableNotes(*each, outside), NoteLines{}) << word;
        }
    }
    EXPECT_EQ(FindTable("gas"), nullptr) << "key words are compared exactly";
}

TEST(TableDescriptions, NameTheFileAndModelOfTheCaller) {
    const TableVariant lowFlow = {.FileName = "C:\\Tables\\LOFLOVLV.TXT"};
    EXPECT_EQ(TableNotes(table::Valve, 6, lowFlow)[0], " Minimum value of Cv for Equal% trim");
    EXPECT_EQ(TableNotes(table::Valve3, 7, lowFlow), NoteLines{});
    EXPECT_EQ(TableNotes(table::Valve, 6, {.FileName = "Globe.txt"})[0],
              "Enter the Cd for a 100% open valve");
    EXPECT_EQ(TableNotes(table::Liquid, 6, lowFlow)[0], "Tr1 is the Temperature in degF");

    const TableVariant annubar = {.FileName = "An15.txt", .Model = AnnubarModels[1]};
    EXPECT_EQ(TableTitle(table::Annubar, annubar), "Annubar Data File  An15.txt");
    EXPECT_EQ(TableHeading(table::Annubar, annubar), "Values of Data for Annubar Models 15 and 16");
    EXPECT_EQ(TableNotes(table::Annubar, 1, annubar)[1], "For Annubar Models 15 and 16");
}

}  // namespace
}  // namespace quillmetra
