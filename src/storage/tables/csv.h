#pragma once

#include <string_view>

#include "foundation/csv.h"
#include "foundation/message.h"

namespace velmar::storage {

/// "The CSV table cannot be read: quotation marks do not match on line" (the line follows)
inline constexpr MessageRow kCsvQuotesRow{1190};
/// "The CSV table cannot be read: wrong number of fields on line" (the line follows)
inline constexpr MessageRow kCsvFieldCountRow{1191};
/// "The CSV table is not written in UTF-8."
inline constexpr MessageRow kCsvEncodingRow{1192};
/// "The CSV table has no valid heading: names are missing or repeated."
inline constexpr MessageRow kCsvHeaderRow{1193};

/// velmar::ParseCsv() of a text that comes from outside.
/// @throws Failure with the line and what is wrong there; also when the bytes are not UTF-8
CsvTable ParseCsv(std::string_view text);

}  // namespace velmar::storage
