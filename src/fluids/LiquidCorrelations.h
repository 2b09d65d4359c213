// Properties of a liquid at flow from the constants of its table row: vapor pressure, specific gravity,
// viscosity, bulk modulus.
//
// Units throughout: temperatures degF, critical temperature degR, pressures psia, viscosity cp, specific
// gravity against water at 60 degF. Nothing guards against constants without sense: the result is then not
// finite, and ProcessLiquidData (LiquidData.h) tells the user so.
#pragma once

namespace quillmetra {

// ln(viscosity) linear in 1/T through two points, after E. N. da C. Andrade: viscosity = A exp(B / T), T in
// degR.
struct ViscosityLine {
    double A;  // cp
    double B;  // degR
};
ViscosityLine ViscosityLineOf(double temperature1, double viscosity1, double temperature2, double viscosity2);
double ViscosityAt(const ViscosityLine& line, double temperature);

// Btu/lb degF. The 60 is added where the columns' names would have it taken off; nothing shows the result.
double LiquidSpecificHeatAt(double cp60, double cp300, double temperature);

// Absolute temperature over the critical one.
double ReducedTemperatureOf(double temperature, double critTemperature);

// Miller's reduced equation (D. G. Miller, Ind. Eng. Chem. Fundam. 2 (1963) 78); its exponent is capped
// at 10.
double VaporPressureOf(double normalBoilingPoint, double critTemperature, double critPressure,
                       double temperature);

// After the NGPA Engineering Data Book, as all gravities and compressibilities here.
// Volume change by pressure, per 1000 psi, from a reduced temperature (general form).
double GeneralCompressibility(double reducedTemperature);

// The critical compressibility that makes GravityAt return the base gravity at 60 degF.
float CritCompressibilityOf(double gravityAt60, double critTemperature, double critPressure,
                            double molecularWeight);
double BaseGravityOf(float critCompressibility, double critTemperature, double critPressure,
                     double molecularWeight);
double GravityAt(float critCompressibility, double critTemperature, double critPressure,
                 double molecularWeight, double temperature);

// Compressibility of organic liquids lighter than water, per 1000 psi: as c at 20 degF, times 1.11 for each
// 20 degF above, the temperature eased between 20 and 80 degF.
double LightCompressibility(double gravity, double temperature);
double LightCompressibilityAt60(double gravity);

// Kouzel's factor on the viscosity at a pressure: B. Kouzel, Hydrocarbon Processing 44 (1965) 120.
double PressureViscosityFactor(double viscosity, double pressure);

// Water by bands of specific volume (steam tables) up to 706 degF; no number from there on.
double WaterGravityAt(double temperature);
// The formula of E. C. Bingham, Fluidity and Plasticity (1922).
double WaterViscosityAt(double temperature);

// psi, from the table's base (psi/1000) and slope (psi per psia).
double BulkModulusAt(double base, double slope, double pressure);

}  // namespace quillmetra
