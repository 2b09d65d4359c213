// The search over folders and the test of a path, on trees that each test makes for itself.
#include "tables/PathWalk.h"

#include <algorithm>

#include "platform/Folders.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

namespace fs = std::filesystem;

class PathWalkTest : public SuiteTest {
protected:
    PathWalkTest() : Plant(Folder / "Plant") { fs::create_directory(Plant); }

    void Make(const std::string& name) const {
        const fs::path file = Plant / name;
        fs::create_directories(file.parent_path());
        std::ofstream(file) << "x";
    }

    // The hits of a search, below the folder that it starts in.
    std::vector<std::string> Find(const std::string& pattern) {
        Walk.Pattern = pattern;
        Broken = Walk.Run(ShownPath(Plant));
        std::vector<std::string> hits;
        for (const std::string& hit : Walk.Hits) hits.push_back(hit.substr(Plant.string().size() + 1));
        return hits;
    }

    fs::path Plant;
    PathWalk Walk;
    bool Broken = false;
};

TEST_F(PathWalkTest, DeepestAndLastListedFoldersComeFirst) {
    for (const char* name :
         {"TRDB.MDB", "TRDB.BAK", "Area1/TRDB.MDB", "Area1/Old/TRDB.MDB", "Area1/Zed/x", "area2/trdb.mdb",
          "Backup/2019/TRDB.MDB", "Backup/2019/notes.txt", "Backup/2020/x"}) {
        Make(name);
    }
    EXPECT_EQ(Find("TRDB.MDB"),
              (std::vector<std::string>{R"(Backup\2019\TRDB.MDB)", R"(area2\trdb.mdb)",
                                        R"(Area1\Old\TRDB.MDB)", R"(Area1\TRDB.MDB)", "TRDB.MDB"}));
    EXPECT_FALSE(Broken);
    EXPECT_EQ(Joined("C:\\", "TRDB.MDB"), "C:\\TRDB.MDB");
}

TEST_F(PathWalkTest, PatternsTakeNoNoticeOfCase) {
    const struct {
        std::string Name;
        const char* Pattern;
        bool Matches;
    } cases[] = {{"TRDB.MDB", "trdb.mdb", true},
                 {"TRDB.MDB", "*.BAK; *.mdb", true},
                 {"TRDB.MDB", "TRDB", false},
                 {"TRDB.MDB", "T?DB*", true},
                 {"TRDB.MDB", "*D*M*B", true},
                 {"TRDB.MDB", "*D*M*X", false},
                 {"TRDB.MDB", "", false},
                 {"TRDB.MDB", ";;*", true},
                 {"a", "a?", false},
                 {std::string(2000, 'a'), "*a*a*a*a*a*a*a*b", false}};
    for (const auto& each : cases) {
        EXPECT_EQ(MatchesPattern(each.Name, each.Pattern), each.Matches) << each.Name << " " << each.Pattern;
    }
}

TEST_F(PathWalkTest, LoopsOfLinksAndDeepTreesEnd) {
    Make("Area/TRDB.MDB");
    std::error_code none;  // not every machine has links
    fs::create_directory_symlink(Plant, Plant / "Area" / "Loop", none);
    fs::create_symlink(Plant / "Area" / "Self", Plant / "Area" / "Self", none);
    fs::create_symlink(Plant / "nowhere", Plant / "TRDB.MDB", none);
    EXPECT_EQ(Find("*").size(), 1U);

    fs::path deep = Plant;
    for (int level = 0; level < 2 * PathWalk::MostLevels; ++level) deep /= "d";
    fs::create_directories(deep);
    std::ofstream(deep / "TRDB.MDB") << "x";
    EXPECT_EQ(Find("*").size(), 1U);
}

TEST_F(PathWalkTest, WhatCannotBeOpenedIsPassedOver) {
    Make("a/TRDB.MDB");
    Make("b/TRDB.MDB");
    fs::permissions(Plant / "b", fs::perms::none);
    // The folder goes away, or turns into a file, between its listing and its visit.
    Make("c/TRDB.MDB");
    Walk.Yield = [this, visits = 0]() mutable {
        if (++visits == 1) {
            fs::remove_all(Plant / "a");
            fs::remove_all(Plant / "c");
        }
        if (visits == 2) Make("c");
    };
    const auto hits = Find("*.MDB");
    fs::permissions(Plant / "b", fs::perms::owner_all);
    EXPECT_LE(hits.size(), 1U);  // whoever may read everything reads b too
    EXPECT_FALSE(Broken);
}

