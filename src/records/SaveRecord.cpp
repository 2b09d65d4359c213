// See SaveRecord.h.
#include "records/SaveRecord.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/CalcRecord.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "platform/TextCase.h"
#include "platform/Utf8.h"
#include "records/Backups.h"
#include "records/ChangeDetection.h"
#include "records/OptionCodes.h"
#include "records/RecordExtras.h"
#include "records/RecordFiles.h"
#include "records/RecordTables.h"
#include "records/RecordTransfer.h"
#include "records/StoredRows.h"
#include "records/TextLengths.h"

namespace quillmetra {

namespace {

bool StoreHasFailed = false, ComparesFirst = false;

// Which word asks for the row of a program, which tells that it was loaded, and its code in OtherCalcs.
struct RowWords {
    const RecordTable& (*Table)();
    std::string CalcRecord::*Save;
    std::string CalcRecord::*Loaded;
    const OptionCode& Code;
};
constexpr RowWords RowsOfPrograms[] = {
    {PressureDropTable, &CalcRecord::SavePDRow, &CalcRecord::PDRowLoaded, code::PressureDropRow},
    {FluidDataTable, &CalcRecord::SaveFDRow, &CalcRecord::FDRowLoaded, code::FluidDataRow},
    {WaterhammerTable, &CalcRecord::SaveWHRow, &CalcRecord::WHRowLoaded, code::WaterHammerRow},
};

const RowWords* RowWordsInHand() {
    for (const RowWords& each : RowsOfPrograms) {
        if (&each.Table() == ProgramTable(Calc.CurrentProgram)) return &each;
    }
    return nullptr;
}

// A record that goes to another database than it came from is written whole.
void MarkEverything() {
    Calc.SavePDRow = Calc.SaveFDRow = Calc.SaveWHRow = words::No;
    Calc.SaveAll = words::Yes;
    Calc.MixtureSave = YesIf(IsYes(Calc.MixtureFlag));
    if (const RowWords* row = RowWordsInHand()) Calc.*(row->Save) = Calc.*(row->Loaded) = words::Yes;
}

void FindWhatToSave() {
    Calc.ChangedFlag = words::Yes;
    if (IsSameFile(Suite.DatabaseFile, Calc.LoadedDatabaseFile)) {
        DetectChanges();
    } else {
        MarkEverything();
    }
}

// A row that is not there is written whatever was detected, and so is one that another program has written
// since it was loaded, and that of another tag's record which is about to be overwritten: no save leaves a
// head without its row, or with the row of another record. A tag spelled otherwise is written to every row.
void AddForeignRows(Database& database) {
    const bool newTag = Calc.Tag != Trim(Calc.TagSaved);
    if (const RowWords* row = RowWordsInHand()) {
        if (newTag || !IsAsRemembered(database, row->Table())) Calc.*(row->Save) = words::Yes;
    }
    if (IsYes(Calc.MixtureFlag) && (newTag || !IsAsRemembered(database, MixtureTable())))
        Calc.MixtureSave = words::Yes;
}

void ComposeCodes() {
    SetCode(Calc.CalcOption,
            Calc.LiquidDensityMode == words::Density ? code::DensityMode : code::GravityMode);
    SetCode(Calc.CalcOption,
            Calc.PressureMode == words::Absolute ? code::AbsolutePressure : code::GaugePressure);
    SetCode(Calc.CalcOption,
            Calc.FluidDataSource == words::Loaded ? code::FluidLoaded : code::FluidNotLoaded);

    if (!IsYes(Calc.MixtureFlag)) Calc.MixtureSave.clear();
    SetCode(Calc.OtherCalcs, IsYes(Calc.MixtureFlag) ? code::Mixture : code::PureFluid);
    if (Calc.SteamKind == words::Superheated) SetCode(Calc.OtherCalcs, code::Superheated);
    if (Calc.SteamKind == words::Saturated) SetCode(Calc.OtherCalcs, code::Saturated);
    if (const RowWords* row = RowWordsInHand(); row != nullptr && IsYes(Calc.*(row->Save))) {
        SetCode(Calc.OtherCalcs, row->Code);
    }
}

// Throws for the first text that is too long for its field, and for a number that no field can hold.
void CheckFields() {
    RowOfRecord(HeadTable());
    RowOfRecord(UnitsTable());
    if (const RecordTable* table = ProgramTable(Calc.CurrentProgram)) RowOfRecord(*table);
    if (IsYes(Calc.MixtureFlag)) RowOfRecord(MixtureTable());
    RowOfRecord(SettingsTable());
}

void WriteRow(Recordset& rows, const RecordTable& table) {
    const RowValues values = RowOfRecord(table);
    if (rows.Seek(Calc.Tag)) {
        rows.Edit();
    } else {
        rows.AddNew();
    }
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (values[i]) rows.Set(i, *values[i]);
    }
    rows.Update();
}

void SaveRow(Database& database, const RecordTable& table) {
    Calc.Tag = std::string(Trim(Calc.Tag));
    if (Calc.Tag.empty()) {
        return Tell("Each record must have a unique Tag Number",
                    &table == &MixtureTable() ? "Mixture File" : Suite.DatabaseFile, Icon::Stop);
    }
    Recordset rows(database, table.Shape, Recordset::Unplaced());
    rows.Index(TagIndex);
    WriteRow(rows, table);
}

void DeleteRow(Database& database, const RecordTable& table) {
    Recordset rows(database, table.Shape, Recordset::Unplaced());
    rows.Index(TagIndex);
    if (rows.Seek(Calc.Tag)) rows.Delete();
}

// Rows that the record does not have: of other programs, and of a mixture that has become a pure fluid.
void DeleteLeftovers(Database& database) {
    const RowWords* const own = RowWordsInHand();
    for (const RowWords& each : RowsOfPrograms) {
        if (&each != own) DeleteRow(database, each.Table());
    }
    if (!IsYes(Calc.MixtureFlag)) DeleteMixtureRow(database);
}

// A row that the database refuses is undone alone.
void TrySave(void (*save)(Database&), Database& database, std::vector<std::string>& refused) {
    try {
        Transaction row(database);
        save(database);
        row.Commit();
    } catch (const RuntimeError& error) {
        if (!database.InTransaction()) throw;  // the engine has given up the whole save
        refused.push_back(error.Description);
    }
}

std::vector<std::string> SaveRows(Database& database) {
    std::vector<std::string> refused;
    TrySave(SaveTRUnits, database, refused);
    if (IsYes(Calc.SavePDRow)) TrySave(SaveTRDB, database, refused);
    if (IsYes(Calc.SaveWHRow)) TrySave(SaveWHCalc, database, refused);
    if (IsYes(Calc.SaveFDRow)) TrySave(SaveFDCalc, database, refused);
    if (IsYes(Calc.MixtureSave)) TrySave(SaveMixture, database, refused);
    TrySave(SaveSettings, database, refused);
    TrySave(DeleteLeftovers, database, refused);
    TrySave(SaveExtras, database, refused);
    return refused;
}

// Rows of other programs are not asked for, whatever words an earlier record has left.
void DropForeignFlags() {
    const RowWords* const own = RowWordsInHand();
    for (const RowWords& each : RowsOfPrograms) {
        if (&each != own) Calc.*(each.Save) = words::No;
    }
}

void TakeAsSaved() {
    Calc.SaveAll = Calc.SavePDRow = Calc.SaveFDRow = Calc.SaveWHRow = Calc.MixtureSave = words::No;
    Calc.InputChanged.clear();
    Calc.InCalculation = words::Yes;
    Calc.ChangedFlag.clear();
    Calc.RecordUpdated.clear();
    TakeSaved();
}

bool MayOverwrite(bool inARun) {
    return AskYesNo(std::string("Tag Number ") + (inARun ? Calc.Tag + " " : "") +
                        "is on file\nOverwrite the existing record?",
                    "Calculation Save", Icon::None, inARun ? Answer::No : Answer::Yes);
}

bool WantsComparison(const RowChange& change) {
    constexpr std::size_t toTheMinute = 16;
    return !change.By.empty() &&
           AskYesNo(Calc.Tag + " was changed by " + change.By + " at " + change.At.substr(0, toTheMinute) +
                        ", since it was opened here\nCompare the two before you save?",
                    "Calculation Save", Icon::Question);
}

bool WriteRecord(bool inARun) {
    const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
    Recordset heads(*database, HeadTable().Shape, Recordset::Unplaced());
    heads.Index(TagIndex);
    bool mayOverwrite = false;
    RowChange known;
    std::vector<std::string> refused;
    for (bool done = false; !done;) {
        // The questions wait outside the transaction, and another process may save the same tag meanwhile.
        const RowChange change = ChangedSince(*database);
        if (heads.Seek(Calc.Tag) && (!mayOverwrite || change != known)) {
            ComparesFirst = WantsComparison(change);
            mayOverwrite = !ComparesFirst && MayOverwrite(inARun);
            if (!mayOverwrite) return false;
            known = change;
        }
        KeepBackupOfToday(Suite.DatabaseFile);
        KeptRows former;
        Transaction all(*database);
        if (heads.Seek(Calc.Tag) && (!mayOverwrite || ChangedSince(*database) != known)) continue;
        AddForeignRows(*database);
        DropForeignFlags();
        ComposeCodes();
        WriteRow(heads, HeadTable());
        database->AddTable(SettingsTable().Shape);
        refused = SaveRows(*database);
        if (refused.empty()) RememberRows(*database);
        all.Commit();
        former.Let();
        done = true;
    }
    Suite.RecordTotal = static_cast<int>(heads.RecordCount());
    for (const std::string& each : refused) Tell(each, Suite.DatabaseFile, Icon::Stop);
    return refused.empty();
}

}  // namespace

