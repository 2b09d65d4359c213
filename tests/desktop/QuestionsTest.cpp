// Message boxes: what they say, which buttons they have, and that a question wants an answer.
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTextBrowser>

#include "desktop/HelpWindow.h"
#include "tests/desktop/DesktopFixture.h"

namespace quillmetra {

namespace {

class QuestionsTest : public DesktopTest {};

struct BoxCase {
    MessageBox Box;
    std::vector<QMessageBox::StandardButton> Buttons;
    QMessageBox::Icon Sign;
    Answer ByEnter;
};

TEST_F(QuestionsTest, BoxesShowWhatTheyAreGiven) {
    const BoxCase cases[] = {
        {{.Text = "Length must be > zero ", .Title = "Data checking", .Sign = Icon::Stop},
         {QMessageBox::Ok},
         QMessageBox::Critical,
         Answer::Ok},
        {{.Text = "<b>Save</b>\n\nchanges?",
          .Title = " Two  blanks",
          .Choice = Buttons::YesNo,
          .Sign = Icon::Question},
         {QMessageBox::Yes, QMessageBox::No},
         QMessageBox::Question,
         Answer::Yes},
        {{.Text = "Are you sure?",
          .Title = "Gas Mixture Properties of the Normal case",
          .Choice = Buttons::YesNo,
          .Sign = Icon::Exclamation,
          .Default = Answer::No},
         {QMessageBox::Yes, QMessageBox::No},
         QMessageBox::Warning,
         Answer::No},
        {{.Text = "Save?", .Title = "Save", .Choice = Buttons::YesNoCancel, .Sign = Icon::Information},
         {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel},
         QMessageBox::Information,
         Answer::Yes},
    };
    for (const BoxCase& each : cases) {
        SCOPED_TRACE(each.Box.Text);
        WhenDialogOpens([&](QWidget& widget) {
            auto& box = static_cast<QMessageBox&>(widget);
            EXPECT_EQ(box.text(), ToQt(each.Box.Text));
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.windowTitle(), ToQt(each.Box.Title));
            EXPECT_EQ(box.icon(), each.Sign);
            EXPECT_GT(box.width(), box.fontMetrics().horizontalAdvance(box.windowTitle()) + 60);
            EXPECT_FALSE(box.windowFlags() & (Qt::WindowMinMaxButtonsHint));
            EXPECT_EQ(static_cast<std::size_t>(box.buttons().size()), each.Buttons.size());
            for (const auto button : each.Buttons) EXPECT_NE(box.button(button), nullptr);
            QTest::keyClick(&box, Qt::Key_Return);
        });
        EXPECT_EQ(ShowMessage(each.Box), each.ByEnter);
    }
}

TEST_F(QuestionsTest, YesOrNoHasNoWayRound) {
    WhenDialogOpens([](QWidget& box) {
        QTest::keyClick(&box, Qt::Key_Escape);
        box.close();
        Settle();
        ASSERT_TRUE(box.isVisible());
        static_cast<QMessageBox&>(box).button(QMessageBox::No)->click();
    });
    EXPECT_FALSE(AskYesNo("Save changes?", "Line Loss"));

    WhenDialogOpens([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(ShowMessage({.Text = "Save?", .Title = "Save", .Choice = Buttons::YesNoCancel}),
              Answer::Cancel);
}

TEST_F(QuestionsTest, AnInputBoxTellsCancelFromEmpty) {
    WhenDialogOpens([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(Screen.InputBox("Gravity", "Flow"), "");
    WhenDialogOpens([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(Screen.InputBox("Gravity", "Flow"), std::nullopt);
}

TEST_F(QuestionsTest, ABoxOverABusyPointerShowsTheArrow) {
    const BusyPointer busy;
    WhenDialogOpens([](QWidget& box) {
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        QTest::keyClick(&box, Qt::Key_Return);
    });
    Tell("Done", "Done");
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
}

TEST_F(QuestionsTest, HelpOpensItsTopicAndFollowsLinks) {
    HelpWindow help({{401, "Line", "# Line\n\nSee [Method](420)."}, {420, "Method", "# Method\n\nDarcy."}});
    auto* const list = help.findChild<QListWidget*>("topics");
    auto* const text = help.findChild<QTextBrowser*>("text");
    help.ShowTopic(401);
    EXPECT_EQ(text->toPlainText(), "Line\nSee Method.");
    emit text->anchorClicked(QUrl("420"));
    EXPECT_EQ(text->toPlainText(), "Method\nDarcy.");
    EXPECT_EQ(list->currentItem()->text(), "Method");
    help.ShowTopic(999);
    EXPECT_EQ(list->currentRow(), 0);
    list->setCurrentRow(1);
    EXPECT_EQ(text->toPlainText(), "Method\nDarcy.");
}

TEST_F(QuestionsTest, HelpIsSearchedAndGoneThroughByKeys) {
    HelpWindow help({{401, "Line", "# Line\n\nPipe and flow."},
                     {402, "Method", "# Method\n\nFlow by Darcy."},
                     {403, "Units", "# Units\n\nFeet."}});
    auto* const list = help.findChild<QListWidget*>("topics");
    auto* const search = help.findChild<QLineEdit*>("search");
    const auto press = [&](QWidget* on, int key, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(on, static_cast<Qt::Key>(key), with);
        return list->currentRow();
    };
    help.ShowTopic(403);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&help));
    press(list, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(search->hasFocus());
    QTest::keyClicks(search, "FLOW  dar");
    EXPECT_EQ(help.findChild<QLabel*>("found")->text(), "1 topic");
    EXPECT_EQ(press(search, Qt::Key_Return), 1);
    EXPECT_EQ(help.findChild<QTextBrowser*>("text")->extraSelections().size(), 2);
    search->setText("flow");
    EXPECT_EQ(press(search, Qt::Key_Return), 0);
    EXPECT_EQ(press(search, Qt::Key_Return), 1);
    EXPECT_EQ(press(search, Qt::Key_Left, Qt::AltModifier), 0);
    EXPECT_EQ(press(search, Qt::Key_Left, Qt::AltModifier), 1);
    EXPECT_EQ(press(search, Qt::Key_Left, Qt::AltModifier), 2) << "not found, and read all the same";
    EXPECT_EQ(search->text(), "");
    EXPECT_EQ(press(list, Qt::Key_Left, Qt::AltModifier), 2);
    EXPECT_EQ(press(list, Qt::Key_Right, Qt::AltModifier), 1);
    list->setCurrentRow(2);
    EXPECT_FALSE(help.findChild<QPushButton*>("forward")->isEnabled());
    search->setText("nowhere");
    EXPECT_EQ(help.findChild<QLabel*>("found")->text(), "No topic has these words");
    EXPECT_EQ(press(search, Qt::Key_Return), 2);
    press(search, Qt::Key_Escape);
    EXPECT_TRUE(search->text().isEmpty() && help.isVisible());
    press(search, Qt::Key_Escape);
    EXPECT_FALSE(help.isVisible());
}

TEST_F(QuestionsTest, AnotherKindOfFileGivesTheNameItsEnding) {
    const auto save = [this](int kind, const QString& name) {
        WhenDialogOpens([kind, name](QWidget& widget) {
            auto& dialog = static_cast<QFileDialog&>(widget);
            auto* const kinds = dialog.findChild<QComboBox*>("fileTypeCombo");
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(name);
            kinds->setCurrentIndex(kind);
            emit kinds->activated(kind);
            emit kinds->textActivated(kinds->currentText());
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        return Screen.FileDialog({.Title = "Export",
                                  .Filter = "Values(*.csv)|*.csv|Workbook(*.xlsx)|*.xlsx",
                                  .Folder = SuitePath(std::filesystem::temp_directory_path() / "TRDB.csv"),
                                  .ForSaving = true});
    };
    EXPECT_TRUE(save(0, "A.csv").value_or("").ends_with("A.csv"));
    EXPECT_TRUE(save(1, "A.csv").value_or("").ends_with("A.xlsx"));
    EXPECT_TRUE(save(1, "A").value_or("").ends_with("A.xlsx"));
}

TEST_F(QuestionsTest, HelpOpensBesideItsForm) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    for (const int left : {0, room.width() / 2}) {
        HelpWindow help({{401, "Line", "# Line"}});
        QWidget form;
        form.setGeometry(left, 60, room.width() / 2 - 20, 300);
        form.show();
        help.ShowTopic(401, &form);
        EXPECT_FALSE(help.frameGeometry().intersects(form.frameGeometry())) << left;
        EXPECT_TRUE(room.contains(help.geometry())) << left;
    }
}

}  // namespace

}  // namespace quillmetra
