// See LineServices.h.
#include "forms/LineServices.h"

#include <string>
#include <utility>

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/Words.h"
#include "platform/RuntimeError.h"
#include "tables/Criteria.h"

namespace quillmetra {

namespace {

// After choking, and before any error of a result: it is what the user wants to be told.
constexpr double Second = 900;

std::string ExcessOfCase(const LineCriterion& criterion, int caseIndex) {
    const double loss = Calc.CaseResult[result::LossPer100][At(caseIndex)];
    if (Calc.CurrentProgram == program::GasLine) return ExcessOf(criterion, GasFiguresOf(caseIndex), loss);
    return ExcessOf(criterion, LiquidFiguresOf(caseIndex), loss);
}

std::string Sentence(std::string excess, const LineCriterion& criterion) {
    excess.front() = static_cast<char>(excess.front() - 'a' + 'A');
    return excess + ": beyond the criterion of " + criterion.Service + SourceOf(criterion) + ".";
}

}  // namespace

std::vector<LineCriterion> ServicesOffered(Form& form) {
    std::vector<LineCriterion> services = {{.Service = words::NoService, .Source = ""}};
    try {
        for (LineCriterion& each : CriteriaOf(Calc.FluidType)) services.push_back(std::move(each));
    } catch (const RuntimeError& error) {
        form.SetStatus("Criteria.txt: " + error.Description);
    }
    return services;
}

HintList ServiceHints(int caseIndex) {
    if (Calc.Service.empty()) return {};
    const LineCriterion criterion = CriterionOf(Calc.Service, Calc.FluidType);
    if (criterion.Service.empty())
        return {{Second, "The table of criteria has no service " + Calc.Service + "."}};
    std::string excess = ExcessOfCase(criterion, caseIndex);
    if (excess.empty()) return {};
    return {{Second, Sentence(std::move(excess), criterion)}};
}

}  // namespace quillmetra
