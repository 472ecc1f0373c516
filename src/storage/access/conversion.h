#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "foundation/message.h"
#include "storage/access/access_copy.h"

namespace velmar::storage {

struct ConvertedTable {
  std::string name{};
  std::int64_t rows = 0;
};

/// What a conversion did.
struct Conversion {
  std::filesystem::path original{};  ///< where the Access file stands now
  std::vector<ConvertedTable> tables{};
};

/// The question before a conversion, with the path.
Message ConversionQuestion(const std::filesystem::path& file);
/// The same in Italian and English words, for a message catalogue that is itself to be converted.
Message ConversionQuestionWithoutCatalogue(const std::filesystem::path& file);
/// What is told afterwards: the number of rows in all, of each table, and the name of the original.
Message ConversionReport(const Conversion& conversion);

/// Converts the genuine Access file `file` into the program's own format under the same name, when `ask` says
/// so. The original keeps its bytes under its name with ".originale" added, or with a number behind where
/// that is taken. At every moment a whole database stands under the name: the old one or the new one.
/// @return what was done; nothing when `file` is no Access file, or the answer is no
/// @throws AccessFailure when the file cannot be read or the folder not be written; nothing has changed then
std::optional<Conversion> ConvertAccessFile(const AccessReader& reader, const std::filesystem::path& file,
                                            const std::function<bool()>& ask);

}  // namespace velmar::storage
