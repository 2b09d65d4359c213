// See TableDescriptions.h. Misspellings in the texts, titles that name older files, and headings that say
// "Multiplied" where the note says "Divided" have stood for years and are what users know: leave them.
#include "tables/TableDescriptions.h"

#include <algorithm>

#include "core/PipeFamilies.h"
#include "core/Suite.h"
#include "platform/TextCase.h"

namespace quillmetra {

namespace {

using std::string_view;

// Notes that serve several columns or tables.
constexpr string_view FluidTypeNote = "Tp is the Fluid Type";
constexpr string_view FluidTypeUseNote = "It Is used for specific gravity and viscosity calculation";
constexpr string_view NormalBoilingNote = "NormBP is the Normal Boiling Point in degF";
constexpr string_view CriticalPressureNote = "CritP is the Fluid Critical Pressure in psia.";
constexpr string_view Temperature1Note = "Tr1 is the Temperature in degF";
constexpr string_view Temperature2Note = "Tr2 is the Temperature in degF";
constexpr string_view ForViscosity1Note = "for Viscosity U1cp in centipoises";
constexpr string_view ForViscosity2Note = "for Viscosity U2cp in centipoises";
constexpr string_view Viscosity1Note = "For Viscosity U1cp in centipoises";
constexpr string_view DividedNote = "(Divided by 10^6)";
constexpr string_view MultipliedNote = "Multiplied by 10^6";
constexpr string_view FiledNote = "Changes will affect all Calculations on file";
constexpr string_view NominalSizeNote = "Enter the Nominal Pipe Size in inches";
constexpr string_view OneSideNote = "Suported on one side of pipe";
constexpr string_view EfficiencyNote = "Enter the number times 10000";
constexpr string_view NoiseManualNote = "(From the Masoneilan Noise Control Manual)";
constexpr string_view ValveTitle = "Control Valve Data File  {file}";
constexpr string_view ValveHeading = "Representative Values of Valve Capacity Factors ";

constexpr auto GasColumns = std::to_array<TableColumn>({
    {"Fluid name", {"Enter the Fluid Name"}},
    {"Tp",
     {FluidTypeNote, "1 is for Organic Compounds, 3 is for Water, 2 is for Other Fluids", FluidTypeUseNote},
     "Kind"},
    {"CritV", {"CritV is the Critical Volume ft3/lb."}, "Critical volume, ft3/lb"},
    {"NormBP", {NormalBoilingNote}, "Boiling point, degF"},
    {"MW", {"MW  is the Fluid Molecular Weight."}, "Molecular weight"},
    {"CritTem", {"CritTem is the Fluid Critical Temperature in degF"}, "Critical temperature, degF"},
    {"Tr1", {Temperature1Note, ForViscosity1Note}, "T1, degF"},
    {"U1cp", {Viscosity1Note, Temperature1Note}, "Viscosity at T1, cp"},
    {"Tr2", {Temperature2Note, ForViscosity2Note}, "T2, degF"},
    {"U2cp", {Viscosity1Note}, "Viscosity at T2, cp"},  // names U1cp on a column of U2cp
    {"CritP", {CriticalPressureNote}, "Critical pressure, psia"},
    {"cP1", {"cP1 is Specific Heat at 60degF"}, "Specific heat at 60 degF, Btu/lb degF"},
    {"cP2", {"cP2 is the Specific Heat at 300degF"}, "Specific heat at 300 degF, Btu/lb degF"},
    {"bpLHV",
     {"bpLHV is the Latent Heat of Vaporisation in Btu/Lb at the normal boiling point.", "",
      "Used in the Relief Valve Fire Sizing Program"},
     "Latent heat, Btu/lb"},
    {"GasPrp",
     {"GasPrp is the gas property factor for control valve noise",
      "(From the Masoneilan Noise Control Manual) ", "Used in the Control Valve Gas Program"},
     "Noise factor"},
});

constexpr auto LiquidColumns = std::to_array<TableColumn>({
    {"Name", {"Name of Liquid"}},
    {"Tp",
     {FluidTypeNote, "1 is for Organic Compounds, 3 is for Water, 2 is Other Fluids", FluidTypeUseNote},
     "Kind"},
    {"MW", {"MW is the Fluid Molecular Weight"}, "Molecular weight"},
    {"Base SG", {"Base SG is the Specific Gravity at 60 degF"}, "Gravity at 60 degF"},
    {"Crit Temp", {"Crit Temp is the Fluid Critical Temperature in degF"}, "Critical temperature, degF"},
    {"Tr1", {Temperature1Note, ForViscosity1Note}, "T1, degF"},
    {"U1cp", {Viscosity1Note}, "Viscosity at T1, cp"},
    {"Tr2", {Temperature2Note, ForViscosity2Note}, "T2, degF"},
    {"U2cp", {"For viscosity U2cp in centipoises", "Tr2 is the temperature in degF"}, "Viscosity at T2, cp"},
    {"CritP", {CriticalPressureNote}, "Critical pressure, psia"},
    {"NormBP", {NormalBoilingNote}, "Boiling point, degF"},
    {"cP60", {"cP60 is Specific Heat at 60degF"}, "Specific heat at 60 degF, Btu/lb degF"},
    {"cP300", {"cP300 is the Specific Heat at 300degF"}, "Specific heat at 300 degF, Btu/lb degF"},
    {"Flash",
     {"Flash is the Liquid Flash Point in degF", "", "Used only in the Tank Vent Program"},
     "Flash point, degF"},
    {"BulkMod",
     {"BulkMod is the basic Liquid Bulk Modulus of Elasticity in psi/1000",
      "(See the Bulk Modulus Slope Correction)",
      "Bulk Modulus is used only in the Control Valve Waterhammer Program"},
     "Bulk modulus, psi/1000"},
    {"Slope",
     {"The Bulk Modulus Slope Correction ", "is the amount added to the basic BM for each psia. of pressure",
      "Used with BulkMod"},
     "Bulk modulus slope, psi/psi"},
    {"bpLHV",
     {"bpLHV is the Latent Heat of Vaporization in Btu/Lb at the normal boiling point.", "",
      "Used in the Relief Valve Program"},
     "Latent heat, Btu/lb"},
});

constexpr auto PipeColumns = std::to_array<TableColumn>({
    {"Nominal size", {NominalSizeNote}, "Nominal size, in"},
    {"Schedule", {"Enter the Pipe Schedule"}},
    {"Inside diameter", {"Enter the Pipe Inside Diameter in inches"}, "Inside diameter, in"},
    {"Wall thickness", {"Enter the Pipe Wall Thickness in inches"}, "Wall thickness, in"},
});

constexpr auto ModulusColumns = std::to_array<TableColumn>({
    {"Name", {"Name of Pipe Material", "", "Used in WaterHammer Program"}, "Material (moduli in 1e7 psi)"},
    {"70", {"Modulus of Elasticity at 70 degF In psi", DividedNote}, "70 degF"},
    {"100", {"Modulus of Elasticity at 100 degF In psi", DividedNote}, "100 degF"},
    {"200", {"Modulus of Elasticity at 200 degF In psi", DividedNote}, "200 degF"},
    {"300", {"Modulus of Elasticity at 300 degF In psi", DividedNote}, "300 degF"},
    {"400", {"Modulus of Elasticity at 400 degF In psi", DividedNote}, "400 degF"},
    {"500", {"Modulus of Elasticity at 500 degF In psi", DividedNote}, "500 degF"},
    {"600", {"Modulus of Elasticity at 600 degF In psi", DividedNote}, "600 degF"},
    {"700", {"Modulus of Elasticity at 700 degF In psi", DividedNote}, "700 degF"},
    {"800", {"Modulus of Elasticity at 800 degF In psi", DividedNote}, "800 degF"},
    {"900", {"Modulus of Elasticity at 900 degF In psi", DividedNote}, "900 degF"},
    {"1000", {"Modulus of Elasticity at 1000 degF In psi", DividedNote}, "1000 degF"},
    {"1100", {"Modulus of Elasticity at 1100 degF In psi", DividedNote}, "1100 degF"},
    {"1200", {"Modulus of Elasticity at 1200 degF In psi", DividedNote}, "1200 degF"},
    {"Max Temp", {"Maximum allowable metal temperatures", "In degF"}, "Highest temperature, degF"},
});

constexpr auto MaterialColumns = std::to_array<TableColumn>({
    {"Name",
     {"Enter the Material Name",
      "CAUTION!! Calculation data are filed under Row Number, Insert and Delete are disallowed", FiledNote}},
    {"Below 340 degF",
     {"Enter the Coefficient of Expansion for less than 340 degF", MultipliedNote, FiledNote}},
    {"Above 340 degF",
     {"Enter the Coefficient of Expansion for greater than 340 degF", MultipliedNote, FiledNote}},
});

constexpr auto WedgeColumns = std::to_array<TableColumn>({
    {"Nominal size", {NominalSizeNote}},
    {"0.2", {"Value of Kd^2 for a Wedge Ratio of 0.2"}},
    {"0.3", {"Value of Kd^2 for a Wedge Ratio of 0.3"}},
    {"0.4", {"Value of Kd^2 for a Wedge Ratio of 0.4"}},
    {"0.5", {"Value of Kd^2 for a Wedge Ratio of 0.5"}},
});

constexpr auto RotameterColumns = std::to_array<TableColumn>({
    {"Material", {"Enter the Rotameter Float Material"}},
    {"Density", {"Enter the Density of the Float"}},
});

constexpr auto IfoaColumns = std::to_array<TableColumn>({
    {"Reynolds number", {"Reynolds Number Value"}},
    {"0.2", {"Value of Discharge Coefficient for Beta Ratio of 0.2"}},
    {"0.3", {"Value of Discharge Coefficient for Beta Ratio of 0.3"}},
    {"0.4", {"Value of Discharge Coefficient for Beta Ratio of 0.4"}},
    {"0.5", {"Value of Discharge Coefficient for Beta Ratio of 0.5"}},
    {"0.6", {"Value of Discharge Coefficient for Beta Ratio of 0.6"}},
    {"0.65", {"Value of Discharge Coefficient for Beta Ratio of 0.65"}},
    {"0.7", {"Value of Discharge Coefficient for Beta Ratio of 0.7"}},
    {"0.75", {"Value of Discharge Coefficient for Beta Ratio of 0.75"}},
    {"0.8", {"Value of Discharge Coefficient for Beta Ratio of 0.8"}},
});

constexpr auto AnnubarColumns = std::to_array<TableColumn>({
    {"Pipe size", {"Installation Pipe Size in inches", "For Annubar {model}"}},
    {"K", {"Discharge Coefficient K ", "Value of Data for Annubar {model}"}},
    {"Flanged", {"Maximum differential range for flanged model in inches of water", OneSideNote}},
    {"Threaded", {"Maximum differential range for threaded model in inches of water", OneSideNote}},
    {"Both sides",
     {"Maximum differential range for flanged or threaded model in inches of water",
      "Suported on both side of pipe"}},
});

constexpr auto ElbowColumns = std::to_array<TableColumn>({
    {"Inside diameter", {"Pipe Inside Diameter in inches"}},
    {"Mean radius", {"Elbow Mean Radius in inches"}},
});

constexpr auto CriteriaColumns = std::to_array<TableColumn>({
    {"Service", {"Enter the name of the service, at most 30 letters"}},
    {"Fluid", {"Enter Liquid, Gas or Any"}},
    {"Velocity", {"Largest velocity in ft/s, at the outlet of the line", "Empty where the service has none"}},
    {"C",
     {"Constant C of the erosional velocity C / sqrt(density)", "In ft/s, of a density in lb/ft3",
      "Empty where the service has none"}},
    {"Loss", {"Largest loss in psi per 100 ft", "Empty where the service has none"}},
    {"Source", {"Where the figures come from"}},
});

// The shorter valve table ends at column 11.
constexpr auto ValveColumns = std::to_array<TableColumn>({
    {"Body", {"Enter the type of Valve Body"}},
    {"Trim", {"Enter the Valve Trim type"}},
    {"Ports", {"Enter the Number of Ports"}},
    {"Flow direction", {"Enter the Flow Direction through the valve"}},
    {"FL", {"Enter the FL Pressure Recovery Factor for a 100% open valve"}},
    {"Cd",
     {"Enter the Cd for a 100% open valve", "Cd is the Ratio (Cv /(d squared))",
      "Where Cv is the valve rated Cv and d is the nominal valve size in inches"}},
    {"Fd", {"Enter the Fd Valve Style Modifier."}},
    {"xT", {"Enter the xT value for a full open valve", "(The valve Pressure Drop Ratio Factor)"}},
    {"Kc",
     {"Enter the Kc value for a full open valve", "(The Coefficient of Incipient Cavitation)",
      "Kc = (0.84 times FL(Squared))approx. (From the Masoneilan Handbook for control valve sizing)"}},
    {"Eff 1.5",
     {EfficiencyNote, "Eff is the Accoustical Efficiency at a pressure ratio of 1.5 (Pin/Pout)",
      NoiseManualNote}},
    {"Eff 20",
     {EfficiencyNote, "Eff is the Accoustical Efficiency at a pressure ratio of 20 (Pin/Pout)",
      NoiseManualNote}},
    {"12"},
    {"13"},
    {"14"},
    {"15"},
});

// The table of low-flow valves keeps other values in two columns.
constexpr string_view LowFlowFile = "LoFloVlv.txt";
constexpr string_view LowFlowCvNote = " Minimum value of Cv for Equal% trim";
constexpr int CdColumn = 6;
constexpr int FdColumn = 7;

bool IsLowFlow(const TableDescription& table, const TableVariant& variant) {
    if (&table != &table::Valve && &table != &table::Valve3) return false;
    return SameName(variant.FileName.substr(variant.FileName.find_last_of("\\/") + 1), LowFlowFile);
}

void Replace(std::string& text, string_view mark, string_view words) {
    const std::size_t place = text.find(mark);
    if (place != std::string::npos) text.replace(place, mark.size(), words);
}

std::string Filled(string_view text, const TableVariant& variant) {
    std::string filled(text);
    Replace(filled, "{file}", variant.FileName);
    Replace(filled, "{model}", variant.Model);
    return filled;
}

}  // namespace

namespace table {

const TableDescription Valve = {.KeyWord = "Valve",
                                .Title = ValveTitle,
                                .Heading = ValveHeading,
                                .FileName = "",
                                .Columns = ValveColumns,
                                .MinimumLength = 10,
                                .SplitLimit = 45,
                                .NameWidth = 31,
                                .TrimsFields = true,
                                .Kept = KeptRows::Named,
                                .Separator = ","};

const TableDescription Valve3 = {.KeyWord = "Valve3",
                                 .Title = ValveTitle,
                                 .Heading = ValveHeading,
                                 .FileName = "",
                                 .Columns = std::span(ValveColumns).first<11>(),
                                 .MinimumLength = 10,
                                 .SplitLimit = 10,
                                 .NameWidth = 0,
                                 .TrimsFields = true,
                                 .Kept = KeptRows::NamedInColumns,
                                 .Separator = ", "};

const TableDescription Gas = {.KeyWord = "Gas",
                              .Title = "Gas Data File  Gas.txt",
                              .Heading = "Properties of Gases",
                              .FileName = "Gas.txt",
                              .Columns = GasColumns,
                              .MinimumLength = 10,
                              .SplitLimit = 30,
                              .NameWidth = 31,
                              .TrimsFields = false,
                              .Kept = KeptRows::Named,
                              .Separator = ",",
                              .LongestName = 30,
                              .LongestLine = 110,
                              .FirstNumber = 2,
                              .LastNumber = 15};

const TableDescription Liquid = {.KeyWord = "Liquid",
                                 .Title = "Liquid Data File Liquid.txt",
                                 .Heading = "Properties of Liquids",
                                 .FileName = "Liquid.txt",
                                 .Columns = LiquidColumns,
                                 .MinimumLength = 10,
                                 .SplitLimit = 30,
                                 .NameWidth = 31,
                                 .TrimsFields = false,
                                 .Kept = KeptRows::Named,
                                 .Separator = ",",
                                 .LongestName = 30,
                                 .LongestLine = 110,
                                 .FirstNumber = 2,
                                 .LastNumber = 17};

const TableDescription Pipe = {.KeyWord = "Pipe",
                               .Title = "Pipe Size Data File  W-PIPE.TXT",
                               .Heading = "Pipe Sizes",
                               .FileName = "W-PIPE.TXT",
                               .Columns = PipeColumns,
                               .MinimumLength = 10,
                               .SplitLimit = 10,
                               .NameWidth = 0,
                               .TrimsFields = true,
                               .Kept = KeptRows::All,
                               .Separator = ",",
                               .FirstNumber = 3,
                               .LastNumber = 4};

// A pipe table whose file the caller names.
const TableDescription PipeFamily = [] {
    TableDescription family = Pipe;
    family.KeyWord = "PipeFamily";
    family.Title = "Pipe Size Data File  {file}";
    family.FileName = "";
    return family;
}();

const TableDescription Modulus = {.KeyWord = "Modulus",
                                  .Title = "Modulus of Elasticity and Max Temperature Data File  Modulus.txt",
                                  .Heading = "Modulus of Elasticity Multiplied by 10^6",
                                  .FileName = "Modulus.txt",
                                  .Columns = ModulusColumns,
                                  .MinimumLength = 10,
                                  .SplitLimit = 30,
                                  .NameWidth = 23,
                                  .TrimsFields = false,
                                  .Kept = KeptRows::Named,
                                  .Separator = ",",
                                  .LongestName = 30,
                                  .FirstNumber = 2,
                                  .LastNumber = 15};

const TableDescription Material = {.KeyWord = "Material",
                                   .Title = "Coefficient of Expansion Data File  MATERIAL.DAT",
                                   .Heading = "Coefficient of Expansion Divided by 10^6",
                                   .FileName = "MaTLDAT.TXT",
                                   .Columns = MaterialColumns,
                                   .MinimumLength = 10,
                                   .SplitLimit = 10,
                                   .NameWidth = 31,
                                   .TrimsFields = false,
                                   .Kept = KeptRows::Named,
                                   .Separator = ",",
                                   .FirstNumber = 2,
                                   .LastNumber = 3};

const TableDescription Wedge = {.KeyWord = "Wedge",
                                .Title = "Wedge Data File  WEDGE.DAT",
                                .Heading = "Values of Kd^2 for different Wedge Ratios",
                                .FileName = "Wedge.TXT",
                                .Columns = WedgeColumns,
                                .MinimumLength = 10,
                                .SplitLimit = 10,
                                .NameWidth = 0,
                                .TrimsFields = true,
                                .Kept = KeptRows::Named,
                                .Separator = ","};

const TableDescription Rotameter = {.KeyWord = "Rotameter",
                                    .Title = "Rotameter Float Data File  Rotam.DAT",
                                    .Heading = "Float Density",
                                    .FileName = "RotDAT.TXT",
                                    .Columns = RotameterColumns,
                                    .MinimumLength = 10,
                                    .SplitLimit = 10,
                                    .NameWidth = 31,
                                    .TrimsFields = true,
                                    .Kept = KeptRows::Named,
                                    .Separator = ","};

const TableDescription Ifoa = {.KeyWord = "IFOA",
                               .Title = "Integral Orifice Data File  IOLORD.txt",
                               .Heading = "Discharge Coefficients for Beta Ratios 0.2 to 0.8",
                               .FileName = "IOLORD.txt",
                               .Columns = IfoaColumns,
                               .MinimumLength = 20,
                               .SplitLimit = 20,
                               .NameWidth = 31,
                               .TrimsFields = true,
                               .Kept = KeptRows::Named,
                               .Separator = ","};

const TableDescription Annubar = {.KeyWord = "Annubar",
                                  .Title = "Annubar Data File  {file}",
                                  .Heading = "Values of Data for Annubar {model}",
                                  .FileName = "",
                                  .Columns = AnnubarColumns,
                                  .MinimumLength = 10,
                                  .SplitLimit = 10,
                                  .NameWidth = 31,
                                  .TrimsFields = true,
                                  .Kept = KeptRows::Named,
                                  .Separator = ","};

const TableDescription Elbow = {.KeyWord = "Elbow",
                                .Title = "Elbow Data File  ELBOWRAD.DAT",
                                .Heading = "Inside Diameter and Mean Radius",
                                .FileName = "ElbowDat.TXT",
                                .Columns = ElbowColumns,
                                .MinimumLength = 4,
                                .SplitLimit = 4,
                                .NameWidth = 31,
                                .TrimsFields = true,
                                .Kept = KeptRows::Named,
                                .Separator = ","};

const TableDescription Criteria = {.KeyWord = "Criteria",
                                   .Title = "Criteria Data File  Criteria.txt",
                                   .Heading = "Velocity and loss that a line of a service should keep to",
                                   .FileName = "Criteria.txt",
                                   .Columns = CriteriaColumns,
                                   .MinimumLength = 10,
                                   .SplitLimit = 10,
                                   .NameWidth = 31,
                                   .TrimsFields = true,
                                   .Kept = KeptRows::Named,
                                   .Separator = ",",
                                   .LongestName = 30,
                                   .FirstNumber = 3,
                                   .LastNumber = 5};

}  // namespace table

namespace {
constexpr const TableDescription* AllTables[] = {
    &table::Valve,      &table::Valve3,  &table::Gas,   &table::Liquid,    &table::Pipe,
    &table::PipeFamily, &table::Modulus, &table::Wedge, &table::Rotameter, &table::Material,
    &table::Ifoa,       &table::Annubar, &table::Elbow, &table::Criteria};

template <typename Test>
const TableDescription* FirstTable(Test test) {
    const auto found = std::ranges::find_if(AllTables, test);
    return found == std::end(AllTables) ? nullptr : *found;
}
}  // namespace

const TableDescription* FindTable(string_view keyWord) {
    return FirstTable([&](const TableDescription* each) { return each->KeyWord == keyWord; });
}

bool IsTableFile(string_view fileName) {
    const auto isPipe = [&](const PipeFamily& family) { return SameName(family.File, fileName); };
    const auto isTable = [&](const TableDescription* each) { return SameName(each->FileName, fileName); };
    return std::ranges::any_of(PipeFamilies, isPipe) || FirstTable(isTable) != nullptr;
}

std::string TableTitle(const TableDescription& table, const TableVariant& variant) {
    return Filled(table.Title, variant);
}

std::string TableHeading(const TableDescription& table, const TableVariant& variant) {
    return Filled(table.Heading, variant);
}

string_view TableHead(const TableDescription& table, int column) {
    const TableColumn& described = table.Columns[static_cast<std::size_t>(column - 1)];
    return described.Head.empty() ? described.Name : described.Head;
}

NoteLines TableNotes(const TableDescription& table, int column, const TableVariant& variant) {
    if (column < 1 || column > table.ColumnCount()) return {};
    if (IsLowFlow(table, variant) && column == CdColumn) return {std::string(LowFlowCvNote)};
    if (IsLowFlow(table, variant) && column == FdColumn) return {};
    NoteLines lines;
    const TableColumn& described = table.Columns[static_cast<std::size_t>(column - 1)];
    for (std::size_t i = 0; i < lines.size(); ++i) lines[i] = Filled(described.Notes[i], variant);
    return lines;
}

std::string TablePath(const TableDescription& table, const TableVariant& variant) {
    const string_view file = variant.FileName.empty() ? table.FileName : variant.FileName;
    return Suite.DefaultPaths[path::DataFiles] + "\\" + std::string(file);
}

}  // namespace quillmetra
