#pragma once

#include <filesystem>
#include <vector>

#include "storage/tables/cell.h"
#include "storage/tables/csv.h"
#include "storage/tables/schema.h"

namespace velmar::data_builder {

/// The CSV table of a file.
/// @throws std::runtime_error that names the file
CsvTable ReadTableText(const std::filesystem::path& file);

/// How many columns of its schema a file has.
enum class Heading {
  kWhole,
  kAsItOnceWas  ///< those that came later, which stand behind, may be missing: their cells are null
};

/// The rows of a file whose heading must be the columns of `schema`, in their order.
/// @throws std::runtime_error that names file, row and column of what is wrong
std::vector<std::vector<storage::Cell>> ReadRows(const std::filesystem::path& file,
                                                 const storage::TableSchema& schema,
                                                 Heading heading = Heading::kWhole);

}  // namespace velmar::data_builder
