#include "storage/files/unfinished.h"

#include <cerrno>
#include <chrono>
#include <random>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

constexpr const char* kPrefix = ".velmar-";
constexpr const char* kEnding = ".tmp";
constexpr std::chrono::hours kAgeWithoutLocks{24};

bool IsUnfinished(const fs::path& file) {
  const std::string name = file.filename().string();
  return name.starts_with(kPrefix) && name.find(kEnding) != std::string::npos;  // also its journal
}

bool IsOld(const fs::path& file) {
  std::error_code error;
  const auto written = fs::last_write_time(file, error);
  return !error && written < fs::file_time_type::clock::now() - kAgeWithoutLocks;
}

/// Takes the lock of what `descriptor` has open, and does not wait for it.
/// @return 0 or the number of the error; EWOULDBLOCK when somebody holds it
int TakeLock(int descriptor) {
  while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EINTR) return errno;
  }
  return 0;
}

/// Calls `visit` with each abandoned file or folder while it is held, so that nobody else takes it up.
template <typename Visit>
void ForEachAbandoned(const fs::path& folder, Visit visit) {
  std::error_code error;
  const fs::path place = folder.empty() ? fs::path(".") : folder;
  for (fs::directory_iterator entry(place, error), end; !error && entry != end; entry.increment(error)) {
    if (!IsUnfinished(entry->path())) continue;
    // Never through a link, and a pipe must not block.
    const int descriptor = ::open(entry->path().c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) continue;
    const int refused = TakeLock(descriptor);
    if (refused == 0 || (refused != EWOULDBLOCK && IsOld(entry->path()))) visit(entry->path());
    ::close(descriptor);
  }
}

}  // namespace

fs::path UnfinishedName(const fs::path& folder) {
  std::random_device random;
  return folder / (kPrefix + std::to_string(random()) + "-" + std::to_string(random()) + kEnding);
}

bool Hold(int descriptor, const fs::path& path) {
  // Whoever holds it now is about to remove it.
  if (TakeLock(descriptor) == EWOULDBLOCK) return false;
  struct stat opened {};
  struct stat named {};
  return ::fstat(descriptor, &opened) == 0 && ::stat(path.c_str(), &named) == 0 &&
         opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

Unfinished::Unfinished(const fs::path& file) {
  for (;;) {
    folder_ = UnfinishedName(file.parent_path());
    fs::create_directory(folder_);
    descriptor_ = ::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor_ < 0 || Hold(descriptor_, folder_)) break;
    ::close(descriptor_);
  }
  path_ = folder_ / file.filename();
}

Unfinished::~Unfinished() {
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
  if (descriptor_ >= 0) ::close(descriptor_);
}

std::vector<fs::path> AbandonedIn(const fs::path& folder) {
  std::vector<fs::path> found;
  ForEachAbandoned(folder, [&](const fs::path& path) { found.push_back(path); });
  return found;
}

void RemoveAbandoned(const fs::path& folder) {
  ForEachAbandoned(folder, [](const fs::path& path) {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  });
}

void SyncToDisk(const fs::path& path) {
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
}

}  // namespace velmar::storage
