// See Import.h.
#include "forms/Import.h"

#include <algorithm>
#include <utility>

#include "core/Suite.h"
#include "platform/TextFiles.h"
#include "platform/Utf8.h"
#include "records/Backups.h"
#include "records/RecordFiles.h"

namespace quillmetra {

namespace {

constexpr std::array<const char*, 5> StateWords = {"new", "changed", "equal", "refused", "told"};

RuntimeError NoList(const std::string& why) { return {321, why}; }

// The rows of a file, counted for a progress.
struct RowCounter : SheetTaker {
    int Rows = 0;
    bool TakeSheet(const std::string&, bool) override { return true; }
    bool TakeRow(const SheetRow&) override {
        ++Rows;
        return true;
    }
};

std::set<std::string, KeyLess> TagsOf(Database& database) {
    const std::vector<std::string> tags =
        Recordset(database, HeadTable().Shape, Recordset::Unplaced()).Keys();
    return {tags.begin(), tags.end()};
}

bool IsDated(const RecordColumn& column) { return column.Name == "Calc Date"; }

// What is another one now: the inputs first, then what follows from them.
std::vector<const RecordColumn*> DifferencesOf(const RecordRows& was, const RecordRows& is) {
    std::vector<const RecordColumn*> inputs, others;
    for (const RecordColumn& column : RecordColumns()) {
        if (IsDated(column) || SameValue(was.Value(column), is.Value(column))) continue;
        const bool follows = column.Kind == ColumnKind::Result || column.Name == "Other Calcs" ||
                             column.Name == "Calc Option" || column.Name == "Program Number";
        (follows ? others : inputs).push_back(&column);
    }
    inputs.insert(inputs.end(), others.begin(), others.end());
    return inputs;
}

std::string Named(const std::string& text) { return text.empty() ? "nothing" : text; }

std::string ChangeText(const RecordRows& was, const RecordRows& is, const RecordColumn& first,
                       std::size_t count) {
    std::string text = Named(ValueText(is.Value(first))) + ", was " + Named(ValueText(was.Value(first)));
    if (count > 1) text += "; and " + std::to_string(count - 1) + " more";
    return text;
}

}  // namespace

const char* Word(ImportState state) { return StateWords.at(static_cast<std::size_t>(state)); }

// Goes from sheet to sheet, and from the heads to the rows below them.
class Import::Taker : public SheetTaker {
public:
    Taker(Import& import, const GoesOn& goesOn, int all) : import_(import), goesOn_(goesOn), all_(all) {}

    bool TakeSheet(const std::string& name, bool decimalCommas) override {
        sheet_ = name;
        decimalCommas_ = decimalCommas;
        heads_.reset();
        mayBeUnits_ = false;
        return true;
    }

    bool TakeRow(const SheetRow& row) override {
        if (!goesOn_(done_++, all_)) {
            IsEnded = true;
            return false;
        }
        if (!heads_) {
            TakeHeads(row);
        } else if (!std::exchange(mayBeUnits_, false) || !heads_->TakeUnits(row)) {
            if (heads_->HasTag()) import_.TakeRow(*heads_, row, sheet_);
        }
        return true;
    }

    void TakeMerged(const std::string& range) override {
        if (heads_ && heads_->HasTag())
            Tell(range, "merged cells: what they say counts for the first one alone");
    }

    bool IsEnded = false, HasList = false;

private:
    void Tell(const std::string& column, const std::string& text) {
        import_.Add({0, sheet_, ImportState::Told, column, text});
    }
    void TakeHeads(const SheetRow& row) {
        heads_.emplace(row, decimalCommas_);
        mayBeUnits_ = true;
        if (!heads_->HasTag()) return Tell("", "the sheet is left out: its first row has no column Tag");
        HasList = true;
        for (const std::string& each : heads_->LeftAlone()) Tell("", each);
    }

