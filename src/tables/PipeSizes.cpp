// See PipeSizes.h.
#include "tables/PipeSizes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <utility>

#include "core/CalcRecord.h"
#include "core/PipeFamilies.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "platform/Arithmetic.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"
#include "tables/TableFiles.h"
#include "units/Rounding.h"

namespace quillmetra {

namespace {

constexpr const char* Dialog = "frmPipeSize";

// Inches in a millimetre, as the suite's own unit of pipe size has it.
constexpr double InchesPerMillimetre = 0.03937;

// Nominal sizes go by 25 mm to the inch. The offsets let every size of the table find itself again: 88 typed
// is size 3.5, and size 3.5 (87.5) is listed as 88.
constexpr double MillimetreGrid = 0.04;
constexpr double TypedSizeOffset = 0.65;
constexpr double ListedSizeOffset = 0.63;

// A size is read from the first characters of a line alone.
constexpr std::size_t SizeLength = 4;

struct PipeCaller {
    std::string_view Word;
    const char* Form;
    const char* DiameterBox;
    const char* WallBox;  // null where the form has none
};

constexpr std::array<PipeCaller, 3> PipeCallers = {{
    {words::PipeLiquidLoss, "frmLiqLineLoss", "txtInletPipeID", nullptr},
    {words::PipeGasLoss, "frmGasLineLoss", "txtInletPipeID", nullptr},
    {words::PipeWaterHammer, "frmWaterHammer", "txtPipeID", "txtPipeWall"},
}};

// Factors that went through a database have seven digits.
bool SameFactor(double a, double b) { return std::abs(a - b) <= 1e-6 * std::abs(b); }

bool IsMetric(double diameterFactor) {
    const std::array metricFactors = {InchesPerMillimetre, 0.3937, 39.37};  // mm, cm, m
    return std::any_of(metricFactors.begin(), metricFactors.end(),
                       [&](double factor) { return SameFactor(diameterFactor, factor); });
}

bool ListsMillimetres() { return SameFactor(Calc.UnitFactor[pipeunit::PipeSizeFactor], InchesPerMillimetre); }

// A size as it is typed: 6, .5, 1/2, 1 1/2, 2-1/2, with a unit behind it or not. 0 for anything else that a
// number could be read from, such as two of them: another pipe would be found.
double NominalSize(std::string_view typed) {
    constexpr std::size_t longest = 40;
    const std::string text(Trim(typed));
    if (text.size() > longest) return 0;
    static const std::regex fraction(R"((?:(\d+)(?: +| *- *))?(\d+) */ *(\d+)[ "a-z.]*)", std::regex::icase);
    static const std::regex number(R"(([+-]?(?:\d+\.?\d*|\.\d+)(?:[ed][+-]?\d+)?)[ "a-z.]*)",
                                   std::regex::icase);
    std::smatch part;
    if (std::regex_match(text, part, number)) return Val(part[1].str());
    if (!std::regex_match(text, part, fraction)) return 0;
    const double above = Val(part[2].str()), below = Val(part[3].str());
    return above < below ? Val(part[1].str()) + above / below : 0;
}

// The size on the table's inch grid up to which rows count.
double TargetSize(std::string_view typed) {
    const double target = NominalSize(typed) * Calc.UnitFactor[pipeunit::PipeSizeFactor];
    if (!ListsMillimetres()) return target;
    return (target / InchesPerMillimetre + TypedSizeOffset) * MillimetreGrid;
}

// The nominal size that a row of the file begins with; a line that starts with no size is no row of pipe.
double SizeOf(std::string_view row) { return Val(row.substr(0, SizeLength)); }

std::vector<std::string> RowsOfFamily() {
    const std::string family = PipeFamilyFile();
    std::vector<std::string> rows = ReadTable(table::PipeFamily, {.FileName = family});
    std::erase_if(rows, [](const std::string& row) { return SizeOf(row) <= 0; });
    return rows;
}

// The rows of the largest size not above the target.
std::vector<std::string> RowsOfSize(double target) {
    std::vector<std::string> kept;
    double keptSize = 0;
    for (std::string& row : RowsOfFamily()) {
        const double size = SizeOf(row);
        if (size > target || size < keptSize) continue;
        if (size > keptSize) kept.clear();
        keptSize = size;
        kept.push_back(std::move(row));
    }
    return kept;
}

std::string ListedSize(const std::string& size) {
    return TrimmedStr(Int(Val(size) / Calc.UnitFactor[pipeunit::PipeSizeRound] +
                          Calc.UnitFactor[pipeunit::PipeSizeOffset]));
}

