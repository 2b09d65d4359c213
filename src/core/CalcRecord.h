// The calculation in hand. Exactly one instance, Calc, exists for the life of the process; forms,
// calculations, database routines and reports read and set its named fields.
//
// Two layers must be kept apart. The display layer (CaseInput, CaseResult, PipeData, FittingCount,
// HammerResult and texts) holds numbers as the user sees them, in the unit of their unit row: it is what is
// stored and printed. The working layer holds scratch values in fixed English units; data checking fills it
// anew from the display layer at the start of each calculation, and nothing of it is ever saved.
//
//   internal value = display value x UnitFactor[row]
//
// but for temperatures (an offset) and gauge pressures (plus BaroPressure).
//
// Some fields, last in their block, are kept for their names: whoever knows the record looks for them there.
// They are set where their name says, and nothing reads them.
#pragma once

#include <array>
#include <string>

#include "core/Rows.h"

namespace quillmetra {

constexpr int CaseCount = 3;

// An array with the bounds that the suite counts in, first element 0. at() would throw, [] does not check;
// every loop of the suite stays inside the sizes given here.
template <typename T, int Size>
using Row = std::array<T, static_cast<std::size_t>(Size)>;

// The place of an element whose number is an int, as rows, cases and programs have it.
constexpr std::size_t At(int index) { return static_cast<std::size_t>(index); }

// Rows of three cases, addressed row first, then case.
template <int Rows>
using CaseTable = Row<Row<double, CaseCount>, Rows>;

using CaseInputs = CaseTable<32>;
using CaseResults = CaseTable<7>;  // rows 0 to 5 hold results; row 6 is always 0 but is rounded with the rest
using PipeValues = Row<double, 7>;       // 1 length, 2 inside diameter, 3 start elevation, 4 entrance, 5 exit
using FittingCounts = Row<double, 15>;   // 1 gate, 2 globe, 3 check, 4 90 deg, 5 45 deg, 6 thru, 7 branch
using HammerResults = Row<double, 19>;   // 1 to 18; 12 to 18 in use, see hammer/WaterHammer.h
using UnitNames = Row<std::string, 36>;  // rows 0 to 27; 31 belongs to the pipe size lookup
using UnitFactors = Row<double, 36>;     // rows 0 to 27; 31 to 33 belong to the pipe size lookup

struct CalcRecord {
    // --- Display layer, in the units shown ------------------------------------------------------------
    CaseInputs CaseInput{};    // row by quantity (input), column by case
    CaseResults CaseResult{};  // row by result (result), column by case
    PipeValues PipeData{};     // length, diameter, start elevation; flags 2 ticked, 1 not
    FittingCounts FittingCount{};
    HammerResults HammerResult{};
    Row<std::string, 13> HeadingText{};  // 1 to 7 print headings, 6 manufacturer, 7 model, 8 to 10 notes
    Row<std::string, 12> CaseText{};     // 5 pipe material, 8 calc by, 9 approved, 10 calc date, 11 data date
    Row<std::string, 6> CaseUnitsText{};  // 1 date, 2 by, 3 fluid, 4 approved, 5 pipe material, as printed
    Row<std::string, 4> NoteText{};       // 1 to 3, the notes kept with the record
    Row<double, 21> FluidPercent{};       // components of a mixture, 0 to 15 in use
    Row<std::string, 21> FluidData{};     // their table rows
    int MixtureCount = 0;
    double PipeFouling = 0;  // percent, 0 to 100

    // --- Generations ----------------------------------------------------------------------------------
    // Shown: what stood when the record was last calculated or loaded; the reference for colouring.
    CaseInputs CaseInputShown{};
    CaseResults CaseResultShown{};
    PipeValues PipeDataShown{};
    FittingCounts FittingCountShown{};
    HammerResults HammerResultShown{};
    UnitNames UnitNameShown{};
    UnitFactors UnitFactorShown{};
    // Saved: what the database holds; the reference for what a save must rewrite.
    CaseInputs CaseInputSaved{};
    CaseResults CaseResultSaved{};
    PipeValues PipeDataSaved{};
    HammerResults HammerResultSaved{};
    Row<std::string, 13> HeadingTextSaved{};
    Row<std::string, 12> CaseTextSaved{};
    Row<std::string, 6> CaseUnitsTextSaved{};
    Row<double, 21> FluidPercentSaved{};
    Row<std::string, 21> FluidDataSaved{};
    double PipeFoulingSaved = 0;

