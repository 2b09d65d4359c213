// A run over 1,000 records to one PDF ends in 5 seconds, and its memory does not grow with the records.
#include <chrono>
#include <fstream>

#include "forms/frmPrintControl.h"
#include "forms/RegisterForms.h"
#include "paper/PdfPaper.h"
#include "platform/UserActs.h"
#include "tests/Memory.h"
#include "tests/records/RecordFixture.h"

namespace quillmetra {
namespace {

constexpr int Records = 1000;

// Prints to real files, and reads the memory of the process before each record.
class PdfHost : public FakeHost {
public:
    std::unique_ptr<Paper> OpenPaper(const PrintJob& job) override { return OpenPdf(job); }
    bool Yield() override {
        Resident.push_back(ResidentMegabytes());
        return false;
    }
    std::vector<double> Resident;  // MB
};

class PrintRunSpeed : public RecordTest {
protected:
    PrintRunSpeed() {
        RegisterForms();
        Calc = CalcRecord();
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        Transaction all(*database);
        for (int i = 0; i < Records; ++i) {
            const int program = i % 5 + 1;
            TakeFilledRecord(program, 1 + i % 4, "T-" + std::to_string(i));
            Calc.OtherCalcs = words::NoCodes;
            Calc.CalcOption = "SGGANXXX";
            for (const RecordTable* table :
                 {&HeadTable(), &UnitsTable(), ProgramTable(program), &SettingsTable()}) {
                AddRow(*database, *table);
            }
        }
        all.Commit();
    }

    static void AddRow(Database& database, const RecordTable& table) {
        Recordset rows(database, table.Shape);
        const RowValues values = RowOfRecord(table);
        rows.AddNew();
        for (std::size_t field = 0; field < values.size(); ++field) {
            if (values[field]) rows.Set(field, *values[field]);
        }
        rows.Update();
    }
};

TEST_F(PrintRunSpeed, AThousandRecordsGoToOnePdf) {
    PdfHost host;
    const std::filesystem::path pdf = Folder / "run.pdf";
    host.ChosenFile = SuitePath(pdf);
    ShowForm("frmTRProg");
    ShowForm("frmPrintControl");
    auto& control = dynamic_cast<frmPrintControl&>(LoadForm("frmPrintControl"));
    ClickControl(control.cmdAll);

    const auto start = std::chrono::steady_clock::now();
    ClickControl(control.cmdPdf);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();

    EXPECT_EQ(host.LastText(), "");
    EXPECT_FALSE(IsFormLoaded("frmPrintControl"));
    const std::string bytes = ReadBytes(SuitePath(pdf));
    EXPECT_NE(bytes.find("/Count " + std::to_string(Records)), std::string::npos);
    ASSERT_EQ(host.Resident.size(), static_cast<std::size_t>(Records));
    const double grown = host.Resident.back() - host.Resident[Records / 5];
    RecordProperty("seconds", std::to_string(seconds));
    RecordProperty("megabytes", std::to_string(grown));
    std::printf("%.2f s, %.1f MB more at the end than after %d records\n", seconds, grown, Records / 5);
#if defined(NDEBUG) && !defined(__SANITIZE_ADDRESS__)
    EXPECT_LT(seconds, 5);
    EXPECT_LT(grown, 8);
#endif
}

}  // namespace
}  // namespace quillmetra
