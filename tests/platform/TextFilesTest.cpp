// Text files as users and other programs leave them: missing, short, hostile, in another case of letters,
// and what is left of them when a write fails.
#include "platform/TextFiles.h"

#include <fstream>
#include <sstream>
#include <vector>

#include <gtest/gtest.h>
#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "platform/Folders.h"
#include "platform/PathText.h"
#include "platform/ProgramPlaces.h"
#include "platform/RuntimeError.h"
#include "platform/SafeFiles.h"
#include "platform/TemporaryFolder.h"

namespace quillmetra {
namespace {

namespace fs = std::filesystem;

class TextFiles : public ::testing::Test {
protected:
    std::string Write(const std::string& name, std::string_view bytes) const {
        std::ofstream(Folder / name, std::ios::binary) << bytes;
        return SuitePath(Folder) + "\\" + name;
    }
    std::string Bytes(const std::string& name) const {
        std::ostringstream bytes;
        bytes << std::ifstream(Folder / name, std::ios::binary).rdbuf();
        return bytes.str();
    }
    std::size_t FileCount() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(Folder), {}));
    }

private:
    const TemporaryFolder own_;

protected:
    const fs::path Folder = own_.Path();
};

#ifdef _WIN32
bool MakePipe(const fs::path&) { return false; }
bool MayReadAll() { return true; }
#else
bool MakePipe(const fs::path& path) { return mkfifo(path.c_str(), 0600) == 0; }
bool MayReadAll() { return geteuid() == 0; }
#endif

// The words of the failure of an act; "none" when it went well.
template <typename Act>
std::string FailureOf(Act act) {
    try {
        act();
        return "none";
    } catch (const RuntimeError& error) {
        return error.Description;
    }
}

TEST_F(TextFiles, LinesEndInAnyWay) {
    const struct {
        std::string_view Bytes;
        std::vector<std::string> Lines;
    } cases[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
        {"a\r\n\r\n\nb\r\n", {"a", "", "", "b"}},
        {"\n", {""}},
        {" a,\"b\" \n", {" a,\"b\" "}},
        {"a\x1A"
         "b\nc",
         {"a"}},
        {std::string_view("a\0b\n", 4), {std::string("a\0b", 3)}},
    };
    for (const auto& each : cases) {
        LineReader reader(Write("lines.txt", each.Bytes));
        std::vector<std::string> lines;
        for (std::string line; reader.Next(line);) lines.push_back(line);
        EXPECT_EQ(lines, each.Lines) << each.Bytes;
        EXPECT_TRUE(reader.AtEnd());
    }
}

TEST_F(TextFiles, ItemsEndAtCommasAndLines) {
    const struct {
        const char* Bytes;
        std::vector<std::string> Items;
    } cases[] = {
        {"", {}},
        {"1,2\n3", {"1", "2", "3"}},
        {"  a b  ,\tc\t\r\nd", {"a b", "c", "d"}},
        {"\"a, b\" , \"\" \n\" c \"", {"a, b", "", " c "}},
        {"a,,b", {"a", "", "b"}},
        {"\"never closed, 1\n2", {"never closed, 1\n2"}},
        {"a\n\nb", {"a", "", "b"}},
        {"C:\\DATA\\X\n\"D:\\\"", {"C:\\DATA\\X", "D:\\"}},
    };
    for (const auto& each : cases) {
        ItemReader reader(Write("items.txt", each.Bytes));
        std::vector<std::string> items;
        while (!reader.AtEnd()) items.push_back(reader.NextText());
        EXPECT_EQ(items, each.Items) << each.Bytes;
        EXPECT_EQ(FailureOf([&] { reader.NextText(); }), "Input past end of file");
    }
    ItemReader numbers(Write("numbers.txt", "1.5, -2E3 ,x\n\"7\""));
    for (const double number : {1.5, -2000.0, 0.0, 7.0}) EXPECT_EQ(numbers.NextNumber(), number);
}

