// A plot on the screen: curves, colours and words follow the model.
#include "platform/Plot.h"

#include <array>
#include <cmath>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QImage>
#include <QLineEdit>
#include <QMenu>

#include "tests/desktop/DesktopFixture.h"

namespace quillmetra {

namespace {

class PlotForm : public Form {
public:
    PlotForm() : Form("frmPlot") { pltLine.ColourGroup = 4; }
    void CloseBox() override { UnloadForm(Name()); }
    Plot pltLine{*this, "pltLine"};
};

class PlotOnTheScreen : public DesktopTest {
protected:
    PlotOnTheScreen() {
        RegisterForm("frmPlot", [] { return std::unique_ptr<Form>(std::make_unique<PlotForm>()); });
        pltLine = &static_cast<PlotForm&>(Show("frmPlot")).pltLine;
        WidgetOf(*pltLine).window()->resize(460, 340);
        pltLine->SetColours(0x00FFFFFF, 0x00000000);
        Settle();
    }

    QImage Seen() {
        Settle();
        return WidgetOf(*pltLine).grab().toImage();
    }

    // The rows of the picture, as parts of its height, between which a colour is seen; none gives {1, 0}.
    std::pair<double, double> RowsOf(const QColor& colour) {
        const QImage image = Seen();
        double top = 1, bottom = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                const int off = std::abs(pixel.red() - colour.red()) +
                                std::abs(pixel.green() - colour.green()) +
                                std::abs(pixel.blue() - colour.blue());
                if (off > 30) continue;
                top = std::min(top, static_cast<double>(y) / image.height());
                bottom = std::max(bottom, static_cast<double>(y) / image.height());
            }
        }
        return {top, bottom};
    }

    static PlotDrawing Line(double from, double to) {
        return {.Title = "Normal case",
                .Bottom = {"Length", "ft"},
                .Left = {"Pressure", "psia"},
                .Right = {"Velocity", "ft/s"},
                .Series = {{"Pressure", {0, 1000}, {from, to}}},
                .Marks = {}};
    }

    Plot* pltLine;
    const QColor First{0, 114, 178}, Second{213, 94, 0};
};

TEST_F(PlotOnTheScreen, ShowsEachCurveOverItsWholeHeight) {
    EXPECT_GT(RowsOf(First).first, RowsOf(First).second) << "nothing is drawn yet";
    pltLine->Draw(Line(100, 50));
    auto [top, bottom] = RowsOf(First);
    EXPECT_LT(top, 0.3);
    EXPECT_GT(bottom, 0.5);
    PlotDrawing both = Line(100, 50);
    both.Series.push_back({"Velocity", {0, 1000}, {2e6, 5e6}, true, true});
    pltLine->Draw(both);
    std::tie(top, bottom) = RowsOf(Second);
    EXPECT_LT(top, 0.3) << "on an axis of its own the velocity fills the height as well";
    EXPECT_GT(bottom, 0.5);
    pltLine->Clear();
    EXPECT_GT(RowsOf(First).first, RowsOf(First).second);
}

TEST_F(PlotOnTheScreen, SpeaksAndTakesItsColours) {
    const QWidget& widget = WidgetOf(*pltLine);
    EXPECT_EQ(widget.accessibleName(), "Drawn when calculated");
    pltLine->Draw(Line(100, 50));
    const QString words = "Normal case: Pressure 100 to 50 psia over 1000 ft";
    EXPECT_EQ(widget.accessibleName(), words);
    EXPECT_EQ(widget.toolTip(), words);
    pltLine->SetColours(0x00400000, 0x0080FFFF);
    const QImage image = Seen();
    EXPECT_EQ(image.pixelColor(image.width() / 2, 3), QColor(0, 0, 0x40));
    EXPECT_LT(RowsOf(QColor(255, 255, 128)).first, 1) << "axes and words in the text colour";
}

TEST_F(PlotOnTheScreen, ShowsEachCaseInItsColour) {
    PlotDrawing two = Line(100, 50);
    two.Series[0].Case = "Maximum case";
    two.Series.push_back({"Pressure", {0, 1000}, {90, 40}, false, false, "Normal case"});
    pltLine->Draw(two);
    for (const QColor& colour : {First, Second}) EXPECT_GT(RowsOf(colour).second, 0.5);
}

// By the Menu key, entry by entry.
TEST_F(PlotOnTheScreen, ItsMenuCopiesAndSaves) {
    pltLine->Draw(Line(100, 50));
    MoveFocus(*pltLine);
    Settle();
    QWidget& picture = WidgetOf(*pltLine);
    EXPECT_TRUE(picture.hasFocus());
    const auto choose = [&picture](const char* entry) {
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(9, 9), QPoint(9, 9));
        QCoreApplication::sendEvent(&picture, &asked);
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        menu->findChild<QAction*>(entry)->trigger();
        menu->close();
        Settle();
    };
    choose("copyFigures");
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              "Normal case\nLength, ft\tPressure, psia\n0\t100\n1000\t50\n");
    choose("copyPicture");
    EXPECT_EQ(QGuiApplication::clipboard()->image().width(), 2 * picture.width());
    const std::array<std::array<const char*, 3>, 3> files = {
        {{"savePng", "a.png", "\x89PNG"}, {"saveSvg", "b.svg", "<?xml"}, {"savePdf", "c.pdf", "%PDF"}}};
    for (const auto& [entry, name, start] : files) {
#ifndef QUILLMETRA_SVG
        if (std::string_view(entry) == "saveSvg") continue;  // its library is not in every build
#endif
        const std::string file = (Folder / name).string();
        WhenDialogOpens([&file](QWidget& dialog) {
            auto* const edit = dialog.findChild<QLineEdit*>("fileNameEdit");
            edit->setText(ToQt(file));
            QTest::keyClick(edit, Qt::Key_Return);
        });
        choose(entry);
        EXPECT_TRUE(ReadBytes(SuitePath(file)).starts_with(start)) << name;
    }
}

TEST_F(PlotOnTheScreen, DrawsAbsurdFigures) {
    const double figures[] = {0, 1, -1, 1e-300, 1e300, -1e300, 1.7e308, 1e9 + 1e-7};
    for (const double from : figures) {
        for (const double to : figures) {
            PlotDrawing drawing = Line(from, to);
            drawing.Series[0].X = {from, to};
            drawing.Marks = {{"Limit", to, false}, {"Time", from, true}};
            pltLine->Draw(drawing);
            EXPECT_FALSE(Seen().isNull());
        }
    }
}

}  // namespace

}  // namespace quillmetra
