// What a repair makes of a damaged file: every row of the pages that were not touched is there, and the
// others are counted. QUILLMETRA_DAMAGES gives the number of random damages.
#include <map>
#include <random>
#include <set>

#include "platform/DatabasePages.h"
#include "tests/records/RecordFixture.h"

namespace quillmetra {
namespace {

constexpr std::size_t Page = 4096;
using Pages = std::set<std::size_t>;  // counted from 1

class RepairTest : public RecordTest {
protected:
    RepairTest() {
        for (int i = 0; i < 24; ++i) SaveNew("P-" + std::to_string(i), i % 5 + 1);
        TakeMixture("M-1", "\u00fc");
        EXPECT_TRUE(SaveTRCalc());
        whole_ = ReadBytes(Suite.DatabaseFile);
        std::vector<TableShape> shapes;
        for (const RecordTable* table : RecordTables()) shapes.push_back(table->Shape);
        shapes.push_back(ExtrasTable());
        DatabasePages(File(), shapes)
            .Read([&](PageRow& row) { rows_.push_back(std::move(row)); }, [](const std::string&) {});
        EXPECT_EQ(rows_.size(), 25U * 5 + 1 + 16) << "the pages give all rows of a whole file";
    }

    std::size_t PageCount() const { return whole_.size() / Page; }

    // The pages behind so many bytes of a file that broke off there.
    Pages Behind(std::size_t length) const {
        Pages pages;
        for (std::size_t page = length / Page + 1; page <= PageCount(); ++page) pages.insert(page);
        return pages;
    }

    static bool Touches(const Pages& pages, const PageRow& row) {
        return std::ranges::any_of(row.Pages, [&](std::uint32_t page) { return pages.contains(page); });
    }

    // Of a record without a head there is none.
    static int FoundExtra(Database& database, const PageRow& row) {
        const auto text = [&](std::size_t i) { return std::get<std::string>(row.Values[i]); };
        Recordset heads(database, HeadTable().Shape, Recordset::Unplaced());
        heads.Index("Tag_Number");
        if (!heads.Seek(text(0))) return 2;
        const std::string value = NamedValues(database, ExtrasTable()).Value(text(0), text(1));
        return value == text(2) ? 2 : 1;
    }

    // 0 for a row that is not there, 1 for one with other values.
    static int Found(Database& database, const PageRow& row) {
        if (row.Table == RecordTables().size()) return FoundExtra(database, row);
        Recordset rows(database, RecordTables()[row.Table]->Shape, Recordset::Unplaced());
        rows.Index("Tag_Number");
        if (!rows.Seek(std::get<std::string>(row.Values[0]))) return 0;
        for (std::size_t i = 0; i < row.Values.size(); ++i) {
            if (rows.Value(i) != row.Values[i]) return 1;
        }
        return 2;
    }

    void Repair(const std::string& damaged, const Pages& touched) {
        WriteData("TRDB.MDB", damaged);
        RepairReport report;
        try {
            report = RepairDB(Suite.DatabasePath);
        } catch (const RuntimeError& error) {
            for (const PageRow& row : rows_) ASSERT_TRUE(Touches(touched, row)) << error.Description;
            EXPECT_EQ(ReadBytes(Suite.DatabaseFile), damaged) << "nothing can be done, nothing is changed";
            return;
        }
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        EXPECT_EQ(database->Fault(), "");
        std::size_t missing = 0;
        for (const PageRow& row : rows_) {
            const int found = Found(*database, row);
            missing += found == 0 ? 1 : 0;
            EXPECT_TRUE(found == 2 || Touches(touched, row))
                << std::get<std::string>(row.Values[0]) << " of table " << row.Table << ", page "
                << row.Pages[0];
        }
        if (!report.WasDamaged) return;
        ++repaired_;
        if (missing > 0) ++withLosses_;
        EXPECT_TRUE(report.Lost.size() >= missing || report.MissingPages > 0) << RepairText(report);
        const std::int64_t heads = Recordset(*database, HeadTable().Shape).RecordCount();
        EXPECT_EQ(static_cast<std::int64_t>(report.Records), heads);
        EXPECT_EQ(ReadBytes(report.KeptAs), damaged);
    }

