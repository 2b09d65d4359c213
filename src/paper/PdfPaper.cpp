// See PdfPaper.h.
#include "paper/PdfPaper.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include "paper/PagePainter.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace {

// Letters need an application; a program without windows gets one that needs no display.
void EnsureApplication() {
    if (QCoreApplication::instance() != nullptr) return;
    static int count = 3;
    static char name[] = "quillmetra";
    static char option[] = "-platform";
    static char platform[] = "offscreen";
    static char* words[] = {name, option, platform, nullptr};
    // Never destroyed: what it would clean up may have gone before it when the process ends.
    static const auto* const application = new QGuiApplication(count, words);
    static_cast<void>(application);
}

class PdfPaper : public Paper {
public:
    explicit PdfPaper(const PrintJob& job)
        : file_(QString::fromStdU16String(MachinePath(job.Path).u16string())), writer_(&file_) {
        if (!file_.open(QIODevice::WriteOnly)) throw failure::PathAccess();
        writer_.setTitle(QString::fromStdString(job.Name));
        writer_.setCreator(QStringLiteral("Quillmetra"));
        if (job.SheetWidth > 0 && job.SheetHeight > 0) {
            const QSizeF sheet(job.SheetWidth / TwipsPerPoint, job.SheetHeight / TwipsPerPoint);
            writer_.setPageSize(QPageSize(sheet, QPageSize::Point));
        }
        writer_.setPageMargins(QMarginsF());
    }

    ~PdfPaper() override {
        if (painter_.isActive()) painter_.end();  // before the file that it draws into
        file_.cancelWriting();
    }

    void Print(const PrintedPage& page) override {
        const bool ready = painter_.isActive() ? writer_.newPage() : painter_.begin(&writer_);
        if (!ready || file_.error() != QFileDevice::NoError) throw failure::PathAccess();
        PaintPage(painter_, writer_, page);
    }

    void Finish() override {
        if (!painter_.isActive()) return;  // no page, no file
        if (!painter_.end() || !file_.commit()) throw failure::PathAccess();
    }

private:
    QSaveFile file_;
    QPdfWriter writer_;
    QPainter painter_;
};

}  // namespace

std::unique_ptr<Paper> OpenPdf(const PrintJob& job) {
    EnsureApplication();
    return std::make_unique<PdfPaper>(job);
}

}  // namespace quillmetra
