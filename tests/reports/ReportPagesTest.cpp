// Whole pages, line by line, and what may go wrong on them.
#include <cmath>
#include <limits>

#include "platform/PageLayout.h"
#include "tests/reports/ReportFixture.h"

namespace quillmetra {
namespace {

const std::vector<std::pair<double, std::string>> EightGases = {
    {72.5, "Methane"},  {10.25, "Ethane"},          {6, "Propane"},
    {3.25, "n-Butane"}, {2.25, "i-Butane"},         {3, "Carbon dioxide"},
    {1.5, "Nitrogen"},  {0.75, "Hydrogen sulfide"}, {0.5, "Air"}};

TEST_F(ReportTest, PagesAreAsTheyHaveAlwaysBeen) {
    const struct {
        const char *Page, *Form;
        int Program;
        const char* Tag;
        bool Mixture;
        int Material;
        double Fouling;
    } pages[] = {{"liquid-loss", "liquid-loss", 1, "P-101A", false, 4, 0},
                 {"gas-loss", "gas-loss", 2, "FG-2301", false, 1, 10},
                 {"gas-loss-mixture", "gas-loss", 2, "FG-2301", true, 1, 10},
                 {"water-hammer", "water-hammer", 3, "HV-330", false, 1, 0},
                 {"liquid-data", "liquid-data", 4, "LD-12", false, 1, 0},
                 {"gas-data", "gas-data", 5, "FD-7", true, 1, 0}};
    for (const auto& the : pages) {
        SCOPED_TRACE(the.Page);
        ResetForms();
        Calc = CalcRecord();
        UseProgram(the.Program, the.Form);
        Calc.Tag = the.Tag;
        Calc.PipeMaterialNumber = the.Material;
        Calc.PipeFouling = the.Fouling;
        if (the.Mixture) UseMixture(EightGases);
        EXPECT_EQ(Listing(Print()), ReadFile(Pages() / (std::string(the.Page) + ".txt")));
        EXPECT_TRUE(User.Boxes.empty());
        EXPECT_EQ(Calc.HeadingText[8], Texts.Notes[0]);
        EXPECT_EQ(Calc.NoteText[2], Texts.Notes[1]);
    }
}

TEST_F(ReportTest, PromptsOfTheTwoNamesPrintNothing) {
    UseProgram(2, "gas-loss");
    ControlOf("frmGasLineLoss", "txtBy").SetCaption("By");
    ControlOf("frmGasLineLoss", "txtApprov").SetCaption("App");
    EXPECT_EQ(PageAsText(Print()).find("By"), std::string::npos);
}

TEST_F(ReportTest, EachCopyHasItsOwnSheet) {
    UseProgram(2, "gas-loss");
    Printer.Open({});
    for (int copy = 1; copy <= 3; ++copy) PrintReportPage(Texts, 10);
    Printer.EndDoc();
    Printer.Close();
    ASSERT_EQ(User.Pages.size(), 3U);
    EXPECT_EQ(Listing(User.Pages[0]), Listing(User.Pages[2]));
    EXPECT_EQ(User.Pages[0].Ops.front().What, PrintOp::Kind::CopyStart);
    EXPECT_EQ(User.Pages[1].Ops.back().What, PrintOp::Kind::Line);
    EXPECT_EQ(User.Pages[2].Ops.back().What, PrintOp::Kind::EndDoc);
}

TEST_F(ReportTest, OnlyPagesOfTheRangeArePrinted) {
    UseProgram(2, "gas-loss");
    Printer.Open({.FromPage = 2, .ToPage = 3});
    for (int page = 1; page <= 5; ++page) {
        Calc.Tag = std::to_string(page);
        PrintReportPage(Texts, 10);
        Printer.NewPage();
    }
    Printer.EndDoc();
    Printer.Close();
    ASSERT_EQ(User.Pages.size(), 2U);
    EXPECT_NE(PageAsText(User.Pages[0]).find("Tag number    2"), std::string::npos);
}

TEST_F(ReportTest, BodyThatFailsLeavesHeadingAndNotes) {
    Calc.CurrentProgram = 2;
    FormOf(2).Add("txtBy=By");
    FormOf(2).Add("txtApprov=App");
    const std::string page = PageAsText(Print());
    ASSERT_EQ(User.Boxes.size(), 1U);
    EXPECT_EQ(User.LastText(), "Control 'txtInletPipeLen' does not exist (Error 423)");
    EXPECT_EQ(User.Boxes[0].Title, "Print Gas Loss Problem");
    EXPECT_EQ(User.Boxes[0].Sign, Icon::Stop);
    EXPECT_NE(page.find("Northfield Terminal"), std::string::npos);
    EXPECT_NE(page.find("Valve list of rev. B."), std::string::npos);
}

TEST_F(ReportTest, MixtureThatFailsEndsTheDocument) {
    UseProgram(5, "gas-data");
    UseMixture(EightGases);
    Calc.FluidPercent[3] = std::numeric_limits<double>::quiet_NaN();
    const PrintedPage& page = Print();
    EXPECT_EQ(User.Pages.size(), 1U);
    EXPECT_EQ(page.Ops.back().What, PrintOp::Kind::EndDoc);
    EXPECT_EQ(PageAsText(page).find("Note"), std::string::npos);
    EXPECT_TRUE(User.Boxes.empty());
}

// Components of so many letters each; the lines that they fill.
struct MixtureCase {
    std::vector<std::pair<double, std::string>> Components;
    std::vector<std::string> Lines;
};

TEST_F(ReportTest, MixtureLinesWrapAtAHundredCharacters) {
    const std::string longName(96, 'x');
    const std::vector<MixtureCase> cases = {
        {{{99.5, "Methane"}, {0.5, "Air"}}, {"99.5% Methane,  "}},
        {{{0, "Methane"}, {-1, "Ethane"}}, {}},
        // A last line of exactly 100 characters is left out, and of 99 not.
        {std::vector<std::pair<double, std::string>>(5, {20, "Ethyl acetate"}), {}},
        {{{20, "Ethyl acetate"},
          {20, "Ethyl acetate"},
          {20, "Ethyl acetate"},
          {20, "Ethyl acetate"},
          {2, "Ethyl acetate"}},
         {"20% Ethyl acetate,  20% Ethyl acetate,  20% Ethyl acetate,  20% Ethyl acetate,  "
          "2% Ethyl acetate,  "}},
        // A first piece that is too long leaves an empty line above it.
        {{{100, longName}, {1, "Methane"}}, {"", "100% " + longName + ",  ", "1% Methane,  "}},
    };
    UseProgram(5, "gas-data");
    for (const MixtureCase& each : cases) {
        Calc.FluidData = {};
        Calc.FluidPercent = {};
        UseMixture(each.Components);
        ReportPage page;
        Printer.Open({});
        MixturePrint(page);
        EXPECT_EQ(page.ReportRow, static_cast<int>(each.Lines.size()));
        Printer.EndDoc();
        Printer.Close();
        std::vector<std::string> lines;
        for (const PrintOp& op : each.Lines.empty() ? std::vector<PrintOp>() : User.Pages.back().Ops) {
            if (op.What == PrintOp::Kind::Text) lines.push_back(op.Cells[0].Text);
        }
        EXPECT_EQ(lines, each.Lines);
    }
}

// About the letters of the page: 0.55 of their size wide.
class UsualLetters : public TextMetric {
public:
    double Width(const std::string& text, const FontChoice& font) const override {
        return static_cast<double>(text.size()) * AverageWidth(font);
    }
    double AverageWidth(const FontChoice& font) const override { return font.Size * 11; }
    double Ascent(const FontChoice& font) const override { return font.Size * 18; }
};

// The most that a record can hold: sixteen components, and texts far longer than their places.
TEST_F(ReportTest, FullestPageStaysInItsFrameAndNothingOverlaps) {
    const std::string longText(200, 'w');
    Texts = {"03/14/2025", longText, longText, longText, longText, {longText, longText, longText}};
    for (const int program : {1, 2, 3, 4, 5}) {
        const char* const forms[] = {"liquid-loss", "gas-loss", "water-hammer", "liquid-data", "gas-data"};
        UseProgram(program, forms[program - 1]);
        ControlOf(FindProgram(program)->Form, "txtBy").SetCaption(longText);
        ControlOf(FindProgram(program)->Form, "cmdUnits", 2).SetCaption("a unit far too wide");
        Calc.Tag = longText;
        UseMixture(std::vector<std::pair<double, std::string>>(16, {6.25, "2-Methyl-3-ethylpentane"}));
        const PrintedPage& page = Print();
        const std::string text = PageAsText(page);
        std::size_t named = 0;
        for (std::size_t at = 0; (at = text.find("6.25% 2-M", at)) != std::string::npos; ++at) ++named;
        EXPECT_EQ(named, 16U);
        const PageLayout layout = LayOut(page, UsualLetters());
        for (const PlacedText& one : layout.Texts) {
            EXPECT_GE(one.X, 0) << one.Text;
            EXPECT_LE(one.X + one.Width, page.FrameWidth) << one.Text;
            for (const PlacedText& other : layout.Texts) {
                if (one.Baseline != other.Baseline || other.X <= one.X) continue;
                EXPECT_LE(one.X + one.Width, other.X) << one.Text << " | " << other.Text;
            }
        }
        ResetForms();
    }
    EXPECT_TRUE(User.Boxes.empty());
}

}  // namespace
}  // namespace quillmetra
