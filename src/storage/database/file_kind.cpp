#include "storage/database/file_kind.h"

#include <array>
#include <fstream>
#include <string_view>
#include <system_error>

namespace velmar::storage {

FileKind KindOf(const std::filesystem::path& file) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(file, error);
  if (!std::filesystem::exists(status)) return FileKind::kMissing;
  // Opening a pipe would wait for its other end.
  if (!std::filesystem::is_regular_file(status)) return FileKind::kNoFile;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return FileKind::kMissing;

  constexpr std::string_view kSqlite("SQLite format 3\0", 16);
  constexpr std::size_t kAccessAt = 4;
  std::array<char, 24> bytes{};
  stream.read(bytes.data(), bytes.size());
  const std::string_view head(bytes.data(), static_cast<std::size_t>(stream.gcount()));
  if (head.substr(0, kSqlite.size()) == kSqlite) return FileKind::kSqlite;
  for (const std::string_view name : {"Standard Jet DB", "Standard ACE DB"}) {
    if (head.size() > kAccessAt && head.substr(kAccessAt, name.size()) == name) return FileKind::kAccess;
  }
  return FileKind::kOther;
}

}  // namespace velmar::storage