TEST_F(TextFiles, AllBytesSurviveReadingAndWriting) {
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte) {
        const char c = static_cast<char>(byte);
        if (c != '\r' && c != '\n' && c != '\x1A') bytes += c;
    }
    std::string line;
    ASSERT_TRUE(LineReader(Write("all.txt", bytes)).Next(line));
    EXPECT_EQ(Code1252From(line), bytes);
    TextWriter writer(SuitePath(Folder) + "\\back.txt");
    writer.Line(line);
    writer.Commit();
    EXPECT_EQ(Bytes("back.txt"), bytes + "\r\n");
    EXPECT_EQ(Utf8From1252("\x80 20\xB0"
                           "C"),
              "\xE2\x82\xAC 20\xC2\xB0"
              "C");
    // The bytes 0x80 to 0x9F; five of them are no character and stay the control characters of their number.
    const char* const characters =
        "\u20AC\xC2\x81\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\xC2\x8D\u017D\xC2"
        "\x8F"
        "\xC2\x90\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\xC2\x9D\u017E"
        "\u0178";
    std::string high;
    for (int byte = 0x80; byte < 0xA0; ++byte) high += static_cast<char>(byte);
    EXPECT_EQ(Utf8From1252(high), characters);
    EXPECT_EQ(Code1252From(characters), high);
    // What the code page does not have, and what is no UTF-8 at all, passes through.
    for (const char* text : {"\xCE\xA9", "\xE6\xB0\xB4", "\xF0\x9F\x98\x80", "\xC3(",
                             "\xE2"
                             "B\xAC",
                             "\xE2\x82", "\xFF\xFE"}) {
        EXPECT_EQ(Code1252From(text), text);
    }
}

// On a system that writes "/"; a tag keeps its "\".
TEST_F(TextFiles, WordsHaveThePathsOfTheSystem) {
    if (fs::path::preferred_separator == '\\') GTEST_SKIP();
    EXPECT_EQ(WithSystemPaths("None on /a\\b c\\d\nA\\B \\ x of 1/2\\3"),
              "None on /a/b c/d\nA\\B \\ x of 1/2\\3");
    EXPECT_EQ(WithSystemPaths("A\\B is on file\n\\tmp\\x"), "A\\B is on file\n/tmp/x");
}

TEST_F(TextFiles, NamesAreFoundWithoutRegardToCase) {
    fs::create_directories(Folder / "TRData");
    Write("TRData/Liquid.TXT", "capital");
    const std::string folder = SuitePath(Folder);
    const auto firstLine = [](const std::string& name) {
        std::string line;
        LineReader(name).Next(line);
        return line;
    };
    EXPECT_EQ(firstLine(folder + "\\trdata\\LIQUID.txt"), "capital");
    EXPECT_EQ(firstLine(folder + "/TRDATA/liquid.txt"), "capital");
    EXPECT_TRUE(FileExists(folder + "\\TRDATA\\Liquid.txt"));
    const bool samePlace = fs::exists(Folder / "trdata");
    Write("TRData/liquid.txt", "exact");
    EXPECT_EQ(firstLine(folder + "\\trdata\\liquid.txt"), "exact") << "an exact name comes first";
    // A new file goes into the folder that exists, and replaces the one of its name.
    TextWriter writer(folder + "\\TRDATA\\LIQUID.txt");
    writer.Line("new");
    writer.Commit();
    EXPECT_EQ(FileCount(), 1U);
    EXPECT_EQ(std::distance(fs::directory_iterator(Folder / "TRData"), {}), samePlace ? 1 : 2);
}

TEST_F(TextFiles, WhatCannotBeReadSaysSo) {
    fs::create_directory(Folder / "folder.txt");
    Write("huge.txt", "x");
    fs::resize_file(Folder / "huge.txt", (256U << 20U) + 1);
    Write("secret.txt", "x");
    fs::permissions(Folder / "secret.txt", fs::perms::none);
    std::vector<std::pair<const char*, const char*>> cases = {
        {"none.txt", "File not found"},         {"none\\none.txt", "File not found"},
        {"huge.txt\\x.txt", "File not found"},  {"folder.txt", "Path/File access error"},
        {"huge.txt", "Path/File access error"},
    };
    if (MakePipe(Folder / "pipe.txt")) cases.emplace_back("pipe.txt", "Path/File access error");
    if (!MayReadAll()) cases.emplace_back("secret.txt", "Path/File access error");
    for (const auto& [name, words] : cases) {
        const std::string path = SuitePath(Folder) + "\\" + name;
        EXPECT_EQ(FailureOf([&] { LineReader reader(path); }), words) << name;
        EXPECT_EQ(FailureOf([&] { ItemReader reader(path); }), words) << name;
    }
    EXPECT_FALSE(FileExists(SuitePath(Folder) + "\\folder.txt"));
    EXPECT_EQ(FailureOf([] { LineReader reader(""); }), "File not found");
    EXPECT_EQ(FailureOf([] { LineReader reader(std::string(5000, 'x')); }).empty(), false);
}

