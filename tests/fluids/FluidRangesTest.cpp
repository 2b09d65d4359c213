// The hints of fluids and lines at the bounds of their ranges, in the units of the record.
#include "fluids/FluidRanges.h"

#include <gtest/gtest.h>

#include "core/Programs.h"
#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "fluids/GasData.h"
#include "fluids/LiquidData.h"
#include "lineloss/LineRanges.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class Ranges : public SuiteTest {
protected:
    // A light organic liquid of program 1 in the middle of every range, in degC and kPag.
    static void Liquid() {
        Calc = CalcRecord();
        Calc.FluidType = words::Liquid;
        Calc.CurrentProgram = 1;
        Calc.MixtureFlag = words::No;
        Calc.FluidClass = std::string(1, '1');
        Calc.CritTemperature = 1000;
        Calc.CritPressure = 600;
        Calc.NormalBoilingPoint = 200;
        Calc.ViscosityTemp1 = 200;
        Calc.ViscosityTemp2 = 60;
        Calc.FlowTemperature = 100;
        Calc.FlowPressure = 100;
        Calc.BaroPressure = 14.7;
        Calc.UnitName[2] = "degC";
        Calc.UnitName[3] = "kPag";
        Calc.UnitFactor[3] = 0.1450377;
    }
    static void DataOf(const char* name) {
        Liquid();
        Calc.CurrentProgram = 4;
        Calc.FluidName = name;
    }
    static void Water() {
        Liquid();
        Calc.FluidClass = std::string(1, '3');
    }
    static void Gas() {
        Liquid();
        Calc.FluidType = words::Gas;
        Calc.CurrentProgram = 5;
    }
    static void Steam(const char* kind) {
        Gas();
        Calc.SteamKind = kind;
        Calc.FlowTemperature = 740;
    }
};

