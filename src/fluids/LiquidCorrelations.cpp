// See LiquidCorrelations.h.
#include "fluids/LiquidCorrelations.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "core/PhysicalConstants.h"
#include "units/Temperature.h"

namespace quillmetra {

namespace {

constexpr double GravitySlope = 0.01102;
constexpr double BaseSlope = 5.7267634;  // GravitySlope x 519.67 degR
constexpr double CritExponent = 0.773;

struct WaterBand {
    double Below;      // degF
    double VolumeLow;  // ft3/lb
    double VolumeHigh;
    double BandBase;  // degF
    double Span;
    float Exponent;
};

// The first band starts above the second, as water is densest near 39 degF.
constexpr std::array<WaterBand, 8> WaterBands = {{
    {37, 0.016022, 0.01602, 32, 5, 1.0F},
    {137, 0.01602, 0.01628, 37, 100, 2.0F},
    {237, 0.01628, 0.0169, 137, 100, 1.3F},
    {337, 0.0169, 0.017845, 237, 100, 1.0F},
    {437, 0.017845, 0.0192, 337, 100, 1.0F},
    {537, 0.0192, 0.02137, 437, 100, 1.15F},
    {637, 0.02137, 0.02565, 537, 100, 1.25F},
    {706, 0.02565, 0.05078, 637, 69, 4.0F},
}};

double GravityFrom(float critCompressibility, double critTemperature, double critPressure,
                   double molecularWeight, double lowering) {
    return (critPressure * molecularWeight / critTemperature) *
           ((0.008 / std::pow(static_cast<double>(critCompressibility), CritExponent)) -
            lowering / critTemperature);
}

double LightBase(double gravity) { return std::pow(1.407 - gravity, 7.9) / 14.5 + 0.003; }

// Between 20 and 80 degF the temperature that counts bends from one end to the other.
double EasedTemperature(double temperature) {
    if (!(temperature > 20 && temperature < 80)) return temperature;
    const double part = (temperature - 20) / 60;
    return 20 + (part * part) * 60;
}

}  // namespace

ViscosityLine ViscosityLineOf(double temperature1, double viscosity1, double temperature2,
                              double viscosity2) {
    const double b =
        ((temperature1 + ZeroFInDegR) * (temperature2 + ZeroFInDegR) * std::log(viscosity1 / viscosity2)) /
        (temperature2 - temperature1);
    return {viscosity1 / std::exp(b / (temperature1 + ZeroFInDegR)), b};
}

double ViscosityAt(const ViscosityLine& line, double temperature) {
    return line.A * std::exp(line.B / (temperature + ZeroFInDegR));
}

double LiquidSpecificHeatAt(double cp60, double cp300, double temperature) {
    return cp60 + ((temperature + 60) * (cp300 - cp60)) / 240;
}

double ReducedTemperatureOf(double temperature, double critTemperature) {
    return (temperature + ZeroFInDegR) / critTemperature;
}

double VaporPressureOf(double normalBoilingPoint, double critTemperature, double critPressure,
                       double temperature) {
    const double tbr = ReducedTemperatureOf(normalBoilingPoint, critTemperature);
    const double atmospheres = critPressure / Atmosphere;
    const double h = tbr * std::log(atmospheres) / (1 - tbr);
    const double g = 0.4835 + 0.4605 * h;
    const double k = ((h / g) - (1 + tbr)) / ((3 + tbr) * ((1 - tbr) * (1 - tbr)));
    const double tr = ReducedTemperatureOf(temperature, critTemperature);
    const double below = 1 - tr;
    double exponent = (-g / tr) * ((1 - tr * tr) + k * (3 + tr) * (below * below * below));
    if (exponent > 10) exponent = 10;
    return atmospheres * std::exp(exponent) * Atmosphere;
}

double GeneralCompressibility(double reducedTemperature) {
    const double tr = reducedTemperature;
    return 0.269 * tr - 0.5163 * (tr * tr) + 0.3521 * (tr * tr * tr) - 0.0461;
}

float CritCompressibilityOf(double gravityAt60, double critTemperature, double critPressure,
                            double molecularWeight) {
    const double a = 0.008 / ((gravityAt60 * critTemperature / critPressure / molecularWeight) +
                              BaseSlope / critTemperature);
    return static_cast<float>(std::pow(a, 1 / CritExponent));
}

double BaseGravityOf(float critCompressibility, double critTemperature, double critPressure,
                     double molecularWeight) {
    return GravityFrom(critCompressibility, critTemperature, critPressure, molecularWeight, BaseSlope);
}

double GravityAt(float critCompressibility, double critTemperature, double critPressure,
                 double molecularWeight, double temperature) {
    return GravityFrom(critCompressibility, critTemperature, critPressure, molecularWeight,
                       GravitySlope * (temperature + ZeroFInDegR));
}

double LightCompressibility(double gravity, double temperature) {
    return LightBase(gravity) * std::pow(1.11, (EasedTemperature(temperature) - 20) / 20);
}

// 26.667 is 60 degF eased, less 20.
double LightCompressibilityAt60(double gravity) { return LightBase(gravity) * std::pow(1.11, 26.667 / 20.0); }

double PressureViscosityFactor(double viscosity, double pressure) {
    return std::pow(10.0, (pressure / 1000) * (0.0239 + 0.01638 * std::pow(viscosity, 0.278)));
}

double WaterGravityAt(double temperature) {
    const auto* band =
        std::find_if(WaterBands.begin(), WaterBands.end(),
                     [temperature](const WaterBand& each) { return temperature < each.Below; });
    if (band == WaterBands.end()) return std::numeric_limits<double>::quiet_NaN();
    const double part =
        std::pow((temperature - band->BandBase) / band->Span, static_cast<double>(band->Exponent));
    // 0.016033 leaves a gravity near 1 at 60 degF, not 1.
    return 0.016033 / (band->VolumeLow + part * (band->VolumeHigh - band->VolumeLow));
}

double WaterViscosityAt(double temperature) {
    const double celsius = CelsiusOf(temperature) - 8.435;
    return 100 / (2.152938705 * (celsius + std::sqrt(8078.4 + celsius * celsius)) - 120);
}

double BulkModulusAt(double base, double slope, double pressure) { return base * 1000 + pressure * slope; }

}  // namespace quillmetra
