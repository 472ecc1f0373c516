#include "storage/access/access_session.h"

#include <cerrno>
#include <string>
#include <system_error>

#include <stdlib.h>

#include "foundation/message_rows.h"
#include "storage/database/file_kind.h"

namespace velmar::storage {

namespace fs = std::filesystem;

AccessSession::~AccessSession() {
  if (folder_.empty()) return;
  std::error_code error;
  fs::remove_all(folder_, error);
}

fs::path AccessSession::Readable(const fs::path& file) {
  if (KindOf(file) != FileKind::kAccess) return file;
  try {
    return CopyOf(file);
  } catch (const fs::filesystem_error& error) {
    throw AccessFailure({{kAccessNotReadRow, " " + file.string()}}, error.what());
  }
}

fs::path AccessSession::CopyOf(const fs::path& file) {
  const Key key{fs::absolute(file), fs::file_size(file), fs::last_write_time(file)};
  const auto known = copies_.find(key);
  if (known != copies_.end() && known->second && fs::exists(*known->second)) return *known->second;
  if (known != copies_.end() && !known->second) {
    throw AccessFailure({{kAccessNotReadRow, " " + file.string()}},
                        file.string() + ": not readable before either");
  }
  if (folder_.empty()) {
    std::string name = (fs::temp_directory_path() / "velmar-access-XXXXXX").string();
    // Only its owner may look into this folder.
    if (::mkdtemp(name.data()) == nullptr) {
      throw fs::filesystem_error("no temporary folder", name,
                                 std::error_code(errno, std::generic_category()));
    }
    folder_ = name;
  }
  fs::path copy = folder_ / (std::to_string(copies_.size()) + ".sqlite");
  std::error_code error;
  fs::remove(copy, error);
  copies_[key] = std::nullopt;
  CopyAccessFile(reader_, file, copy);
  copies_[key] = copy;
  return copy;
}

}  // namespace velmar::storage
