#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <optional>
#include <random>
#include <string>

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <gtest/gtest.h>

#include "storage/tables/schema.h"
#include "tests/access_reader/fixtures.h"
#include "tests/access_reader/reader_process.h"

namespace velmar::access_reader {
namespace {

using Random = std::mt19937_64;

size_t Below(Random& random, size_t limit) {
  return std::uniform_int_distribution<size_t>(0, limit - 1)(random);
}

size_t PageSize(const std::string& bytes) { return bytes[0x14] == 0 ? 2048 : 4096; }

void Cut(std::string& bytes, Random& random) { bytes.resize(Below(random, bytes.size())); }

void CutAtAPage(std::string& bytes, Random& random) {
  bytes.resize((1 + Below(random, bytes.size() / PageSize(bytes) - 1)) * PageSize(bytes));
}

void FlipBytes(std::string& bytes, Random& random) {
  for (size_t i = 1 + Below(random, 200); i > 0; --i) {
    char& byte = bytes[Below(random, bytes.size())];
    byte = static_cast<char>(byte ^ static_cast<char>(1 + Below(random, 255)));
  }
}

void ZeroPages(std::string& bytes, Random& random) {
  const size_t page = PageSize(bytes);
  for (size_t i = 1 + Below(random, 3); i > 0; --i) {
    const size_t at = Below(random, bytes.size() / page) * page;
    std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(at), page, '\0');
  }
}

void SwapPages(std::string& bytes, Random& random) {
  const size_t page = PageSize(bytes);
  const auto one = bytes.begin() + static_cast<std::ptrdiff_t>(Below(random, bytes.size() / page) * page);
  const auto other = bytes.begin() + static_cast<std::ptrdiff_t>(Below(random, bytes.size() / page) * page);
  if (one != other) std::swap_ranges(one, one + static_cast<std::ptrdiff_t>(page), other);
}

/// Hits the heads of table definitions and the catalog, where counts and page numbers stand.
void SpoilDefinitions(std::string& bytes, Random& random) {
  const size_t page = PageSize(bytes);
  for (size_t at = page; at + page <= bytes.size(); at += page) {
    const bool definition = bytes[at] == '\2';
    if (!definition && at != 2 * page) continue;
    if (Below(random, 3) == 0) bytes[at + Below(random, 64)] = static_cast<char>(Below(random, 256));
  }
}

struct Damage {
  const char* name;
  void (*apply)(std::string& bytes, Random& random);
  bool is_cut = false;  ///< such a copy is refused, or nothing of the tables was lost
};

std::string Contents(const std::filesystem::path& copy) {
  SQLite::Database database(copy.string());
  SQLite::Statement tables(database, "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name");
  std::string contents;
  while (tables.executeStep()) {
    const std::string name = tables.getColumn(0).getString();
    contents += "\n[" + name + "]";
    SQLite::Statement rows(database, "SELECT * FROM " + storage::QuotedName(name));
    while (rows.executeStep()) {
      for (int i = 0; i < rows.getColumnCount(); ++i) contents += rows.getColumn(i).getString() + '|';
    }
  }
  return contents;
}

/// What the undamaged file gives.
std::string WholeContents(const std::filesystem::path& source) {
  const TemporaryFolder temporary;
  RunReader(source, temporary.Path() / "whole.db");
  return Contents(temporary.Path() / "whole.db");
}

class DamagedFileTest : public testing::TestWithParam<Damage> {};

TEST_P(DamagedFileTest, EndsInTimeWithACode) {
  VELMAR_NEEDS_FIXTURES(folder);
  constexpr int kCopiesOfEachFile = 17;
  constexpr double kMostSeconds = 15.0;
  const TemporaryFolder temporary;
  const std::filesystem::path damaged = temporary.Path() / "damaged.mdb";
  const std::filesystem::path copy = temporary.Path() / "copy.db";
  Random random(20);
  std::map<int, int> outcomes;
  for (const std::string& name : kReadableFixtures) {
    std::ifstream file(*folder / name, std::ios::binary);
    const std::string whole{std::istreambuf_iterator<char>(file), {}};
    ASSERT_FALSE(whole.empty()) << name;
    const std::string contents = WholeContents(*folder / name);
    for (int i = 0; i < kCopiesOfEachFile; ++i) {
      std::string bytes = whole;
      GetParam().apply(bytes, random);
      std::ofstream(damaged, std::ios::binary | std::ios::trunc) << bytes;
      const ReaderRun run = RunReader(damaged, copy);
      ASSERT_TRUE(run.exit_code) << name << ", copy " << i << ": ended by a signal";
      ASSERT_LE(*run.exit_code, static_cast<int>(ExitCode::kCopyNotWritten)) << name << ", copy " << i;
      ASSERT_LT(run.seconds.count(), kMostSeconds) << name << ", copy " << i;
      ASSERT_EQ(std::filesystem::exists(copy), *run.exit_code == 0) << name << ", copy " << i;
      if (GetParam().is_cut && *run.exit_code == 0) {
        ASSERT_EQ(Contents(copy), contents) << name << ", copy " << i;
      }
      std::filesystem::remove(copy);
      ++outcomes[*run.exit_code];
    }
  }
  for (const auto& [code, count] : outcomes)
    std::cout << "exit code " << code << ": " << count << " copies\n";
}

INSTANTIATE_TEST_SUITE_P(Damages, DamagedFileTest,
                         testing::Values(Damage{"Cut", Cut, true}, Damage{"CutAtAPage", CutAtAPage, true},
                                         Damage{"FlippedBytes", FlipBytes}, Damage{"ZeroedPages", ZeroPages},
                                         Damage{"SwappedPages", SwapPages},
                                         Damage{"SpoiledDefinitions", SpoilDefinitions}),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace velmar::access_reader
