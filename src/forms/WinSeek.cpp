// See WinSeek.h.
#include "forms/WinSeek.h"

#include <algorithm>
#include <utility>

#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/ColourSchemes.h"
#include "platform/Dialogs.h"
#include "platform/Folders.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/TextCase.h"

namespace quillmetra {

namespace {

constexpr const char* FormName = "WinSeek";
constexpr std::size_t DatabaseSlot = 1;

struct PathEntry {
    const char* Title;
    const char* Pattern;
};

// The default paths 1 to 4.
constexpr PathEntry PathEntries[] = {
    {"Data file default path", "TRDB.MDB"},
    {"User unit file default path", "TRUNS.TXT"},
    {"Printout heading file default path", "TRHDG.TXT"},
    {"Tables default path", "Liquid.txt"},
};

constexpr const char* ResetCaption = "&Reset";
constexpr const char* SearchCaption = "&Search";
constexpr const char* ExitCaption = "E&xit";
constexpr const char* StopCaption = "Cancel";
constexpr const char* ReadyCaption = "Ready";
constexpr const char* FindCaption = "F&ind ";

}  // namespace

PathAnswer FindDefaultPath(int slot, const std::string& title) {
    const PathEntry& entry = PathEntries[slot - 1];
    Calc.MessageTitle = title.empty() ? entry.Title : title;
    Calc.MessageText = entry.Pattern;
    UnloadForm(FormName);
    auto& finder = static_cast<WinSeek&>(LoadForm(FormName));
    finder.Begin(slot, Calc.MessageTitle, entry.Pattern);
    const std::shared_ptr<const PathAnswer> answer = finder.Answered;
    ShowForm(FormName, Modal::Yes);
    return *answer;
}

WinSeek::WinSeek() : SuiteForm(FormName) {
    Fixed = true;
    FitsFrames = true;
    DefaultButton = &cmdOK;
    CancelButton = &cmdCancel;
    txtPath.Describe(&lblPathName);
    txtSearchSpec.Describe(&lblSearchSpec);
    drvList.Describe(&lblDrive);
    dirList.Describe(&lblDir);
    filList.Describe(&lblFiles);
    lstFoundFiles.Describe(&lblFound);
    for (Control* control : Controls()) {
        switch (control->Kind()) {
            case ControlKind::Label:
            case ControlKind::Frame: control->ColourGroup = 1; break;
            case ControlKind::TextBox: control->ColourGroup = 2; break;
            case ControlKind::ListBox: control->ColourGroup = 4; break;
            default: break;
        }
    }
    fraSearch.SetVisible(false);
    cmdSelect.SetEnabled(false);
    cmdStop.SetEnabled(false);

    txtPath.KeyPress = [this](Key& key) { txtPath_KeyPress(key); };
    txtPath.Change = [this] { txtPath_Change(); };
    txtSearchSpec.Change = [this] { txtSearchSpec_Change(); };
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdSave.Click = [this] { cmdSave_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    cmdBrouse.Click = [this] { cmdBrouse_Click(); };
    cmdSearch.Click = [this] { cmdSearch_Click(); };
    cmdStop.Click = [this] { cmdStop_Click(); };
    cmdExit.Click = [this] { cmdExit_Click(); };
    cmdSelect.Click = [this] { cmdSelect_Click(); };
    SelectPath.Click = [this] { SelectPath_Click(); };
    lstFoundFiles.Click = [this] { cmdSelect.SetEnabled(true); };
    lstFoundFiles.DoubleClick = [this] { cmdSelect_Click(); };
    drvList.Click = [this] { drvList_Click(); };
    dirList.Click = [this] { lblSearch.SetCaption(ReadyCaption); };
    dirList.DoubleClick = dirList.LostFocus = [this] { dirList.OpenHighlighted(); };
    dirList.Change = [this] { filList.SetPath(dirList.Path()); };
    walk_.Yield = [this] { BetweenFolders(); };
    walk_.ListFull = [this] { Tell("You've filled the listbox. Search being abandoned...", Caption()); };
}

void WinSeek::Load() {
    ApplyColours(*this);
    Begin(DatabaseSlot, PathEntries[0].Title, PathEntries[0].Pattern);
}

void WinSeek::Begin(int slot, const std::string& title, const std::string& pattern) {
    slot_ = static_cast<std::size_t>(slot);
    SetCaption(title);
    OriginalPath = Suite.DefaultPaths[slot_];
    OriginalChosenPath = Suite.ChosenDataPath;
    OriginalDatabasePath = Suite.DatabasePath;
    txtPath.SetText(OriginalPath);
    txtSearchSpec.SetText(pattern);
}

void WinSeek::CloseBox() {
    if (IsSearching()) {
        closeAfterSearch_ = true;
        walk_.SearchFlag = 0;
        return;
    }
    cmdCancel_Click();
}

// Letters, digits and blanks may be typed, and the two keys that build a path, which are told. Whatever else
// a path holds is pasted or picked. The key "/" stands for "\".
void WinSeek::txtPath_KeyPress(Key& key) {
    SetStatus("");
    if (key.Name == ":") {
        Tell("Use Drive " + txtPath.Text() + ":", "Specify drive to be used");
    } else if (key.Name == "\\" || key.Name == "/") {
        Tell("Path " + txtPath.Text() + "\\", "Name next subroutine");
        slashTyped_ = key.Name == "/";
    } else if (key.Name.size() == 1 && !IsLetter(key.Name[0]) && !IsDigit(key.Name[0]) && key.Name != " ") {
        key.Handled = true;
        SetStatus("The key " + key.Name + " is not taken here; a path that has it can be pasted or picked");
    }
}

void WinSeek::txtPath_Change() {
    if (!std::exchange(slashTyped_, false)) return;
    std::string path = txtPath.Text();
    std::replace(path.begin(), path.end(), '/', '\\');
    txtPath.SetText(path);
}

// What the captions say of the former pattern goes.
void WinSeek::txtSearchSpec_Change() {
    if (!fraSearch.Visible()) return;
    cmdSearch.SetCaption(FindCaption + txtSearchSpec.Text());
    cmdExit.SetCaption(ExitCaption);
    lblSearch.SetCaption(ReadyCaption);
}

bool WinSeek::AcceptPath() {
    std::string path(Trim(txtPath.Text()));
    if (path.ends_with('\\')) path.pop_back();
    txtPath.SetText(path);
    SetStatus(path.empty() ? "Type a path, or pick one by Browse" : "");
    const PathQuestions user{
        .MayCreate =
            [this](const std::string& level) {
                return AskYesNo("Path does not exist\nCreate a new path? \n" + level, Caption());
            },
        .Tell = [this](const std::string& words,
                       bool stop) { quillmetra::Tell(words, Caption(), stop ? Icon::Stop : Icon::None); }};
    if (!IsUsablePath(path, user)) {
        txtPath.SetFocus();
        return false;
    }
    SetPath(path, path);
    return true;
}

void WinSeek::SetPath(const std::string& path, const std::string& chosen) {
    Suite.DefaultPaths[slot_] = path;
    if (slot_ == DatabaseSlot) Suite.ChosenDataPath = chosen;
}

void WinSeek::cmdOK_Click() {
    if (!AcceptPath() || IsYes(SaveRequested)) return;
    *Answered = saved_ ? PathAnswer::Saved : PathAnswer::Kept;
    UnloadForm(Name());
}

void WinSeek::cmdSave_Click() {
    SaveRequested = words::Yes;
    const bool accepted = AcceptPath();
    SaveRequested.clear();
    if (!accepted) return;
    try {
        SaveDefaultPaths();
        saved_ = true;
    } catch (const RuntimeError& error) {
        Tell(error.Description + " occurred Path " + txtPath.Text(), Caption());
    }
}

// Takes back what Save has put into the slot, though not what it wrote to the disk.
void WinSeek::cmdCancel_Click() {
    SetPath(OriginalPath, OriginalChosenPath);
    txtPath.SetText(OriginalPath);
    if (slot_ == DatabaseSlot) Suite.DatabasePath = OriginalDatabasePath;
    UnloadForm(Name());
}

void WinSeek::cmdBrouse_Click() {
    fraSearch.SetVisible(true);
    cmdSearch.SetCaption(FindCaption + txtSearchSpec.Text());
    drvList.Renew();
    try {
        dirList.SetPath(MachineFolder(txtPath.Text()).empty() ? CurrentFolder()
                                                              : ShownPath(MachineFolder(txtPath.Text())));
    } catch (const RuntimeError&) {
        ResetSearch();
    }
    drvList.SetDrive(dirList.Path());
    filList.SetPattern(txtSearchSpec.Text());
    txtSearchSpec.SetFocus();
}

void WinSeek::cmdSearch_Click() {
    if (cmdSearch.Caption() == ResetCaption) {
        ResetSearch();
        cmdSearch.SetCaption(SearchCaption);
        cmdExit.SetCaption(ExitCaption);
        lblSearch.SetCaption(ReadyCaption);
        txtSearchSpec.SetFocus();
    } else {
        Search();
    }
}

void WinSeek::ResetSearch() {
    walk_.Hits.clear();
    walk_.SearchFlag = 0;
    ShowHits();
    try {
        dirList.SetPath(CurrentFolder());
    } catch (const RuntimeError&) {
        // gone, or not ours to read: the list stays where it is
    }
    drvList.SetDrive(dirList.Path());
}

void WinSeek::ShowHits() {
    lstFoundFiles.SetRows(walk_.Hits);
    lblCount.SetCaption(std::to_string(walk_.Hits.size()));
}

// For the time of a search Stop and Exit alone answer: the user is let in, and nothing may run a second time.
class WinSeek::SearchTime {
public:
    explicit SearchTime(WinSeek& form) : form_(form) {
        for (Control* control : form.Controls()) {
            const bool answers = control == &form.cmdExit || control->Kind() == ControlKind::Label ||
                                 control->Kind() == ControlKind::Frame;
            if (!answers && control->Enabled()) off_.push_back(control);
        }
        for (Control* control : off_) control->SetEnabled(false);
        form.cmdStop.SetEnabled(true);
        form.CancelButton = &form.cmdExit;
    }
    ~SearchTime() {
        form_.CancelButton = &form_.cmdCancel;
        form_.cmdStop.SetEnabled(false);
        for (Control* control : off_) control->SetEnabled(true);
    }
    SearchTime(const SearchTime&) = delete;
    SearchTime& operator=(const SearchTime&) = delete;

private:
    WinSeek& form_;
    std::vector<Control*> off_;
};

void WinSeek::Search() {
    dirList.OpenHighlighted();
    lblSearch.SetCaption("Searching");
    walk_.Pattern = txtSearchSpec.Text();
    walk_.Hits.clear();
    ShowHits();
    cmdSelect.SetEnabled(false);
    cmdExit.SetCaption(StopCaption);
    filList.SetPattern(walk_.Pattern);
    {
        const SearchTime searching(*this);
        walk_.Run(dirList.Path());
    }
    ShowHits();
    lblSearch.SetCaption("Search Complete");
    cmdSearch.SetCaption(ResetCaption);
    lstFoundFiles.SetFocus();
    if (closeAfterSearch_) cmdCancel_Click();
}

// Between two folders: what was found is shown, though not more often than it can be read.
void WinSeek::BetweenFolders() {
    using Clock = std::chrono::steady_clock;
    constexpr auto pause = std::chrono::milliseconds(200);
    if (lstFoundFiles.Rows().size() != walk_.Hits.size() && Clock::now() - shown_ > pause) {
        ShowHits();
        shown_ = Clock::now();
    }
    ServeUser();
    if (ProcessHasEnded()) walk_.SearchFlag = 0;
}

void WinSeek::cmdStop_Click() { walk_.SearchFlag = 0; }

// Under its other caption it stops a search; with none to stop, it folds the search part up.
void WinSeek::cmdExit_Click() {
    if (IsSearching()) {
        walk_.SearchFlag = 0;
        return;
    }
    cmdExit.SetCaption(ExitCaption);
    fraSearch.SetVisible(false);
    txtPath.SetFocus();
}

void WinSeek::cmdSelect_Click() {
    const std::string hit = lstFoundFiles.Row(lstFoundFiles.Selected());
    if (!hit.empty()) txtPath.SetText(hit.substr(0, hit.rfind('\\')));
}

void WinSeek::SelectPath_Click() { txtPath.SetText(dirList.Path()); }

void WinSeek::drvList_Click() {
    try {
        dirList.SetPath(drvList.Drive());
    } catch (const RuntimeError&) {
        // a drive with nothing in it
    }
}

}  // namespace quillmetra
