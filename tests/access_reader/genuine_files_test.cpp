#include <optional>
#include <set>
#include <string>
#include <vector>

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <glib.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "storage/tables/schema.h"
#include "tests/access_reader/fixtures.h"
#include "tests/access_reader/reader_process.h"

namespace velmar::access_reader {
namespace {

using nlohmann::json;

std::string Sha256(const std::string& bytes) {
  gchar* sum = g_compute_checksum_for_data(G_CHECKSUM_SHA256, reinterpret_cast<const guchar*>(bytes.data()),
                                           bytes.size());
  std::string text = sum;
  g_free(sum);
  return text;
}

std::string AffinityOf(const std::string& jet_type) {
  static const std::set<std::string> kWhole = {"BOOLEAN", "BYTE", "INT", "LONG"};
  static const std::set<std::string> kReal = {"FLOAT", "DOUBLE", "MONEY", "NUMERIC"};
  if (kWhole.contains(jet_type)) return "INTEGER";
  if (kReal.contains(jet_type)) return "REAL";
  return jet_type == "OLE" || jet_type == "BINARY" ? "BLOB" : "TEXT";
}

void ExpectValue(const SQLite::Column& read, const json& expected, const std::string& jet_type,
                 const std::string& where) {
  if (expected.is_null()) {
    EXPECT_TRUE(read.isNull()) << where;
  } else if (expected.is_object()) {
    // Long texts and bytes are told by their checksum.
    EXPECT_EQ(Sha256(read.getString()), expected.at("sha256").get<std::string>()) << where;
  } else if (expected.is_string()) {
    EXPECT_TRUE(read.isText()) << where;
    EXPECT_EQ(read.getString(), expected.get<std::string>()) << where;
  } else if (AffinityOf(jet_type) == "INTEGER") {
    EXPECT_TRUE(read.isInteger()) << where;
    EXPECT_EQ(read.getInt64(), expected.get<std::int64_t>()) << where;
  } else {
    EXPECT_TRUE(read.isFloat()) << where;
    EXPECT_EQ(read.getDouble(), expected.get<double>()) << where;
  }
}

void ExpectColumns(SQLite::Database& database, const std::string& table, const json& expected) {
  SQLite::Statement columns(database, "SELECT name, type FROM pragma_table_info(?)");
  columns.bind(1, table);
  size_t count = 0;
  for (; columns.executeStep(); ++count) {
    ASSERT_LT(count, expected.size()) << table;
    EXPECT_EQ(columns.getColumn(0).getString(), expected[count][0].get<std::string>());
    EXPECT_EQ(columns.getColumn(1).getString(), AffinityOf(expected[count][1]))
        << table << " " << expected[count];
  }
  EXPECT_EQ(count, expected.size()) << table;
}

void ExpectRows(SQLite::Database& database, const std::string& table, const json& expected) {
  SQLite::Statement rows(database, "SELECT * FROM " + storage::QuotedName(table) + " ORDER BY rowid");
  size_t count = 0;
  for (; rows.executeStep(); ++count) {
    ASSERT_LT(count, expected.at("rows").size()) << table;
    const json& row = expected.at("rows")[count];
    for (size_t i = 0; i < row.size(); ++i) {
      ExpectValue(rows.getColumn(static_cast<int>(i)), row[i], expected.at("columns")[i][1],
                  table + " row " + std::to_string(count) + " column " + std::to_string(i));
    }
  }
  EXPECT_EQ(count, expected.at("row_count").get<size_t>()) << table;
}

/// The indexes as sets of "unique:column,column", whatever their names.
void ExpectIndexes(SQLite::Database& database, const std::string& table, const json& expected) {
  std::multiset<std::string> wanted;
  for (const json& index : expected) {
    std::string text = index.at("unique").get<bool>() ? "1" : "0";
    for (const json& column : index.at("columns")) text += ":" + column.get<std::string>();
    wanted.insert(text);
  }
  std::multiset<std::string> found;
  SQLite::Statement indexes(database, "SELECT name, \"unique\" FROM pragma_index_list(?)");
  indexes.bind(1, table);
  while (indexes.executeStep()) {
    std::string text = std::to_string(indexes.getColumn(1).getInt());
    SQLite::Statement columns(database, "SELECT name FROM pragma_index_info(?) ORDER BY seqno");
    columns.bind(1, indexes.getColumn(0).getString());
    while (columns.executeStep()) text += ":" + columns.getColumn(0).getString();
    found.insert(text);
  }
  EXPECT_EQ(found, wanted) << table;
}

class GenuineFileTest : public testing::TestWithParam<std::string> {};

TEST_P(GenuineFileTest, IsCopiedValueByValue) {
  VELMAR_NEEDS_FIXTURES(folder);
  const TemporaryFolder temporary;
  const std::filesystem::path copy = temporary.Path() / "copy.db";
  ASSERT_EQ(RunReader(*folder / GetParam(), copy).exit_code, static_cast<int>(ExitCode::kDone));
  const json expected = ExpectedContents(*folder).at(GetParam()).at("tables");
  SQLite::Database database(copy.string());
  EXPECT_EQ(database.execAndGet("SELECT count(*) FROM sqlite_master WHERE type = 'table'").getUInt(),
            expected.size());
  for (const auto& [table, contents] : expected.items()) {
    ExpectColumns(database, table, contents.at("columns"));
    ExpectRows(database, table, contents);
    ExpectIndexes(database, table, contents.at("indexes"));
  }
}

INSTANTIATE_TEST_SUITE_P(Files, GenuineFileTest, testing::ValuesIn(kReadableFixtures), [](const auto& test) {
  std::string name = test.param;
  for (char& c : name) {
    if (g_ascii_isalnum(c) == 0) c = '_';
  }
  return name;
});

TEST(EncryptedFile, IsDeclined) {
  VELMAR_NEEDS_FIXTURES(folder);
  const TemporaryFolder temporary;
  const ReaderRun run = RunReader(*folder / "ace14-encrypted.accdb", temporary.Path() / "copy.db");
  ASSERT_TRUE(run.exit_code);
  EXPECT_TRUE(*run.exit_code == static_cast<int>(ExitCode::kNotOpened) ||
              *run.exit_code == static_cast<int>(ExitCode::kNoCatalog))
      << *run.exit_code;
  EXPECT_TRUE(std::filesystem::is_empty(temporary.Path()));
}

}  // namespace
}  // namespace velmar::access_reader
