#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <utility>

namespace velmar::platform {

/// What the system knows of a file.
struct FileStatus {
  bool folder = false;
  bool regular = false;          ///< neither folder nor link, pipe or device
  bool marked_writable = false;  ///< by anybody; the superuser is held to it as well
  std::uintmax_t size = 0;       ///< bytes
  unsigned owner = 0;
  unsigned group = 0;
  unsigned permissions = 0;  ///< as the system writes them
};

/// What an attempt to hold a file came to.
enum class Lock {
  kTaken,        ///< it is held until the file is closed
  kHeldByOther,  ///< another program, or another part of this one, holds it
  kUnknown,      ///< this file system knows no locks
};

/// A file or folder that the system has open for this program; closed at the end. Where a call says "error",
/// it gives 0 or the number of the system's error (`errno`).
class OpenFile {
 public:
  OpenFile() = default;
  OpenFile(OpenFile&& other) noexcept : number_(std::exchange(other.number_, kNone)), error_(other.error_) {}
  OpenFile& operator=(OpenFile&& other) noexcept {
    std::swap(number_, other.number_);
    std::swap(error_, other.error_);
    return *this;
  }
  ~OpenFile();

  /// Opens what stands at `path` for reading; never waits, not even for the writer of a pipe.
  static OpenFile ForReading(const std::filesystem::path& path);
  /// The same, but a link is not followed: it does not open.
  static OpenFile ForReadingUnlessLink(const std::filesystem::path& path);
  static OpenFile Folder(const std::filesystem::path& path);
  /// Makes a file that was not there before, to be written.
  static OpenFile New(const std::filesystem::path& path);

  bool IsOpen() const { return number_ != kNone; }
  /// The error of opening.
  int Error() const { return error_; }

  /// Holds the file against all who ask the same; does not wait.
  Lock TakeLock();
  /// Whether `path` still names what is open here.
  bool IsAt(const std::filesystem::path& path) const;
  /// Gives `status` of what is open. @return error
  int Status(FileStatus& status) const;

  /// Reads up to `size` bytes; 0 at the end. @return how many, or minus the error
  std::ptrdiff_t Read(char* buffer, std::size_t size);
  /// Writes all of `bytes`. @return error
  int Write(std::string_view bytes);
  /// Gives the owner, where that may be given, and the permissions of another file. @return error
  int TakeOverFrom(const FileStatus& other);
  /// Waits until what was written stands on the disk. @return error
  int Sync();
  /// A second hold of the same file, which keeps its lock when the first is closed.
  OpenFile Duplicate() const;
  /// @return error, also a late one of writing
  int Close();

 private:
  static constexpr int kNone = -1;
  OpenFile(int number, int error) : number_(number), error_(error) {}

  int number_ = kNone;
  int error_ = 0;
};

}  // namespace velmar::platform
