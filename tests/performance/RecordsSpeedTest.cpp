// What a user of the browser waits for among 100,000 records.
#include <gtest/gtest.h>

#include "benchmarks/ManyRecords.h"
#include "records/RecordView.h"
#include "records/SaveRecord.h"
#include "tests/performance/Quickest.h"

namespace quillmetra {
namespace {

TEST(RecordsSpeedTest, AHundredThousandRecords) {
#if !defined(NDEBUG) || defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "a time says something of an optimised build alone";
#else
    const std::string file = ManyRecordsFile();
    EXPECT_LT(Quickest([&] { EXPECT_EQ(RecordView(file).Count(), ManyRecords); }), 0.2) << "open";
    RecordView view(file);
    EXPECT_LT(Quickest([&] { view.Next(), view.Position(); }), 0.001) << "next";
    EXPECT_LT(Quickest([&] { view.Previous(), view.Position(); }), 0.001) << "previous";
    int i = 0;
    EXPECT_LT(Quickest([&] { EXPECT_TRUE(view.Find(TagOf(i += 12345))); }), 0.001) << "find";
    EXPECT_LT(Quickest([&] { view.StartingWith("ft-12"); }), 0.001) << "search while typing";
    const std::unique_ptr<Database> database = OpenRecords(file);
    Recordset heads(*database, HeadTable().Shape);
    EXPECT_LT(Quickest([&] { heads.Keys(); }), 0.3) << "the list of tags";
    i = ManyRecords;
    EXPECT_LT(Quickest([&] {
                  TakeRecord(++i);
                  EXPECT_TRUE(SaveTRCalc());
              }),
              0.02)
        << "save, on the disk";
#endif
}

}  // namespace
}  // namespace quillmetra
