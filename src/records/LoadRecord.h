// Reads a saved record back into the record in hand.
#pragma once

#include "platform/Database.h"

namespace quillmetra {

struct RecordRows;

// Loads the record of Calc.Tag from Suite.DatabaseFile. The caller has reset the record and set FluidType
// from the head's "Fluid Type" (TakeFluidType), which is not read here. True when the record can be shown:
// it then counts as unchanged and as the reference for colours. False, after a message, when there is no such
// tag or its program number is that of no program. A record without its row of units or of its program is
// told of and shown with what the head knows. Throws as OpenRecords.
//
// After it the form of Calc.CurrentProgram is loaded with InCalculation "Yes"; UnitsConverted is "Yes", so
// its first refresh shows all cases.
bool GetTRCalc();
// The same of a database that is open already, as for many records.
bool GetTRCalc(Database& database);

// The same for a record that is in no database, with its rows in hand; without a message for one that is of
// no program.
bool TakeRows(const RecordRows& rows);

// Sets FluidType from the head of a record; from its program where the head does not tell.
void TakeFluidType(const std::string& headFluidType, int storedProgramNumber);

// The row of each table of the record in hand; false, after a message, when there is none. They may be
// called again.
bool GetTRUnits(Database& database);
bool GetTRDB(Database& database);    // line loss
bool GetWHCalc(Database& database);  // water hammer
bool GetFDCalc(Database& database);  // fluid data
bool GetMixture(Database& database);
// Direction, modes and standard conditions; without a row the usual ones, and no message.
bool GetSettings(Database& database);

}  // namespace quillmetra
