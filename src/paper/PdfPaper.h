// Pages as a PDF file with the letters embedded, so that it reads the same on every machine.
#pragma once

#include <memory>
#include <string>

#include "platform/Printer.h"

namespace quillmetra {

// The path is in the suite's words. The file is written beside its place and put there by Finish: a job that
// fails leaves a former file as it was. Throws a RuntimeError where no file can be written, and where the
// program was built without Qt. Needs no display.
std::unique_ptr<Paper> OpenPdf(const PrintJob& job);

}  // namespace quillmetra