std::string ListedLength(const std::string& inches) {
    return TrimmedStr(CheckFinite(RoundedThree(Val(inches) / Calc.UnitFactor[pipeunit::PipeSizeFactor])));
}

// Pad to a width on the left or on the right; a longer text stays as it is.
std::string PadLeft(const std::string& text, std::size_t width) {
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

std::string PadRight(const std::string& text, std::size_t width) {
    return text + std::string(width - std::min(width, text.size()), ' ');
}

std::string ListLine(const std::string& row) {
    TableFields fields = SplitTableLine(table::Pipe, row);
    if (ListsMillimetres()) {
        fields[0] = ListedSize(fields[0]);
        fields[2] = ListedLength(fields[2]);
        fields[3] = ListedLength(fields[3]);
    }
    return PadLeft(fields[0] + ",", 4) + PadRight(fields[1] + ",", 6) + PadRight(fields[2] + ",", 7) +
           PadRight(fields[3] + ",", 6);
}

// A length of the list in the form's unit of the diameter.
double InFormUnit(double length) {
    return CheckFinite(length / Calc.UnitFactor[pipeunit::Diameter] *
                       Calc.UnitFactor[pipeunit::PipeSizeFactor]);
}

void WriteBox(const char* form, const char* box, double value) {
    dynamic_cast<TextBox&>(ControlOf(form, box)).SetText(Str(value));
}

// After the boxes, whose change drops the name of the pipe before.
void KeepPipeName(const char* form, const std::string& name) {
    if (Calc.PipeName != name) Calc.ChangedFlag = words::No;
    Calc.PipeName = name;
    if (auto* const box = dynamic_cast<TextBox*>(LoadForm(form).Find("txtPipeName"))) box->SetText(name);
}

// A family of the user's own goes by its file.
std::string FamilyWord() {
    std::string file = PipeFamilyFile();
    for (const PipeFamily& family : PipeFamilies) {
        if (SameName(file, family.File)) return family.Word;
    }
    return file;
}

}  // namespace

void SetPipeUnits() {
    const bool metric = IsMetric(Calc.UnitFactor[pipeunit::Diameter]);
    Calc.UnitFactor[pipeunit::PipeSizeRound] = metric ? MillimetreGrid : 1;
    Calc.UnitFactor[pipeunit::PipeSizeFactor] = metric ? InchesPerMillimetre : 1;
    Calc.UnitFactor[pipeunit::PipeSizeOffset] = metric ? ListedSizeOffset : 0;
    Calc.UnitName[pipeunit::PipeSizeRound] = metric ? "mm" : "in";
}

void PreparePipeUnits() {
    SetPipeUnits();
    const std::string& word = Calc.UnitName[pipeunit::PipeSizeRound];
    if (ControlOf(Dialog, "lblPipeUnits").Caption() != word) UnloadForm(Dialog);
    const bool converts =
        !SameFactor(Calc.UnitFactor[pipeunit::PipeSizeFactor], Calc.UnitFactor[pipeunit::Diameter]);
    ControlOf(Dialog, "lblPipeUnits").SetCaption(word);
    ControlOf(Dialog, "lblConvertUnits").SetCaption(converts ? "Units will be Converted" : "");
    ShowForm(Dialog, Modal::Yes);
}

namespace {

// The names of all files W-*.TXT in the folder of the tables, in order.
std::set<std::string> FilesOfPipe() {
    std::set<std::string> files;
    std::error_code ignored;
    const auto folder = MachinePath(Suite.DefaultPaths[path::DataFiles]);
    for (const auto& entry : std::filesystem::directory_iterator(folder, ignored)) {
        const std::string name = SuitePath(entry.path().filename()), lower = LowerCase(name);
        if (lower.starts_with("w-") && lower.ends_with(".txt")) files.insert(name);
    }
    return files;
}

}  // namespace

std::vector<PipeFile> PipeFiles() {
    std::set<std::string> there = FilesOfPipe();
    std::vector<PipeFile> files;
    for (const PipeFamily& family : PipeFamilies) {
        const auto isFamily = [&](const std::string& file) { return SameName(file, family.File); };
        const bool found = std::erase_if(there, isFamily) > 0;
        if (found || files.empty()) files.push_back({family.File, family.Name, family.Note});
    }
    for (const std::string& file : there) files.push_back({file, file, ""});
    return files;
}

std::string PipeFamilyFile() {
    return Suite.PipeFamily.empty() ? PipeFamilies.front().File : Suite.PipeFamily;
}

