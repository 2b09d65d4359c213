// The pipe size lookup, from the typed size to the box of the form that asked, with the dialog played as a
// user would.
#include "tables/PipeSizes.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <functional>

#include <gtest/gtest.h>

#include "core/PipeFamilies.h"
#include "core/Words.h"
#include "forms/frmPipeSize.h"
#include "platform/NumberText.h"
#include "platform/UserActs.h"
#include "tables/TableFiles.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

namespace fs = std::filesystem;

// Plays Act whenever the dialog is shown.
class PlayingHost : public FakeHost {
public:
    std::function<void(frmPipeSize&)> Act;
    int FormsShown = 0;

    void RunModal(Form& form) override {
        ++FormsShown;
        if (Act) Act(dynamic_cast<frmPipeSize&>(form));
    }

    // "title | text" of each box shown.
    std::vector<std::string> Told() const {
        std::vector<std::string> told;
        for (const MessageBox& box : Boxes) told.push_back(box.Title + " | " + box.Text);
        return told;
    }
};

// A calling form with the boxes that the lookup may write, and a count of their changes.
class CallerForm : public Form {
public:
    explicit CallerForm(const char* name) : Form(name) {
        for (TextBox* box : {&txtInletPipeID, &txtPipeID, &txtPipeWall}) box->Change = [this] { ++Changes; };
    }
    void CloseBox() override {}

    TextBox txtInletPipeID{*this, "txtInletPipeID"};
    TextBox txtPipeID{*this, "txtPipeID"};
    TextBox txtPipeWall{*this, "txtPipeWall"};
    int Changes = 0;
};

// A factory takes no arguments, so each name has its own.
const char LiquidForm[] = "frmLiqLineLoss";
const char GasForm[] = "frmGasLineLoss";
const char HammerForm[] = "frmWaterHammer";
template <const char* Name>
std::unique_ptr<Form> MakeCaller() {
    return std::make_unique<CallerForm>(Name);
}

class PipeSizes : public SuiteTest {
protected:
    PipeSizes() {
        RegisterForm("frmPipeSize",
                     []() -> std::unique_ptr<Form> { return std::make_unique<frmPipeSize>(); });
        RegisterForm(LiquidForm, MakeCaller<LiquidForm>);
        RegisterForm(GasForm, MakeCaller<GasForm>);
        RegisterForm(HammerForm, MakeCaller<HammerForm>);
        Calc.MessageText = words::PipeLiquidLoss;
    }
    void TearDown() override { ResetForms(); }

    // Opens the lookup as a form's pipe button does, with the given factor of the diameter, in a unit.
    void Open(double factor = 1) {
        Calc.UnitFactor[pipeunit::Diameter] = factor;
        PreparePipeUnits();
    }

    void UseTable(std::string_view bytes) { WriteData("W-PIPE.TXT", bytes); }

    static std::string Box(const char* form, const char* box) { return ControlOf(form, box).Text(); }

    PlayingHost Player;
};

std::vector<std::string> SizesOf(const std::vector<std::string>& lines) {
    std::vector<std::string> sizes;
    for (const std::string& line : lines) {
        const std::string size(RowName(line));
        if (sizes.empty() || sizes.back() != size) sizes.push_back(size);
    }
    return sizes;
}

