// The path finder: the user types the folder of one of the four default paths, picks it from the drives and
// folders of the machine, or searches a disk for the file that it should hold. OK keeps the path for this
// run, Save for good.
#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "forms/SuiteForm.h"
#include "platform/FolderLists.h"
#include "tables/PathWalk.h"

namespace quillmetra {

// Opens the path finder over the form in hand for default path 1 to 4. The title is that of the path's menu
// entry unless another one is given.
enum class PathAnswer { Cancelled, Kept, Saved };
PathAnswer FindDefaultPath(int slot, const std::string& title = {});

class WinSeek : public SuiteForm {
public:
    WinSeek();

    void Load() override;
    void CloseBox() override;

    // Takes up the default path that is to be edited.
    void Begin(int slot, const std::string& title, const std::string& pattern);

    // Who asked holds it too: the finder may be gone when the answer is read.
    const std::shared_ptr<PathAnswer> Answered = std::make_shared<PathAnswer>(PathAnswer::Cancelled);

    Label lblPathName{*this, "lblPathName", "P&ath"};
    TextBox txtPath{*this, "txtPath"};
    CommandButton cmdOK{*this, "cmdOK", "OK"};
    CommandButton cmdSave{*this, "cmdSave", "Sa&ve"};
    CommandButton cmdBrouse{*this, "cmdBrouse", "&Browse"};
    CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    Frame fraSearch{*this, "fraSearch"};
    Label lblDrive{fraSearch, "lblDrive", "&Drives"};
    DriveList drvList{fraSearch, "drvList"};
    Label lblDir{fraSearch, "lblDir", "&Folders"};
    DirList dirList{fraSearch, "dirList"};
    Label lblFiles{fraSearch, "lblFiles", "Fil&es"};
    FileList filList{fraSearch, "filList"};
    CommandButton SelectPath{fraSearch, "SelectPath", "Select &path"};
    Label lblSearchSpec{fraSearch, "lblSearchSpec", "File to fi&nd"};
    TextBox txtSearchSpec{fraSearch, "txtSearchSpec"};
    CommandButton cmdSearch{fraSearch, "cmdSearch", "&Search"};
    CommandButton cmdStop{fraSearch, "cmdStop", "S&top"};
    Label lblFound{fraSearch, "lblFound", "Fo&und"};
    ListBox lstFoundFiles{fraSearch, "lstFoundFiles"};
    Label lblSearch{fraSearch, "lblSearch", "Ready"};
    Label lblCount{fraSearch, "lblCount", "0"};
    CommandButton cmdSelect{fraSearch, "cmdSelect", "Se&lect"};
    CommandButton cmdExit{fraSearch, "cmdExit", "E&xit"};

    void txtPath_KeyPress(Key& key);
    void txtPath_Change();
    void txtSearchSpec_Change();
    void cmdOK_Click();
    void cmdSave_Click();
    void cmdCancel_Click();
    void cmdBrouse_Click();
    void cmdSearch_Click();
    void cmdStop_Click();
    void cmdExit_Click();
    void cmdSelect_Click();
    void SelectPath_Click();
    void drvList_Click();

private:
    class SearchTime;

    // Takes the path of the box when it stands every test.
    bool AcceptPath();
    void SetPath(const std::string& path, const std::string& chosen);
    void ResetSearch();
    void Search();
    void ShowHits();
    void BetweenFolders();
    bool IsSearching() const { return walk_.SearchFlag != 0; }

    std::size_t slot_ = 1;
    std::string OriginalPath, OriginalChosenPath, OriginalDatabasePath;
    std::string SaveRequested;
    PathWalk walk_;
    std::chrono::steady_clock::time_point shown_;  // when hits were last put into the list
    bool closeAfterSearch_ = false;
    bool saved_ = false;
    bool slashTyped_ = false;  // and comes into the box next
};

}  // namespace quillmetra