TEST_F(Ranges, AreLeftAtTheirBounds) {
    const struct {
        void (*Fluid)();
        double Temperature, Pressure;  // degF, psia
        const char* Hint;
    } cases[] = {
        {Liquid, 40, 100, ""},
        {Liquid, 39, 100, "Temperature below 4.444 degC: viscosity is extrapolated from its two points."},
        {Liquid, 221, 100, "Temperature above 104.4 degC: viscosity is extrapolated from its two points."},
        {Liquid, 341, 100,
         "Temperature above 104.4 degC: viscosity is extrapolated from its two points. Reduced temperature "
         "above 0.8: so near to the critical point the gravity is about 3 % high."},
        {[] { Liquid(), Calc.CurrentProgram = 3; }, 440, 100,
         "Temperature above 25.56 degC: the bulk modulus is that at 68 degF, about 10 times the true one and "
         "more. Reduced temperature above 0.8: so near to the critical point the gravity is about 12 % "
         "high."},
        // Still true at 60 degF, where that is warm.
        {[] { Liquid(), Calc.CritTemperature = 648; }, 60, 100, ""},
        {[] { Liquid(), Calc.CritTemperature = 547; }, 44, 100,
         "Reduced temperature below 0.93: the gravity is up to 12 % low."},
        {[] { DataOf("Nitrous Oxide"), Calc.CritTemperature = 557; }, 40, 100,
         "Temperature above -37.78 degC: the bulk modulus is that of another temperature, about 3.8 times "
         "the "
         "true one. Reduced temperature below 0.9: the gravity is up to 9 % low."},
        {[] { DataOf("Nitrous Oxide"), Calc.CritTemperature = 557, Calc.CurrentProgram = 1; }, 45, 100, ""},
        {[] { DataOf("LNG Typical"), Calc.CritTemperature = 360, Calc.ViscosityTemp2 = -250; }, -240, 100,
         ""},
        {Liquid, 195, 1001, "Pressure above 6793 kPag: the gravity under pressure is about 1 % high."},
        {Liquid, 185, 3000, ""},
        {[] { Liquid(), Calc.CurrentProgram = 3; }, 58, 100, ""},
        {[] { Liquid(), Calc.CurrentProgram = 3; }, 57.9, 100,
         "Temperature below 14.44 degC: the bulk modulus is that at 68 degF, about 4 % low."},
        {[] { Liquid(), Calc.CurrentProgram = 3, Calc.CritTemperature = 666; }, 73, 100,
         "Temperature above 22.22 degC: the bulk modulus is that at 68 degF, about 7 % high."},
        {[] { DataOf("Own"); }, 100, 100,
         "Temperature above 25.56 degC: the bulk modulus is that at 68 degF, about 13 % high."},
        {[] { DataOf("n-Octanol"), Calc.NormalBoilingPoint = 382.5; }, 70, 100,
         "Temperature below 187.8 degC: the vapor pressure is about 3.2 times the true one."},
        {[] { DataOf("Acetic Acid"), Calc.NormalBoilingPoint = 244.2; }, 70, 100,
         "Temperature below 105.6 degC: the vapor pressure is about 26 % low."},
        {[] { DataOf("Acetic Acid"), Calc.CurrentProgram = 1, Calc.NormalBoilingPoint = 244.2; }, 70, 100,
         ""},
        {[] { DataOf("Hydrogen Fluoride"); }, 59, 100, ""},
        {[] { DataOf("Hydrogen Fluoride"); }, 120, 100,
         "Temperature above 25.56 degC: the bulk modulus is that at 68 degF, about 23 % high. Temperature "
         "above 43.33 degC: the vapor pressure is about 4 % high."},
        {[] { DataOf("Carbon Dioxide"), Calc.NormalBoilingPoint = -126; }, 70, 100,
         "Boiling point below -78.44 degC: it is fitted to the vapor pressure, the solid sublimes at that "
         "bound."},
        {[] { Water(), Calc.CurrentProgram = 4; }, 212, 100, ""},
        {[] { Water(), Calc.CurrentProgram = 3; }, 300, 100,
         "Temperature above 100 degC: the bulk modulus is that at 68 degF, about 11 % high."},
        {[] { Liquid(), Calc.MixtureFlag = words::Yes; }, 550, 100,
         "Reduced temperature above 1: there is no liquid, and no vapor pressure."},
        {[] { Liquid(), Calc.MixtureFlag = words::Yes, Calc.NormalBoilingPoint = 50; }, 100, 100,
         "Vapor pressure at 60 degF above 0 kPag: the gravity under pressure goes by the last component."},
        {[] { Liquid(), Calc.MixtureFlag = words::Yes, Calc.NormalBoilingPoint = 600; }, 100, 100, ""},
        {[] { DataOf(""), Calc.FlashPoint = -4; }, 70, 100,
         "Flash point below -17.78 degC: it is not shown."},
        {[] { DataOf(""), Calc.FlashPoint = -4, Calc.MixtureFlag = words::Yes; }, 70, 100, ""},
        {[] { Liquid(), Calc.ViscosityTemp1 = -200; }, -107, 100,
         "Reduced temperature below 0.353: the correction of gravity for pressure has the wrong sign."},
        {Liquid, 100, 10001,
         "Pressure above 68846 kPag: the correction of viscosity for pressure is extrapolated."},
        {[] { Liquid(), Calc.FluidClass = std::string(1, '2'); }, 100, 10001, ""},
        {Water, 637, 3000, ""},
        {Water, 638, 100,
         "Temperature above 336.1 degC: the gravity and viscosity of water are up to 15 % off."},
        {Water, 31, 100, "Temperature below 0 degC: the gravity and viscosity of water are up to 15 % off."},
        {Water, 100, 3001,
         "Pressure above 20583 kPag: the gravity of water is not corrected for pressure, which is 1 % and "
         "more."},
        {Gas, 100, 150, ""},
        {Gas, 100, 168.1, "Pressure above 1056 kPag: so near to the liquid the density is 3 to 12 % low."},
        {Gas, 601, 541,
         "Reduced pressure above 0.9: the viscosity of a dense gas is 2 to 4 times the true one. Reduced "
         "pressure above 0.8: so near to the critical point the density is up to 20 % low. Temperature above "
         "315.6 degC: viscosity and specific heat are extrapolated."},
        {[] { Gas(), Calc.CritTemperature = 400; }, 100, 1201,
         "Reduced pressure above 2: the viscosity of a dense gas is 20 to 100 % high."},
        {[] { Gas(), Calc.FluidClass = std::string(1, '2'), Calc.CritTemperature = 520; }, 100, 541,
         "Reduced pressure above 0.9: the viscosity is that at low pressure, down to a quarter of the true "
         "one. Reduced pressure above 0.8: so near to the critical point the density is up to 20 % low."},
        {[] { Gas(), Calc.FluidClass = std::string(1, '2'), Calc.CritTemperature = 373; }, 100, 900,
         "Reduced pressure above 0.9: the viscosity is that at low pressure, about 12 % low."},
        {[] { Gas(), Calc.FluidClass = std::string(1, '2'), Calc.CritTemperature = 238; }, 60, 3000, ""},
        {[] { Steam(words::Superheated); }, 740, 1999, ""},
        {[] { Steam(words::Superheated); }, 740, 2001,
         "Pressure above 13688 kPag: density below 790 degF is up to 5 % off."},
        {[] { Steam(words::Superheated); }, 740, 3208.2,
         "Pressure above 22018 kPag: do not use density, exponent and viscosity here, they may be many times "
         "too high."},
        {[] { Steam(words::Superheated); }, 751, 3240,
         "Pressure above 20583 kPag: density below 790 degF is up to a third off, the exponent up to 2.7 "
         "times the true one."},
        {[] { Steam(words::Superheated); }, 790, 4400, ""},
        {[] { Steam(words::Superheated); }, 879, 8000,
         "Pressure above 30925 kPag: density from 700 to 880 degF is up to 7 % off, the exponent up to 15 "
         "%."},
        {[] { Steam(words::Saturated), Calc.CurrentProgram = 2; }, 418, 300,
         "Pressure above 1278 kPag: so near to saturation the density of the line is about 4 % low."},
        {[] { Steam(words::Superheated), Calc.CurrentProgram = 2, Calc.SaturationTemperature = 417; }, 450,
         300, ""},
        {[] { Steam(words::Superheated); }, 239, 3300,
         "Temperature below 115.6 degC: the properties are those at 240 degF."},
        {[] { Steam(words::Saturated); }, 60, 0.4,
         "Pressure below -97.91 kPag: the density is that at 0.5 psia."},
    };
    for (const auto& each : cases) {
        each.Fluid();
        Calc.FlowTemperature = each.Temperature;
        Calc.FlowPressure = each.Pressure;
        EXPECT_EQ(Sentences(FluidHints()), each.Hint)
            << each.Temperature << " degF, " << each.Pressure << " psia";
    }
}

