#include "tests/access_reader/fixtures.h"

#include <cstdlib>
#include <fstream>

#include <nlohmann/json.hpp>

namespace velmar::access_reader {

std::optional<std::filesystem::path> FixtureFolder() {
  const char* folder = std::getenv("VELMAR_ACCESS_FIXTURES");
  if (folder == nullptr || *folder == '\0') return std::nullopt;
  return folder;
}

nlohmann::json ExpectedContents(const std::filesystem::path& folder) {
  std::ifstream file(folder / "expected.json");
  return nlohmann::json::parse(file);
}

}  // namespace velmar::access_reader
