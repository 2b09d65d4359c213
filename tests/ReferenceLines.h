// The line cases worked by the independent programs of tools/reference: a table whose second line names its
// columns.
#pragma once

#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "core/CalcRecord.h"
#include "platform/NumberText.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {

struct ReferenceLine {
    std::map<std::string, std::string> Fields;
    double operator[](const std::string& name) const { return Val(Fields.at(name)); }
};

inline std::vector<ReferenceLine> ReadReferenceLines(const std::string& table) {
    std::ifstream file(SourceFolder() / "tests/reference" / table);
    std::vector<std::string> names;
    std::vector<ReferenceLine> lines;
    std::string text;
    std::getline(file, text);
    std::getline(file, text);
    std::istringstream heading(text.substr(2));
    for (std::string name; heading >> name;) names.push_back(name);
    while (std::getline(file, text)) {
        std::istringstream fields(text);
        ReferenceLine line;
        for (const std::string& name : names) fields >> line.Fields[name];
        lines.push_back(line);
    }
    return lines;
}

// The columns that both line programs have, taken into the record.
inline void TakeCommonColumns(const ReferenceLine& line) {
    static const std::map<std::string, double CalcRecord::*> columns = {
        {"flow", &CalcRecord::MassFlow},       {"viscosity", &CalcRecord::Viscosity},
        {"fouling", &CalcRecord::PipeFouling}, {"gate", &CalcRecord::GateValves},
        {"globe", &CalcRecord::GlobeValves},   {"check", &CalcRecord::CheckValves},
        {"ell90", &CalcRecord::Ells90},        {"ell45", &CalcRecord::Ells45},
        {"thru", &CalcRecord::ThruTees},       {"branch", &CalcRecord::BranchTees},
    };
    for (const auto& [name, field] : columns) Calc.*field = line[name];
    Calc.PipeId[1] = line["id"];
    Calc.PipeLength[1] = line["length"];
    Calc.SourcePressure[1] = line["source"];
    Calc.Elevation = {0, line["start"], line["end"]};
    Calc.EquipLoss[1] = line["equipment"];
    Calc.PipeMaterialNumber = static_cast<int>(line["material"]);
    Calc.EntranceK = 1.5 * line["entrance"];
    Calc.ExitK = 2.7 * line["exit"];
}

}  // namespace quillmetra
