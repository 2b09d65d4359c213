// See Recovery.h.
#include "records/Recovery.h"

#include <memory>
#include <string>

#include "core/CalcRecord.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "platform/SafeFiles.h"
#include "platform/TextFiles.h"
#include "records/LoadRecord.h"
#include "records/RecordFiles.h"
#include "records/RecordView.h"
#include "records/SaveRecord.h"

namespace quillmetra {

namespace {

constexpr const char* NoTag = "(no tag)";

// A record is written as it is, whatever a save would note in it.
class AsItWas {
public:
    AsItWas() : record_(Calc), databaseFile_(Suite.DatabaseFile) {}
    ~AsItWas() {
        Calc = record_;
        Suite.DatabaseFile = databaseFile_;
    }
    AsItWas(const AsItWas&) = delete;
    AsItWas& operator=(const AsItWas&) = delete;

private:
    CalcRecord record_;
    std::string databaseFile_;
};

}  // namespace

void KeepRecovery() {
    if (Suite.RecoveryFile.empty()) return;
    const AsItWas before;
    const AnyLength texts;  // a save will tell which one is too long; here it is kept as it was typed
    const std::string beside = Suite.RecoveryFile + ".new";
    try {
        MakeEmptyDatabase(beside);
        if (Calc.Tag.empty()) Calc.Tag = NoTag;
        WriteWholeRecord(*OpenRecords(beside));
        MoveOver(MachinePath(beside), MachinePath(Suite.RecoveryFile));
    } catch (const RuntimeError&) {
        RemoveIfThere(MachinePath(beside));
    }
}

void DropRecovery() {
    if (!Suite.RecoveryFile.empty()) RemoveIfThere(MachinePath(Suite.RecoveryFile));
}

bool HasRecovery() { return !Suite.RecoveryFile.empty() && FileExists(Suite.RecoveryFile); }

bool TakeRecovery() {
    const std::string databaseFile = Suite.DatabaseFile;
    bool taken = false;
    try {
        RecordHead head;
        {
            const RecordView view(Suite.RecoveryFile);
            head = view.Head();
        }
        ResetRecord();
        LoadHeadings();
        Suite.DatabaseFile = Suite.RecoveryFile;
        Calc.Tag = head.Tag;
        TakeFluidType(head.FluidType, head.ProgramNumber);
        taken = !head.Tag.empty() && GetTRCalc();
    } catch (const RuntimeError&) {
        taken = false;
    }
    Suite.DatabaseFile = databaseFile;
    if (!taken) {
        ResetRecord();
        return false;
    }
    if (Calc.Tag == NoTag) Calc.Tag.clear();
    Calc.TagSaved.clear();
    Calc.LoadedDatabaseFile.clear();
    Calc.ChangedFlag = words::No;
    Calc.RecordUpdated = words::Yes;
    return true;
}

}  // namespace quillmetra
