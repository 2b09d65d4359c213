// The case in hand of a line in each pipe of a family: what the form would show with that pipe. OK takes the
// selected pipe into the form, as the pipe size lookup does.
#pragma once

#include <string>
#include <vector>

#include "core/CalcRecord.h"
#include "forms/LineLossForm.h"
#include "forms/SuiteForm.h"
#include "lineloss/LineCriteria.h"
#include "lineloss/LineTrial.h"
#include "tables/PipeSizes.h"

namespace quillmetra {

class frmSizes : public SuiteForm {
public:
    frmSizes();

    void Load() override;
    void CloseBox() override { cmdCancel_Click(); }

    Label lblCase{*this, "lblCase", "Case"};
    ControlArray<OptionButton> optCase{*this, "optCase", {0, 1, 2}, ""};
    Label lblFamily{*this, "lblFamily", "&Family"};
    ListBox lstFamily{*this, "lstFamily"};
    Label lblSchedule{*this, "lblSchedule", "&Schedule"};
    ListBox lstSchedule{*this, "lstSchedule"};
    Label lblService{*this, "lblService", "Ser&vice"};
    ListBox lstService{*this, "lstService"};
    Label lblSource{*this, "lblSource"};
    Label lblSizes{*this, "lblSizes", "&Pipes"};
    Grid grdSizes{*this, "grdSizes"};
    Label lblMet{*this, "lblMet"};
    CommandButton cmdCopy{*this, "cmdCopy", "&Copy table"};
    CommandButton cmdOK{*this, "cmdOK", "OK"};
    CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    // For who takes no pipe: the smallest that meets the criterion, or that in hand where there is none, if
    // it gets the fluid through; and how many meet it.
    bool HasAnswer() const;
    std::string Answer() const;

    void optCase_Click(int index);
    void lstFamily_Click();
    void lstSchedule_Click();
    void lstService_Click();
    void grdSizes_Click();
    void cmdCopy_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

private:
    struct Size {
        std::string ListLine;  // of the lookup
        std::string Nominal, Schedule;
        double Diameter = 0;  // in the form's unit
        LineTrial Trial;
        std::string Excess;  // over the criterion
    };

    const LineCriterion& Criterion() const;
    bool HasCriterion() const;
    bool Meets(const Size& size) const;
    std::string Verdict(const Size& size) const;
    void ListServices();
    void TakeService(LineLossForm& line) const;
    void ReadFamily();
    void TryPipes();
    void ShowTable();
    Grid::Cells Heads() const;
    Grid::Cells CellsOf(const Size& size) const;
    std::string CountInWords() const;
    int BestRow() const;
    int RowInHand() const;

    std::vector<PipeFile> families_;       // a row of lstFamily each
    std::vector<LineCriterion> criteria_;  // a row of lstService each, the first asks nothing
    int serviceAtFirst_ = 0;
    std::vector<std::string> lines_;  // of the family in hand
    std::vector<Size> sizes_;         // a row of the table each
    bool isStopped_ = false;          // before the last of them
};

}  // namespace quillmetra
