// The window of the help: the list of its topics beside the text of one.
#pragma once

#include <vector>

#include <QMainWindow>

#include "core/HelpTopics.h"

class QListWidget;
class QTextBrowser;

namespace quillmetra {

class HelpWindow : public QMainWindow {
public:
    explicit HelpWindow(std::vector<HelpTopic> topics);

    // Brings the window to the front with a topic; with the first one for a number without a topic.
    void ShowTopic(int number);

private:
    void Read(int row);

    std::vector<HelpTopic> topics_;
    QListWidget* list_;
    QTextBrowser* text_;
};

}  // namespace quillmetra
