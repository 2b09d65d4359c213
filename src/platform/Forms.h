// The forms of the suite by name. A form is loaded (its object exists and its Load has run), shown, hidden
// or unloaded. Naming a form that is not loaded loads it hidden.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Form.h"

namespace quillmetra {

enum class Modal { No, Yes };

using FormFactory = std::unique_ptr<Form> (*)();

// forms/ registers its factories once, in one table.
void RegisterForm(std::string_view name, FormFactory factory);

Form& LoadForm(std::string_view name);    // loads it hidden when it is not loaded
Form* LoadedForm(std::string_view name);  // null when it is not loaded
inline bool IsFormLoaded(std::string_view name) { return LoadedForm(name) != nullptr; }

// Shows a form; a modal one returns when it was hidden or unloaded.
void ShowForm(std::string_view name, Modal modal = Modal::No);
void HideForm(std::string_view name);
// Takes effect at once for names; the object lives until the user's act in hand has ended. Unloading what is
// not loaded does nothing.
void UnloadForm(std::string_view name);
// As UnloadForm, and the object is gone at once where nothing of it is under way: for a run that loads a form
// many times within one act. The caller and those that it has called keep no reference to it.
void DiscardForm(std::string_view name);

// A control of a form by their names; loads the form when need be, throws when there is no such control.
Control& ControlOf(std::string_view form, std::string_view control, int index = Control::NoIndex);

// The form that is shown modally over all others, null for none.
Form* TopModalForm();
// A form takes input when it is visible and enabled and no other form is shown modally over it.
bool TakesInput(const Form& form);

// Whether an act of the user is on its way, at any level.
bool UserActRuns();

// What runs when the outermost act of a user has ended.
void SetAfterAct(Handler afterAct);

// Ends the suite: no form takes input any more, and hosts leave their loops.
void EndProcess();
bool ProcessHasEnded();

// Forgets all forms, as if the process had just started. For tests and for a host that ends.
void ResetForms();
// Forgets what was registered too, and the hook: a fixture leaves nothing behind.
void ForgetForms();

}  // namespace quillmetra
