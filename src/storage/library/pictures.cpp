#include "storage/library/pictures.h"

#include <algorithm>
#include <optional>
#include <system_error>

#include "foundation/utf8.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

/// The entry of `folder` called `name`, case ignored.
std::optional<fs::path> EntryOf(const fs::path& folder, const fs::path& name) {
  std::error_code error;
  if (fs::exists(folder / name, error)) return folder / name;
  const std::string folded = FoldCase(name.string());
  for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    if (FoldCase(entry->path().filename().string()) == folded) return entry->path();
  }
  return std::nullopt;
}

}  // namespace

fs::path PictureFile(const fs::path& pictures, const std::string& folder, const std::string& picture) {
  fs::path none = pictures / "senza.jpg";
  std::string name = picture;
  std::ranges::replace(name, '\\', '/');
  if (name.empty() || SameName(name, "senza") || fs::path(name).is_absolute()) return none;
  fs::path found = pictures / folder;
  for (const fs::path& part : fs::path(name)) {
    if (part == "..") return none;
    const std::optional<fs::path> entry = EntryOf(found, part);
    if (!entry) return none;
    found = *entry;
  }
  std::error_code error;
  return fs::is_regular_file(found, error) ? found : none;
}

}  // namespace velmar::storage
