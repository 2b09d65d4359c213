// Tables as the editor reads and saves them: line by line, whole files, and files that are not what they
// should be.
#include "tables/TableSheet.h"

#include <filesystem>
#include <map>

#include <gtest/gtest.h>

#include "platform/RuntimeError.h"
#include "tables/TableRoutines.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

namespace fs = std::filesystem;

std::string Blanks(int count) { return std::string(static_cast<std::size_t>(count), ' '); }

class TableSheets : public SuiteTest {
protected:
    std::string Saved(const TableDescription& table, const std::vector<TableFields>& rows) const {
        SaveTable(table, rows, {.FileName = "Table.txt"});
        return ReadBytes(TablePath(table, {.FileName = "Table.txt"}));
    }
    TableSheet Loaded(const TableDescription& table, const std::string& bytes) const {
        WriteData("Table.txt", bytes);
        return LoadTable(table, {.FileName = "Table.txt"});
    }
};

struct LineCase {
    const TableDescription& Table;
    std::string Line;
    std::vector<std::string> Fields;   // those that hold something
    std::optional<std::string> Saved;  // nothing for a row that a save drops
};

const LineCase Lines[] = {
    {table::Gas, "Argon,2,.0301,-302.6,39.95,-18", {}, {}},  // thirty characters are not split
    {table::Gas,
     "Argon,2,.0301,-302.6,39.95,-188",
     {"Argon", "2", ".0301", "-302.6", "39.95", "-188"},
     "Argon" + Blanks(26) + ",2,.0301,-302.6,39.95,-188,,,,,,,,,,"},
    {table::Gas,
     "Methane" + Blanks(24) + ",2, .0991,-258.7, 16.04,-116.5,32,.0102,300,.0149,673,.526,.613,219,.8",
     {"Methane" + Blanks(24), "2", " .0991", "-258.7", " 16.04", "-116.5", "32", ".0102", "300", ".0149",
      "673", ".526", ".613", "219", ".8"},
     "Methane" + Blanks(24) + ",2,.0991,-258.7,16.04,-116.5,32,.0102,300,.0149,673,.526,.613,219,.8,"},
    {table::Gas,
     ",2,.0991,-258.7,16.04,-116.5,32,.0102",
     {"", "2", ".0991", "-258.7", "16.04", "-116.5", "32", ".0102"},
     {}},
    // Quotes do not hold a comma: all that follows moves on by one column.
    {table::Liquid,
     "\"Glycol, ethylene\",1,62.07,1.11,686,68,20,200,2.1",
     {"\"Glycol", " ethylene\"", "1", "62.07", "1.11", "686", "68", "20", "200", "2.1"},
     "\"Glycol" + Blanks(24) + ",ethylene\",1,62.07,1.11,686,68,20,200,2.1,,,,,,,,"},
    {table::Pipe, "6,40,6.065,.28,6.625,note", {"6", "40", "6.065", ".28"}, "6,40,6.065,.28,"},
    {table::Pipe, "1,5,1.1,.1", {}, ",,,,"},
    {table::Pipe, "12345678901", {"12345678901"}, "12345678901,,,,"},
    {table::Material,
     "  Carbon steel ,6.5,7.1,",
     {"  Carbon steel ", "6.5", "7.1"},
     "Carbon steel" + Blanks(19) + ",6.5,7.1,"},
    {table::Valve3,
     ",,,Flow to open,.9,12,.46,.72",
     {"", "", "", "Flow to open", ".9", "12", ".46", ".72"},
     ", , , Flow to open, .9, 12, .46, .72, , , , "},
    {table::Valve3, ",,,,.9,12,.46,.72", {"", "", "", "", ".9", "12", ".46", ".72"}, {}},
    {table::Elbow, "4,.5", {}, {}},
    {table::Elbow, "10,15", {"10", "15"}, "10" + Blanks(29) + ",15,"},
    {table::Wedge, "4 ,.1 , .2,.3,.4", {"4", ".1", ".2", ".3", ".4"}, "4,.1,.2,.3,.4,"},
    {table::Modulus,
     "Carbon steel, 29.5 , 29.3 ,28.8,28.3,27.7,27.3,26.7,25.5,24.2,22.4,20.4,18.0,,1100",
     {"Carbon steel", " 29.5 ", " 29.3 ", "28.8", "28.3", "27.7", "27.3", "26.7", "25.5", "24.2", "22.4",
      "20.4", "18.0", "", "1100"},
     "Carbon steel" + Blanks(11) + ",29.5,29.3,28.8,28.3,27.7,27.3,26.7,25.5,24.2,22.4,20.4,18.0,,1100,"},
    {table::Rotameter,
     "A float material of more than 31 characters, 8",
     {"A float material of more than 31 characters", "8"},
     "A float material of more than 31 characters,8,"},
    // Padding and the shortest line count characters and not bytes.
    {table::Wedge, "0.5,\xC3\xA9\xC3\xA9\xC3\xA9,", {}, {}},
    {table::Rotameter,
     "\xC3\x84\xC3\x96\xC3\x9C float,8.02",
     {"\xC3\x84\xC3\x96\xC3\x9C float", "8.02"},
     "\xC3\x84\xC3\x96\xC3\x9C float" + Blanks(22) + ",8.02,"},
};

