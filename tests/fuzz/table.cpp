// A data table: as the editor reads it, and its rows as the calculations do.
#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "fluids/GasData.h"
#include "fluids/LiquidData.h"
#include "tables/PipeSizes.h"
#include "tables/TableSheet.h"
#include "tests/fuzz/FuzzedSuite.h"

namespace quillmetra {
namespace {

void ReadLiquids() {
    LoadTable(table::Liquid);
    for (const std::string& row : ReadFluidRows(words::Liquid)) {
        Calc.FluidRow = row;
        Calc.CurrentProgram = 4;
        Calc.FlowTemperature = Calc.FlowPressure = 100;
        ParseLiquidRow();
        ProcessLiquidData();
        RequireNumbers();
    }
}

void ReadGases() {
    LoadTable(table::Gas);
    for (const std::string& row : ReadFluidRows(words::Gas)) {
        Calc.FluidRow = row;
        Calc.CurrentProgram = 5;
        Calc.FlowTemperature = Calc.FlowPressure = 100;
        ParseGasRow();
        ProcessGasData();
        RequireNumbers();
    }
}

void ReadPipes() {
    LoadTable(table::Pipe);
    for (const std::string& line : FindPipeSizes("4")) TakePipeRow(line);
}

}  // namespace
}  // namespace quillmetra

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace quillmetra;
    struct Reader {
        const char* File;
        void (*Read)();
    };
    constexpr Reader readers[] = {
        {"Liquid.txt", ReadLiquids}, {"Gas.txt", ReadGases}, {"W-PIPE.TXT", ReadPipes}};
    static FuzzedSuite suite;
    for (const Reader& reader : readers) {
        suite.Renew();
        suite.Write(reader.File, bytes, size);
        try {
            reader.Read();
        } catch (const RuntimeError&) {
            // Refused in words.
        }
    }
    return 0;
}
