#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <tuple>

#include "storage/access/access_copy.h"

namespace velmar::storage {

/// Makes genuine Access files readable for the time of a session: each is copied once into a private
/// temporary folder, and again when its size or time has changed. The originals are never written to. The
/// copies go with the session.
class AccessSession {
 public:
  explicit AccessSession(AccessReader reader) : reader_(std::move(reader)) {}
  AccessSession(const AccessSession&) = delete;
  AccessSession& operator=(const AccessSession&) = delete;
  ~AccessSession();

  /// The file to read in place of `file`: its copy when it is an Access file, else `file` itself.
  /// @throws AccessFailure when it cannot be read; a file that failed is not tried again until it changes
  std::filesystem::path Readable(const std::filesystem::path& file);

 private:
  using Key = std::tuple<std::filesystem::path, std::uintmax_t, std::filesystem::file_time_type>;

  std::filesystem::path CopyOf(const std::filesystem::path& file);

  AccessReader reader_;
  std::filesystem::path folder_{};
  std::map<Key, std::optional<std::filesystem::path>> copies_{};
};

}  // namespace velmar::storage
