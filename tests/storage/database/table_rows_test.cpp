#include "storage/database/table_rows.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <gtest/gtest.h>

#include "storage/database/connection.h"
#include "storage/database/database_failure.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

const TableSchema kSchema{"Prova",
                          {{"Nome", ColumnType::kText},
                           {"s (mm)", ColumnType::kNumber},
                           {"Densità (kg/m³)", ColumnType::kNumber},
                           {"si", ColumnType::kYesNo}},
                          "Nome",
                          false};

class TableRowsTest : public testing::Test {
 protected:
  std::vector<StoredRow> All(const TableSchema& schema = kSchema) {
    return ReadDatabase(file_, [&](SQLite::Database& database) { return TableRows(database, schema).All(); });
  }
  std::string Found(const std::string& name) {
    return ReadDatabase(file_, [&](SQLite::Database& database) {
      const auto row = TableRows(database, kSchema).Find(name);
      return row ? std::get<std::string>(row->cells[0]) : std::string("-");
    });
  }

  TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "prova.mdb";
};

TEST_F(TableRowsTest, GiveEveryValueBackInTheOrderOfInsertion) {
  MakeTables(file_, {kSchema});
  const std::vector<std::vector<Cell>> rows = {{Cell{"Zeta"}, Cell{0.1 + 0.2}, Cell{}, Cell{true}},
                                               {Cell{"alfa \"x\" 'y'"}, Cell{-1e300}, Cell{7.0}, Cell{false}},
                                               {Cell{"È"}, Cell{}, Cell{}, Cell{}}};
  InsertRows(file_, kSchema, rows);
  const std::vector<StoredRow> stored = All();
  ASSERT_EQ(stored.size(), 3U);
  for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(stored[i].cells, rows[i]) << i;
}

TEST_F(TableRowsTest, TakeForeignTypesForWhatTheyStandFor) {
  Execute(file_, {"CREATE TABLE [PROVA] (nome, [S (MM)], [DENSITÀ (KG/M³)], SI, [altra colonna])",
                  "INSERT INTO PROVA VALUES (12, '12,5', 'molto', -1, 'resta')",
                  "INSERT INTO PROVA VALUES (1.5, 9e999, x'00', 'Vero', 'resta')"});
  const std::vector<StoredRow> rows = All();
  EXPECT_EQ(rows[0].cells, (std::vector<Cell>{Cell{"12"}, Cell{12.5}, Cell{}, Cell{true}}));
  EXPECT_EQ(rows[1].cells, (std::vector<Cell>{Cell{"1.5"}, Cell{}, Cell{}, Cell{true}}));
}

/// A column of the file may have the name under which SQL gives the number of a row.
TEST_F(TableRowsTest, ReadATableWithAColumnNamedRowid) {
  Execute(file_, {"CREATE TABLE Prova (Nome TEXT, rowid TEXT, OID INTEGER)",
                  "INSERT INTO Prova VALUES ('a', 'x', 7), ('b', 'y', 7), ('è', 'z', 7)"});
  EXPECT_EQ(All().size(), 3U);
  EXPECT_EQ(Found("B"), "b");
  EXPECT_EQ(Found("È"), "è");
  ChangeDatabaseWith(file_, [](SQLite::Database& database) {
    TableRows table(database, kSchema);
    table.Delete(*table.FindExactly("a"));
    StoredRow row = table.Find("b").value();
    row.cells[0] = std::string("c");
    table.Update(row);
  });
  EXPECT_EQ(Found("a"), "-");
  EXPECT_EQ(Found("c"), "c");
}

TEST_F(TableRowsTest, RefuseATableWhoseColumnsHideTheRowNumber) {
  Execute(file_, {"CREATE TABLE Prova (Nome TEXT, rowid TEXT, oid TEXT, _rowid_ TEXT)"});
  EXPECT_THROW(All(), DatabaseFailure);
}

