#include "storage/database/row_repair.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include "foundation/utf8.h"
#include "storage/database/connection.h"
#include "storage/database/table_rows.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

const TableSchema kSchema{
    "Prova",
    {{"Nome", ColumnType::kText}, {"s (mm)", ColumnType::kNumber}, {"Nota", ColumnType::kText}},
    "Nome",
    true};
const RowRules kRules{.tables = {kSchema}, .ranges = {{.column = "s (mm)", .lowest = 0.0, .highest = 10.0}}};

class RowRepairTest : public testing::Test {
 protected:
  RowRepairTest() { MakeTables(file_, {kSchema}); }

  std::vector<RowFault> Find(const RowRules& rules = kRules) { return FindRowFaults(file_, rules); }
  std::vector<RowFault> Mend(const RowRules& rules = kRules) { return MendRows(file_, rules); }
  std::vector<StoredRow> Rows() {
    return ReadDatabase(file_, [](SQLite::Database& database) { return TableRows(database, kSchema).All(); });
  }

  TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "a.mdb";
};

TEST_F(RowRepairTest, GoodRowsAreLeftAlone) {
  InsertRows(file_, kSchema, {{Cell{"a"}, Cell{10.0}, Cell{"due\nrighe"}}, {Cell{"È"}, Cell{}, Cell{}}});
  EXPECT_TRUE(Find().empty());
  EXPECT_TRUE(Mend().empty());
}

TEST_F(RowRepairTest, NamesTheFaultAndMendsIt) {
  InsertRows(file_, kSchema,
             {{Cell{"muro\nnord"}, Cell{-1.0}, Cell{}},
              {Cell{"muro nord"}, Cell{10.5}, Cell{}},
              {Cell{" "}, Cell{}, Cell{std::string("a\0b", 3)}},
              {Cell{""}, Cell{}, Cell{"citt\xE0"}},
              {Cell{"caff\xE8"}, Cell{}, Cell{}}});
  const auto found = Find();
  ASSERT_EQ(found.size(), 8U);
  EXPECT_EQ(found[0].problem, RowProblem::kName);
  EXPECT_EQ(found[0].row, "muro nord");
  EXPECT_EQ(found[1].problem, RowProblem::kValue);
  EXPECT_EQ(found[1].column, "s (mm)");
  EXPECT_EQ(found[1].value, "-1");
  for (const RowFault& fault : found) EXPECT_TRUE(IsUtf8(fault.row));

  EXPECT_EQ(Mend().size(), 8U);
  EXPECT_TRUE(Find().empty());
  const auto rows = Rows();
  EXPECT_EQ(rows[0].cells, (std::vector<Cell>{Cell{"muro nord (2)"}, Cell{}, Cell{}}));
  EXPECT_EQ(rows[1].cells, (std::vector<Cell>{Cell{"muro nord"}, Cell{}, Cell{}}));
  EXPECT_EQ(rows[2].cells, (std::vector<Cell>{Cell{"(senza nome)"}, Cell{}, Cell{"a b"}}));
  EXPECT_EQ(rows[3].cells[0], Cell{"(senza nome) (2)"});
  EXPECT_EQ(rows[3].cells[2], Cell{"citt\uFFFD"});
  EXPECT_EQ(rows[4].cells[0], Cell{"caff\uFFFD"});
}

TEST_F(RowRepairTest, AMissingTableIsMadeEmpty) {
  RowRules rules = kRules;
  rules.tables.push_back({"Altra", {{"Nome", ColumnType::kText}}, "Nome", true});
  ASSERT_EQ(Find(rules).size(), 1U);
  EXPECT_EQ(Find(rules)[0].problem, RowProblem::kNoTable);
  EXPECT_EQ(Mend(rules).size(), 1U);
  EXPECT_TRUE(Find(rules).empty());
}

TEST_F(RowRepairTest, AShippedTextTakesThePlaceOfABrokenOne) {
  InsertRows(file_, kSchema, {{Cell{"a"}, Cell{}, Cell{std::string("\0x", 2)}}});
  RowRules rules = kRules;
  rules.shipped_text = [](const TableSchema&, std::size_t row, std::size_t column) {
    return "intero " + std::to_string(row) + " " + std::to_string(column);
  };
  Mend(rules);
  EXPECT_EQ(Rows()[0].cells[2], Cell{"intero 0 2"});
}

}  // namespace
}  // namespace velmar::storage
