// Units that a list names: in its columns of units, or in a row below its heads.
#pragma once

#include <map>
#include <string>

#include "records/RecordRows.h"

namespace quillmetra {

// Whether the library has such a unit.
bool IsUnitName(const std::string& name);

// The field of the record's units that holds the unit of a column: "Flow Units". Of a gravity it is that of
// the density, if the unit is one; empty for what has no unit to choose.
std::string UnitFieldOf(const RecordColumn& column, int program, const std::string& unit);

// The units of a list by their fields; the factor is 0 where the list does not tell.
struct ListUnit {
    std::string Name;
    double Factor = 0;
    std::string Head;  // of the list, for messages
};
using ListUnits = std::map<std::string, ListUnit>;

// Takes them as those of a record: one that holds values (isStored) has its values converted, a new one is
// just in them. Throws ListRefusal for one that the library does not have.
void TakeUnits(RecordRows& rows, const ListUnits& units, bool isStored);
// Those that a record is in.
ListUnits UnitsOf(const RecordRows& rows);

// The record in hand, whose values follow.
void ConvertRecordInHand(const ListUnits& units);

// Why a row of a list is refused.
struct ListRefusal {
    std::string Column, Reason;
};

}  // namespace quillmetra
