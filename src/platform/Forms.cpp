// See Forms.h.
#include "platform/Forms.h"

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

#include "platform/Events.h"
#include "platform/TextCase.h"

namespace quillmetra {

// Owns the loaded forms, and the unloaded ones until the act that unloaded them has ended.
class FormRegistry {
public:
    struct Factory {
        std::string Name;
        FormFactory Make;
    };

    Form* Loaded(std::string_view name) const {
        for (const auto& form : loaded_) {
            if (SameName(form->Name(), name)) return form.get();
        }
        return nullptr;
    }

    Form& Load(std::string_view name) {
        if (Form* form = Loaded(name)) return *form;
        const auto factory = std::find_if(Factories.begin(), Factories.end(),
                                          [&](const Factory& each) { return SameName(each.Name, name); });
        if (factory == Factories.end()) throw failure::NoSuchForm(name);
        std::unique_ptr<Form> made = factory->Make();
        Form& form = *made;
        if (!SameName(form.Name(), factory->Name))
            throw std::logic_error(factory->Name + " made " + form.Name());
        loaded_.push_back(std::move(made));
        RunLoad(form);
        return form;
    }

    void Show(Form& form, Modal modal) {
        Host* const host = CurrentHost();
        if (host == nullptr || Ended) return;
        const FormHold hold(form);
        const bool opensLevel = modal == Modal::Yes && !form.modal_;
        form.visible_ = true;
        if (!opensLevel) {
            StartFocus(form);
            if (form.visible_) host->FormShown(form);
            return;
        }
        const ModalStay stay(*this, form);
        StartFocus(form);
        if (form.visible_) host->RunModal(form);
    }

    void Hide(Form& form) {
        if (!form.visible_) return;
        form.visible_ = false;
        if (Host* host = CurrentHost()) host->FormHidden(form);
    }

    void Unload(std::string_view name) {
        const auto found = std::find_if(loaded_.begin(), loaded_.end(),
                                        [&](const auto& form) { return SameName(form->Name(), name); });
        if (found == loaded_.end()) return;
        Form& form = **found;
        unloaded_.push_back(std::move(*found));
        loaded_.erase(found);
        events::ForgetFocusMoves(form);
        Hide(form);
        Bury();
    }

    // A handler of any form may hold on to what it unloaded, so nothing is destroyed before the act ends.
    void Bury() {
        if (events::Idle()) BuryWhere([](const Form&) { return true; });
    }

    void Discard(std::string_view name) {
        const Form* const form = Loaded(name);
        Unload(name);
        BuryWhere([form](const Form& each) { return &each == form; });
    }

    Form* TopModal() const {
        for (auto form = modal_.rbegin(); form != modal_.rend(); ++form) {
            if ((*form)->visible_) return *form;
        }
        return nullptr;
    }

    void Reset() {
        events::Reset();
        modal_.clear();
        while (!loaded_.empty()) Unload(loaded_.back()->Name());
        Bury();
        Ended = false;
    }

    std::vector<Factory> Factories;
    Handler AfterAct;
    bool Ended = false;

private:
    // The stay of a form over all others, with an event level of its own.
    struct ModalStay {
        ModalStay(FormRegistry& registry, Form& form) : Registry(registry), Shown(form) {
            Shown.modal_ = true;
            Registry.modal_.push_back(&Shown);
        }
        ~ModalStay() {
            std::erase(Registry.modal_, &Shown);
            Shown.modal_ = false;
        }
        ModalStay(const ModalStay&) = delete;
        ModalStay& operator=(const ModalStay&) = delete;

        FormRegistry& Registry;
        Form& Shown;
        events::ModalLevel Level;
    };

    // A form whose Load fails is not loaded, so that the next one who names it does not get half of it.
    void RunLoad(Form& form) {
        const std::string name = form.Name();
        {
            const FormHold hold(form);
            try {
                form.Load();
            } catch (...) {
                Unload(name);
                throw;
            }
        }
        if (Loaded(name) != &form) throw failure::Unloaded();
    }

    static void StartFocus(Form& form) {
        form.Dispatch([&form] {
            form.Focus.Start();
            form.Activated();
        });
    }

    template <typename Wanted>
    void BuryWhere(Wanted wanted) {
        for (std::size_t i = 0; i < unloaded_.size();) {
            if (unloaded_[i]->holds_ > 0 || !wanted(*unloaded_[i])) {
                ++i;
                continue;
            }
            const std::unique_ptr<Form> form = std::move(unloaded_[i]);
            unloaded_.erase(unloaded_.begin() + static_cast<std::ptrdiff_t>(i));
            if (Host* host = CurrentHost()) host->FormGone(*form);
        }
    }

    std::vector<std::unique_ptr<Form>> loaded_;
    std::vector<std::unique_ptr<Form>> unloaded_;
    std::vector<Form*> modal_;
};

namespace {
FormRegistry& Registry() {
    static FormRegistry registry;
    return registry;
}
}  // namespace

void RegisterForm(std::string_view name, FormFactory factory) {
    for (const auto& each : Registry().Factories) {
        if (SameName(each.Name, name)) return;
    }
    Registry().Factories.push_back({std::string(name), factory});
}

Form& LoadForm(std::string_view name) { return Registry().Load(name); }
Form* LoadedForm(std::string_view name) { return Registry().Loaded(name); }
void ShowForm(std::string_view name, Modal modal) { Registry().Show(Registry().Load(name), modal); }

void HideForm(std::string_view name) {
    if (Form* form = Registry().Loaded(name)) Registry().Hide(*form);
}

void UnloadForm(std::string_view name) { Registry().Unload(name); }
void DiscardForm(std::string_view name) { Registry().Discard(name); }

Control& ControlOf(std::string_view form, std::string_view control, int index) {
    Control* const found = LoadForm(form).Find(control, index);
    if (found == nullptr) throw failure::NoSuchControl(control);
    return *found;
}

Form* TopModalForm() { return Registry().TopModal(); }

bool TakesInput(const Form& form) {
    const Form* const modal = TopModalForm();
    return form.Visible() && form.Enabled() && !ProcessHasEnded() && (modal == nullptr || modal == &form);
}

void SetAfterAct(Handler afterAct) { Registry().AfterAct = std::move(afterAct); }

bool UserActRuns() { return !events::Idle(); }

void RunAfterAct() {
    if (Registry().AfterAct) Registry().AfterAct();
}

void BuryForms() { Registry().Bury(); }

void EndProcess() {
    Registry().Ended = true;
    if (Host* host = CurrentHost()) host->ProcessEnded();
}

bool ProcessHasEnded() { return Registry().Ended; }
void ResetForms() { Registry().Reset(); }

void ForgetForms() {
    ResetForms();
    Registry().Factories.clear();
    Registry().AfterAct = {};
}

}  // namespace quillmetra
