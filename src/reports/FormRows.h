// Which control of a calculation form holds which number of the record. One table a program serves the
// refresh of the form, its storing, its colours and the blanking of its results, so that a field is written
// down once.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/Form.h"

namespace quillmetra {

enum class Source {
    CaseInput,
    Property,  // a row of CaseInput that the fluid data programs calculate
    CaseResult,
    HammerResult,
    PipeData,
    FittingCount,
    PipeFouling
};

// When a number replaces the text of its control.
enum class ShowRule {
    Positive,   // only a value above 0; else the old text stays
    Signed,     // any value but 0, for elevations
    LegalZero,  // zero is a value too: shown unless the box is empty
};

struct FormRow {
    const char* Control = "";  // a box, or an array of one for each case
    Source From = Source::CaseInput;
    int Row = 0;
    ShowRule Rule = ShowRule::Positive;
    bool PerCase = false;
    const char* Label = "";  // the label that names the row
    const char* Unit = "";   // the control that shows its unit, empty for a dimensionless number
    int UnitIndex = 0;       // its index in an array, Control::NoIndex for none
    int Column = 0;          // of a CaseInput that is not per case

    bool IsResult() const {
        return From == Source::Property || From == Source::CaseResult || From == Source::HammerResult;
    }
};

// The rows of a program's form, in reading order; none for a program without a form.
std::span<const FormRow> FormRows(int program);

// The number of the record behind a row; a row that is not per case has its one column.
double& LiveValue(const FormRow& row, int caseIndex);
// What it is compared with for its colour.
double ShownValue(const FormRow& row, int caseIndex);

// The control of a row on its form, that of the case when there is one for each.
Control& RowControl(const Form& form, const FormRow& row, int caseIndex);

// Whether the number of a row stands: a result of the line is one number for all cases.
bool RowStands(const FormRow& row, int caseIndex);

// What a label or a unit beside a row says, without the mark of its key; empty where it is hidden.
std::string SaidBy(const Form& form, std::string_view name, int index = Control::NoIndex);

// The row of a control; null for a control that holds no number of the record.
const FormRow* RowOf(int program, const Control& control);

// The colour slot of a value: 10 when it differs from what was last calculated or loaded, else 4. A
// reference of 0 or none counts as no reference.
int ValueSlot(double value, double shown);
int TextSlot(const std::string& value, const std::string& saved);

}  // namespace quillmetra
