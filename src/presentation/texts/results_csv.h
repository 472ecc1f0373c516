#pragma once

#include <span>
#include <string>

#include "elements/single_numbers.h"
#include "presentation/texts/results_table.h"

namespace velmar::presentation {

/// The copy for the clipboard as a CSV file that a spreadsheet opens where the decimal sign is a comma: UTF-8
/// with a byte order mark, cells parted by semicolons, rows of three cells ended by CR LF. Rows that are not
/// shown are left out. Below it stand those of `numbers` that the table has not, one a row, and `notes`, each
/// in the first cell of a row.
std::string ResultsCsv(const ResultsTable& table, std::span<const elements::SingleNumber> numbers = {},
                       std::span<const std::string> notes = {});

}  // namespace velmar::presentation
