// See StartUp.h.
#include "core/StartUp.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <system_error>

#include "core/FileNames.h"
#include "core/PhysicalConstants.h"
#include "core/PipeFamilies.h"
#include "core/Suite.h"
#include "core/Version.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/ProgramPlaces.h"
#include "platform/SafeFiles.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace fs = std::filesystem;

const std::array<std::uint32_t, 12> DefaultColours = {12632256, 0,       15793151, 0,   8421504, 8388608,
                                                      16777215, 8388608, 4227200,  255, 65535,   0};

namespace {

struct ShippedFile {
    const char* Name;
    const char* Place;  // in the program's folder
};

constexpr std::array ShippedFiles = {
    ShippedFile{"Liquid.txt", "\\TRData\\"},
    ShippedFile{"Gas.txt", "\\TRData\\"},
    ShippedFile{"Modulus.txt", "\\TRData\\"},
    ShippedFile{"MaTLDAT.TXT", "\\TRData\\"},
    ShippedFile{"Criteria.txt", "\\TRData\\"},
    ShippedFile{filename::SteamPressures, "\\"},
    ShippedFile{filename::SteamRows, "\\"},
    ShippedFile{filename::LightScheme, "\\TRData\\"},
    ShippedFile{filename::DarkScheme, "\\TRData\\"},
    ShippedFile{filename::HighContrastScheme, "\\TRData\\"},
    ShippedFile{filename::ClassicScheme, "\\TRData\\"},
};

// The look of the suite where nobody has chosen one: laid with the folder of the tables, never into one that
// was there.
constexpr const char* FirstScheme = filename::LightScheme;

void UseDefaultColours() {
    std::copy(DefaultColours.begin(), DefaultColours.end(), Suite.Colours.begin() + 1);
}

void ReadColours() {
    try {
        ReadColourFile(InDefaultPath(path::DataFiles, filename::Colours));
    } catch (const RuntimeError&) {
        UseDefaultColours();
    }
}

// A colour of the file: a whole number of 32 bits with its sign.
std::uint32_t ColourFrom(const std::string& item) {
    if (item.empty() || !ValReadsAll(item)) throw failure::TypeMismatch();
    const double packed = std::nearbyint(Val(item));
    if (packed < std::numeric_limits<std::int32_t>::min() ||
        packed > std::numeric_limits<std::int32_t>::max()) {
        throw failure::Overflow();
    }
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(packed));
}

void CopyShipped(const fs::path& file, const std::string& place) {
    std::error_code ignored;
    const fs::path target = MachinePath(place);
    if (fs::exists(target, ignored)) return;
    fs::create_directories(target.parent_path(), ignored);
    // Beside its place and renamed: a copy that breaks off must not pass for the user's own file.
    fs::path beside = target;
    beside += ".quillmetra-new";
    std::error_code failed;
    fs::copy_file(file, beside, fs::copy_options::overwrite_existing, failed);
    // The user edits tables, however little may be done with those that were installed.
    fs::permissions(beside, fs::perms::owner_write, fs::perm_options::add, ignored);
    if (!failed) fs::rename(beside, target, failed);
    if (failed) fs::remove(beside, ignored);
}

struct StandardCondition {
    std::size_t Row;
    double CalcRecord::*Field;
    double StandardFile::*InFile;
    double Usual;
    const char* Unit;
    bool ZeroAlone;  // only exactly zero counts as missing: minus 10 degF is a temperature
};

constexpr std::array StandardConditions = {
    StandardCondition{22, &CalcRecord::StdPressure, &StandardFile::Pressure, Atmosphere, "psia", false},
    StandardCondition{21, &CalcRecord::StdTemperature, &StandardFile::Temperature, 60, "degF", true},
    StandardCondition{23, &CalcRecord::BaroPressure, &StandardFile::Barometer, SeaLevelBarometer, "psia",
                      false},
};

bool IsMissing(const StandardCondition& condition, double value) {
    return condition.ZeroAlone ? value == 0 : !(value > 0);
}

}  // namespace

std::string ProgramFolder() {
    const fs::path portable = ExecutableFolder();
    std::error_code error;
    if (fs::is_directory(portable / "TRData", error)) return SuitePath(portable);
    return SuitePath(UserDataFolder());
}

void SeedShippedData(const std::string& programFolder) {
    std::error_code ignored;
    const fs::path source = ShippedDataFolder();
    const std::string tables = programFolder + "\\TRData";
    if (!fs::exists(MachinePath(tables), ignored))
        CopyShipped(source / FirstScheme, tables + "\\" + filename::Colours);
    for (const auto& [name, place] : ShippedFiles) CopyShipped(source / name, programFolder + place + name);
    for (const PipeFamily& family : PipeFamilies)
        CopyShipped(source / family.File, tables + "\\" + family.File);
}

void StartUp(const std::string& programFolder) {
    OutliveFileSizeLimit();
    Suite.VersionText = "Ver." + std::to_string(version::Major) + "." + std::to_string(version::Minor) + "." +
                        std::to_string(version::Revision) + ".  ";
    Boot(programFolder);
}

