#pragma once

#include <chrono>
#include <filesystem>

namespace velmar::storage {

/// A name beside a file for what is to become it. What stands under that name disappears with this object,
/// unless it was given its own name meanwhile.
class Unfinished {
 public:
  /// @param file what is to be made; its folder takes the unfinished one
  explicit Unfinished(const std::filesystem::path& file);
  Unfinished(const Unfinished&) = delete;
  Unfinished& operator=(const Unfinished&) = delete;
  ~Unfinished();

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

/// Removes what a killed program left unfinished in `folder`, when nobody has written to it for `age`:
/// another program may be at work. Throws nothing.
void RemoveAbandoned(const std::filesystem::path& folder, std::chrono::minutes age = std::chrono::hours(1));

/// Sends a file, or the names in a folder, to the disk, where the file system can do so. Throws nothing.
void SyncToDisk(const std::filesystem::path& path);

}  // namespace velmar::storage