/// Whatever is asked of a damaged file, the answer is a row, none, or a failure that calls it damaged.
TEST_F(TableRowsTest, ADamagedFileEndsInAFailure) {
  for (const char* name : {"pages-swapped-materials.mdb", "row-deleted-past-its-index-materials.mdb"}) {
    std::filesystem::copy_file(std::filesystem::path(DAMAGED_DATABASES) / name, file_,
                               std::filesystem::copy_options::overwrite_existing);
    int damaged = 0;
    std::vector<std::string> names = {"Mattone pieno", "mattone PIENO", "nessuno", "È"};
    ReadDatabaseWith(file_, [&](SQLite::Database& database) {
      SQLite::Statement query(database, "SELECT Materiale FROM Modulo_A1 NOT INDEXED");
      while (query.executeStep()) names.push_back(query.getColumn(0).getString());
    });
    for (const std::string& asked : names) {
      try {
        ReadDatabaseWith(file_, [&](SQLite::Database& database) {
          TableRows(database, StructuralMaterialTable()).Find(asked);
        });
      } catch (const DatabaseFailure& failure) {
        EXPECT_EQ(failure.Problem(), DatabaseProblem::kDamaged);
        ++damaged;
      }
    }
    EXPECT_GT(damaged, 0) << name;
  }
}

TEST_F(TableRowsTest, LeaveUnknownColumnsAloneAndPassOverMissingOnes) {
  Execute(file_, {"CREATE TABLE Prova (Nome TEXT, mia TEXT)", "INSERT INTO Prova VALUES ('a', 'resta')"});
  ChangeDatabaseWith(file_, [](SQLite::Database& database) {
    TableRows table(database, kSchema);
    EXPECT_FALSE(table.Has("s (mm)"));
    EXPECT_TRUE(table.Has("Nome"));
    StoredRow row = *table.First();
    row.cells = {Cell{"b"}, Cell{1.0}, Cell{2.0}, Cell{true}};
    table.Update(row);
  });
  const TableSchema own{"Prova", {{"Nome", ColumnType::kText}, {"mia", ColumnType::kText}}, "Nome", false};
  EXPECT_EQ(All(own)[0].cells, (std::vector<Cell>{Cell{"b"}, Cell{"resta"}}));
}

TEST_F(TableRowsTest, FindNamesWithQuotesAccentsAndOtherCase) {
  MakeTables(file_, {kSchema});
  Execute(file_, {"DROP INDEX [Prova Nome]"});
  InsertRows(file_, kSchema,
             {{Cell{"Calcestruzzo"}, {}, {}, {}},
              {Cell{"calcestruzzo"}, {}, {}, {}},
              {Cell{"l'\"intonaco\" à la 'carte'"}, {}, {}, {}},
              {Cell{"CAFFÈ; DROP TABLE Prova"}, {}, {}, {}}});
  EXPECT_EQ(Found("calcestruzzo"), "calcestruzzo") << "the one so spelt goes first";
  EXPECT_EQ(Found("CALCESTRUZZO"), "Calcestruzzo");
  EXPECT_EQ(Found("L'\"INTONACO\" À LA 'CARTE'"), "l'\"intonaco\" à la 'carte'");
  EXPECT_EQ(Found("caffè; drop table prova"), "CAFFÈ; DROP TABLE Prova");
  EXPECT_EQ(Found("caffe; drop table prova"), "-");
  EXPECT_EQ(Found(""), "-");
}

TEST_F(TableRowsTest, NameWhatIsMissing) {
  Execute(file_, {"CREATE TABLE Altra (Nome TEXT)", "CREATE VIEW Prova AS SELECT * FROM Altra"});
  try {
    All();
    FAIL() << "a view is no table";
  } catch (const DatabaseFailure& failure) {
    EXPECT_EQ(failure.Problem(), DatabaseProblem::kMissingTable);
    EXPECT_EQ(failure.UserMessage()[0], (MessageLine{MessageRow{1116}, " Prova"}));
  }
  Execute(file_, {"DROP VIEW Prova", "CREATE TABLE Prova (Titolo TEXT)"});
  try {
    All();
    FAIL() << "no key";
  } catch (const DatabaseFailure& failure) {
    EXPECT_EQ(failure.Problem(), DatabaseProblem::kMissingColumn);
  }
}

}  // namespace
}  // namespace velmar::storage
