// Colours from files and menus, and whether the shipped schemes can be read.
#include "forms/ColourSchemes.h"

#include <algorithm>
#include <cmath>

#include "forms/ColourShades.h"
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

double Ratio(Colour back, Colour text) {
    const double a = Luminance(back) + 0.05, b = Luminance(text) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

class ColourSchemesTest : public SuiteTest {
protected:
    ColourSchemesTest() { RegisterForms(); }
};

// Text on its ground, changed data among it, and the borders of boxes on their areas. Classic is as it is.
TEST_F(ColourSchemesTest, ShippedSchemesCanBeRead) {
    const struct {
        const char* File;
        double OfText, OfBorders;
    } schemes[] = {{"Light.txt", 4.5, 3}, {"Dark.txt", 4.5, 3}, {"High contrast.txt", 7, 7}};
    const std::pair<int, int> read[] = {{1, 2}, {3, 4},  {5, 6},  {7, 8}, {11, 12},
                                        {9, 2}, {1, 10}, {3, 10}, {7, 10}};
    const std::pair<int, int> boxes[] = {{1, 3}, {1, 7}, {5, 3}, {5, 7}, {1, 11}};
    for (const auto& scheme : schemes) {
        ReadColourFile(SuitePath(SourceFolder() / "data" / scheme.File));
        for (const auto& [back, text] : read) {
            EXPECT_GE(Ratio(SlotColour(back), SlotColour(text)), scheme.OfText)
                << scheme.File << " " << back << " " << text;
        }
        for (const auto& [area, box] : boxes) {
            const Colour border = BoxBorder(SlotColour(area), SlotColour(box), SlotColour(area + 1));
            for (const int ground : {area, box}) {
                EXPECT_GE(Ratio(SlotColour(ground), border), scheme.OfBorders)
                    << scheme.File << " " << area << " " << box;
            }
        }
    }
    ReadColourFile(SuitePath(SourceFolder() / "data" / "Classic.txt"));
    EXPECT_TRUE(std::equal(DefaultColours.begin(), DefaultColours.end(), Suite.Colours.begin() + 1));
}

// What follows from the slots is seen, whatever they are: grey on grey too.
TEST_F(ColourSchemesTest, ShadesAreSeenOnAnyGround) {
    for (const Colour ground : {0x000000U, 0x777777U, 0x808040U, 0xFFFFFFU}) {
        EXPECT_GE(Ratio(ground, BoxBorder(ground, ground, ground)), 3) << ground;
        EXPECT_GE(Ratio(ground, FaintText(ground, ground)), 4.5) << ground;
        EXPECT_GE(Ratio(ground, Readable(ground, ground)), 4.5) << ground;
    }
    Suite.Colours[8] = Suite.Colours[1];
    EXPECT_EQ(AccentColour(), SlotColour(2));
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

// A control shows after it what it has shown before: the focus, changed data.
TEST_F(ColourSchemesTest, ASchemeIsSeenOnAllForms) {
    Form& browser = LoadForm("frmTRProg");
    Control& box = *browser.Find("txtSearchTag");
    Control& behind = *LoadForm("frmObxProg").Find("fraProgram");
    box.ColourGroup = 2;
    const std::pair<int, int> looks[] = {{3, 4}, {3, 10}, {11, 12}};
    for (const char* scheme : SchemeNames) {
        for (const auto& [back, text] : looks) {
            box.SetColours(SlotColour(back), SlotColour(text));
            TakeScheme(scheme);
            EXPECT_EQ(box.BackColour(), SlotColour(back)) << scheme << " " << text;
            EXPECT_EQ(box.ForeColour(), SlotColour(text)) << scheme << " " << text;
        }
        EXPECT_EQ(behind.BackColour(), SlotColour(1)) << scheme;
        EXPECT_STREQ(SchemeNames.at(static_cast<std::size_t>(SchemeInForce())), scheme);
    }
    EXPECT_TRUE(User.Boxes.empty());
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
