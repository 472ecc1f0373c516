#include "storage/files/unfinished.h"

#include <chrono>
#include <random>
#include <string>
#include <system_error>

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

/// Calls `visit` with each abandoned file or folder while it is held, so that nobody else takes it up.
template <typename Visit>
void ForEachAbandoned(const fs::path& folder, Visit visit) {
  std::error_code error;
  const fs::path place = folder.empty() ? fs::path(".") : folder;
  for (fs::directory_iterator entry(place, error), end; !error && entry != end; entry.increment(error)) {
    if (!IsUnfinished(entry->path())) continue;
    // Never through a link.
    platform::OpenFile file = platform::OpenFile::ForReadingUnlessLink(entry->path());
    if (!file.IsOpen()) continue;
    const platform::Lock lock = file.TakeLock();
    if (lock == platform::Lock::kTaken || (lock == platform::Lock::kUnknown && IsOld(entry->path())))
      visit(entry->path());
  }
}

}  // namespace

fs::path UnfinishedName(const fs::path& folder) {
  std::random_device random;
  return folder / (kPrefix + std::to_string(random()) + "-" + std::to_string(random()) + kEnding);
}

bool Hold(platform::OpenFile& file, const fs::path& path) {
  // Whoever holds it now is about to remove it.
  return file.TakeLock() != platform::Lock::kHeldByOther && file.IsAt(path);
}

Unfinished::Unfinished(const fs::path& file) {
  for (;;) {
    folder_ = UnfinishedName(file.parent_path());
    fs::create_directory(folder_);
    held_ = platform::OpenFile::Folder(folder_);
    if (!held_.IsOpen() || Hold(held_, folder_)) break;
  }
  path_ = folder_ / file.filename();
}

Unfinished::~Unfinished() {
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
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

}  // namespace velmar::storage
