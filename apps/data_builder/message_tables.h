#pragma once

#include <filesystem>

namespace velmar::data_builder {

/// Makes the message database out of "catalogue.csv" and "texts.csv" of `texts`: the table "DRAV", whose row
/// n is text n, and the table "Testi" with the program's further texts under their number "Riga". Every
/// column behind "row" and "use" is a language.
/// @throws std::exception when the catalogue's rows are not numbered 1, 2, 3 and on, a further text has no
///         number or one that is taken, or the two files differ in their languages
void BuildMessages(const std::filesystem::path& texts, const std::filesystem::path& file);

}  // namespace velmar::data_builder
