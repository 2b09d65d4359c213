// The one table of what a script can say. docs/scripts.md tells users about each.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "script/ScriptSource.h"

namespace quillmetra {

class ScriptPlayer;

using Arguments = std::vector<ScriptWord>;

struct ScriptCommand {
    const char* Name;
    const char* Usage;  // see SplitArguments
    void (*Run)(ScriptPlayer& player, const Arguments& arguments);
    const char* Effect;
};

std::span<const ScriptCommand> ScriptCommands();

// By name as written; null when there is none.
const ScriptCommand* FindCommand(std::string_view name);

// A whole number; throws ScriptFailure for another text.
int WholeNumber(const ScriptWord& word);

// The routines of the table, by what they are for.
namespace script {

// RunCommands.cpp: the run itself, and the answers to come.
void Folder(ScriptPlayer& player, const Arguments& arguments);
void WriteFile(ScriptPlayer& player, const Arguments& arguments);
void RemoveFile(ScriptPlayer& player, const Arguments& arguments);
void Start(ScriptPlayer& player, const Arguments& arguments);
void Include(ScriptPlayer& player, const Arguments& arguments);
void Strict(ScriptPlayer& player, const Arguments& arguments);
void SetDate(ScriptPlayer& player, const Arguments& arguments);
void TakeForm(ScriptPlayer& player, const Arguments& arguments);
void QueueAnswer(ScriptPlayer& player, const Arguments& arguments);
void QueueInput(ScriptPlayer& player, const Arguments& arguments);
void QueueFile(ScriptPlayer& player, const Arguments& arguments);
void Drop(ScriptPlayer& player, const Arguments& arguments);
void QueueSaveAs(ScriptPlayer& player, const Arguments& arguments);
void QueueCancel(ScriptPlayer& player, const Arguments& arguments);
void QueueColour(ScriptPlayer& player, const Arguments& arguments);
void QueueFont(ScriptPlayer& player, const Arguments& arguments);
void QueuePrinter(ScriptPlayer& player, const Arguments& arguments);
void PrintToPdf(ScriptPlayer& player, const Arguments& arguments);
void PrintToText(ScriptPlayer& player, const Arguments& arguments);
void Quit(ScriptPlayer& player, const Arguments& arguments);

// Recalculate.cpp, Export.cpp, Import.cpp, Sizes.cpp: databases and records, without a form.
void Recalculate(ScriptPlayer& player, const Arguments& arguments);
void Export(ScriptPlayer& player, const Arguments& arguments);
void Sizes(ScriptPlayer& player, const Arguments& arguments);
void ImportList(ScriptPlayer& player, const Arguments& arguments);
// A file by a name that counts from the suite's folder where it begins with "@".
std::string FileNamed(const ScriptPlayer& player, const std::string& name);
// A database likewise, or the folder that it is in, as the suite names files.
std::string DatabaseNamed(const ScriptPlayer& player, const std::string& path);
// A file that is written; throws where it must not be written over by what is named ("an export").
std::string FileToWrite(const ScriptPlayer& player, const std::string& path, const std::string& by);
// A text in quotes, and the lines of a report to a file; to the output without one.
std::string Item(const std::string& text);
void WriteReport(ScriptPlayer& player, const std::string& file, const std::vector<std::string>& lines);

// ActCommands.cpp: what a user does.
void RequireBrowser(const ScriptPlayer& player);  // throws where another form is in hand
void NewCalculation(ScriptPlayer& player, const Arguments& arguments);
void OpenCalculation(ScriptPlayer& player, const Arguments& arguments);
void Type(ScriptPlayer& player, const Arguments& arguments);
void Click(ScriptPlayer& player, const Arguments& arguments);
void DoubleClick(ScriptPlayer& player, const Arguments& arguments);
void Pick(ScriptPlayer& player, const Arguments& arguments);
void Unpick(ScriptPlayer& player, const Arguments& arguments);
void ClickRow(ScriptPlayer& player, const Arguments& arguments);
void ClickRows(ScriptPlayer& player, const Arguments& arguments);
void TypeCell(ScriptPlayer& player, const Arguments& arguments);
void PickCells(ScriptPlayer& player, const Arguments& arguments);
void Copied(ScriptPlayer& player, const Arguments& arguments);
void CloseForm(ScriptPlayer& player, const Arguments& arguments);
void Press(ScriptPlayer& player, const Arguments& arguments);
void Focus(ScriptPlayer& player, const Arguments& arguments);
void Leave(ScriptPlayer& player, const Arguments& arguments);

// CheckCommands.cpp: what a user sees.
void Show(ScriptPlayer& player, const Arguments& arguments);
void ShowStatus(ScriptPlayer& player, const Arguments& arguments);
void Dump(ScriptPlayer& player, const Arguments& arguments);
void ExpectText(ScriptPlayer& player, const Arguments& arguments);
void ExpectState(ScriptPlayer& player, const Arguments& arguments);
void ExpectForm(ScriptPlayer& player, const Arguments& arguments);
void ExpectFocus(ScriptPlayer& player, const Arguments& arguments);
void ExpectTitle(ScriptPlayer& player, const Arguments& arguments);
void ExpectWindow(ScriptPlayer& player, const Arguments& arguments);
void ExpectStatus(ScriptPlayer& player, const Arguments& arguments);
void ExpectTip(ScriptPlayer& player, const Arguments& arguments);
void ExpectColour(ScriptPlayer& player, const Arguments& arguments);
void ExpectCount(ScriptPlayer& player, const Arguments& arguments);
void ExpectRow(ScriptPlayer& player, const Arguments& arguments);
void ExpectCell(ScriptPlayer& player, const Arguments& arguments);
void ExpectMessage(ScriptPlayer& player, const Arguments& arguments);
void ExpectNoMessage(ScriptPlayer& player, const Arguments& arguments);
void ExpectBox(ScriptPlayer& player, const Arguments& arguments);

}  // namespace script
}  // namespace quillmetra
