// Fluids without the record: a table row split by hand, the correlations on local doubles, steam between
// arrays in memory, mixtures as sums over both.
#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "fluids/GasCorrelations.h"
#include "fluids/LiquidCorrelations.h"
#include "fluids/SteamTables.h"
#include "platform/TextFiles.h"
#include "units/Rounding.h"

namespace quillmetra {

// The columns of a row from its third on.
using PlainColumns = std::array<double, 15>;

inline PlainColumns PlainRow(std::string_view row, std::size_t columns) {
    PlainColumns values{};
    const char* next = row.data();
    const char* const end = next + row.size();
    for (int texts = 0; texts < 2; ++texts) next = std::find(next, end, ',') + 1;
    for (std::size_t i = 0; i < columns; ++i) {
        while (next < end && *next == ' ') ++next;
        next = std::find(std::from_chars(next, end, values[i]).ptr, end, ',') + 1;
    }
    return values;
}

struct Surroundings {
    double Temperature, Pressure, Barometer;  // degF, psia, psia
};

// --- Liquids -----------------------------------------------------------------------------------------------

struct PlainLiquid {
    double MolecularWeight, BaseGravity, CritTemperature, CritPressure, BoilingPoint, Viscosity, SpecificHeat;
};

inline PlainLiquid PlainLiquidOf(std::string_view row, double temperature) {
    const PlainColumns c = PlainRow(row, 15);
    const ViscosityLine line = ViscosityLineOf(c[3], c[4], c[5], c[6]);
    return {.MolecularWeight = c[0],
            .BaseGravity = c[1],
            .CritTemperature = c[2] + 460,
            .CritPressure = c[7],
            .BoilingPoint = c[8],
            .Viscosity = ViscosityAt(line, temperature),
            .SpecificHeat = LiquidSpecificHeatAt(c[9], c[10], temperature)};
}

struct PlainLiquidAtFlow {
    double VaporPressure, Gravity, Viscosity;
};

// An organic liquid, pure or mixed.
inline PlainLiquidAtFlow PlainLiquidProperties(const PlainLiquid& liquid, const Surroundings& flow,
                                               bool mixture) {
    const double critical = liquid.CritTemperature;
    const auto vaporPressure = [&](double temperature) {
        return VaporPressureOf(liquid.BoilingPoint, critical, liquid.CritPressure, temperature);
    };
    const float factor =
        CritCompressibilityOf(liquid.BaseGravity, critical, liquid.CritPressure, liquid.MolecularWeight);
    double gravity =
        GravityAt(factor, critical, liquid.CritPressure, liquid.MolecularWeight, flow.Temperature);
    const float reduced60 = static_cast<float>(519.67 / critical);
    double at60 = GeneralCompressibility(static_cast<double>(reduced60));
    double compressibility = GeneralCompressibility(ReducedTemperatureOf(flow.Temperature, critical));
    if (gravity < 1) {
        at60 = LightCompressibilityAt60(gravity);
        compressibility = LightCompressibility(gravity, flow.Temperature);
    }
    const double viscosity = liquid.Viscosity > 1.2
                                 ? liquid.Viscosity * PressureViscosityFactor(liquid.Viscosity, flow.Pressure)
                                 : liquid.Viscosity;
    const double offset = std::fmax(vaporPressure(60) - flow.Barometer, 0);
    gravity = gravity * (1 + compressibility * (flow.Pressure - offset) / 1000) /
              (1 + at60 * flow.Barometer / 1000);
    return {mixture ? 0 : vaporPressure(flow.Temperature), gravity, viscosity};
}

inline PlainLiquidAtFlow PlainLiquidMixture(const std::vector<std::string>& rows, const Surroundings& flow) {
    PlainLiquid sums{};
    const double x = 1.0 / static_cast<double>(rows.size());
    for (const std::string& row : rows) {
        const PlainLiquid each = PlainLiquidOf(row, flow.Temperature);
        sums.MolecularWeight += x * each.MolecularWeight;
        sums.BaseGravity += x * each.BaseGravity;
        sums.CritTemperature += x * each.CritTemperature;
        sums.CritPressure += x * each.CritPressure;
        sums.Viscosity += x * std::log(each.Viscosity);
        sums.BoilingPoint = each.BoilingPoint;
    }
    sums.Viscosity = std::exp(sums.Viscosity);
    return PlainLiquidProperties(sums, flow, true);
}

// --- Gases -------------------------------------------------------------------------------------------------

struct PlainGasFluid {
    double MolecularWeight, CritTemperature, CritPressure, CritVolume, BoilingPoint, LatentHeat;
    double Viscosity, SpecificHeat;
    float CritFactor;
};

inline PlainGasFluid PlainGasOf(const PlainColumns& c, const Surroundings& flow) {
    PlainGasFluid gas{
        .MolecularWeight = c[2],
        .CritTemperature = c[3] + 460,
        .CritPressure = c[8],
        .CritVolume = c[0],
        .BoilingPoint = c[1],
        .LatentHeat = c[11],
        .Viscosity = GasViscosityAt(GasViscosityLineOf(c[4], c[5], c[6], c[7]), flow.Temperature),
        .SpecificHeat = GasSpecificHeatAt(c[9], c[10], flow.Temperature),
        .CritFactor = 0};
    gas.CritFactor =
        GasCritFactorOf(gas.CritPressure, gas.CritVolume, gas.MolecularWeight, gas.CritTemperature);
    const double reducedPressure = flow.Pressure / gas.CritPressure;
    if (reducedPressure > 0.9) {
        gas.Viscosity *= DenseGasFactor(
            EasedReducedTemperature(ReducedTemperatureOf(flow.Temperature, gas.CritTemperature)),
            reducedPressure);
    }
    return gas;
}

struct PlainGasAtFlow {
    double Viscosity, Ratio, VaporPressure, Density;
};

inline double PlainDensity(double critTemperature, double critPressure, double molecularWeight,
                           const Surroundings& flow) {
    const GasFactor factor =
        SolveRedlichKwong(critTemperature, critPressure, flow.Temperature, flow.Pressure);
    return GasDensityOf(flow.Pressure, flow.Temperature, molecularWeight, factor.Value);
}

inline PlainGasAtFlow PlainGasProperties(const PlainColumns& columns, const Surroundings& flow) {
    const PlainGasFluid gas = PlainGasOf(columns, flow);
    return {gas.Viscosity, RatioOfSpecificHeats(gas.SpecificHeat * gas.MolecularWeight),
            VaporPressureOf(gas.BoilingPoint, gas.CritTemperature, gas.CritPressure, flow.Temperature),
            PlainDensity(gas.CritTemperature, gas.CritPressure, gas.MolecularWeight, flow)};
}

inline PlainGasAtFlow PlainGasMixture(const std::vector<std::string>& rows, const Surroundings& flow) {
    double heat = 0, weight = 0, viscosity = 0, temperature = 0, volume = 0, factor = 0, latent = 0;
    const double x = 1.0 / static_cast<double>(rows.size());
    for (const std::string& row : rows) {
        const PlainGasFluid each = PlainGasOf(PlainRow(row, 12), flow);
        heat += x * each.SpecificHeat * each.MolecularWeight;
        weight += x * each.MolecularWeight;
        viscosity += x * each.Viscosity * std::sqrt(each.MolecularWeight);
        temperature += x * each.CritTemperature;
        volume += x * each.CritVolume * each.MolecularWeight;
        factor += x * static_cast<double>(each.CritFactor);
        latent += x * each.LatentHeat;
    }
    weight = RoundedFour(weight);
    const double pressure = factor * 10.7316 * temperature / volume;
    return {viscosity / std::sqrt(weight), RatioOfSpecificHeats(heat), latent,
            PlainDensity(temperature, pressure, weight, flow)};
}

// --- Steam -------------------------------------------------------------------------------------------------

// The two files of steam in memory. For a pressure the row below and the row above stand for volume, ratio
// and viscosity, each with saturation at places 1 and 2 and superheat by temperature from place 3 on.
class PlainSteam {
public:
    using Record = std::array<float, 20>;
    struct Found {
        double Volume, Ratio, Viscosity, Saturation;
    };

