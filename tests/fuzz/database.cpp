// The records database, from its first bytes to the records in it.
#include "records/LoadRecord.h"
#include "records/RecordFiles.h"
#include "records/RecordView.h"
#include "tests/fuzz/FuzzedSuite.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace quillmetra;
    static FuzzedSuite suite;
    suite.Renew();
    suite.Write("TRDB.MDB", bytes, size);
    Suite.DatabaseFile = DatabaseFileOf(SuitePath(suite.Folder));
    try {
        RecordView view(Suite.DatabaseFile);
        for (int i = 0; i < 6 && view.HasRecord(); ++i, view.Next()) {
            TakeFluidType(view.Head().FluidType, view.Head().ProgramNumber);
            Calc.Tag = view.Head().Tag;
            GetTRCalc();
            RequireNumbers();
        }
    } catch (const RuntimeError&) {
        // Refused in words.
    }
    return 0;
}
