// Prints of the real forms by scripts: the page as characters, and the PDF.
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "forms/RegisterForms.h"
#include "paper/PdfPaper.h"
#include "platform/TemporaryFolder.h"
#include "script/ScriptPlayer.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

std::string ReadFile(const std::filesystem::path& path) { return ReadBytes(SuitePath(path)); }

struct Outcome {
    int Code;
    std::string Out, Errors;
};

// Plays a script of tests/scripts with further lines after it.
Outcome Play(const std::string& name, const std::string& more) {
    RegisterForms();
    std::istringstream lines("include " + (SourceFolder() / "tests/scripts" / name).string() + "\n" + more);
    std::ostringstream out;
    std::ostringstream errors;
    const int code = ScriptPlayer(out, errors).Play("s", lines);
    return {code, out.str(), errors.str()};
}

// A build without Qt says at once that it writes none.
bool WritesPdf() {
    try {
        OpenPdf({});
    } catch (const RuntimeError& error) {
        return error.Number != failure::NoPdf().Number;
    }
    return true;
}

// A script that ends at the printout of a calculated form, and how its record is changed before the print.
struct PageCase {
    const char* Page;               // a file of tests/reports/pages
    const char* Script;             // of tests/scripts
    const char* Mixture = nullptr;  // the menu entry, for a mixture of the two
    const char* One = "";
    const char* Other = "";
    const char* Unit = nullptr;  // the option of the units
};

// Back from the printout and to it again.
std::string Changes(const PageCase& each) {
    std::string lines = "strict off\nclick cmdCancel\n";
    if (each.Mixture != nullptr) {
        lines += std::string("click ") + each.Mixture + "\npick lstFluid \"" + each.One +
                 " \"\nclick cmdSelect\ntype txtPercent(0) 80\npick lstFluid \"" + each.Other +
                 " \"\nclick cmdSelect\nkey txtPercent(1) R\nclick cmdCalcPseudo\n";
        if (std::string(each.Page).starts_with("hammer")) lines += "click cmdCalculateliq\n";
    }
    if (each.Unit != nullptr) {
        lines += std::string("click cmdFormLayout\nanswer Yes\ndoubleclick ") + each.Unit + "\n";
    }
    return lines + "click mnuPrint\nexpect-form frmObxPrintCalc\n";
}

constexpr const char* SI = "optMassSIUnits";

// Each program in English and in SI units, of one fluid and of a mixture.
TEST(Print, PagesOfTheRealForms) {
    const PageCase cases[] = {
        {"liquid-english", "liquid-english"},
        {"liquid-si", "liquid-si"},
        {"liquid-mixture", "liquid-english", "mnuMixture2", "Toluene", "Benzene"},
        {"liquid-mixture-si", "liquid-english", "mnuMixture2", "Toluene", "Benzene", SI},
        {"gas", "gas"},
        {"gas-si", "gas", nullptr, "", "", SI},
        {"gas-volume", "gas-volume"},
        {"gas-mixture", "gas", "mnuMixtures2", "Methane", "Ethane"},
        {"gas-mixture-si", "gas", "mnuMixtures2", "Methane", "Ethane", SI},
        {"hammer", "hammer"},
        {"hammer-si", "hammer", nullptr, "", "", SI},
        {"hammer-mixture", "hammer", "mnuMixtures", "Toluene", "Benzene"},
        {"hammer-mixture-si", "hammer", "mnuMixtures", "Toluene", "Benzene", SI},
        {"liquid-data", "liquid-data"},
        {"liquid-data-si", "liquid-data", nullptr, "", "", SI},
        {"liquid-data-mixture", "liquid-data", "mnuMixture1", "Toluene", "Benzene"},
        {"liquid-data-mixture-si", "liquid-data", "mnuMixture1", "Toluene", "Benzene", SI},
        {"gas-data", "gas-data"},
        {"gas-data-si", "gas-data", nullptr, "", "", SI},
        {"gas-data-mixture", "gas-data", "mnuMixtures1", "Methane", "Ethane"},
        {"gas-data-mixture-si", "gas-data", "mnuMixtures1", "Methane", "Ethane", SI},
    };
    for (const PageCase& each : cases) {
        const TemporaryFolder folder;
        const std::string page = folder.Path().string() + "/page.txt";
        const bool asItIs = each.Mixture == nullptr && each.Unit == nullptr;
        const Outcome outcome = Play(std::string("print-") + each.Script + ".qs",
                                     (asItIs ? "" : Changes(each)) + "text " + page + "\nclick cmdOK\n");
        EXPECT_EQ(outcome.Code, 0) << each.Page << outcome.Errors;
        EXPECT_EQ(ReadFile(page), ReadFile(SourceFolder() / "tests/reports/pages" /
                                           (std::string("form-") + each.Page + ".txt")))
            << each.Page;
    }
}

