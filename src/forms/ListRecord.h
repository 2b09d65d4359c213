// A row of a list becomes a record: what is stored of its tag, or a fresh calculation, with the cells of the
// row in their fields, checked and calculated by its form.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "forms/ListHeads.h"
#include "forms/ListUnits.h"

namespace quillmetra {

class DataRefusals;
class FluidForm;

class ListRecords {
public:
    // The rows of the record as a save writes them, with what the calculation told. Throws ListRefusal.
    struct Made {
        RecordRows Rows;
        std::vector<std::string> Told;
    };
    Made Make(const ListHeads& heads, const SheetRow& sheetRow, const std::optional<RecordRows>& known);

    // The tag of a row; throws ListRefusal for none.
    static std::string TagOf(const ListHeads& heads, const SheetRow& row);

private:
    struct Given {
        const RecordColumn* Of = nullptr;
        FieldValue Value;
        std::string Head;
    };
    struct Row {
        int Program = 0;
        bool KnowsDates = false;
        std::vector<Given> Cells;    // without results
        std::vector<Given> Results;  // what the list has of them
        const Given* Find(std::string_view column) const;
        std::function<bool(const std::string& column)> Has() const;
    };

    static int ProgramOf(const ListHeads& heads, const SheetRow& row,
                         const std::optional<RecordRows>& stored);
    static Row RowOf(const ListHeads& heads, const SheetRow& row, int program);
    const RecordRows& Fresh(int program, int unitSet);
    // As its field keeps it.
    static FieldValue Kept(const Given& given);
    static bool IsInUnitsOf(const ListHeads& heads, const RecordRows& stored);
    static ListUnits UnitsOfRow(const ListHeads& heads, const Row& row);
    static ListUnits UnitsToKeep(const ListHeads& heads, const Row& row, const RecordRows& stored);
    static bool IsProperty(const RecordColumn& column);
    static bool IsOfProgram(const Given& given);
    static bool SaysNothingNew(const Row& row, const RecordRows& stored);
    static void Put(RecordRows& rows, const Given& given);
    void PutFluid(RecordRows& rows, const Row& row, const std::optional<RecordRows>& stored);
    void PutMixture(RecordRows& rows, const Row& row);
    static void DropVaporPressures(RecordRows& rows, const Row& row);
    static void DropPipeName(RecordRows& rows, const Row& row, const std::optional<RecordRows>& stored);
    static void PutMaterial(RecordRows& rows, const Row& row);
    static bool IsDatedToday(const Row& row, const std::optional<RecordRows>& stored);
    static void PutPipe(const RecordRows& rows, const Row& row, const std::optional<RecordRows>& stored);
    std::string FluidLine(const RecordRows& rows, const std::string& name, const std::string& head);
    void PutPure(RecordRows& rows, const Given& name);
    static void CheckMixture(const RecordRows& rows);
    void CheckGravity(const RecordRows& rows, const Row& row, const RecordRows& stored, bool misleads) const;
    void TakeFluids(FluidForm& form) const;
    static void RefuseFirst(const DataRefusals& refusals, const Row& row);
    static int UnitSetOf(const Row& row);  // 0 for none
    void TakeUnitSet(RecordRows& stored, const Row& row);
    static void CheckFactors(const RecordRows& rows, const Row& row);
    static void CheckHead(const RecordRows& rows, const Row& row);
    void PutCells(RecordRows& rows, const Row& row, const ListHeads& heads, bool isStored);
    static void CheckTaken(const Row& row, const RecordRows& before, const RecordRows& after,
                           bool hasOtherFluid);
    void ReturnToUnits(RecordRows& rows, const Row& row, const RecordRows& stored,
                       const ListUnits& own) const;
    static void TellMissing(Made& made, const Row& row);
    Made Calculate(RecordRows rows, const Row& row, const std::optional<RecordRows>& stored,
                   const ListUnits& own);

    std::map<std::pair<int, int>, RecordRows> fresh_;
    std::map<std::string, std::map<std::string, std::string>> fluids_;  // lines by type and name
    bool renews_ = false;                                               // the fluid of the row in hand
    std::string note_;                                                  // of that fluid
};

}  // namespace quillmetra