// Water, air and hydrocarbons within their range, and other common fluids: nothing is to be said of them.
TEST_F(Ranges, AreSilentOnOrdinaryWork) {
    const struct {
        int Program;
        const char* Fluid;
        double Temperature, Pressure;  // degF, psia
    } cases[] = {{1, "Water", 60, 100},
                 {1, "Water", 180, 300},
                 {1, "Water", 300, 500},
                 {3, "Water", 60, 100},
                 {3, "Water", 200, 100},
                 {4, "Water", 100, 1000},
                 {1, "Sea Water", 60, 50},
                 {3, "Sea Water", 60, 50},
                 {4, "Sea Water", 90, 50},
                 {1, "Gasoline", 80, 100},
                 {1, "Gasoline", 100, 1200},
                 {1, "Kerosene - Jet A", 60, 100},
                 {1, "Diesel Fuel", 100, 500},
                 {3, "Diesel Fuel", 68, 500},
                 {1, "Crude Oil 35 API", 100, 800},
                 {1, "Fuel Oil No 6", 150, 100},
                 {1, "Naphtha Heavy", 200, 300},
                 {1, "Lube Oil ISO VG 46", 120, 60},
                 {1, "n-Hexane", 80, 50},
                 {1, "n-Heptane", 150, 100},
                 {4, "n-Octane", 70, 20},
                 {1, "n-Decane", 200, 100},
                 {1, "Benzene", 80, 50},
                 {1, "Toluene", 200, 100},
                 {4, "Toluene", 70, 20},
                 {1, "o-Xylene", 150, 100},
                 {1, "Cyclohexane", 100, 50},
                 {1, "i-Octane", 100, 100},
                 {1, "Propane", 60, 200},
                 {1, "Propane", 80, 250},
                 {1, "n-Butane", 80, 100},
                 {1, "i-Pentane", 60, 100},
                 {3, "n-Hexane", 70, 100},
                 {1, "Methanol", 70, 50},
                 {1, "Ethanol", 80, 50},
                 {4, "Acetone", 65, 20},
                 {1, "Ammonia", 60, 200},
                 {1, "Ethylene Glycol 50% in Water", 100, 60},
                 {1, "Sodium Chloride Brine 25%", 60, 60},
                 {1, "Caustic Soda 20%", 80, 60},
                 {2, "Air", 60, 114.7},
                 {2, "Air", 200, 300},
                 {5, "Air", 100, 1000},
                 {2, "Methane", 60, 500},
                 {5, "Methane", 100, 500},
                 {2, "Natural Gas 0.60 SG", 60, 500},
                 {5, "Nitrogen", 70, 2000},
                 {2, "Oxygen", 70, 300},
                 {2, "Hydrogen", 100, 1500},
                 {5, "Helium", 70, 1000},
                 {2, "Carbon Dioxide", 80, 300},
                 {2, "Carbon Dioxide", 300, 500},
                 {2, "Propane", 80, 60},
                 {2, "n-Butane", 100, 30},
                 {5, "Ethane", 80, 200},
                 {2, "Ethylene", 60, 150},
                 {2, "Ammonia", 60, 60},
                 {2, "Chlorine", 60, 40},
                 {2, "Refinery Fuel Gas", 100, 150},
                 {5, "Argon", 70, 500}};
    for (const auto& each : cases) {
        Calc = CalcRecord();
        Calc.CurrentProgram = each.Program;
        const bool isGas = program::IsOfGas(each.Program);
        Calc.FluidType = isGas ? words::Gas : words::Liquid;
        Calc.FluidName = each.Fluid;
        Calc.FluidOk = words::FluidPicked;
        Calc.FlowTemperature = each.Temperature;
        Calc.FlowPressure = each.Pressure;
        Calc.BaroPressure = 14.7;
        FindFluidRow();
        isGas ? ParseGasRow() : ParseLiquidRow();
        ASSERT_TRUE(isGas ? ProcessGasData() : ProcessLiquidData()) << each.Fluid;
        Calc.FlashPoint = 0;  // of the liquid, not of the case
        EXPECT_EQ(Sentences(FluidHints()), "") << each.Fluid << " at " << each.Temperature;
        EXPECT_TRUE(User.Boxes.empty()) << each.Fluid;
    }
}

