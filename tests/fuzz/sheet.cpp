// Spreadsheets: separated values of any coding, and workbooks.
#include "platform/SheetReader.h"
#include "tests/fuzz/FuzzedSuite.h"

namespace {

struct Numbers : quillmetra::SheetTaker {
    bool TakeSheet(const std::string&, bool) override { return true; }
    bool TakeRow(const quillmetra::SheetRow& row) override {
        for (const quillmetra::SheetCell& cell : row.Cells) {
            if (cell.Number && !std::isfinite(*cell.Number)) std::abort();
        }
        return true;
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace quillmetra;
    static const FuzzedSuite suite;
    suite.Write("list.xlsx", bytes, size);
    try {
        Numbers numbers;
        ReadSheets(SuitePath(suite.Folder / "list.xlsx"), numbers);
    } catch (const RuntimeError&) {
        // Refused in words.
    }
    return 0;
}
