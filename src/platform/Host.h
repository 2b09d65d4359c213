// The one interface that a host implements: the desktop over a widget toolkit, the script player without a
// display. Forms and calculations reach it only through Dialogs.h and Forms.h.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/Dialogs.h"

namespace quillmetra {

class Control;
class Form;
class Paper;

// What changed about a control, so that a host renews no more than that.
enum class Aspect { Text, Checked, Enabled, Visible, Colours, ToolTip, Rows, Selection, SelectAll };

// Where pages go, see Printer.h.
struct PrintJob {
    enum class Target { Printer, Preview, Pdf };

    Target To = Target::Printer;
    std::string Path;                        // of the PDF, in the suite's words
    std::string Name;                        // of the document, as print queues and viewers show it
    double SheetWidth = 0, SheetHeight = 0;  // of the PDF, twips; 0: A4
    int FromPage = 0, ToPage = 0;            // as in PrinterChoice
};

class Host {
public:
    virtual ~Host() = default;

    virtual Answer ShowMessageBox(const MessageBox& box) = 0;
    // Nothing when the user cancels; so the five dialogs below.
    virtual std::optional<std::string> InputBox(const std::string& prompt, const std::string& title) = 0;
    virtual std::optional<std::string> FileDialog(const FileQuestion& question) = 0;
    virtual std::optional<PrinterChoice> PrinterDialog(const PrinterChoice& preset) = 0;
    virtual std::optional<FontChoice> FontDialog(const FontChoice& preset) = 0;
    virtual std::optional<unsigned> ColourDialog(unsigned preset,  // 0x00BBGGRR
                                                 const std::string& title) = 0;
    // Size and margins of the sheets, kept by the host.
    virtual void PageSetupDialog() = 0;
    // The paper for the pages of a job; a printer is the one that the printer dialog chose last. Throws a
    // RuntimeError when there is no such paper.
    virtual std::unique_ptr<Paper> OpenPaper(const PrintJob& job) = 0;
    virtual void ShowHelp(int topic) = 0;
    virtual void CopyText(const std::string& text) = 0;
    virtual std::string CopiedText() = 0;
    virtual void SetBusyPointer(bool busy) = 0;
    // Lets the host breathe within a long act; true when the user pressed Escape or a cancel button.
    virtual bool Yield() = 0;
    // Lets the user act on the forms within a long search, which has switched off what must not run twice.
    virtual void ServeUser() {}

    virtual void FormShown(Form& form) = 0;
    // Shows a form over all others and returns when it is hidden or unloaded.
    virtual void RunModal(Form& form) = 0;
    virtual void FormHidden(Form& form) = 0;
    // The form is about to be destroyed: forget it and its controls.
    virtual void FormGone(Form& form) = 0;
    // Caption, enabled state or status line of a form changed.
    virtual void FormChanged(Form& form) = 0;
    virtual void ControlChanged(Control& control, Aspect aspect) = 0;
    virtual void FocusMoved(Form& form) = 0;
    virtual void ProcessEnded() = 0;
};

// The host in force, or null before one is installed (calculation tests run without).
Host* CurrentHost();
void InstallHost(Host* host);

}  // namespace quillmetra