TEST_F(PipeSizes, SearchOffersTheLargestSizeNotAboveTheTypedOne) {
    using Sizes = std::vector<std::string>;
    const struct {
        double Factor;
        std::string Typed;
        Sizes Offered;
    } cases[] = {
        {1, "1", {"1"}},
        {1, " 1.2 ", {"1"}},
        {1, "7", {"6"}},
        {1, "1e300", {"80"}},
        {1, "0.125", {".125"}},
        {1, "0.1249", {}},
        {1, "0", {}},
        {1, "-4", {}},
        {1, "", {}},
        {1, "six", {}},
        {1, "nan", {}},
        {1, "1/2", {".5"}},
        {1, " 3 / 4 \"", {".75"}},
        {1, "1 1/2", {"1.5"}},
        {1, "2-1/2 in", {"2.5"}},
        {1, "6\"", {"6"}},
        {1, "6 In.", {"6"}},
        {1, "1,5", {}},
        {1, "1 2", {}},
        {1, "6/2", {}},
        {1, "2/2", {}},
        {1, "1/", {}},
        {1, "4 sch 40", {}},
        {1, std::string(100000, '1'), {}},
        {0.03937, "12 1/2 mm", {"13"}},
        {0.03937, "25", {"25"}},
        {0.03937, "26", {"25"}},
        {0.03937, "24", {"19"}},
        {0.3937, "100", {"100"}},
        {39.37, "88", {"88"}},
        {0.03937, "2", {}},
        {0.03937, "0", {}},
        {0.03937, "1e308", {"2000"}},
        {12, "4", {"4"}},
    };
    for (const auto& each : cases) {
        Open(each.Factor);
        EXPECT_EQ(SizesOf(FindPipeSizes(each.Typed)), each.Offered) << each.Typed << " by " << each.Factor;
    }
}

TEST_F(PipeSizes, ListIsInColumns) {
    UseTable("Size\r\n1,40,1.049,0.133,\r\n1,40S , 1.049,0.133\r\n10,STD/40/40S,10.020,0.365,\r\n");
    Open();
    EXPECT_EQ(FindPipeSizes("1"),
              (std::vector<std::string>{"  1,40,   1.049, 0.133,", "  1,40S,  1.049, 0.133,"}));
    EXPECT_EQ(FindPipeSizes("10"), std::vector<std::string>{" 10,STD/40/40S,10.020,0.365,"});
    Open(0.03937);
    EXPECT_EQ(FindPipeSizes("25").front(), " 25,40,   26.6,  3.38, ");
}

struct PipeUnit {
    const char* Name;
    double Factor;
    bool Metric;
    bool Converts;
};
constexpr PipeUnit PipeUnits[] = {{"in", 1, false, false},       {"ft", 12, false, true},
                                  {"mm", 0.03937, true, false},  {"cm", 0.3937, true, true},
                                  {"m", 39.37, true, true},      {"mm reloaded", 0.03937001, true, false},
                                  {"0.04 in", 0.04, false, true}};

// A length to so many significant figures, by the machine's own printing.
double Rounded(double value, int figures) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*e", figures - 1, value);
    return std::strtod(text, nullptr);
}

TEST_F(PipeSizes, EveryShippedPipeIsFoundAndReturnedInEveryUnit) {
    const std::vector<std::string> rows = ReadTable(table::Pipe);
    for (const PipeUnit& unit : PipeUnits) {
        SCOPED_TRACE(unit.Name);
        Open(unit.Factor);
        EXPECT_EQ(ControlOf("frmPipeSize", "lblPipeUnits").Caption(), unit.Metric ? "mm" : "in");
        EXPECT_EQ(ControlOf("frmPipeSize", "lblConvertUnits").Caption(),
                  unit.Converts ? "Units will be Converted" : "");
        std::string lastSize;
        std::size_t position = 0;
        for (const std::string& row : rows) {
            SCOPED_TRACE(row);
            const TableFields pipe = SplitTableLine(table::Pipe, row);
            position = pipe[0] == lastSize ? position + 1 : 0;
            lastSize = pipe[0];
            const double size = Val(pipe[0]);
            const std::string typed =
                unit.Metric ? std::to_string(static_cast<int>(std::floor(size * 25 + 0.63))) : pipe[0];
            const std::vector<std::string> lines = FindPipeSizes(typed);
            ASSERT_GT(lines.size(), position);
            ASSERT_EQ(SplitTableLine(table::Pipe, lines[position])[1], pipe[1]);
            Calc.MessageText = words::PipeWaterHammer;
            TakePipeRow(lines[position]);
            ReturnPipeSize();
            const double inside = Val(Box(HammerForm, "txtPipeID")) * unit.Factor;
            const double wall = Val(Box(HammerForm, "txtPipeWall")) * unit.Factor;
            // The list has three figures of the millimetres, or all before the point; the form has six.
            EXPECT_NEAR(inside, Val(pipe[2]), (unit.Metric ? 5.1e-3 : 5.1e-6) * Val(pipe[2]));
            EXPECT_NEAR(wall, Val(pipe[3]), (unit.Metric ? 5.6e-3 : 5.1e-4) * Val(pipe[3]));
            if (unit.Metric) {
                const double millimetres = Val(pipe[2]) / 0.03937;
                const double listed = Rounded(millimetres, millimetres < 1000 ? 3 : 4);
                EXPECT_NEAR(inside, listed * 0.03937, 1e-5 * inside);
            }
        }
    }
}

