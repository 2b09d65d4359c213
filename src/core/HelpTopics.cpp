// See HelpTopics.h.
#include "core/HelpTopics.h"

#include <algorithm>
#include <iterator>
#include <sstream>

#include "platform/Folders.h"
#include "platform/NumberText.h"
#include "platform/ProgramPlaces.h"
#include "platform/RuntimeError.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace {

constexpr std::string_view HeadingMark = "# ";

// Number 0 for a file that is no topic.
HelpTopic ReadTopic(const std::filesystem::path& folder, const std::string& name) {
    HelpTopic topic;
    constexpr std::size_t digits = 3;
    if (!MatchesPattern(name, "*-*.md") || name.find_first_not_of("0123456789") != digits) return topic;
    try {
        topic.Text = ReadBytes(SuitePath(folder / name));
    } catch (const RuntimeError&) {
        return topic;
    }
    if (!topic.Text.starts_with(HeadingMark)) return topic;
    const std::size_t end = std::min(topic.Text.find_first_of("\r\n"), topic.Text.size());
    topic.Title = topic.Text.substr(HeadingMark.size(), end - HeadingMark.size());
    topic.Number = static_cast<int>(Val(name.substr(0, digits)));
    return topic;
}

}  // namespace

std::filesystem::path HelpFolder() { return ShippedDataFolder() / "help"; }

std::vector<HelpTopic> ReadHelpTopics(const std::filesystem::path& folder) {
    std::vector<HelpTopic> topics;
    try {
        for (const std::string& name : ListFolder(SuitePath(folder)).Files) {
            HelpTopic topic = ReadTopic(folder, name);
            if (topic.Number > 0) topics.push_back(std::move(topic));
        }
    } catch (const RuntimeError&) {
        // no help was installed
    }
    return topics;
}

std::vector<std::string> SearchWords(const std::string& search) {
    std::istringstream words(search);
    return {std::istream_iterator<std::string>(words), {}};
}

bool HasWords(const HelpTopic& topic, const std::vector<std::string>& words) {
    const std::string text = LowerCase(topic.Text);
    return std::all_of(words.begin(), words.end(), [&text](const std::string& word) {
        return text.find(LowerCase(word)) != std::string::npos;
    });
}

}  // namespace quillmetra
