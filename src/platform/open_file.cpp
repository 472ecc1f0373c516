#include "platform/open_file.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/file_system.h"

namespace velmar::platform {
namespace {

namespace fs = std::filesystem;

constexpr int kReading = O_RDONLY | O_NONBLOCK | O_CLOEXEC;

}  // namespace

OpenFile::~OpenFile() {
  if (IsOpen()) ::close(number_);
}

OpenFile OpenFile::ForReading(const fs::path& path) {
  const int number = ::open(path.c_str(), kReading);
  return {number, number < 0 ? errno : 0};
}

OpenFile OpenFile::ForReadingUnlessLink(const fs::path& path) {
  const int number = ::open(path.c_str(), kReading | O_NOFOLLOW);
  return {number, number < 0 ? errno : 0};
}

OpenFile OpenFile::Folder(const fs::path& path) {
  const int number = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  return {number, number < 0 ? errno : 0};
}

OpenFile OpenFile::New(const fs::path& path) {
  constexpr mode_t kNewFile = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
  const int number = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFile);
  return {number, number < 0 ? errno : 0};
}

Lock OpenFile::TakeLock() {
  while (::flock(number_, LOCK_EX | LOCK_NB) != 0) {
    if (errno == EWOULDBLOCK) return Lock::kHeldByOther;
    if (errno != EINTR) return Lock::kUnknown;
  }
  return Lock::kTaken;
}

bool OpenFile::IsAt(const fs::path& path) const {
  struct stat opened {};
  struct stat named {};
  return ::fstat(number_, &opened) == 0 && ::stat(path.c_str(), &named) == 0 &&
         opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

namespace {

FileStatus StatusOf(const struct stat& system) {
  constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
  constexpr mode_t kPermissions = 07777;
  return {.folder = S_ISDIR(system.st_mode),
          .regular = S_ISREG(system.st_mode),
          .marked_writable = (system.st_mode & kAnyWrite) != 0,
          .size = static_cast<std::uintmax_t>(system.st_size),
          .owner = system.st_uid,
          .group = system.st_gid,
          .permissions = system.st_mode & kPermissions};
}

}  // namespace

int OpenFile::Status(FileStatus& status) const {
  struct stat system {};
  if (::fstat(number_, &system) != 0) return errno;
  status = StatusOf(system);
  return 0;
}

std::ptrdiff_t OpenFile::Read(char* buffer, std::size_t size) {
  for (;;) {
    const ssize_t got = ::read(number_, buffer, size);
    if (got >= 0) return got;
    if (errno != EINTR) return -errno;
  }
}

int OpenFile::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(number_, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) return errno;
    if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

int OpenFile::TakeOverFrom(const FileStatus& other) {
  // An owner that may not be given is no reason to lose the work.
  [[maybe_unused]] const int ignored = ::fchown(number_, other.owner, other.group);
  return ::fchmod(number_, other.permissions) == 0 ? 0 : errno;
}

int OpenFile::Sync() { return ::fsync(number_) == 0 ? 0 : errno; }

OpenFile OpenFile::Duplicate() const {
  const int number = ::fcntl(number_, F_DUPFD_CLOEXEC, 0);
  return {number, number < 0 ? errno : 0};
}

int OpenFile::Close() { return ::close(std::exchange(number_, kNone)) == 0 ? 0 : errno; }

int StatusAt(const fs::path& path, FileStatus& status) {
  struct stat system {};
  if (::stat(path.c_str(), &system) != 0) return errno;
  status = StatusOf(system);
  return 0;
}

}  // namespace velmar::platform
