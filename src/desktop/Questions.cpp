// The part of DesktopHost that asks the user: message boxes and the toolkit's own dialogs.
#include <array>

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QGridLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>
#include <QWindow>

#include "core/Suite.h"
#include "desktop/DesktopHost.h"
#include "desktop/HeldBoxes.h"
#include "desktop/HelpWindow.h"
#include "desktop/Painting.h"
#include "desktop/ReadyForUser.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace {

// A question that wants Yes or No has no way round it: Escape and the close box do nothing.
class Question : public QMessageBox {
public:
    explicit Question(bool mustAnswer) : QMessageBox(WindowInHand()), mustAnswer_(mustAnswer) {
        setWindowFlags(DialogFlags);
        if (mustAnswer_) setWindowFlag(Qt::WindowCloseButtonHint, false);
    }

    // A title that is longer than the text would be cut; the frame has its buttons beside it.
    void FitTitle() {
        constexpr int frameButtons = 100;
        QFont titles = font();
        titles.setBold(true);
        const int width = QFontMetrics(titles).horizontalAdvance(windowTitle()) + frameButtons;
        auto* const grid = qobject_cast<QGridLayout*>(layout());
        if (grid == nullptr) return;
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (mustAnswer_ && event->matches(QKeySequence::Cancel)) return;
        QMessageBox::keyPressEvent(event);
    }

    void closeEvent(QCloseEvent* event) override {
        if (mustAnswer_) {
            event->ignore();
        } else {
            QMessageBox::closeEvent(event);
        }
    }

private:
    bool mustAnswer_;
};

struct AnswerButton {
    Answer Means;
    QMessageBox::StandardButton Button;
};

constexpr std::array AnswerButtons = {
    AnswerButton{Answer::Ok, QMessageBox::Ok},
    AnswerButton{Answer::Yes, QMessageBox::Yes},
    AnswerButton{Answer::No, QMessageBox::No},
    AnswerButton{Answer::Cancel, QMessageBox::Cancel},
};

QMessageBox::Icon SignOf(Icon icon) {
    switch (icon) {
        case Icon::Stop: return QMessageBox::Critical;
        case Icon::Question: return QMessageBox::Question;
        case Icon::Exclamation: return QMessageBox::Warning;
        case Icon::Information: return QMessageBox::Information;
        default: return QMessageBox::NoIcon;
    }
}

// "Access DB Files(TRDB.MDB)|TRDB.MDB" as the toolkit writes it: words, then patterns in brackets.
QString FilterOf(const std::string& filter) {
    const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString words = parts[i].section(QLatin1Char('('), 0, 0).trimmed();
        filters << words + QStringLiteral(" (") +
                       QString(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' ')) + QLatin1Char(')');
    }
    return filters.join(QStringLiteral(";;"));
}

// "Workbook (*.xlsx)" gives "xlsx".
QString EndingOf(const QString& filter) {
    return filter.section(QStringLiteral("*."), 1).section(QLatin1Char(')'), 0, 0);
}

