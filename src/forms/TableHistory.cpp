// See TableHistory.h.
#include "forms/TableHistory.h"

#include <algorithm>
#include <utility>

namespace quillmetra {

namespace {

// Column 0 is the number of a row, which moves with it.
bool SameRow(const Grid::Cells& one, const Grid::Cells& other) {
    return one.size() == other.size() &&
           (one.empty() || std::equal(one.begin() + 1, one.end(), other.begin() + 1));
}

}  // namespace

void TableHistory::Forget() {
    known_ = grid_.Rows();
    changes_.clear();
    at_ = 0;
    saved_ = 0;
}

bool TableHistory::Take() {
    const Rows& rows = grid_.Rows();
    const auto first = std::mismatch(known_.begin(), known_.end(), rows.begin(), rows.end(), SameRow);
    if (first.first == known_.end() && first.second == rows.end()) return false;
    const auto last = std::mismatch(known_.rbegin(), std::make_reverse_iterator(first.first), rows.rbegin(),
                                    std::make_reverse_iterator(first.second), SameRow);
    Change change{static_cast<int>(first.first - known_.begin()), Rows(first.first, last.first.base()),
                  Rows(first.second, last.second.base())};
    if (saved_ > static_cast<std::ptrdiff_t>(at_)) saved_ = -1;
    changes_.resize(at_);
    changes_.push_back(std::move(change));
    if (changes_.size() > MostChanges) {
        changes_.pop_front();
        saved_ = std::max<std::ptrdiff_t>(-1, saved_ - 1);
    }
    at_ = changes_.size();
    const Change& taken = changes_.back();
    Know(taken.First, taken.Before.size(), taken.After);
    return true;
}

void TableHistory::Know(int first, std::size_t count, const Rows& rows) {
    const auto place = known_.begin() + first;
    known_.insert(known_.erase(place, place + static_cast<std::ptrdiff_t>(count)), rows.begin(), rows.end());
}

CellRange TableHistory::Put(int first, const Rows& former, const Rows& rows) {
    grid_.ReplaceRows(first, static_cast<int>(former.size()), rows);
    Know(first, former.size(), rows);
    return {.Top = first, .Left = 0, .Bottom = first + static_cast<int>(rows.size()) - 1, .Right = 0};
}

CellRange TableHistory::Undo() {
    const Change& change = changes_[--at_];
    return Put(change.First, change.After, change.Before);
}

CellRange TableHistory::Redo() {
    const Change& change = changes_[at_++];
    return Put(change.First, change.Before, change.After);
}

}  // namespace quillmetra
