// See Criteria.h.
#include "tables/Criteria.h"

#include <utility>

#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "platform/TextCase.h"
#include "tables/TableFiles.h"

namespace quillmetra {

namespace {

constexpr std::string_view AnyFluid = "Any";

enum Field { Service, Kind, Velocity, ErosionalC, Loss, Source };

LineCriterion CriterionIn(const TableFields& fields) {
    return {fields[Service], Val(fields[Velocity]), Val(fields[ErosionalC]), Val(fields[Loss]),
            fields[Source]};
}

}  // namespace

std::vector<LineCriterion> CriteriaOf(std::string_view fluidKind) {
    std::vector<LineCriterion> criteria;
    for (const std::string& row : ReadTable(table::Criteria)) {
        const TableFields fields = SplitTableLine(table::Criteria, row);
        if (SameName(fields[Kind], fluidKind) || SameName(fields[Kind], AnyFluid))
            criteria.push_back(CriterionIn(fields));
    }
    return criteria;
}

LineCriterion CriterionOf(std::string_view service, std::string_view fluidKind) {
    try {
        for (LineCriterion& each : CriteriaOf(fluidKind)) {
            if (SameName(each.Service, service)) return std::move(each);
        }
    } catch (const RuntimeError&) {
        // no table, no criterion
    }
    return {};
}

}  // namespace quillmetra
