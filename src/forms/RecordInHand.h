// From a record of the database to its filled calculation form, for display and for print.
#pragma once

#include "records/RecordView.h"

namespace quillmetra {

struct RecordRows;

// Reads a record of Suite.DatabaseFile into hand. False, after a message, when it cannot be shown. Throws as
// OpenRecords.
bool TakeRecord(const RecordHead& head);
// Of one that is open already, as for many records.
bool TakeRecord(const RecordHead& head, Database& database);

// The same for a record that is in no database; false when it is of no program.
bool TakeRecordRows(const RecordRows& rows);

// Loads the form of the record in hand, hidden, and fills it. Returns its name; null when the record is of
// no program.
const char* FillCalculationForm();

// The forms of a record, gone at once however the work on it ends: a run has room for one record's forms
// alone.
class FormsOfRecord {
public:
    FormsOfRecord() = default;
    ~FormsOfRecord();
    FormsOfRecord(const FormsOfRecord&) = delete;
    FormsOfRecord& operator=(const FormsOfRecord&) = delete;
};

// Opens the form of the record that was just loaded, in place of the browser.
void ShowLoadedRecord();

}  // namespace quillmetra
