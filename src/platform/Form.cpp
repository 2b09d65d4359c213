// See Form.h, Focus.h and Events.h.
#include "platform/Form.h"

#include <exception>
#include <stdexcept>
#include <utility>

#include "platform/Events.h"
#include "platform/Forms.h"
#include "platform/TextCase.h"

namespace quillmetra {

namespace events {

namespace {
struct Level {
    int Handlers = 0;
    Control* WantsFocus = nullptr;
};
std::vector<Level> Levels(1);
// A handler that resets the suite ends in another run than it began, which knows nothing of it.
int Run = 0;

struct {
    const Control* Box = nullptr;
    std::string Before, Now;
} Typing;
}  // namespace

ModalLevel::ModalLevel() : run_(Run) { Levels.emplace_back(); }
ModalLevel::~ModalLevel() {
    if (run_ == Run) Levels.pop_back();
}

HandlerScope::HandlerScope() : run_(Run) { ++Levels.back().Handlers; }
HandlerScope::~HandlerScope() {
    if (run_ == Run) --Levels.back().Handlers;
}

Control* DueFocusMove() {
    return Levels.back().Handlers == 1 ? std::exchange(Levels.back().WantsFocus, nullptr) : nullptr;
}

bool Idle() { return Levels.size() == 1 && Levels.back().Handlers == 0; }

bool Outermost() { return Levels.size() == 1 && Levels.back().Handlers == 1; }

void AskFocus(Control& control) {
    if (!control.Owner().Visible()) {
        control.Owner().Focus.WhenShown(control);
    } else if (Levels.back().Handlers > 0) {
        Levels.back().WantsFocus = &control;
    } else {
        control.Owner().Dispatch([&control] { events::AskFocus(control); });
    }
}

void ForgetFocusMoves(const Form& form) {
    for (Level& level : Levels) {
        if (level.WantsFocus != nullptr && &level.WantsFocus->Owner() == &form) level.WantsFocus = nullptr;
    }
}

void NoteTyping(const Control& box, const std::string& before, const std::string& now) {
    if (Typing.Box != &box || Typing.Now != before) Typing = {&box, before, now};
    Typing.Now = now;
}

const std::string* TypedOver(const Control& box) {
    const bool stands = Typing.Box == &box && Typing.Now == box.Text() && Typing.Now != Typing.Before;
    return stands && box.Owner().Focus.Current() == &box ? &Typing.Before : nullptr;
}

void EndTyping() { Typing = {}; }

void Reset() {
    Levels.assign(1, {});
    ++Run;
    EndTyping();
}

}  // namespace events

void Control::SetFocus() { events::AskFocus(*this); }

void FocusModel::Lose() {
    Control* const old = current_;
    if (old == nullptr || losing_) return;
    losing_ = true;
    struct Guard {
        bool& Flag;
        ~Guard() { Flag = false; }
    } guard{losing_};
    form_.ControlLostFocus(*old);
    if (old->LostFocus) old->LostFocus();
}

void FocusModel::Gain(Control& target) {
    current_ = &target;
    events::EndTyping();
    if (Host* host = CurrentHost()) host->FocusMoved(form_);
    form_.ControlGotFocus(target);
    if (target.GotFocus) target.GotFocus();
}

void FocusModel::UserMoves(Control& target) {
    if (&target == current_) return;
    Lose();
    // What ran for the old control may have switched off the new one, or closed the form.
    if (target.Works() && form_.Visible()) Gain(target);
}

void FocusModel::UserLeaves() {
    Lose();
    current_ = nullptr;
    events::EndTyping();
    if (Host* host = CurrentHost()) host->FocusMoved(form_);
}

void FocusModel::CodeMoves(Control& target) {
    if (!form_.Visible()) return WhenShown(target);
    if (!target.Works()) return;
    if (current_ == &target) {
        // No move; a toolkit may have put its own focus elsewhere meanwhile.
        if (Host* host = CurrentHost()) host->FocusMoved(form_);
        return;
    }
    if (current_ != nullptr) form_.ControlLostFocus(*current_);
    Gain(target);
}

void FocusModel::WhenShown(Control& target) {
    current_ = &target;
    waiting_ = true;
}

void FocusModel::Start() {
    if (std::exchange(waiting_, false) && current_->Works()) return Gain(*current_);
    if (current_ != nullptr && current_->Works()) return;
    for (Control* control : form_.TabStops()) {
        if (!control->Works()) continue;
        Gain(*control);
        return;
    }
}

bool Form::NameKey::operator==(const NameKey& other) const {
    return Index == other.Index && (Name == other.Name || SameName(Name, other.Name));
}

std::size_t Form::NameHash::operator()(const NameKey& key) const {
    std::size_t hash = 1469598103934665603ULL + static_cast<std::size_t>(key.Index + 1);
    for (const char c : key.Name) {
        hash = (hash ^ static_cast<unsigned char>(LowerCase(c))) * 1099511628211ULL;
    }
    return hash;
}

Form::Form(std::string name) : name_(std::move(name)) {}
Form::~Form() = default;

void Form::Register(Control& control) {
    const bool added = byName_.emplace(NameKey{control.Name(), control.Index()}, &control).second;
    if (!added) throw std::logic_error(name_ + ": two controls named " + control.FullName());
    controls_.push_back(&control);
}

void Form::Alias(std::string_view name, Control& control) {
    const bool added = byName_.emplace(NameKey{name, control.Index()}, &control).second;
    if (!added) throw std::logic_error(name_ + ": two controls named " + std::string(name));
}

Control* Form::Find(std::string_view name, int index) const {
    const auto found = byName_.find(NameKey{name, index});
    return found == byName_.end() ? nullptr : found->second;
}

std::vector<Control*> Form::TabStops() const {
    if (!TabOrder.empty()) return TabOrder;
    std::vector<Control*> stops;
    for (Control* control : controls_) {
        if (control->TabStop) stops.push_back(control);
    }
    return stops;
}

void Form::SetCaption(const std::string& caption) {
    if (caption == caption_) return;
    caption_ = caption;
    if (Host* host = CurrentHost()) host->FormChanged(*this);
}

void Form::SetStatus(const std::string& status) {
    if (status == status_) return;
    status_ = status;
    if (Host* host = CurrentHost()) host->FormChanged(*this);
}

void Form::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    if (Host* host = CurrentHost()) host->FormChanged(*this);
}