namespace {
std::vector<std::string> Listed(std::vector<std::string> rows) {
    std::transform(rows.begin(), rows.end(), rows.begin(), ListLine);
    return rows;
}
}  // namespace

std::vector<std::string> FindPipeSizes(std::string_view nominalSize) {
    return Listed(RowsOfSize(TargetSize(nominalSize)));
}

std::vector<std::string> AllPipeSizes() { return Listed(RowsOfFamily()); }

double PipeDiameterOf(std::string_view listLine) {
    return RoundedSix(InFormUnit(Val(SplitTableLine(table::Pipe, listLine)[2])));
}

void TakePipeRow(std::string_view listLine) {
    const TableFields fields = SplitTableLine(table::Pipe, listLine);
    Calc.PipeInsideDiameter = Val(fields[2]);
    Calc.PipeWallThickness = Val(fields[3]);
}

std::string PipeNameOf(std::string_view listLine) {
    const TableFields fields = SplitTableLine(table::Pipe, listLine);
    const std::string schedule(Trim(fields[1]));
    std::string name = std::string(Trim(fields[0])) + " " + Calc.UnitName[pipeunit::PipeSizeRound];
    if (!schedule.empty()) name += (IsDigit(schedule[0]) ? " sch " : " ") + schedule;
    const std::string family = FamilyWord();
    return family.empty() ? name : name + " " + family;
}

namespace {

struct NamedPipe {
    std::string File, Line;
};
using NamedPipes = std::map<std::string, NamedPipe, std::less<>>;

// 6" Sch  40 is 6 in sch 40.
std::string PlainName(std::string_view name) {
    std::string plain;
    for (const char c : name) {
        if (c == '"') {
            plain += plain.ends_with(' ') ? "in " : " in ";
        } else if (!IsBlank(c) || !plain.ends_with(' ')) {
            plain += LowerCase(c);
        }
    }
    return std::string(Trim(plain));
}

void SetNameUnits(bool metric) {
    const double factor =
        std::exchange(Calc.UnitFactor[pipeunit::Diameter], metric ? InchesPerMillimetre : 1);
    SetPipeUnits();
    Calc.UnitFactor[pipeunit::Diameter] = factor;
}

// Of two families with one name the first counts.
NamedPipes AllPipes(bool metric) {
    SetNameUnits(metric);
    const std::string family = Suite.PipeFamily;
    NamedPipes pipes;
    for (const PipeFile& file : PipeFiles()) {
        Suite.PipeFamily = file.File;
        try {
            for (const std::string& line : AllPipeSizes())
                pipes.try_emplace(PlainName(PipeNameOf(line)), NamedPipe{file.File, line});
        } catch (const RuntimeError&) {
            // A file that cannot be read has no pipe to offer.
        }
    }
    Suite.PipeFamily = family;
    return pipes;
}

std::vector<FileStamp> StampsOfPipes() {
    std::vector<FileStamp> stamps;
    for (const PipeFile& file : PipeFiles())
        stamps.push_back(StampOf(MachinePath(Suite.DefaultPaths[path::DataFiles] + "\\" + file.File)));
    return stamps;
}

}  // namespace

std::string TakePipeNamed(std::string_view name) {
    static std::array<NamedPipes, 2> known;
    static std::vector<FileStamp> stamps;
    if (std::vector<FileStamp> now = StampsOfPipes(); now != stamps) {
        stamps = std::move(now);
        known = {AllPipes(false), AllPipes(true)};
    }
    const std::string plain = PlainName(name);
    for (const bool metric : {false, true}) {
        const NamedPipes& pipes = known.at(metric ? 1 : 0);
        const auto found = pipes.find(plain);
        if (found == pipes.end()) continue;
        SetNameUnits(metric);
        Suite.PipeFamily = found->second.File;
        return found->second.Line;
    }
    return "";
}

void ReturnPipeSize(const std::string& pipeName) {
    const double wall = RoundedFour(InFormUnit(Calc.PipeWallThickness));
    const double diameter = RoundedSix(InFormUnit(Calc.PipeInsideDiameter));
    for (const PipeCaller& caller : PipeCallers) {
        if (Calc.MessageText != caller.Word) continue;
        WriteBox(caller.Form, caller.DiameterBox, diameter);
        if (caller.WallBox != nullptr) WriteBox(caller.Form, caller.WallBox, wall);
        KeepPipeName(caller.Form, pipeName);
        break;
    }
    CancelPipeSize();
}

void CancelPipeSize() {
    Calc.MessageText.clear();
    UnloadForm(Dialog);
}

}  // namespace quillmetra