TEST_F(TextFiles, AWriteReplacesTheFileInOneStepOrNotAtAll) {
    const std::string path = Write("set.txt", "old");
    {
        TextWriter writer(path);
        writer.Line("never put in place");
    }
    EXPECT_EQ(Bytes("set.txt"), "old");
    TextWriter writer(path);
    writer.Quoted("a, b");
    writer.Number(14.7);
    writer.Line("\xC2\xB0");
    writer.Commit();
    EXPECT_EQ(Bytes("set.txt"), "\"a, b\"\r\n 14.7\r\n\xB0\r\n");
    EXPECT_EQ(FileCount(), 1U) << "nothing is left beside it";
    fs::permissions(Folder / "set.txt", fs::perms(0664));
    const fs::perms rights = fs::status(Folder / "set.txt").permissions();
    writer.Commit();
    EXPECT_EQ(fs::status(Folder / "set.txt").permissions(), rights) << "as colleagues need it";
    ItemReader back(path);
    EXPECT_EQ(back.NextText(), "a, b");
    EXPECT_EQ(back.NextNumber(), 14.7);
}

TEST_F(TextFiles, AFailedWriteLeavesWhatWasThere) {
    const std::string path = Write("set.txt", "old");
    const auto write = [](const std::string& name) {
        return FailureOf([&] {
            TextWriter writer(name);
            writer.Line("new");
            writer.Commit();
        });
    };
    fs::permissions(Folder / "set.txt", fs::perms::owner_read);
    EXPECT_EQ(write(path), "Path/File access error") << "a file that its owner protects";
    EXPECT_EQ(Bytes("set.txt"), "old");
    fs::permissions(Folder / "set.txt", fs::perms::owner_all);
    {
        const std::ifstream held(Folder / "set.txt");  // by another program, which not every system minds
        EXPECT_EQ(write(path),
                  OpenFilesCanBeReplaced
                      ? "none"
                      : "Path/File access error\n" + SuitePath(Folder / "set.txt") + "\nPermission denied");
        EXPECT_EQ(Bytes("set.txt"), OpenFilesCanBeReplaced ? "new\r\n" : "old");
    }
    EXPECT_EQ(write(path + "\\below.txt"), "Path/File access error");
    fs::create_directory(Folder / "folder.txt");
    EXPECT_TRUE(write(SuitePath(Folder) + "\\folder.txt").starts_with("Path/File access error\n"));
    EXPECT_EQ(FileCount(), 2U) << "nothing is left beside them";
    EXPECT_EQ(write(SuitePath(Folder) + "\\new\\deep\\set.txt"), "none") << "folders are made";
    EXPECT_EQ(Bytes("new/deep/set.txt"), "new\r\n");
}

// Drives and shares are those of one system: elsewhere the first is a name as any, the second a folder.
TEST_F(TextFiles, PathsOfAllKinds) {
    constexpr bool hasDrives = !OpenFilesCanBeReplaced;
    EXPECT_EQ(MachinePath("Q:\\none\\x").is_absolute(), hasDrives);
    EXPECT_EQ(ShownPath(MachinePath(R"(\\server\share\a\..\b.txt)")),
              hasDrives ? R"(\\server\share\b.txt)" : R"(\server\share\b.txt)");
    EXPECT_EQ(ShownPath(AbsolutePath(R"(\\server\share\a)")),
              hasDrives ? R"(\\server\share\a)" : R"(\server\share\a)");
    EXPECT_EQ(AbsolutePath("a\\..\\b"), fs::current_path() / "b");
    EXPECT_EQ(ShownPath(MachinePath(R"(\\server\share)")),
              hasDrives ? R"(\\server\share)" : R"(\server\share)");
    EXPECT_EQ(ShownPath(MachinePath(R"(\\server)")), hasDrives ? R"(\\server)" : R"(\server)");
    EXPECT_TRUE(UserDataFolder().has_root_directory());
    std::string deep = SuitePath(Folder);
    while (deep.size() < 400) deep += "\\" + std::string(50, 'd') + " \u0416 \u6C34";
    TextWriter writer(deep + "\\set.txt");
    writer.UseUtf8();
    writer.Quoted("C:\\\u0416\u00FC");
    writer.Commit();
    EXPECT_EQ(ItemReader(deep + "\\SET.txt").NextText(), "C:\\\u0416\u00FC");
    EXPECT_TRUE(ReadBytes(deep + "\\set.txt").starts_with("\xEF\xBB\xBF\"C:"));

    const struct {
        const char *Name, *Proposed;
        bool IsDevice;
    } names[] = {{"NUL", "NUL-", true},           {"con.pdf", "con-.pdf", true},
                 {"COM1.x.y", "COM1-.x.y", true}, {"CONE.pdf", "CONE.pdf", false},
                 {"P-NUL", "P-NUL", false},       {"", "", false}};
    for (const auto& each : names) {
        EXPECT_EQ(ProposedFile("", each.Name), each.Proposed);
        EXPECT_EQ(IsDevice(SuitePath(Folder) + "\\" + each.Name), hasDrives && each.IsDevice);
    }
}

}  // namespace
}  // namespace quillmetra
