// The table of all records: sorted by a column, and of these the ones that hold what was typed.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/RecordView.h"

namespace quillmetra {

class RecordList {
public:
    // False when these are the records that it has already.
    bool Take(std::shared_ptr<const RecordLines> lines);
    void Clear();

    // By a column of RecordLine; by the same one again, the other way round. Equal ones stay in the order of
    // tags.
    void SortBy(int column);
    // The records that have all these words in one cell or another, without regard to case.
    void Filter(std::string_view words);

    // Rows count those that are shown, from 0.
    int Rows() const { return static_cast<int>(shown_.size()); }
    int Total() const { return static_cast<int>(sorted_.size()); }
    const std::string& Cell(int row, int column) const;  // empty outside of the table
    std::string Head(int column) const;                  // with an arrow where it sorts
    // The row of a record by its place among all tags, from 0; -1 when it is not shown.
    int RowOf(std::size_t place) const;

private:
    void Sort();
    void Sift();

    std::shared_ptr<const RecordLines> lines_;
    std::vector<std::string> letters_;  // of each record, small, for the filter
    std::vector<int> sorted_, shown_;   // places in lines_
    std::vector<int> rows_;             // by place, -1 for one that is not shown
    std::string filter_;
    int column_ = RecordLine::Tag;
    bool falling_ = false;
};

}  // namespace quillmetra
