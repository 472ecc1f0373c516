#pragma once

#include <string>

#include "presentation/texts/results_table.h"

namespace velmar::presentation {

/// The copy for the clipboard as a CSV file that a spreadsheet opens where the decimal sign is a comma: UTF-8
/// with a byte order mark, cells parted by semicolons, rows of three cells ended by CR LF. Rows that are not
/// shown are left out.
std::string ResultsCsv(const ResultsTable& table);

}  // namespace velmar::presentation
