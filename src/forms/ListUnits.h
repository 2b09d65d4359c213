// Units that a list names: in its columns of units, or in a row below its heads.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "records/RecordRows.h"

namespace quillmetra {

// Whether the library has such a unit.
bool IsUnitName(const std::string& name);

inline constexpr const char* DensityField = "Density Units";

// The field of the record's units that holds the unit of a column: "Flow Units"; empty for what has no unit
// to choose.
std::string UnitFieldOf(const RecordColumn& column);
// The unit of a column that has always the same; empty for none.
std::string FixedUnitOf(const RecordColumn& column);
// The gravity of a liquid, which may be given as its density.
bool IsGravity(const RecordColumn& column, int program);

// The units of a list by their fields; the factor is 0 where the list does not tell.
struct ListUnit {
    std::string Name;
    double Factor = 0;
    std::string Head;  // of the list, for messages
};
struct ListUnits {
    std::map<std::string, ListUnit> Fields;
    std::string DensityMode;  // what the gravities of the list are; empty for those of the record
};

// Takes them as those of a record: one that holds values (isStored) has its values converted, a new one is
// just in them. Throws ListRefusal for one that the library does not have.
void TakeUnits(RecordRows& rows, const ListUnits& units, bool isStored);
// The modes that a row of units means, by the names of its units, whatever the codes of the list say.
void PutModes(RecordRows& rows, const std::string& pressureUnit, const std::string& densityMode);
// Of the unit of its flow; empty where the library does not have it.
std::string BasisOf(const RecordRows& rows);
// What the codes of a record say of its gravities.
std::string DensityModeOf(const std::string& codes);
// Those that a record is in.
ListUnits UnitsOf(const RecordRows& rows);

// The record in hand, whose values follow. True where some went by a gravity of another case.
bool ConvertRecordInHand(const ListUnits& units);

// To five figures, as a value is that was written in another unit.
bool AreAlike(const FieldValue& a, const FieldValue& b);

// The values of a record that came from the units of a list to its own. What the list does not have, and what
// it has alike, is as it was stored. What it has of pressures and gravities is converted whole: a change of
// modes leaves them four figures, and a pressure near the barometer as it is.
void TakeFigures(RecordRows& rows, const RecordRows& list, const RecordRows& stored,
                 const std::function<bool(const std::string& column)>& isGiven);

// The first column of a list whose values the gravity of the maximum case brings to the units on file: a flow
// by mass for one by volume, a kinematic viscosity for a dynamic one; empty for none.
std::string FirstByGravity(const RecordRows& list, const RecordRows& stored,
                           const std::function<bool(const std::string& column)>& isGiven);

// Why a row of a list is refused.
struct ListRefusal {
    std::string Column, Reason;
};

}  // namespace quillmetra