// Each size of each family finds itself and lists as itself, a metric one as the DN of its standard.
TEST_F(PipeSizes, EverySizeOfEveryFamilyFindsItself) {
    for (const PipeFamily& family : PipeFamilies) {
        Suite.PipeFamily = family.File;
        fs::copy_file(SourceFolder() / "data" / family.File, DataFolder() / family.File,
                      fs::copy_options::overwrite_existing);
        const bool metric = std::string_view(family.Note).find("/ 25") != std::string_view::npos;
        for (const std::string& row : ReadTable(table::PipeFamily, {.FileName = family.File})) {
            SCOPED_TRACE(family.File + (" " + row));
            const std::string size(RowName(row));
            Open();
            const std::vector<std::string> inches = FindPipeSizes(size);
            EXPECT_EQ(SizesOf(inches), std::vector<std::string>{size});
            const double millimetres = Val(size) * 25;
            const std::string dn = TrimmedStr(std::floor(millimetres + 0.63));
            if (metric) {
                EXPECT_NEAR(Val(dn), millimetres, 1e-9) << "a nominal size of the standard";
            }
            Open(0.03937);
            const std::vector<std::string> lines = FindPipeSizes(dn);
            EXPECT_EQ(SizesOf(lines), std::vector<std::string>{dn});
            EXPECT_EQ(lines.size(), inches.size());
        }
    }
    fs::remove(DataFolder() / "W-PVC.TXT");
    WriteData("w-Mine.txt", "Size\r\n1,A,1.049,0.133,\r\n");
    const std::vector<PipeFile> files = PipeFiles();
    EXPECT_EQ(files.size(), PipeFamilies.size()) << "one is gone and one is the user's own";
    EXPECT_EQ(files.front().File, "W-PIPE.TXT");
    EXPECT_EQ(files.back().Name, "w-Mine.txt");
}

TEST_F(PipeSizes, ReturnsSixFiguresOfTheDiameterAndFourOfTheWall) {
    const struct {
        double Factor;
        const char* Line;
        const char* Diameter;
        const char* Wall;
        const char* Name = nullptr;
    } cases[] = {
        {1, "  1,40,   1.049, 0.133, ", " 1.049", " 0.133", "1 in sch 40"},
        {12, "  1,40,   1.049, 0.133, ", " 0.0874167", " 0.01108"},
        {12, " 48,XS,   47.00, 0.5,   ", " 3.91667", " 0.04167", "48 in XS"},
        {0.03937, " 25,40,   26.6,  3.38, ", " 26.6", " 3.38", "25 mm sch 40"},
        {0.3937, " 25,40,   26.6,  3.38, ", " 2.66", " 0.338"},
        {39.37, " 25,40,   26.6,  3.38, ", " 0.0266", " 0.00338"},
        {1, "  1,odd,  wide,  thick,", " 0", " 0"},
    };
    for (const auto& each : cases) {
        Open(each.Factor);
        Calc.MessageText = words::PipeWaterHammer;
        TakePipeRow(each.Line);
        const std::string name = PipeNameOf(each.Line);
        if (each.Name != nullptr) {
            EXPECT_EQ(name, each.Name);
        }
        ReturnPipeSize(name);
        EXPECT_EQ(Calc.PipeName, name);
        EXPECT_EQ(Box(HammerForm, "txtPipeID"), each.Diameter) << each.Line << " by " << each.Factor;
        EXPECT_EQ(Box(HammerForm, "txtPipeWall"), each.Wall) << each.Line << " by " << each.Factor;
    }
}