void Form::SetBackColour(Colour colour) {
    back_ = colour;
    if (Host* host = CurrentHost()) host->FormChanged(*this);
}

void Form::Dispatch(const Handler& act) {
    const FormHold hold(*this);
    const events::HandlerScope scope;
    Guarded(act);
    MoveFocusAsAsked();
    if (!events::Outermost()) return;
    Guarded(RunAfterAct);
    MoveFocusAsAsked();
}

void Form::MoveFocusAsAsked() {
    // A GotFocus may ask for the focus again; two that ask for each other must not go on for ever.
    constexpr int mostMoves = 10;
    Control* target = events::DueFocusMove();
    for (int moves = 0; target != nullptr && moves < mostMoves; ++moves) {
        Form& owner = target->Owner();
        const FormHold hold(owner);
        owner.Guarded([&] { owner.Focus.CodeMoves(*target); });
        target = events::DueFocusMove();
    }
}

FormHold::~FormHold() {
    --form_.holds_;
    BuryForms();  // may destroy the form
}

// Runs a part of an act. What escapes from it is told here, at the last place where the user can be told.
void Form::Guarded(const Handler& part) {
    std::string words;
    try {
        part();
        return;
    } catch (const RuntimeError& error) {
        words = error.Description;
    } catch (const std::exception& error) {
        words = error.what();
    }
    if (CurrentHost() != nullptr) Tell(words, ProblemTitle(), Icon::Stop);
}

}  // namespace quillmetra
