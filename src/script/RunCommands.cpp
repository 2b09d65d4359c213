// The commands about the run itself and about the answers to questions that are still to come.
#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "platform/Clock.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/TextCase.h"
#include "platform/UserActs.h"
#include "script/ScriptCommands.h"
#include "script/ScriptFailure.h"
#include "script/ScriptPlayer.h"

namespace quillmetra::script {

namespace {
int NumberAtLeast(const ScriptWord& word, int least) {
    const int number = WholeNumber(word);
    if (number < least) throw ScriptFailure{word.Text + " is less than " + std::to_string(least)};
    return number;
}
}  // namespace

std::string FileNamed(const ScriptPlayer& player, const std::string& name) {
    return name.starts_with('@') ? player.Folder() + "\\" + name.substr(1) : name;
}

void Folder(ScriptPlayer& player, const Arguments& arguments) { player.UseFolder(arguments[0].Text); }

void WriteFile(ScriptPlayer& player, const Arguments& arguments) {
    std::ofstream file(player.FileOfOwnFolder(arguments[0].Text), std::ios::binary);
    file << arguments[1].Text;
    if (!file.flush()) throw ScriptFailure{arguments[0].Text + " cannot be written"};
}

void RemoveFile(ScriptPlayer& player, const Arguments& arguments) {
    std::error_code failed;
    if (!std::filesystem::remove(player.FileOfOwnFolder(arguments[0].Text), failed)) {
        throw ScriptFailure{"there is no file " + arguments[0].Text};
    }
}

void Start(ScriptPlayer& player, const Arguments&) { player.Start(); }

void Include(ScriptPlayer& player, const Arguments& arguments) { player.Source.Open(arguments[0].Text); }

void Strict(ScriptPlayer& player, const Arguments& arguments) {
    const std::string& word = arguments[0].Text;
    if (word != "on" && word != "off") throw ScriptFailure{word + " is neither on nor off"};
    player.Host.Strict = word == "on";
}

void SetDate(ScriptPlayer&, const Arguments& arguments) {
    const std::string& day = arguments[0].Text;
    if (day.empty() || !SetToday(day)) throw ScriptFailure{day + " is no day, such as 2026-11-24"};
}

void TakeForm(ScriptPlayer& player, const Arguments& arguments) {
    Form* const form = LoadedForm(arguments[0].Text);
    if (form == nullptr) throw ScriptFailure{arguments[0].Text + " is not loaded"};
    player.Host.TakeInHand(*form);
}

void QueueAnswer(ScriptPlayer& player, const Arguments& arguments) {
    constexpr std::array answers = {Answer::Ok, Answer::Yes, Answer::No, Answer::Cancel};
    const auto found = std::find_if(answers.begin(), answers.end(),
                                    [&](Answer answer) { return SameName(Word(answer), arguments[0].Text); });
    if (found == answers.end()) throw ScriptFailure{arguments[0].Text + " is none of OK, Yes, No, Cancel"};
    player.Host.Answers.push_back(*found);
}

void QueueInput(ScriptPlayer& player, const Arguments& arguments) {
    player.Host.Inputs.push_back(arguments[0].Text);
}

void QueueFile(ScriptPlayer& player, const Arguments& arguments) {
    player.Host.Dialogs.emplace_back(ScriptHost::FileAnswer{FileNamed(player, arguments[0].Text), false});
}

void Drop(ScriptPlayer& player, const Arguments& arguments) {
    if (!DropFile(player.FormInHand(), FileNamed(player, arguments[0].Text)))
        throw ScriptFailure{player.FormInHand().Name() + " takes no file"};
}

void QueueSaveAs(ScriptPlayer& player, const Arguments& arguments) {
    player.Host.Dialogs.emplace_back(ScriptHost::FileAnswer{FileNamed(player, arguments[0].Text), true});
}

void QueueCancel(ScriptPlayer& player, const Arguments&) {
    player.Host.Dialogs.emplace_back(ScriptHost::Cancelled{});
}

void QueueColour(ScriptPlayer& player, const Arguments& arguments) {
    const int colour = NumberAtLeast(arguments[0], 0);
    if (colour > 0xFFFFFF) throw ScriptFailure{"a colour is at most 16777215"};
    player.Host.Dialogs.emplace_back(ScriptHost::ColourAnswer{static_cast<unsigned>(colour)});
}

void QueueFont(ScriptPlayer& player, const Arguments& arguments) {
    const double size = Val(arguments[1].Text);
    if (!ValReadsAll(arguments[1].Text) || size <= 0) {
        throw ScriptFailure{arguments[1].Text + " is no size of a font"};
    }
    player.Host.Dialogs.emplace_back(ScriptHost::FontAnswer{arguments[0].Text, size});
}

void QueuePrinter(ScriptPlayer& player, const Arguments& arguments) {
    player.Host.Dialogs.emplace_back(PrinterChoice{.Copies = NumberAtLeast(arguments[0], 1),
                                                   .FromPage = NumberAtLeast(arguments[1], 1),
                                                   .ToPage = NumberAtLeast(arguments[2], 1)});
}

void PrintToPdf(ScriptPlayer& player, const Arguments& arguments) {
    player.Host.NextPrint = {arguments[0].Text, false};
}

void PrintToText(ScriptPlayer& player, const Arguments& arguments) {
    player.Host.NextPrint = {arguments[0].Text, true};
}

void Quit(ScriptPlayer& player, const Arguments&) { player.Quit(); }

}  // namespace quillmetra::script
