// In the place of WorkbookWriter.cpp where this build has no library that writes workbooks.
#include "platform/RuntimeError.h"
#include "platform/WorkbookWriter.h"

namespace quillmetra {

struct WorkbookWriter::Book {};

bool WritesWorkbooks() { return false; }

WorkbookWriter::WorkbookWriter(std::string_view) {
    throw RuntimeError(
        321,
        "This build of the program writes no workbooks (.xlsx): give the file a name that ends "
        "with .csv");
}
WorkbookWriter::~WorkbookWriter() = default;

void WorkbookWriter::Sheet(const std::string&, int) {}
void WorkbookWriter::Row(const std::vector<WorkbookCell>&) {}
void WorkbookWriter::Commit() {}

}  // namespace quillmetra
