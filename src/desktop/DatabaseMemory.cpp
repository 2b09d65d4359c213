// See DatabaseMemory.h.
#include "desktop/DatabaseMemory.h"

#include <algorithm>

#include <QStringList>

#include "desktop/Painting.h"
#include "forms/frmTRProg.h"
#include "platform/Forms.h"
#include "platform/TextFiles.h"
#include "records/Backups.h"

namespace quillmetra {

namespace {

constexpr const char* OpenKey = "databases/open";
constexpr const char* RecentKey = "databases/recent";
constexpr const char* BackupsKey = "databases/backups";

frmTRProg* Browser() { return dynamic_cast<frmTRProg*>(LoadedForm("frmTRProg")); }

}  // namespace

DatabaseMemory::DatabaseMemory(const std::string& suitePath)
    : settings_(QString::fromStdU16String(MachinePath(suitePath).u16string()), QSettings::IniFormat) {
    frmTRProg* const browser = Browser();
    if (browser == nullptr) return;
    BackupsKept = std::clamp(settings_.value(BackupsKey, BackupsKept).toInt(), 0, MostBackups);
    frmTRProg::Files files;
    for (const QString& file : settings_.value(RecentKey).toStringList()) files.push_back(file.toStdString());
    browser->ShowRecent(files);
    browser->DatabasesChanged = [this, browser] {
        QStringList recent;
        for (const std::string& file : browser->Recent()) recent << ToQt(file);
        settings_.setValue(RecentKey, recent);
        settings_.setValue(BackupsKey, BackupsKept);
        settings_.setValue(OpenKey, ToQt(browser->OpenFile()));
    };
}

void DatabaseMemory::OpenAgain() const {
    const std::string file = settings_.value(OpenKey).toString().toStdString();
    frmTRProg* const browser = Browser();
    if (browser == nullptr || file.empty() || !browser->Visible()) return;
    browser->Dispatch([&] { browser->OpenAgain(file); });
}

}  // namespace quillmetra