TEST_F(Ranges, OfALineGoByItsFriction) {
    const struct {
        double Reynolds, Diameter, Loss;
        int Material;
        const char* Hint;
    } cases[] = {
        {4000, 1, 1, 6, ""},
        {1.1e8, 1, 1, 6, "Reynolds number above 100000000: beyond the chart of friction factors."},
        {1e5, 0.2, 1, 6, "Roughness over diameter above 0.05: beyond the chart of friction factors."},
        {1000, 0.2, 1, 6, ""},
        {1e5, 1, 50000, 6, "Loss in psi per 100 ft above 50000: it is held there."},
        // The larger error first, whatever the order of the table.
        {3000, 0.2, 50000, 6,
         "Loss in psi per 100 ft above 50000: it is held there. Reynolds number below 4000: neither laminar "
         "nor "
         "turbulent, the friction is uncertain. Roughness over diameter above 0.05: beyond the chart of "
         "friction factors."},
    };
    for (const auto& each : cases) {
        Calc = CalcRecord();
        Calc.CurrentProgram = 1;
        Calc.ReynoldsNumber = each.Reynolds;
        Calc.PipeId[1] = each.Diameter;
        Calc.PipeMaterialNumber = each.Material;
        Calc.LossPer100 = each.Loss;
        EXPECT_EQ(Sentences(LineHints()), each.Hint);
    }
}

// Steps of a gas line: its last pressure, sonic velocity near the liquid, and Redlich and Kwong beside the
// critical point; flashing of a liquid.
TEST_F(Ranges, OfALineGoByItsState) {
    const struct {
        int Program;
        double Temperature, Source, Last, K;  // degF, psia
        const char* Hint;
    } cases[] = {
        {2, 190, 100, 60, 1.07, ""},
        {2, 190, 200, 130, 1.07,
         "Reduced pressure above 0.11: the sonic velocity is about 8 % high, and choking is told late."},
        {2, 190, 200, 130, 1.25, ""},
        {2, 190, 240, 50, 1.07,
         "Pressure above 233.7 psia: so near to the liquid the density is 3 to 12 % low."},
        {2, 320, 441, 50, 1.07,
         "Reduced pressure above 0.8: so near to the critical point the density is up to 20 % low."},
        {2, 500, 441, 50, 1.07, ""},
        {1, 190, 60, 51, 1, ""},
        {1, 190, 60, 49, 1,
         "Pressure below 50 psia: the liquid flashes; the loss of two phases, several times as great, is not "
         "calculated."},
    };
    for (const auto& each : cases) {
        Calc = CalcRecord();
        Calc.CurrentProgram = each.Program;
        Calc.ReynoldsNumber = 1e5;
        Calc.PipeId[1] = 4;
        Calc.PressureMode = words::Absolute;
        Calc.UnitName[3] = "psia";
        Calc.FlowTemperature = each.Temperature;
        Calc.SourcePressure[1] = each.Source;
        Calc.FlowPressure = each.Last;
        Calc.CaseInput[8][0] = 50;
        Calc.RatioSpecificHeats = each.K;
        Calc.CritTemperature = 765.3;
        Calc.CritPressure = 550.6;
        Calc.Velocity = 1;
        Calc.SonicVelocity = 700;
        EXPECT_EQ(Sentences(LineHints()), each.Hint) << each.Temperature << " degF, " << each.Source;
    }
}

}  // namespace
}  // namespace quillmetra
