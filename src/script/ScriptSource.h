// The lines of a script and of the scripts that it includes, and how a line falls into words.
#pragma once

#include <filesystem>
#include <istream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillmetra {

class ScriptSource {
public:
    // The lines that follow come from this file; "-" is standard input. The name of an included file counts
    // from the folder of the script that includes it. Throws ScriptFailure for a file that cannot be read or
    // that is the 21st within one another.
    void Open(const std::string& path);
    // As Open, from a stream that outlives the source.
    void Open(const std::string& name, std::istream& stream);

    // The next line without its end; false after the last one.
    bool Next(std::string& line);

    // Where the line read last stands, "liquid-line.qs:12"; the program's name before the first line.
    std::string Place() const { return line_ == 0 ? name_ : name_ + ":" + std::to_string(line_); }

private:
    struct File {
        std::string Name;
        std::unique_ptr<std::istream> Owned;
        std::istream* Stream = nullptr;
        int Line = 0;
    };

    std::vector<File> files_;
    std::string name_ = "quillmetra-script";
    int line_ = 0;
};

struct ScriptWord {
    std::string Text;
    bool Quoted = false;
};

// Takes the first word off a line, without the blanks around it.
std::string_view TakeWord(std::string_view& line);

// Splits the rest of a line by the usage of its command: names of arguments, those in brackets may be left
// out. A last argument TEXT, PATH, TAG or ROW takes the rest of the line when it is not in quotes. Throws
// ScriptFailure when the line does not fit.
std::vector<ScriptWord> SplitArguments(std::string_view usage, std::string_view rest);

}  // namespace quillmetra
