// Saved records calculated anew, each by its own form as its button does it, and what that changes. Nothing
// is written before Save, and then all or nothing.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "records/RecordTransfer.h"
#include "records/RecordView.h"

namespace quillmetra {

// A result that is another one now; texts as the form shows them.
struct ResultChange {
    std::string Tag, Result, Before, After;
    double Percent = 0;  // of what it was; 0 where there was none
};

// What is to be told of a record.
struct RecordProblem {
    std::string Tag, Text;
};

// "2.31", of the change; empty where there was no result.
std::string PercentText(const ResultChange& change);

class Recalculation {
public:
    // Of Suite.DatabaseFile. With renewFluids the properties are taken anew from the tables of fluids first.
    // Throws as OpenRecords.
    explicit Recalculation(bool renewFluids);

    // Calculates one record more. A failure is kept as its problem.
    void Take(const RecordHead& head);

    int Records() const { return records_; }
    // Those with a result that differs by more than 0.1 %.
    int Changed() const { return static_cast<int>(changed_.size()); }
    const std::vector<ResultChange>& Changes() const { return changes_; }
    // What the calculation told; those without a result any more stay as they were saved.
    const std::vector<RecordProblem>& Problems() const { return problems_; }
    // Cases that choke and did not before, and those beyond the criterion of their service.
    const std::vector<RecordProblem>& Remarks() const { return remarks_; }

    // "3 records, 1 changed, 1 message"; remarks are counted where there are any.
    std::string Summary() const;

    // Writes the records that have changed, with today as the date of their calculation, in one transaction.
    // Throws, with nothing written, when the database has changed since or refuses.
    void Save();

private:
    struct ChangedRecord {
        std::string Tag;
        int Program = 0;
        std::vector<RowValues> Rows;  // in the order of TablesOf
    };

    void Calculate(const RecordHead& head);
    void Remark(const RecordHead& head, const std::vector<bool>& choked);

    const bool renewFluids_;
    const std::unique_ptr<Database> database_;
    const std::int64_t version_;
    int records_ = 0;
    std::vector<ResultChange> changes_;
    std::vector<RecordProblem> problems_, remarks_;
    std::vector<ChangedRecord> changed_;
};

}  // namespace quillmetra
