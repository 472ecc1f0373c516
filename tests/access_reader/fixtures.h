#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

namespace velmar::access_reader {

/// The folder that VELMAR_ACCESS_FIXTURES names, or nothing.
std::optional<std::filesystem::path> FixtureFolder();

/// What the file must give, from the "expected.json" of the folder.
nlohmann::json ExpectedContents(const std::filesystem::path& folder);

/// The files that can be read.
inline const std::vector<std::string> kReadableFixtures = {
    "jet3-memo-bool-ole.mdb", "jet3-types-index.mdb",        "jet4-unicode-values.mdb",
    "jet4-numeric.mdb",       "ace12-nonascii-column.accdb", "jet4-schema-generated.mdb"};

}  // namespace velmar::access_reader

/// Leaves the test out, and says so, when there are no genuine files to read.
#define VELMAR_NEEDS_FIXTURES(folder)                                                         \
  const std::optional<std::filesystem::path> folder = velmar::access_reader::FixtureFolder(); \
  if (!folder) GTEST_SKIP() << "left out: VELMAR_ACCESS_FIXTURES names no folder"