    // --- Units ----------------------------------------------------------------------------------------
    UnitNames UnitName{};
    UnitFactors UnitFactor{};  // value shown x factor = value in the base unit; never 0
    UnitNames UnitNamePrevious{};
    UnitFactors UnitFactorPrevious{};  // in force before the user's last change of units
    Row<std::string, 4>
        ChosenUnitRowNames{};   // 1 temperature, 2 critical temperature, 3 viscosity, as last converted
    std::string Basis = "Mas";  // gas flow, "Mas" or "Vol"
    std::string BasisPrevious = "Mas";
    std::string BasisSaved;
    std::string LiquidBasis = "Mas";
    std::string LiquidBasisPrevious = "Mas";
    std::string LiquidBasisSaved;
    std::string LiquidDensityMode = "LiqSG";
    std::string PressureMode = "Psig";
    std::string UnitSystem;      // "English", "SI"
    std::string UnitSetName;     // "English mass units" ...
    std::string UnitsTitle;      // the units' name and the options, for headings
    std::string UnitsConverted;  // "Yes" when a conversion ran on all cases
    std::string RoundedFlag;     // "No" between a conversion and its rounding, then "Yes"
    std::string NoConversion;
    // Kept for their names.
    std::string LiquidDensityModePrevious = "LiqSG";
    std::string PressureModePrevious = "Psig";

    // --- Working layer, fixed internal units ----------------------------------------------------------
    double MassFlow = 0;              // lb/h
    double FlowTemperature = 0;       // degF
    double FlowPressure = 0;          // psia, at the point in hand
    double EnteredPressure = 0;       // psi, as typed
    Row<double, 2> SourcePressure{};  // psia, element 1
    Row<double, 2> PipeLength{};      // ft
    Row<double, 2> PipeId{};          // in
    Row<double, 3> Elevation{};       // ft, 1 start, 2 end
    Row<double, 2> EquipLoss{};       // psi
    double GateValves = 0, GlobeValves = 0, CheckValves = 0;
    double Ells90 = 0, Ells45 = 0, ThruTees = 0, BranchTees = 0;
    double EntranceK = 0;                     // 1.5 or 0
    double ExitK = 0;                         // 2.7 or 0
    Row<double, 10> EquivLengthPerFitting{};  // ft, 1 to 9
    double FrictionFactor = 0, TurbulentFactor = 0;
    double ColebrookTerm = 0;  // the last term, kept by a material number out of range
    double ReynoldsNumber = 0;
    double LossPer100 = 0;                   // psi per 100 ft
    double EquivLength = 0;                  // ft, signed
    double FittingsEquivLength = 0;          // ft, gas only
    double Velocity = 0, SonicVelocity = 0;  // ft/s
    double Density = 0;                      // lb/ft3
    double FlowingSG = 0;
    double SGAtStandard = 0;
    double Viscosity = 0;      // cp, of the calculation
    double VaporPressure = 0;  // psia
    double MolecularWeight = 0;
    double RatioSpecificHeats = 0;
    double CritPressure = 0;     // psia
    double CritTemperature = 0;  // degR
    double CompressFactor = 0;
    double StdTemperature = 0;  // degF
    double StdPressure = 0;     // psia
    double BaroPressure = 0;    // psia
    double BaroPressureSaved = 0;
    // Kept for their names.
    double FlowTemperatureF = 0;  // degF, of the conversion in hand
    double FinalPressure = 0;     // psia
    double LaminarFactor = 0;     // 0 where flow is not laminar
    int PipeIndex = 1;            // always 1: a calculation has one line
    int IterationCount = 0;

