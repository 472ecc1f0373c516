#include "storage/database/rename.h"

#include <string>

#include "platform/file_system.h"

namespace velmar::storage {

namespace fs = std::filesystem;

bool RenameToFreeName(const fs::path& from, const fs::path& to) {
  switch (platform::RenameUnlessTaken(from, to)) {
    case platform::RenameOutcome::kDone:
      return true;
    case platform::RenameOutcome::kTaken:
      return false;
    case platform::RenameOutcome::kNotKnownHere:  // on some network drives
      break;
  }
  if (fs::exists(fs::symlink_status(to))) return false;
  fs::rename(from, to);
  return true;
}

fs::path RenameWithEnding(const fs::path& file, const std::string& ending) {
  for (int number = 1;; ++number) {
    fs::path name = file;
    name += ending;
    if (number > 1) name += std::to_string(number);
    if (RenameToFreeName(file, name)) return name;
  }
}

}  // namespace velmar::storage
