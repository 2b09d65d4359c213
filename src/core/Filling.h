// Words of the record that hold for a stretch of code, set by guards alone, so that they are right again
// also when an exception passes.
#pragma once

#include <string>
#include <utility>

#include "core/CalcRecord.h"
#include "core/Words.h"

namespace quillmetra {

// A word for the life of the guard, and then what it was, or the word that is to stand afterwards. Guards
// nest.
class Setting {
public:
    Setting(std::string& word, const char* during) : word_(word), after_(std::exchange(word, during)) {}
    Setting(std::string& word, const char* during, const char* after) : word_(word), after_(after) {
        word = during;
    }
    ~Setting() { word_ = after_; }
    Setting(const Setting&) = delete;
    Setting& operator=(const Setting&) = delete;

private:
    std::string& word_;
    std::string after_;
};

// Keeps change events quiet while code fills controls.
class Filling : public Setting {
public:
    Filling() : Setting(Calc.FormLoading, words::Yes) {}
};

}  // namespace quillmetra