    std::string whole_;
    std::vector<PageRow> rows_;
    int repaired_ = 0, withLosses_ = 0;
};

TEST(RepairText, TellsWhatWasLostAndWhatIsKept) {
    const RepairReport report{
        .WasDamaged = true, .Records = 1, .MissingPages = 2, .Lost = {"a"}, .KeptAs = "k"};
    EXPECT_EQ(
        RepairText(report),
        "The database was damaged.\nIt broke off: 2 pages of its end are missing.\n1 record was saved.\n"
        "1 row could not be read:\na\nThe damaged file is kept as k");
}

TEST_F(RepairTest, ASoundFileStaysAsItIs) {
    EXPECT_FALSE(RepairDB(Suite.DatabasePath).WasDamaged);
    EXPECT_EQ(RepairText({}), "");
    EXPECT_FALSE(FileExists(SuitePath(DataFolder() / "TRDB.BAD")));
}

TEST_F(RepairTest, PagesOverwritten) {
    for (std::size_t page = 1; page <= PageCount(); ++page) {
        Repair(std::string(whole_).replace((page - 1) * Page, Page, std::string(Page, '\x5a')), {page});
    }
    EXPECT_GT(repaired_, 20);
    EXPECT_GT(withLosses_, 3);
}

// The commonest damage: a copy that broke off, at the end of a page or by a byte.
TEST_F(RepairTest, FilesCutShort) {
    for (std::size_t page = 1; page <= PageCount(); ++page) {
        Repair(whole_.substr(0, page * Page), Behind(page * Page));
    }
    const int atPages = repaired_;
    Repair(whole_.substr(0, whole_.size() - 1), {PageCount()});
    EXPECT_EQ(repaired_, atPages + 1) << "the engine would fill the last row up with a zero";
    EXPECT_GE(repaired_, 20);
}

// One byte of the first page: the header, the list of tables.
TEST_F(RepairTest, BytesOfTheFirstPage) {
    for (std::size_t place = 0; place < Page; place += place < 108 ? 1 : 257) {
        std::string damaged = whole_;
        damaged[place] = static_cast<char>(damaged[place] ^ 0x55);
        Repair(damaged, {1});
    }
    EXPECT_GT(repaired_, 40);
    // A file of a later version is none that is damaged.
    std::string newer = whole_;
    newer[63] = 2;
    newer.replace(newer.find("\"Calc By\""), 9, "\"Calc Hy\"");
    WriteData("TRDB.MDB", newer);
    EXPECT_THROW(RepairDB(Suite.DatabasePath), RuntimeError);
    EXPECT_EQ(ReadBytes(Suite.DatabaseFile), newer);
}

TEST_F(RepairTest, DamageAtRandom) {
    const char* const text = std::getenv("QUILLMETRA_DAMAGES");
    const int damages = text == nullptr ? 20 : std::atoi(text);
    std::mt19937 random(16);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    for (int i = 0; i < damages; ++i) {
        std::string damaged = whole_;
        Pages touched;
        if (below(4) == 0) {
            damaged.resize(1 + below(whole_.size() - 1));
            touched = Behind(damaged.size());
        }
        for (std::size_t k = below(4) + 1; k > 0 && damaged.size() > 600; --k) {
            const std::size_t place = below(damaged.size() - 512);
            const std::size_t size = below(2) == 0 ? 1 : 1 + below(512);
            for (std::size_t at = place; at < place + size; ++at) {
                damaged[at] = static_cast<char>(random());
                touched.insert(at / Page + 1);
            }
        }
        SCOPED_TRACE(i);
        Repair(damaged, touched);
    }
    std::cout << repaired_ << " repaired, " << withLosses_ << " with rows lost\n";
}

}  // namespace
}  // namespace quillmetra
