// See ScriptSource.h.
#include "script/ScriptSource.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iostream>
#include <system_error>
#include <utility>

#include "platform/TextFiles.h"
#include "script/ScriptFailure.h"

namespace quillmetra {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t DeepestInclude = 20;
constexpr std::string_view Blanks = " \t";

void SkipBlanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(Blanks), text.size()));
}

void DropBlanksAtEnd(std::string_view& text) {
    text.remove_suffix(text.size() - (text.find_last_not_of(Blanks) + 1));
}

bool TakesRest(std::string_view argument) {
    constexpr std::array names = {"TEXT", "PATH", "TAG", "ROW"};
    return std::find(names.begin(), names.end(), argument) != names.end();
}

// Takes a text in quotes off a line; the line starts with the opening one.
std::string TakeQuoted(std::string_view& line) {
    std::string text;
    for (std::size_t i = 1; i < line.size(); ++i) {
        if (line[i] == '"') {
            line.remove_prefix(i + 1);
            if (!line.empty() && Blanks.find(line.front()) == std::string_view::npos) {
                throw ScriptFailure{"a blank is missing after the closing quote"};
            }
            return text;
        }
        if (line[i] != '\\') {
            text += line[i];
            continue;
        }
        const char escaped = ++i < line.size() ? line[i] : '\0';
        if (escaped != '"' && escaped != '\\' && escaped != 'n' && escaped != 't') {
            throw ScriptFailure{"after \\ in quotes comes one of \" \\ n t"};
        }
        text += escaped == 'n' ? '\n' : escaped == 't' ? '\t' : escaped;
    }
    throw ScriptFailure{"the closing quote is missing"};
}

ScriptWord TakeArgument(std::string_view argument, bool last, std::string_view& rest) {
    if (rest.front() == '"') return {TakeQuoted(rest), true};
    if (!last || !TakesRest(argument)) return {std::string(TakeWord(rest)), false};
    if (argument != "TEXT") DropBlanksAtEnd(rest);
    return {std::string(std::exchange(rest, {})), false};
}

}  // namespace

void ScriptSource::Open(const std::string& path) {
    if (files_.size() > DeepestInclude) throw ScriptFailure{"too many scripts include one another"};
    if (path == "-") return Open("standard input", std::cin);
    const fs::path folder = files_.empty() ? fs::path() : MachinePath(files_.back().Name).parent_path();
    const fs::path file = folder / std::u8string(path.begin(), path.end());
    std::error_code error;
    auto stream = std::make_unique<std::ifstream>(file, std::ios::binary);
    if (!*stream || fs::is_directory(file, error)) {
        throw ScriptFailure{"cannot read the script " + SuitePath(file)};
    }
    std::istream* const lines = stream.get();
    files_.push_back({.Name = SuitePath(file), .Owned = std::move(stream), .Stream = lines});
}

void ScriptSource::Open(const std::string& name, std::istream& stream) {
    files_.push_back({.Name = name, .Stream = &stream});
}

bool ScriptSource::Next(std::string& line) {
    for (; !files_.empty(); files_.pop_back()) {
        File& file = files_.back();
        if (!std::getline(*file.Stream, line)) continue;
        name_ = file.Name;
        line_ = ++file.Line;
        if (line_ == 1 && line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
        if (line.ends_with('\r')) line.pop_back();
        return true;
    }
    return false;
}

std::string_view TakeWord(std::string_view& line) {
    SkipBlanks(line);
    const std::string_view word = line.substr(0, line.find_first_of(Blanks));
    line.remove_prefix(word.size());
    SkipBlanks(line);
    return word;
}

std::vector<ScriptWord> SplitArguments(std::string_view usage, std::string_view rest) {
    std::vector<ScriptWord> arguments;
    SkipBlanks(rest);
    while (!usage.empty()) {
        const std::string_view argument = TakeWord(usage);
        if (rest.empty()) {
            if (argument.starts_with('[')) break;
            throw ScriptFailure{std::string(argument) + " is missing"};
        }
        arguments.push_back(TakeArgument(argument, usage.empty(), rest));
        SkipBlanks(rest);
    }
    if (!rest.empty()) throw ScriptFailure{"too much on the line: " + std::string(rest)};
    return arguments;
}

}  // namespace quillmetra
