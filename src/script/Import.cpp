// The command that takes a list of calculations into a database, for an office that does so every night.
#include "forms/Import.h"

#include <ostream>

#include "core/Suite.h"
#include "platform/Folders.h"
#include "platform/TextFiles.h"
#include "records/RecordFiles.h"
#include "script/ScriptCommands.h"
#include "script/ScriptFailure.h"
#include "script/ScriptPlayer.h"

namespace quillmetra::script {

namespace {

std::vector<std::string> ReportOf(const Import& list) {
    std::vector<std::string> lines = {"Row,Tag,State,Column,What"};
    for (const ImportLine& each : list.Lines()) {
        lines.push_back((each.Row > 0 ? std::to_string(each.Row) : "") + "," + Item(each.Tag) + "," +
                        Word(each.State) + "," + Item(each.Column) + "," + Item(each.Text));
    }
    return lines;
}

}  // namespace

void ImportList(ScriptPlayer& player, const Arguments& arguments) {
    const std::string report = arguments.size() > 2 ? arguments[2].Text : "";
    const std::string what = arguments.size() > 3 ? arguments[3].Text : "";
    if (!what.empty() && what != "replace" && what != "preview")
        throw ScriptFailure{what + " is none of replace, preview"};
    RequireBrowser(player);

    Suite.DatabaseFile = DatabaseNamed(player, arguments[0].Text);
    const std::string file = FileNamed(player, arguments[1].Text);
    if (!report.empty() && IsSameFile(FileToWrite(player, report, "a report"), SuitePath(AbsolutePath(file))))
        throw ScriptFailure{"The list cannot be written over by its report"};
    Import list(file);
    list.Run([](int, int) { return true; });
    WriteReport(player, report, ReportOf(list));
    player.Out << list.Summary() << '\n';
    player.Differs =
        list.Count(ImportState::New) + list.Count(ImportState::Changed) + list.Count(ImportState::Refused) >
        0;
    if (what != "preview") list.Save(what == "replace");
}

}  // namespace quillmetra::script
