#include "storage/database/permissions.h"

#include <system_error>

#include "platform/file_system.h"

namespace velmar::storage {
namespace fs = std::filesystem;

bool MayBeChanged(const fs::path& file) {
  constexpr fs::perms kAnyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  std::error_code error;
  const fs::perms marked = fs::status(file, error).permissions() & kAnyWrite;
  return !error && marked != fs::perms::none && platform::MayWrite(file) && TakesFiles(file.parent_path());
}

bool TakesFiles(const fs::path& folder) {
  return platform::MayWrite(folder.empty() ? fs::path(".") : folder);
}

}  // namespace velmar::storage
