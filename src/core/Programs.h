// The five calculation programs, one row each: whatever depends on the program number alone stands here.
#pragma once

#include <array>

namespace quillmetra {

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

// The row of a program number; null for a number that is none.
const Program* FindProgram(int number);

}  // namespace quillmetra
