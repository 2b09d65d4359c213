// The menu entries by which both gas forms pick the fluid of a case.
#pragma once

#include <vector>

#include "forms/FluidForm.h"

namespace quillmetra {

struct GasEntries {
    explicit GasEntries(ControlArray<MenuItem>& cases)
        : mnuPureGases1(cases(0), "mnuPureGases1", "&Pure gas"),
          mnuPureGases2(cases(1), "mnuPureGases2", "&Pure gas"),
          mnuPureGases3(cases(2), "mnuPureGases3", "&Pure gas"),
          mnuMixtures1(cases(0), "mnuMixtures1", "&Mixture"),
          mnuMixtures2(cases(1), "mnuMixtures2", "&Mixture"),
          mnuMixtures3(cases(2), "mnuMixtures3", "&Mixture"),
          mnuSatSteam1(cases(0), "mnuSatSteam1", "&Saturated steam"),
          mnuSatSteam2(cases(1), "mnuSatSteam2", "&Saturated steam"),
          mnuSatSteam3(cases(2), "mnuSatSteam3", "&Saturated steam"),
          mnuSupersteam1(cases(0), "mnuSupersteam1", "Super&heated steam"),
          mnuSupersteam2(cases(1), "mnuSupersteam2", "Super&heated steam"),
          mnuSupersteam3(cases(2), "mnuSupersteam3", "Super&heated steam") {}

    std::vector<FluidEntries> ByCase() {
        return {{&mnuPureGases1, &mnuMixtures1, &mnuSatSteam1, &mnuSupersteam1},
                {&mnuPureGases2, &mnuMixtures2, &mnuSatSteam2, &mnuSupersteam2},
                {&mnuPureGases3, &mnuMixtures3, &mnuSatSteam3, &mnuSupersteam3}};
    }

    MenuItem mnuPureGases1, mnuPureGases2, mnuPureGases3;
    MenuItem mnuMixtures1, mnuMixtures2, mnuMixtures3;
    MenuItem mnuSatSteam1, mnuSatSteam2, mnuSatSteam3;
    MenuItem mnuSupersteam1, mnuSupersteam2, mnuSupersteam3;
};

}  // namespace quillmetra
