// See PrintTargets.h.
#include "forms/PrintTargets.h"

#include <algorithm>

#include "core/Suite.h"
#include "forms/FileGuard.h"
#include "platform/Dialogs.h"
#include "platform/Folders.h"
#include "platform/Printer.h"

namespace quillmetra {

namespace {

constexpr const char* PdfTitle = "Save as PDF";

// "3", "3 to 5", "3 to the end".
std::string RangeInWords(int from, int to) {
    const std::string first = std::to_string(std::max(from, 1));
    if (to <= 0) return first + " to the end";
    return from == to ? first : first + " to " + std::to_string(to);
}

void TakePages(int from, int to, int copies) {
    Suite.PrintFromPage = from;
    Suite.PrintToPage = to;
    Suite.PrintCopies = std::max(copies, 1);
}

}  // namespace

std::optional<PrintJob> AskPages(const std::string& title) {
    const auto choice = AskPrinter();
    if (!choice) return {};
    if (choice->ToPage > 0 && choice->FromPage > choice->ToPage) {
        Tell("The range of pages ends before it begins: " + RangeInWords(choice->FromPage, choice->ToPage),
             title, Icon::Exclamation);
        return {};
    }
    TakePages(choice->FromPage, choice->ToPage, choice->Copies);
    return PrintJob{.FromPage = choice->FromPage, .ToPage = choice->ToPage};
}

std::optional<PrintJob> AskPdf(const std::string& name) {
    const auto path = AskFile({.Title = PdfTitle,
                               .Filter = "PDF files(*.pdf)|*.pdf",
                               .Folder = ProposedFile(Suite.DefaultPaths[path::Database], name + ".pdf"),
                               .ForSaving = true});
    if (!path || path->empty() || !MayWrite(*path, "a printout", PdfTitle)) return {};
    TakePages(0, 0, 1);
    return PrintJob{.To = PrintJob::Target::Pdf, .Path = *path};
}

bool HeldPages(const PrintJob& job, const std::string& title) {
    if (Printer.PagesPrinted() > 0 || Printer.PagesEnded() == 0) return true;
    Tell("There is no page " + RangeInWords(job.FromPage, job.ToPage), title, Icon::Exclamation);
    return false;
}

std::string PrintedPages(const PrintJob& job) {
    const int pages = Printer.PagesPrinted();
    const std::string count = std::to_string(pages) + (pages == 1 ? " page" : " pages");
    return job.Path.empty() ? count : count + ": " + job.Path;
}

}  // namespace quillmetra
