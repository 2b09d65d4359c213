// In the place of Workbook.cpp where this build has no library that unpacks workbooks.
#include "platform/SheetFormats.h"

namespace quillmetra {

bool ReadsWorkbooks() { return false; }

void sheets::ReadWorkbook(const std::string&, SheetTaker&) {
    throw Refused("This build of the program reads no workbooks (.xlsx): save the sheet as CSV");
}

}  // namespace quillmetra
