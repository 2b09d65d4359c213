// Colours from files and menus, and whether the shipped schemes can be read.
#include "forms/ColourSchemes.h"

#include <cmath>

#include "forms/RegisterForms.h"
#include "platform/UserActs.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

// The luminance of a colour of a screen, 0 black to 1 white (sRGB).
double Luminance(Colour colour) {
    const double weights[] = {0.2126, 0.7152, 0.0722};
    double sum = 0;
    for (unsigned i = 0; i < 3; ++i) {
        const double part = ((colour >> (8 * i)) & 0xFFU) / 255.0;
        sum += weights[i] * (part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4));
    }
    return sum;
}

double Contrast(int back, int text) {
    const double a = Luminance(SlotColour(back)) + 0.05;
    const double b = Luminance(SlotColour(text)) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

class ColourSchemesTest : public SuiteTest {
protected:
    ColourSchemesTest() { RegisterForms(); }
};

TEST_F(ColourSchemesTest, ShippedSchemesCanBeRead) {
    const struct {
        const char* File;
        double Least;
    } schemes[] = {{"High contrast.txt", 7}, {"Dark.txt", 4.5}};
    const std::pair<int, int> read[] = {{1, 2}, {3, 4}, {3, 10}, {5, 6}, {7, 8}, {7, 10}, {11, 12}};
    for (const auto& scheme : schemes) {
        ReadColourFile(SuitePath(SourceFolder() / "data" / scheme.File));
        for (const auto& [back, text] : read) {
            EXPECT_GE(Contrast(back, text), scheme.Least) << scheme.File << " " << back << " " << text;
        }
    }
}

TEST_F(ColourSchemesTest, AGroupIsRepaintedAlone) {
    Form& browser = LoadForm("frmTRProg");
    Control& frame = *browser.Find("fraRecord");
    Control& box = *browser.Find("txtTagNum");
    for (std::size_t slot = 1; slot <= 12; ++slot) {
        Suite.Colours[slot] = 0xFF000000U | static_cast<unsigned>(slot);
    }
    RepaintGroup(browser, 5);
    EXPECT_EQ(browser.BackColour(), 9U) << "24 bits are shown";
    EXPECT_EQ(frame.BackColour(), DefaultColours[0]);
    RepaintGroup(browser, 1);
    EXPECT_EQ(frame.BackColour(), 1U);
    EXPECT_EQ(frame.ForeColour(), 2U);
    EXPECT_EQ(box.BackColour(), DefaultColours[6]);
}

// The list of before stays until the user closes the new one.
TEST_F(ColourSchemesTest, BackgroundsReplaceTheListOnceItIsClosed) {
    WriteData("Background.TXT", "1\r\n");
    const auto list = [this] { return ReadBytes(SuitePath(DataFolder()) + "\\Background.TXT"); };
    User.Colours = {std::nullopt, 7U, 8U, 9U, std::nullopt};
    User.Answers = {Answer::No, Answer::Yes, Answer::No, Answer::Yes, Answer::Yes};
    Form& browser = LoadForm("frmTRProg");
    ShowForm("frmTRProg");
    ClickControl(*browser.Find("mnuBackgroundList"));
    EXPECT_EQ(list(), "7\r\n9\r\n");
    EXPECT_EQ(Suite.Colours[9], 9U);
    EXPECT_EQ(User.Boxes.front().Title, " 0 Color Options on File");
}

}  // namespace
}  // namespace quillmetra