// The file of the headings has longer lines than the record has room for.
std::string CutHeadings() {
    constexpr std::size_t manufacturer = 6, model = 7;
    std::string cut;
    for (const auto& [line, name] : {std::pair{manufacturer, "manufacturer"}, {model, "model"}}) {
        std::string& text = Calc.HeadingText[line];
        if (CharacterCount(text) <= longest::Maker) continue;
        text = FirstCharacters(text, longest::Maker);
        cut += (cut.empty() ? ". Only the first " + std::to_string(longest::Maker) + " letters of the "
                            : " and the ") +
               std::string(name);
    }
    return cut.empty() ? "" : cut + " in the headings go into the record";
}

bool StoreFailed() { return StoreHasFailed; }

bool ComparisonWanted() { return ComparesFirst; }

bool SaveTRCalc(bool inARun) {
    Calc.Tag = std::string(Trim(Calc.Tag));
    if (Calc.Tag.empty()) {
        Tell("Each record must have a unique Tag number", Suite.DatabaseFile, Icon::Stop);
        return false;
    }
    const std::string updated = Calc.RecordUpdated;
    StoreHasFailed = ComparesFirst = false;
    try {
        FindWhatToSave();
        ComposeCodes();
        CheckFields();
        if (WriteRecord(inARun)) {
            TakeAsSaved();
            return true;
        }
    } catch (const RuntimeError& error) {
        StoreHasFailed = error.Number != failure::ValueRefused;
        Tell(error.Description, Suite.DatabaseFile, Icon::Stop);
    }
    Calc.RecordUpdated = updated;  // the detection has dropped it, and the record is still to be saved
    return false;
}

