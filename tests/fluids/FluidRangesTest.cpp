// The hints of fluids and lines at the bounds of their ranges, in the units of the record.
#include "fluids/FluidRanges.h"

#include <gtest/gtest.h>

#include "core/Words.h"
#include "lineloss/LineRanges.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class Ranges : public SuiteTest {
protected:
    // A light organic liquid of program 4 in the middle of every range, in degC and kPag.
    static void Liquid() {
        Calc = CalcRecord();
        Calc.FluidType = words::Liquid;
        Calc.CurrentProgram = 4;
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
        {[] { Liquid(), Calc.CurrentProgram = 3; }, 150, 100, ""},
        {[] { Liquid(), Calc.CurrentProgram = 3; }, 151, 100,
         "Temperature above 65.56 degC: the bulk modulus is that at 68 degF."},
        {[] { Liquid(), Calc.MixtureFlag = words::Yes; }, 550, 100,
         "Reduced temperature above 1: there is no liquid, and no vapor pressure."},
        {[] { Liquid(), Calc.MixtureFlag = words::Yes, Calc.NormalBoilingPoint = 50; }, 100, 100,
         "Vapor pressure at 60 degF above 0 kPag: the gravity under pressure goes by the last component."},
        {[] { Liquid(), Calc.MixtureFlag = words::Yes, Calc.NormalBoilingPoint = 600; }, 100, 100, ""},
        {[] { Liquid(), Calc.FlashPoint = -4; }, 100, 100, "Flash point below -17.78 degC: it is not shown."},
        {[] { Liquid(), Calc.FlashPoint = -4, Calc.MixtureFlag = words::Yes; }, 100, 100, ""},
        {[] { Liquid(), Calc.ViscosityTemp1 = -200; }, -107, 100,
         "Reduced temperature below 0.353: the correction of gravity for pressure has the wrong sign."},
        {Liquid, 100, 10001,
         "Pressure above 68846 kPag: the correction of viscosity for pressure is extrapolated."},
        {[] { Liquid(), Calc.FluidClass = std::string(1, '2'); }, 100, 10001, ""},
        {Water, 637, 3000, ""},
        {Water, 638, 100, "Temperature above 336.1 degC: the gravity and viscosity of water are far off."},
        {Water, 31, 100, "Temperature below 0 degC: the gravity and viscosity of water are far off."},
        {Water, 100, 3001,
         "Pressure above 20583 kPag: the gravity of water is not corrected for pressure, which is 1 % and "
         "more."},
        {Gas, 100, 150, ""},
        {Gas, 100, 168.1,
         "Pressure above 1056 kPag: so near to the liquid the compressibility factor is rough."},
        {Gas, 601, 541,
         "Reduced pressure above 0.9: the viscosity of a dense gas is an estimate. Temperature above 315.6 "
         "degC: viscosity and specific heat are extrapolated."},
        {[] { Steam(words::Superheated); }, 740, 1999, ""},
        {[] { Steam(words::Superheated); }, 740, 2001,
         "Pressure above 13688 kPag: density below 750 degF is some percent off."},
        {[] { Steam(words::Superheated); }, 740, 3208.2,
         "Pressure above 22018 kPag: do not use the properties here, they may be many times too high."},
        {[] { Steam(words::Superheated); }, 751, 3240, ""},
        {[] { Steam(words::Superheated); }, 239, 3300,
         "Temperature below 115.6 degC: the properties are those at 240 degF."},
        {[] { Steam(words::Saturated); }, 60, 0.4,
         "Pressure below -97.91 kPag: the density is that at 0.5 psia."},
    };
    for (const auto& each : cases) {
        each.Fluid();
        Calc.FlowTemperature = each.Temperature;
        Calc.FlowPressure = each.Pressure;
        EXPECT_EQ(FluidHints(), each.Hint) << each.Temperature << " degF, " << each.Pressure << " psia";
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
    };
    for (const auto& each : cases) {
        Calc = CalcRecord();
        Calc.CurrentProgram = 1;
        Calc.ReynoldsNumber = each.Reynolds;
        Calc.PipeId[1] = each.Diameter;
        Calc.PipeMaterialNumber = each.Material;
        Calc.LossPer100 = each.Loss;
        EXPECT_EQ(LineHints(), each.Hint);
    }
}

}  // namespace
}  // namespace quillmetra
