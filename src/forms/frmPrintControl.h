// Prints many records of the database in one run, on a printer or to one PDF.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "forms/RecordFields.h"
#include "forms/SuiteForm.h"
#include "records/RecordView.h"

namespace quillmetra {

class frmPrintControl : public SuiteForm {
public:
    frmPrintControl();

    void Load() override;
    void CloseBox() override { cmdCancelPrint_Click(); }

    Frame fraTags{*this, "fraTags", "Records to print"};
    ListBox lstTags{fraTags, "lstTags"};
    CommandButton cmdAll{fraTags, "cmdAll", "&All"};
    CommandButton cmdNone{fraTags, "cmdNone", "&None"};
    Label lblNumRecords{fraTags, "lblNumRecords"};

    Frame fraRecord{*this, "fraRecord", "Selected record"};
    Label lblCurrentRecord{fraRecord, "lblCurrentRecord"};
    RecordFields Record{fraRecord};

    Frame fraHeadings{*this, "fraHeadings", "Headings"};
    Label lblPrintoutDate{fraHeadings, "lblPrintoutDate", "Printout date"};
    TextBox txtPrintoutDate{fraHeadings, "txtPrintoutDate"};
    CheckBox chkPrintDate{fraHeadings, "chkPrintDate", "Use toda&y's date"};
    Label lblTitle{fraHeadings, "lblTitle", "&Title"};
    TextBox txtTitle{fraHeadings, "txtTitle"};
    Label lblSubTitle{fraHeadings, "lblSubTitle", "Su&btitle"};
    TextBox txtSubTitle{fraHeadings, "txtSubTitle"};
    Label lblProjectName{fraHeadings, "lblProjectName", "Project na&me"};
    TextBox txtProjectName{fraHeadings, "txtProjectName"};
    Label lblProjectNo{fraHeadings, "lblProjectNo", "Project numbe&r"};
    TextBox txtProjectNo{fraHeadings, "txtProjectNo"};
    CheckBox chkUse{fraHeadings, "chkUse", "&Use default titles"};
    CommandButton cmdTitleDefault{fraHeadings, "cmdTitleDefault", "&Get default titles"};
    CommandButton cmdDefaultTitles{fraHeadings, "cmdDefaultTitles", "Save as &default titles"};
    CommandButton cmdSaveInDb{fraHeadings, "cmdSaveInDb", "&Save in database"};

    ProgressBar barProgress{*this, "barProgress"};
    CommandButton cmdProceed{*this, "cmdProceed", "&Print"};
    CommandButton cmdPdf{*this, "cmdPdf", "Save as PD&F..."};
    CommandButton cmdCancelPrint{*this, "cmdCancelPrint", "Cancel"};

    void cmdNone_Click();
    void cmdAll_Click();
    void lstTags_Click();
    void chkPrintDate_Click();
    void chkUse_Click();
    void cmdTitleDefault_Click();
    void cmdDefaultTitles_Click();
    void cmdSaveInDb_Click();
    void cmdCancelPrint_Click();
    void cmdProceed_Click();
    void cmdPdf_Click();

    // Picks these of the list, without a look at each.
    void PickTags(const std::vector<std::string>& tags);

    // Moves by the word in MessageText ("Last", "Next", "Previous", "First", or "Select" for the record of
    // Tag), reads that record and shows it.
    void FieldData();
    // Reads the record of Tag and fills its form, and ReportHeadings for its page; false, after a message,
    // when it cannot be read. Throws as OpenRecords.
    bool PrintRecords();
    // Empties the fields of the form, and the headings of the record.
    void ClearPrintData();

private:
    using Titles = std::array<std::string, 4>;

    // The boxes of heading lines 2 to 5.
    std::array<TextBox*, 4> TitleBoxes() { return {&txtTitle, &txtSubTitle, &txtProjectName, &txtProjectNo}; }
    Titles TitleTexts();
    void ShowTitles(const Titles& titles);
    void ShowHead();

    int CountPicked() const;
    bool AnyPicked();
    std::string NameForPdf() const;
    // Goes back to the browser, whose status line says what has come of the run.
    void Leave(const std::string& said);
    void Run(PrintJob job);
    void ShowRunning(bool running);
    // Prints the records that are picked; false when the user has stopped it.
    bool PrintPicked();
    void PrintOne(const std::string& tag);
    void TellUnprinted();

    std::unique_ptr<RecordView> view_;  // null while no database can be read
    // Of the run in hand
    std::string runDate_;  // empty: each page has the date of its calculation
    Titles runTitles_;
    std::vector<std::string> unprinted_;  // records that were left out or went wrong, and why
};

}  // namespace quillmetra
