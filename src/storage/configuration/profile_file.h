#pragma once

#include <filesystem>
#include <string>

namespace velmar::storage {

/// The longest value that is read, in characters; what stands behind it is cut off.
inline constexpr std::size_t kProfileValueLength = 255;

/// The value of `key` in `section` of a profile file ("Velmar.ini"), or an empty text when file, section or
/// key is missing. Section and key ignore case; of a repeated key the first counts. The value is taken as it
/// stands: backslashes, semicolons and "#" belong to it; blanks and one pair of quotation marks around it do
/// not. The file is UTF-8; one that is not is read as Windows-1252.
std::string LeggiIni(const std::string& section, const std::string& key, const std::filesystem::path& file);

}  // namespace velmar::storage