// Two records with the headings of the run, and the same in three copies.
TEST(Print, RunOverRecords) {
    const std::string one = ReadFile(SourceFolder() / "tests/reports/pages/run-1.txt");
    const std::string two = ReadFile(SourceFolder() / "tests/reports/pages/run-2.txt");
    const std::pair<const char*, std::string> cases[] = {
        {"1", one + '\f' + two}, {"3", one + '\f' + one + '\f' + one + '\f' + two + '\f' + two + '\f' + two}};
    for (const auto& [copies, pages] : cases) {
        const TemporaryFolder folder;
        const std::string file = folder.Path().string() + "/run.txt";
        const Outcome outcome = Play("print-run.qs", "text " + file + "\nprinter " + copies +
                                                         " 1 9\nclick cmdProceed\nexpect-form frmTRProg\n");
        EXPECT_EQ(outcome.Code, 0) << outcome.Errors;
        EXPECT_EQ(ReadFile(file), pages);
    }
}

TEST(Print, PdfHasAPageForEachCopyAndItsLettersInIt) {
    if (!WritesPdf()) GTEST_SKIP() << "no Qt";
    const TemporaryFolder folder;
    const std::string pdf = folder.Path().string() + "/page.pdf";
    const Outcome outcome = Play("print-liquid-english.qs", "pdf " + pdf + "\nprinter 3 1 1\nclick cmdOK\n");
    EXPECT_EQ(outcome.Code, 0) << outcome.Errors;
    const std::string bytes = ReadFile(pdf);
    EXPECT_TRUE(bytes.starts_with("%PDF-"));
    EXPECT_NE(bytes.find("/Count 3"), std::string::npos);
    EXPECT_NE(bytes.find("/FontFile2"), std::string::npos);
}

TEST(Print, FileThatCannotBeWrittenIsTold) {
    const TemporaryFolder folder;
    for (const std::string kind : {"pdf ", "text "}) {
        if (kind == "pdf " && !WritesPdf()) continue;
        const Outcome outcome =
            Play("print-liquid-english.qs",
                 kind + folder.Path().string() + "/no/such/folder/page\nanswer OK\nclick cmdOK\n" +
                     "expect-box \"Printing Problem\" \"Path/File access error (Error 75)\" OK Stop\n"
                     "expect-form frmObxPrintCalc\nprinter 1 1 1\nclick cmdOK\n"
                     "expect-form frmLiqLineLoss\nexpect txtDestPress(1) 90.31\n");
        EXPECT_EQ(outcome.Code, 0) << outcome.Errors;
    }
}

// A database by its name or by its first bytes, and what the suite reads from its own folders.
TEST(Print, NoPrintGoesOverAFileOfTheSuite) {
    const TemporaryFolder folder;
    const std::string path = folder.Path().string() + "/";
    std::ofstream(path + "trdb.mdb") << "records";
    std::ofstream(path + "other.pdf") << "SQLite format 3 and more";
    const std::pair<std::string, std::string> cases[] = {{path + "trdb.mdb", "A database"},
                                                         {path + "other.pdf", "A database"},
                                                         {"@trdata/LIQUID.TXT", " is a file of the suite"},
                                                         {"@TRData/../trhdg.txt", "trhdg.txt is a file"}};
    for (const auto& [file, told] : cases) {
        std::string lines = "answer OK\nsave-as " + file + "\nclick mnuPdf\nexpect-message " + told + "\n";
        if (!file.starts_with('@'))
            lines += "answer OK\ntext " + file + "\nclick cmdOK\nexpect-message " + told + "\n";
        const Outcome outcome = Play("print-liquid-english.qs", lines);
        EXPECT_EQ(outcome.Code, 0) << outcome.Errors;
    }
    EXPECT_EQ(ReadFile(path + "trdb.mdb"), "records");
}

// A print that fails leaves the former file.
TEST(Print, ATextIsWrittenWholeOrNotAtAll) {
    const TemporaryFolder folder;
    const std::string page = folder.Path().string() + "/page.txt";
    std::ofstream(page) << "former";
    std::filesystem::create_directory(page + ".quillmetra-new");
    const Outcome outcome = Play("print-liquid-english.qs",
                                 "text " + page + "\nanswer OK\nclick cmdOK\nexpect-message access error\n");
    EXPECT_EQ(outcome.Code, 0) << outcome.Errors;
    EXPECT_EQ(ReadFile(page), "former");
}

TEST(Print, WithoutATargetThePageGoesToTheOutput) {
    const Outcome outcome = Play("print-liquid-english.qs", "printer 1 1 1\nclick cmdOK\n");
    EXPECT_EQ(outcome.Code, 0) << outcome.Errors;
    EXPECT_NE(outcome.Out.find("page |      Pipe ends"), std::string::npos);
}

}  // namespace
}  // namespace quillmetra
