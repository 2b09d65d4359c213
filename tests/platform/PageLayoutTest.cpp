// What keeps a page legible when texts are longer than their places.
#include "platform/PageLayout.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace quillmetra {
namespace {

// Letters of half their size, about as wide as those of the fixed grid at 10 points.
class PlainLetters : public TextMetric {
public:
    double Width(const std::string& text, const FontChoice& font) const override {
        return static_cast<double>(text.size()) * font.Size * 10;
    }
    double AverageWidth(const FontChoice& font) const override { return font.Size * 10; }
    double Ascent(const FontChoice& font) const override { return font.Size * Part; }
    double Part = 18;
};

PrintOp Text(double y, std::vector<PrintCell> cells, double size = 10) {
    return {.Y = y, .FontSize = size, .Cells = std::move(cells)};
}

PrintOp Placed(double x, double y, const std::string& text, Anchor fit, double size = 10) {
    PrintOp op = Text(y, {{0, text}}, size);
    op.X = x;
    op.Fit = fit;
    op.Width = Paper::ColumnWidth * static_cast<double>(text.size());
    return op;
}

PrintOp Centred(double y, const std::string& text, double size = 10) {
    return Placed(4500 - Paper::ColumnWidth * static_cast<double>(text.size()) / 2, y, text, Anchor::Centre,
                  size);
}

PageLayout LayOut(std::vector<PrintOp> ops, double ascent = 18) {
    PlainLetters letters;
    letters.Part = ascent;
    return quillmetra::LayOut({.Font = {.Name = "any", .Size = 10}, .Ops = std::move(ops)}, letters);
}

TEST(PageLayout, KeepsColumnsAndFitsWhatIsTooWide) {
    const PageLayout page =
        LayOut({Text(2400, {{6, std::string(60, 'a')}, {35, "12"}, {80, "lb/h"}}),
                Text(2640, {{6, std::string(200, 'b')}}), Text(2880, {{6, "plain"}}, 12)});
    ASSERT_EQ(page.Texts.size(), 5U);
    const PlacedText& label = page.Texts[0];
    EXPECT_EQ(label.X, 480);
    EXPECT_LT(label.X + label.Width, 34 * 96);
    EXPECT_EQ(page.Texts[1].X, 34 * 96);
    EXPECT_EQ(page.Texts[1].Stretch, 1);
    EXPECT_EQ(page.Texts[2].X, 79 * 96);
    // First narrowed, then smaller, on the line of its row.
    EXPECT_EQ(page.Texts[3].Stretch, 0.75);
    EXPECT_LT(page.Texts[3].Font.Size, 6);
    EXPECT_DOUBLE_EQ(page.Texts[3].Baseline - label.Baseline, 240);
    // Columns are those of the letters in force.
    EXPECT_DOUBLE_EQ(page.Texts[4].X, 480 * 1.2);
}

TEST(PageLayout, NothingLeavesTheFrame) {
    const std::string longText(300, 'w');
    const PageLayout page =
        LayOut({Placed(9000 - 96 * 300 - 200, 240, longText, Anchor::Right, 9), Centred(90, longText, 12),
                Centred(1680, longText, 12), Placed(-20000, 1680, longText, Anchor::Right),
                Placed(500, 9000, longText, Anchor::Left), Text(9240, {{80, longText}})});
    ASSERT_EQ(page.Texts.size(), 6U);
    for (const PlacedText& text : page.Texts) {
        EXPECT_GE(text.X, 100) << text.Baseline;
        EXPECT_LE(text.X + text.Width, 8900) << text.Baseline;
        EXPECT_GT(text.Width, 0);
    }
    // The title and the tag end before what stands at the right of their line, and keep their middle.
    const auto& date = page.Texts[0];
    const auto& title = page.Texts[1];
    EXPECT_LT(title.X + title.Width, date.X);
    EXPECT_DOUBLE_EQ(title.X + title.Width / 2, 4500);
    EXPECT_LT(page.Texts[2].X + page.Texts[2].Width, page.Texts[3].X);
}

TEST(PageLayout, HeadingMovesDownToTheEndOfATextCloseAboveIt) {
    const PageLayout page = LayOut({Text(2880, {{10, "last of a mixture"}}), Text(2970, {{6, "Heading"}}, 12),
                                    Text(3600, {{6, "plain"}}), Text(3930, {{6, "Heading"}}, 12)});
    EXPECT_GE(page.Texts[1].Baseline - page.Texts[0].Baseline, 240);
    EXPECT_DOUBLE_EQ(page.Texts[3].Baseline, 3930 + 12 * 18);
    // Tall letters stand lower, to a share of their line.
    const PageLayout tall = LayOut({Text(3600, {{6, "plain"}}), Text(3930, {{6, "Heading"}}, 12)}, 23);
    EXPECT_DOUBLE_EQ(tall.Texts[0].Baseline, 3600 + 0.77 * 240);
    EXPECT_DOUBLE_EQ(tall.Texts[1].Baseline, 3930 + 0.85 * 288);
}

TEST(PageAsText, TextsStartOneBlankAfterWhatTakesTheirColumn) {
    PrintedPage page;
    page.Ops = {Placed(9000 - 96 * 4, 240, "date", Anchor::Right), Centred(90, std::string(96, 't'), 12),
                Text(480, {{6, "far too long"}, {10, "next"}, {30, "col"}})};
    EXPECT_EQ(PageAsText(page), std::string(96, 't') + " date\n     far too long next       col\n");
}

}  // namespace
}  // namespace quillmetra
