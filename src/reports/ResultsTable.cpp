// See ResultsTable.h.
#include "reports/ResultsTable.h"

#include "core/CalcRecord.h"
#include "platform/NumberText.h"
#include "reports/FormRows.h"

namespace quillmetra {

namespace {

std::string TextOf(const Form& form, std::string_view name, int index = Control::NoIndex) {
    const Control* const control = form.Find(name, index);
    return control == nullptr ? "" : SpokenCaption(control->Text());
}

bool HasCases(int program) {
    for (const FormRow& row : FormRows(program)) {
        if (row.PerCase) return true;
    }
    return false;
}

std::string Line(const Form& form, const FormRow& row, int columns) {
    std::string values;
    bool any = false;
    for (int i = 0; i < columns; ++i) {
        std::string text;
        if (row.PerCase || i == 0) text = Trim(RowControl(form, row, i).Text());
        any = any || !text.empty();
        values += text + '\t';
    }
    if (!any) return "";
    return SaidBy(form, row.Label) + '\t' + values + SaidBy(form, row.Unit, row.UnitIndex) + '\n';
}

}  // namespace

std::string ResultsTable(const Form& form, int program) {
    std::string table = Calc.ProgramTitle + '\n';
    table += "Tag number\t" + TextOf(form, "txtTagNum") + '\n';
    table += "Fluid\t" + TextOf(form, "txtFluid") + '\n';
    if (!Calc.PipeName.empty()) table += "Pipe\t" + Calc.PipeName + '\n';
    if (!Calc.Service.empty()) table += "Service\t" + Calc.Service + '\n';
    const int columns = HasCases(program) ? CaseCount : 1;
    if (columns > 1) {
        for (int i = 0; i < columns; ++i) table += '\t' + SaidBy(form, "lblCase", i);
        table += "\tUnit\n";
    }
    for (const FormRow& row : FormRows(program)) table += Line(form, row, columns);
    return table;
}

}  // namespace quillmetra
