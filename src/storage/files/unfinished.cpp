#include "storage/files/unfinished.h"

#include <random>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

constexpr const char* kPrefix = ".velmar-";
constexpr const char* kEnding = ".tmp";

fs::path NameBeside(const fs::path& file) {
  std::random_device random;
  return file.parent_path() / (kPrefix + std::to_string(random()) + "-" + std::to_string(random()) + kEnding);
}

bool IsUnfinished(const fs::path& file) {
  const std::string name = file.filename().string();
  return name.starts_with(kPrefix) && name.find(kEnding) != std::string::npos;  // also its journal
}

}  // namespace

Unfinished::Unfinished(const fs::path& file) : path_(NameBeside(file)) {}

Unfinished::~Unfinished() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

void RemoveAbandoned(const fs::path& folder, std::chrono::minutes age) {
  std::error_code error;
  const auto oldest = fs::file_time_type::clock::now() - age;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (!IsUnfinished(entry->path())) continue;
    std::error_code ignored;
    const auto written = fs::last_write_time(entry->path(), ignored);
    if (!ignored && written < oldest) fs::remove_all(entry->path(), ignored);
  }
}

void SyncToDisk(const fs::path& path) {
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
}

}  // namespace velmar::storage
