// The help: one text file a topic, "401-liquid-line.md", in the folder "help" of the shipped data.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quillmetra {

struct HelpTopic {
    int Number = 0;
    std::string Title;  // the heading in the first line
    std::string Text;   // Markdown, heading and all; a link to another topic is its number
};

std::filesystem::path HelpFolder();

// The topics of a folder by number. What is no topic there is left out; a folder that cannot be read has
// none.
std::vector<HelpTopic> ReadHelpTopics(const std::filesystem::path& folder);

// The words of a search, which blanks part.
std::vector<std::string> SearchWords(const std::string& search);

// Whether a topic has all the words, in any order, as words or parts of them, without regard to case.
bool HasWords(const HelpTopic& topic, const std::vector<std::string>& words);

}  // namespace quillmetra
