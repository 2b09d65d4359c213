// See PlotMenu.h.
#include "desktop/PlotMenu.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QMenu>
#include <QPageSize>
#include <QPdfWriter>
#ifdef QUILLMETRA_SVG
#include <QSvgGenerator>
#endif

#include "forms/PictureFile.h"
#include "platform/Plot.h"

namespace quillmetra {

namespace {

constexpr int DotsPerInch = 96;  // of the picture on the screen
constexpr double PointsPerDot = 72.0 / DotsPerInch;

std::string PngOf(const PlotPicture& picture) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    picture.Pixels().save(&bytes, "PNG");
    return bytes.data().toStdString();
}

std::string PdfOf(const PlotPicture& picture) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&bytes);
        pdf.setResolution(DotsPerInch);
        pdf.setPageSize(QPageSize(QSizeF(picture.Size) * PointsPerDot, QPageSize::Point, QString(),
                                  QPageSize::ExactMatch));
        pdf.setPageMargins(QMarginsF());
        picture.Paint(pdf);
    }
    return bytes.data().toStdString();
}

#ifdef QUILLMETRA_SVG
std::string SvgOf(const PlotPicture& picture) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    {
        QSvgGenerator svg;
        svg.setOutputDevice(&bytes);
        svg.setResolution(DotsPerInch);
        svg.setSize(picture.Size);
        svg.setViewBox(QRect(QPoint(), picture.Size));
        picture.Paint(svg);
    }
    return bytes.data().toStdString();
}
#endif

struct FileKind {
    const char* Name;
    const char* Caption;
    const char* Ending;
    std::string (*Bytes)(const PlotPicture&);  // null where this build cannot make it
};

constexpr FileKind FileKinds[] = {
    {"savePng", "Save as P&NG...", "png", PngOf},
#ifdef QUILLMETRA_SVG
    {"saveSvg", "Save as &SVG...", "svg", SvgOf},
#else
    {"saveSvg", "Save as SVG: not in this build", "svg", nullptr},
#endif
    {"savePdf", "Save as &PDF...", "pdf", PdfOf},
};

QAction* AddEntry(QMenu& menu, const char* name, const char* caption, const RunLater& later,
                  const Handler& act) {
    QAction* const entry = menu.addAction(QString::fromLatin1(caption));
    entry->setObjectName(name);
    QObject::connect(entry, &QAction::triggered, &menu, [later, act] { later(act); });
    return entry;
}

void AddPicture(QMenu& menu, Plot& plot, const PlotPicture& picture, const RunLater& later) {
    AddEntry(menu, "copyPicture", "&Copy picture", later, [picture, &plot] {
        QApplication::clipboard()->setImage(picture.Pixels());
        plot.Owner().SetStatus("The picture of the plot is copied");
    });
    for (const FileKind& kind : FileKinds) {
        const auto save = [picture, &plot, &kind] {
            plot.Owner().Dispatch(
                [&] { SavePicture(plot.Owner(), kind.Ending, [&] { return kind.Bytes(picture); }); });
        };
        AddEntry(menu, kind.Name, kind.Caption, later, save)->setEnabled(kind.Bytes != nullptr);
    }
    menu.addSeparator();
}

}  // namespace

QMenu* MakePlotMenu(Plot& plot, const PlotPicture* picture, QWidget& over, const RunLater& later) {
    auto* const menu = new QMenu(&over);
    menu->setObjectName("plotMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (picture != nullptr) AddPicture(*menu, plot, *picture, later);
    AddEntry(*menu, "copyFigures", "Copy &figures\tCtrl+C", later,
             [&plot] { OfferKey(plot, Plot::CopyKey); });
    return menu;
}

}  // namespace quillmetra
