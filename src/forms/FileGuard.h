// The one guard of every file that a user names for the suite to write: no file of the suite itself and no
// database is written over by something else.
#pragma once

#include <string>

namespace quillmetra {

// Why a file must not be written over by what is named ("a printout"), in words for the user; empty when it
// may be.
std::string WhyNotToWrite(const std::string& file, const std::string& by);

// The same, told with a title; true when it may be written.
bool MayWrite(const std::string& file, const std::string& by, const std::string& title);

}  // namespace quillmetra
