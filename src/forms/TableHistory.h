// Undo and redo of a grid that is edited: after each act the rows that have changed, before and after it.
#pragma once

#include <deque>
#include <vector>

#include "platform/Controls.h"

namespace quillmetra {

class TableHistory {
public:
    explicit TableHistory(Grid& grid) : grid_(grid) {}

    // Another table, or the same read anew.
    void Forget();
    // After an act; false when it has changed nothing.
    bool Take();
    bool CanUndo() const { return at_ > 0; }
    bool CanRedo() const { return at_ < changes_.size(); }
    // Puts the rows back and says which they now are; none when rows are gone.
    CellRange Undo();
    CellRange Redo();

    // The rows as they stand are those of the file.
    void MarkSaved() { saved_ = static_cast<std::ptrdiff_t>(at_); }
    bool IsSaved() const { return saved_ == static_cast<std::ptrdiff_t>(at_); }

private:
    static constexpr std::size_t MostChanges = 200;
    using Rows = std::vector<Grid::Cells>;
    struct Change {
        int First = 0;
        Rows Before, After;
    };

    // What the grid has now in the place of some rows.
    void Know(int first, std::size_t count, const Rows& rows);
    CellRange Put(int first, const Rows& former, const Rows& rows);

    Grid& grid_;
    Rows known_;
    std::deque<Change> changes_;
    std::size_t at_ = 0;
    std::ptrdiff_t saved_ = 0;  // -1 when no step leads there any more
};

}  // namespace quillmetra
