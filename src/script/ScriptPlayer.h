// Plays a script against the forms of the suite: reads its lines, runs their commands, and ends with the
// place and the words of the first failure.
#pragma once

#include <deque>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

#include "platform/TemporaryFolder.h"
#include "script/ScriptHost.h"
#include "script/ScriptSource.h"

namespace quillmetra {

class Control;
class Form;

class ScriptPlayer {
public:
    // What the suite says goes to out, the failure that ends the script to errors.
    ScriptPlayer(std::ostream& out, std::ostream& errors);

    // Plays a script from start to end; "-" is standard input. Returns the exit code: 0, or 1 after a
    // failure. Forms, record and host in force are those of the script while it plays; afterwards no form is
    // loaded.
    int Play(const std::string& path);
    int Play(const std::string& name, std::istream& script);

    // --- for the commands, all of which fail by throwing ScriptFailure
    std::ostream& Out;
    ScriptHost Host;
    ScriptSource Source;
    bool Differs = false;  // a recalculation has found something

    Form& FormInHand() const;
    // A control of the form in hand: "txtFlow", or "txtFlow(0)" for an element of an array.
    Control& Named(const std::string& name) const;

    // The program's own folder from the next start on.
    void UseFolder(const std::string& path);
    const std::string& Folder() const { return folder_; }
    // A file of the temporary folder that the suite has without UseFolder. A folder of the user's own is not
    // the script's to change.
    std::filesystem::path FileOfOwnFolder(const std::string& name) const;
    // Starts the suite afresh on its folder; the browser is then the form in hand.
    void Start();
    // Runs before the next line of the script, after the steps that were put here earlier: an act of the
    // user that waits while a form is shown modally goes on in there.
    void Then(std::function<void()> step) { steps_.push_back(std::move(step)); }
    // Ends the script well; in strict mode only when no answer is queued and no box unread.
    [[noreturn]] void Quit();

private:
    int PlayAll(const std::function<void()>& open);
    void PlayWhileShown(const Form& form);
    bool PlayNext();
    void PlayLine(std::string_view line);

    std::ostream& errors_;
    std::string folder_;
    std::optional<TemporaryFolder> ownFolder_;
    std::deque<std::function<void()>> steps_;
    std::string command_;  // of the line in hand, for the words of a failure
};

}  // namespace quillmetra
