#pragma once

#include <string>
#include <variant>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "foundation/message.h"
#include "storage/tables/cell.h"
#include "storage/tables/csv.h"
#include "storage/tables/schema.h"

namespace velmar::cli {

/// The cells of a row, in the order of the schema.
using Cells = std::vector<storage::Cell>;

/// `cells` with each of `settings` ("column=value") taken over, or why one of them cannot be.
std::variant<Cells, Message> WithSettings(const storage::TableSchema& schema, Cells cells,
                                          const std::vector<std::string>& settings);

/// The rows of a CSV table whose heading names columns of `schema` in any order; other columns are null. Or
/// why a row cannot be read: nothing is left out silently.
std::variant<std::vector<Cells>, Message> RowsOfCsv(const storage::TableSchema& schema,
                                                    const CsvTable& table);

/// A row as an object: column to value, null where the table holds nothing.
nlohmann::json RowJson(const storage::TableSchema& schema, const Cells& cells);

/// A row as "column: value" lines, without those that hold nothing.
std::string RowLines(const storage::TableSchema& schema, const Cells& cells);

}  // namespace velmar::cli
