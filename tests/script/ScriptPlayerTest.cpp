// Scripts that pass, scripts that fail at the right line with the right words, and what a script prints,
// against the proving forms.
#include "script/ScriptPlayer.h"

#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "platform/Forms.h"
#include "platform/TemporaryFolder.h"
#include "tests/script/ProvingForms.h"

namespace quillmetra {
namespace {

struct Outcome {
    int Code;
    std::string Out, Errors;
};

Outcome Play(const std::string& script) {
    RegisterProvingForms();
    std::istringstream lines(script);
    std::ostringstream out;
    std::ostringstream errors;
    const int code = ScriptPlayer(out, errors).Play("s", lines);
    return {code, out.str(), errors.str()};
}

// They leave no form behind that another test would meet.
class ProvingForms : public ::testing::Test {
protected:
    ~ProvingForms() override { ForgetForms(); }
};

TEST_F(ProvingForms, PlaysWhatAUserCanDoAndSee) {
    const char* const scripts[] = {
        "",
        "# a comment\n\n   \n  start\r\nexpect-form FRMTRPROG\nexpect-title Proving form\n",
        "\xEF\xBB\xBFstart\ntype TXTA caf\xC3\xA9 # text\nexpect txta \"caf\xC3\xA9 # text\"",
        // A text stands as it is without quotes; in quotes it may end in blanks and hold line breaks.
        "start\ntype txtA  a \"b\"  \nexpect txtA \"a \\\"b\\\"  \"\ntype txtA \"\"\nexpect txtA \"\"",
        "start\ntype txtFlow(2) 1.5\nexpect txtFlow(2) 1.5",
        // Numbers are equal to six digits; texts are equal as they are.
        "start\ntype txtA 123456.4\nexpect txtA \" 123456\"\ntype txtA 1.5e-7\nexpect txtA .00000015",
        "start\nclick optKind(2)\nexpect-state optKind(2) checked\nexpect-state optKind(1) unchecked",
        "start\nexpect-state cmdOff disabled\nexpect-state txtHidden hidden\nexpect-state txtHidden enabled",
        "start\npick lstFluid 2\nexpect lstFluid Water\npick lstFluid Tol\nexpect lstFluid Toluene\n"
        "pick lstFluid \"A\"\nexpect-row lstFluid 0 Acetone\nexpect-count lstFluid 3\nexpect-focus lstFluid",
        "start\npick lstMany 1\npick lstMany 2\nunpick lstMany 1",
        "start\nrow grdTable 1\nexpect lblResult first\nrow grdTable 2 2\nexpect-cell grdTable 1 1 first",
        "start\nexpect-tip lblResult What came of it\nexpect-count grdTable 3",
        "start\ntype txtA 1\nkey txtA Backspace\nexpect txtA \"\"\nkey txtA \xC3\xA9\nkey txtA "
        "Tab\nexpect-focus txtB",
        // An entry is judged after its head has opened.
        "start\nclick chkEntry\nclick mnuEntry\nexpect lblResult entry",
        // A box takes the oldest answer that it offers.
        "start\nclick cmdAsk\nexpect lblResult stayed\nanswer yes\nclick cmdAsk\nexpect lblResult went",
        "start\nclick cmdAsk\nexpect-message Two\nexpect-box Question \"Go on? \" YesNo Question "
        "No\nexpect-no-message",
        "start\nexpect-no-message\nclick cmdFails\nexpect-message Division by zero\ntype txtA still alive",
        "start\ninput \"1 2\"\nclick cmdEndless",
        "start\nfile a b.txt\nclick cmdFile\nexpect lblResult a b.txt\nclick cmdFile\nexpect lblResult no "
        "file\n"
        "save-as new.txt\nclick cmdSave\nexpect lblResult new.txt\ncancel\nclick cmdSave\nexpect lblResult "
        "no file",
        "start\nfont \"DejaVu Sans\" 9.5\nclick cmdFont\nexpect lblResult DejaVu Sans\ncolour 255\nclick "
        "cmdColour\n"
        "expect lblResult 255\nprinter 3 1 2\nclick cmdPrinter\nexpect lblResult 3",
        // A form over the others plays the lines that follow until it closes, by itself or by its close box.
        "start\nclick cmdDialog\nexpect-form frmDialog\nexpect-focus txtName\ntype txtName Ann\nclick cmdOK\n"
        "expect-form frmTRProg\nexpect lblResult Ann\nexpect lblAfter closed",
        "start\nclick cmdDialog\nkey txtName x\nkey txtName Enter\nexpect lblResult x",
        "start\nclick cmdDialog\nclose\nexpect-form frmTRProg\nform frmDialog\nexpect txtName \"\"",
        "start\nclick cmdDialog\nquit\nexpect-form nothing after this is read",
        "start\nclose\nexpect-form none",
        "start\nclick mnuExit\nstart\nexpect-form frmTRProg\ntype txtA afresh",
        "start\nfocus txtB\nexpect-focus txtB\nleave\nfocus txtB",
        "set-date 2026-11-24\npdf a.pdf\ntext a.txt\nstrict on\nstart\nquit",
        "strict on\nstart\nanswer OK\nanswer No\nclick cmdAsk\nexpect-message Two\nexpect-message Go",
    };
    for (const char* script : scripts) {
        const Outcome outcome = Play(script);
        EXPECT_EQ(outcome.Code, 0) << script << "\n" << outcome.Errors;
        EXPECT_EQ(outcome.Errors, "") << script;
        EXPECT_EQ(LoadedForm("frmTRProg"), nullptr) << script;
    }
}

TEST_F(ProvingForms, EndsAtTheFirstFailure) {
    const struct {
        const char* Script;
        const char* Error;
    } cases[] = {
        {"strat", "s:1: there is no command strat"},
        {"start\n\n# x\nexpect txtA 1", "s:4: expect: txtA is \"\", not \"1\""},
        {"click cmdAsk", "s:1: click: no form is shown; start shows the first one"},
        {"start\nclick cmdNone", "s:2: click: frmTRProg has no control cmdNone"},
        {"start\nclick txtFlow(1)", "s:2: click: frmTRProg has no control txtFlow(1)"},
        {"start\nclick txtFlow", "s:2: click: frmTRProg has no control txtFlow"},
        {"start\nclick txtFlow(x)", "s:2: click: txtFlow(x) is no name"},
        {"start\nclick", "s:2: click: CONTROL is missing"},
        {"start\nclick cmdAsk now", "s:2: click: too much on the line: now"},
        {"start\ntype txtA \"open", "s:2: type: the closing quote is missing"},
        {"start\ntype txtA \"a\"b", "s:2: type: a blank is missing after the closing quote"},
        {"start\ntype txtA \"\\x\"", "s:2: type: after \\ in quotes comes one of \" \\ n t"},
        {"start\nclick cmdOff", "s:2: click: cmdOff is disabled"},
        {"start\ntype txtHidden 1", "s:2: type: txtHidden is hidden"},
        {"start\ntype txtLocked 1", "s:2: type: txtLocked is locked"},
        {"start\ntype cmdAsk 1", "s:2: type: cmdAsk is no box to type in"},
        {"start\nclick mnuEntry", "s:2: click: mnuEntry is disabled"},
        // The form takes the focus back, so that nobody could type there.
        {"start\ntype txtA bad\ntype txtB 1", "s:3: type: the focus did not stay on txtB, txtA has it"},
        {"start\npick lstFluid 3", "s:2: pick: lstFluid has 3 rows"},
        {"start\npick lstFluid Wine", "s:2: pick: no row of lstFluid starts with Wine"},
        {"start\npick txtA 1", "s:2: pick: txtA is no list"},
        {"start\nunpick lstFluid 1", "s:2: unpick: lstFluid takes one row only"},
        {"start\nrow grdTable 3", "s:2: row: grdTable has 3 rows of 3 columns"},
        {"start\nexpect-cell grdTable 9 9 x", "s:2: expect-cell: Subscript out of range"},
        {"start\nkey txtA Entre", "s:2: key: Entre is no key"},
        {"start\ntype txtA 123457\nexpect txtA 123456", "s:3: expect: txtA is \"123457\", not \"123456\""},
        {"start\ntype txtA 1x\nexpect txtA 1", "s:3: expect: txtA is \"1x\", not \"1\""},
        {"start\nexpect-state txtA checked", "s:2: expect-state: txtA has no tick"},
        {"start\nexpect-state txtA gone", "s:2: expect-state: gone is no state"},
        {"start\nexpect-message x", "s:2: expect-message: no message box is unread"},
        {"start\nclick cmdAsk\nexpect-no-message",
         "s:3: expect-no-message: a box is unread: \"Two\\nlines\""},
        {"start\nclick cmdAsk\nexpect-box Note \"Two\"",
         "s:3: expect-box: the text is \"Two\\nlines\", not \"Two\""},
        {"start\nclick cmdAsk\nexpect-message Two\nexpect-box Question \"Go on? \" YesNo Question Yes",
         "s:4: expect-box: the default is No, not Yes"},
        {"start\nclick cmdEndless", "s:2: click: more than 1,000 boxes from one command"},
        {"start\nfont Sans 9\nclick cmdFile",
         "s:3: click: a file dialog came, and the answer queued is for another kind"},
        {"start\nsave-as x\nclick cmdFile",
         "s:3: click: a dialog for opening a file came; its answer is queued by file"},
        {"start\nanswer perhaps", "s:2: answer: perhaps is none of OK, Yes, No, Cancel"},
        {"start\ncolour 16777216", "s:2: colour: a colour is at most 16777215"},
        {"start\nprinter 0 1 1", "s:2: printer: 0 is less than 1"},
        {"start\nclick cmdDialog\nform frmTRProg\nclick cmdAsk", "s:4: click: frmTRProg waits for frmDialog"},
        {"start\nclick cmdDialog\nstart", "s:3: start: frmDialog still waits for an answer"},
        {"start\nclick cmdDialog\nexpect txtName x\nquit", "s:3: expect: txtName is \"\", not \"x\""},
        {"start\nclick mnuExit\nclick cmdAsk", "s:3: click: the suite has ended"},
        {"start\nform frmNone", "s:2: form: frmNone is not loaded"},
        {"set-date 2026-02-30", "s:1: set-date: 2026-02-30 is no day, such as 2026-11-24"},
        {"start\nnew 6", "s:2: new: programs are numbered 1 to 5"},
        {"folder no such folder", "s:1: folder: there is no folder no such folder"},
        {"write-file x y",
         "s:1: write-file: the suite is not started, or on a folder that is not the script's"},
        {"start\nwrite-file ../../x y", "s:2: write-file: ../../x is outside of the suite's folder"},
        {"start\nremove-file x", "s:2: remove-file: there is no file x"},
        {"start\nexpect-status x", "s:2: expect-status: the status line is \"\", not \"x\""},
        {"include none.qs", "s:1: include: cannot read the script none.qs"},
        {"strict on\nstart\nclick cmdAsk", "s:3: click: no answer is queued for the box above"},
        {"strict on\nstart\nanswer No\nclick cmdAsk", "s:4: click: the box above has no button No"},
        {"strict on\nstart\nclick cmdEndless", "s:3: click: no input is queued for the box above"},
        {"strict on\nstart\nclick cmdFile", "s:3: click: no answer is queued for a file dialog"},
        {"strict on\nstart\nanswer OK", "s:3: quit: 1 queued answers were not asked for"},
        {"strict on\nstart\nanswer OK\nanswer No\nclick cmdAsk\nquit",
         "s:6: quit: a box is unread: Two\\nlines"},
    };
    for (const auto& each : cases) {
        const Outcome outcome = Play(each.Script);
        EXPECT_EQ(outcome.Code, 1) << each.Script;
        EXPECT_EQ(outcome.Errors, std::string(each.Error) + "\n") << each.Script;
    }
}

TEST_F(ProvingForms, PrintsBoxesAndControls) {
    const Outcome outcome = Play(
        "start\nanswer Yes\nclick cmdAsk\ninput 0.8\nclick cmdEndless\ntype txtB \"a b\"\nshow txtB\nshow "
        "chkEntry\n"
        "show mnuExit\nshow-status\nclick cmdDialog\ndump");
    EXPECT_EQ(outcome.Out,
              "message | Note | Two\\nlines | OK | None | OK\n"
              "message | Question | Go on?  | YesNo | Question | Yes\n"
              "input | Ask | Gravity | 0.8\n"
              "txtB = a b\n"
              "chkEntry = unchecked\n"
              "mnuExit = E&xit\n"
              "status | \n"
              "frmDialog | Form | \n"
              "txtFirst | TextBox |  | enabled | visible | #000000 on #FFFFFF\n"
              "txtName | TextBox |  | enabled | visible | #000000 on #FFFFFF\n"
              "cmdOK | CommandButton | OK | enabled | visible | #000000 on #FFFFFF\n");
}

TEST_F(ProvingForms, IncludesScriptsBesideItAndNamesTheirLines) {
    const TemporaryFolder folder;
    const auto write = [&](const char* name, const char* text) {
        std::ofstream(folder.Path() / name) << text;
        return (folder.Path() / name).string();
    };
    const auto play = [](const std::string& path) {
        RegisterProvingForms();
        std::ostringstream out;
        std::ostringstream errors;
        ScriptPlayer(out, errors).Play(path);
        return errors.str();
    };
    const std::string fill = write("fill.qs", "type txtA 1\nexpect txtA 1");
    write("wrong.qs", "\nexpect txtA 3\n");
    const std::string self = write("self.qs", "include self.qs\n");
    const std::string good = write("good.qs", "start\ninclude fill.qs\nexpect txtA 1");
    const std::string bad = write("bad.qs", "start\ninclude fill.qs\ninclude wrong.qs\n");
    const std::string late = write("late.qs", "start\ninclude fill.qs\nexpect txtA 2\n");
    EXPECT_EQ(play(good), "");
    EXPECT_EQ(play(bad), (folder.Path() / "wrong.qs").string() + ":2: expect: txtA is \"1\", not \"3\"\n");
    EXPECT_EQ(play(late), late + ":3: expect: txtA is \"1\", not \"2\"\n");
    EXPECT_EQ(play(self), self + ":1: include: too many scripts include one another\n");
    EXPECT_NE(play(folder.Path().string()).find("cannot read the script"), std::string::npos);
    EXPECT_NE(play(fill).find("start shows the first one"), std::string::npos);
}

// The program's folder is a fresh one with the shipped tables, or the one that the script names as it is.
TEST_F(ProvingForms, SeedsOnlyItsOwnFolder) {
    const TemporaryFolder folder;
    EXPECT_EQ(Play("folder " + folder.Path().string() + "\nstart").Code, 0);
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

}  // namespace
}  // namespace quillmetra
