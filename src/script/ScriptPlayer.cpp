// See ScriptPlayer.h.
#include "script/ScriptPlayer.h"

#include <charconv>
#include <exception>
#include <ostream>
#include <utility>

#include "core/CalcRecord.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "platform/Clock.h"
#include "platform/Folders.h"
#include "platform/Forms.h"
#include "platform/TextFiles.h"
#include "script/ScriptCommands.h"
#include "script/ScriptFailure.h"

namespace quillmetra {

namespace {

// The script's host is in force for the life of this. At its end no form is left that knew it.
class HostInForce {
public:
    explicit HostInForce(ScriptHost& host) : host_(host), former_(CurrentHost()) {
        ResetForms();
        InstallHost(&host_);
    }
    ~HostInForce() {
        host_.Close();
        ResetForms();
        InstallHost(former_);
        SetToday("");
    }
    HostInForce(const HostInForce&) = delete;
    HostInForce& operator=(const HostInForce&) = delete;

private:
    ScriptHost& host_;
    Host* former_;
};

}  // namespace

ScriptPlayer::ScriptPlayer(std::ostream& out, std::ostream& errors) : Out(out), Host(out), errors_(errors) {
    Host.WhileShown = [this](Form& form) { PlayWhileShown(form); };
}

int ScriptPlayer::Play(const std::string& path) {
    return PlayAll([&] { Source.Open(path); });
}

int ScriptPlayer::Play(const std::string& name, std::istream& script) {
    return PlayAll([&] { Source.Open(name, script); });
}

int ScriptPlayer::PlayAll(const std::function<void()>& open) {
    const HostInForce inForce(Host);
    try {
        open();
        while (PlayNext()) {
        }
        Quit();
    } catch (const ScriptQuit&) {
        Out.flush();
        return 0;
    } catch (const ScriptFailure& failure) {
        Out.flush();
        errors_ << Source.Place() << ": " << (command_.empty() ? "" : command_ + ": ")
                << OnOneLine(failure.Words) << '\n';
        return 1;
    }
}

void ScriptPlayer::PlayWhileShown(const Form& form) {
    while (form.Visible() && !ProcessHasEnded()) {
        if (!PlayNext()) Quit();
    }
}

bool ScriptPlayer::PlayNext() try {
    Out.flush();  // whoever looks on sees each act when it is done
    Host.CommandStarts();
    if (!steps_.empty()) {
        const std::function<void()> step = std::move(steps_.front());
        steps_.pop_front();
        step();
        return true;
    }
    command_.clear();
    std::string line;
    if (!Source.Next(line)) return false;
    PlayLine(line);
    return true;
} catch (const std::exception& error) {
    throw ScriptFailure{error.what()};
}

void ScriptPlayer::PlayLine(std::string_view line) {
    const std::string_view name = TakeWord(line);
    if (name.empty() || name.starts_with('#')) return;
    const ScriptCommand* const command = FindCommand(name);
    if (command == nullptr) throw ScriptFailure{"there is no command " + std::string(name)};
    command_ = command->Name;
    command->Run(*this, SplitArguments(command->Usage, line));
}

void ScriptPlayer::Quit() {
    if (Host.Strict) {
        command_ = "quit";
        if (!Host.Unread.empty()) {
            throw ScriptFailure{"a box is unread: " + OnOneLine(Host.Unread.front().Text)};
        }
        const std::size_t left = Host.Answers.size() + Host.Inputs.size() + Host.Dialogs.size();
        if (left > 0) throw ScriptFailure{std::to_string(left) + " queued answers were not asked for"};
    }
    throw ScriptQuit{};
}

Form& ScriptPlayer::FormInHand() const {
    if (ProcessHasEnded()) throw ScriptFailure{"the suite has ended"};
    Form* const form = Host.FormInHand();
    if (form == nullptr) throw ScriptFailure{"no form is shown; start shows the first one"};
    return *form;
}

Control& ScriptPlayer::Named(const std::string& name) const {
    const Form& form = FormInHand();
    std::string_view plain = name;
    int index = Control::NoIndex;
    if (const std::size_t open = name.find('('); open != std::string::npos && name.back() == ')') {
        const char* const end = name.data() + name.size() - 1;
        const auto [stop, error] = std::from_chars(name.data() + open + 1, end, index);
        if (error != std::errc() || stop != end || index < 0) throw ScriptFailure{name + " is no name"};
        plain = plain.substr(0, open);
    }
    Control* const control = form.Find(plain, index);
    if (control == nullptr) throw ScriptFailure{form.Name() + " has no control " + name};
    return *control;
}

void ScriptPlayer::UseFolder(const std::string& path) {
    const std::filesystem::path folder = AbsolutePath(path);
    if (!std::filesystem::is_directory(folder)) throw ScriptFailure{"there is no folder " + path};
    folder_ = SuitePath(folder);
}

std::filesystem::path ScriptPlayer::FileOfOwnFolder(const std::string& name) const {
    if (!ownFolder_) throw ScriptFailure{"the suite is not started, or on a folder that is not the script's"};
    std::filesystem::path file = MachinePath(SuitePath(ownFolder_->Path()) + "\\" + name);
    const auto [stop, rest] =
        std::mismatch(ownFolder_->Path().begin(), ownFolder_->Path().end(), file.begin());
    if (stop != ownFolder_->Path().end()) throw ScriptFailure{name + " is outside of the suite's folder"};
    return file;
}

// A folder that the script names is used as it is: what is missing there is missing.
void ScriptPlayer::Start() {
    if (TopModalForm() != nullptr) throw ScriptFailure{TopModalForm()->Name() + " still waits for an answer"};
    if (folder_.empty()) {
        if (!ownFolder_) ownFolder_.emplace();
        folder_ = SuitePath(ownFolder_->Path());
        SeedShippedData(folder_);
    }
    ResetForms();
    Calc = {};
    Suite = {};
    StartUp(folder_);
}

}  // namespace quillmetra
