// The arithmetic of one liquid line on local doubles, with no record, no words and no messages: what the
// suite's own routines are measured against.
#pragma once

#include <cmath>

#include "core/CalcRecord.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "lineloss/FlowStatus.h"
#include "lineloss/PipeMaterials.h"

namespace quillmetra {

struct PlainLine {
    double Flow = 50000, PipeId = 4.026, Length = 350, Viscosity = 1, Gravity = 1, Source = 114.7;
    double Start = 0, End = 12, EquipLoss = 2, Fouling = 5;
    double EntranceK = 1.5, Gates = 2, Globes = 0, Checks = 1, Ells90 = 6, Ells45 = 0, Branches = 1,
           Thrus = 2;
    double ExitK = 2.7;
    const PipeMaterial* Material = &PipeMaterials[0];
};

// Of clean pipe; diameter in inches.
inline double PlainFrictionFactor(double reynolds, double diameter, const PipeMaterial& material) {
    double f = reynolds <= 2000 ? 64 / reynolds : 0.01;
    for (int round = 1; reynolds > 2000 && round <= 100; ++round) {
        const double root = std::sqrt(f);
        const double x = (material.Roughness / 3.7) / diameter + (material.Constant / reynolds) / root;
        const double g = -0.8685999 * std::log(x) - 1 / root;
        const double step = g / (0.8685999 * x + 0.5 / (f * root));
        if (std::fabs(step) <= 1e-06) break;
        f -= step;
    }
    return f;
}

// psia at the far end.
inline double PlainFinalPressure(const PlainLine& line) {
    const double d = line.PipeId;
    const double clean = PlainFrictionFactor(6.31 * line.Flow / d / line.Viscosity, d, *line.Material);
    const double f = clean + clean * line.Fouling / 100;
    const TurbulenceRow* row = FindTurbulenceRow(d);
    const double turbulent = row == nullptr ? f : row->Factor;
    const double feet = d / 12;
    const auto fitting = [=](double count, double ratio) {
        return count > 0 ? count * ((turbulent * ratio / f) * feet) : 0;
    };
    const double density = line.Gravity * 62.36;
    const double loss =
        std::fmin(0.000336 * f * (line.Flow * line.Flow) / (d * d * d * d * d) / density, 50000.0);
    double length = line.Length + line.EntranceK * ((1 / f) * feet) + fitting(line.Gates, 8) +
                    fitting(line.Globes, 350) + fitting(line.Checks, 40) + fitting(line.Ells90, 20) +
                    fitting(line.Ells45, 10) + fitting(line.Branches, 60) + fitting(line.Thrus, 20) +
                    line.ExitK * ((1 / f) * feet);
    length += line.EquipLoss / loss * 100;
    length -= ((density * (line.Start - line.End) / 144) / loss) * 100;
    return line.Source - loss * length / 100;
}

// Puts the same line into the record, its messages hidden.
inline void TakePlainLine(const PlainLine& line) {
    Calc = CalcRecord();
    Suite.HideFlowStatus = words::Yes;
    Calc.CurrentProgram = 1;
    Calc.MassFlow = line.Flow;
    Calc.PipeId[1] = line.PipeId;
    Calc.PipeLength[1] = line.Length;
    Calc.Viscosity = line.Viscosity;
    Calc.FlowingSG = line.Gravity;
    Calc.SourcePressure[1] = line.Source;
    Calc.Elevation = {0, line.Start, line.End};
    Calc.EquipLoss[1] = line.EquipLoss;
    Calc.PipeFouling = line.Fouling;
    Calc.EntranceK = line.EntranceK;
    Calc.GateValves = line.Gates;
    Calc.GlobeValves = line.Globes;
    Calc.CheckValves = line.Checks;
    Calc.Ells90 = line.Ells90;
    Calc.Ells45 = line.Ells45;
    Calc.BranchTees = line.Branches;
    Calc.ThruTees = line.Thrus;
    Calc.ExitK = line.ExitK;
}

}  // namespace quillmetra
