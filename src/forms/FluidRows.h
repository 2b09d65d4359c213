// The rows of a fluid table as the dialog of the fluid lists them: in the units shown, sorted by a column,
// and of these the ones whose name has what was typed.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quillmetra {

class FluidRows {
public:
    enum Column { Name, Kind, Weight, Gravity, BoilingPoint, CritTemperature, CritPressure, Columns };
    // Those that hold numbers.
    static constexpr int FirstNumber = Weight;

    void Take(const std::vector<std::string>& rows, bool isGas);
    // By a column; by the same one again, the other way round. Equal ones stay in the order of the table.
    void SortBy(int column);
    // The fluids with all these words in their name, without regard to case.
    void Filter(std::string_view words);

    // Places count those that are shown, from 0.
    int Count() const { return static_cast<int>(shown_.size()); }
    int Total() const { return static_cast<int>(lines_.size()); }
    const std::string& Cell(int place, int column) const;
    const std::string& Head(int column) const { return heads_[static_cast<std::size_t>(column)]; }
    // The row as the table has it.
    const std::string& Row(int place) const;
    // The first fluid of that name; -1 where none is shown.
    int PlaceOf(std::string_view name) const;
    // The one whose name is what was typed, else the first that begins with it, else the first of all; -1
    // where none is shown.
    int BestPlace() const;

private:
    struct Line {
        std::string Row;
        std::array<std::string, Columns> Cells;
        std::array<double, Columns> Numbers{};
        std::string Letters;  // of the name, small
    };

    void TakeLine(const std::string& row);
    void ShowHeads();
    void Sort();
    void Sift();
    const Line& At(int place) const {
        return lines_[static_cast<std::size_t>(shown_[static_cast<std::size_t>(place)])];
    }

    std::vector<Line> lines_;
    std::vector<int> sorted_, shown_;  // places in lines_
    std::array<std::string, Columns> heads_;
    std::string filter_;
    bool isGas_ = false;
    int column_ = Columns;  // as the table has them
    bool falling_ = false;
};

}  // namespace quillmetra
