// Packed records of version 5.
#include "records/Version5.h"

#include "tests/fuzz/FuzzedSuite.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace quillmetra;
    static FuzzedSuite suite;
    const Version5File file(std::string(bytes, bytes + size));
    for (int i = 0; i < file.Count(); ++i) {
        suite.Renew();
        file.Take(i);
        RequireNumbers();
    }
    return 0;
}
