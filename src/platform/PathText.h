// Paths within words that a user reads.
#pragma once

#include <string>

namespace quillmetra {

// The suite's own words have "\" in paths on every system. Gives them as this system writes them: from the
// first word of a line that begins as a whole path does, to the end of the line. A "\" within another word,
// as in a tag, is no path.
std::string WithSystemPaths(std::string text);

// The name of a file in a caption: an "&" in it is no access key.
std::string CaptionOfFile(const std::string& file);

}  // namespace quillmetra
