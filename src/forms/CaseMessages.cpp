// See CaseMessages.h.
#include "forms/CaseMessages.h"

#include <algorithm>
#include <string_view>

#include "lineloss/FlowStatus.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"

namespace quillmetra {

namespace {

// A line of a box that begins with a capital is a sentence of its own, but where the one before goes on.
const char* Joint(std::string_view before, std::string_view after) {
    constexpr std::string_view goingOn[] = {",", ", or", " and", " -", "Particularly"};
    const bool begins = !after.empty() && after.front() >= 'A' && after.front() <= 'Z';
    const bool goesOn =
        std::ranges::any_of(goingOn, [before](std::string_view end) { return before.ends_with(end); });
    return before.empty() || !begins || goesOn ? " " : ". ";
}

// What a box said, in one line.
std::string InOneLine(std::string_view text) {
    std::string line;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view part = Trim(text.substr(0, end));
        if (!part.empty()) line += (line.empty() ? "" : Joint(line, part)) + std::string(part);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return line;
}

// Some boxes name their case themselves.
std::string WithoutCase(const std::string& name, const std::string& text) {
    return InOneLine(text.starts_with(name + " ") ? text.substr(name.size()) : text);
}

}  // namespace

std::string JoinedHints(const std::vector<TextOfCase>& hints) {
    std::string all;
    bool same = true;
    for (const auto& [name, hint] : hints) {
        same = same && hint == hints.front().second;
        if (hint.empty()) continue;
        if (!all.empty()) all += ' ';
        all.append(name).append(": ").append(hint);
    }
    return same && !hints.empty() ? hints.front().second : all;
}

void CaseMessages::Run(const std::string& caseName, const Handler& part) {
    const FlowStatusAlone zone;
    const HeldMessages held;
    try {
        part();
    } catch (const RuntimeError& error) {
        Tell(error.Description, title_, Icon::Stop);
    }
    for (const std::string& text : held.Texts())
        messages_.emplace_back(caseName, WithoutCase(caseName, text));
}

void CaseMessages::TellByCase() const { TellLines(messages_); }

void CaseMessages::TellOnce() const {
    std::vector<TextOfCase> once;
    for (const auto& [name, text] : messages_) {
        const auto same = std::ranges::find(once, text, &TextOfCase::second);
        if (same == once.end()) {
            once.emplace_back(name, text);
        } else if (!same->first.ends_with(name)) {
            same->first += ", " + name;
        }
    }
    TellLines(once);
}

void CaseMessages::TellLines(const std::vector<TextOfCase>& messages) const {
    std::string lines;
    for (const auto& [name, text] : messages) {
        if (!lines.empty()) lines += '\n';
        lines.append(name).append(": ").append(text);
    }
    if (!lines.empty()) Tell(lines, title_, Icon::Information);
}

}  // namespace quillmetra
