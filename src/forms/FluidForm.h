// What the calculation forms have in common about their fluid: the entries that pick one for a case, the list
// of the fluid table, the components of a mixture, steam, and the questions when temperature or pressure
// change under a fluid that is loaded.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/CalcRecord.h"
#include "forms/CalculationForm.h"

namespace quillmetra {

// The menu entries of a case, null for what the form does not offer.
struct FluidEntries {
    MenuItem* Pure = nullptr;
    MenuItem* Mixture = nullptr;
    MenuItem* Saturated = nullptr;
    MenuItem* Superheated = nullptr;
};

// A component of a mixture: its row of the table and its percentage.
struct FluidPart {
    std::string Row;
    double Percent = 0;
};

// What is selected for a case, by an entry of its menu or in the dialog of the fluid.
struct FluidPick {
    enum class Kind { Pure, Mixture, Saturated, Superheated };
    Kind What = Kind::Pure;
    std::string Name = {};              // of a pure fluid
    std::string Row = {};               // its row of the table
    std::vector<FluidPart> Parts = {};  // of a mixture
};

class FluidForm : public CalculationForm {
public:
    using CalculationForm::CalculationForm;

    CommandButton cmdFluid{Picture1, "cmdFluid", "Pic&k..."};
    Label lblSteamKind{Picture1, "lblSteamKind"};  // which the heading leaves open

    void cmdFluid_Click();
    // What the record has, a pure fluid without its row.
    static FluidPick PickInForce();
    // What a case lacks before it can have such a fluid, in words; empty for nothing.
    std::string LackOf(int caseIndex, FluidPick::Kind kind) const;
    // Selects a fluid for a case, as its menu does; false when it was refused.
    bool Pick(int caseIndex, const FluidPick& pick);
    int FluidCases() const { return static_cast<int>(Entries.size()); }
    // As the menu has it, with its access key; of the one case without a menu, what it is about.
    std::string CaptionOfCase(int caseIndex) const;

    void mnuFluiProp_Click();
    void mnuCase_Click(int index);
    void cmdSelect_Click();
    void cmdCancel_Click();
    void cmdCalcPseudo_Click();
    void cmdClear_Click();

    // Renews the properties of the fluid of each case that has them from the table.
    void RenewFluids();

    void CloseOverlays() override;
    Handler KeepBeside() override;

protected:
    // Case by case; to be filled before HookFluid.
    std::vector<FluidEntries> Entries;

    virtual TextBox& TemperatureBox(int caseIndex) = 0;
    virtual TextBox& PressureBox(int caseIndex) = 0;
    virtual bool IsTemperatureEntered(int caseIndex);
    // Says that a case needs temperature and pressure before it can have a fluid; NoCase when all do.
    static constexpr int NoCase = -1;
    virtual void TellNeedsState(int caseIndex);
    // Takes FlowTemperature and FlowPressure of the case in hand; false when they are refused, which it
    // tells.
    virtual bool CheckState() = 0;
    // The same for the pressure alone, of saturated steam.
    virtual bool CheckPressureAlone() { return CheckState(); }
    // Rounds the properties of the fluid in hand into the case in hand. Throws, with nothing stored, when one
    // of them is not finite in the unit shown.
    virtual void FillCase() = 0;
    // A look-up of steam begins.
    virtual void BeginSteam() {}
    // Shows the rows of the case that steam, found or cleared, has left in the record.
    virtual void ShowSteam() {}
    // What the title of the calculation ends with for the fluid in hand.
    virtual std::string TitleTail() const { return Calc.SteamKind.empty() ? "" : " - Saturated Steam"; }
    // The case in hand has properties of its fluid.
    virtual void PropertiesTaken() {}
    void ReopenRecord() override;
    void FluidTyped() override;
    HintList Hints() const override { return fluidHints_[ThisCase()]; }
    // The boxes of a case that its fluid fills and the user may write over.
    virtual std::vector<TextBox*> FluidBoxes(int) { return {}; }
    // A fluid was picked for the case in hand.
    virtual void FluidTaken() {}
    // Calculates the case in hand anew when it had results: a mixture does so.
    virtual void Recalculate() {}

    void HookFluid();
    void AppendFluidTabs();
    // Enables and ticks the entries as the record has it; to be run when a form loads or starts anew.
    void ShowFluidEntries();
    void NoteEntered(int caseIndex);
    bool HasState(int caseIndex) const;
    // Whether there is a fluid for what is entered.
    bool CanPick(int caseIndex) const;
    // Renews the properties of the fluid that is loaded for the case in hand; false when they were not.
    bool UpdateFluidProperties();
    // The case's properties were renewed: what was typed into its state before is dealt with.
    void StateIsDealtWith(int caseIndex);
    // Writes a property of the fluid to a box, in the colour of a change when it is one.
    void ShowProperty(TextBox& box, double value);
    static std::size_t ThisCase() { return static_cast<std::size_t>(Calc.CaseIndex); }
    void CloseFluids();

private:
    // What the opening of a list changes before anything is picked, for Cancel.
    struct FluidChoice {
        std::string MixtureFlag, FluidOk, SteamKind, FluidRow;
        decltype(CalcRecord::FluidData) Data;
        decltype(CalcRecord::FluidPercent) Percents{};
        int MixtureCount = 0;
    };
    static FluidChoice ChoiceInForce();
    void Restore(const FluidChoice& choice);

    void HookState();
    // A case begins to look for another fluid; false, after a message, when its state allows for none.
    bool BeginPure(int caseIndex);
    bool BeginMixture(int caseIndex);
    void OpenPure(int caseIndex);
    void OpenMixture(int caseIndex);
    // Take what was looked for; false when it is not to be had or was given up.
    bool TakePure(const std::string& row);
    bool TakeMixture();
    void PickComponent();
    bool PickSteam(int caseIndex, const char* kind);
    bool PickMixture(int caseIndex, const std::vector<FluidPart>& parts);
    static void ParseFluid();  // FluidRow
    static bool CalcMixture();
    bool FillMixture();
    bool RenewPure();
    bool UpdateSteam();
    // The case in hand is left without properties.
    void BlankFluid();
    // The properties of what was parsed or mixed, in the case in hand; false when it was given up.
    bool FillFluid();
    bool TakeSteam(bool wasSteam);
    bool CheckForNewFluid();
    void TickEntries();
    void InstallFluid(const std::string& name, bool isAnother);
    void ShowTitle();
    void EnterState(TextBox& box);
    // A temperature or a pressure was left with a new number: offers to renew the fluid's properties.
    void LeaveState(int caseIndex, std::size_t row, TextBox& box, bool otherEntered, const char* title);

    static void FindSteamKind();

    FluidChoice before_;
    Row<HintList, CaseCount> fluidHints_{};  // of the fluid as it was taken for the case
    std::string titleTail_;                  // what ProgramTitle ends with for the fluid in hand
    const TextBox* edited_ = nullptr;  // the temperature or pressure in hand; null once it is dealt with
    std::string textBefore_;
};

}  // namespace quillmetra