void WriteWholeRecord(Database& database) {
    MarkEverything();
    ComposeCodes();
    Transaction all(database);
    Recordset heads(database, HeadTable().Shape, Recordset::Unplaced());
    heads.Index(TagIndex);
    WriteRow(heads, HeadTable());
    for (const std::string& each : SaveRows(database)) throw RuntimeError(failure::ValueRefused, each);
    all.Commit();
}

RecordRows RowsOfRecord() {
    MarkEverything();
    ComposeCodes();
    RecordRows rows;
    for (const RecordTable* table : RecordTables()) {
        const bool isOwn = table == ProgramTable(Calc.CurrentProgram) || table == &HeadTable() ||
                           table == &UnitsTable() || table == &SettingsTable() ||
                           (table == &MixtureTable() && IsYes(Calc.MixtureFlag));
        if (!isOwn) continue;
        RowValues values = RowOfRecord(*table);
        RecordRows::Row& row = rows.Of(*table);
        for (std::size_t i = 0; i < values.size(); ++i)
            row.push_back(values[i] ? KeptValue(table->Shape.Fields[i], std::move(*values[i]))
                                    : FieldValue());
    }
    for (std::size_t i = 0; i < RecordExtras.size(); ++i) rows.Extras[i] = Calc.*RecordExtras[i].Text;
    return rows;
}

void SaveTRUnits(Database& database) { SaveRow(database, UnitsTable()); }
void SaveTRDB(Database& database) { SaveRow(database, PressureDropTable()); }
void SaveWHCalc(Database& database) { SaveRow(database, WaterhammerTable()); }
void SaveFDCalc(Database& database) { SaveRow(database, FluidDataTable()); }
void SaveMixture(Database& database) { SaveRow(database, MixtureTable()); }
void SaveSettings(Database& database) { SaveRow(database, SettingsTable()); }

void DeleteMixtureRow(Database& database) { DeleteRow(database, MixtureTable()); }

}  // namespace quillmetra
