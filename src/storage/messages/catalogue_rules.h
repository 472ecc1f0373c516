#pragma once

#include <filesystem>
#include <optional>

#include "storage/database/row_repair.h"

namespace velmar::storage {

/// How the rows of the message database `file` are to be: its tables with the languages that it has. A table
/// without a column, and one that is missing, is left out; catalogues of older versions have no further
/// texts.
/// @param shipped the message database that comes with the program: its text for the same row takes the place
///        of a broken one. Nothing: broken texts are only mended.
/// Throws as ReadDatabase and TableRows do.
RowRules CatalogueRules(const std::filesystem::path& file,
                        const std::optional<std::filesystem::path>& shipped);

}  // namespace velmar::storage
