// TRLib.TXT, the user's unit library, on good and on hostile files.
#include "units/UnitLibraryFile.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "core/Words.h"
#include "tests/SuiteFixture.h"
#include "units/UnitCatalogue.h"

namespace quillmetra {
namespace {

namespace fs = std::filesystem;

class UnitLibraryFileTest : public SuiteTest {
protected:
    std::string FileText() const {
        std::ifstream file(DataFolder() / "TRLib.TXT", std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
};

void ExpectLibrary(const SuiteState& expected) {
    for (std::size_t list = 0; list < expected.UnitLibrary.size(); ++list) {
        if (Suite.UnitLibrary[list] == expected.UnitLibrary[list]) continue;
        for (std::size_t line = 0; line < 11; ++line) {
            ASSERT_TRUE(Suite.UnitLibrary[list][line] == expected.UnitLibrary[list][line])
                << list << " " << line << " " << Suite.UnitLibrary[list][line].Name;
        }
    }
    ASSERT_TRUE(Suite.PressureStem == expected.PressureStem);
    ASSERT_EQ(Suite.UnitLibraryName, expected.UnitLibraryName);
}

SuiteState DefaultLibrary() {
    UseDefaultLibrary();
    return Suite;
}

TEST_F(UnitLibraryFileTest, WrittenAndReadBack) {
    UseDefaultLibrary();
    Suite.UnitLibrary[0][10] = {"stone", 14};
    Suite.UnitLibrary[1][8] = {"a,\"b/c\" ", 0.125};
    Suite.UnitLibrary[20][10] = {"\xC2\xB5Pa.s", 0.001};
    Suite.UnitLibrary[5][10] = {"torrg", 0.0193368};
    Suite.PressureStem[10] = {"torr", 0.0193368};
    ASSERT_TRUE(WriteUnitLibrary());
    EXPECT_EQ(Suite.UnitLibraryName, "User Library");
    SuiteState written = Suite;
    written.UnitLibrary[1][8].Name = "a,\"b/c\"";  // a blank at the end is not kept
    const std::string text = FileText();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 420);
    EXPECT_EQ(text.substr(0, 31), "lb\r\n 1\r\nkg\r\n 2.2046225\r\ntonne\r\n");
    DefaultLibrary();
    ASSERT_TRUE(ReadUnitLibrary());
    ExpectLibrary(written);
    Calc.PressureMode = words::Absolute;
    ApplyPressureSuffix();
    EXPECT_EQ(Suite.UnitLibrary[5][10].Name, "torra");
}

TEST_F(UnitLibraryFileTest, AFileThatWasCutAnywhereGivesTheDefaultLibrary) {
    UseDefaultLibrary();
    Suite.UnitLibrary[20][10] = {"poise", 100.5};
    ASSERT_TRUE(WriteUnitLibrary());
    const std::string whole = FileText();
    const SuiteState expected = DefaultLibrary();
    for (std::size_t length = whole.size() - 1; length-- > 0;) {
        CutData("TRLib.TXT", length);
        Suite.UnitLibrary[3][10] = {"/fort", 0.5};  // must not survive
        ASSERT_FALSE(ReadUnitLibrary()) << length;
        ASSERT_NO_FATAL_FAILURE(ExpectLibrary(expected)) << length;
        ASSERT_EQ(FileText().size(), length) << "the file is the user's";
    }
}

TEST_F(UnitLibraryFileTest, OtherFilesGiveTheDefaultLibrary) {
    const SuiteState expected = DefaultLibrary();
    EXPECT_FALSE(ReadUnitLibrary()) << "none there";
    for (const std::string& text : {std::string(), std::string("\x1A"), std::string(5000, 'x'),
                                    std::string("lb\r\n1\r\n"), std::string(419, '\n')}) {
        WriteData("TRLib.TXT", text);
        EXPECT_FALSE(ReadUnitLibrary());
        ASSERT_NO_FATAL_FAILURE(ExpectLibrary(expected));
    }
    fs::remove(DataFolder() / "TRLib.TXT");
    fs::create_directory(DataFolder() / "TRLib.TXT");
    EXPECT_FALSE(ReadUnitLibrary());
    EXPECT_FALSE(WriteUnitLibrary());
    EXPECT_EQ(Suite.UnitLibraryName, "Default Library");
}

TEST_F(UnitLibraryFileTest, ReadsLeniently) {
    std::string text;
    const char* pairs[][2] = {
        {" lb ", "1"},     {"nothing", "0"},   {"minus", "-2"},
        {"words", "two"},  {"tiny", "1e-320"}, {"huge", "1e999"},
        {"12345678", "2"}, {"123456789", "3"}, {"\xB5\xB5\xB5\xB5\xB5\xB5\xB5\xB5\xB5", "4"},
        {"", "5"}};
    for (const auto& pair : pairs) text += std::string(pair[0]) + "\n" + pair[1] + "\n";
    text += std::string(400, '\n');
    WriteData("trlib.txt", text);
    ASSERT_TRUE(ReadUnitLibrary());
    const struct {
        const char* Name;
        double Factor;
    } expected[] = {{"lb", 1},
                    {"nothing", 0},
                    {"minus", 0},
                    {"words", 0},
                    {"tiny", 0},
                    {"huge", 0},
                    {"12345678", 2},
                    {"12345678", 3},
                    {"\xC2\xB5\xC2\xB5\xC2\xB5\xC2\xB5\xC2\xB5\xC2\xB5\xC2\xB5\xC2\xB5", 4},
                    {"", 5}};
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(Suite.UnitLibrary[0][i + 1].Name, expected[i].Name);
        EXPECT_EQ(Suite.UnitLibrary[0][i + 1].Factor, expected[i].Factor) << expected[i].Name;
    }
}

TEST_F(UnitLibraryFileTest, StemsAreTheNamesWithoutTheirEnding) {
    UseDefaultLibrary();
    Suite.UnitLibrary[5][8] = {"x", 2};
    Suite.UnitLibrary[5][9] = {};
    WriteUnitLibrary();
    ReadUnitLibrary();
    EXPECT_EQ(Suite.PressureStem[1].Name, "psi");
    EXPECT_EQ(Suite.PressureStem[2].Factor, 0.14504);
    EXPECT_EQ(Suite.PressureStem[8].Name, "") << "one letter has no stem";
    EXPECT_EQ(Suite.PressureStem[9].Name, "");
}

TEST_F(UnitLibraryFileTest, DeletedOnlyWithTheDefaultLibraryInItsPlace) {
    UseDefaultLibrary();
    Suite.UnitLibrary[0][7] = {"stone", 14};
    ASSERT_TRUE(WriteUnitLibrary());
    ASSERT_TRUE(DeleteUnitLibraryFile());
    EXPECT_FALSE(fs::exists(DataFolder() / "TRLib.TXT"));
    EXPECT_EQ(Suite.UnitLibrary[0][7].Name, "");
    EXPECT_EQ(Suite.UnitLibraryName, "Default Library");
    EXPECT_TRUE(DeleteUnitLibraryFile()) << "nothing is left to delete";
    // A folder with something in it cannot go, and the library in force stays.
    fs::create_directories(DataFolder() / "TRLib.TXT" / "mine");
    Suite.UnitLibrary[0][7] = {"stone", 14};
    EXPECT_FALSE(DeleteUnitLibraryFile());
    EXPECT_EQ(Suite.UnitLibrary[0][7].Name, "stone");
}

// Written before any library was loaded, the file must not end up empty over the user's.
TEST_F(UnitLibraryFileTest, NeverWritesALibraryThatWasNotLoaded) {
    UseDefaultLibrary();
    Suite.UnitLibrary[0][7] = {"stone", 14};
    WriteUnitLibrary();
    const std::string text = FileText();
    ClearUnitLibrary();
    Suite.UnitLibraryName.clear();
    ASSERT_TRUE(WriteUnitLibrary());
    EXPECT_EQ(FileText(), text);
}

}  // namespace
}  // namespace quillmetra
