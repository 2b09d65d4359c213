// The view of a plot where the plotting library is missing: its words.
#include <QLabel>

#include "desktop/ControlView.h"
#include "desktop/Painting.h"
#include "platform/Plot.h"

namespace quillmetra {

namespace {

class PlotInWords : public ControlView {
public:
    PlotInWords(Plot& plot, QLabel* words) : ControlView(plot, words), plot_(plot), words_(words) {
        words_->setTextFormat(Qt::PlainText);
        words_->setWordWrap(true);
    }

protected:
    void RenewRows() override {
        words_->setText(ToQt(plot_.Text()));
        words_->setAccessibleName(plot_.IsEmpty() ? QStringLiteral("Drawn when calculated") : words_->text());
    }

private:
    Plot& plot_;
    QLabel* words_;
};

}  // namespace

ControlView* MakePlotView(Plot& plot, QWidget* parent) { return new PlotInWords(plot, new QLabel(parent)); }

}  // namespace quillmetra
