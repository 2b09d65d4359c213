// See frmShippedRows.h.
#include "forms/frmShippedRows.h"

#include <algorithm>

#include "core/FileNames.h"
#include "core/Suite.h"
#include "forms/ColourSchemes.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace {

constexpr std::size_t FileWidth = 14;

// Holds the version whose rows the user was told of.
std::string ToldFile() { return InDefaultPath(path::Program, filename::ShippedRows); }

bool WasTold() {
    try {
        LineReader file(ToldFile());
        std::string version;
        return file.Next(version) && Trim(version) == Trim(Suite.VersionText);
    } catch (const RuntimeError&) {
        return false;
    }
}

void KeepTold() {
    try {
        TextWriter file(ToldFile());
        file.Line(Trim(Suite.VersionText));
        file.Commit();
    } catch (const RuntimeError&) {
        // told again at the next start
    }
}

std::string ListLine(const ShippedRow& row) {
    std::string line = row.File;
    line.resize(std::max(FileWidth, line.size() + 1), ' ');
    return line + row.Text;
}

}  // namespace

void TellOfShippedRows() {
    if (WasTold() || NewerShippedRows().empty()) return;
    Form& browser = LoadForm("frmTRProg");
    const std::string before = browser.Status();
    browser.SetStatus((before.empty() ? "" : before + ". ") +
                      "Newer rows of the tables are to be had: New Calculation, Tables, Shipped rows");
    KeepTold();
}

frmShippedRows::frmShippedRows() : SuiteForm("frmShippedRows") {
    SetCaption("Shipped rows");
    DefaultButton = &cmdOK;
    CancelButton = &cmdCancel;
    lstRows.Multiple = true;
    lstRows.Describe(&lblRows);
    lstRows.ColourGroup = 4;
    for (Label* label : {&lblRows, &lblPicked}) label->ColourGroup = 1;
    cmdOK.SetToolTip("Writes the picked rows into your tables; your own rows and what you changed stay");
    lstRows.Click = [this] { lstRows_Click(); };
    cmdAll.Click = [this] { cmdAll_Click(); };
    cmdNone.Click = [this] { cmdNone_Click(); };
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmShippedRows::Load() {
    ApplyColours(*this);
    ShowRows();
}

void frmShippedRows::ShowRows() {
    rows_ = NewerShippedRows();
    std::vector<std::string> lines(rows_.size());
    std::transform(rows_.begin(), rows_.end(), lines.begin(), ListLine);
    lstRows.SetRows(std::move(lines));
    PickEach(true);
    if (rows_.empty()) SetStatus("Your tables hold all that is shipped");
}

std::vector<ShippedRow> frmShippedRows::PickedRows() const {
    std::vector<ShippedRow> picked;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (lstRows.IsPicked(static_cast<int>(i))) picked.push_back(rows_[i]);
    }
    return picked;
}

void frmShippedRows::lstRows_Click() {
    int picked = 0;
    for (int i = 0; i < lstRows.RowCount(); ++i) picked += lstRows.IsPicked(i) ? 1 : 0;
    lblPicked.SetCaption(std::to_string(picked) + " of " + std::to_string(rows_.size()) + " picked");
    cmdOK.SetEnabled(picked > 0);
}

// From the last to the first, at which the list then stands.
void frmShippedRows::PickEach(bool picked) {
    for (int i = lstRows.RowCount() - 1; i >= 0; --i) lstRows.Pick(i, picked);
    lstRows_Click();
}

void frmShippedRows::cmdAll_Click() { PickEach(true); }

void frmShippedRows::cmdNone_Click() { PickEach(false); }

// A table that cannot be written stops it; those before it are written, and the list shows what is left.
void frmShippedRows::cmdOK_Click() {
    const std::vector<ShippedRow> picked = PickedRows();
    std::string file;
    try {
        const BusyPointer busy;
        for (const ShippedRow& row : picked) {
            if (row.File == file) continue;
            file = row.File;
            WriteShippedRows(file, picked);
        }
    } catch (const RuntimeError& error) {
        Tell("File " + file + "\n" + error.Description, Caption());
        ShowRows();
        return;
    }
    UnloadForm(Name());
    if (Form* const selector = LoadedForm("frmObxProg")) {
        selector->SetStatus(std::to_string(picked.size()) + (picked.size() == 1 ? " row was" : " rows were") +
                            " written");
    }
}

void frmShippedRows::cmdCancel_Click() { UnloadForm(Name()); }

}  // namespace quillmetra
