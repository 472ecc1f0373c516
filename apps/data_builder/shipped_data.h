#pragma once

#include <filesystem>

namespace velmar::data_builder {

/// Makes the shipped data folder out of the texts of `source`: materials, an empty results database, the
/// library with all its folders, the message database and the pictures. What stood in the folder "Databases"
/// of `target` before is removed.
/// @throws std::exception that names the file and what is wrong with it
void BuildShippedData(const std::filesystem::path& source, const std::filesystem::path& target);

}  // namespace velmar::data_builder
