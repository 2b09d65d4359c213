// A host without a screen for tests of what asks or tells the user: it keeps the boxes that were shown and
// gives the answers that a test has queued.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/Printer.h"
#include "platform/RuntimeError.h"

namespace quillmetra {

class FakeHost : public Host {
public:
    FakeHost() : former_(CurrentHost()) { InstallHost(this); }
    ~FakeHost() override { InstallHost(former_); }
    FakeHost(const FakeHost&) = delete;
    FakeHost& operator=(const FakeHost&) = delete;

    // Answers of the coming boxes and of input boxes. A box that finds none takes its default, an input box
    // is cancelled.
    std::deque<Answer> Answers;
    std::deque<std::string> Inputs;
    std::deque<std::optional<unsigned>> Colours;  // of colour dialogs; cancelled when there is none

    std::vector<MessageBox> Boxes;     // those shown so far, oldest first
    std::vector<std::string> Prompts;  // of input boxes
    std::vector<int> HelpTopics;
    std::string Copied;
    std::optional<PrinterChoice> Printing;  // the answer of a printer dialog
    std::optional<std::string> ChosenFile;  // the answer of a file dialog
    std::string Proposed;                   // by the last one
    std::vector<PrintJob> Jobs;
    std::vector<PrintedPage> Pages;  // of all prints
    int PagesUntilFailure = -1;      // of the printer; negative for one that never fails
    bool EscapePressed = false;      // what Yield tells
    bool Ended = false;
    std::function<void()> WhileServed;  // what the user does when a search lets him
    std::function<void()> WhileAsked;   // what happens elsewhere while a box waits

    // The text of the last box; empty when none was shown.
    std::string LastText() const { return Boxes.empty() ? "" : Boxes.back().Text; }

    Answer ShowMessageBox(const MessageBox& box) override {
        CountBox();
        Boxes.push_back(box);
        if (WhileAsked) WhileAsked();
        if (box.Choice == Buttons::Ok) return Answer::Ok;
        if (Answers.empty()) return DefaultAnswer(box);
        const Answer answer = Answers.front();
        Answers.pop_front();
        return answer;
    }

    std::optional<std::string> InputBox(const std::string& prompt, const std::string&) override {
        CountBox();
        Prompts.push_back(prompt);
        if (Inputs.empty()) return std::nullopt;
        std::string text = Inputs.front();
        Inputs.pop_front();
        return text;
    }

    std::optional<std::string> FileDialog(const FileQuestion& question) override {
        Proposed = question.Folder;
        return ChosenFile;
    }
    std::optional<PrinterChoice> PrinterDialog(const PrinterChoice&) override { return Printing; }
    std::optional<FontChoice> FontDialog(const FontChoice&) override { return std::nullopt; }
    std::optional<unsigned> ColourDialog(unsigned, const std::string&) override {
        if (Colours.empty()) return std::nullopt;
        const std::optional<unsigned> colour = Colours.front();
        Colours.pop_front();
        return colour;
    }
    void PageSetupDialog() override {}
    std::unique_ptr<Paper> OpenPaper(const PrintJob& job) override {
        Jobs.push_back(job);
        return std::make_unique<Sheets>(*this);
    }
    void ShowHelp(int topic) override { HelpTopics.push_back(topic); }
    void CopyText(const std::string& text) override { Copied = text; }
    std::string CopiedText() override { return Copied; }
    void SetBusyPointer(bool) override {}
    bool Yield() override { return EscapePressed; }
    void ServeUser() override {
        if (WhileServed) WhileServed();
    }
    void FormShown(Form&) override {}
    void RunModal(Form&) override {}
    void FormHidden(Form&) override {}
    void FormGone(Form&) override {}
    void FormChanged(Form&) override {}
    void ControlChanged(Control&, Aspect) override {}
    void FocusMoved(Form&) override {}
    void ProcessEnded() override { Ended = true; }

private:
    class Sheets : public Paper {
    public:
        explicit Sheets(FakeHost& host) : host_(host) {}
        void Print(const PrintedPage& page) override {
            if (host_.PagesUntilFailure-- == 0) throw failure::PrinterError();
            host_.Pages.push_back(page);
        }
        void Finish() override {}

    private:
        FakeHost& host_;
    };

    // A loop that asks until it gets a good answer would never end without a user.
    void CountBox() {
        if (Boxes.size() + Prompts.size() >= 1000) throw std::logic_error("more than 1000 boxes in a test");
    }

    Host* former_;
};

}  // namespace quillmetra
