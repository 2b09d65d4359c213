// One function a form, each in the file of its name.
#pragma once

#include "desktop/Layout.h"

namespace quillmetra::layout {

Node FindDialog();
Node WinSeek();
Node frmBackups();
Node frmCalcOptions();
Node frmCompare();
Node frmCopyAll();
Node frmFluid();
Node frmGasData();
Node frmGasLineLoss();
Node frmLineFlow();
Node frmLiqData();
Node frmLiqLineLoss();
Node frmObxPrintCalc();
Node frmObxProg();
Node frmPipeSize();
Node frmPrintControl();
Node frmImport();
Node frmRecalculate();
Node frmServer();
Node frmShippedRows();
Node frmSizes();
Node frmTRProg();
Node frmTables();
Node frmUnits();
Node frmWaterHammer();

}  // namespace quillmetra::layout
