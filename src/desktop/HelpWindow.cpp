// See HelpWindow.h.
#include "desktop/HelpWindow.h"

#include <algorithm>
#include <array>

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <QVBoxLayout>

#include "desktop/Painting.h"
#include "desktop/WindowPlaces.h"

namespace quillmetra {

namespace {

constexpr int TopicsWide = 34, TextWide = 70;  // digits
constexpr int NarrowestText = 40;
constexpr int LowestWindow = 18;  // lines

QPushButton* MakeStep(const char* name, const char* caption, const char* tip) {
    auto* const button = new QPushButton(caption);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    button->setEnabled(false);
    return button;
}

void FrameTables(QTextDocument& document) {
    for (QTextFrame* frame : document.rootFrame()->childFrames()) {
        auto* const table = qobject_cast<QTextTable*>(frame);
        if (table == nullptr) continue;
        QTextTableFormat format = table->format();
        format.setBorderCollapse(true);
        format.setCellPadding(4);
        format.setBottomMargin(8);
        table->setFormat(format);
    }
}

// What a screen has to the right of a window, to its left, below and above.
std::array<QRect, 4> SidesOf(const QRect& taken, const QRect& room) {
    return {room.adjusted(taken.right() + 1 - room.left(), 0, 0, 0),
            room.adjusted(0, 0, taken.left() - 1 - room.right(), 0),
            room.adjusted(0, taken.bottom() + 1 - room.top(), 0, 0),
            room.adjusted(0, 0, 0, taken.top() - 1 - room.bottom())};
}

QList<QTextEdit::ExtraSelection> PlacesOf(const std::string& word, const QTextBrowser& text) {
    QList<QTextEdit::ExtraSelection> places;
    QTextCharFormat format;
    format.setBackground(text.palette().highlight());
    format.setForeground(text.palette().highlightedText());
    for (QTextCursor at = text.document()->find(ToQt(word)); !at.isNull();
         at = text.document()->find(ToQt(word), at)) {
        places.append({at, format});
    }
    return places;
}

}  // namespace

HelpWindow::HelpWindow(std::vector<HelpTopic> topics)
    : topics_(std::move(topics)),
      sides_(new QSplitter),
      back_(MakeStep("back", "&Back", "The topic before (Alt+Left)")),
      forward_(MakeStep("forward", "&Forward", "The topic after, once gone back (Alt+Right)")),
      search_(new QLineEdit),
      found_(new QLabel),
      list_(new QListWidget),
      text_(new QTextBrowser) {
    setObjectName("help");
    setWindowTitle(QStringLiteral("Help"));
    sides_->addWidget(MakeTopics());
    sides_->addWidget(MakePages());
    sides_->setStretchFactor(1, 1);
    sides_->setChildrenCollapsible(false);
    sides_->setSizes({DigitsWide(*this, TopicsWide), DigitsWide(*this, TextWide)});
    setCentralWidget(sides_);
    resize(DigitsWide(*this, TopicsWide + TextWide), fontMetrics().height() * 38);

    connect(list_, &QListWidget::currentRowChanged, this, &HelpWindow::Read);
    connect(text_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { ShowTopic(link.toString().toInt()); });
    HookKeys();
}

QWidget* HelpWindow::MakeTopics() {
    search_->setObjectName("search");
    search_->setAccessibleName(QStringLiteral("Search"));
    search_->setPlaceholderText(QStringLiteral("Words of a topic"));
    search_->setToolTip(QStringLiteral("Shows the topics that have all these words (Ctrl+F)"));
    search_->setClearButtonEnabled(true);
    found_->setObjectName("found");
    found_->setVisible(false);
    list_->setObjectName("topics");
    list_->setAccessibleName(QStringLiteral("Topics"));
    for (const HelpTopic& topic : topics_) list_->addItem(ToQt(topic.Title));
    auto* const label = new QLabel(QStringLiteral("&Search"));
    label->setBuddy(search_);

    auto* const side = new QWidget;
    auto* const lines = new QVBoxLayout(side);
    lines->setContentsMargins(6, 6, 6, 6);
    auto* const line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(search_, 1);
    lines->addLayout(line);
    lines->addWidget(found_);
    lines->addWidget(list_, 1);
    return side;
}

QWidget* HelpWindow::MakePages() {
    text_->setObjectName("text");
    text_->setAccessibleName(QStringLiteral("Text of the topic"));
    text_->setOpenLinks(false);
    text_->document()->setDocumentMargin(12);

    auto* const side = new QWidget;
    auto* const lines = new QVBoxLayout(side);
    lines->setContentsMargins(6, 6, 6, 6);
    auto* const line = new QHBoxLayout;
    line->addWidget(back_);
    line->addWidget(forward_);
    line->addStretch();
    lines->addLayout(line);
    lines->addWidget(text_, 1);
    return side;
}

void HelpWindow::HookKeys() {
    connect(back_, &QPushButton::clicked, this, [this] { GoTo(place_ - 1); });
    connect(forward_, &QPushButton::clicked, this, [this] { GoTo(place_ + 1); });
    connect(search_, &QLineEdit::textChanged, this, &HelpWindow::Search);
    connect(search_, &QLineEdit::returnPressed, this, &HelpWindow::ReadFound);
    const auto key = [this](const QKeySequence& keys, auto act) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
    };
    key(Qt::ALT | Qt::Key_Left, [this] { GoTo(place_ - 1); });
    key(Qt::ALT | Qt::Key_Right, [this] { GoTo(place_ + 1); });
    key(Qt::CTRL | Qt::Key_F, [this] {
        search_->setFocus(Qt::ShortcutFocusReason);
        search_->selectAll();
    });
    key(Qt::Key_Escape, [this] { LeaveSearch(); });
}

