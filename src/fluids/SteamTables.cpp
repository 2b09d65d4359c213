// See SteamTables.h.
#include "fluids/SteamTables.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/CalcRecord.h"
#include "core/FileNames.h"
#include "core/PhysicalConstants.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "fluids/FluidMessages.h"
#include "fluids/GasCorrelations.h"
#include "platform/Arithmetic.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "units/Border.h"
#include "units/Rounding.h"
#include "units/Temperature.h"
#include "units/Viscosity.h"

namespace quillmetra {

namespace {

// --- The files ---------------------------------------------------------------------------------------------

// Places in a record; the columns of superheat follow each other from FirstColumn on.
constexpr std::size_t AtTemperature = 1;  // of saturation, degF
constexpr std::size_t AtSaturation = 2;
constexpr std::size_t FirstColumn = 3;
constexpr std::array<double, 16> ColumnTemperatures = {240, 340, 400,  500,  600,  650,  700,  750,
                                                       800, 900, 1000, 1100, 1200, 1300, 1400, 1500};

using Record = std::array<float, 20>;
enum Property : std::size_t { Volume, Ratio, ViscosityCp, NotUsed, PropertyCount };
using PressureRow = std::array<Record, PropertyCount>;
constexpr std::size_t RecordBytes = 4 * std::tuple_size_v<Record>;
constexpr std::size_t RowBytes = RecordBytes * PropertyCount;

// Ten times what is shipped, so that a wrong file does not fill the memory.
constexpr std::size_t MostRows = 1000;

// Single precision, low byte first on every machine.
float SingleAt(std::string_view bytes, std::size_t at) {
    std::uint32_t bits = 0;
    for (std::size_t i = 4; i-- > 0;) bits = bits << 8U | static_cast<unsigned char>(bytes[at + i]);
    return std::bit_cast<float>(bits);
}

std::vector<double> ReadPressures(std::string_view path) {
    ItemReader file(path);
    std::vector<double> pressures;
    while (!file.AtEnd() && pressures.size() < MostRows) pressures.push_back(file.NextNumber());
    return pressures;
}

// The rows of which every record is whole.
std::vector<PressureRow> ReadRows(std::string_view path) {
    const std::string bytes = ReadBytes(path);
    std::vector<PressureRow> rows(std::min(bytes.size() / RowBytes, MostRows));
    std::size_t next = 0;
    for (PressureRow& row : rows) {
        for (Record& record : row) {
            for (float& value : record) {
                value = SingleAt(bytes, next);
                next += sizeof(float);
            }
        }
    }
    return rows;
}

// A file of the program's own folder, and its contents as they were read last.
template <typename Contents>
class KeptFile {
public:
    using Reader = Contents (*)(std::string_view path);
    KeptFile(const char* name, Reader read) : name_(name), read_(read) {}

