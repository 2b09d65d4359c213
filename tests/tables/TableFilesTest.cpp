// Descriptions and readers of the data tables, and files that cannot be read.
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
