#include "storage/database/rename.h"

#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace velmar::storage {

namespace fs = std::filesystem;

bool RenameToFreeName(const fs::path& from, const fs::path& to) {
  if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return true;
  if (errno == EEXIST || errno == ENOTEMPTY) return false;
  // Some network file systems know no such rename.
  if (errno == EINVAL || errno == ENOSYS) {
    if (fs::exists(fs::symlink_status(to))) return false;
    fs::rename(from, to);
    return true;
  }
  throw fs::filesystem_error("cannot rename", from, to, std::error_code(errno, std::generic_category()));
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
