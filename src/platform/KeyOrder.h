// The order of record keys: by characters without regard to case, for the letters of the western, Greek and
// Cyrillic alphabets as well as for A to Z, and independent of the machine's language.
//
// Databases on disk are sorted by it: a change of this order leaves the tags of an existing file unfindable,
// so it must go with a new schema number and a rebuilding of the keys.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmetra {

// Below 0, 0 or above 0 as the first UTF-8 text stands before, beside or behind the second.
int CompareKeys(std::string_view a, std::string_view b);

// Bytes that compare, one by one, as CompareKeys compares the texts: for an engine that only knows bytes.
std::string SortKey(std::string_view text);

// The text in small letters, so that what CompareKeys holds for the same is the same.
std::string SmallLetters(std::string_view text);

// The words of a filter in small letters, and whether a text in small letters has them all, each in any
// place.
std::vector<std::string> SmallWords(std::string_view text);
bool HasWords(std::string_view letters, const std::vector<std::string>& words);

}  // namespace quillmetra
