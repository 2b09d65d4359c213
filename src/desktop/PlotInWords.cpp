// The view of a plot where the plotting library is missing: its words. Its menu copies the figures.
#include <QLabel>
#include <QMenu>

#include "desktop/ControlView.h"
#include "desktop/Painting.h"
#include "desktop/PlotMenu.h"
#include "platform/Plot.h"

namespace quillmetra {

namespace {

class PlotInWords : public ControlView {
public:
    PlotInWords(Plot& plot, QLabel* words) : ControlView(plot, words), plot_(plot), words_(words) {
        words_->setTextFormat(Qt::PlainText);
        words_->setWordWrap(true);
        words_->setFocusPolicy(Qt::TabFocus);
        words_->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(words_, &QWidget::customContextMenuRequested, this,
                [this](const QPoint& at) { ShowMenu(at); });
    }

protected:
    void RenewRows() override {
        words_->setText(ToQt(plot_.Text()));
        words_->setAccessibleName(plot_.IsEmpty() ? QStringLiteral("Drawn when calculated") : words_->text());
    }

private:
    void ShowMenu(const QPoint& at) {
        const auto later = [this](const Handler& act) {
            Later([this, act] {
                if (Model() != nullptr && !plot_.IsEmpty()) act();
            });
        };
        MakePlotMenu(plot_, nullptr, *words_, later)->popup(words_->mapToGlobal(at));
    }

    Plot& plot_;
    QLabel* words_;
};

}  // namespace

ControlView* MakePlotView(Plot& plot, QWidget* parent) { return new PlotInWords(plot, new QLabel(parent)); }

}  // namespace quillmetra
