#include "platform/file_system.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <system_error>

#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

namespace velmar::platform {

namespace fs = std::filesystem;

bool MayWrite(const fs::path& path) { return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0; }

int Rename(const fs::path& from, const fs::path& to) {
  return std::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

RenameOutcome RenameUnlessTaken(const fs::path& from, const fs::path& to) {
  if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
    return RenameOutcome::kDone;
  if (errno == EEXIST || errno == ENOTEMPTY) return RenameOutcome::kTaken;
  if (errno == EINVAL || errno == ENOSYS) return RenameOutcome::kNotKnownHere;
  throw fs::filesystem_error("cannot rename", from, to, std::error_code(errno, std::generic_category()));
}

void SyncToDisk(const fs::path& path) {
  if (OpenFile file = OpenFile::ForReading(path); file.IsOpen()) file.Sync();
}

fs::path HomeFolder() {
  if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') return home;
  const passwd* user = ::getpwuid(::getuid());
  return user == nullptr || user->pw_dir == nullptr ? fs::path("/") : fs::path(user->pw_dir);
}

}  // namespace velmar::platform
