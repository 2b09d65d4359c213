// The host without a display: it answers every question from queues that a script fills, prints what a user
// would read, and knows which form is in hand.
#pragma once

#include <deque>
#include <functional>
#include <iosfwd>
#include <string>
#include <variant>
#include <vector>

#include "platform/Host.h"

namespace quillmetra {

// Line breaks as "\n", so that a text stays on one line of the output.
std::string OnOneLine(const std::string& text);

// Where a print goes.
struct PrintTarget {
    std::string Path;  // empty: its text goes to the script's output
    bool AsText = false;
};

class ScriptHost : public Host {
public:
    struct Cancelled {};
    struct FileAnswer {
        std::string Path;
        bool ForSaving = false;
    };
    struct FontAnswer {
        std::string Name;
        double Size = 0;  // points
    };
    struct ColourAnswer {
        unsigned Colour = 0;  // 0x00BBGGRR
    };
    using DialogAnswer = std::variant<Cancelled, FileAnswer, FontAnswer, ColourAnswer, PrinterChoice>;

    explicit ScriptHost(std::ostream& out) : out_(out) {}

    // --- for the player
    std::deque<Answer> Answers;
    std::deque<std::string> Inputs;
    std::deque<DialogAnswer> Dialogs;  // in the order in which the dialogs will come
    PrintTarget NextPrint;             // taken by the next print
    std::deque<MessageBox> Unread;     // the message boxes that no expectation has read yet
    bool Strict = false;               // a question that nothing was queued for is a failure
    // Plays on while a form is shown modally; returns when it is shown no more.
    std::function<void(Form&)> WhileShown;

    Form* FormInHand() const { return inHand_; }
    void TakeInHand(Form& form) { inHand_ = &form; }
    // One command may put up at most 1,000 boxes: a loop that no answer ends is a failure and not a hang.
    void CommandStarts() { boxes_ = 0; }
    // From here on nothing is printed and nothing fails; every question is answered by its default.
    void Close() { closed_ = true; }

    // --- Host
    Answer ShowMessageBox(const MessageBox& box) override;
    std::optional<std::string> InputBox(const std::string& prompt, const std::string& title) override;
    std::optional<std::string> FileDialog(const FileQuestion& question) override;
    std::optional<PrinterChoice> PrinterDialog(const PrinterChoice& preset) override;
    std::optional<FontChoice> FontDialog(const FontChoice& preset) override;
    std::optional<unsigned> ColourDialog(unsigned preset, const std::string& title) override;
    void PageSetupDialog() override {}
    std::unique_ptr<Paper> OpenPaper(const PrintJob& job) override;
    void ShowHelp(int topic) override;
    void CopyText(const std::string& text) override;
    std::string CopiedText() override { return Copied; }
    std::string Copied;
    void SetBusyPointer(bool) override {}
    bool Yield() override { return false; }
    void FormShown(Form& form) override;
    void RunModal(Form& form) override;
    void FormHidden(Form& form) override { Forget(form); }
    void FormGone(Form& form) override { Forget(form); }
    void FormChanged(Form&) override {}
    void ControlChanged(Control&, Aspect) override {}
    void FocusMoved(Form&) override {}
    void ProcessEnded() override {}

private:
    Answer ChooseAnswer(const MessageBox& box);
    void CountBox();
    void Forget(Form& form);
    template <typename T>
    std::optional<T> TakeDialog(const std::string& kind);

    std::ostream& out_;
    std::vector<Form*> shown_;  // the form shown last at the end
    Form* inHand_ = nullptr;
    int boxes_ = 0;
    bool closed_ = false;
};

}  // namespace quillmetra
