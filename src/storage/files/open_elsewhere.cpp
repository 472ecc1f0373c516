#include "storage/files/open_elsewhere.h"

#include <algorithm>
#include <array>
#include <string>
#include <system_error>

namespace velmar::storage {
namespace {

// Word keeps the owner's file as short as the document's name: of eight characters or more it drops two, of
// seven one.
constexpr std::size_t kLongestWholeStem = 6;
constexpr std::size_t kMostDropped = 2;

std::size_t DroppedByWord(const std::u32string& stem) {
  return std::min(kMostDropped, stem.size() - std::min(stem.size(), kLongestWholeStem));
}

}  // namespace

bool IsOpenElsewhere(const std::filesystem::path& path) {
  const std::u32string name = path.filename().u32string();
  const std::array owners = {U".~lock." + name + U"#", U"~$" + name,
                             U"~$" + name.substr(DroppedByWord(path.stem().u32string()))};
  return std::ranges::any_of(owners, [&](const std::u32string& owner) {
    std::error_code error;
    return std::filesystem::is_regular_file(path.parent_path() / owner, error);
  });
}

}  // namespace velmar::storage
