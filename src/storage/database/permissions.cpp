#include "storage/database/permissions.h"

#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

bool IsWritable(const fs::path& path) { return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0; }

}  // namespace

bool MayBeChanged(const fs::path& file) {
  constexpr fs::perms kAnyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  std::error_code error;
  const fs::perms marked = fs::status(file, error).permissions() & kAnyWrite;
  return !error && marked != fs::perms::none && IsWritable(file) && TakesFiles(file.parent_path());
}

bool TakesFiles(const fs::path& folder) { return IsWritable(folder.empty() ? fs::path(".") : folder); }

}  // namespace velmar::storage