    // Reads the file when it is another one or has changed; else nothing is asked but its stamp. That is
    // taken first: a change meanwhile is found at the next look-up.
    const Contents& Now() {
        const std::string& folder = Suite.DefaultPaths[path::Program];
        if (folder == folder_ && stamp_ != FileStamp{} && StampOf(path_) == stamp_) return held_;
        const std::string file = folder + "\\" + name_;
        folder_ = folder;
        path_ = MachinePath(file);
        const FileStamp stamp = StampOf(path_);
        stamp_ = {};
        held_ = read_(file);
        stamp_ = stamp;
        return held_;
    }

private:
    const char* name_;
    Reader read_;
    std::string folder_;
    std::filesystem::path path_;
    FileStamp stamp_;  // that of no file until it was read whole
    Contents held_;
};

KeptFile<std::vector<double>> PressuresFile(filename::SteamPressures, ReadPressures);
KeptFile<std::vector<PressureRow>> RowsFile(filename::SteamRows, ReadRows);

// The rows below and above a pressure, and how far it lies from the one to the other.
struct Bracket {
    const PressureRow& Lower;
    const PressureRow& Upper;
    float Part;
};

// Throws "Input past end of file" when the files end before the pressure.
Bracket FindRows(double pressure) {
    const std::vector<double>& pressures = PressuresFile.Now();
    const std::vector<PressureRow>& rows = RowsFile.Now();
    double a = 0;
    double b = 0;
    std::size_t count = 0;
    while (pressure > a) {
        if (count == pressures.size()) throw failure::InputPastEnd();
        b = a;
        a = pressures[count++];
    }
    if (count == 0) throw failure::DivisionByZero();
    if (count > rows.size()) throw failure::InputPastEnd();
    const std::size_t upper = count - 1;
    return {.Lower = rows[upper == 0 ? 0 : upper - 1],
            .Upper = rows[upper],
            .Part = static_cast<float>((pressure - b) / (a - b))};
}

double Between(double lower, double upper, float part) {
    return lower - (lower - upper) * static_cast<double>(part);
}

// --- Look-up -----------------------------------------------------------------------------------------------

struct Steam {
    double SpecificVolume = 0;         // ft3/lb
    double RatioOfHeats = 0;           // the isentropic exponent
    double Viscosity = 0;              // cp
    double SaturationTemperature = 0;  // degF, 0 above the critical pressure
};

// One place of all records of both rows.
double AtPlace(const Bracket& rows, Property property, std::size_t place) {
    return Between(static_cast<double>(rows.Lower[property][place]),
                   static_cast<double>(rows.Upper[property][place]), rows.Part);
}

Steam SaturatedSteam(double pressure) {
    const Bracket rows = FindRows(pressure);
    return {.SpecificVolume = AtPlace(rows, Volume, AtSaturation),
            .RatioOfHeats = AtPlace(rows, Ratio, AtSaturation),
            .Viscosity = AtPlace(rows, ViscosityCp, AtSaturation),
            .SaturationTemperature = AtPlace(rows, Volume, AtTemperature)};
}

// A property of one row at a temperature. Where the column before has no steam, the line starts at
// saturation; so it does below the first column, but for a row above the critical pressure, which has no
// saturation and takes the first column alone. Where the column after has no steam either, as within a
// degree below saturation, saturation stands for it: a line to that zero would run away.
// From the critical pressure on a zero counts as any other value.
double InRow(const Record& record, std::size_t column, double temperature, bool critical) {
    const auto value = [&record](std::size_t place) { return static_cast<double>(record[place]); };
    const double high = value(column);
    const bool first = column == FirstColumn;
    if (first && value(AtTemperature) == 0) return high;
    if (high == 0 && !critical) return value(AtSaturation);
    const bool fromSaturation = first || (value(column - 1) == 0 && !critical);
    const double low = value(fromSaturation ? AtSaturation : column - 1);
    const double lowTemperature =
        fromSaturation ? value(AtTemperature) : ColumnTemperatures[column - 1 - FirstColumn];
    const double w =
        (temperature - lowTemperature) / (ColumnTemperatures[column - FirstColumn] - lowTemperature);
    return low + (high - low) * w;
}

Steam SuperheatedSteam(double pressure, double temperature) {
    const Bracket rows = FindRows(pressure);
    const auto* const found = std::find_if(ColumnTemperatures.begin(), ColumnTemperatures.end(),
                                           [temperature](double each) { return each >= temperature; });
    if (found == ColumnTemperatures.end()) return {};
    const std::size_t column = FirstColumn + static_cast<std::size_t>(found - ColumnTemperatures.begin());
    const bool critical = !(pressure < SteamCritPressure);
    const auto at = [&](Property property) {
        return Between(InRow(rows.Lower[property], column, temperature, critical),
                       InRow(rows.Upper[property], column, temperature, critical), rows.Part);
    };
    return {.SpecificVolume = at(Volume),
            .RatioOfHeats = at(Ratio),
            .Viscosity = at(ViscosityCp),
            .SaturationTemperature = critical ? 0 : AtPlace(rows, Volume, AtTemperature)};
}

// False for what no steam can be, also for values that are no numbers.
bool IsSteam(const Steam& steam) {
    const std::array values = {steam.SpecificVolume, steam.RatioOfHeats, steam.Viscosity,
                               1 / steam.SpecificVolume};
    return std::isfinite(steam.SaturationTemperature) &&
           std::all_of(values.begin(), values.end(),
                       [](double value) { return value > 0 && std::isfinite(value); });
}

// --- The record --------------------------------------------------------------------------------------------

double& CaseRow(std::size_t row) { return Calc.CaseInput[row][static_cast<std::size_t>(Calc.CaseIndex)]; }

constexpr std::array<std::size_t, 6> SteamRows = {5, 7, 9, 10, 11, 12};

double CritTemperatureShown() {
    struct Shown {
        std::string_view Unit;
        double Value;
    };
    constexpr std::array<Shown, 4> shown = {
        {{"degR", SteamCritTemperature}, {"degK", 647}, {"degF", 705.5}, {"degC", 374}}};
    for (const Shown& each : shown) {
        if (each.Unit == Calc.UnitName[unit::CritTemperature]) return each.Value;
    }
    return 1165 * Calc.UnitFactor[unit::CritTemperature];
}

void Store(const Steam& steam) {
    const auto& factor = Calc.UnitFactor;
    // In the order of SteamRows.
    const std::array<double, SteamRows.size()> shown = {
        SteamMolecularWeight,
        ShownFigures(GasViscosityShown(steam.Viscosity, SteamMolecularWeight)),
        ShownFigures(1 / steam.SpecificVolume / factor[unit::Density]),
        ShownFigures(steam.RatioOfHeats),
        CheckFinite(RoundedSix(SteamCritPressure / factor[unit::CritPressure])),
        CheckFinite(CritTemperatureShown())};
    for (std::size_t i = 0; i < SteamRows.size(); ++i) CaseRow(SteamRows[i]) = shown[i];
    Calc.Density = 1 / steam.SpecificVolume;
    Calc.RatioSpecificHeats = steam.RatioOfHeats;
    Calc.Viscosity = steam.Viscosity;
    Calc.MolecularWeight = SteamMolecularWeight;
    Calc.CritPressure = SteamCritPressure;
    Calc.CritTemperature = SteamCritTemperature;
}

double SaturationShown(const Steam& steam) {
    return CheckFinite(TemperatureShown(steam.SaturationTemperature));
}

bool Fail(const char* title, const std::string& text) {
    Calc.MessageTitle = title;
    Calc.MessageText = text;
    return false;
}

// Looks steam up and keeps what is steam. The failures of both look-ups are caught here.
template <typename Find, typename Keep>
bool Lookup(Find find, Keep keep) {
    try {
        const Steam steam = find();
        if (!IsSteam(steam)) return Fail("Gas Calculation", NotCalculable);
        keep(steam);
        return true;
    } catch (const RuntimeError& error) {
        return Fail("Program default drive and path file",
                    "The steam files cannot be used: " + error.Description);
    }
}

// --- Limits ------------------------------------------------------------------------------------------------

std::string Shown(double value, const std::string& unit) {
    return TrimmedStr(RoundedSix(value)) + " " + unit;
}

std::string Entered(std::size_t row) { return TrimmedStr(CaseRow(row)) + " " + Calc.UnitName[row]; }

SteamOutcome ClearSteam() {
    for (const std::size_t row : SteamRows) CaseRow(row) = 0;
    return SteamOutcome::Cleared;
}

SteamOutcome TellLookupFailure() {
    Tell(Calc.MessageText, Calc.MessageTitle, Icon::Stop);
    return SteamOutcome::Refused;
}

SteamOutcome TellAboveCritical() {
    Tell("Flow pressure " + Entered(3) + " cannot exceed\n Critical pressure " +
             Shown(PressureShown(SteamCritPressure), Calc.UnitName[unit::Pressure]),
         "Saturated Steam", Icon::Stop);
    return SteamOutcome::Refused;
}

// The limit is told as it stands, absolute, also in a gauge unit.
SteamOutcome TellAboveTable() {
    Tell("Maximum pressure on file is " +
             Shown(SteamHighestPressure / Calc.UnitFactor[unit::Pressure], Calc.UnitName[unit::Pressure]),
         "Superheated Steam", Icon::Stop);
    return SteamOutcome::Refused;
}

SteamOutcome TellTemperatureRange() {
    struct Range {
        std::string_view Unit;
        const char* Low;
        const char* High;
    };
    constexpr std::array<Range, 4> ranges = {{{"degF", "200 degF", "1500 degF"},
                                              {"degC", "93.34 degC", "816 degC"},
                                              {"degR", "661 degR", "1960 degR"},
                                              {"degK", "368 degK", "1089 degK"}}};
    const auto* range = std::find_if(ranges.begin(), ranges.end(), [](const Range& each) {
        return each.Unit == Calc.UnitName[unit::Temperature];
    });
    if (range == ranges.end()) range = ranges.begin();
    Tell(std::string("Table is limited to a range of ") + range->Low + " to " + range->High,
         "Superheat Temperature", Icon::Stop);
    return ClearSteam();
}

// The title names row 10, which is the ratio of specific heats; it stands so.
SteamOutcome TellBelowSaturation() {
    Tell("Superheat temp " + Entered(2) + " must be greater than the Saturated temp. " +
             Shown(Calc.SaturationTemperature, Calc.UnitName[unit::Temperature]),
         "Minimum Temperature below " + Entered(10) + " is the Saturated Temperature");
    return ClearSteam();
}

SteamOutcome GetSaturated() {
    if (Calc.FlowPressure > SteamCritPressure) return TellAboveCritical();
    if (!LookupSaturatedSteam()) return TellLookupFailure();
    // Six figures: with four the temperature could pass the next whole degree, by which steam that is
    // loaded from a record is known as saturated.
    CaseRow(2) = RoundedSix(Calc.SaturationTemperature);
    Calc.LatentHeatAtFlow = SaturatedSteamLatentHeat(Calc.FlowTemperature);
    return SteamOutcome::Found;
}

SteamOutcome GetSuperheated() {
    const double temperature = Calc.FlowTemperature;
    if (Calc.FlowPressure > SteamHighestPressure) return TellAboveTable();
    if (!(temperature <= SteamHighestTemperature && temperature >= SteamLowestTemperature)) {
        return TellTemperatureRange();
    }
    if (Calc.FlowPressure < SteamCritPressure) {
        if (!LookupSaturatedSteam()) return TellLookupFailure();
        Calc.FlowTemperature = temperature;
        if (Calc.SaturationTemperature - CaseRow(2) > 1) return TellBelowSaturation();
    }
    if (!LookupSuperheatedSteam()) {
        TellLookupFailure();
        return ClearSteam();
    }
    Calc.LatentHeatAtFlow = 0;
    return SteamOutcome::Found;
}

}  // namespace

bool LookupSaturatedSteam() {
    return Lookup([] { return SaturatedSteam(Calc.FlowPressure); },
                  [](const Steam& steam) {
                      const double shown = SaturationShown(steam);
                      if (Calc.SteamFindMode != words::FindSaturation) {
                          Store(steam);
                          Calc.FlowTemperature = steam.SaturationTemperature;
                      }
                      Calc.SaturationTemperature = shown;
                  });
}

bool LookupSuperheatedSteam() {
    return Lookup([] { return SuperheatedSteam(Calc.FlowPressure, Calc.FlowTemperature); },
                  [](const Steam& steam) {
                      Store(steam);
                      if (Calc.FlowPressure < SteamCritPressure) {
                          Calc.SaturationTemperature = steam.SaturationTemperature;
                      }
                  });
}

double SaturatedSteamLatentHeat(double temperature) {
    const double heat =
        WatsonLatentHeat(SteamBoilingPoint, SteamBoilingHeat, SteamCritTemperature, temperature);
    return heat + (3 * heat) / 300;
}

SteamOutcome GetSteamData() {
    if (!(Calc.FlowPressure > 0)) return SteamOutcome::NoPressure;
    const SteamOutcome outcome = Calc.SteamKind == words::Superheated ? GetSuperheated() : GetSaturated();
    if (outcome == SteamOutcome::Found) {
        Calc.NormalBoilingPoint = SteamBoilingPoint;
        Calc.LatentHeatBP = SteamBoilingHeat;
    }
    return outcome;
}

}  // namespace quillmetra
