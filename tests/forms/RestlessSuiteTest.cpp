// A user who wanders at random through the whole suite: browser, database, calculations, printout, table
// editor, panels, and the end of the program and its next start. Nothing that he does may leave a number that
// is none, a form that is dead, results beside other inputs than gave them, or a damaged database. In ten
// more walks he stays with one calculation. QUILLMETRA_ACTS and QUILLMETRA_SEEDS make it long.
#include "tests/forms/RestlessSuite.h"

namespace quillmetra {
namespace {

// Without a screen.
class RestlessFake : public RestlessHost<FakeHost> {
public:
    using RestlessHost::RestlessHost;

    Answer ShowMessageBox(const MessageBox& box) override {
        User.Boxes.push_back(box);
        if (box.Choice == Buttons::Ok) return Answer::Ok;
        if (box.Choice == Buttons::YesNoCancel && User.Below(3) == 0) return Answer::Cancel;
        return User.Below(2) == 0 ? Answer::Yes : Answer::No;
    }
    bool Yield() override { return User.Below(50) == 0; }
    void RunModal(Form& form) override { User.Stay(form); }
};

class RestlessSuite : public RestlessWalk {
protected:
    RestlessSuite() { Begin(); }

    void Act() override {
        RestlessWalk::Act();
        Host.Pages.clear();
        Host.Jobs.clear();
    }

    RestlessFake Host{User};
};

TEST_P(RestlessSuite, StaysWhole) { Walk(program_ == 0 ? 1500 : 4000); }

using ::testing::Combine;
using ::testing::Range;
INSTANTIATE_TEST_SUITE_P(Seeds, RestlessSuite,
                         Combine(Range(0, 1), Range(1, 1 + Setting("QUILLMETRA_SEEDS", 4))));
INSTANTIATE_TEST_SUITE_P(OneProgram, RestlessSuite, Combine(Range(1, 6), Range(1, 3)));

}  // namespace
}  // namespace quillmetra
