// See PathText.h.
#include "platform/PathText.h"

#include <filesystem>

namespace quillmetra {

namespace {

constexpr bool IsOwnWriting = std::filesystem::path::preferred_separator == '\\';

bool BeginsPath(const std::string& text, std::size_t at) {
    if (text[at] != '/' && text[at] != '\\') return false;
    if (at + 1 < text.size() && text[at + 1] == ' ') return false;
    return at == 0 || text[at - 1] == ' ' || text[at - 1] == '\n' || text[at - 1] == '"';
}

}  // namespace

std::string WithSystemPaths(std::string text) {
    if (IsOwnWriting) return text;
    bool inPath = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        inPath = text[at] != '\n' && (inPath || BeginsPath(text, at));
        if (inPath && text[at] == '\\') text[at] = '/';
    }
    return text;
}

std::string CaptionOfFile(const std::string& file) {
    std::string caption;
    for (const char c : file) caption.append(c == '&' ? 2 : 1, c);
    return caption;
}

}  // namespace quillmetra
