#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "foundation/message.h"

namespace velmar::storage {

/// A table of texts: the names of its columns and its rows, every row as long as the header.
struct CsvTable {
  std::vector<std::string> header;
  std::vector<std::vector<std::string>> rows;
};

/// "The CSV table cannot be read: quotation marks do not match on line" (the line follows)
inline constexpr MessageRow kCsvQuotesRow{1190};
/// "The CSV table cannot be read: wrong number of fields on line" (the line follows)
inline constexpr MessageRow kCsvFieldCountRow{1191};
/// "The CSV table is not written in UTF-8."
inline constexpr MessageRow kCsvEncodingRow{1192};
/// "The CSV table has no valid heading: names are missing or repeated."
inline constexpr MessageRow kCsvHeaderRow{1193};

/// The table that `text` holds after RFC 4180: UTF-8 with or without a byte order mark, lines ended by LF or
/// CR LF, fields quoted where they hold a separator, a quotation mark or a line break. Empty lines are
/// passed over. The separator is the comma, or the semicolon when the heading holds one outside quotation
/// marks, which is what spreadsheets write where the decimal sign is a comma.
/// @throws Failure when quotation marks do not match, a row is not as long as the heading, a heading is
///         missing, empty or repeated, or the bytes are not UTF-8
CsvTable ParseCsv(std::string_view text);

/// `table` in UTF-8 with comma and LF; fields are quoted only where they must be. ParseCsv() reads it back.
std::string FormatCsv(const CsvTable& table);

}  // namespace velmar::storage
