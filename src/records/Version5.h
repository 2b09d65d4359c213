// Records of version 5 of the suite: a file of fixed records, packed and little endian, with the tags in a
// text file beside it, one a line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillmetra {

class Version5File {
public:
    static constexpr std::size_t RecordSize = 921;

    // A last record that is cut short is left out.
    explicit Version5File(std::string bytes);

    int Count() const { return static_cast<int>(bytes_.size() / RecordSize); }
    bool IsCut() const { return bytes_.size() % RecordSize != 0; }

    // Takes a record, counted from 0, into the record in hand, which was reset before: numbers in the units
    // that were shown, units, basis, pipe and fittings. Texts that are no numbers read 0, an unusable factor
    // reads 1. False, with nothing taken, for a program that this version does not have.
    bool Take(int index) const;

private:
    std::string_view RecordAt(int index) const;
    template <typename Test>
    bool EveryCount(std::size_t width, Test test) const;

    std::string bytes_;
    // The fitting counts are singles in some files and 16-bit integers in others, and nothing says which.
    std::size_t countWidth_ = 4;
};

struct Version5Report {
    int OtherPrograms = 0;             // records that were passed over
    std::vector<std::string> Unsaved;  // "record 3, P-101", as a list for the user
    bool Stopped = false;              // before the last record, by the user or since nothing can be written
    std::string HeadingsCut;           // what CutHeadings tells
};

// Saves each record under the tag of its line in Suite.DatabaseFile, which must exist, with the headings in
// force. What cannot be saved has been told by the save, and the run goes on as long as the database can be
// written. Leaves the record in hand in no particular state.
Version5Report SaveVersion5(const Version5File& records, const std::vector<std::string>& tags);

}  // namespace quillmetra
