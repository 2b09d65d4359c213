// See frmLiqData.h.
#include "forms/frmLiqData.h"

#include "core/Words.h"
#include "fluids/LiquidCorrelations.h"
#include "units/Border.h"
#include "units/Conversion.h"
#include "units/Viscosity.h"

namespace quillmetra {

namespace {

// A value that is not above 0 is not known, and its box stays blank.
double Known(double value) { return value > 0 ? value : 0; }

}  // namespace

frmLiqData::frmLiqData()
    : DataForm({.Program = 4,
                .Form = "frmLiqData",
                .FluidMenu = "mnuFluidProp",
                .ListFrame = "fraLiquidData",
                .ListCaption = "Liquids"}) {
    SetCaption("Liquid properties at temperature and pressure");
    Entries = {{&mnuLiquid1, &mnuMixture1}, {&mnuLiquid2, &mnuMixture2}, {&mnuLiquid3, &mnuMixture3}};
    Assemble();
}

// The flash point of a mixture's last component says nothing of the mixture: a share of a lighter one may
// flash hundreds of degrees below it.
void frmLiqData::FillCase() {
    const bool mixture = IsYes(Calc.MixtureFlag);
    const UnitFactors& factor = Calc.UnitFactor;
    Calc.BulkModulus = BulkModulusAt(Calc.BulkModulusBase, Calc.BulkModulusSlope, Calc.FlowPressure);
    Store({{input::VaporPressure, Known(Calc.VaporPressure / factor[unit::VaporPressure])},
           {input::BoilingPoint, TemperatureShown(Calc.NormalBoilingPoint)},
           {input::CritTemperature, CritTemperatureShown(Calc.CritTemperature)},
           {input::Modulus, Known(Calc.BulkModulus / factor[unit::Modulus])},
           {input::FlashPoint, Calc.FlashPoint > 0 && !mixture ? TemperatureShown(Calc.FlashPoint) : 0},
           {input::StandardGravity, GravityShown(Calc.SGAtStandard, unit::UserDensity)},
           {input::LiquidWeight, Calc.MolecularWeight},
           {input::FlowGravity, GravityShown(Calc.FlowingSG, unit::UserDensity)},
           {input::Density, WaterDensity * Calc.FlowingSG / factor[unit::UserDensity]},
           {input::Viscosity, LiquidViscosityShown(Calc.FluidViscosity, Calc.FlowingSG)},
           {input::CritPressure, Calc.CritPressure / factor[unit::CritPressure]}});
}

}  // namespace quillmetra
