#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "storage/tables/schema.h"

namespace velmar::storage {

/// What is wrong with a row that the file itself holds without contradiction.
enum class RowProblem {
  kNoTable,  ///< the whole table is missing
  kText,     ///< a text is no UTF-8, or holds a null character
  kName,     ///< a name shows nothing, or holds a line break: nobody can ask for it
  kValue,    ///< a number outside the range of its column
};

struct RowFault {
  RowProblem problem{};
  std::string table{};
  std::string row{};     ///< the name of the row, or its number; UTF-8
  std::string column{};  ///< empty for kNoTable
  std::string value{};   ///< as text, UTF-8; empty for texts
};

/// The numbers that a column can hold, in every table that has it.
struct ColumnRange {
  std::string_view column{};
  double lowest = -std::numeric_limits<double>::infinity();
  double highest = std::numeric_limits<double>::infinity();
};

/// How the rows of a database are to be.
struct RowRules {
  std::vector<TableSchema> tables{};  ///< their first column is the name, where their key is one
  std::vector<ColumnRange> ranges{};
  /// The text that takes the place of a broken one: of `column` in row `row` (from 0, in the order of
  /// insertion) of `table`. Empty: the broken one is mended.
  std::function<std::string(const TableSchema& table, std::size_t row, std::size_t column)> shipped_text{};
};

/// What breaks `rules` in `file`, in the order of the file. Throws as ReadDatabase and TableRows do.
std::vector<RowFault> FindRowFaults(const std::filesystem::path& file, const RowRules& rules);

/// Mends what breaks `rules`: a missing table is made, empty; a broken text is replaced, or written with
/// blanks and U+FFFD in place of what it must not hold; a name that shows nothing becomes "(senza nome)",
/// with a number where that is taken; an impossible number becomes null. One transaction; throws as
/// ChangeDatabase does.
/// @return what was mended
std::vector<RowFault> MendRows(const std::filesystem::path& file, const RowRules& rules);

}  // namespace velmar::storage
