// See Version5.h.
#include "records/Version5.h"

#include <bit>
#include <cmath>
#include <cstdint>

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/StartUp.h"
#include "core/Words.h"
#include "lineloss/PipeMaterials.h"
#include "platform/Database.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"
#include "records/RecordFiles.h"
#include "records/SaveRecord.h"
#include "units/NamedUnitSets.h"
#include "units/RecordUnits.h"
#include "units/Temperature.h"

namespace quillmetra {

namespace {

constexpr std::size_t Rows = 28;
constexpr std::size_t NameLength = 8;
constexpr std::size_t Counts = 14;
constexpr int RefusalsToAsk = 20;  // of saves, before the user is asked whether to go on

// Where the fields stand. Behind the text, whose place depends on the width of the counts, are fields that
// nobody reads any more.
enum Offset : std::size_t {
    ProgramAt = 0,
    FoulingAt = 2,
    MaterialAt = 4,
    GasBasisAt = 6,
    LiquidBasisAt = 9,
    FactorsAt = 12,
    CasesAt = 124,  // maximum, normal, minimum
    NamesAt = 460,
    PipeAt = 684,
    CountsAt = 708,
};
constexpr std::size_t TextLength = 60;

std::uint32_t Unsigned(std::string_view record, std::size_t at, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t i = size; i-- > 0;) value = value << 8 | static_cast<unsigned char>(record[at + i]);
    return value;
}

int Integer(std::string_view record, std::size_t at) {
    return static_cast<std::int16_t>(Unsigned(record, at, 2));
}

float Raw(std::string_view record, std::size_t at) { return std::bit_cast<float>(Unsigned(record, at, 4)); }

double Single(std::string_view record, std::size_t at) {
    return SingleRead(static_cast<double>(Raw(record, at)));
}

std::string Text(std::string_view record, std::size_t at, std::size_t length) {
    const std::string_view field = record.substr(at, length);
    return Utf8From1252(Trim(field.substr(0, field.find('\0'))));
}

bool IsSingleCount(std::string_view record, std::size_t at) {
    const float size = std::abs(Raw(record, at));
    return size == 0 || (size >= 0.001F && size <= 10000);
}

bool IsIntegerCount(std::string_view record, std::size_t at) {
    const int value = Integer(record, at);
    return value >= 0 && value <= 1000;
}

double Count(std::string_view record, std::size_t at, std::size_t width) {
    if (width == 2) return Integer(record, at);
    return IsSingleCount(record, at) ? Single(record, at) : 0;
}

const char* BasisOf(const std::string& word) {
    return SameName(word, words::Volume) ? words::Volume : words::Mass;
}

void TakeUnits(std::string_view record) {
    for (std::size_t row = 0; row < Rows; ++row) {
        Calc.UnitFactor[row] = Single(record, FactorsAt + 4 * row);
        Calc.UnitName[row] = Text(record, NamesAt + NameLength * row, NameLength);
    }
    // The two densities of a liquid have one unit now, that of row 6.
    if (Calc.FluidType == words::Liquid && Calc.UnitName[unit::LiquidDensity].empty()) {
        Calc.UnitName[unit::LiquidDensity] = Calc.UnitName[unit::Density];
        Calc.UnitFactor[unit::LiquidDensity] = Calc.UnitFactor[unit::Density];
    }
    MendUnitFactors();
    Calc.PressureMode = Calc.UnitName[unit::Pressure].ends_with('a') ? words::Absolute : words::Gauge;
}

void TakePipe(std::string_view record, std::size_t countWidth) {
    for (std::size_t i = 1; i <= 6; ++i) Calc.PipeData[i] = Single(record, PipeAt + 4 * (i - 1));
    for (const int flag : {pipe::Entrance, pipe::Exit})
        Calc.PipeData[At(flag)] = Calc.PipeData[At(flag)] == pipe::Ticked ? pipe::Ticked : pipe::NotTicked;
    for (std::size_t i = 1; i <= Counts; ++i) {
        Calc.FittingCount[i] = Count(record, CountsAt + countWidth * (i - 1), countWidth);
    }
    const int fouling = Integer(record, FoulingAt);
    Calc.PipeFouling = fouling >= 0 && fouling <= 100 ? fouling : 0;
    const int material = Integer(record, MaterialAt);
    Calc.PipeMaterialNumber = FindPipeMaterial(material) == nullptr ? 1 : material;
    Calc.PipeMaterial = FindPipeMaterial(Calc.PipeMaterialNumber)->Name;
}

// They stand among the inputs in the units shown, and this version keeps them in degF and psia.
void TakeStandardConditions() {
    const auto value = [](std::size_t row) { return Calc.CaseInput[row][0]; };
    // 0 degC is a standard temperature, but not where nothing was given at all.
    if (value(21) != 0 || value(22) != 0)
        Calc.StdTemperature =
            ToDegF(Calc.UnitName[unit::StdTemperature], value(21), Calc.UnitFactor[unit::StdTemperature]);
    Calc.StdPressure = value(22) * Calc.UnitFactor[unit::StdPressure];
    Calc.BaroPressure = value(23) * Calc.UnitFactor[unit::Barometer];
    for (double* condition : {&Calc.StdTemperature, &Calc.StdPressure, &Calc.BaroPressure}) {
        *condition = SingleRead(*condition);  // a product may be out of range
    }
    RestoreStandardConditions();
    const bool si = Calc.UnitName[unit::Temperature] == "degC" || Calc.UnitName[unit::Temperature] == "degK";
    si ? STPSI() : STPEnglish();
}

std::string NameInList(int index, const std::string& tag) {
    return "record " + std::to_string(index + 1) + ", " + (tag.empty() ? "without a tag" : tag);
}

bool MayGoOn(const Version5Report& report) {
    return AskYesNo(Counted(report.Unsaved.size(), "record") + " could not be saved so far\nContinue",
                    "Convert 5.x to 6 data");
}

}  // namespace

