// The databases of the last runs, the one that was open at the end, and how many backups are kept, beside the
// places of the windows.
#pragma once

#include <string>

#include <QSettings>

namespace quillmetra {

class DatabaseMemory {
public:
    // Gives the browser the recent databases, and keeps what it opens and closes from now on.
    explicit DatabaseMemory(const std::string& suitePath);

    // Opens the database that was open at the end of the last run.
    void OpenAgain() const;

private:
    QSettings settings_;
};

}  // namespace quillmetra
