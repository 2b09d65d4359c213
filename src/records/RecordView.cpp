// See RecordView.h.
#include "records/RecordView.h"

#include <algorithm>
#include <map>
#include <numeric>

#include "core/Words.h"
#include "platform/Clock.h"
#include "platform/KeyOrder.h"
#include "platform/NumberText.h"
#include "platform/Utf8.h"
#include "records/OptionCodes.h"
#include "records/RecordFiles.h"
#include "records/RecordTables.h"

namespace quillmetra {

namespace {

const char* CalculationOf(int storedProgramNumber) {
    const RecordTable* const table = ProgramTable(ProgramOf(storedProgramNumber));
    if (table == nullptr) return "";
    if (table == &PressureDropTable()) return "Pressure drop";
    return table == &WaterhammerTable() ? "Waterhammer" : "Fluid data";
}

bool IsBefore(std::string_view a, std::string_view b) { return CompareKeys(a, b) < 0; }

// Days in year-month-day form compare as texts.
bool IsOutdated(const Recordset& heads) {
    const std::string data = IsoDate(heads.Text("Data Date"));
    const std::string calculated = IsoDate(heads.Text("Calc Date"));
    return !data.empty() && !calculated.empty() && data > calculated;
}

// A day as it is compared and as it is shown; many records share one.
struct Day {
    std::string Iso, Shown;
};
class Days {
public:
    const Day& Of(std::string_view stored) {
        const auto found = days_.find(stored);
        if (found != days_.end()) return found->second;
        const std::string text(stored);
        return days_.emplace(text, Day{IsoDate(text), DateText(text)}).first->second;
    }

private:
    std::map<std::string, Day, std::less<>> days_;
};

constexpr std::string_view LineFields[] = {"Tag",     "Program Number", "Fluid Name",
                                           "Calc By", "Calc Date",      "Data Date"};

RecordLine LineOf(Recordset::TextRow row, Days& days) {
    const auto text = [&row](std::size_t field) { return std::string(Trim(row[field])); };
    const Day& date = days.Of(Trim(row[4]));
    const Day& dataDate = days.Of(Trim(row[5]));
    const bool isOutdated = !date.Iso.empty() && !dataDate.Iso.empty() && dataDate.Iso > date.Iso;
    return {{text(0), CalculationOf(static_cast<int>(Val(row[1]))), text(2), text(3), date.Shown,
             dataDate.Shown, isOutdated ? "Yes" : ""}};
}

// In the order of the tags.
RecordLines Sorted(RecordLines lines) {
    std::vector<std::size_t> places(lines.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    const auto tag = [&lines](std::size_t place) -> const std::string& {
        return lines[place].Cells[RecordLine::Tag];
    };
    std::sort(places.begin(), places.end(),
              [&](std::size_t a, std::size_t b) { return IsBefore(tag(a), tag(b)); });
    RecordLines sorted;
    sorted.reserve(lines.size());
    for (const std::size_t place : places) sorted.push_back(std::move(lines[place]));
    return sorted;
}

}  // namespace

RecordView::RecordView(const std::string& file) : file_(file) { Open(); }

void RecordView::Open() {
    std::unique_ptr<Database> database = OpenRecords(file_);  // the former one stays when this throws
    heads_.reset();
    database_ = std::move(database);
    heads_.emplace(*database_, HeadTable().Shape);
    heads_->Index(TagIndex);
    tagsVersion_ = linesVersion_ = -1;
    hasRecord_ = !heads_->AtEnd();
    if (hasRecord_) TakeHead();
}

void RecordView::Renew() {
    if (!database_->IsReplaced()) return;
    const std::string tag = head_.Tag;
    Open();
    if (hasRecord_ && heads_->Seek(tag)) {
        TakeHead();
    } else if (hasRecord_) {
        heads_->MoveFirst();
    }
}

bool RecordView::TakeHead() {
    const auto text = [this](const char* field) { return std::string(Trim(heads_->Text(field))); };
    head_.Tag = text("Tag");
    head_.FluidType = text("Fluid Type");
    head_.ProgramNumber = static_cast<int>(heads_->Number("Program Number"));
    head_.Calculation = CalculationOf(head_.ProgramNumber);
    head_.ProgramName = text("Program Name");
    head_.FluidName = text("Fluid Name");
    head_.CalcBy = text("Calc By");
    head_.ApprovedBy = text("Approv By");
    head_.DataDate = DateText(text("Data Date"));
    head_.CalcDate = DateText(text("Calc Date"));
    head_.OtherCalcs = text("Other Calcs");
    head_.IsOutdated = IsOutdated(*heads_);
    return hasRecord_ = true;
}

void RecordView::First() {
    Renew();
    if (!hasRecord_ && Tags().empty()) return;
    heads_->MoveFirst();
    TakeHead();
}

void RecordView::Last() {
    Renew();
    if (!hasRecord_) return;
    heads_->MoveLast();
    TakeHead();
}

void RecordView::Next() {
    Renew();
    if (!hasRecord_) return;
    heads_->MoveNext();
    if (heads_->AtEnd()) heads_->MoveLast();
    TakeHead();
}

void RecordView::Previous() {
    Renew();
    if (!hasRecord_) return;
    heads_->MovePrevious();
    if (heads_->AtStart()) heads_->MoveFirst();
    TakeHead();
}

bool RecordView::Find(std::string_view tag) {
    Renew();
    if (heads_->Seek(Trim(tag))) return TakeHead();
    if (hasRecord_) heads_->Seek(head_.Tag);
    return false;
}

bool RecordView::NextOutdated(bool fromStart) {
    Renew();
    if (!hasRecord_) return false;
    const std::string before = head_.Tag;
    if (fromStart) heads_->MoveFirst();
    if (!fromStart || !IsOutdated(*heads_)) heads_->MoveToNext(IsOutdated);
    if (!heads_->AtEnd()) return TakeHead();
    heads_->Seek(before);
    return false;
}

void RecordView::LeaveDeleted() {
    const std::vector<std::string>& tags = Tags();
    hasRecord_ = !tags.empty();
    if (!hasRecord_) {
        head_ = {};
        return;
    }
    Find(tags[std::min(IndexOf(head_.Tag), tags.size() - 1)]);
}

const std::vector<std::string>& RecordView::Tags() {
    Renew();
    if (const std::int64_t version = database_->Version(); version != tagsVersion_) {
        tags_ = heads_->Keys();
        tagsVersion_ = version;
    }
    return tags_;
}

std::shared_ptr<const RecordLines> RecordView::Lines() {
    Renew();
    const std::int64_t version = database_->Version();
    if (version == linesVersion_) return lines_;
    RecordLines lines;
    Days days;
    heads_->EachRow(LineFields, [&](Recordset::TextRow row) { lines.push_back(LineOf(row, days)); });
    lines_ = std::make_shared<const RecordLines>(Sorted(std::move(lines)));
    linesVersion_ = version;
    return lines_;
}

std::size_t RecordView::IndexOf(std::string_view tag) {
    const std::vector<std::string>& tags = Tags();
    return static_cast<std::size_t>(std::lower_bound(tags.begin(), tags.end(), tag, IsBefore) - tags.begin());
}

int RecordView::Position() { return hasRecord_ ? static_cast<int>(IndexOf(head_.Tag)) + 1 : 0; }

std::pair<std::size_t, std::size_t> RecordView::StartingWith(std::string_view text) {
    const std::size_t length = CharacterCount(text);
    const std::size_t first = IndexOf(text);
    const auto last = std::partition_point(
        tags_.begin() + static_cast<std::ptrdiff_t>(first), tags_.end(),
        [&](const std::string& tag) { return CompareKeys(FirstCharacters(tag, length), text) == 0; });
    return {first, static_cast<std::size_t>(last - tags_.begin())};
}

}  // namespace quillmetra
