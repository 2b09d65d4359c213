// Plain text files as the suite reads and writes them: item by item or line by line, code page 1252 on
// disk and UTF-8 in memory, CR LF written and a lone LF accepted. A byte 0x1A ends a file.
//
// Failures are RuntimeErrors: "File not found", "Path/File access error", "Input past end of file".
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace quillmetra {

// The suite's own words separate the parts of a path with "\" and take no notice of case. Gives the path of
// the machine: the existing name that matches without regard to case, an exact match first, and the name as
// it stands where there is none.
std::filesystem::path MachinePath(std::string_view suitePath);

// A path of the machine in the suite's words, UTF-8.
std::string SuitePath(const std::filesystem::path& path);

bool FileExists(std::string_view suitePath);

// Whether a file is there that this user may not write, or nobody. Renaming over it would not ask.
bool IsWriteProtected(const std::filesystem::path& path);

// A file's bytes as they are. A file of more than 256 MB is refused.
std::string ReadBytes(std::string_view suitePath);

// What tells whether a file has changed since it was read: equal stamps, same contents. A file that is not
// there has a stamp of its own.
struct FileStamp {
    std::filesystem::file_time_type Changed;
    std::uintmax_t Size = 0;
    bool operator==(const FileStamp&) const = default;
};
FileStamp StampOf(const std::filesystem::path& path);

// Code page 1252 to UTF-8 and back. A byte or a character that the code page does not have passes through
// unchanged, so that nothing of a foreign file is lost when it is rewritten.
std::string Utf8From1252(std::string_view bytes);
std::string Code1252From(std::string_view utf8);

// Whether a text comes back from a file as it is, letter by letter.
bool IsIn1252(std::string_view utf8);

// Reads line by line. The file is read whole when it is opened; a file of more than 256 MB is refused.
class LineReader {
public:
    explicit LineReader(std::string_view suitePath);

    // The next line without its end; false at the end of the file.
    bool Next(std::string& line);
    bool AtEnd() const { return next_ >= text_.size(); }
    // The next line without the blanks at its ends, for files that must be there to their end: throws "Input
    // past end of file" when there is none, and when it has no end of its own, as the last one of a cut file.
    std::string NextWhole();
    // The text behind the byte 0x1A, which is no part of the file but would be missed in a rewritten one.
    // Empty when there are but blanks.
    const std::string& BehindEnd() const { return behind_; }

private:
    std::size_t EndOfLine();

    std::string behind_, text_;  // in this order: reading the text finds what is behind it
    std::size_t next_ = 0;
    std::size_t lineFeed_;  // the first one from next_ on, the length of the text where there is none
};

// Reads item by item: items end at a comma or at the end of a line, blanks around them are dropped, and an
// item in quotes may hold commas. A file that begins with the mark of UTF-8 is read as such.
class ItemReader {
public:
    explicit ItemReader(std::string_view suitePath);

    bool AtEnd() const { return next_ >= text_.size(); }
    // Throws "Input past end of file" when there is no item left.
    std::string NextText();
    double NextNumber();

private:
    void SkipBlanks();

    std::string text_;
    std::size_t next_ = 0;
};

// Writes a file beside its place and puts it there in one step, so that a failure leaves the old file as
// it was.
void ReplaceFile(std::string_view suitePath, std::string_view bytes);

// A text file that is written so; its folder is made when it is not there. Without Commit nothing changes.
class TextWriter {
public:
    explicit TextWriter(std::string_view suitePath);

    // First of all, for items with letters that the code page does not have: an ItemReader knows them.
    void UseUtf8();
    void Line(std::string_view text);
    void Quoted(std::string_view text);  // a text item in quotes
    void Number(double value);           // as Str writes it
    void Commit();

private:
    std::string path_;
    std::string text_;
    bool utf8_ = false;
};

}  // namespace quillmetra
