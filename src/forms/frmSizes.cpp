// See frmSizes.h.
#include "forms/frmSizes.h"

#include <algorithm>
#include <cmath>

#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/ColourSchemes.h"
#include "forms/GridText.h"
#include "forms/LineServices.h"
#include "forms/PipeFamilyList.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/Keys.h"
#include "platform/NumberText.h"
#include "platform/TextCase.h"
#include "tables/TableFiles.h"
#include "units/Rounding.h"

namespace quillmetra {

namespace {

constexpr const char* AllSchedules = "All";

bool IsGas() { return Calc.CurrentProgram == program::GasLine; }

std::string Figure(double value) { return std::isfinite(value) ? TrimmedStr(RoundedFour(value)) : ""; }

std::string WithUnit(const std::string& words, int unitRow) {
    return words + ", " + Calc.UnitName[At(unitRow)];
}

bool GetsThrough(const LineTrial& trial) { return trial.End == Outcome::Reached && !trial.IsChoked; }

// What keeps a fluid from the end of its line.
const char* WordOf(const LineTrial& trial) {
    switch (trial.End) {
        case Outcome::Reached: return trial.IsChoked ? "chokes" : "";
        case Outcome::ZeroPressure: return "zero pressure";
        case Outcome::Sonic: return "sonic velocity";
        case Outcome::NoResult: return "no result";
        case Outcome::Stopped: break;  // has no row
    }
    return "";
}

}  // namespace

frmSizes::frmSizes() : SuiteForm("frmSizes") {
    SetCaption("Sizes");
    DefaultButton = &cmdOK;
    CancelButton = &cmdCancel;
    lstFamily.Describe(&lblFamily);
    lstSchedule.Describe(&lblSchedule);
    lstService.Describe(&lblService);
    grdSizes.Describe(&lblSizes);
    grdSizes.IsList = true;
    grdSizes.FixedColumns = 0;
    grdSizes.NumberColumns = {2, 4, 5, 6, 7, 8, 10};
    for (Control* list : std::initializer_list<Control*>{&lstFamily, &lstSchedule, &lstService, &grdSizes})
        list->ColourGroup = 4;
    for (Label* label : {&lblCase, &lblFamily, &lblSchedule, &lblService, &lblSource, &lblSizes, &lblMet})
        label->ColourGroup = 1;
    optCase.Each([this](OptionButton& option, int i) {
        option.SetCaption(words::Cases[At(i)]);
        option.ColourGroup = 1;
        option.Click = [this, i] { optCase_Click(i); };
    });
    cmdOK.SetToolTip("Takes the selected pipe into the form");
    lstFamily.Click = [this] { lstFamily_Click(); };
    lstSchedule.Click = [this] { lstSchedule_Click(); };
    lstService.Click = [this] { lstService_Click(); };
    grdSizes.Click = [this] { grdSizes_Click(); };
    grdSizes.DoubleClick = [this] { cmdOK_Click(); };
    grdSizes.KeyPress = [this](Key& key) {
        key.Handled = key.Name == keys::Enter;
        if (key.Handled) cmdOK_Click();
    };
    cmdCopy.Click = [this] { cmdCopy_Click(); };
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmSizes::Load() {
    ApplyColours(*this);
    SetPipeUnits();
    optCase(Calc.CaseIndex).SetChecked(true);
    optCase.Each([](OptionButton& option, int i) {
        option.SetEnabled(i == Calc.CaseIndex || (OpenLine() != nullptr && OpenLine()->HasData(i)));
    });
    ListServices();
    ListFamilies(lstFamily, families_);
}

// The service of the line is selected, as long as the table has it.
void frmSizes::ListServices() {
    criteria_ = ServicesOffered(*this);
    std::vector<std::string> names;
    for (const LineCriterion& each : criteria_) names.push_back(each.Service);
    lstService.SetRows(std::move(names));
    const auto own = std::ranges::find_if(
        criteria_, [](const LineCriterion& each) { return SameName(each.Service, Calc.Service); });
    serviceAtFirst_ = own == criteria_.end() ? 0 : static_cast<int>(own - criteria_.begin());
    lstService.Preselect(serviceAtFirst_);
}

// One that was not picked here stays what it is.
void frmSizes::TakeService(LineLossForm& line) const {
    if (lstService.Selected() != serviceAtFirst_) line.TakeService(Criterion().Service);
}

const LineCriterion& frmSizes::Criterion() const {
    return criteria_.at(At(std::max(0, lstService.Selected())));
}

// The family is that of the lookup too.
void frmSizes::lstFamily_Click() {
    Suite.PipeFamily = families_.at(At(std::max(0, lstFamily.Selected()))).File;
    ReadFamily();
    std::vector<std::string> schedules = {AllSchedules};
    for (const std::string& line : lines_) {
        const std::string schedule = SplitTableLine(table::Pipe, line)[1];
        if (std::ranges::find(schedules, schedule) == schedules.end()) schedules.push_back(schedule);
    }
    lstSchedule.SetRows(std::move(schedules));
    lstSchedule.Select(0);
}

void frmSizes::ReadFamily() {
    lines_.clear();
    try {
        lines_ = AllPipeSizes();
    } catch (const RuntimeError& error) {
        SetStatus(PipeFamilyFile() + ": " + error.Description);
    }
}

void frmSizes::lstSchedule_Click() {
    TryPipes();
    lstService_Click();
}

// What is done when the user stops stands.
void frmSizes::TryPipes() {
    const BusyPointer busy;
    const std::string schedule = lstSchedule.Row(lstSchedule.Selected());
    sizes_.clear();
    isStopped_ = false;
    LineTrials trials;
    for (const std::string& line : lines_) {
        const TableFields fields = SplitTableLine(table::Pipe, line);
        if (schedule != AllSchedules && schedule != fields[1]) continue;
        Size size{line, fields[0], fields[1], PipeDiameterOf(line), {}, {}};
        size.Trial = trials.WithDiameter(size.Diameter);
        isStopped_ = size.Trial.End == Outcome::Stopped;
        if (isStopped_) return;
        sizes_.push_back(std::move(size));
    }
}

void frmSizes::lstService_Click() {
    const std::string limits = LimitsOf(Criterion());
    const bool isNone = lstService.Selected() <= 0;
    lblSource.SetCaption(isNone           ? ""
                         : limits.empty() ? "This service has no figures"
                                          : limits + SourceOf(Criterion()));
    for (Size& size : sizes_)
        size.Excess = ExcessOf(Criterion(), size.Trial.Figures, size.Trial.Results.LossPer100);
    ShowTable();
}

bool frmSizes::HasCriterion() const { return !LimitsOf(Criterion()).empty(); }

bool frmSizes::Meets(const Size& size) const {
    return HasCriterion() && GetsThrough(size.Trial) && size.Excess.empty();
}

std::string frmSizes::Verdict(const Size& size) const {
    if (!GetsThrough(size.Trial)) return WordOf(size.Trial);
    return Meets(size) ? "meets" : size.Excess;
}

Grid::Cells frmSizes::Heads() const {
    Grid::Cells heads = {
        "Size",
        "Schedule",
        WithUnit("Inside diameter", unit::PipeSize),
        "Criterion",
        WithUnit("Velocity", unit::Velocity),
        WithUnit("Loss per 100 " + Calc.UnitName[unit::Length], unit::PressureDrop),
        WithUnit(OpenLine() == nullptr ? "" : OpenLine()->lblDestPress.Caption(), unit::Pressure),
        WithUnit("Total loss", unit::PressureDrop),
        "Reynolds number",
        "Flow zone"};
    if (IsGas()) heads.push_back("Mach at outlet");
    return heads;
}

Grid::Cells frmSizes::CellsOf(const Size& size) const {
    const LineTrial& trial = size.Trial;
    const bool isReached = trial.End == Outcome::Reached;
    const auto ofTheEnd = [&](double value) { return isReached ? Figure(value) : ""; };
    Grid::Cells cells = {size.Nominal,
                         size.Schedule,
                         TrimmedStr(size.Diameter),
                         Verdict(size),
                         Figure(trial.Results.Velocity),
                         ofTheEnd(trial.Results.LossPer100),
                         ofTheEnd(trial.Results.FinalPressure),
                         ofTheEnd(trial.Figures.TotalLoss / Calc.UnitFactor[unit::PressureDrop]),
                         Figure(trial.Reynolds),
                         trial.Figures.Regime};
    if (IsGas()) cells.push_back(Figure(trial.Figures.OutletMach));
    return cells;
}

void frmSizes::ShowTable() {
    std::vector<Grid::Cells> rows = {Heads()};
    const int columns = static_cast<int>(rows.front().size());
    for (const Size& size : sizes_) rows.push_back(CellsOf(size));
    grdSizes.SetHeads(WithUnitsBelow(rows.front()));
    grdSizes.SetRows(std::move(rows), columns);
    lblMet.SetCaption(CountInWords());
    const int best = BestRow();
    best < 0 ? grdSizes.Deselect() : grdSizes.Select(best + grdSizes.FixedRows, 0);
    cmdOK.SetEnabled(best >= 0);
}

std::string frmSizes::CountInWords() const {
    const auto met = std::ranges::count_if(sizes_, [this](const Size& size) { return Meets(size); });
    const std::string total = std::to_string(sizes_.size()) + (sizes_.size() == 1 ? " pipe" : " pipes");
    const std::string count =
        HasCriterion() ? std::to_string(met) + " of " + total + " meet the criterion" : total;
    return isStopped_ ? count + ": stopped, these are not all" : count;
}

// The smallest that meets the criterion; without one the pipe in hand.
int frmSizes::BestRow() const {
    if (!HasCriterion()) return RowInHand();
    int best = -1;
    for (std::size_t i = 0; i < sizes_.size(); ++i) {
        const bool isSmaller = best < 0 || sizes_[i].Diameter < sizes_[At(best)].Diameter;
        if (isSmaller && Meets(sizes_[i])) best = static_cast<int>(i);
    }
    return best;
}

// Several schedules have one diameter, of which the name tells one; a list in millimetres has three figures.
int frmSizes::RowInHand() const {
    const double inHand = Calc.PipeData[pipe::InsideDiameter];
    int first = -1;
    for (std::size_t i = 0; i < sizes_.size(); ++i) {
        const Size& size = sizes_[i];
        if (size.Diameter != inHand && size.Diameter != RoundedThree(inHand)) continue;
        if (PipeNameOf(size.ListLine) == Calc.PipeName) return static_cast<int>(i);
        if (first < 0) first = static_cast<int>(i);
    }
    return first;
}

bool frmSizes::HasAnswer() const {
    const int best = BestRow();
    return best >= 0 && GetsThrough(sizes_[At(best)].Trial);
}

std::string frmSizes::Answer() const {
    const std::string service = lstService.Selected() > 0 ? Criterion().Service + ": " : "";
    const std::string pipe = HasAnswer() ? PipeNameOf(sizes_[At(BestRow())].ListLine) : "no pipe";
    return service + pipe + ", " + lblMet.Caption();
}

void frmSizes::grdSizes_Click() { cmdOK.SetEnabled(grdSizes.Selected() >= grdSizes.FixedRows); }

// A case that is refused leaves the table of the one before.
void frmSizes::optCase_Click(int index) {
    if (index == Calc.CaseIndex || OpenLine() == nullptr) return;
    if (OpenLine()->TakeOtherCase(index, LineLossForm::Wanted::NoDiameter)) return lstSchedule_Click();
    optCase(Calc.CaseIndex).SetChecked(true);
}

void frmSizes::cmdCopy_Click() {
    CopyText(TabSeparated(grdSizes));
    SetStatus("The table is on the clipboard");
}

void frmSizes::cmdOK_Click() {
    const int row = grdSizes.Selected() - grdSizes.FixedRows;
    if (row < 0 || row >= static_cast<int>(sizes_.size()) || OpenLine() == nullptr) return;
    const std::string line = sizes_[At(row)].ListLine;
    LineLossForm& form = *OpenLine();
    TakeService(form);
    UnloadForm(Name());
    form.TakePipe(line);
}

void frmSizes::cmdCancel_Click() { UnloadForm(Name()); }

}  // namespace quillmetra
