// A workbook (XLSX) of sheets, written row by row beside its place and put there in one step: a failure is a
// RuntimeError with words for the user, and a former file is as it was.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillmetra {

// Whether this build writes workbooks.
bool WritesWorkbooks();

struct WorkbookDate {
    std::string Iso;  // "2026-11-24"
};
using WorkbookCell = std::variant<std::monostate, double, std::string, WorkbookDate>;

class WorkbookWriter {
public:
    explicit WorkbookWriter(std::string_view suitePath);
    ~WorkbookWriter();
    WorkbookWriter(const WorkbookWriter&) = delete;
    WorkbookWriter& operator=(const WorkbookWriter&) = delete;

    // The rows that follow go to this sheet. Its first ones are heads: they stay in sight, as the first
    // column does, and the last of them has the filters.
    void Sheet(const std::string& name, int heads);
    void Row(const std::vector<WorkbookCell>& cells);
    // Without it nothing is written.
    void Commit();

private:
    struct Book;
    std::unique_ptr<Book> book_;
};

}  // namespace quillmetra
