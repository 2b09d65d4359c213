// In the place of PdfPaper.cpp where Qt is missing.
#include "paper/PdfPaper.h"
#include "platform/RuntimeError.h"

namespace quillmetra {

std::unique_ptr<Paper> OpenPdf(const PrintJob&) { throw failure::NoPdf(); }

}  // namespace quillmetra
