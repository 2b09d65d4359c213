// What the record browser sees of a database: the heads of all records in the order of their tags, one of
// them in hand. It stays open between two acts without holding a lock, and notices what others change.
//
// A failure of the file is a RuntimeError in words for the user. A file that another process has put in the
// place of the one that is open, as by compacting it, is opened before the next move.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Database.h"

namespace quillmetra {

// The texts of a head row as a browser shows them; dates as "MM/DD/YYYY".
struct RecordHead {
    std::string Tag, FluidType;
    int ProgramNumber = 0;    // as stored: program x 100 + unit set
    std::string Calculation;  // "Pressure drop", "Waterhammer", "Fluid data"; empty for an unknown program
    std::string ProgramName, FluidName, CalcBy, ApprovedBy, DataDate, CalcDate, OtherCalcs;
    bool IsOutdated = false;  // both dates stand and the data are later than the calculation
};

// A record in a table of all: tag, calculation, fluid, by, date, process data date, and "Yes" for an outdated
// one.
struct RecordLine {
    enum Column : std::uint8_t { Tag, Calculation, Fluid, By, Date, DataDate, Outdated };
    static constexpr int Columns = 7;

    std::array<std::string, Columns> Cells;
};
using RecordLines = std::vector<RecordLine>;

class RecordView {
public:
    // Opens the file and stands on the first record. Throws as OpenRecords.
    explicit RecordView(const std::string& file);

    bool HasRecord() const { return hasRecord_; }
    const RecordHead& Head() const { return head_; }  // of the record in hand

    void First();  // that of others, too, where there was none
    void Last();
    void Next();                      // stays at the last
    void Previous();                  // stays at the first
    bool Find(std::string_view tag);  // false, with the record in hand as it was, when there is none
    // Moves to the next outdated record behind the one in hand, or from the start; false, with the record in
    // hand as it was, when there is none.
    bool NextOutdated(bool fromStart);
    // After the record in hand was deleted: the next one, else the previous one, else none.
    void LeaveDeleted();

    // All tags in their order, and where one stands (or would stand) among them, from 0.
    const std::vector<std::string>& Tags();
    // All records in the order of their tags; another object when the file has changed.
    std::shared_ptr<const RecordLines> Lines();
    void ForgetLines() { linesVersion_ = -1; }  // so that they are read anew
    // Whether others have changed something since the last look, as far as a server has told.
    bool HasNews() const { return database_->HasNews(); }
    std::size_t IndexOf(std::string_view tag);
    // The position that the browser shows: 1 for the first record, 0 when there is none.
    int Position();
    int Count() { return static_cast<int>(Tags().size()); }
    // The tags that start with a text, for search while typing: the index of the first, and of the first
    // behind them.
    std::pair<std::size_t, std::size_t> StartingWith(std::string_view text);

private:
    void Open();
    // Opens the file anew when it was replaced, on the record in hand or on the first.
    void Renew();
    bool TakeHead();

    const std::string file_;
    std::unique_ptr<Database> database_;
    std::optional<Recordset> heads_;
    RecordHead head_;
    bool hasRecord_ = false;
    std::vector<std::string> tags_;
    std::int64_t tagsVersion_ = -1, linesVersion_ = -1;
    std::shared_ptr<const RecordLines> lines_;
};

}  // namespace quillmetra
