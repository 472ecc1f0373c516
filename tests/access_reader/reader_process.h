#pragma once

#include <chrono>
#include <filesystem>
#include <optional>

#include "access_reader/exit_code.h"

namespace velmar::access_reader {

/// A folder that is gone with the object.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

struct ReaderRun {
  std::optional<int> exit_code;  ///< nothing when a signal ended the program
  std::chrono::duration<double> seconds{};
};

/// Starts the program as the application does, its messages thrown away.
ReaderRun RunReader(const std::filesystem::path& source, const std::filesystem::path& target);

}  // namespace velmar::access_reader
