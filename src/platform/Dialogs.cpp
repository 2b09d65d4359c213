// See Dialogs.h.
#include "platform/Dialogs.h"

#include <algorithm>
#include <stdexcept>

#include "platform/Events.h"
#include "platform/Host.h"
#include "platform/RuntimeError.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace {

Host* InstalledHost = nullptr;
int ShownBoxes = 0;
int BusyDepth = 0;
HeldMessages* Holding = nullptr;
bool NobodyAnswers = false;  // a text that is asked for would be asked for again and again

Host& RequiredHost() {
    if (InstalledHost == nullptr) throw std::logic_error("a question to the user without a host");
    return *InstalledHost;
}

// Two to four letters and digits behind a point, the first a letter: "FT-101.2" has no ending.
bool HasEnding(const std::string& file) {
    const std::size_t point = file.find_last_of(".\\/");
    if (point == std::string::npos || file[point] != '.') return false;
    const std::string ending = file.substr(point + 1);
    const auto isPart = [](char c) { return IsLetter(c) || IsDigit(c); };
    return ending.size() >= 2 && ending.size() <= 4 && std::ranges::all_of(ending, isPart) &&
           IsLetter(ending[0]);
}

// The ending of the filter's first pattern ("*.pdf") goes behind a name without any. False when nothing was
// to be added.
bool AddEnding(std::string& file, const std::string& filter) {
    const std::size_t star = filter.find("|*.");
    if (star == std::string::npos || HasEnding(file)) return false;
    file += filter.substr(star + 2, filter.find_first_of("|;", star + 2) - star - 2);
    return true;
}

}  // namespace

Host* CurrentHost() { return InstalledHost; }
void InstallHost(Host* host) { InstalledHost = host; }

bool Offers(const MessageBox& box, Answer answer) {
    switch (answer) {
        case Answer::Ok: return box.Choice == Buttons::Ok;
        case Answer::Cancel: return box.Choice == Buttons::YesNoCancel;
        default: return box.Choice != Buttons::Ok;
    }
}

Answer DefaultAnswer(const MessageBox& box) {
    return box.Default.value_or(box.Choice == Buttons::Ok ? Answer::Ok : Answer::Yes);
}

Answer ShowMessage(const MessageBox& box) {
    if (Holding != nullptr && (box.Choice == Buttons::Ok || Holding->answers_)) {
        Holding->texts_.push_back(box.Text);
        return DefaultAnswer(box);
    }
    ++ShownBoxes;
    return RequiredHost().ShowMessageBox(box);
}

void Tell(const std::string& text, const std::string& title, Icon sign) {
    ShowMessage({.Text = text, .Title = title, .Choice = Buttons::Ok, .Sign = sign});
}

bool AskYesNo(const std::string& text, const std::string& title, Icon sign, Answer preset) {
    return ShowMessage(
               {.Text = text, .Title = title, .Choice = Buttons::YesNo, .Sign = sign, .Default = preset}) ==
           Answer::Yes;
}

std::string AskText(const std::string& prompt, const std::string& title) {
    if (NobodyAnswers) throw RuntimeError{5, prompt};
    ++ShownBoxes;
    return RequiredHost().InputBox(prompt, title).value_or("");
}

std::optional<std::string> AskFile(const FileQuestion& question) {
    ++ShownBoxes;
    auto file = RequiredHost().FileDialog(question);
    if (!file || file->empty() || !question.ForSaving || !AddEnding(*file, question.Filter)) return file;
    // The dialog has asked about the name as it was typed.
    const bool mayReplace = !FileExists(*file) || AskYesNo(*file + " is there already\nReplace it?",
                                                           question.Title, Icon::Exclamation, Answer::No);
    return mayReplace ? file : std::nullopt;
}

std::optional<FontChoice> AskFont(const FontChoice& preset) {
    ++ShownBoxes;
    return RequiredHost().FontDialog(preset);
}

std::optional<PrinterChoice> AskPrinter(const PrinterChoice& preset) {
    ++ShownBoxes;
    return RequiredHost().PrinterDialog(preset);
}

void AskPageSetup() {
    ++ShownBoxes;
    RequiredHost().PageSetupDialog();
}

void ShowHelpTopic(int topic) { RequiredHost().ShowHelp(topic); }

void CopyText(const std::string& text) { RequiredHost().CopyText(text); }

std::string CopiedText() { return RequiredHost().CopiedText(); }

bool UserWantsToStop() { return InstalledHost != nullptr && InstalledHost->Yield(); }

std::optional<unsigned> AskColour(unsigned preset, const std::string& title) {
    return RequiredHost().ColourDialog(preset, title);
}

std::optional<std::string> AskFile(const std::string& title, const std::string& filter,
                                   const std::string& folder) {
    return RequiredHost().FileDialog({.Title = title, .Filter = filter, .Folder = folder});
}

// The acts that come in have an event level of their own: the focus moves that they ask for do not wait for
// the end of the search.
void ServeUser() {
    if (InstalledHost == nullptr) return;
    const events::ModalLevel level;
    InstalledHost->ServeUser();
}

int BoxesShown() { return ShownBoxes; }

const char* Word(Buttons buttons) {
    switch (buttons) {
        case Buttons::YesNo: return "YesNo";
        case Buttons::YesNoCancel: return "YesNoCancel";
        default: return "OK";
    }
}

const char* Word(Icon icon) {
    switch (icon) {
        case Icon::Stop: return "Stop";
        case Icon::Question: return "Question";
        case Icon::Exclamation: return "Exclamation";
        case Icon::Information: return "Information";
        default: return "None";
    }
}

const char* Word(Answer answer) {
    switch (answer) {
        case Answer::Yes: return "Yes";
        case Answer::No: return "No";
        case Answer::Cancel: return "Cancel";
        default: return "OK";
    }
}

HeldMessages::HeldMessages(Questions questions)
    : outer_(Holding),
      answers_(questions == Questions::Answered || (Holding != nullptr && Holding->answers_)) {
    Holding = this;
    NobodyAnswers = answers_;
}
HeldMessages::~HeldMessages() {
    Holding = outer_;
    NobodyAnswers = outer_ != nullptr && outer_->answers_;
}

BusyPointer::BusyPointer() {
    if (++BusyDepth == 1 && InstalledHost != nullptr) InstalledHost->SetBusyPointer(true);
}

BusyPointer::~BusyPointer() {
    if (--BusyDepth == 0 && InstalledHost != nullptr) InstalledHost->SetBusyPointer(false);
}

}  // namespace quillmetra
