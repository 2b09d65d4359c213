// The behaviour of recordsets that the suite relies on, and the order of keys.
#include "platform/Database.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/KeyOrder.h"
#include "tests/OnServer.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

constexpr DatabaseKind Kind = {.Application = 0x54455354, .Schema = 1};

const TableShape Tanks = {"Odd \"name\"", {{"Tag", FieldType::Text, 10}, {"SG @ FTP", FieldType::Single}}};

class DatabaseTest : public SuiteTest {
protected:
    DatabaseTest() {
        if (!OnServer()) {
            Database::Create(File(), Kind, {Tanks});
            return;
        }
        const ServerLink link = NewServerLink();
        Database::CreateOnServer(link, Kind, {Tanks});
        WriteServerLink(File(), link);
    }

    std::filesystem::path File() const { return Folder / "tanks.db"; }

    static void Add(Recordset& rows, const std::string& tag, double value = 0) {
        rows.AddNew();
        rows.Set("Tag", tag);
        rows.Set("SG @ FTP", value);
        rows.Update();
    }
};

TEST_F(DatabaseTest, MovesSeeksAndEdits) {
    Database database(File(), Kind);
    Recordset rows(database, Tanks);
    EXPECT_TRUE(rows.AtEnd() && rows.AtStart());
    EXPECT_THROW(rows.MoveFirst(), RuntimeError);
    EXPECT_THROW(rows.MoveNext(), RuntimeError);
    EXPECT_THROW(rows.Seek("T-1"), RuntimeError) << "no index yet";
    EXPECT_THROW(rows.Index("Other"), RuntimeError);
    rows.Index("Tag_Number");
    EXPECT_FALSE(rows.Seek("T-1"));
    EXPECT_TRUE(rows.NoMatch());
    EXPECT_THROW(rows.Edit(), RuntimeError) << "no current record";
    EXPECT_THROW(rows.Set("Tag", "x"), RuntimeError) << "neither AddNew nor Edit";

    for (const char* tag : {"T-2", "t-1", "T-3"}) Add(rows, tag, 0.1);
    EXPECT_EQ(rows.RecordCount(), 3);
    EXPECT_THROW(Add(rows, "T-1"), RuntimeError) << "the key is taken";
    rows.MoveFirst();
    Add(rows, "T-9");
    EXPECT_EQ(rows.Text("Tag"), "t-1") << "a new row leaves the former one current";
    EXPECT_THROW(rows.Value("Level"), RuntimeError);
    rows.MoveNext();
    EXPECT_EQ(rows.Text("Tag"), "T-2");
    EXPECT_EQ(rows.Number("SG @ FTP"), 0.1);
    rows.Edit();
    rows.Set("Tag", "T-8");
    rows.MoveFirst();  // drops the edit
    EXPECT_TRUE(rows.Seek("t-2"));
    rows.Edit();
    rows.Set("Tag", "T-8");
    rows.Update();
    EXPECT_EQ(rows.Keys(), (std::vector<std::string>{"t-1", "T-3", "T-8", "T-9"}));
    rows.Delete();
    EXPECT_THROW(rows.Text("Tag"), RuntimeError) << "the deleted row has no fields";
    rows.MoveNext();
    EXPECT_EQ(rows.Text("Tag"), "T-9");
    rows.MoveNext();
    EXPECT_TRUE(rows.AtEnd());
    EXPECT_THROW(rows.MoveNext(), RuntimeError);
    rows.MovePrevious();
    EXPECT_EQ(rows.Text("Tag"), "T-9");
}

TEST_F(DatabaseTest, WhatIsReadAheadKnowsOwnWritesAndFailsWhereItIsSought) {
    Database database(File(), Kind), other(File(), Kind);
    Recordset rows(database, Tanks), others(other, Tanks);
    const auto valueOf = [](Recordset& from) {
        from.Index("Tag_Number");
        return from.Seek("T-1") ? from.Number("SG @ FTP") : -1;
    };
    const auto set = [&](Recordset& to, double value) {
        valueOf(to);
        to.Edit();
        to.Set("SG @ FTP", value);
        to.Update();
    };
    Add(rows, "T-1", 1);
    const TableShape wrong = {Tanks.Name, {{"Tag", FieldType::Text, 10}, {"Level", FieldType::Single}}};
    const TableShape missing = {"Pumps", Tanks.Fields};
    const std::array tables = {&Tanks, &missing}, withWrong = {&Tanks, &wrong};
    {
        const ReadAhead ahead(database, "t-1", tables);
        set(others, 2);
        EXPECT_EQ(valueOf(rows), OnServer() ? 1 : 2);
        set(rows, 3);
        set(others, 4);
        EXPECT_EQ(valueOf(rows), 4) << "the own write has ended it";
    }
    {
        const ReadAhead ahead(database, "t-2", tables);
        EXPECT_EQ(valueOf(rows), 4) << "another key";
    }
    (void)ReadAhead(database, "t-1", tables);
    set(others, 5);
    EXPECT_EQ(valueOf(rows), 5) << "it lives no more";
    const ReadAhead ahead(database, "t-1", withWrong);
    EXPECT_EQ(valueOf(rows), 5);
    EXPECT_THROW(
        {
            Recordset wrongRows(database, wrong, Recordset::Unplaced());
            valueOf(wrongRows);
        },
        RuntimeError);
}