Version5File::Version5File(std::string bytes) : bytes_(std::move(bytes)) {
    // A pair of small integers is far below any count as a single, and a single count is a large integer.
    if (!EveryCount(4, IsSingleCount) && EveryCount(2, IsIntegerCount)) countWidth_ = 2;
}

std::string_view Version5File::RecordAt(int index) const {
    return std::string_view(bytes_).substr(static_cast<std::size_t>(index) * RecordSize, RecordSize);
}

template <typename Test>
bool Version5File::EveryCount(std::size_t width, Test test) const {
    for (int index = 0; index < Count(); ++index) {
        for (std::size_t i = 0; i < Counts; ++i) {
            if (!test(RecordAt(index), CountsAt + width * i)) return false;
        }
    }
    return true;
}

bool Version5File::Take(int index) const {
    const std::string_view record = RecordAt(index);
    const Program* const program = FindProgram(Integer(record, ProgramAt));
    if (program == nullptr) return false;
    Calc.CurrentProgram = program->Number;
    Calc.FluidType = program->FluidType;
    Calc.ProgramTitle = program->Title;
    Calc.LiquidUnitSet = Calc.GasUnitSet = 0;  // the units are the record's own
    Calc.Basis = BasisOf(Text(record, GasBasisAt, 3));
    Calc.LiquidBasis = BasisOf(Text(record, LiquidBasisAt, 3));
    for (std::size_t i = 0; i < CaseCount; ++i) {
        for (std::size_t row = 0; row < Rows; ++row) {
            Calc.CaseInput[row][i] = Single(record, CasesAt + 4 * (Rows * i + row));
        }
    }
    TakeUnits(record);
    TakePipe(record, countWidth_);
    Calc.CaseUnitsText[printed::Date] = Text(record, CountsAt + Counts * countWidth_, TextLength);
    TakeStandardConditions();
    return true;
}

Version5Report SaveVersion5(const Version5File& records, const std::vector<std::string>& tags) {
    Version5Report report;
    for (int index = 0; index < records.Count(); ++index) {
        if (UserWantsToStop()) {
            report.Stopped = true;
            break;
        }
        ResetRecord();
        LoadHeadings();
        report.HeadingsCut = CutHeadings();
        if (!records.Take(index)) {
            ++report.OtherPrograms;
            continue;
        }
        const auto line = static_cast<std::size_t>(index);
        Calc.Tag = line < tags.size() ? std::string(Trim(tags[line])) : "";
        Calc.LoadedDatabaseFile.clear();  // the record is of no database: all of it is written
        if (SaveTRCalc(true)) continue;
        report.Unsaved.push_back(NameInList(index, Calc.Tag));
        const bool asks = report.Unsaved.size() % RefusalsToAsk == 0;
        if (StoreFailed() || (asks && !MayGoOn(report))) {
            report.Stopped = true;
            break;
        }
    }
    return report;
}

}  // namespace quillmetra
