#include "storage/files/open_elsewhere.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <system_error>

#include "foundation/utf8.h"

namespace velmar::storage {
namespace {

// Word keeps the owner's file as short as the document's name: of eight characters or more it drops two, of
// seven one.
constexpr std::size_t kLongestWholeStem = 6;
constexpr std::size_t kMostDropped = 2;

/// `name` as Word shortens it in the name of its owner's file.
std::string ShortenedByWord(const std::string& name, const std::string& stem) {
  const std::size_t length = CountCharacters(stem);
  std::string_view rest = name;
  for (std::size_t drop = std::min(kMostDropped, length - std::min(length, kLongestWholeStem)); drop > 0;
       --drop)
    TakeCharacter(rest);
  return std::string(rest);
}

}  // namespace

bool IsOpenElsewhere(const std::filesystem::path& path) {
  const std::string name = path.filename().string();
  const std::array owners = {".~lock." + name + "#", "~$" + name,
                             "~$" + ShortenedByWord(name, path.stem().string())};
  return std::ranges::any_of(owners, [&](const std::string& owner) {
    std::error_code error;
    return std::filesystem::is_regular_file(path.parent_path() / owner, error);
  });
}

}  // namespace velmar::storage
