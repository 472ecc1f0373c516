#pragma once

#include <filesystem>
#include <vector>

#include "platform/open_file.h"

namespace velmar::storage {

/// What is to become a file stands beside it meanwhile, under a name of its own (".velmar-" and a number,
/// ".tmp"), and is held by a lock of the system for as long as the program lives. So what a killed program
/// left behind can be told from what another one is working on.

/// A free name of that kind in `folder`.
std::filesystem::path UnfinishedName(const std::filesystem::path& folder);

/// Holds what `file` has open under the name `path` until it and its duplicates are closed. Where the file
/// system knows no locks nothing is held.
/// @return false when somebody removed it before it was held
bool Hold(platform::OpenFile& file, const std::filesystem::path& path);

/// A folder beside a file for what is to become it. The folder, and what stands in it, disappears with this
/// object; what is finished has been given its own name meanwhile.
class Unfinished {
 public:
  /// @param file what is to be made; its folder must exist and take another folder
  /// @throws std::filesystem::filesystem_error
  explicit Unfinished(const std::filesystem::path& file);
  Unfinished(const Unfinished&) = delete;
  Unfinished& operator=(const Unfinished&) = delete;
  ~Unfinished();

  /// Where to make it; nothing stands there at first.
  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path folder_;
  std::filesystem::path path_;
  platform::OpenFile held_{};
};

/// The unfinished files and folders in `folder` that no living program holds. Where the file system knows no
/// locks, only those that nobody has written to for a day. Throws nothing.
std::vector<std::filesystem::path> AbandonedIn(const std::filesystem::path& folder);

/// Removes AbandonedIn() `folder`. Throws nothing.
void RemoveAbandoned(const std::filesystem::path& folder);

}  // namespace velmar::storage