void HelpWindow::ShowTopic(int number, const QWidget* beside) {
    const auto found = std::find_if(topics_.begin(), topics_.end(),
                                    [number](const HelpTopic& topic) { return topic.Number == number; });
    const int row = found == topics_.end() ? 0 : static_cast<int>(found - topics_.begin());
    Pick(row);
    if (!isVisible() && beside != nullptr) StandBeside(*beside);
    show();
    raise();
    activateWindow();
}

// Where it has its whole size, else where a text can still be read. Where it has not even that, as much of
// the other window is seen as can be.
void HelpWindow::StandBeside(const QWidget& other) {
    const QRect room = other.screen()->availableGeometry();
    const QRect taken = other.frameGeometry();
    const QSize least(DigitsWide(*this, NarrowestText + 4), fontMetrics().height() * LowestWindow);
    for (const QSize& wanted : {size(), least}) {
        for (const QRect& side : SidesOf(taken, room)) {
            const QSize inside = side.marginsRemoved(FrameOf(*this)).size();
            if (inside.width() < wanted.width() || inside.height() < wanted.height()) continue;
            return PlaceWithin(*this, QRect(taken.topLeft(), size()), side);
        }
    }
    const bool onTheRight = room.right() - taken.right() >= taken.left() - room.left();
    const QPoint corner(onTheRight ? room.right() : room.left(), taken.top());
    PlaceWithin(*this, QRect(corner, QSize(least.width(), height())), room);
}

// The topics stand above the text where there is no room beside it.
void HelpWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    const bool isNarrow = width() < DigitsWide(*this, TopicsWide + NarrowestText);
    const Qt::Orientation way = isNarrow ? Qt::Vertical : Qt::Horizontal;
    if (sides_->orientation() == way) return;
    sides_->setOrientation(way);
    sides_->setSizes(isNarrow ? QList<int>{height() / 3, height() * 2 / 3}
                              : QList<int>{DigitsWide(*this, TopicsWide), width()});
}

// The topic in hand stays in hand.
void HelpWindow::Search(const QString& search) {
    const std::vector<std::string> words = SearchWords(search.toStdString());
    int found = 0;
    lastFound_ = -1;
    for (int row = 0; row < list_->count(); ++row) {
        const bool has = HasWords(topics_[static_cast<std::size_t>(row)], words);
        list_->item(row)->setHidden(!has);
        found += has ? 1 : 0;
    }
    found_->setText(found == 0   ? QStringLiteral("No topic has these words")
                    : found == 1 ? QStringLiteral("1 topic")
                                 : QStringLiteral("%1 topics").arg(found));
    found_->setVisible(!words.empty());
    ShowFound();
}

// Enter reads the first topic found, and the next press of it the one after.
void HelpWindow::ReadFound() {
    const int rows = list_->count();
    for (int step = 1; step <= rows; ++step) {
        const int row = (lastFound_ + step) % rows;
        if (list_->item(row)->isHidden()) continue;
        list_->setCurrentRow(lastFound_ = row);
        return;
    }
}

void HelpWindow::LeaveSearch() {
    if (search_->text().isEmpty()) {
        close();
    } else {
        search_->clear();
    }
}

void HelpWindow::Read(int row) {
    if (row < 0 || row >= static_cast<int>(topics_.size())) return;
    text_->setMarkdown(ToQt(topics_[static_cast<std::size_t>(row)].Text));
    FrameTables(*text_->document());
    ShowFound();
    const bool isStep = place_ >= 0 && read_[static_cast<std::size_t>(place_)] == row;
    if (!isStep) {
        read_.resize(static_cast<std::size_t>(++place_));
        read_.push_back(row);
    }
    back_->setEnabled(place_ > 0);
    forward_->setEnabled(place_ + 1 < static_cast<int>(read_.size()));
}

// The links of a text keep the colour that it was read with.
void HelpWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) Read(list_->currentRow());
}

void HelpWindow::GoTo(int place) {
    if (place < 0 || place >= static_cast<int>(read_.size())) return;
    place_ = place;
    Pick(read_[static_cast<std::size_t>(place)]);
}

// A topic that the search has not found ends it.
void HelpWindow::Pick(int row) {
    const QListWidgetItem* const item = list_->item(row);
    if (item != nullptr && item->isHidden()) search_->clear();
    list_->setCurrentRow(row);
}

// Marks the words of the search in the text, and brings the first into sight.
void HelpWindow::ShowFound() {
    QList<QTextEdit::ExtraSelection> places;
    for (const std::string& word : SearchWords(search_->text().toStdString())) {
        places += PlacesOf(word, *text_);
    }
    text_->setExtraSelections(places);
    if (places.isEmpty()) return;
    QTextCursor first = places.front().cursor;
    for (const auto& place : places) first = std::min(first, place.cursor);
    first.clearSelection();
    text_->setTextCursor(first);
}

}  // namespace quillmetra