// Where there are files of several kinds, the kind that is chosen gives its ending to a name without one; a
// dialog with an ending to give changes that of the name by itself.
QString AskNameToSave(QWidget* over, const QString& title, const QString& file, const QString& filter) {
    if (!filter.contains(QStringLiteral(";;")))
        return QFileDialog::getSaveFileName(over, title, file, filter);
    QFileDialog dialog(over, title, QFileInfo(file).path(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.selectFile(QFileInfo(file).fileName());
    dialog.setDefaultSuffix(EndingOf(dialog.selectedNameFilter()));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog](const QString& chosen) { dialog.setDefaultSuffix(EndingOf(chosen)); });
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace

Answer DesktopHost::ShowMessageBox(const MessageBox& box) {
    if (HeldBoxes::Hold(box)) return Answer::Ok;
    const ReadyForUser ready;
    Question question(box.Choice == Buttons::YesNo);
    question.setWindowTitle(ToQt(box.Title));
    question.setTextFormat(Qt::PlainText);
    question.setText(ToRead(box.Text));
    question.setIcon(SignOf(box.Sign));
    for (const AnswerButton& each : AnswerButtons) {
        if (!Offers(box, each.Means)) continue;
        QPushButton* const button = question.addButton(each.Button);
        if (each.Means == DefaultAnswer(box)) question.setDefaultButton(button);
    }
    question.FitTitle();
    const int pressed = question.exec();
    for (const AnswerButton& each : AnswerButtons) {
        if (each.Button == pressed) return each.Means;
    }
    return box.Choice == Buttons::YesNoCancel ? Answer::Cancel : DefaultAnswer(box);
}

std::optional<std::string> DesktopHost::InputBox(const std::string& prompt, const std::string& title) {
    const ReadyForUser ready;
    bool accepted = false;
    const QString text = QInputDialog::getText(WindowInHand(), ToQt(title), ToRead(prompt), QLineEdit::Normal,
                                               {}, &accepted, DialogFlags);
    if (!accepted) return std::nullopt;
    return text.toStdString();
}

std::optional<std::string> DesktopHost::FileDialog(const FileQuestion& question) {
    const ReadyForUser ready;
    const QString folder = QString::fromStdU16String(MachinePath(question.Folder).u16string());
    QWidget* const over = WindowInHand();
    const QString title = ToQt(question.Title);
    const QString filter = FilterOf(question.Filter);
    const QString name = question.ForSaving ? AskNameToSave(over, title, folder, filter)
                                            : QFileDialog::getOpenFileName(over, title, folder, filter);
    if (name.isEmpty()) return std::nullopt;
    return SuitePath(name.toStdU16String());
}

std::optional<FontChoice> DesktopHost::FontDialog(const FontChoice& preset) {
    const ReadyForUser ready;
    QFont font(ToQt(preset.Name));
    font.setPointSizeF(preset.Size);
    font.setBold(preset.Bold);
    font.setItalic(preset.Italic);
    font.setUnderline(preset.Underline);
    bool accepted = false;
    font = QFontDialog::getFont(&accepted, font, WindowInHand());
    if (!accepted) return std::nullopt;
    return FontChoice{font.family().toStdString(), font.pointSizeF(), font.bold(), font.italic(),
                      font.underline()};
}

std::optional<unsigned> DesktopHost::ColourDialog(unsigned preset, const std::string& title) {
    const ReadyForUser ready;
    const QColor colour =
        QColorDialog::getColor(ToQt(Colour{preset & 0xFFFFFFU}), WindowInHand(), ToQt(title));
    if (!colour.isValid()) return std::nullopt;
    return static_cast<unsigned>(colour.red()) | static_cast<unsigned>(colour.green()) << 8U |
           static_cast<unsigned>(colour.blue()) << 16U;
}

void DesktopHost::CopyText(const std::string& text) { QGuiApplication::clipboard()->setText(ToQt(text)); }

std::string DesktopHost::CopiedText() { return QGuiApplication::clipboard()->text().toStdString(); }

// The topics as shipped; without them, a help file that an office put into the program's folder.
void DesktopHost::ShowHelp(int topic) {
    if (help_ == nullptr) {
        std::vector<HelpTopic> topics = ReadHelpTopics(HelpFolder());
        if (!topics.empty()) help_ = std::make_unique<HelpWindow>(std::move(topics));
    }
    if (help_ != nullptr) {
        // Over a dialog it must belong to it, or the dialog would keep it from the user.
        const QWidget* const dialog = QApplication::activeModalWidget();
        help_->winId();
        help_->windowHandle()->setTransientParent(dialog == nullptr ? nullptr : dialog->windowHandle());
        return help_->ShowTopic(topic, WindowInHand());
    }
    if (FileExists(Suite.HelpFile)) {
        const QString file = QString::fromStdU16String(MachinePath(Suite.HelpFile).u16string());
        QDesktopServices::openUrl(QUrl::fromLocalFile(file));
        return;
    }
    ShowMessageBox({.Text = "Help file VOTR.HLP was not found", .Title = "Help", .Sign = Icon::Information});
}

}  // namespace quillmetra
