#pragma once

#include <filesystem>
#include <string>

#include "foundation/failure.h"
#include "storage/messages/message_table.h"

namespace velmar::storage {

/// The message database cannot be used. Its message holds words, in Italian and English, since there is no
/// catalogue to take them from.
class CatalogueFailure : public Failure {
 public:
  using Failure::Failure;
};

/// The texts of `language` in the message database `file`.
///
/// Row n of table "DRAV", counted in the stored order, is text n; the column is found without regard to case,
/// an empty cell gives an empty text. The further texts stand in table "Testi" under their number. A file
/// without that table, or without a further text in that language, is helped out by its Italian text and then
/// by the file that comes with the program: such a file was made for an older version, or for a language of
/// one's own.
/// @param shipped the message database that comes with the program; may be missing
/// @throws CatalogueFailure when `file` is missing, damaged, in use or a genuine Access file, when it lacks
///         the table or the language, or holds more than 419 rows
MessageTable ReadMessageTable(const std::filesystem::path& file, const std::string& language,
                              const std::filesystem::path& shipped = {});

}  // namespace velmar::storage
