// Names for the rows of the record's arrays: each kind of row has one list here, a line each. What a number
// of the record means is looked up by its name, never by its digit.
//
// Some rows serve two programs with two quantities, and so have two names. The letters behind a row tell the
// programs that use it: L liquid line, G gas line, H water hammer, l liquid data, g gas data.
#pragma once

namespace quillmetra {

// Rows of UnitName and UnitFactor, as units/UnitCatalogue.h describes them.
namespace unit {
inline constexpr int GasFlow = 0;      // mass or standard volume per time
inline constexpr int Force = 0;        // H, which has no gas flow
inline constexpr int LiquidFlow = 1;   // mass or volume per time
inline constexpr int Temperature = 2;  // flow temperature; boiling and flash point too
inline constexpr int Pressure = 3;     // operating pressure, gauge or absolute
inline constexpr int PressureDrop = 4;
inline constexpr int LiquidTimeBase = 5;  // in the unit window
inline constexpr int UserDensity = 5;     // in the record and the user's sets: the liquid's unit of density
inline constexpr int LiquidDensity = 6;   // of L and H in density mode
inline constexpr int Viscosity = 7;
inline constexpr int VaporPressure = 8;
inline constexpr int Density = 9;  // of G, l and g
inline constexpr int CritPressure = 11;
inline constexpr int CritTemperature = 12;
inline constexpr int GasViscosity = 13;  // in the unit window; the record keeps it in row 7 as well
inline constexpr int LatentHeat = 16;    // of both latent heats
inline constexpr int PipeSize = 18;      // inside diameter and wall
inline constexpr int GasTimeBase = 19;   // in the unit window
inline constexpr int Velocity = 20;
inline constexpr int StdTemperature = 21;
inline constexpr int StdPressure = 22;
inline constexpr int Barometer = 23;
inline constexpr int SecondGauge = 24;
inline constexpr int Length = 25;  // length and height
inline constexpr int AbsolutePressure = 26;
inline constexpr int Modulus = 27;
inline constexpr int NominalSize = 31;  // of the pipe size lookup, with the two below
inline constexpr int ListedDiameter = 32;
inline constexpr int ListedWall = 33;
inline constexpr int Count = 28;  // rows of a calculation; 10, 14, 15 and 17 hold no quantity
}  // namespace unit

// Rows of CaseInput: programs, unit row.
namespace input {
inline constexpr int GasFlow = 0;              // G         GasFlow
inline constexpr int LiquidWeight = 0;         // l         none: molecular weight
inline constexpr int CompressFactor = 0;       // g         none
inline constexpr int LiquidFlow = 1;           // L H       LiquidFlow
inline constexpr int FlashPoint = 1;           // l         Temperature
inline constexpr int Temperature = 2;          // all       Temperature
inline constexpr int Pressure = 3;             // all       Pressure; H by column
inline constexpr int EquipLoss = 4;            // L G       PressureDrop
inline constexpr int BoilingPoint = 4;         // l g       Temperature
inline constexpr int MolecularWeight = 5;      // G g       none
inline constexpr int StandardGravity = 5;      // l         none; a density Density
inline constexpr int FlowGravity = 6;          // L H l     none; a density LiquidDensity, l Density
inline constexpr int Viscosity = 7;            // L G l g   Viscosity
inline constexpr int VaporPressure = 8;        // L G l g   VaporPressure
inline constexpr int Density = 9;              // L G l g   Density
inline constexpr int RatioSpecificHeats = 10;  // G g       none
inline constexpr int SelectedTime = 10;        // H         s, always
inline constexpr int CritPressure = 11;        // G l g     CritPressure
inline constexpr int CritTemperature = 12;     // L G l g   CritTemperature
inline constexpr int LatentHeat = 13;          // g         LatentHeat; at the flow temperature
inline constexpr int BoilingLatentHeat = 16;   // g         LatentHeat; at the boiling point
inline constexpr int PipeSize = 18;            // H         PipeSize, by column
inline constexpr int StdTemperature = 21;      // all       StdTemperature, case 0 alone
inline constexpr int StdPressure = 22;         // all       StdPressure, case 0 alone
inline constexpr int Barometer = 23;           // all       Barometer, case 0 alone
inline constexpr int EndElevation = 25;        // L G       Length, case 0 alone
inline constexpr int LineLength = 25;          // H         Length
inline constexpr int Modulus = 27;             // H l       Modulus; H by column
inline constexpr int Count = 28;               // 14, 15, 17, 19, 20, 24 and 26 hold nothing
}  // namespace input

// Columns of the rows of CaseInput that hold a second quantity of the water hammer.
namespace column {
inline constexpr int Operating = 0, Allowable = 1;  // of input::Pressure
inline constexpr int InsideDiameter = 0, Wall = 2;  // of input::PipeSize
inline constexpr int OfLiquid = 0, OfPipe = 1;      // of input::Modulus
}  // namespace column

// Rows of CaseResult: programs, unit row.
namespace result {
inline constexpr int LossPer100 = 0;      // L G       PressureDrop per 100 of Length
inline constexpr int FinalPressure = 1;   // L G       Pressure; at the end that was not given
inline constexpr int Velocity = 2;        // L G       Velocity
inline constexpr int SonicVelocity = 3;   // G         Velocity
inline constexpr int ReynoldsNumber = 4;  // L         none
inline constexpr int EquivLength = 5;     // L G       Length, case 0 alone: of the case calculated last
inline constexpr int Count = 6;           // the record has one more, always 0
}  // namespace result

// Elements of PipeData, of L and G: unit row.
namespace pipe {
inline constexpr int Length = 1;              // Length
inline constexpr int InsideDiameter = 2;      // PipeSize
inline constexpr int StartElevation = 3;      // Length
inline constexpr int Entrance = 4, Exit = 5;  // flags, see Ticked
inline constexpr double Ticked = 2, NotTicked = 1;
}  // namespace pipe

// Elements of FittingCount, of L and G.
namespace fitting {
inline constexpr int GateValves = 1;
inline constexpr int GlobeValves = 2;
inline constexpr int CheckValves = 3;
inline constexpr int Ells90 = 4;
inline constexpr int Ells45 = 5;
inline constexpr int ThruTees = 6;
inline constexpr int BranchTees = 7;
}  // namespace fitting

// Elements of HammerResult: unit row.
namespace wave {
inline constexpr int CriticalTime = 12;      // s
inline constexpr int Velocity = 13;          // Velocity
inline constexpr int Pressure = 14;          // Pressure; of a closing within the critical time
inline constexpr int Force = 15;             // Force, on a pipe support
inline constexpr int MinimumTime = 16;       // s, that keeps within the allowable pressure
inline constexpr int SelectedPressure = 17;  // Pressure; at the selected closing time
inline constexpr int SelectedForce = 18;     // Force, as above
}  // namespace wave

// Elements of HeadingText and of the headings of Suite: the lines of the headings' file.
namespace heading {
inline constexpr int PrintDate = 1;
inline constexpr int Title = 2;
inline constexpr int Subtitle = 3;
inline constexpr int ProjectName = 4;
inline constexpr int ProjectNumber = 5;
inline constexpr int Manufacturer = 6;
inline constexpr int Model = 7;
inline constexpr int Note1 = 8;  // notes 1 and 2 are the two comments of the form
inline constexpr int Note2 = 9;
inline constexpr int Note3 = 10;
}  // namespace heading

// Elements of CaseText.
namespace text {
inline constexpr int PipeMaterial = 5;
inline constexpr int CalcBy = 8;
inline constexpr int ApprovedBy = 9;
inline constexpr int CalcDate = 10;
inline constexpr int DataDate = 11;
}  // namespace text

// Elements of CaseUnitsText, as printed.
namespace printed {
inline constexpr int Date = 1;
inline constexpr int By = 2;
inline constexpr int Fluid = 3;
inline constexpr int ApprovedBy = 4;
inline constexpr int PipeMaterial = 5;
}  // namespace printed

// Elements of ChosenUnitRowNames.
namespace chosen {
inline constexpr int Temperature = 1;
inline constexpr int CritTemperature = 2;
inline constexpr int Viscosity = 3;
}  // namespace chosen

// Elements of Suite.DefaultPaths.
namespace path {
inline constexpr int Database = 1;
inline constexpr int UserUnits = 2;
inline constexpr int Headings = 3;
inline constexpr int DataFiles = 4;
inline constexpr int Program = 5;  // the program's own folder
}  // namespace path

// PressureDirection: which end of the line is given, and so which way it is calculated.
namespace direction {
inline constexpr int Forwards = 1;   // from the source
inline constexpr int Backwards = 2;  // from the destination
}  // namespace direction

// A calculation has one line; the arrays of its working layer are by pipe, and this is their element.
inline constexpr int TheLine = 1;
// Elements of Elevation.
inline constexpr int LineStart = 1, LineEnd = 2;

}  // namespace quillmetra
