// Values in the plain memory of COM: arguments and results of typed calls, fields of records, and what a
// VARIANT holds.
#pragma once

#include "Description.h"
#include "System.h"

namespace orve::com {

/// The VARIANT type in which a value of a type passes.
VARTYPE VariantTypeOf(const automation::Type& type);

/// Reads a value of a type at an address; a record at its first field.
automation::Value ReadPlain(const automation::Type& type, const void* address);
/// Writes a value of a type there, with a reference or a copy of the caller's; what was there isn't freed.
void WritePlain(const automation::Type& type, const automation::Value& value, void* address);
/// What a failed call leaves in place of a result.
void ClearPlain(const automation::Type& type, void* address);

/// The record's description for the system; kept until `ForgetRecordInformation`.
IRecordInfo* RecordInformation(const automation::RecordDescription& record);
/// Lets go of the descriptions, before the library goes; a host's records hold their own.
void ForgetRecordInformation();
/// The described record of that identity; null if there is none.
const automation::RecordDescription* RecordOf(IRecordInfo* information);

}  // namespace orve::com