TEST_F(PathWalkTest, StopsAtAnyFolderAndKeepsWhatItHas) {
    for (const char* name : {"a/TRDB.MDB", "b/TRDB.MDB", "c/TRDB.MDB", "TRDB.MDB"}) Make(name);
    for (const int stopAt : {1, 2, 3, 4}) {
        int visits = 0;
        Walk.Yield = [&] {
            EXPECT_EQ(Walk.SearchFlag, -1);
            if (++visits == stopAt) Walk.SearchFlag = 0;
        };
        const std::vector<std::string> all = {"c\\TRDB.MDB", "b\\TRDB.MDB"};
        EXPECT_EQ(Find("*"), std::vector(all.begin(), all.begin() + std::max(0, stopAt - 2)));
        EXPECT_TRUE(Broken);
        EXPECT_EQ(visits, stopAt);
    }
}

TEST_F(PathWalkTest, AFullListEndsTheSearch) {
    int told = 0;
    Walk.ListFull = [&] { ++told; };
    for (std::size_t i = 0; i < PathWalk::MostHits; ++i) {
        std::ofstream(Plant / (std::to_string(i) + ".f"));
    }
    EXPECT_EQ(Find("*.f").size(), PathWalk::MostHits);
    EXPECT_EQ(told, 0);
    Make("one-more.f");
    EXPECT_EQ(Find("*.f").size(), PathWalk::MostHits);
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(Broken);
}

TEST_F(PathWalkTest, EachFolderIsVisitedOnce) {
    constexpr int across = 40;
    for (int i = 0; i < across; ++i) {
        fs::create_directory(Plant / std::to_string(i));
        for (int k = 0; k < across; ++k) fs::create_directory(Plant / std::to_string(i) / std::to_string(k));
    }
    Make("7/7/TRDB.MDB");
    int visits = 0;
    Walk.Yield = [&] { ++visits; };
    EXPECT_EQ(Find("trdb.mdb").size(), 1U);
    EXPECT_EQ(visits, 1 + across + across * across);
}

// --- the test of a path

class UsablePathTest : public PathWalkTest {
protected:
    bool Try(const std::string& path) {
        Said.clear();
        return IsUsablePath(path, {.MayCreate =
                                       [this](const std::string& level) {
                                           Asked.push_back(level);
                                           if (Answers.empty()) return false;
                                           const bool yes = Answers.back();
                                           Answers.pop_back();
                                           return yes;
                                       },
                                   .Tell = [this](const std::string& words,
                                                  bool stop) { Said = words + (stop ? " (stop)" : ""); }});
    }

    std::size_t EntriesOfPlant() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(Plant), fs::directory_iterator()));
    }

    std::vector<bool> Answers;  // taken from the end
    std::vector<std::string> Asked;
    std::string Said;
};

TEST_F(UsablePathTest, LevelsThatAreMissingAreMadeOnTheUsersWord) {
    const std::string plant = ShownPath(Plant);
    Answers = {false, true};
    EXPECT_FALSE(Try(plant + "\\New\\Deep"));
    EXPECT_EQ(Asked, (std::vector<std::string>{plant + "\\New", plant + "\\New\\Deep"}));
    EXPECT_TRUE(fs::is_directory(Plant / "New"));
    EXPECT_FALSE(fs::exists(Plant / "New" / "Deep"));
    Answers = {true};
    EXPECT_TRUE(Try(plant + "\\new\\\\Deep")) << "found whatever its case, empty levels pass";
    EXPECT_TRUE(fs::is_directory(Plant / "New" / "Deep"));
    EXPECT_EQ(Said, "");
}

TEST_F(UsablePathTest, TheWriteTestLeavesAUsersFilesAlone) {
    for (const char* name : {"TEST", "TEST1", "test2"}) {
        std::ofstream(Plant / name) << "mine";
    }
    EXPECT_TRUE(Try(ShownPath(Plant)));
    EXPECT_EQ(EntriesOfPlant(), 3U);
    for (const char* name : {"TEST", "TEST1", "test2"}) EXPECT_EQ(fs::file_size(Plant / name), 4U) << name;
}

TEST_F(UsablePathTest, EachFailureHasItsWords) {
    Make("file");
    const std::string plant = ShownPath(Plant);
    const std::string tooLong = Joined(plant, std::string(300, 'x'));
    const std::string nameFault = "Bad file name or number occurred Path ";
    const struct {
        std::string Path;
        std::string Words;
    } cases[] = {
        {"", ""},
        {"Q:\\none", "Drive does not exist (stop)"},
        {plant + "\\file\\x", "File access error occurred 0n path " + plant + "\\file"},
        {"some\\where", nameFault + "some\\where"},
        {tooLong, nameFault + tooLong},
    };
    for (const auto& each : cases) {
        EXPECT_FALSE(Try(each.Path)) << each.Path;
        EXPECT_EQ(Said, each.Words);
    }
    EXPECT_TRUE(Asked.empty());
    if (fs::exists("/proc")) {  // nobody writes there
        EXPECT_FALSE(Try("\\proc"));
        EXPECT_NE(Said, "");
    }
}

}  // namespace
}  // namespace quillmetra
