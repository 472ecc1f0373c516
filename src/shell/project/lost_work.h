#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>
#include <cstdint>
#include <filesystem>
#include <memory>

namespace velmar::shell {

/// A project's file as it was when it was last read or written.
struct ProjectFile {
  std::filesystem::path path{};  ///< empty: the work has no file yet
  std::int64_t written_ns = 0;   ///< in the clock of the file system
  std::uintmax_t size_bytes = 0;

  /// `path` as it stands now; without time and size where there is none.
  static ProjectFile Now(const std::filesystem::path& path);
  /// Whether somebody else has written the file since. One that is gone has not been written.
  bool HasChanged() const;
};

/// The lines in which a copy of unsaved work keeps `file` beside it.
QByteArray ToLines(const ProjectFile& file);
/// What such lines say; no file where they are none.
ProjectFile FromLines(const QByteArray& lines);

/// Unsaved work that an earlier run left behind. As long as it is held no other program offers or removes it.
struct LostWork {
  std::filesystem::path copy{};
  ProjectFile project{};  ///< the project that it belongs to
  QDateTime changed{};    ///< when the copy was written
  std::shared_ptr<QLockFile> lock{};

  /// The project's name; `unnamed` for work that has no file yet.
  QString Name(const QString& unnamed) const;
  /// The time of its last change as it is read in Italy and England: "22/11/2026 01:05".
  QString Time() const { return changed.toString(QStringLiteral("dd/MM/yyyy HH:mm")); }
};

enum class LostWorkChoice { kLater, kRecover, kDelete };

/// What is to become of one of several lost works.
struct LostWorkAnswer {
  LostWorkChoice choice = LostWorkChoice::kLater;
  std::size_t which = 0;  ///< place of the work that is meant
};

}  // namespace velmar::shell
