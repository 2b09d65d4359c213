// See frmTRProg.h: the records of version 5, which go to the database in hand.
#include <algorithm>

#include "core/CalcRecord.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "forms/frmTRProg.h"
#include "forms/LoadDefaults.h"
#include "platform/Dialogs.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"
#include "records/RecordFiles.h"
#include "records/Version5.h"

namespace quillmetra {

namespace {

constexpr const char* ConvertTitle = "Convert 5.x to 6 data";
constexpr std::size_t HeadingLines = 12;  // of the headings file after a conversion
constexpr std::size_t OldHeadingLines = 8;
constexpr std::size_t ListedInABox = 20;

struct Step {
    const char* Text;
    const char* Filter;
    std::string_view FileName;
    const char* WrongName;
};
constexpr Step DataStep = {
    "Step 1 - Find the Version 5.x data file to be converted.\n            Data File OBXDAT.DAT",
    "Random file(OBXDAT.DAT)|OBXDAT.DAT|Tag file(OBXDAT.TAG)|OBXDAT.TAG", "OBXDAT.DAT",
    "Must find file named OBXDAT.DAT"};
constexpr Step HeadingsStep = {
    "Step 2, Find the file containing the appropriate printout headings\n             File HEADINGS.DAT",
    "Sequential file(HEADINGS.DAT)|HEADINGS.DAT", "HEADINGS.DAT", "Must find file named headings.dat"};

// The file that the user finds; empty when he cancels or takes another one.
std::string AskOldFile(const Step& step) {
    Tell(step.Text, ConvertTitle);
    const auto file = AskFile({.Title = ConvertTitle, .Filter = step.Filter, .Folder = Suite.DatabasePath});
    if (!file || file->empty()) return {};
    if (SameName(FileNameOf(*file), step.FileName)) return *file;
    Tell(step.WrongName, ConvertTitle);
    return {};
}

std::vector<std::string> LinesOf(const std::string& file) {
    LineReader reader(file);
    std::vector<std::string> lines;
    for (std::string line; reader.Next(line);) lines.push_back(line);
    return lines;
}

struct OldData {
    Version5File Records;
    std::vector<std::string> Tags, Headings;
};

// Everything is read before anything is written. Nothing, after a message, when a file cannot be read.
std::optional<OldData> ReadOldData(const std::string& dataFile, const std::string& headingsFile) {
    const std::string tagFile = dataFile.substr(0, dataFile.size() - 3) + "TAG";
    const std::string* file = &dataFile;
    try {
        Version5File records(ReadBytes(*file));
        if (records.Count() == 0) {
            Tell("There is no whole record in\n" + *file, ConvertTitle, Icon::Stop);
            return {};
        }
        file = &tagFile;
        std::vector<std::string> tags = LinesOf(*file);
        file = &headingsFile;
        return OldData{std::move(records), std::move(tags), LinesOf(*file)};
    } catch (const RuntimeError& error) {
        Tell(error.Description + "\n" + *file, ConvertTitle, Icon::Stop);
        return {};
    }
}

// The lines behind those of the old file stay as they are.
void TakeHeadings(const std::vector<std::string>& lines) {
    for (std::size_t i = 0; i < OldHeadingLines; ++i) {
        Calc.HeadingText[i + 1] = i < lines.size() ? lines[i] : "";
    }
    SaveHeadings(Calc.HeadingText, HeadingLines);
}

// Without the file, or with one that cannot be written, a conversion would be refused record by record.
bool MakeSureOfDatabase() {
    if (FileExists(Suite.DatabaseFile)) {
        OpenRecords(Suite.DatabaseFile)->TryToWrite();  // throws for what is no database, too
        return true;
    }
    return OfferDatabase(ConvertTitle);
}

void TellReport(const Version5Report& report, const Version5File& records) {
    const auto others = static_cast<std::size_t>(report.OtherPrograms);
    if (others > 0) {
        Tell(Counted(others, "record") +
                 (others == 1 ? " is of a program that this version does not have\nIt was passed over"
                              : " are of programs that this version does not have\nThey were passed over"),
             ConvertTitle, Icon::Exclamation);
    }
    if (records.IsCut()) {
        Tell("The data file ends in the middle of a record\nThat record was left out", ConvertTitle,
             Icon::Exclamation);
    }
    for (std::size_t first = 0; first < report.Unsaved.size(); first += ListedInABox) {
        std::string list = "Not saved:";
        const std::size_t end = std::min(first + ListedInABox, report.Unsaved.size());
        for (std::size_t i = first; i < end; ++i) list += "\n" + report.Unsaved[i];
        if (end < report.Unsaved.size()) list += "\n...";
        Tell(list, ConvertTitle, Icon::Exclamation);
    }
    Tell(report.Stopped ? "The conversion was stopped" : "Conversion Complete!", ConvertTitle);
}

}  // namespace

void frmTRProg::mnuConvertRandom_Click() {
    std::string target = view_ != nullptr ? lblPath(0).Caption() : Suite.DatabaseFile;
    if (target.empty()) {
        if (!MustHaveDataPath(Suite.DefaultPaths[path::Database])) return;
        target = DatabaseFileOf(Suite.DefaultPaths[path::Database]);
    }
    // The title tells where the records will go.
    if (!AskYesNo("Before conversion each record must have a unique Tag Number.\n"
                  "Make new Access DB files with the create option.\nContinue",
                  target)) {
        return;
    }
    const std::string dataFile = AskOldFile(DataStep);
    if (dataFile.empty()) return;
    const std::string headingsFile = AskOldFile(HeadingsStep);
    if (headingsFile.empty()) return;
    const std::optional<OldData> old = ReadOldData(dataFile, headingsFile);
    if (!old) return;
    Suite.DatabaseFile = target;
    Suite.DatabasePath = FolderOf(target);
    if (!MakeSureOfDatabase()) return;
    Version5Report report;
    {
        const BusyPointer busy;
        TakeHeadings(old->Headings);
        report = SaveVersion5(old->Records, old->Tags);
    }
    TellReport(report, old->Records);
    ResetRecord();
    LoadDefaults();
    if (view_ != nullptr && OpenView()) ShowRecord();
    if (!report.HeadingsCut.empty()) SetStatus("Converted" + report.HeadingsCut);
}

}  // namespace quillmetra
