#include "storage/files/whole_file.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "platform/file_system.h"
#include "platform/open_file.h"
#include "storage/files/store_failure.h"
#include "storage/files/unfinished.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(StoreAction action, const fs::path& path, int error,
                       PreviousFile previous = PreviousFile::kNone) {
  throw StoreFailure(action, error, path.string(), previous);
}

/// Removes the temporary file unless it took its final name.
class Temporary {
 public:
  explicit Temporary(fs::path path) : path_(std::move(path)) {}
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  ~Temporary() {
    std::error_code ignored;
    if (!path_.empty()) fs::remove(path_, ignored);
  }

  const fs::path& Path() const { return path_; }
  void Keep() { path_.clear(); }

 private:
  fs::path path_;
};

/// The file that `path` finally names; a link may lead to a file that does not exist yet.
fs::path Followed(fs::path path) {
  constexpr int kLinkLimit = 40;
  for (int i = 0; i < kLinkLimit; ++i) {
    std::error_code error;
    const fs::path target = fs::read_symlink(path, error);
    if (error) return path;
    path = target.is_absolute() ? target : path.parent_path() / target;
  }
  Fail(StoreAction::kWrite, path, ELOOP);
}

/// What stands at `path` now; nothing when the name is free.
/// @throws StoreFailure when it may not be replaced
std::optional<platform::FileStatus> Replaceable(const fs::path& path) {
  platform::FileStatus status;
  if (const int error = platform::StatusAt(path, status); error != 0) {
    if (error == ENOENT) return std::nullopt;
    Fail(StoreAction::kWrite, path, error);
  }
  if (status.folder) Fail(StoreAction::kWrite, path, EISDIR);
  if (!status.regular)
    throw StoreFailure(StoreAction::kWrite, StoreReason::kNotAFile, path.string(), "not a regular file");
  // The rename would not ask the file itself; its read-only mark is to hold for the superuser as well.
  if (!status.marked_writable || !platform::MayWrite(path)) Fail(StoreAction::kWrite, path, EACCES);
  return status;
}

fs::path FolderOf(const fs::path& path) {
  const fs::path folder = path.parent_path();
  return folder.empty() ? fs::path(".") : folder;
}

/// A new file in `folder`, held by this program, and its name; no file when the system refuses.
std::pair<platform::OpenFile, fs::path> NewFile(const fs::path& folder) {
  for (;;) {
    fs::path name = UnfinishedName(folder);
    platform::OpenFile file = platform::OpenFile::New(name);
    if (!file.IsOpen() || Hold(file, name)) return {std::move(file), std::move(name)};
  }
}

}  // namespace

void WriteWhole(const fs::path& path, std::string_view bytes) {
  const fs::path target = Followed(path);
  const std::optional<platform::FileStatus> old = Replaceable(target);
  const fs::path folder = FolderOf(target);
  RemoveAbandoned(folder);
  const auto refuse = [&](int error) {
    if (error != 0) Fail(StoreAction::kWrite, path, error, old ? PreviousFile::kIntact : PreviousFile::kNone);
  };

  auto [file, name] = NewFile(folder);
  refuse(file.Error());
  Temporary temporary(name);
  if (old) refuse(file.TakeOverFrom(*old));
  refuse(file.Write(bytes));
  refuse(file.Sync());
  // Closing tells a late error; the duplicate holds the file until it has its name.
  const platform::OpenFile held = file.Duplicate();
  refuse(file.Close());
  refuse(platform::Rename(temporary.Path(), target));
  temporary.Keep();
  platform::SyncToDisk(folder);
}

std::string ReadWhole(const fs::path& path, std::size_t size_limit) {
  platform::OpenFile file = platform::OpenFile::ForReading(path);
  if (!file.IsOpen()) Fail(StoreAction::kRead, path, file.Error());
  platform::FileStatus status;
  if (const int error = file.Status(status); error != 0) Fail(StoreAction::kRead, path, error);
  if (status.folder) Fail(StoreAction::kRead, path, EISDIR);
  if (!status.regular)
    throw StoreFailure(StoreAction::kRead, StoreReason::kNotAFile, path.string(), "not a regular file");

  const auto too_large = [&] {
    return StoreFailure(StoreAction::kRead, StoreReason::kTooLarge, path.string(),
                        "larger than " + std::to_string(size_limit) + " bytes");
  };
  if (status.size > size_limit) throw too_large();

  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(status.size));
  std::array<char, 65536> buffer{};
  for (;;) {
    const std::ptrdiff_t got = file.Read(buffer.data(), buffer.size());
    if (got < 0) Fail(StoreAction::kRead, path, static_cast<int>(-got));
    if (got == 0) return bytes;
    // The size is only what the file had when it was opened.
    if (bytes.size() + static_cast<std::size_t>(got) > size_limit) throw too_large();
    bytes.append(buffer.data(), static_cast<std::size_t>(got));
  }
}

}  // namespace velmar::storage
