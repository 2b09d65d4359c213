// See frmCopyAll.h.
#include "forms/frmCopyAll.h"

#include "forms/ColourSchemes.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/RuntimeError.h"
#include "records/RecordCopy.h"

namespace quillmetra {

frmCopyAll::frmCopyAll() : SuiteForm("frmCopyAll") {
    SetCaption("Copy all records");
    Fixed = true;
    DefaultButton = &cmdCopy;
    CancelButton = &cmdCancel;
    for (Label* label : {&lblFrom, &lblTo}) label->ColourGroup = 1;
    barProgress.Describe(&lblTo);
    cmdCopy.SetEnabled(false);  // until it knows what to copy
    cmdCopy.Click = [this] { cmdCopy_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmCopyAll::Load() {
    ApplyColours(*this);
    barProgress.SetVisible(false);
}

void frmCopyAll::Take(const std::string& from, const std::string& to) {
    from_ = from;
    to_ = to;
    lblFrom.SetCaption("From " + from);
    lblTo.SetCaption("To " + to);
    cmdCopy.SetEnabled(true);
}

bool frmCopyAll::Copy() {
    return CopyAllRecords(from_, to_, [this](std::int64_t done, std::int64_t total) {
        barProgress.SetProgress(static_cast<int>(done), static_cast<int>(total));
        return !UserWantsToStop();
    });
}

void frmCopyAll::cmdCopy_Click() {
    SetStatus("Copying; Escape stops it");
    barProgress.SetVisible(true);
    cmdCopy.SetEnabled(false);
    bool isWhole = false;
    try {
        isWhole = Copy();
        SetStatus(isWhole ? "All records are copied" : "Stopped; nothing was copied");
    } catch (const RuntimeError& error) {
        SetStatus("Nothing was copied");
        Tell(error.Description, Caption(), Icon::Stop);
    }
    barProgress.SetVisible(false);
    cmdCopy.SetEnabled(!isWhole);
}

void frmCopyAll::cmdCancel_Click() { UnloadForm(Name()); }

}  // namespace quillmetra