TEST_F(PipeSizes, APipeIsNamedWithItsFamilyWhereThatIsNotSteel) {
    Open();
    for (const auto& [family, name] : {std::pair{"", "2 in K"},
                                       {"W-METRIC.TXT", "2 in K"},
                                       {"w-copper.txt", "2 in K copper"},
                                       {"W-OWN.TXT", "2 in K W-OWN.TXT"}}) {
        Suite.PipeFamily = family;
        EXPECT_EQ(PipeNameOf("  2,K,    1.959, 0.083, "), name);
    }
}

TEST_F(PipeSizes, ReturnsToTheFormThatAsked) {
    const struct {
        const char* Word;
        const char* Form;
        const char* Box;
        int Changes;
    } cases[] = {{words::PipeLiquidLoss, LiquidForm, "txtInletPipeID", 1},
                 {words::PipeGasLoss, GasForm, "txtInletPipeID", 1},
                 {words::PipeWaterHammer, HammerForm, "txtPipeID", 2}};
    for (const auto& each : cases) {
        Open();
        Calc.MessageText = each.Word;
        TakePipeRow("  4,40,   4.026, 0.237, ");
        ReturnPipeSize();
        EXPECT_EQ(Box(each.Form, each.Box), " 4.026");
        EXPECT_EQ(dynamic_cast<CallerForm&>(LoadForm(each.Form)).Changes, each.Changes)
            << "a returned size is a change of the form's input";
        EXPECT_EQ(Calc.MessageText, "");
        EXPECT_FALSE(IsFormLoaded("frmPipeSize"));
    }
    Calc.MessageText = "Bypass";
    ReturnPipeSize();
    EXPECT_EQ(dynamic_cast<CallerForm&>(LoadForm(LiquidForm)).Changes, 1) << "a word of somebody else";
}

TEST_F(PipeSizes, NothingReturnsThatIsNotFinite) {
    Open();
    Calc.UnitFactor[pipeunit::Diameter] = 1e-300;
    TakePipeRow("  4,40,   1e300, 0.237, ");
    EXPECT_THROW(ReturnPipeSize(), RuntimeError);
    EXPECT_EQ(Box(LiquidForm, "txtInletPipeID"), "");
}

// A row that a user added at the end, one in the middle out of order, short lines, five fields, no text.
TEST_F(PipeSizes, TableMayBeOutOfOrderAndFullOfRubbish) {
    UseTable(
        "Size\n2,40,2.067,0.154\n1,40,1.049,0.133\n\nrubbish of a row,1,2,3\n1,80,0.957,0.179,x\n"
        "0,none,1,1,1\n-1,none,1,1,1\n2,80,1.939,0.218\n\xFF\xFE\x81\x8D\x01\x02\x03\x04\x05\x06,\x07\n"
        "1,XXS\n1,XXS more than a row of pipe has\n");
    Open();
    EXPECT_EQ(FindPipeSizes("1"),
              (std::vector<std::string>{"  1,40,   1.049, 0.133,", "  1,80,   0.957, 0.179,",
                                        "  1,XXS more than a row of pipe has,,      ,     "}));
    EXPECT_EQ(FindPipeSizes("3").size(), 2);
    EXPECT_TRUE(FindPipeSizes("0.5").empty());
}

TEST_F(PipeSizes, DialogIsPlayedByKeyboardAlone) {
    Player.Act = [&](frmPipeSize& dialog) {
        EXPECT_EQ(dialog.Focus.Current(), &dialog.txtNomSize);
        EXPECT_FALSE(dialog.cmdSearch.Enabled());
        EXPECT_FALSE(dialog.cmdOK.Enabled());
        PressKey(dialog.txtNomSize, "4");
        EXPECT_TRUE(dialog.cmdSearch.Enabled());
        PressKey(dialog.txtNomSize, "Enter");
        EXPECT_EQ(dialog.Focus.Current(), &dialog.lstPipeSize);
        EXPECT_EQ(dialog.lstPipeSize.Selected(), dialog.lstPipeSize.RowCount() / 2);
        EXPECT_TRUE(dialog.cmdOK.Enabled());
        PressKey(dialog.lstPipeSize, "Up");
        Calc.Tag = dialog.lstPipeSize.Row(dialog.lstPipeSize.Selected());
        PressKey(dialog.lstPipeSize, "Enter");
    };
    Open();
    EXPECT_EQ(Player.FormsShown, 1);
    EXPECT_FALSE(IsFormLoaded("frmPipeSize"));
    EXPECT_EQ(Val(Box(LiquidForm, "txtInletPipeID")), Val(SplitTableLine(table::Pipe, Calc.Tag)[2]));
    EXPECT_TRUE(Player.Boxes.empty());
}

