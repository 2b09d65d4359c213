// Message boxes and the other questions to the user, as the suite asks them. The host in force answers.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quillmetra {

enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Icon { None, Stop, Question, Exclamation, Information };
enum class Answer { Ok, Yes, No, Cancel };

struct MessageBox {
    std::string Text;
    std::string Title;
    Buttons Choice = Buttons::Ok;
    Icon Sign = Icon::None;
    // The button that Enter presses and an unattended run takes; the first of the box unless told.
    std::optional<Answer> Default = {};
};

// The dialogs of the host, and what comes of them.
struct FileQuestion {
    std::string Title;
    std::string Filter;      // "Access DB Files(TRDB.MDB)|TRDB.MDB"
    std::string Folder;      // where it begins; for a save it may end in the name to propose
    bool ForSaving = false;  // a name without the ending of the filter gets it
};

struct FontChoice {
    std::string Name;
    double Size = 10;  // points
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
};

struct PrinterChoice {
    int Copies = 1;
    int FromPage = 0;  // 0: from the first page
    int ToPage = 0;    // 0: to the last
};

// Whether a box has a button for the answer.
bool Offers(const MessageBox& box, Answer answer);

// The default answer of a box when it names none: OK or Yes.
Answer DefaultAnswer(const MessageBox& box);

// Shows a message box and waits. A box with Yes and No alone cannot be closed in another way.
Answer ShowMessage(const MessageBox& box);

// Shows a text and an OK button.
void Tell(const std::string& text, const std::string& title, Icon sign = Icon::None);

// Asks Yes or No; true for Yes.
bool AskYesNo(const std::string& text, const std::string& title, Icon sign = Icon::None,
              Answer preset = Answer::Yes);

// Asks for one line of text; empty when cancelled.
std::string AskText(const std::string& prompt, const std::string& title);

// The dialogs for a file, a font and a printer; nothing when the user cancels.
std::optional<std::string> AskFile(const FileQuestion& question);
std::optional<FontChoice> AskFont(const FontChoice& preset);
std::optional<PrinterChoice> AskPrinter(const PrinterChoice& preset = {});
// Size and margins of the sheets; the host keeps them.
void AskPageSetup();

// Shows a topic of the help by its number.
void ShowHelpTopic(int topic);

// Puts a text where other programs paste from.
void CopyText(const std::string& text);
// What was copied last, here or by another program.
std::string CopiedText();

// Lets the host breathe within a long act; true when the user pressed Escape, or the cancel button of the
// form, to end it.
bool UserWantsToStop();

// Asks for a colour, 0x00BBGGRR; nothing when cancelled.
std::optional<unsigned> AskColour(unsigned preset, const std::string& title);

// Asks for a file to open by the filter of Host.h, from a folder; nothing when cancelled.
std::optional<std::string> AskFile(const std::string& title, const std::string& filter,
                                   const std::string& folder);

// Lets the user act within a long search, as by its Stop button. What must not run a second time meanwhile
// is to be switched off before.
void ServeUser();

// How many boxes were shown since the start: a menu head that put one up keeps its entries shut.
int BoxesShown();

// The words of a button, icon or answer as the script host prints and reads them.
const char* Word(Buttons buttons);
const char* Word(Icon icon);
const char* Word(Answer answer);

// Keeps what the user would only be told (a box with OK alone) from the screen for its life: a run over many
// records tells at its end. Questions are asked all the same, but for a run without anybody to ask: there
// they get their default, and their text is kept with the rest. It nests.
enum class Questions { Asked, Answered };
class HeldMessages {
public:
    explicit HeldMessages(Questions questions = Questions::Asked);
    ~HeldMessages();
    HeldMessages(const HeldMessages&) = delete;
    HeldMessages& operator=(const HeldMessages&) = delete;

    const std::vector<std::string>& Texts() const { return texts_; }

private:
    friend Answer ShowMessage(const MessageBox& box);
    HeldMessages* outer_;
    bool answers_;
    std::vector<std::string> texts_;
};

// Shows the busy pointer for its life; it nests, and every way out restores the pointer.
class BusyPointer {
public:
    BusyPointer();
    ~BusyPointer();
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

}  // namespace quillmetra