TEST_F(TableSheets, ALineIsSplitAndSavedInItsOwnForm) {
    for (const LineCase& each : Lines) {
        SCOPED_TRACE(each.Line);
        const TableFields fields = SplitTableLine(each.Table, each.Line);
        TableFields expected;
        std::copy(each.Fields.begin(), each.Fields.end(), expected.begin());
        EXPECT_EQ(fields, expected);
        const std::optional<std::string> saved = SavedTableLine(each.Table, fields);
        EXPECT_EQ(saved, each.Saved);
        if (!saved || each.Fields.empty()) continue;
        EXPECT_EQ(SavedTableLine(each.Table, SplitTableLine(each.Table, *saved)), saved) << "saves to itself";
    }
}

// The rows of the shipped tables are in saved form: an editor that saves without a change leaves their bytes.
TEST_F(TableSheets, ShippedTablesComeBackByteForByte) {
    for (const TableDescription* each :
         {&table::Gas, &table::Liquid, &table::Pipe, &table::Modulus, &table::Material}) {
        SCOPED_TRACE(each->KeyWord);
        const std::string before = ReadBytes(TablePath(*each));
        const TableSheet sheet = LoadTable(*each);
        EXPECT_TRUE(sheet.Lost.empty());
        SaveTable(*each, sheet.Rows);
        const std::string after = ReadBytes(TablePath(*each));
        EXPECT_EQ(after.substr(after.find('\n')), before.substr(before.find('\n')));
        const TableSheet again = LoadTable(*each);
        SaveTable(*each, again.Rows);
        EXPECT_EQ(ReadBytes(TablePath(*each)), after) << "the heading too, from the second save on";
    }
}

TEST_F(TableSheets, TheHeadingStaysWhateverItHolds) {
    for (const auto& [heading, saved] : {std::pair{"", ",,,,,"}, {"a", "a,,,,,"}, {" ,Tp", ",Tp,,,,"}}) {
        SCOPED_TRACE(heading);
        const TableSheet sheet =
            Loaded(table::Wedge, std::string(heading) + "\r\n4,1,2,3,4,5\r\n,1,2,3,4,5\r\n");
        EXPECT_EQ(Saved(table::Wedge, sheet.Rows), std::string(saved) + "\r\n4,1,2,3,4,\r\n");
    }
}

TEST_F(TableSheets, KnowsWhatASaveWouldLose) {
    const TableSheet sheet = Loaded(table::Pipe,
                                    "Size\r\n1,40,1.049,.133\r\nshort\r\n\r\n,,,,\r\n1,5,1.1,.1\r\n"
                                    "6,40,6.065,.28,6.625\r\n6,80,5.761,.432,,\n 1/2 ,40\r\n"
                                    "\x1A\r\n8,40,7.981,.322\r\n");
    std::map<int, std::string> lost;
    for (const LostLine& line : sheet.Lost) lost[line.Number] = line.Text;
    EXPECT_EQ(lost, (std::map<int, std::string>{{3, "short"},
                                                {6, "1,5,1.1,.1"},
                                                {7, "6,40,6.065,.28,6.625"},
                                                {9, " 1/2 ,40"},
                                                {10, "8,40,7.981,.322\r\n"}}));
    EXPECT_EQ(sheet.Rows.size(), 5);
}

TEST_F(TableSheets, TakesHostileFilesAsTheyAre) {
    EXPECT_TRUE(Loaded(table::Gas, "").Rows.empty());
    EXPECT_TRUE(Loaded(table::Gas,
                       "\x1A"
                       "Name\r\n")
                    .Rows.empty());

    std::string noise = "Name\n";
    for (int i = 0; i < 4096; ++i) noise += static_cast<char>(i % 256 == 0x1A ? 0 : i % 256);
    const TableSheet sheet = Loaded(table::Gas, noise);
    const std::string saved = Saved(table::Gas, sheet.Rows);
    EXPECT_EQ(Saved(table::Gas, LoadTable(table::Gas, {.FileName = "Table.txt"}).Rows), saved);

    // What would end the line or the file is written as a blank.
    EXPECT_EQ(Saved(table::Wedge, {{"Name"}, {"4\r\n5", "\x1A", "6"}}), "Name,,,,,\r\n4  5, ,6,,,\r\n");

    const std::string million(1 << 20, ',');
    EXPECT_EQ(Loaded(table::Gas, "Name\n" + million).Rows[1], TableFields{});
}

TEST_F(TableSheets, ASaveThatFailsLeavesTheOldFile) {
    const std::string before = ReadBytes(TablePath(table::Pipe));
    const fs::path file = MachinePath(TablePath(table::Pipe));
    fs::permissions(file, fs::perms::owner_read);
    EXPECT_THROW(SaveTable(table::Pipe, {{"Size"}}), RuntimeError);
    EXPECT_EQ(ReadBytes(TablePath(table::Pipe)), before);
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
    SaveTable(table::Pipe, {{"Size"}});
    EXPECT_EQ(ReadBytes(TablePath(table::Pipe)), "Size,,,,\r\n");
}

}  // namespace
}  // namespace quillmetra
