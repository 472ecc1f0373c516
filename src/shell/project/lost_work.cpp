#include "shell/project/lost_work.h"

#include <QByteArrayList>
#include <QUrl>
#include <system_error>

namespace velmar::shell {

ProjectFile ProjectFile::Now(const std::filesystem::path& path) {
  ProjectFile file{.path = path};
  std::error_code error;
  const auto time = std::filesystem::last_write_time(path, error);
  if (error) return file;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error) return file;
  file.written_ns = std::chrono::duration_cast<std::chrono::nanoseconds>(time.time_since_epoch()).count();
  file.size_bytes = size;
  return file;
}

bool ProjectFile::HasChanged() const {
  std::error_code error;
  if (path.empty() || !std::filesystem::exists(path, error)) return false;
  const ProjectFile now = Now(path);
  return now.written_ns != written_ns || now.size_bytes != size_bytes;
}

// A path may hold a line break; an address holds none.
QByteArray ToLines(const ProjectFile& file) {
  return QUrl::fromLocalFile(QString::fromStdString(file.path.string())).toEncoded() + '\n' +
         QByteArray::number(static_cast<qlonglong>(file.written_ns)) + '\n' +
         QByteArray::number(static_cast<qulonglong>(file.size_bytes)) + '\n';
}

ProjectFile FromLines(const QByteArray& lines) {
  const QByteArrayList values = lines.split('\n');
  if (values.size() < 3) return {};
  const QUrl address = QUrl::fromEncoded(values.at(0), QUrl::StrictMode);
  if (!address.isLocalFile()) return {};
  return {.path = address.toLocalFile().toStdString(),
          .written_ns = values.at(1).toLongLong(),
          .size_bytes = values.at(2).toULongLong()};
}

QString LostWork::Name(const QString& unnamed) const {
  return project.path.empty() ? unnamed : QString::fromStdString(project.path.stem().string());
}

}  // namespace velmar::shell
