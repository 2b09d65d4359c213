// See frmUnits.h.
#include "forms/frmUnits.h"

#include "core/CalcRecord.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/CalculationForm.h"
#include "forms/ColourSchemes.h"
#include "forms/PanelReturn.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/Utf8.h"
#include "units/RecordUnits.h"
#include "units/UnitCatalogue.h"
#include "units/UnitLibraryFile.h"
#include "units/UnitSelection.h"
#include "units/UserUnits.h"

namespace quillmetra {

namespace {

constexpr const char* ChooseText =
    "To select, double click the required unit.   To add a unit, click an empty line. "
    "Type in the name and the multiplier to convert to the first line unit";
constexpr const char* BasisText =
    "Either mass or volumetric units are available.  The current selection is shown";
constexpr const char* SelectionsText =
    "The current selections are shown.  Click unit for reselection and editing";
constexpr const char* LibraryTitle = "Library Unit Files";

}  // namespace

frmUnits::frmUnits() : SuiteForm("frmUnits") {
    Alias("cmdOKUn", cmdOK);
    DefaultButton = &cmdOK;
    CancelButton = &cmdCancelUn;
    fraSelect.SetVisible(false);
    cboUnit.Describe(&lblUnit);
    cboFactor.Describe(&lblMultiplier);
    for (Control* control : Controls()) {
        const ControlKind kind = control->Kind();
        if (kind == ControlKind::ComboBox) control->ColourGroup = 4;
        if (kind == ControlKind::Frame || kind == ControlKind::Label || kind == ControlKind::OptionButton) {
            control->ColourGroup = 1;
        }
    }
    cmdUnit.Each([this](CommandButton& button, int row) { button.Click = [this, row] { Row_Click(row); }; });
    lblFactor.Each([this](Label& label, int row) { label.Click = [this, row] { Row_Click(row); }; });
    cmdBasis.Click = [this] { cmdBasis_Click(); };
    cmdCanBasis.Click = [this] { cmdCancel_Click(); };
    cboUnit.Click = [this] { cboLine_Click(cboUnit, cboFactor); };
    cboFactor.Click = [this] { cboLine_Click(cboFactor, cboUnit); };
    cboUnit.Change = cboFactor.Change = [this] { cboText_Change(); };
    cboUnit.DoubleClick = cboFactor.DoubleClick = [this] { cmdSelect_Click(); };
    cmdReplace.Click = [this] { cmdReplace_Click(); };
    cmdSelect.Click = [this] { cmdSelect_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdSaveUser.Click = [this] { cmdSaveUser_Click(); };
    cmdCancelUn.Click = [this] { cmdCancelUn_Click(); };
    mnuSaveUnLibrary.Click = [this] { mnuSaveUnLibrary_Click(); };
    mnuRecallSavedUnLibrary.Click = [this] { mnuRecallSavedUnLibrary_Click(); };
    mnuDefaultUnLibrary.Click = [this] { mnuDefaultUnLibrary_Click(); };
    mnuDeleteLib.Click = [this] { mnuDeleteLib_Click(); };
}

void frmUnits::Load() {
    ApplyColours(*this);
    PrepareUnitLibrary();
    change_.emplace();
    SelectedFactor.Begin();
    ShowTitle();
    ShowUnits();
    lblInstruct.SetCaption(SelectionsText);
}

void frmUnits::ShowTitle() {
    std::string title = Calc.FluidType + ". Units - " + Suite.UnitLibraryName;
    if (Suite.UnitLibraryName != DefaultLibraryName)
        title += " " + Suite.DefaultPaths[path::DataFiles] + "\\KSLib.TXT";
    SetCaption(title);
}

void frmUnits::ShowUnits() {
    cmdUnit.Each([this](CommandButton& button, int row) {
        button.SetCaption(UnitRowCaption(row));
        fraRow(row).SetVisible(UnitPicks::Has(row));
        ActiveList[At(row)] = UnitListOf(row);
        lblFactor(row).SetCaption(SelectedFactor.Of(row).Name);
        lblFactor(row).Describe(&button);
    });
}

// --- The panel -----------------------------------------------------------------------------------------

std::string& frmUnits::BasisOfRow() const { return UnitRow == 0 ? Calc.Basis : Calc.LiquidBasis; }

void frmUnits::Row_Click(int row) {
    if (row == unit::Temperature)
        Calc.ChosenUnitRowNames[chosen::Temperature] = Calc.UnitName[unit::Temperature];
    OpenPanel(row);
}

void frmUnits::OpenPanel(int row) {
    UnitRow = row;
    SetStatus("");
    fraSelect.SetCaption(SpokenCaption(cmdUnit(row).Caption()));
    fraSelect.SetVisible(true);
    fraRows.SetEnabled(false);
    cmdOK.SetEnabled(false);
    cmdSaveUser.SetEnabled(false);
    DefaultButton = &cmdSelect;
    CancelButton = &cmdCancel;
    const bool isFlow = row <= 1;
    if (isFlow) basisBeforePanel_ = BasisOfRow();
    OfferBasis(isFlow);
    if (!isFlow) ListUnits();
}

// A flow is first asked for its basis; the list of units follows.
void frmUnits::OfferBasis(bool offer) {
    for (Control* control : std::initializer_list<Control*>{&optMass, &optVol, &cmdBasis, &cmdCanBasis}) {
        control->SetVisible(offer);
    }
    for (Control* control : std::initializer_list<Control*>{&lblUnit, &cboUnit, &lblMultiplier, &cboFactor,
                                                            &cmdReplace, &cmdSelect, &cmdCancel}) {
        control->SetVisible(!offer);
    }
    if (!offer) return;
    lblInstruct.SetCaption(BasisText);
    (BasisOfRow() == words::Volume ? optVol : optMass).SetChecked(true);
    DefaultButton = &cmdBasis;
    CancelButton = &cmdCanBasis;
    cmdBasis.SetFocus();
}

void frmUnits::cmdBasis_Click() {
    BasisOfRow() = optVol.Checked() ? words::Volume : words::Mass;
    OfferBasis(false);
    DefaultButton = &cmdSelect;
    CancelButton = &cmdCancel;
    ListUnits();
}

void frmUnits::ListUnits() {
    lblInstruct.SetCaption(ChooseText);
    const int list = UnitListOf(UnitRow);
    ActiveList[At(UnitRow)] = list;
    ProtectedCount = ProtectedLinesOf(UnitRow);
    const UnitList& lines = Suite.UnitLibrary.at(At(list));
    std::vector<std::string> names, factors;
    int current = -1;
    for (std::size_t line = 1; line < lines.size(); ++line) {
        names.push_back(lines[line].Name);
        factors.push_back(lines[line].Name.empty() ? "" : TrimmedStr(lines[line].Factor));
        const bool inForce = !lines[line].Name.empty() && lines[line].Name == lblFactor(UnitRow).Caption();
        if (inForce && current < 0) current = static_cast<int>(line) - 1;
    }
    cboUnit.SetRows(std::move(names));
    cboFactor.SetRows(std::move(factors));
    cboUnit.Preselect(current);
    cboFactor.Preselect(current);
    cmdReplace.SetEnabled(false);
    cboUnit.SetFocus();
}

// The two lists go together: a click on a line of one selects it in the other.
void frmUnits::cboLine_Click(ComboBox& chosen, ComboBox& other) {
    other.Preselect(chosen.Selected());
    cmdReplace.SetEnabled(false);
}

void frmUnits::cboText_Change() {
    const int line = cboUnit.Selected();
    if (line >= ProtectedCount) {
        cmdReplace.SetEnabled(true);
        return;
    }
    cmdReplace.SetEnabled(false);
    if (line < 0) return;
    Tell("This item is a base unit and cannot be changed", "Unit Edit");
    // By way of the selection: an emptied text would count as the next change of the line.
    cboUnit.Preselect(-1);
    cboFactor.Preselect(-1);
}

// The two parts of a flow unit make one name in the end.
bool frmUnits::NameIsTooLong(const std::string& name) {
    const int other = OtherFlowPart(UnitRow);
    const std::string whole = other < 0 ? name : name + lblFactor(other).Caption();
    if (CharacterCount(whole) <= LongestUnitName) return false;
    const bool alone = CharacterCount(name) > LongestUnitName;
    Tell(
        alone ? "Maximum of 8 characters" : "Maximum of 8 characters for the flow unit and its time together",
        "New Unit Name", Icon::Stop);
    cboUnit.SetFocus();
    return true;
}

void frmUnits::cmdReplace_Click() {
    const int line = cboUnit.Selected();
    if (line < ProtectedCount) return;
    const std::string name(Trim(cboUnit.Text()));
    if (NameIsTooLong(name)) return;
    ReplaceUnitLine(UnitListOf(UnitRow), line + 1, name, Val(cboFactor.Text()));
    const std::string factor(Trim(cboFactor.Text()));
    const std::string readAs = ReadAs(factor);
    ListUnits();
    cboUnit.Preselect(line);
    cboFactor.Preselect(line);
    cboFactor.SetText(readAs.empty() ? factor : TrimmedStr(Val(factor)));
    cmdReplace.SetEnabled(false);
    SetStatus(readAs);
}

void frmUnits::cmdSelect_Click() {
    const std::string name(Trim(cboUnit.Text()));
    const double factor = Val(cboFactor.Text());
    const std::string readAs = ReadAs(cboFactor.Text());
    if (name.empty()) {
        Tell("Unit must have a name", "Unit ");
        cboUnit.SetFocus();
        return;
    }
    if (NameIsTooLong(name)) return;
    if (!IsUsableFactor(factor)) {
        Tell("Multiplier must be greater than zero", "Unit " + name);
        cboFactor.SetFocus();
        return;
    }
    lblFactor(UnitRow).SetCaption(name);
    SelectedFactor.Set(UnitRow, name, factor);
    ClosePanel();
    SetStatus(readAs);
}

void frmUnits::cmdCancel_Click() {
    if (UnitRow <= unit::LiquidFlow) BasisOfRow() = basisBeforePanel_;
    ClosePanel();
}

void frmUnits::ClosePanel() {
    cboUnit.SetRows({});
    cboFactor.SetRows({});
    cboUnit.SetText("");
    cboFactor.SetText("");
    fraSelect.SetVisible(false);
    fraRows.SetEnabled(true);
    cmdOK.SetEnabled(true);
    cmdSaveUser.SetEnabled(true);
    DefaultButton = &cmdOK;
    CancelButton = &cmdCancelUn;
    lblInstruct.SetCaption(SelectionsText);
    cmdUnit(UnitRow).SetFocus();
}

// --- OK, save, cancel ----------------------------------------------------------------------------------

bool frmUnits::AskUpdate() const {
    return AskYesNo("Update calculation for changes?\n\nOK?", "Unit Display");
}

void frmUnits::cmdOK_Click() {
    if (!AskUpdate() || !ConvertToPicks(SelectedFactor, *change_)) return;
    UnloadForm(Name());
    UnloadForm("frmCalcOptions");
    ReturnToCalculation();
}

void frmUnits::cmdSaveUser_Click() {
    if (!AskUpdate()) {
        cmdOK_Click();
        return;
    }
    const UnitNames names = Calc.UnitName;
    const UnitFactors factors = Calc.UnitFactor;
    if (PutPicks(SelectedFactor)) {
        StoreUserUnitSet();
        SaveUserUnits(*this);
    }
    Calc.UnitName = names;
    Calc.UnitFactor = factors;
}

void frmUnits::cmdCancelUn_Click() {
    change_.reset();
    UnloadForm(Name());
    if (Calc.OptionsLoaded == words::Loaded) {
        ShowForm("frmCalcOptions");
    } else {
        ReturnToCalculation();
    }
}

// What is open in front closes first.
void frmUnits::CloseBox() { fraSelect.Visible() ? cmdCancel_Click() : cmdCancelUn_Click(); }

// --- The library ---------------------------------------------------------------------------------------

bool frmUnits::ConfirmLibrary(const std::string& question, Answer preset) const {
    return AskYesNo(question + "\n\nOK?", "Confirm Deletion", Icon::None, preset);
}

// Another library is in force: what has been chosen stands, an open list shows the new lines.
void frmUnits::ShowLibrary() {
    ApplyPressureSuffix();
    ShowTitle();
    if (cboUnit.Works()) ListUnits();
}

void frmUnits::mnuSaveUnLibrary_Click() {
    if (!ConfirmLibrary("Save created units in a User Library File?", Answer::Yes)) return;
    if (!WriteUnitLibrary()) Tell("Path for units not found", "Units default path");
    ShowTitle();
}

void frmUnits::mnuRecallSavedUnLibrary_Click() {
    if (!ConfirmLibrary("Load the User Library File?", Answer::Yes)) return;
    ReadUnitLibrary();
    if (Suite.UnitLibraryName == DefaultLibraryName)
        Tell("A User library has not been created", LibraryTitle);
    ShowLibrary();
}

void frmUnits::mnuDefaultUnLibrary_Click() {
    if (!ConfirmLibrary("Load the default Library File?", Answer::Yes)) return;
    if (Suite.UnitLibraryName == DefaultLibraryName) {
        Tell("The default library is already loaded", LibraryTitle);
        return;
    }
    UseDefaultLibrary();
    ShowLibrary();
}

void frmUnits::mnuDeleteLib_Click() {
    if (!ConfirmLibrary("Delete the User Library File?", Answer::No)) return;
    if (!DeleteUnitLibraryFile()) Tell("Path for units not found", "Units default path");
    ShowLibrary();
}

}  // namespace quillmetra
