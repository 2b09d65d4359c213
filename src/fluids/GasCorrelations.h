// Properties of a gas at flow from the constants of its table row: compressibility and density, viscosity,
// specific heats, latent heat.
//
// Units throughout: temperatures degF, critical temperatures degR, pressures psia, viscosity cp, specific and
// latent heats per lb. Nothing guards against constants without sense: the result is then not finite, and
// ProcessGasData (GasData.h) tells the user so.
#pragma once

namespace quillmetra {

struct GasFactor {
    double Value;  // compressibility factor
    int Rounds;    // before the last one; 51 when it did not converge
    bool Converged;
};

// The equation of O. Redlich and J. N. S. Kwong, Chem. Rev. 44 (1949) 233, solved for the compressibility
// factor by Newton's method from 1 until a step is below 1e-06. The last value stands when that has not come
// after 51 rounds.
GasFactor SolveRedlichKwong(double critTemperature, double critPressure, double temperature, double pressure);

// The highest pressure (psia) for which the equation can be relied upon: P / Pc up to half of T / Tc, the
// customary rule for a gas below its critical temperature. Infinite from there on, where its authors found
// it good at any pressure.
double RedlichKwongLimit(double critTemperature, double critPressure, double temperature);

// lb/ft3.
double GasDensityOf(double pressure, double temperature, double molecularWeight, double factor);

// Critical compressibility factor from the critical volume (ft3/lb).
float GasCritFactorOf(double critPressure, double critVolume, double molecularWeight, double critTemperature);

// Viscosity = A T^Exponent, T in K, through the first point. The exponent has a sign by which
// the line does not meet the second point but the first viscosity squared over the second; the shipped
// tables make up for it.
struct GasViscosityLine {
    double A;
    double Exponent;
};
GasViscosityLine GasViscosityLineOf(double temperature1, double viscosity1, double temperature2,
                                    double viscosity2);
double GasViscosityAt(const GasViscosityLine& line, double temperature);

// A reduced temperature next to 1 counts as 1.01: the factor of dense gases divides by its logarithm.
double EasedReducedTemperature(double reducedTemperature);

// What the viscosity of a dense organic gas is multiplied by, at most 5: a fit to the NGPA Engineering Data
// Book.
double DenseGasFactor(double reducedTemperature, double reducedPressure);

// Btu/lb degF, from those at 60 degF and at 300 degF. The divisor makes the line meet the second one at
// 400 degF, and the figures of the shipped tables are made for that.
double GasSpecificHeatAt(double cp1, double cp2, double temperature);

// Ratio of specific heats of an ideal gas from its molar specific heat (Btu/lbmol degF).
double RatioOfSpecificHeats(double molarHeat);

// Watson's rule (K. M. Watson, Ind. Eng. Chem. 35 (1943) 398) from a known latent heat; 0 when the two
// temperatures do not lie on one side of the critical one. Takes degF to degR by 460, as the limits of the
// tables do.
double WatsonLatentHeat(double knownTemperature, double knownHeat, double critTemperature,
                        double temperature);

// The latent heat of a mixture (Btu/lb) at the temperature where it boils under a pressure (psig), which
// comes from the vapor pressure of B. I. Lee and M. G. Kesler, AIChE J. 21 (1975) 510, by one secant step.
// 0.1 where there is none.
double MixtureLatentHeatOf(double normalBoilingPoint, double latentHeatBP, double critTemperature,
                           double critPressure, double pressure);

}  // namespace quillmetra
