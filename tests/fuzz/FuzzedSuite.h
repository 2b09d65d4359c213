// What a fuzzed reader needs around it: a host without a screen, a folder of its own, and the question
// whether every number that was read is one.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "core/CalcRecord.h"
#include "core/Suite.h"
#include "platform/TemporaryFolder.h"
#include "platform/TextFiles.h"
#include "tests/FakeHost.h"

namespace quillmetra {

class FuzzedSuite {
public:
    FuzzedSuite() { Suite.DefaultPaths.fill(SuitePath(Folder)); }

    void Write(const char* name, const std::uint8_t* bytes, std::size_t size) const {
        std::ofstream(Folder / name, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(size));
    }

    // Before each input.
    void Renew() {
        Calc = CalcRecord();
        host_.Boxes.clear();
    }

private:
    const TemporaryFolder own_;

public:
    const std::filesystem::path Folder = own_.Path();

private:
    FakeHost host_;
};

// Ends the program, which the fuzzer takes for a fault, when a number that a reader fills is none.
inline void RequireNumbers() {
    const auto all = [](const auto& row) {
        return std::all_of(row.begin(), row.end(), [](double value) { return std::isfinite(value); });
    };
    const bool numbers = std::all_of(Calc.CaseInput.begin(), Calc.CaseInput.end(), all) &&
                         std::all_of(Calc.CaseResult.begin(), Calc.CaseResult.end(), all) &&
                         all(Calc.HammerResult) && all(Calc.PipeData) && all(Calc.FittingCount) &&
                         all(Calc.UnitFactor) && all(Calc.FluidPercent) &&
                         all(Row<double, 6>{Calc.StdTemperature, Calc.StdPressure, Calc.BaroPressure,
                                            Calc.PipeFouling, Calc.Density, Calc.FluidViscosity});
    if (!numbers) std::abort();
}

}  // namespace quillmetra
