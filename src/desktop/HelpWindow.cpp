// See HelpWindow.h.
#include "desktop/HelpWindow.h"

#include <algorithm>

#include <QListWidget>
#include <QShortcut>
#include <QSplitter>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

#include "desktop/Painting.h"

namespace quillmetra {

HelpWindow::HelpWindow(std::vector<HelpTopic> topics)
    : topics_(std::move(topics)), list_(new QListWidget), text_(new QTextBrowser) {
    setObjectName("help");
    setWindowTitle(QStringLiteral("Help"));
    list_->setObjectName("topics");
    list_->setAccessibleName(QStringLiteral("Topics"));
    text_->setObjectName("text");
    text_->setAccessibleName(QStringLiteral("Text of the topic"));
    text_->setOpenLinks(false);
    text_->document()->setDocumentMargin(12);
    for (const HelpTopic& topic : topics_) list_->addItem(ToQt(topic.Title));

    auto* const sides = new QSplitter;
    sides->addWidget(list_);
    sides->addWidget(text_);
    sides->setStretchFactor(1, 1);
    sides->setSizes({DigitsWide(*this, 34), DigitsWide(*this, 86)});
    setCentralWidget(sides);
    resize(DigitsWide(*this, 120), fontMetrics().height() * 38);

    connect(list_, &QListWidget::currentRowChanged, this, &HelpWindow::Read);
    connect(text_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { ShowTopic(link.toString().toInt()); });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

void HelpWindow::ShowTopic(int number) {
    const auto found = std::find_if(topics_.begin(), topics_.end(),
                                    [number](const HelpTopic& topic) { return topic.Number == number; });
    list_->setCurrentRow(found == topics_.end() ? 0 : static_cast<int>(found - topics_.begin()));
    show();
    raise();
    activateWindow();
}

void HelpWindow::Read(int row) {
    if (row < 0 || row >= static_cast<int>(topics_.size())) return;
    text_->setMarkdown(ToQt(topics_[static_cast<std::size_t>(row)].Text));
    for (QTextFrame* frame : text_->document()->rootFrame()->childFrames()) {
        auto* const table = qobject_cast<QTextTable*>(frame);
        if (table == nullptr) continue;
        QTextTableFormat format = table->format();
        format.setBorderCollapse(true);
        format.setCellPadding(4);
        format.setBottomMargin(8);
        table->setFormat(format);
    }
}

}  // namespace quillmetra
