// See PictureFile.h.
#include "forms/PictureFile.h"

#include "core/CalcRecord.h"
#include "core/Suite.h"
#include "forms/FileGuard.h"
#include "platform/Dialogs.h"
#include "platform/Folders.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace {

std::string UpperCase(std::string text) {
    for (char& c : text) c = static_cast<char>(c - (c >= 'a' && c <= 'z' ? 'a' - 'A' : 0));
    return text;
}

}  // namespace

void SavePicture(Form& form, const std::string& ending, const std::function<std::string()>& bytes) {
    const std::string kind = UpperCase(ending);
    const std::string title = "Save as " + kind;
    const std::string proposed = Calc.Tag + " plot." + ending;
    const auto file = AskFile({.Title = title,
                               .Filter = kind + " pictures(*." + ending + ")|*." + ending,
                               .Folder = ProposedFile(Suite.DefaultPaths[path::Database], proposed),
                               .ForSaving = true});
    if (!file || file->empty() || !MayWrite(*file, "a picture", title)) return;
    try {
        ReplaceFile(*file, bytes());
        form.SetStatus("The plot is saved: " + *file);
    } catch (const RuntimeError& error) {
        Tell(error.Description, title, Icon::Stop);
    }
}

}  // namespace quillmetra
