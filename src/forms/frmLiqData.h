// Program 4: the properties of a liquid at temperature and pressure.
#pragma once

#include "forms/BasisLabels.h"
#include "forms/DataForm.h"

namespace quillmetra {

class frmLiqData : public DataForm {
public:
    frmLiqData();

    MenuItem mnuLiquid1{mnuCase(0), "mnuLiquid1", "&Pure liquid"};
    MenuItem mnuLiquid2{mnuCase(1), "mnuLiquid2", "&Pure liquid"};
    MenuItem mnuLiquid3{mnuCase(2), "mnuLiquid3", "&Pure liquid"};
    MenuItem mnuMixture1{mnuCase(0), "mnuMixture1", "&Mixture"};
    MenuItem mnuMixture2{mnuCase(1), "mnuMixture2", "&Mixture"};
    MenuItem mnuMixture3{mnuCase(2), "mnuMixture3", "&Mixture"};

    BasisLabels Basis{Picture1};
    Label lblSGFTP{Picture1, "lblSGFTP", "Specific gravity @ FTP"};
    ControlArray<TextBox> txtSGFTP{Picture1, "txtSGFTP", {0, 1, 2}};
    Label lblSGBase{Picture1, "lblSGBase", "Specific gravity @ Base"};
    ControlArray<TextBox> txtSGBase{Picture1, "txtSGBase", {0, 1, 2}};
    Label lblFlashpoint{Picture1, "lblFlashpoint", "Flash point"};
    ControlArray<TextBox> txtFlashpoint{Picture1, "txtFlashpoint", {0, 1, 2}};
    Label unFlashPoint{Picture1, "unFlashPoint"};
    Label lblBulkMod{Picture1, "lblBulkMod", "Bulk modulus"};
    ControlArray<TextBox> txtBulkModulus{Picture1, "txtBulkModulus", {0, 1, 2}};
    Label unBulkMod{Picture1, "unBulkMod"};

protected:
    void FillCase() override;
};

}  // namespace quillmetra