    PlainSteam(const std::string& pressures, const std::string& rows) {
        for (ItemReader file(pressures); !file.AtEnd();) pressures_.push_back(file.NextNumber());
        const std::string bytes = ReadBytes(rows);
        rows_.resize(bytes.size() / sizeof(rows_[0]));
        std::memcpy(rows_.data(), bytes.data(), rows_.size() * sizeof(rows_[0]));
    }

    Found Saturated(double pressure) const {
        const Span rows = Around(pressure);
        return {Between(rows, 0, 2), Between(rows, 1, 2), Between(rows, 2, 2), Between(rows, 0, 1)};
    }

    // Between two columns that both hold steam.
    Found Superheated(double pressure, double temperature) const {
        static constexpr std::array<double, 16> columns = {240, 340, 400,  500,  600,  650,  700,  750,
                                                           800, 900, 1000, 1100, 1200, 1300, 1400, 1500};
        const Span rows = Around(pressure);
        std::size_t above = 1;
        while (columns[above] < temperature) ++above;
        const double part = (temperature - columns[above - 1]) / (columns[above] - columns[above - 1]);
        const auto at = [&](std::size_t property) {
            const double low = Between(rows, property, above + 2);
            return low + (Between(rows, property, above + 3) - low) * part;
        };
        return {at(0), at(1), at(2), Between(rows, 0, 1)};
    }

private:
    struct Span {
        std::size_t Upper;
        double Part;
    };

    Span Around(double pressure) const {
        std::size_t upper = 1;
        while (pressures_[upper] < pressure) ++upper;
        return {upper, (pressure - pressures_[upper - 1]) / (pressures_[upper] - pressures_[upper - 1])};
    }
    double Between(const Span& rows, std::size_t property, std::size_t place) const {
        const auto low = static_cast<double>(rows_[rows.Upper - 1][property][place]);
        return low + (static_cast<double>(rows_[rows.Upper][property][place]) - low) * rows.Part;
    }

    std::vector<double> pressures_;
    std::vector<std::array<Record, 4>> rows_;
};

// What a form shows of it, in four figures.
struct PlainSteamShown {
    double Viscosity, Density, Ratio, Saturation, LatentHeat;
};

inline PlainSteamShown PlainSteamOnForm(const PlainSteam::Found& steam) {
    return {RoundedFour(steam.Viscosity), RoundedFour(1 / steam.Volume), RoundedFour(steam.Ratio),
            RoundedSix(steam.Saturation), SaturatedSteamLatentHeat(steam.Saturation)};
}

}  // namespace quillmetra
