// The path finder at work: a search that the user stops or closes, and what lands in memory and on disk.
#include "core/Words.h"
#include "forms/RegisterForms.h"
#include "forms/WinSeek.h"
#include "platform/Folders.h"
#include "platform/UserActs.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class PathFinderTest : public SuiteTest {
protected:
    PathFinderTest() {
        RegisterForms();
        StartUp(SuitePath(Folder));
        for (const char* name : {"a", "b", "c"}) {
            std::filesystem::create_directories(DataFolder() / name);
            std::ofstream(DataFolder() / name / "TRDB.MDB");
        }
        Open(1);
    }

    void Open(int slot) {
        FindDefaultPath(slot);
        Finder = static_cast<WinSeek*>(&LoadForm("WinSeek"));
    }

    std::string FileOfPaths() const {
        std::ifstream file(Folder / "TRDRV.txt", std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    WinSeek* Finder = nullptr;
    const std::string Before = SuitePath(Folder) + "\\TRData";
};

TEST_F(PathFinderTest, WhileItSearchesOnlyStopAndCancelAnswer) {
    ClickControl(Finder->cmdBrouse);
    int visits = 0;
    User.WhileServed = [&] {
        ++visits;
        EXPECT_EQ(Finder->lblSearch.Caption(), "Searching");
        for (const char* name : {"cmdOK", "cmdSave", "cmdSearch", "dirList", "drvList"}) {
            EXPECT_FALSE(ClickControl(*Finder->Find(name))) << name;
        }
        if (visits == 3) ClickControl(Finder->cmdStop);
    };
    ClickControl(Finder->cmdSearch);
    EXPECT_EQ(visits, 3);
    EXPECT_EQ(Finder->lblCount.Caption(), "1");
    EXPECT_EQ(Finder->Focus.Current(), &Finder->lstFoundFiles);
    EXPECT_TRUE(Finder->cmdOK.Works());
    ClickControl(Finder->cmdSearch);  // Reset
    EXPECT_EQ(Finder->dirList.Path(), CurrentFolder());
}

TEST_F(PathFinderTest, ClosingTheWindowStopsTheSearchFirst) {
    ClickControl(Finder->cmdBrouse);
    int visits = 0;
    User.WhileServed = [&] {
        if (++visits == 2) CloseWindow(*Finder);
    };
    ClickControl(Finder->cmdSearch);
    EXPECT_EQ(visits, 2);
    EXPECT_FALSE(IsFormLoaded("WinSeek"));
    EXPECT_EQ(Suite.DefaultPaths[1], Before);
}

TEST_F(PathFinderTest, OkKeepsInMemorySaveOnDiskAndCancelTakesBackTheSlot) {
    ClickControl(Finder->cmdBrouse);
    ClickControl(Finder->cmdSearch);
    ASSERT_EQ(Finder->lstFoundFiles.RowCount(), 3);
    PickRow(Finder->lstFoundFiles, 1);
    ClickControl(Finder->cmdSelect);
    const std::string found = ShownPath(DataFolder() / "b");
    EXPECT_EQ(Finder->txtPath.Text(), found);

    TypeText(Finder->txtPath, found + "\\");
    ClickControl(Finder->cmdSave);
    EXPECT_EQ(Suite.DefaultPaths[1], found);
    EXPECT_EQ(FileOfPaths(),
              '"' + found + "\"\r\n\"" + Before + "\"\r\n\"" + Before + "\"\r\n\"" + Before + "\"\r\n");
    ClickControl(Finder->cmdCancel);
    EXPECT_EQ(Suite.DefaultPaths[1], Before);
    EXPECT_NE(FileOfPaths().find(found), std::string::npos);

    const std::string saved = FileOfPaths();
    Open(4);
    TypeText(Finder->txtPath, found);
    ClickControl(Finder->cmdOK);
    EXPECT_EQ(Suite.DefaultPaths[4], found);
    EXPECT_FALSE(IsFormLoaded("WinSeek"));
    EXPECT_EQ(FileOfPaths(), saved);
}

// A path with letters that code page 1252 does not have is kept as UTF-8; one that the file of paths would
// give back as another one is refused before anything is written.
TEST_F(PathFinderTest, APathThatDoesNotReadBackIsNotSaved) {
    const auto save = [this](const std::string& folder) {
        const std::filesystem::path place = MachinePath(SuitePath(DataFolder()) + "\\" + folder);
        std::error_code none;  // not every system has a folder of that name
        const bool made = std::filesystem::create_directory(place, none);
        Open(2);
        TypeText(Finder->txtPath, ShownPath(place));
        ClickControl(Finder->cmdSave);
        return made;
    };
    if (save("a\"b")) {
        EXPECT_EQ(User.LastText(), "Bad file name or number occurred Path " + Finder->txtPath.Text());
    }
    EXPECT_EQ(FileOfPaths(), "");
    ClickControl(Finder->cmdCancel);
    EXPECT_TRUE(save("\u041F\u0435\u0442"));
    const std::string path = Suite.DefaultPaths[2];
    EXPECT_TRUE(path.ends_with("\u041F\u0435\u0442"));
    EXPECT_TRUE(FileOfPaths().starts_with("\xEF\xBB\xBF\""));
    Suite.DefaultPaths[2].clear();
    EXPECT_TRUE(ReadDefaultPaths());
    EXPECT_EQ(Suite.DefaultPaths[2], path);
}

}  // namespace
}  // namespace quillmetra
