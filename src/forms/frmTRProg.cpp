// See frmTRProg.h.
#include "forms/frmTRProg.h"

#include "core/CalcRecord.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/ColourSchemes.h"
#include "forms/LoadDefaults.h"
#include "forms/WinSeek.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/Keys.h"
#include "units/StandardRange.h"

namespace quillmetra {

namespace {
constexpr int BrowserHelpTopic = 400;
constexpr const char* SuiteName = "Quillmetra";

bool PromptsAreHidden() {
    return IsYes(Suite.HideFluidReminder) && IsYes(Suite.HideRoundReminder) && IsYes(Suite.HideFlowStatus);
}
}  // namespace

frmTRProg::frmTRProg() : SuiteForm("frmTRProg") {
    lstTags.Describe(&fraTags);
    lstTags.ColourGroup = 4;
    for (Control* control : Controls()) {
        const ControlKind kind = control->Kind();
        if (kind == ControlKind::Frame || kind == ControlKind::Label || kind == ControlKind::OptionButton) {
            control->ColourGroup = 1;
        }
    }
    mnuExit.SeparatorBefore = true;
    mnuFindRecord.SeparatorBefore = true;
    mnuFindRecord.Shortcut = "Ctrl+F";
    mnuHelp.Shortcut = keys::Help;
    DefaultButton = &cmdOK;
    optDefaultDB.SetChecked(true);
    fraTags.SetVisible(false);
    HookDatabase();
    cmdOK.Click = [this] { cmdOK_Click(); };
    mnuExit.Click = [this] { mnuExit_Click(); };
    mnuHelp.Click = [] { ShowHelpTopic(BrowserHelpTopic); };
    mnuAbout.Click = [this] { mnuAbout_Click(); };
    mnuOptions.Click = [this] { mnuDoNotShow.SetChecked(PromptsAreHidden()); };
    mnuDoNotShow.Click = [this] { mnuDoNotShow_Click(); };
    mnuPathDataFile.Click = [] { FindDefaultPath(1); };
    mnuPathUserUnitFile.Click = [] { FindDefaultPath(2); };
    mnuPathPrintHdgs.Click = [] { FindDefaultPath(3); };
    mnuPathTables.Click = [] { FindDefaultPath(4); };
    HookColours();
    HookSchemes();
}

std::array<MenuItem*, 12> frmTRProg::ColourEntries() {
    return {&mnuColInputFrame, &mnuColInputFrameText, &mnuColInputBack,   &mnuColInputText,
            &mnuColOptsFrame,  &mnuColOptsFrameText,  &mnuColOptsBack,    &mnuColOptsText,
            &mnuBackground,    &mnuChangeData,        &mnuColorOptsSelBG, &mnuColorOptsSelFG};
}

// The entries stand in the order of the slots, two to a group: what is behind and what is in front.
void frmTRProg::HookColours() {
    int slot = 0;
    for (MenuItem* entry : ColourEntries()) {
        ++slot;
        entry->Click = [this, entry, slot] {
            ClearColourChecks();
            PickColour(*this, slot, (slot + 1) / 2, SpokenCaption(entry->Caption()));
            entry->SetChecked(true);
        };
    }
    mnuLoadColor.SeparatorBefore = true;
    mnuLoadColor.Click = [] { LoadColourScheme(); };
    mnuSaveColor.Click = [] { SaveColours(); };
    mnuBackgroundList.Click = [this] { ListBackgrounds(*this, SpokenCaption(mnuBackground.Caption())); };
}

std::array<MenuItem*, 4> frmTRProg::SchemeEntries() {
    return {&mnuLight, &mnuDark, &mnuHighContrast, &mnuClassic};
}

void frmTRProg::HookSchemes() {
    const auto entries = SchemeEntries();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        entries[i]->Click = [this, name = SchemeNames[i]] {
            TakeScheme(name);
            TickScheme();
            SetStatus("Save colours keeps them for the next start");
        };
    }
    mnuColInputFrame.SeparatorBefore = true;
    mnuColours.Click = [this] { TickScheme(); };
}

// That of the colours in force, which may have been changed one by one since.
void frmTRProg::TickScheme() {
    const int inForce = SchemeInForce();
    int scheme = 0;
    for (MenuItem* entry : SchemeEntries()) entry->SetChecked(scheme++ == inForce);
}

void frmTRProg::ClearColourChecks() {
    for (MenuItem* entry : ColourEntries()) entry->SetChecked(false);
}

void frmTRProg::Load() {
    ApplyColours(*this);
    SetCaption(Suite.VersionText + SuiteName);
    LoadDefaults();
    CloseView();
    ShowStanding();
}

void frmTRProg::cmdOK_Click() {
    ResetRecord();
    Calc.OtherCalcs = words::NoCodes;
    Calc.Tag.clear();
    Calc.TagSaved.clear();
    Calc.LoadedDatabaseFile.clear();
    Calc.TagChanged = words::Yes;
    UnloadForm("frmObxProg");  // so that its load starts the new calculation
    ShowForm("frmObxProg");
    HideForm(Name());
}

void frmTRProg::mnuDoNotShow_Click() {
    const char* const word = PromptsAreHidden() ? "" : words::Yes;
    Suite.HideFluidReminder = Suite.HideRoundReminder = Suite.HideFlowStatus = word;
    mnuDoNotShow.SetChecked(PromptsAreHidden());
    SaveStandardConditions();
    ShowStanding();
}

std::string frmTRProg::StandingStatus() const { return FileConditionsHint(); }

void frmTRProg::ShowStanding() {
    standing_ = StandingStatus();
    SetStatus(standing_);
}

void frmTRProg::mnuAbout_Click() {
    Tell(std::string(SuiteName) + "\n" + Suite.VersionText, SuiteName, Icon::Information);
}

void frmTRProg::mnuExit_Click() { EndProcess(); }

}  // namespace quillmetra
