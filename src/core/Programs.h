// The five calculation programs, one row each: whatever depends on the program number alone stands here.
#pragma once

#include <array>

namespace quillmetra {

// What CurrentProgram holds; 0 before a choice.
namespace program {
inline constexpr int LiquidLine = 1;
inline constexpr int GasLine = 2;
inline constexpr int WaterHammer = 3;
inline constexpr int LiquidData = 4;
inline constexpr int GasData = 5;

// A line with its loss of pressure.
constexpr bool IsLine(int number) { return number == LiquidLine || number == GasLine; }
// Three cases whose results are the properties of a fluid.
constexpr bool IsFluidData(int number) { return number == LiquidData || number == GasData; }
constexpr bool IsOfGas(int number) { return number == GasLine || number == GasData; }
// The gravity of the liquid may be given as a density.
constexpr bool TakesDensity(int number) { return number == LiquidLine || number == WaterHammer; }
}  // namespace program

// The class of a fluid, as its table has it and FluidClass keeps it in a text: it chooses the correlations.
namespace fluidclass {
inline constexpr int Organic = 1;
inline constexpr int Inorganic = 2;
inline constexpr int Water = 3;
}  // namespace fluidclass

struct Program {
    int Number;
    const char* Title;   // the default ProgramTitle
    const char* Method;  // the reference line of form and report
    const char* FluidType;
    const char* Form;
    const char* OptionsWord;  // CalcOptionCaller
    const char* PipeWord;     // the caller's word for the pipe size lookup, empty where there is none
    int HelpTopic;
};

extern const std::array<Program, 5> Programs;

// The row of a program number; null for any other number.
const Program* FindProgram(int number);

}  // namespace quillmetra
