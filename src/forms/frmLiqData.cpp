// See frmLiqData.h.
#include "forms/frmLiqData.h"

#include "core/Words.h"
#include "fluids/LiquidCorrelations.h"
#include "units/Conversion.h"
#include "units/Viscosity.h"

namespace quillmetra {

namespace {

// A gravity as it is, or as a density in the unit of row 5, which is that of row 9 here.
double GravityShown(double gravity) {
    const bool density = Calc.LiquidDensityMode == words::Density;
    return density ? gravity / Calc.UnitFactor[5] * WaterDensity : gravity;
}

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
    const bool mixture = Calc.MixtureFlag == words::Yes;
    const UnitFactors& factor = Calc.UnitFactor;
    Calc.BulkModulus = BulkModulusAt(Calc.BulkModulusBase, Calc.BulkModulusSlope, Calc.FlowPressure);
    Store({{8, Known(Calc.VaporPressure / factor[8])},
           {4, TemperatureShown(Calc.NormalBoilingPoint)},
           {12, CritTemperatureShown(Calc.CritTemperature)},
           {27, Known(Calc.BulkModulus / factor[27])},
           {1, Calc.FlashPoint > 0 && !mixture ? TemperatureShown(Calc.FlashPoint) : 0},
           {5, GravityShown(Calc.SGAtStandard)},
           {0, Calc.MolecularWeight},
           {6, GravityShown(Calc.FlowingSG)},
           {9, WaterDensity * Calc.FlowingSG / factor[5]},
           {7, LiquidViscosityShown(Calc.FluidViscosity, Calc.FlowingSG)},
           {11, Calc.CritPressure / factor[11]}});
}

}  // namespace quillmetra