TEST_F(PipeSizes, DialogIsPlayedByDoubleClicks) {
    Player.Act = [&](frmPipeSize& dialog) {
        TypeText(dialog.txtNomSize, "25");
        DoubleClickControl(dialog.txtNomSize);
        PickRow(dialog.lstPipeSize, 0);
        DoubleClickControl(dialog.lstPipeSize);
    };
    Open(0.03937);
    const double inside = Val(SplitTableLine(table::Pipe, FindPipeSizes("25").front())[2]);
    EXPECT_EQ(Val(Box(LiquidForm, "txtInletPipeID")), inside);
}

TEST_F(PipeSizes, DialogTellsWhatIsWrong) {
    Player.Act = [&](frmPipeSize& dialog) {
        TypeText(dialog.txtNomSize, "0.1");
        ClickControl(dialog.cmdSearch);
        EXPECT_EQ(dialog.Focus.Current(), &dialog.txtNomSize);

        TypeText(dialog.txtNomSize, "4");
        ClickControl(dialog.cmdSearch);
        TypeText(dialog.txtNomSize, "5");
        EXPECT_EQ(dialog.lstPipeSize.RowCount(), 0) << "a new size empties the list";
        ClickControl(dialog.cmdOK);

        UseTable("");
        ClickControl(dialog.cmdSearch);
        fs::remove(DataFolder() / "W-PIPE.TXT");
        ClickControl(dialog.cmdSearch);
        UseTable("Size\n");
        ClickControl(dialog.cmdSearch);
    };
    Open();
    EXPECT_EQ(Player.Told(), (std::vector<std::string>{
                                 "Pipe Size file | Pipe size 0.1 is not on File",
                                 "Pipe sizes | Please find and select an item",
                                 "Pipe Size file | File W-PIPE.TXT",
                                 "Pipe Size file | File W-PIPE.TXT",
                                 "Pipe Size file | Pipe size 5 is not on File",
                             }));
    EXPECT_EQ(Box(LiquidForm, "txtInletPipeID"), "");
}

TEST_F(PipeSizes, CancelLeavesTheCallerAlone) {
    const std::function<void(frmPipeSize&)> ways[] = {
        [](frmPipeSize& dialog) { ClickControl(dialog.cmdCancel); },
        [](frmPipeSize& dialog) { PressKey(dialog.lstPipeSize, "Escape"); },
        [](frmPipeSize& dialog) { CloseWindow(dialog); },
        [](frmPipeSize&) { ResetRecord(); },
    };
    for (const auto& way : ways) {
        Calc.MessageText = words::PipeLiquidLoss;
        Player.Act = [&](frmPipeSize& dialog) {
            TypeText(dialog.txtNomSize, "4");
            ClickControl(dialog.cmdSearch);
            way(dialog);
        };
        Open();
        EXPECT_FALSE(IsFormLoaded("frmPipeSize"));
        EXPECT_EQ(Calc.MessageText, "");
        EXPECT_EQ(Box(LiquidForm, "txtInletPipeID"), "");
    }
}

TEST_F(PipeSizes, ChangeOfUnitsEmptiesAnOpenDialog) {
    Player.Act = [](frmPipeSize& dialog) { TypeText(dialog.txtNomSize, "4"); };
    Open();
    EXPECT_EQ(Box("frmPipeSize", "txtNomSize"), "4") << "not closed by this act";
    Player.Act = {};
    Open();
    EXPECT_EQ(Box("frmPipeSize", "txtNomSize"), "4");
    Open(0.03937);
    EXPECT_EQ(Box("frmPipeSize", "txtNomSize"), "");
}

}  // namespace
}  // namespace quillmetra
