// What the tests of the control model share: a form to hang controls on, a log of what happened in which
// order, and a host that plays a routine while a form is shown modally.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/Forms.h"
#include "platform/UserActs.h"
#include "tests/FakeHost.h"

namespace quillmetra {

using Log = std::vector<std::string>;
inline Log TheLog;
inline void Note(const std::string& what) { TheLog.push_back(what); }

class PlainForm : public Form {
public:
    using Form::Form;
    void CloseBox() override { UnloadForm(Name()); }
};

class ModalHost : public FakeHost {
public:
    std::function<void(Form&)> WhileShown;  // what the user does in a modal form

    void RunModal(Form& form) override {
        if (WhileShown) WhileShown(form);
    }
    void FormGone(Form& form) override { Note("gone " + form.Name()); }
};

// A fresh registry, log and host for each test.
class ModelTest : public ::testing::Test {
protected:
    ModelTest() { TheLog.clear(); }
    ~ModelTest() override { ForgetForms(); }

    template <typename T>
    static T& Shown(const char* name) {
        RegisterForm(name, [] { return std::unique_ptr<Form>(std::make_unique<T>()); });
        ShowForm(name);
        return static_cast<T&>(*LoadedForm(name));
    }

    ModalHost User;
};

}  // namespace quillmetra
