// What a plot keeps of the figures that it is given, and what it says of them in words.
#include "platform/Plot.h"

#include <limits>

#include "tests/platform/TestForms.h"

namespace quillmetra {
namespace {

constexpr double Infinite = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

class CountingHost : public FakeHost {
public:
    int Changes = 0;
    void ControlChanged(Control&, Aspect aspect) override { Changes += aspect == Aspect::Rows; }
};

class PlotOnAForm : public ::testing::Test {
protected:
    CountingHost User;
    PlainForm Owner{"frmPlot"};
    Plot pltLine{Owner, "pltLine"};
};

PlotDrawing PressureLine(std::vector<double> x, std::vector<double> y) {
    return {.Title = {},
            .Bottom = {"Length", "ft"},
            .Left = {"Pressure", "psia"},
            .Right = {},
            .Series = {{"Pressure", std::move(x), std::move(y)}},
            .Marks = {}};
}

TEST_F(PlotOnAForm, SaysInWordsWhatItShows) {
    PlotDrawing gas = PressureLine({0, 500, 1000}, {114.7, 110, 105.0512});
    EXPECT_EQ(InWords(gas), "Pressure 114.7 to 105.1 psia over 1000 ft");
    gas.Title = "Normal case";
    gas.Right = {"Velocity", "ft/s"};
    gas.Series.push_back({"Velocity", {0, 1000}, {60, 60.0001}, true});
    EXPECT_EQ(InWords(gas), "Normal case: Pressure 114.7 to 105.1 psia, Velocity 60 ft/s over 1000 ft");

    PlotDrawing surge = PressureLine({0.25, 5}, {12345.6, -0.0123456});
    surge.Bottom = {"Closing time", "s"};
    surge.Left.Unit.clear();
    surge.Marks = {{"Critical time", 0.5}, {"Allowable", 300, false}};
    EXPECT_EQ(InWords(surge),
              "Pressure 12346 to -0.01235 over 0.25 to 5 s, Critical time 0.5 s, Allowable 300");
    EXPECT_EQ(InWords({}), "");
}

TEST_F(PlotOnAForm, KeepsFinitePointsAlone) {
    PlotDrawing drawing = PressureLine({0, 1, Infinite, 3, 4}, {10, NotANumber, 12, 13});
    drawing.Series.push_back({"Nothing", {1, 2}, {NotANumber, -Infinite}});
    drawing.Marks = {{"Never", NotANumber}, {"Limit", 11, false}};
    pltLine.Draw(drawing);
    ASSERT_EQ(pltLine.Drawing().Series.size(), 1U);
    EXPECT_EQ(pltLine.Drawing().Series[0].X, (std::vector<double>{0, 3}));
    EXPECT_EQ(pltLine.Drawing().Series[0].Y, (std::vector<double>{10, 13}));
    ASSERT_EQ(pltLine.Drawing().Marks.size(), 1U);
    EXPECT_EQ(pltLine.Text(), "Pressure 10 to 13 psia over 3 ft, Limit 11 psia");
}

TEST_F(PlotOnAForm, TellsTheHostOfEachDrawing) {
    pltLine.Clear();
    EXPECT_EQ(User.Changes, 0) << "it was empty before";
    pltLine.Draw(PressureLine({0, 1}, {2, 3}));
    EXPECT_FALSE(pltLine.IsEmpty());
    pltLine.Clear();
    EXPECT_TRUE(pltLine.IsEmpty());
    EXPECT_EQ(pltLine.Text(), "");
    EXPECT_EQ(User.Changes, 2);
}

TEST_F(PlotOnAForm, ShowsAllCasesAndCopiesTheirFigures) {
    const auto of = [](const char* title, std::vector<double> x, std::vector<double> y) {
        PlotDrawing drawing = PressureLine(std::move(x), std::move(y));
        drawing.Title = title;
        return drawing;
    };
    EXPECT_TRUE(AllCasesOf({{}, {}}).Series.empty());
    EXPECT_EQ(InWords(AllCasesOf({of("Normal case", {0, 1000}, {80, 70}), {}})),
              "Normal case: Pressure 80 to 70 psia over 1000 ft");
    PlotDrawing all = AllCasesOf({of("Maximum case", {0, 1000}, {100, 90.123456}),
                                  of("Normal case", {0, 1000}, {80, 70}), of("Minimum case", {0}, {5})});
    EXPECT_EQ(InWords(all),
              "Maximum case: Pressure 100 to 90.12 psia; Normal case: Pressure 80 to 70 psia; Minimum case: "
              "Pressure 5 psia over 1000 ft");
    all.Marks = {{"critical", 0.5}};
    pltLine.Draw(all);
    Key copy{Plot::CopyKey};
    pltLine.KeyPress(copy);
    EXPECT_TRUE(copy.Handled);
    EXPECT_EQ(User.Copied,
              "Length, ft\tMaximum case Pressure, psia\tNormal case Pressure, psia\tLength, ft\t"
              "Minimum case Pressure, psia\n0\t100\t80\t0\t5\n1000\t90.123456\t70\t\t\ncritical, ft\t0.5\n");
    pltLine.Clear();
    EXPECT_FALSE(pltLine.Enabled()) << "there is nothing to copy";
}

}  // namespace
}  // namespace quillmetra
