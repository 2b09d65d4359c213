// See ScriptHost.h.
#include "script/ScriptHost.h"

#include <ostream>
#include <sstream>
#include <utility>

#include "forms/FileGuard.h"
#include "paper/PdfPaper.h"
#include "platform/Form.h"
#include "platform/RuntimeError.h"
#include "script/ScriptFailure.h"

namespace quillmetra {

namespace {

// Pages on the output, each of their lines marked as such.
class OutputPaper : public Paper {
public:
    explicit OutputPaper(std::ostream& out) : out_(out) {}

    void Print(const PrintedPage& page) override {
        std::istringstream lines(PageAsText(page));
        for (std::string line; std::getline(lines, line);) out_ << "page | " << line << '\n';
    }
    void Finish() override {}

private:
    std::ostream& out_;
};

}  // namespace

std::string OnOneLine(const std::string& text) {
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' && text[i] != '\n') {
            line += text[i];
            continue;
        }
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
        line += "\\n";
    }
    return line;
}

void ScriptHost::CountBox() {
    constexpr int mostBoxes = 1000;
    if (++boxes_ > mostBoxes) throw ScriptFailure{"more than 1,000 boxes from one command"};
}

// An information box between takes no answer that it does not offer, unless the script promised to foresee
// every box.
Answer ScriptHost::ChooseAnswer(const MessageBox& box) {
    if (!Answers.empty() && Offers(box, Answers.front())) {
        const Answer answer = Answers.front();
        Answers.pop_front();
        return answer;
    }
    if (Strict && Answers.empty()) throw ScriptFailure{"no answer is queued for the box above"};
    if (Strict) {
        throw ScriptFailure{std::string("the box above has no button ") + Word(Answers.front())};
    }
    return DefaultAnswer(box);
}

Answer ScriptHost::ShowMessageBox(const MessageBox& box) {
    if (closed_) return DefaultAnswer(box);
    CountBox();
    Unread.push_back(box);
    out_ << "message | " << OnOneLine(box.Title) << " | " << OnOneLine(box.Text) << " | " << Word(box.Choice)
         << " | " << Word(box.Sign) << " | ";
    try {
        const Answer answer = ChooseAnswer(box);
        out_ << Word(answer) << '\n';
        return answer;
    } catch (const ScriptFailure&) {
        out_ << "none\n";
        throw;
    }
}

std::optional<std::string> ScriptHost::InputBox(const std::string& prompt, const std::string& title) {
    if (closed_) return std::nullopt;
    CountBox();
    std::optional<std::string> text;
    if (!Inputs.empty()) {
        text = std::move(Inputs.front());
        Inputs.pop_front();
    }
    out_ << "input | " << OnOneLine(title) << " | " << OnOneLine(prompt) << " | "
         << (text ? OnOneLine(*text) : "cancelled") << '\n';
    if (!text && Strict) throw ScriptFailure{"no input is queued for the box above"};
    return text;
}

// Nothing for a dialog that is cancelled, by the script or because nothing is queued.
template <typename T>
std::optional<T> ScriptHost::TakeDialog(const std::string& kind) {
    if (closed_) return std::nullopt;
    CountBox();
    if (Dialogs.empty()) {
        if (Strict) throw ScriptFailure{"no answer is queued for a " + kind + " dialog"};
        return std::nullopt;
    }
    const DialogAnswer answer = std::move(Dialogs.front());
    Dialogs.pop_front();
    if (std::holds_alternative<Cancelled>(answer)) return std::nullopt;
    if (const T* wanted = std::get_if<T>(&answer)) return *wanted;
    throw ScriptFailure{"a " + kind + " dialog came, and the answer queued is for another kind"};
}

std::optional<std::string> ScriptHost::FileDialog(const FileQuestion& question) {
    const auto answer = TakeDialog<FileAnswer>("file");
    if (!answer) return std::nullopt;
    if (answer->ForSaving == question.ForSaving) return answer->Path;
    throw ScriptFailure{question.ForSaving
                            ? "a dialog for saving a file came; its answer is queued by save-as"
                            : "a dialog for opening a file came; its answer is queued by file"};
}

// A script that told where its next print goes has foreseen the dialog.
std::optional<PrinterChoice> ScriptHost::PrinterDialog(const PrinterChoice& preset) {
    if (Dialogs.empty() && !NextPrint.Path.empty() && !closed_) return preset;
    return TakeDialog<PrinterChoice>("printer");
}

std::optional<FontChoice> ScriptHost::FontDialog(const FontChoice& preset) {
    const auto answer = TakeDialog<FontAnswer>("font");
    if (!answer) return std::nullopt;
    FontChoice font = preset;
    font.Name = answer->Name;
    font.Size = answer->Size;
    return font;
}

std::optional<unsigned> ScriptHost::ColourDialog(unsigned, const std::string&) {
    const auto answer = TakeDialog<ColourAnswer>("colour");
    return answer ? std::optional(answer->Colour) : std::nullopt;
}

std::unique_ptr<Paper> ScriptHost::OpenPaper(const PrintJob& job) {
    const PrintTarget target = std::exchange(NextPrint, {});
    if (target.Path.empty() && job.To != PrintJob::Target::Pdf) return std::make_unique<OutputPaper>(out_);
    const std::string reason = target.Path.empty() ? "" : WhyNotToWrite(target.Path, "a printout");
    if (!reason.empty()) throw RuntimeError(failure::PathAccess().Number, reason);
    if (target.AsText) return std::make_unique<TextPaper>(target.Path);
    PrintJob pdf = job;
    if (!target.Path.empty()) pdf.Path = target.Path;
    return OpenPdf(pdf);
}

void ScriptHost::CopyText(const std::string& text) {
    Copied = text;
    if (closed_) return;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) out_ << "copy | " << line << '\n';
}

void ScriptHost::ShowHelp(int topic) {
    if (!closed_) out_ << "help | " << topic << '\n';
}

void ScriptHost::FormShown(Form& form) {
    std::erase(shown_, &form);
    shown_.push_back(&form);
    inHand_ = &form;
}

void ScriptHost::RunModal(Form& form) {
    FormShown(form);
    if (!closed_ && WhileShown) WhileShown(form);
}

void ScriptHost::Forget(Form& form) {
    std::erase(shown_, &form);
    if (inHand_ == &form) inHand_ = shown_.empty() ? nullptr : shown_.back();
}

}  // namespace quillmetra
