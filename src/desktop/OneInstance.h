// One running suite for each program folder: a second start brings the first to the front and ends.
#pragma once

#include <string>

#include <QLocalServer>

namespace quillmetra {

class OneInstance {
public:
    // Of the suite whose own files lie in this folder.
    explicit OneInstance(const std::string& programFolder);

    // True when another one runs; it has been asked to come to the front.
    bool AnotherRuns();
    // From now on this one answers.
    void Listen();

private:
    void ComeToFront();

    QString name_;
    QLocalServer server_;
};

}  // namespace quillmetra