    Import& import_;
    const GoesOn& goesOn_;
    const int all_;
    int done_ = 0;
    std::string sheet_;
    std::optional<ListHeads> heads_;
    bool decimalCommas_ = false, mayBeUnits_ = false;
};

Import::Import(std::string file)
    : file_(std::move(file)),
      database_(OpenRecords(Suite.DatabaseFile)),
      version_(database_->Version()),
      stored_(*database_),
      tags_(TagsOf(*database_)) {
    const std::string name = DatabaseFileOf(SuitePath(folder_.Path()));
    MakeEmptyDatabase(name);
    waiting_ = OpenRecords(name);
    filling_ = std::make_unique<Transaction>(*waiting_);
    waiting_->AddTable(SettingsTable().Shape);
    made_ = std::make_unique<RowStore>(*waiting_);
}

Import::~Import() = default;

bool Import::Run(const GoesOn& goesOn) {
    RowCounter counter;
    ReadSheets(file_, counter);
    Taker taker(*this, goesOn, counter.Rows);
    ReadSheets(file_, taker);
    if (taker.IsEnded) return false;
    if (!taker.HasList)
        throw NoList(
            "There is no list in it: the first row must have the names of columns, as an export writes "
            "them, and among them Tag");
    return true;
}

// A cell may be as long as its file.
void Import::Add(ImportLine line) {
    constexpr std::size_t mostShown = 250;
    for (std::string* text : {&line.Tag, &line.Column, &line.Text}) {
        const std::size_t size = text->size();
        *text = FirstCharacters(*text, mostShown);
        if (text->size() < size) *text += "...";
    }
    ++counts_.at(static_cast<std::size_t>(line.State));
    lines_.push_back(std::move(line));
}

// What has no tag goes by its sheet.
void Import::TakeRow(const ListHeads& heads, const SheetRow& row, const std::string& sheet) {
    std::string tag = sheet;
    try {
        tag = ListRecords::TagOf(heads, row);
        const auto [same, isNew] = rowOfTag_.emplace(tag, Place{row.Number, sheet});
        const auto& [number, itsSheet] = same->second;
        if (!isNew)
            throw ListRefusal{"Tag", "row " + std::to_string(number) +
                                         (itsSheet == sheet ? "" : " of " + itsSheet) +
                                         " has this tag already"};
        MakeRecord(heads, row, tag);
    } catch (const ListRefusal& refusal) {
        Add({row.Number, tag, ImportState::Refused, refusal.Column, refusal.Reason});
    } catch (const RuntimeError& error) {
        Add({row.Number, tag, ImportState::Refused, "", error.Description});
    }
}

void Import::MakeRecord(const ListHeads& heads, const SheetRow& row, const std::string& tag) {
    const std::optional<RecordRows> stored = tags_.contains(tag) ? stored_.Read(tag) : std::nullopt;
    const ListRecords::Made made = records_.Make(heads, row, stored);
    ImportLine line{row.Number, tag, ImportState::New, "", ""};
    if (stored) {
        const std::vector<const RecordColumn*> others = DifferencesOf(*stored, made.Rows);
        line.State = others.empty() ? ImportState::Equal : ImportState::Changed;
        if (!others.empty()) {
            line.Column = others.front()->Name;
            line.Text = ChangeText(*stored, made.Rows, *others.front(), others.size());
        }
    }
    if (line.State != ImportState::Equal) made_->Add(made.Rows);
    Add(std::move(line));
    for (const std::string& text : made.Told) Add({row.Number, tag, ImportState::Told, "", text});
}

std::string Import::Summary() const {
    std::string text;
    for (const ImportState state :
         {ImportState::New, ImportState::Changed, ImportState::Equal, ImportState::Refused})
        text += (text.empty() ? "" : ", ") + std::to_string(Count(state)) + " " + Word(state);
    return text;
}

int Import::Save(bool replaces) {
    const int wanted = Count(ImportState::New) + (replaces ? Count(ImportState::Changed) : 0);
    if (wanted == 0) return 0;
    KeepBackupOfToday(Suite.DatabaseFile);
    Transaction all(*database_);
    if (database_->Version() != version_)
        throw RuntimeError{failure::ValueRefused, "The database was changed meanwhile: read the list anew"};
    database_->AddTable(SettingsTable().Shape);
    RowStore target(*database_);
    for (const ImportLine& line : lines_) {
        if (line.State != ImportState::New && (line.State != ImportState::Changed || !replaces)) continue;
        target.Write(made_->Read(line.Tag).value());
    }
    all.Commit();
    return wanted;
}

}  // namespace quillmetra