    // Of the water hammer, see hammer/WaterHammer.h.
    double LiquidMassFlow = 0;                   // lb/h
    double MaxAllowPressure = 0;                 // psia
    double BulkModulus = 0;                      // psi, of the liquid
    double PipeModulus = 0;                      // psi
    double LineLength = 0;                       // ft
    double PipeDiameter = 0, WallThickness = 0;  // in
    double SelectedTime = 0;                     // s
    double WaveVelocity = 0;                     // ft/s
    double PressureRise = 0, SelectedRise = 0;   // psi, over the operating pressure
    double WavePressure = 0;                     // psi, gauge or absolute as the pressure mode
    double CriticalTime = 0, MinimumTime = 0;    // s, four figures

    // The fluid row parsed last, see fluids/FluidTables.h.
    std::string FluidRow;
    std::string SelectedFluidName;
    std::string FluidClass;                              // 1 organic, 2 other, 3 water, compared as a number
    double ViscosityTemp1 = 0, ViscosityTemp2 = 0;       // degF
    double Viscosity1 = 0, Viscosity2 = 0;               // cp
    double FluidViscosity = 0;                           // cp, of the fluid
    double NormalBoilingPoint = 0;                       // degF
    double LiquidCp60 = 0, LiquidCp300 = 0;              // Btu/lb degF
    double FlashPoint = 0;                               // degF
    double BulkModulusBase = 0;                          // psi/1000
    double BulkModulusSlope = 0;                         // psi per psia
    double LiquidLatentHeat = 0;                         // Btu/lb
    double CritVolume = 0;                               // ft3/lb
    double GasCp1 = 0, GasCp2 = 0, GasSpecificHeat = 0;  // Btu/lb degF
    double LatentHeatBP = 0;                             // Btu/lb, at the normal boiling point
    double LatentHeatRefTemp = 0;                        // degF, of the known latent heat
    double LatentHeatRefValue = 0;                       // Btu/lb, the known latent heat
    double LatentHeatAtFlow = 0;  // Btu/lb, at FlowTemperature; 0 above the critical temperature
    // Kept for their names.
    double ViscosityA = 0, ViscosityB = 0;  // of the row's viscosity line
    double LiquidSpecificHeat = 0;          // Btu/lb degF, at FlowTemperature
    double LatentHeatAtPressure = 0;        // Btu/lb, of a mixture, boiling at EnteredPressure
    // Working values of the correlations.
    double ReducedBoilingTemperature = 0, ReducedTemperature = 0;
    float ReducedTemperature60 = 0;  // single precision: later formulas read the rounded value
    float CritCompressFactor = 0;    // single precision, as above
    double CompressibilityAt60 = 0, LiquidCompressibility = 0, PressureCorrection = 0;
    double ReducedPressure = 0;  // of a gas

    // Of steam: degF after the superheated look-up, in the unit of row 2 after the saturated one.
    double SaturationTemperature = 0;

    // --- Identity and options -------------------------------------------------------------------------
    std::string Tag, TagSaved;
    int CurrentProgram = 0;  // 1 to 5, 0 before a choice
    std::string FluidType;   // "Liquid", "Gas"; set when a program is chosen
    std::string ProgramTitle, ProgramTitleSaved, MethodText;
    std::string FluidName, FluidNameSaved;
    std::string CalcMode, DataMode;
    std::string CalcOption, OtherCalcs;  // option codes as stored
    int PressureDirection = direction::Forwards;
    int PressureDirectionSaved = direction::Forwards;
    int PipeMaterialNumber = 1;  // 1 to 7
    std::string PipeMaterial = "Steel", PipeMaterialSaved = "Steel";
    Row<std::string, 8> PipeMaterialName{};
    // "6 in sch 40" of a pipe that was picked from a table; empty once its diameter was typed over.
    std::string PipeName, PipeNameSaved;
    std::string Service, ServiceSaved;      // of a line: its row of the criteria, empty for none
    std::string MixtureFlag;                // "Yes", "No" or empty
    std::string SteamKind;                  // "Saturated", "Superheated" or empty
    std::string FluidOk = "Ok";             // "Ok", "OK" or empty; the spellings differ on purpose
    std::string FluidDataSource;            // "Loaded" when a table row supplied the fluid
    int LiquidUnitSet = 0, GasUnitSet = 0;  // 1 to 4 named sets, 5 user, 0 none yet
    // Kept for their names.
    std::string TagChanged;  // "Yes" once the user has typed another tag
    int ProgramNumber = 0;   // as stored: program x 100 + unit set
    std::string FluidKind;   // "Gas" or empty, for titles
    int PipeMaterialNumberSaved = 1;