void Boot(const std::string& programFolder) {
    UseDefaultColours();
    Suite.DefaultPaths[path::Program] = programFolder;
    Suite.HelpFile = InDefaultPath(path::Program, filename::Help);
    if (!ReadDefaultPaths()) {
        for (std::size_t i = 1; i <= 4; ++i) Suite.DefaultPaths[i] = programFolder + "\\TRData";
        Suite.ChosenDataPath = Suite.DefaultPaths[path::Database];
    }
    ReadColours();
    ShowForm("frmTRProg");
}

bool ReadDefaultPaths(std::size_t count) {
    try {
        ItemReader file(InDefaultPath(path::Program, filename::DefaultPaths));
        Row<std::string, 6> paths = Suite.DefaultPaths;
        for (std::size_t i = 1; i <= count; ++i) paths[i] = file.NextText();
        Suite.DefaultPaths = paths;
        Suite.ChosenDataPath = paths[1];
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

void SaveDefaultPaths() {
    std::array paths = {Suite.ChosenDataPath, Suite.DefaultPaths[2], Suite.DefaultPaths[3],
                        Suite.DefaultPaths[4]};
    TextWriter file(InDefaultPath(path::Program, filename::DefaultPaths));
    if (!std::all_of(paths.begin(), paths.end(), IsIn1252)) file.UseUtf8();
    for (const std::string& path : paths) {
        if (path.find_first_of("\"\r\n\x1A") != std::string::npos) throw failure::BadFileName();
        file.Quoted(path);
    }
    file.Commit();
}

void ReadColourFile(const std::string& name) {
    ItemReader file(name);
    auto colours = Suite.Colours;
    for (std::size_t slot = 1; slot <= 12; ++slot) colours[slot] = ColourFrom(file.NextText());
    Suite.Colours = colours;
}

void SaveColours() {
    TextWriter file(InDefaultPath(path::DataFiles, filename::Colours));
    for (std::size_t slot = 1; slot <= 12; ++slot) {
        file.Line(TrimmedStr(static_cast<std::int32_t>(Suite.Colours[slot])));
    }
    file.Commit();
}

namespace {
std::string HeadingsFile() { return InDefaultPath(path::Headings, filename::Headings); }
}  // namespace

std::size_t ReadHeadingLines(std::span<std::string> lines) {
    std::size_t read = 0;
    try {
        LineReader file(HeadingsFile());
        for (std::string line; read + 1 < lines.size() && file.Next(line);) lines[++read] = line;
    } catch (const RuntimeError&) {
        // the others stay as they were
    }
    return read;
}

void LoadHeadings() {
    const std::size_t read = ReadHeadingLines(std::span(Calc.HeadingText).first<8>());
    std::copy_n(Calc.HeadingText.begin() + 1, read, Calc.HeadingTextSaved.begin() + 1);
}

void SaveHeadings(std::span<const std::string> lines, std::size_t count) {
    TextWriter file(HeadingsFile());
    for (std::size_t i = 1; i <= count; ++i) file.Line(lines[i]);
    file.Commit();
}

namespace {

// The first three numbers of the file; those that a short one lacks count 0.
std::optional<Row<double, 4>> StandardItems() {
    Row<double, 4> items{};
    bool opened = false;
    try {
        ItemReader file(InDefaultPath(path::UserUnits, filename::StandardConditions));
        opened = true;
        for (std::size_t i = 1; i <= 3; ++i) items[i] = file.NextNumber();
    } catch (const RuntimeError&) {
        if (!opened) return std::nullopt;
    }
    return items;
}

}  // namespace

std::optional<StandardFile> ReadStandardFile() {
    const auto items = StandardItems();
    if (!items) return std::nullopt;
    StandardFile file{(*items)[1], (*items)[2], (*items)[3]};
    for (const StandardCondition& condition : StandardConditions) {
        double& value = file.*condition.InFile;
        if (IsMissing(condition, value)) value = condition.Usual;
    }
    return file;
}

void ReadStandardConditions() {
    const auto items = StandardItems();
    if (!items) return;
    Calc.StdFileValues = *items;
    for (std::size_t i = 1; i <= 3; ++i) Calc.CaseInput[20 + i][0] = Calc.StdFileValues[i];
    Calc.StdTemperature = Calc.StdFileValues[1];
    Calc.StdPressure = Calc.StdFileValues[2];
    Calc.BaroPressure = Calc.StdFileValues[3];
    RestoreStandardConditions();
}

void RestoreStandardConditions(double usualPressure) {
    for (const StandardCondition& condition : StandardConditions) {
        double& value = Calc.*condition.Field;
        if (!IsMissing(condition, value)) continue;
        value = condition.Field == &CalcRecord::StdPressure ? usualPressure : condition.Usual;
        Calc.CaseInput[condition.Row][0] = value;
        Calc.UnitName[condition.Row] = condition.Unit;
    }
}

void SaveStandardConditions() {
    Calc.MessageTitle = "User units file";
    try {
        TextWriter file(InDefaultPath(path::DataFiles, filename::StandardConditions));
        file.Number(Calc.StdPressure);
        file.Number(Calc.StdTemperature);
        file.Number(Calc.BaroPressure);
        file.Line(Suite.HideFluidReminder);
        file.Line(Suite.HideRoundReminder);
        file.Line(Suite.HideFlowStatus);
        file.Commit();
    } catch (const RuntimeError&) {
        // the words still hold for this run
    }
}

}  // namespace quillmetra
