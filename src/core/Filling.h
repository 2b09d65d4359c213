// Keeps change events quiet while code fills controls: FormLoading is "Yes" for the life of the guard and
// then what it was, also when an exception passes. Guards nest.
#pragma once

#include <string>
#include <utility>

#include "core/CalcRecord.h"
#include "core/Words.h"

namespace quillmetra {

class Filling {
public:
    Filling() : before_(std::exchange(Calc.FormLoading, words::Yes)) {}
    ~Filling() { Calc.FormLoading = before_; }
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;

private:
    std::string before_;
};

}  // namespace quillmetra
