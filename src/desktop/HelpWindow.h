// The window of the help: its topics, those with the words of a search alone, beside the text of one.
#pragma once

#include <vector>

#include <QMainWindow>

#include "core/HelpTopics.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QSplitter;
class QTextBrowser;

namespace quillmetra {

class HelpWindow : public QMainWindow {
public:
    explicit HelpWindow(std::vector<HelpTopic> topics);

    // Brings the window to the front with a topic; with the first one for a number without a topic. One that
    // is not seen yet opens beside another window.
    void ShowTopic(int number, const QWidget* beside = nullptr);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* MakeTopics();
    QWidget* MakePages();
    void HookKeys();
    void StandBeside(const QWidget& other);
    void Search(const QString& search);
    void ReadFound();
    void LeaveSearch();
    void Read(int row);
    void GoTo(int place);
    void Pick(int row);
    void ShowFound();

    std::vector<HelpTopic> topics_;
    QSplitter* sides_;
    QPushButton* back_;
    QPushButton* forward_;
    QLineEdit* search_;
    QLabel* found_;  // how many, while a search stands
    QListWidget* list_;
    QTextBrowser* text_;
    std::vector<int> read_;  // the rows in the order that they were read
    int place_ = -1;         // of the one in hand
    int lastFound_ = -1;     // the row that Enter has read of the search, -1 before its first
};

}  // namespace quillmetra