TEST_F(DatabaseTest, TransactionsNestAndUndo) {
    Database database(File(), Kind);
    Recordset rows(database, Tanks);
    {
        Transaction all(database);
        Add(rows, "kept");
        {
            const Transaction inner(database);
            Add(rows, "undone");
        }
        all.Commit();
    }
    {
        const Transaction all(database);
        Add(rows, "undone too");
    }
    EXPECT_EQ(rows.Keys(), std::vector<std::string>{"kept"});
    EXPECT_FALSE(database.InTransaction());
}

// Keys with letters of every kind, and bytes that are no letters: an engine keeps all of them, in the one
// order.
TEST_F(DatabaseTest, KeysAndTextsComeBackInTheOrderOfKeys) {
    using namespace std::string_literals;
    std::vector<std::string> keys = {"b",
                                     "A",
                                     "a1",
                                     "10",
                                     "2",
                                     "-",
                                     " ",
                                     "\u00c4",
                                     "z\u00e9",
                                     "\u00d7",
                                     "\u00f7",
                                     "\u0178",
                                     "\u0416",
                                     "\u03a9",
                                     "\u20ac",
                                     "\U0001f600",
                                     "\ufffd",
                                     "a\0b"s,
                                     "\xc3",
                                     "\xff",
                                     "a\xc3(",
                                     "\xe0\x80\x80",
                                     "\xed\xa0\x80",
                                     "\xf4\x8f\xbf\xbf",
                                     "\xf4\x90\x80\x80",
                                     "'\"\\%_"};
    Database database(File(), Kind);
    Recordset rows(database, Tanks);
    rows.Index("Tag_Number");
    for (const std::string& key : keys) Add(rows, key, 0.1);
    std::ranges::sort(keys, [](const auto& a, const auto& b) { return CompareKeys(a, b) < 0; });
    EXPECT_EQ(rows.Keys(), keys);
    std::vector<std::string> walked;
    for (rows.MoveFirst(); !rows.AtEnd(); rows.MoveNext()) walked.push_back(rows.Text("Tag"));
    EXPECT_EQ(walked, keys);
    constexpr std::string_view fields[] = {"Tag", "SG @ FTP"};
    std::size_t known = 0;
    rows.EachRow(fields, [&](Recordset::TextRow row) {
        const bool isWhole = std::stof(std::string(row[1])) == 0.1F;
        if (isWhole && std::ranges::find(keys, row[0]) != keys.end()) ++known;
    });
    EXPECT_EQ(known, keys.size());
    for (const char* other : {"B", "\u00e4", "Z\u00c9", "\u00ff", "\u0436", "\u03c9", "A\xc3("})
        EXPECT_TRUE(rows.Seek(other)) << other;
    for (const char* none : {"\u00c3", "\xc3\xc3", "a", "-0"})
        EXPECT_EQ(rows.Seek(none), *none == 'a') << none;
    for (const std::string& a : keys) {
        for (const std::string& b : keys)
            EXPECT_EQ(SortKey(a) < SortKey(b), CompareKeys(a, b) < 0) << a << " and " << b;
    }
    // Numbers as well: the largest, the smallest, and a zero without a sign.
    for (const double number : {-3.4e38, 1.2e-38, 123456.7, -0.0}) {
        ASSERT_TRUE(rows.Seek("b"));
        rows.Edit();
        rows.Set("SG @ FTP", number);
        rows.Update();
        EXPECT_EQ(std::signbit(rows.Number("SG @ FTP")), number < 0);
        EXPECT_EQ(rows.Number("SG @ FTP"), number);
    }
}

