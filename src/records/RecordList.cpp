// See RecordList.h.
#include "records/RecordList.h"

#include <algorithm>
#include <numeric>

#include "platform/KeyOrder.h"

namespace quillmetra {

namespace {

const std::string Nothing;
constexpr const char* Heads[] = {"Tag number",       "Calculation",       "Fluid",   "Calculated by",
                                 "Calculation date", "Process data date", "Outdated"};

bool IsDate(int column) { return column == RecordLine::Date || column == RecordLine::DataDate; }

// Month/day/year with the year in front.
std::string SortedDate(const std::string& date) {
    constexpr std::size_t year = 6;
    return date.size() < year ? date : date.substr(year) + date.substr(0, year);
}

// The cells apart by a sign that nobody types.
std::string LettersOf(const RecordLine& line) {
    std::string all;
    constexpr std::size_t usual = 80;
    all.reserve(usual);
    for (const std::string& cell : line.Cells) all.append(cell).append(1, '\n');
    return SmallLetters(all);
}

}  // namespace

bool RecordList::Take(std::shared_ptr<const RecordLines> lines) {
    if (lines == lines_) return false;
    lines_ = std::move(lines);
    letters_.clear();
    letters_.reserve(lines_->size());
    for (const RecordLine& line : *lines_) letters_.push_back(LettersOf(line));
    Sort();
    return true;
}

void RecordList::Clear() { *this = RecordList(); }

void RecordList::SortBy(int column) {
    falling_ = column == column_ && !falling_;
    column_ = column;
    Sort();
}

void RecordList::Filter(std::string_view words) {
    filter_ = words;
    Sift();
}

void RecordList::Sort() {
    sorted_.resize(lines_ == nullptr ? 0 : lines_->size());
    std::iota(sorted_.begin(), sorted_.end(), 0);
    const auto cell = [this](int place) -> const std::string& {
        return (*lines_)[static_cast<std::size_t>(place)].Cells[static_cast<std::size_t>(column_)];
    };
    const auto order = [&](int a, int b) {
        return IsDate(column_) ? SortedDate(cell(a)).compare(SortedDate(cell(b)))
                               : CompareKeys(cell(a), cell(b));
    };
    if (column_ == RecordLine::Tag) {  // as they come
        if (falling_) std::reverse(sorted_.begin(), sorted_.end());
    } else {
        std::stable_sort(sorted_.begin(), sorted_.end(),
                         [&](int a, int b) { return falling_ ? order(b, a) < 0 : order(a, b) < 0; });
    }
    Sift();
}

void RecordList::Sift() {
    const std::vector<std::string> words = SmallWords(filter_);
    rows_.assign(sorted_.size(), -1);
    shown_.clear();
    for (const int place : sorted_) {
        if (!HasWords(letters_[static_cast<std::size_t>(place)], words)) continue;
        rows_[static_cast<std::size_t>(place)] = Rows();
        shown_.push_back(place);
    }
}

const std::string& RecordList::Cell(int row, int column) const {
    if (row < 0 || row >= Rows() || column < 0 || column >= RecordLine::Columns) return Nothing;
    return (*lines_)[static_cast<std::size_t>(shown_[static_cast<std::size_t>(row)])]
        .Cells[static_cast<std::size_t>(column)];
}

std::string RecordList::Head(int column) const {
    std::string head = Heads[column];
    if (column != column_) return head;
    return head + (falling_ ? " \u25BC" : " \u25B2");
}

int RecordList::RowOf(std::size_t place) const { return place < rows_.size() ? rows_[place] : -1; }

}  // namespace quillmetra
