#include "storage/access/conversion.h"

#include <random>

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include "storage/database/connection.h"
#include "storage/database/file_kind.h"
#include "storage/database/set_aside.h"
#include "tests/storage/access/access_fixture.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

const auto kYes = [] { return true; };

class ConversionTest : public AccessTest {};

TEST_F(ConversionTest, KeepsTheOriginalAndCountsTheRows) {
  const fs::path file = Take("jet4-schema-generated.mdb", "Database.mdb");
  const std::string bytes = ReadFile(file);
  const auto conversion = ConvertAccessFile(reader_, file, kYes);
  ASSERT_TRUE(conversion);
  EXPECT_EQ(conversion->original, folder_ / "Database.mdb.originale");
  EXPECT_EQ(ReadFile(conversion->original), bytes);
  EXPECT_EQ(ConditionOf(file), DatabaseCondition::kGood);
  std::int64_t rows = 0;
  for (const ConvertedTable& table : conversion->tables) rows += table.rows;
  EXPECT_GT(rows, 0);
  EXPECT_EQ(ConversionReport(*conversion)[0], (MessageLine{MessageRow{1111}, " " + std::to_string(rows)}));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_.Path()), {}), 2) << "nothing unfinished stays";
  EXPECT_FALSE(ConvertAccessFile(reader_, file, kYes)) << "only once";
}

TEST_F(ConversionTest, NeverReplacesAnOlderOriginal) {
  WriteFile(folder_ / "a.mdb.originale", "older");
  const auto conversion = ConvertAccessFile(reader_, Take("jet4-numeric.mdb", "a.mdb"), kYes);
  EXPECT_EQ(conversion->original, folder_ / "a.mdb.originale2");
  EXPECT_EQ(ReadFile(folder_ / "a.mdb.originale"), "older");
}

TEST_F(ConversionTest, ADeclinedQuestionChangesNothing) {
  const fs::path file = Take("jet4-numeric.mdb", "a.mdb");
  EXPECT_FALSE(ConvertAccessFile(reader_, file, [] { return false; }));
  EXPECT_EQ(KindOf(file), FileKind::kAccess);
}

TEST_F(ConversionTest, AFailureChangesNothing) {
  const fs::path file = Take("ace14-encrypted.accdb", "a.mdb");
  EXPECT_THROW(ConvertAccessFile(reader_, file, kYes), AccessFailure);
  EXPECT_EQ(KindOf(file), FileKind::kAccess);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_.Path()), {}), 1);
}

/// Whatever happens to the bytes: a message or a good database, and the original is kept.
TEST_F(ConversionTest, DamagedCopiesEndInAMessageOrAGoodDatabase) {
  const std::string whole = ReadFile(fixtures_ / "jet4-schema-generated.mdb");
  const fs::path file = folder_ / "d.mdb";
  const AccessReader reader{VELMAR_ACCESS_READER, std::chrono::milliseconds(2000)};
  std::mt19937 random(7);
  int converted = 0;
  for (int i = 0; i < 60; ++i) {
    std::string bytes = whole;
    const std::size_t hits = 1U << (random() % 8);
    for (std::size_t hit = 0; hit < hits; ++hit)
      bytes[32 + random() % (bytes.size() - 32)] = static_cast<char>(random());
    if (i % 5 == 0) bytes.resize(4096 * (1 + random() % (bytes.size() / 4096)));
    WriteFile(file, bytes);
    try {
      if (const auto conversion = ConvertAccessFile(reader, file, kYes)) {
        ++converted;
        EXPECT_EQ(ConditionOf(file), DatabaseCondition::kGood);
        EXPECT_EQ(ReadFile(conversion->original), bytes);
        fs::remove(conversion->original);
      }
    } catch (const AccessFailure&) {
      EXPECT_EQ(ReadFile(file), bytes);
    }
    fs::remove(file);
  }
  RecordProperty("converted", converted);
}

}  // namespace
}  // namespace velmar::storage
