// A report page on the printer: heading, body by the program in hand, notes, frame. A row counter places the
// lines; they print the texts of the calculation form, so that a page says what the form shows.
#pragma once

#include <array>
#include <string>

#include "platform/Printer.h"

namespace quillmetra {

// The texts of a page that are not on the calculation form.
struct ReportTexts {
    std::string Date, Title, SubTitle, ProjectName, ProjectNo;
    std::array<std::string, 3> Notes;
};

struct ReportPage {
    int LineHeight = 240;        // twips
    long ReportWidth = 9000;     // twips, of the frame
    int ReportRow = 0;           // the next line stands at ReportRow x LineHeight
    double BaseFontSize = 10;    // points
    bool DocumentEnded = false;  // a mixture that failed ended it: nothing follows on this page

    // The upper edge of the line in hand, so many twips above its row.
    double RowTop(int raise = 0) const { return ReportRow * LineHeight - raise; }
    // Sets the letters: a factor of BaseFontSize, bold or not.
    void Letters(double factor, bool bold) const;
};

// Prints one copy of the page for the record and the form in hand; sizes in points. Throws a RuntimeError
// when the printer fails; what fails in the body is told there, and heading and notes are printed all the
// same. The notes go to the record.
void PrintReportPage(const ReportTexts& texts, double baseFontSize);

// Prints the body of CurrentProgram; nothing for a number that is no program.
void PrintReportBody(ReportPage& page);

// Prints the components of the mixture with their percentages, a line for each 100 characters. A last line
// of 100 characters or more is left out, and so is a component whose name has three letters or less: both
// are how these reports have always been. A failure ends the document.
void MixturePrint(ReportPage& page);

}  // namespace quillmetra
