// The printout of one calculation: the headings and notes of its page, and the ways to paper.
#pragma once

#include "core/CalcRecord.h"
#include "forms/SuiteForm.h"
#include "reports/ReportPage.h"

namespace quillmetra {

class frmObxPrintCalc : public SuiteForm {
public:
    frmObxPrintCalc();
    // In a run over many records the form takes the run's headings and presses its own OK.
    void Load() override;
    void CloseBox() override { cmdCancel_Click(); }

    // Takes date, headings and notes from the record, for the print of the form in hand.
    void FillFromRecord();

    MenuItem mnuFile{*this, "mnuFile", "&File"};
    MenuItem mnuPreview{mnuFile, "mnuPreview", "Print pre&view..."};
    MenuItem mnuPageSetup{mnuFile, "mnuPageSetup", "Page set&up..."};
    MenuItem mnuPdf{mnuFile, "mnuPdf", "Save as &PDF..."};
    MenuItem mnuOptions{*this, "mnuOptions", "O&ptions"};
    MenuItem mnuReload{mnuOptions, "mnuReload", "&Reload headings"};
    MenuItem mnuPrinterFonts{mnuOptions, "mnuPrinterFonts", "Printer &fonts..."};

    Frame fraHeadings{*this, "fraHeadings", "Headings"};
    Label lblDate{fraHeadings, "lblDate", "Printout &date"};
    CommandButton cmdDate{fraHeadings, "cmdDate"};
    Label lblTitle{fraHeadings, "lblTitle", "&Title"};
    TextBox txtTitle{fraHeadings, "txtTitle"};
    Label lblSubTitle{fraHeadings, "lblSubTitle", "S&ubtitle"};
    TextBox txtSubTitle{fraHeadings, "txtSubTitle"};
    Label lblProjectName{fraHeadings, "lblProjectName", "Project &name"};
    TextBox txtProjectName{fraHeadings, "txtProjectName"};
    Label lblProjectNo{fraHeadings, "lblProjectNo", "Project num&ber"};
    TextBox txtProjectNo{fraHeadings, "txtProjectNo"};
    Label lblManufacturer{fraHeadings, "lblManufacturer", "&Manufacturer"};
    TextBox txtManufacturer{fraHeadings, "txtManufacturer"};
    Label lblModel{fraHeadings, "lblModel", "Mode&l"};
    TextBox txtModel{fraHeadings, "txtModel"};
    Label lblComments{fraHeadings, "lblComments", "Not&e"};
    ControlArray<TextBox> txtComments{fraHeadings, "txtComments", {0, 1, 2}};

    CommandButton cmdOK{*this, "cmdOK", "P&rint"};
    CommandButton cmdPreview{*this, "cmdPreview", "Pre&view"};
    CommandButton cmdPdf{*this, "cmdPdf", "&Save as PDF"};
    CommandButton cmdSave{*this, "cmdSave", "Save &headings"};
    CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void cmdDate_Click();
    void cmdOK_Click();
    void cmdSave_Click();
    void cmdCancel_Click();
    void mnuPreview_Click();
    void mnuPageSetup_Click();
    void mnuPdf_Click();
    void mnuReload_Click();
    void mnuPrinterFonts_Click();

private:
    // The boxes of heading lines 2 to 7.
    std::array<TextBox*, 6> HeadingBoxes() {
        return {&txtTitle, &txtSubTitle, &txtProjectName, &txtProjectNo, &txtManufacturer, &txtModel};
    }
    // Shows the lines 1 to last in the boxes.
    void ShowHeadings(const Row<std::string, 13>& lines, std::size_t last);
    void StoreHeadings();
    void ShowDate(const std::string& date);
    std::string ShownDate() const;
    bool Print(PrintJob job, int copies);
    void PrintCopies(int copies);
    void DateRecord();
};

}  // namespace quillmetra
