// See Recalculation.h.
#include "forms/Recalculation.h"

#include <cmath>

#include "core/CalcRecord.h"
#include "core/Filling.h"
#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/FluidForm.h"
#include "forms/LineServices.h"
#include "forms/PanelReturn.h"
#include "forms/RecordInHand.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "records/Backups.h"
#include "records/RecordFiles.h"
#include "records/RecordTables.h"
#include "reports/FormRows.h"
#include "units/Rounding.h"

namespace quillmetra {

namespace {

constexpr double SmallestChange = 0.001;  // of the result

// What a calculation can change in the database.
std::vector<const RecordTable*> TablesOf(int program) {
    return {&HeadTable(), ProgramTable(program), &SettingsTable()};
}

struct Result {
    std::string Name;  // "Velocity, Normal"
    double Value = 0;
    bool IsOfLastCase = false;  // the equivalent length of a line: that of the case calculated last
};

std::string NameOf(const Form& form, const FormRow& row, int caseIndex) {
    const std::string name = SpokenCaption(ControlOf(form.Name(), row.Label).Caption());
    const Control* const head = row.PerCase ? form.Find("lblCase", caseIndex) : nullptr;
    return head == nullptr ? name : name + ", " + SpokenCaption(head->Caption());
}

std::vector<Result> ResultsOf(const Form& form) {
    std::vector<Result> results;
    for (const FormRow& row : FormRows(Calc.CurrentProgram)) {
        if (!row.IsResult()) continue;
        for (int i = 0; i < (row.PerCase ? CaseCount : 1); ++i)
            results.push_back({NameOf(form, row, i), LiveValue(row, i),
                               row.From == Source::CaseResult && row.Row == result::EquivLength});
    }
    return results;
}

bool HasResults(int caseIndex) { return StandingResult(result::Velocity, caseIndex) > 0; }

std::vector<bool> ChokedCases() {
    std::vector<bool> choked(CaseCount);
    for (int i = 0; i < CaseCount; ++i) choked[At(i)] = HasResults(i) && IsChoked(i);
    return choked;
}

std::string Figure(double value) { return value == 0 ? "" : TrimmedStr(value); }

}  // namespace

std::string PercentText(const ResultChange& change) {
    return change.Percent == 0 ? "" : TrimmedStr(RoundedThree(change.Percent));
}

Recalculation::Recalculation(bool renewFluids)
    : renewFluids_(renewFluids), database_(OpenRecords(Suite.DatabaseFile)), version_(database_->Version()) {}

void Recalculation::Take(const RecordHead& head) {
    ++records_;
    const Setting batch(Suite.RunActive, words::Yes, "");
    const Setting zoneUntold(Suite.HideFlowStatus, words::Yes);
    const FormsOfRecord forms;
    const HeldMessages held(Questions::Answered);
    try {
        Calculate(head);
    } catch (const RuntimeError& error) {
        problems_.push_back({head.Tag, error.Description});
        return;
    }
    for (const std::string& text : held.Texts()) problems_.push_back({head.Tag, text});
}

// A record whose results are gone keeps those that are saved.
void Recalculation::Calculate(const RecordHead& head) {
    if (!TakeRecord(head, *database_) || FillCalculationForm() == nullptr) return;
    auto* const form = dynamic_cast<FluidForm*>(OpenCalculation());
    if (form == nullptr) return;
    const std::vector<Result> before = ResultsOf(*form);
    const std::vector<bool> choked = ChokedCases();
    if (renewFluids_) form->RenewFluids();
    form->CalculateAll();

    const std::vector<Result> after = ResultsOf(*form);
    std::vector<ResultChange> changes;
    bool isChanged = false;
    for (std::size_t i = 0; i < after.size(); ++i) {
        const double was = before[i].Value, is = after[i].Value;
        if (was != 0 && is == 0) {
            problems_.push_back({head.Tag, after[i].Name + ": no result any more"});
            return;
        }
        if (std::fabs(is - was) <= SmallestChange * std::fabs(was)) continue;
        isChanged = isChanged || !after[i].IsOfLastCase;
        const double percent = was == 0 ? 0 : 100 * (is - was) / was;
        changes.push_back({head.Tag, after[i].Name, Figure(was), Figure(is), percent});
    }
    Remark(head, choked);
    if (!isChanged) return;
    changes_.insert(changes_.end(), changes.begin(), changes.end());
    Calc.CaseText[text::CalcDate] = Today();
    ChangedRecord changed{head.Tag, Calc.CurrentProgram, {}};
    for (const RecordTable* table : TablesOf(Calc.CurrentProgram))
        changed.Rows.push_back(RowOfRecord(*table));
    changed_.push_back(std::move(changed));
}

void Recalculation::Remark(const RecordHead& head, const std::vector<bool>& choked) {
    if (!program::IsLine(Calc.CurrentProgram)) return;
    const std::vector<bool> chokes = ChokedCases();
    for (int i = 0; i < CaseCount; ++i) {
        if (!HasResults(i)) continue;
        const std::string name = words::Cases[At(i)];
        if (chokes[At(i)] && !choked[At(i)]) remarks_.push_back({head.Tag, name + ": the line chokes now."});
        for (const Hint& hint : ServiceHints(i)) remarks_.push_back({head.Tag, name + ": " + hint.Text});
    }
}

std::string Recalculation::Summary() const {
    const std::string summary = Counted(static_cast<std::size_t>(records_), "record") + ", " +
                                std::to_string(Changed()) + " changed, " +
                                Counted(problems_.size(), "message");
    return remarks_.empty() ? summary : summary + ", " + Counted(remarks_.size(), "remark");
}

void Recalculation::Save() {
    if (changed_.empty()) return;
    KeepBackupOfToday(Suite.DatabaseFile);
    Transaction all(*database_);
    if (database_->Version() != version_)
        throw RuntimeError{failure::ValueRefused,
                           "The database was changed meanwhile: calculate the records anew"};
    for (const ChangedRecord& record : changed_) {
        const std::vector<const RecordTable*> tables = TablesOf(record.Program);
        for (std::size_t t = 0; t < tables.size(); ++t) {
            Recordset rows(*database_, tables[t]->Shape, Recordset::Unplaced());
            rows.Index(TagIndex);
            if (!rows.Seek(record.Tag)) continue;
            rows.Edit();
            for (std::size_t i = 0; i < record.Rows[t].size(); ++i) {
                if (record.Rows[t][i]) rows.Set(i, *record.Rows[t][i]);
            }
            rows.Update();
        }
    }
    all.Commit();
    changed_.clear();
}

}  // namespace quillmetra
