// What the two print forms ask before a print and say after it.
#pragma once

#include <optional>
#include <string>

#include "platform/Host.h"

namespace quillmetra {

// Pages and copies by the printer dialog, which go to Suite too; nothing when the user cancels, and, after a
// message, for a range that ends before it begins.
std::optional<PrintJob> AskPages(const std::string& title);
// One copy of all pages to a PDF that the user names; a name is proposed. Nothing when he cancels.
std::optional<PrintJob> AskPdf(const std::string& name);

// False, after a message, when the range of the job that was printed holds none of its pages.
bool HeldPages(const PrintJob& job, const std::string& title);
// "2 pages", and the file that they went to.
std::string PrintedPages(const PrintJob& job);

}  // namespace quillmetra
