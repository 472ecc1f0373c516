#include "storage/files/whole_file.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "storage/files/store_failure.h"
#include "storage/files/unfinished.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(StoreAction action, const fs::path& path, int error,
                       PreviousFile previous = PreviousFile::kNone) {
  throw StoreFailure(action, error, path.string(), previous);
}

/// A file descriptor that closes itself.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }

  int Number() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }
  /// @return false when the system reports a late write error
  bool Close() { return ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

/// Removes the temporary file unless it took its final name.
class Temporary {
 public:
  explicit Temporary(fs::path path) : path_(std::move(path)) {}
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  ~Temporary() {
    if (!path_.empty()) ::unlink(path_.c_str());
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
std::optional<struct stat> Replaceable(const fs::path& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) {
    if (errno == ENOENT) return std::nullopt;
    Fail(StoreAction::kWrite, path, errno);
  }
  if (S_ISDIR(status.st_mode)) Fail(StoreAction::kWrite, path, EISDIR);
  if (!S_ISREG(status.st_mode))
    throw StoreFailure(StoreAction::kWrite, StoreReason::kNotAFile, path.string(), "not a regular file");
  // The rename would not ask the file itself; its read-only mark is to hold for the superuser as well.
  constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
  if ((status.st_mode & kAnyWrite) == 0 || ::access(path.c_str(), W_OK) != 0)
    Fail(StoreAction::kWrite, path, EACCES);
  return status;
}

fs::path FolderOf(const fs::path& path) {
  const fs::path folder = path.parent_path();
  return folder.empty() ? fs::path(".") : folder;
}

/// @return false when the system refuses; errno says why
bool WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) return false;
    if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

/// A new file in `folder`, held by this program, and its name; no file when the system refuses.
std::pair<int, fs::path> NewFile(const fs::path& folder) {
  constexpr mode_t kNewFile = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
  for (;;) {
    const fs::path name = UnfinishedName(folder);
    const int descriptor = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFile);
    if (descriptor < 0 || Hold(descriptor, name)) return {descriptor, name};
    ::close(descriptor);
  }
}

}  // namespace

void WriteWhole(const fs::path& path, std::string_view bytes) {
  const fs::path target = Followed(path);
  const std::optional<struct stat> old = Replaceable(target);
  const fs::path folder = FolderOf(target);
  RemoveAbandoned(folder);
  const auto fail = [&] {
    Fail(StoreAction::kWrite, path, errno, old ? PreviousFile::kIntact : PreviousFile::kNone);
  };

  auto [descriptor, name] = NewFile(folder);
  Descriptor file(descriptor);
  if (!file.IsOpen()) fail();
  Temporary temporary(name);
  if (old) {
    // An owner that may not be given is no reason to lose the work.
    [[maybe_unused]] const int ignored = ::fchown(file.Number(), old->st_uid, old->st_gid);
    constexpr mode_t kPermissions = 07777;
    if (::fchmod(file.Number(), old->st_mode & kPermissions) != 0) fail();
  }
  if (!WriteAll(file.Number(), bytes)) fail();
  if (::fsync(file.Number()) != 0) fail();
  // Closing tells a late error; the duplicate holds the file until it has its name.
  const Descriptor held(::fcntl(file.Number(), F_DUPFD_CLOEXEC, 0));
  if (!file.Close()) fail();
  if (::rename(temporary.Path().c_str(), target.c_str()) != 0) fail();
  temporary.Keep();
  SyncToDisk(folder);
}

std::string ReadWhole(const fs::path& path, std::size_t size_limit) {
  // A pipe without a writer must not block.
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!file.IsOpen()) Fail(StoreAction::kRead, path, errno);
  struct stat status {};
  if (::fstat(file.Number(), &status) != 0) Fail(StoreAction::kRead, path, errno);
  if (S_ISDIR(status.st_mode)) Fail(StoreAction::kRead, path, EISDIR);
  if (!S_ISREG(status.st_mode))
    throw StoreFailure(StoreAction::kRead, StoreReason::kNotAFile, path.string(), "not a regular file");

  const auto too_large = [&] {
    return StoreFailure(StoreAction::kRead, StoreReason::kTooLarge, path.string(),
                        "larger than " + std::to_string(size_limit) + " bytes");
  };
  if (static_cast<std::uintmax_t>(status.st_size) > size_limit) throw too_large();

  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(status.st_size));
  std::array<char, 65536> buffer{};
  for (;;) {
    const ssize_t got = ::read(file.Number(), buffer.data(), buffer.size());
    if (got < 0) {
      if (errno == EINTR) continue;
      Fail(StoreAction::kRead, path, errno);
    }
    if (got == 0) return bytes;
    // The size is only what the file had when it was opened.
    if (bytes.size() + static_cast<std::size_t>(got) > size_limit) throw too_large();
    bytes.append(buffer.data(), static_cast<std::size_t>(got));
  }
}

}  // namespace velmar::storage
