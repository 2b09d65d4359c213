// The command that calculates the records of a database anew, for an office that does so every night.
#include <ostream>
#include <vector>

#include "core/Suite.h"
#include "forms/Recalculation.h"
#include "platform/NumberText.h"
#include "platform/TextFiles.h"
#include "records/RecordColumns.h"
#include "script/ScriptCommands.h"
#include "script/ScriptFailure.h"
#include "script/ScriptPlayer.h"

namespace quillmetra::script {

std::string Item(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : CellOfText(text)) quoted.append(c == '"' ? 2 : 1, c == '\n' ? ' ' : c);
    return quoted + "\"";
}

namespace {

// "tag,result,before,now,change in percent", as the export writes its lines.
std::vector<std::string> ReportOf(const Recalculation& run) {
    std::vector<std::string> lines = {"Tag,Result,Before,Now,Change %"};
    for (const ResultChange& each : run.Changes()) {
        lines.push_back(Item(each.Tag) + "," + Item(each.Result) + "," + each.Before + "," + each.After +
                        "," + PercentText(each));
    }
    for (const auto* told : {&run.Problems(), &run.Remarks()}) {
        for (const RecordProblem& each : *told)
            lines.push_back(Item(each.Tag) + "," + Item(each.Text) + ",,,");
    }
    return lines;
}

}  // namespace

void WriteReport(ScriptPlayer& player, const std::string& file, const std::vector<std::string>& lines) {
    if (file.empty()) {
        for (const std::string& line : lines) player.Out << line << '\n';
        return;
    }
    TextWriter writer(FileToWrite(player, file, "a report"));
    for (const std::string& line : lines) writer.Line(line);
    writer.Commit();
}

void Recalculate(ScriptPlayer& player, const Arguments& arguments) {
    const std::string report = arguments.size() > 1 ? arguments[1].Text : "";
    const std::string what = arguments.size() > 2 ? arguments[2].Text : "";
    const bool fluids = what == "fluids" || what == "fluids+save";
    const bool saves = what == "save" || what == "fluids+save";
    if (!what.empty() && !fluids && !saves)
        throw ScriptFailure{what + " is none of save, fluids, fluids+save"};
    RequireBrowser(player);

    Suite.DatabaseFile = DatabaseNamed(player, arguments[0].Text);
    Recalculation run(fluids);
    RecordView view(Suite.DatabaseFile);
    for (const std::string& tag : view.Tags()) {
        if (view.Find(tag)) run.Take(view.Head());
    }
    WriteReport(player, report, ReportOf(run));
    player.Out << run.Summary() << '\n';
    player.Differs = run.Changed() > 0 || !run.Problems().empty();
    if (saves) run.Save();
}

}  // namespace quillmetra::script
