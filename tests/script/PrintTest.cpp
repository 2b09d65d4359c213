// Prints of the real forms by scripts: the page as characters, and the PDF.
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "forms/RegisterForms.h"
#include "script/ScriptPlayer.h"
#include "script/TemporaryFolder.h"
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

// Each script ends with a calculated form; its page must stand as a file of tests/reports/pages has it.
TEST(Print, PagesOfTheRealForms) {
    for (const std::string name :
         {"liquid-english", "liquid-si", "gas-mixture", "hammer", "liquid-data", "gas-data"}) {
        const TemporaryFolder folder;
        const std::string page = folder.Path().string() + "/page.txt";
        const Outcome outcome = Play("print-" + name + ".qs", "text " + page + "\nclick cmdOK\n");
        EXPECT_EQ(outcome.Code, 0) << outcome.Errors;
        EXPECT_EQ(ReadFile(page),
                  ReadFile(SourceFolder() / "tests/reports/pages" / ("form-" + name + ".txt")))
            << name;
    }
}

TEST(Print, PdfHasAPageForEachCopyAndItsLettersInIt) {
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
        const Outcome outcome =
            Play("print-liquid-english.qs",
                 kind + folder.Path().string() + "/no/such/folder/page\nanswer OK\nclick cmdOK\n" +
                     "expect-box \"Printing Problem\" \"Path/File access error (Error 75)\" OK Stop\n"
                     "expect-form frmObxPrintCalc\nprinter 1 1 1\nclick cmdOK\n"
                     "expect-form frmLiqLineLoss\nexpect txtDestPress(1) 90.31\n");
        EXPECT_EQ(outcome.Code, 0) << outcome.Errors;
    }
}

TEST(Print, NoPdfGoesOverADatabase) {
    const TemporaryFolder folder;
    const std::string database = folder.Path().string() + "/trdb.mdb";
    std::ofstream(database) << "records";
    const Outcome outcome =
        Play("print-liquid-english.qs",
             "save-as " + database +
                 "\nanswer OK\nclick mnuPdf\nexpect-message A database cannot be written over");
    EXPECT_EQ(outcome.Code, 0) << outcome.Errors;
    EXPECT_EQ(ReadFile(database), "records");
}

TEST(Print, WithoutATargetThePageGoesToTheOutput) {
    const Outcome outcome = Play("print-liquid-english.qs", "printer 1 1 1\nclick cmdOK\n");
    EXPECT_EQ(outcome.Code, 0) << outcome.Errors;
    EXPECT_NE(outcome.Out.find("page |      Pipe ends"), std::string::npos);
}

}  // namespace
}  // namespace quillmetra