struct BadLink {
    const char *Text, *Refusal;
};
constexpr BadLink BadLinks[] = {
    {"", "It names neither a host nor a service"},
    {"host=a\nport=x\n", "Its port is no number from 1 to 65535"},
    {"host=a\nport=65536\n", "Its port is no number"},
    {"host=a\npassword=secret\n", "A link holds no password"},
    {"host=a\nrows\n", "It has a line that is not understood: rows"},
    {"host=a\x01\n", "Its host is no name"},
    {"host=no.such.host.invalid\n", "cannot be reached\nno.such.host.invalid, schema quillmetra\n"},
    {"host=127.0.0.1\nport=1\nschema=x\n", "cannot be reached\n127.0.0.1:1, schema x\n"},
};

TEST_F(DatabaseTest, LinksThatCannotBeFollowedSayWhy) {
    const auto refusal = [this](const std::string& link) -> std::string {
        ReplaceFile(SuitePath(File()), link);
        try {
            Database(File(), Kind);
        } catch (const RuntimeError& error) {
            return error.Description;
        }
        return "";
    };
    const std::string first = "Quillmetra database link 1\n";
    for (const BadLink& each : BadLinks) {
        const std::string found = refusal(first + each.Text);
        const bool isBuilt = found.find("this build of the program knows no server") == std::string::npos;
        EXPECT_TRUE(!isBuilt || found.find(each.Refusal) != std::string::npos) << each.Text << found;
    }
    EXPECT_EQ(refusal("Quillmetra database link 2\nhost=a\n"), failure::DatabaseNewer().Description);
    EXPECT_NE(refusal(first + std::string(5000, '\n')).find("It is too long"), std::string::npos);
    if (!OnServer()) return;
    const auto asked = [&](const std::string& more) {
        return refusal(first + "host=" + NewServerLink().Host + "\n" + more);
    };
    EXPECT_EQ(asked("schema=none\n").find("Open failed (Database invalid)"), 0U);
    EXPECT_EQ(asked("dbname=none\n").find("The server has no such database"), 0U);
    EXPECT_EQ(asked("user=none\n").find("The server refuses the log-in"), 0U);
    const ServerLink later = NewServerLink();
    Database::CreateOnServer(later, {Kind.Application, Kind.Schema + 9}, {});
    EXPECT_EQ(asked("schema=" + later.Schema + "\n"), failure::DatabaseNewer().Description);
}

TEST(KeyOrder, TakesNoNoticeOfCaseInAnyAlphabet) {
    for (const auto& [a, b] : {std::pair{"abc-1", "ABC-1"}, std::pair{"\u00fcber", "\u00dcBER"},
                               std::pair{"\u017elab", "\u017dLAB"}, std::pair{"\u00ff", "\u0178"},
                               std::pair{"\u03c0", "\u03a0"}, std::pair{"\u0434\u0451", "\u0414\u0401"}}) {
        EXPECT_EQ(CompareKeys(a, b), 0) << a;
    }
    // The ends of each range of letters, and what stands just outside of them.
    for (const auto& [a, b] :
         {std::pair{"azAZ", "AZaz"}, std::pair{"\u00e0\u00f6\u00f8\u00fe", "\u00c0\u00d6\u00d8\u00de"},
          std::pair{"\u0101\u012f\u0133\u0137\u014b\u0177", "\u0100\u012e\u0132\u0136\u014a\u0176"},
          std::pair{"\u013a\u0148\u017a\u017e", "\u0139\u0147\u0179\u017d"},
          std::pair{"\u03b1\u03cb\u0450\u045f\u0430\u044f", "\u0391\u03ab\u0400\u040f\u0410\u042f"}}) {
        EXPECT_EQ(CompareKeys(a, b), 0) << a;
    }
    for (const auto& [a, b] :
         {std::pair{"@", "`"}, std::pair{"[", "{"}, std::pair{"\u00d7", "\u00f7"},
          std::pair{"\u00df", "\u00ff"}, std::pair{"\u0130", "\u0131"}, std::pair{"\u0138", "\u0139"},
          std::pair{"\u0149", "\u014a"}, std::pair{"\u017f", "\u0180"}, std::pair{"\u0390", "\u03b0"},
          std::pair{"\u03ac", "\u03cc"}}) {
        EXPECT_EQ(CompareKeys(a, b), -1) << a;
    }
    // Each before the next, in both directions; with bytes that are no characters.
    const std::vector<std::string> order = {"",   "-",      "1",      "10",     "2",    "a",   "A1",
                                            "ab", "\u00d7", "\u00e9", "\u00f7", "\xc3", "\xff"};
    for (std::size_t i = 0; i < order.size(); ++i) {
        for (std::size_t k = 0; k < order.size(); ++k) {
            const int expected = i < k ? -1 : i > k ? 1 : 0;
            EXPECT_EQ(CompareKeys(order[i], order[k]), expected) << order[i] << " and " << order[k];
        }
    }
}

}  // namespace
}  // namespace quillmetra
