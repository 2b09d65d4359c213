// See UserUnits.h.
#include "units/UserUnits.h"

#include <array>
#include <span>
#include <string>

#include "core/CalcRecord.h"
#include "core/FileNames.h"
#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "platform/Utf8.h"
#include "units/NamedUnitSets.h"
#include "units/RecordUnits.h"
#include "units/UnitCatalogue.h"

namespace quillmetra {

namespace {

// The pairs of the file in their order.
constexpr std::array<std::size_t, 10> LiquidRows = {
    unit::LiquidFlow, unit::Temperature, unit::Pressure, unit::PressureDrop, unit::Viscosity,
    unit::Velocity,   unit::Modulus,     unit::PipeSize, unit::Length,       unit::UserDensity};
constexpr std::array<std::size_t, 10> GasRows = {
    unit::GasFlow,      unit::Temperature, unit::Pressure,     unit::PressureDrop, unit::CritTemperature,
    unit::CritPressure, unit::Velocity,    unit::GasViscosity, unit::PipeSize,     unit::Length};

struct UserSet {
    std::string Basis = words::Mass;
    int UnitSet = 0;
    UnitNames Names{};
    UnitFactors Factors{};
};

struct UserFile {
    UserSet Liquid, Gas;
    std::string PressureMode = words::Gauge;
    std::string DensityMode = words::Gravity;
    double BaroPressure = 0;  // psia
};

std::string FileName() { return InDefaultPath(path::UserUnits, filename::UserUnits); }

// --- Reading ---------------------------------------------------------------------------------------------

double NextNumber(LineReader& file) { return Val(file.NextWhole()); }

// One of two words; an empty line stands for the first. Any other word shows that this is no such file.
std::string NextWord(LineReader& file, const char* usual, const char* other) {
    std::string word = file.NextWhole();
    if (word.empty()) return usual;
    if (word != usual && word != other) throw failure::DeviceError();
    return word;
}

int NextUnitSet(LineReader& file) {
    const double number = NextNumber(file);
    for (int set = 1; set <= UserUnitSet; ++set) {
        if (number == set) return set;
    }
    return 0;
}

void ReadSet(LineReader& file, UserSet& set, std::span<const std::size_t> rows) {
    set.Basis = NextWord(file, words::Mass, words::Volume);
    set.UnitSet = NextUnitSet(file);
    for (const std::size_t row : rows) {
        set.Names[row] = FirstCharacters(file.NextWhole(), LongestUnitName);
        const double factor = NextNumber(file);
        set.Factors[row] = IsUsableFactor(factor) ? factor : 0;
    }
}

// Line by line, not item by item: a unit's name may hold a comma.
UserFile ReadFile() {
    LineReader file(FileName());
    UserFile read;
    ReadSet(file, read.Liquid, LiquidRows);
    ReadSet(file, read.Gas, GasRows);
    read.Gas.Names[unit::Viscosity] = read.Gas.Names[unit::GasViscosity];
    read.Gas.Factors[unit::Viscosity] = read.Gas.Factors[unit::GasViscosity];
    read.PressureMode = NextWord(file, words::Gauge, words::Absolute);
    read.DensityMode = NextWord(file, words::Gravity, words::Density);
    read.BaroPressure = NextNumber(file);
    return read;
}

void KeepUserSets(const UserFile& file) {
    Suite.UserLiquidUnitName = file.Liquid.Names;
    Suite.UserLiquidUnitFactor = file.Liquid.Factors;
    Suite.UserLiquidBasis = file.Liquid.Basis;
    Suite.UserGasUnitName = file.Gas.Names;
    Suite.UserGasUnitFactor = file.Gas.Factors;
    Suite.UserGasBasis = file.Gas.Basis;
    Suite.LiquidBootSet = file.Liquid.UnitSet;
    Suite.GasBootSet = file.Gas.UnitSet;
    Suite.BootDensityMode = file.DensityMode;
}

// The other fluid's part of the file stays what it was.
void TakeBootSet() {
    if (Calc.FluidType == words::Gas) Suite.GasBootSet = Calc.GasUnitSet;
    if (Calc.FluidType != words::Liquid) return;
    Suite.LiquidBootSet = Calc.LiquidUnitSet;
    Suite.BootDensityMode = Calc.LiquidDensityMode;
}

// --- Taking a set ----------------------------------------------------------------------------------------

// In the fluid data programs these follow the family of the pressure unit, whatever the set holds. The
// gauge names of row 8 stand, although vapor pressures are absolute.
struct FamilyUnit {
    std::size_t Row;
    const char* English;
    const char* SI;
    double SIFactor;
};
constexpr FamilyUnit FamilyUnits[] = {
    {unit::VaporPressure, "psig", "kPag", PsiPerKPa}, {unit::Density, "lb/ft3", "kg/m3", 0.062428},
    {unit::CritPressure, "psia", "kPaa", PsiPerKPa},  {unit::CritTemperature, "degR", "degK", 1},
    {unit::LatentHeat, "btu/lb", "kJ/kg", 0.42992},
};

void TakeFamilyUnits(bool english) {
    for (const FamilyUnit& unit : FamilyUnits) {
        Calc.UnitName[unit.Row] = english ? unit.English : unit.SI;
        Calc.UnitFactor[unit.Row] = english ? 1 : unit.SIFactor;
    }
}

void TakeUnit(std::size_t row, const std::string& name, double factor) {
    if (name.empty() || !IsUsableFactor(factor)) return;
    Calc.UnitName[row] = name;
    Calc.UnitFactor[row] = factor;
}

// The set may have been saved in the other pressure mode.
void MatchPressureEnding() {
    std::string& unit = Calc.UnitName[unit::Pressure];
    if (unit.empty() || (unit.back() != 'g' && unit.back() != 'a')) return;
    unit.back() = Calc.PressureMode == words::Absolute ? 'a' : 'g';
}

void TakeLiquidSet() {
    Calc.LiquidUnitSet = UserUnitSet;
    Calc.LiquidBasisPrevious = Calc.LiquidBasis;
    Calc.LiquidBasis = Suite.UserLiquidBasis;
    for (const std::size_t row : LiquidRows) {
        TakeUnit(row, Suite.UserLiquidUnitName[row], Suite.UserLiquidUnitFactor[row]);
    }
    // A set of earlier days may have a time base there.
    const bool density =
        !Calc.UnitName[unit::UserDensity].empty() && Calc.UnitName[unit::UserDensity].front() != '/';
    for (const int row : {unit::LiquidDensity, unit::Density}) {
        if (density) TakeUnit(At(row), Calc.UnitName[unit::UserDensity], Calc.UnitFactor[unit::UserDensity]);
    }
    Calc.UnitName[unit::UserDensity].clear();
    Calc.UnitFactor[unit::UserDensity] = 1;
}

void TakeGasSet() {
    Calc.GasUnitSet = UserUnitSet;
    Calc.BasisPrevious = Calc.Basis;
    Calc.Basis = Suite.UserGasBasis;
    for (const std::size_t row : GasRows) {
        TakeUnit(row, Suite.UserGasUnitName[row], Suite.UserGasUnitFactor[row]);
    }
    TakeUnit(unit::Viscosity, Calc.UnitName[unit::GasViscosity], Calc.UnitFactor[unit::GasViscosity]);
}

// --- Writing ---------------------------------------------------------------------------------------------

void WriteSet(TextWriter& file, const std::string& basis, int set, std::span<const std::size_t> rows,
              const UnitNames& names, const UnitFactors& factors) {
    file.Line(basis);
    file.Number(set);
    for (const std::size_t row : rows) {
        file.Line(names[row]);
        file.Number(factors[row]);
    }
}

// The basis belongs to the flow unit of the set; a file without one keeps the basis in force.
const std::string& BasisToWrite(double flowFactor, const std::string& ofSet, const std::string& inForce) {
    return flowFactor != 0 && !ofSet.empty() ? ofSet : inForce;
}

}  // namespace

bool ReadUserUnitSets() {
    try {
        KeepUserSets(ReadFile());
        return true;
    } catch (const RuntimeError&) {
        KeepUserSets({});
        return false;
    }
}

bool ReadUserUnits() {
    try {
        const UserFile file = ReadFile();
        KeepUserSets(file);
        Calc.LiquidBasis = Calc.LiquidBasisPrevious = file.Liquid.Basis;
        Calc.LiquidUnitSet = file.Liquid.UnitSet;
        Calc.Basis = Calc.BasisPrevious = file.Gas.Basis;
        Calc.GasUnitSet = file.Gas.UnitSet;
        Calc.PressureMode = Calc.PressureModePrevious = file.PressureMode;
        Calc.LiquidDensityMode = Calc.LiquidDensityModePrevious = file.DensityMode;
        if (file.BaroPressure > 0) Calc.BaroPressure = file.BaroPressure;
        return true;
    } catch (const RuntimeError&) {
        KeepUserSets({});
        ResetEnglishUnits();
        Calc.UnitName[unit::GasFlow] = "lb/h";
        Calc.UnitFactor[unit::GasFlow] = 1;
        return false;
    }
}

bool WriteUserUnits() {
    TakeBootSet();
    try {
        TextWriter file(FileName());
        const UnitFactors& liquid = Suite.UserLiquidUnitFactor;
        const UnitFactors& gas = Suite.UserGasUnitFactor;
        WriteSet(file, BasisToWrite(liquid[unit::LiquidFlow], Suite.UserLiquidBasis, Calc.LiquidBasis),
                 Suite.LiquidBootSet, LiquidRows, Suite.UserLiquidUnitName, liquid);
        WriteSet(file, BasisToWrite(gas[unit::GasFlow], Suite.UserGasBasis, Calc.Basis), Suite.GasBootSet,
                 GasRows, Suite.UserGasUnitName, gas);
        file.Line(Calc.PressureMode);
        file.Line(Suite.BootDensityMode);
        file.Number(Calc.BaroPressure);
        file.Commit();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

bool TakeUserUnitSet() {
    const bool gas = Calc.FluidType == words::Gas;
    const UnitFactors& factors = gas ? Suite.UserGasUnitFactor : Suite.UserLiquidUnitFactor;
    if (!IsUsableFactor(factors[gas ? unit::GasFlow : unit::LiquidFlow])) return false;
    const bool english = factors[unit::Pressure] == 1 || !IsUsableFactor(factors[unit::Pressure]);
    english ? ResetEnglishUnits() : ResetSIUnits();
    gas ? TakeGasSet() : TakeLiquidSet();
    MatchPressureEnding();
    if (program::IsFluidData(Calc.CurrentProgram)) TakeFamilyUnits(english);
    // A liquid's two densities have one unit.
    if (Calc.CurrentProgram == program::LiquidData)
        TakeUnit(unit::LiquidDensity, Calc.UnitName[unit::Density], Calc.UnitFactor[unit::Density]);
    Calc.UnitName[unit::Temperature] == "degF" ? STPEnglish() : STPSI();
    Calc.UnitSetName = SelectedUnitsName;
    CarryDensityUnit();
    MendUnitFactors();
    return true;
}

void StoreUserUnitSet() {
    if (Calc.FluidType == words::Gas) {
        Suite.UserGasUnitName = Calc.UnitName;
        Suite.UserGasUnitFactor = Calc.UnitFactor;
        Suite.UserGasUnitName[unit::GasViscosity] = Calc.UnitName[unit::Viscosity];
        Suite.UserGasUnitFactor[unit::GasViscosity] = Calc.UnitFactor[unit::Viscosity];
        Suite.UserGasBasis = Calc.Basis;
        return;
    }
    const std::size_t density =
        Calc.LiquidDensityMode == words::Density && Calc.CurrentProgram != program::LiquidData
            ? unit::LiquidDensity
            : unit::Density;
    Suite.UserLiquidUnitName = Calc.UnitName;
    Suite.UserLiquidUnitFactor = Calc.UnitFactor;
    Suite.UserLiquidUnitName[unit::UserDensity] = Calc.UnitName[density];
    Suite.UserLiquidUnitFactor[unit::UserDensity] = Calc.UnitFactor[density];
    Suite.UserLiquidBasis = Calc.LiquidBasis;
}

}  // namespace quillmetra
