// See Form.h, Focus.h and Events.h.
#include "platform/Form.h"

#include <exception>
#include <stdexcept>

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
}  // namespace

ModalLevel::ModalLevel() { Levels.emplace_back(); }
ModalLevel::~ModalLevel() {
    if (Levels.size() > 1) Levels.pop_back();
}

void HandlerStarts() { ++Levels.back().Handlers; }

void HandlerEnds() { --Levels.back().Handlers; }

Control* DueFocusMove() {
    return Levels.back().Handlers == 1 ? std::exchange(Levels.back().WantsFocus, nullptr) : nullptr;
}

bool Idle() { return Levels.size() == 1 && Levels.back().Handlers == 0; }

void AskFocus(Control& control) {
    if (Levels.back().Handlers > 0) {
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

void Reset() { Levels.assign(1, {}); }

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
    if (Host* host = CurrentHost()) host->FocusMoved(form_);
    form_.ControlGotFocus(target);
    if (target.GotFocus) target.GotFocus();
}

void FocusModel::UserMoves(Control& target) {
    if (&target == current_) return;
    Lose();
    if (target.Works()) Gain(target);
}

void FocusModel::UserLeaves() {
    Lose();
    current_ = nullptr;
    if (Host* host = CurrentHost()) host->FocusMoved(form_);
}

void FocusModel::CodeMoves(Control& target) {
    if (!target.Works()) return;
    if (current_ != nullptr && current_ != &target) form_.ControlLostFocus(*current_);
    Gain(target);
}

void FocusModel::Start() {
    if (current_ != nullptr) return;
    for (Control* control : form_.TabStops()) {
        if (!control->Works()) continue;
        Gain(*control);
        return;
    }
}

bool Form::NameKey::operator==(const NameKey& other) const {
    return Index == other.Index && SameName(Name, other.Name);
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
    ++running_;
    events::HandlerStarts();
    Guarded(act);
    // A GotFocus may ask for the focus again; two that ask for each other must not go on for ever.
    constexpr int mostMoves = 10;
    for (int moves = 0; moves < mostMoves; ++moves) {
        Control* const target = events::DueFocusMove();
        if (target == nullptr) break;
        Guarded([target] { target->Owner().Focus.CodeMoves(*target); });
    }
    events::HandlerEnds();
    --running_;
    AfterUserAct();  // may destroy this form
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
    if (Host* host = CurrentHost()) {
        host->ShowMessageBox({.Text = words, .Title = ProblemTitle(), .Sign = Icon::Stop});
    }
}

}  // namespace quillmetra
