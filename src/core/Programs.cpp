// See Programs.h and Suite.h.
#include "core/Programs.h"

#include "core/Suite.h"
#include "core/Words.h"

namespace quillmetra {

SuiteState Suite;

namespace {
constexpr const char* LineLossMethod = "Colebrook equation, Darcy formula and Crane Technical Paper No. 410";
constexpr const char* FluidMethod = "NGPA and various";
}  // namespace

const std::array<Program, 5> Programs = {{
    {program::LiquidLine, "Line Loss  - Liquid flow", LineLossMethod, words::Liquid, "frmLiqLineLoss",
     "LiqLoss", words::PipeLiquidLoss, 401},
    {program::GasLine, "Line Loss  - Gas Flow", LineLossMethod, words::Gas, "frmGasLineLoss", "GasLoss",
     words::PipeGasLoss, 402},
    {program::WaterHammer, "Water Hammer  - Liquid flow", "Joukowski Formula", words::Liquid,
     "frmWaterHammer", "WaterHammer", words::PipeWaterHammer, 403},
    {program::LiquidData, "Liquid properties at pressure and temperature", FluidMethod, words::Liquid,
     "frmLiqData", "LiqData", "", 404},
    {program::GasData, "Gas properties at pressure and temperature", FluidMethod, words::Gas, "frmGasData",
     "GasData", "", 405},
}};

const Program* FindProgram(int number) {
    for (const Program& program : Programs) {
        if (program.Number == number) return &program;
    }
    return nullptr;
}

}  // namespace quillmetra
