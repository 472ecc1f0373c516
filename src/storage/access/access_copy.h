#pragma once

#include <chrono>
#include <filesystem>

#include "foundation/failure.h"

namespace velmar::storage {

/// The program that copies the tables of a genuine Access file into a new SQLite file. It is a process of its
/// own, so that a damaged or hostile file cannot take this one down.
struct AccessReader {
  std::filesystem::path program{};              ///< empty when it was not found
  std::chrono::milliseconds time_limit{15000};  ///< after which it is killed
};

/// A genuine Access file cannot be read, or not be converted; it is as it was.
class AccessFailure : public Failure {
 public:
  using Failure::Failure;
};

/// Copies all tables of the Access file `source` into `target`, which must not exist.
/// @throws AccessFailure when the file is damaged, encrypted or takes too long, or the program is missing;
///         nothing is left at `target` then
void CopyAccessFile(const AccessReader& reader, const std::filesystem::path& source,
                    const std::filesystem::path& target);

}  // namespace velmar::storage