    // --- Status words ---------------------------------------------------------------------------------
    int CaseIndex = 0;  // 0 maximum or case 1, 1 normal or case 2, 2 minimum or case 3, see words::Cases
    std::string FlowZone, TransitionMark;
    std::string FormLoading;  // "Yes" while code fills a form: input changes then blank nothing
    std::string InCalculation = "No";
    Row<std::string, CaseCount> ResultsClearable{"Yes", "Yes", "Yes"};  // per case: results stand
    std::string ChangedFlag;                                            // "No" after an input change
    std::string DataOk = "No";
    std::string CalculatedFlag, HammerCalculated;
    std::string RecordUpdated;
    std::string RecordChanged, SavePDRow, SaveFDRow, SaveWHRow, MixtureSave;
    std::string PDRowLoaded, FDRowLoaded, WHRowLoaded;
    std::string MixtureMarker = "No";
    std::string BrowserOpen = "No";  // "Yes" once the browser opened a saved record
    std::string SaveAnswer, SavePrompt;
    std::string HideResults;  // "Yes" around a refresh that leaves the results alone
    std::string OptionsLoaded, FormClosing;
    std::string SteamFindMode;  // "FindStm" when the saturation temperature alone is looked up
    std::string LoadedDatabaseFile;
    Row<int, CaseCount> TemperatureBlank{};
    Row<std::string, CaseCount> TemperatureEntered{}, PressureEntered{};
    Row<double, 4> StdFileValues{};  // 1 to 3: temperature degF, pressure psia, barometer psia, as read
    double PipeInsideDiameter = 0, PipeWallThickness = 0;  // of the chosen pipe row, in the list's unit
    std::string MessageTitle, MessageText;  // title of the next message; text that goes back to a caller
    // Kept for their names.
    std::string TempPressureOk, InputChanged, SaveAll, ProgramChosen;
    std::string CalcOptionCaller;    // the options panel's word for the form that opened it
    Row<double, 4> StdConditions{};  // 1 to 3: pressure, temperature, barometer as a unit set left them
    double Scratch = 0;              // in and out of RoundThree, RoundFour and RoundSix

    bool operator==(const CalcRecord&) const = default;

    CalcRecord() {
        UnitFactor.fill(1);
        UnitFactorShown.fill(1);
        UnitFactorPrevious.fill(1);
    }
};

extern CalcRecord Calc;

// Clears the record for a new calculation. CurrentProgram, FluidType, LiquidUnitSet and GasUnitSet stay: the
// caller has set them before. Closes the pipe size dialog.
void ResetRecord();

// The clearing behind a form's "New": as ResetRecord, but units, options and standard conditions in force
// stay as well.
void ResetForNew();

// Copies what stands to the shown generation, after a calculation whose results were shown, and marks the
// record as updated.
void MarkCalculated();

// MarkCalculated, and marks the inputs as changed too. What a calculation by the user's button ends with.
void SnapshotRecord();

// Takes the live fields back from the saved generation, which undoes an edit. Kept for its name: no form
// offers it.
void RestoreShown();

// Whether the results of a case stand; an input change since its calculation has blanked them, and neither a
// refresh nor a save then takes the numbers that are left of them.
bool ResultsStand(int caseIndex);

// The same of row 5 of CaseResult, one number for the line: it stands as long as any case has results.
bool LineResultStands();

// The result of a case as the form shows it: 0 where results do not stand.
double StandingResult(int row, int caseIndex);
// The same for the one case of the water hammer program.
double StandingHammerResult(int row);
// The same for a number of CaseInput: what the fluid data programs calculate stands there among the inputs.
double StandingInput(int row, int caseIndex);

// Copies what stands to the shown generation.
void TakeShown();

// Copies the live fields to the saved generation, at the end of a load and of a good save: nothing counts as
// changed after it, and the record belongs to the database in hand.
void TakeSaved();

}  // namespace quillmetra
