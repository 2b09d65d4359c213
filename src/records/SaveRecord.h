// Saves the record in hand under its tag: the head row, the units, the program's own row, the mixture, the
// settings and the extras, in one transaction.
#pragma once

#include <cstddef>
#include <string>

#include "platform/Database.h"
#include "records/RecordRows.h"

namespace quillmetra {

// Saves the record to Suite.DatabaseFile, which must exist. Every text is checked first, so that one that is
// too long refuses the save, naming its field, with nothing written. A tag that is on file is overwritten
// after a question. True when all is saved: the record then counts as unchanged, InCalculation is "Yes" and
// Suite.RecordTotal tells the number of records. False after a refusal, which the user has been told of; the
// record then still counts as changed. When a row beside the head is refused by the database the head stays.
// In a run over many records the question names the tag, and Enter keeps what is on file.
bool SaveTRCalc(bool inARun = false);
// Whether the last save failed for what lies with the database, so that no other record has any chance.
bool StoreFailed();
// Whether it was refused since the user first wants to see what another has changed meanwhile.
bool ComparisonWanted();

// Cuts manufacturer and model, which may come from the file of the headings and then be too long; tells what
// was cut, in words that go behind "Saved as P-101". To be called before a save, which refuses texts that are
// too long.
std::string CutHeadings();

// Writes all rows of the record in hand to an empty database, under its tag, without a question or a word.
void WriteWholeRecord(Database& database);

// All rows of the record in hand, as a save of it would write them.
RecordRows RowsOfRecord();

// The row of each table, over the one of the same tag if there is one. Failures are RuntimeErrors.
void SaveTRUnits(Database& database);
void SaveTRDB(Database& database);    // line loss, programs 1 and 2
void SaveWHCalc(Database& database);  // water hammer, program 3
void SaveFDCalc(Database& database);  // fluid data, programs 4 and 5
void SaveMixture(Database& database);
void SaveSettings(Database& database);

// Removes the mixture of the record in hand, if it has one.
void DeleteMixtureRow(Database& database);

}  // namespace quillmetra
