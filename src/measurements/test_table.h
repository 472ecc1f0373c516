#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "measurements/band_text.h"
#include "storage/library/measured_test.h"
#include "storage/tables/schema.h"

namespace velmar::measurements {

/// Whether the first line of `text` names columns of the library's tables ("Nome"): a table of tests, not one
/// of frequencies.
bool IsTestTable(std::string_view text);

/// The tests of a table whose heading names columns of `folder`'s table, in any order: CSV with comma or
/// semicolon, or tabulators, as a spreadsheet copies it. Columns that it lacks are empty; a rating that it
/// lacks follows from the bands. One line that cannot be taken refuses the whole table, and all such lines
/// are named.
std::variant<std::vector<storage::MeasuredTest>, RefusedText> ReadTestTable(
    const storage::LibraryFolder& folder, std::string_view text);

/// `tests` as a CSV table that ReadTestTable() reads back, all columns of `folder`'s table.
std::string FormatTestTable(const storage::LibraryFolder& folder,
                            const std::vector<storage::MeasuredTest>& tests);

}  // namespace velmar::measurements
