// The command that exports a database, and what the commands that work without a form name their files by.
#include <filesystem>
#include <ostream>

#include "forms/FileGuard.h"
#include "platform/Folders.h"
#include "platform/TextFiles.h"
#include "records/RecordExport.h"
#include "records/RecordFiles.h"
#include "script/ScriptCommands.h"
#include "script/ScriptFailure.h"
#include "script/ScriptPlayer.h"

namespace quillmetra::script {

std::string DatabaseNamed(const ScriptPlayer& player, const std::string& path) {
    std::string name = SuitePath(AbsolutePath(FileNamed(player, path)));
    return std::filesystem::is_directory(MachinePath(name)) ? DatabaseFileOf(name) : name;
}

std::string FileToWrite(const ScriptPlayer& player, const std::string& path, const std::string& by) {
    std::string file = SuitePath(AbsolutePath(FileNamed(player, path)));
    const std::string reason = WhyNotToWrite(file, by);
    if (!reason.empty()) throw ScriptFailure{reason};
    return file;
}

void Export(ScriptPlayer& player, const Arguments& arguments) {
    RequireBrowser(player);
    const std::string file = FileToWrite(player, arguments[1].Text, "an export");
    const int count = ExportRecords(DatabaseNamed(player, arguments[0].Text), file);
    player.Out << Counted(static_cast<std::size_t>(count), "record") << '\n';
}

}  // namespace quillmetra::script
