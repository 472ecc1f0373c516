#include "storage/tables/schema.h"

#include <set>
#include <string>
#include <vector>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmar::storage {
namespace {

std::vector<TableSchema> AllTables() {
  std::vector<TableSchema> tables = MaterialTables();
  for (const TableSchema& table : ResultTables()) tables.push_back(table);
  for (const LibraryFolder& folder : LibraryFolders()) tables.push_back(folder.table);
  return tables;
}

TEST(Schema, EveryTableCanBeMadeInOneFile) {
  SQLite::Database database(":memory:", SQLite::OPEN_READWRITE);
  for (const TableSchema& table : AllTables()) {
    for (const std::string& statement : CreateStatements(table)) database.exec(statement);
    SQLite::Statement insert(database, InsertStatement(table));
    insert.bind(1, "Mattone \"pieno\"");
    insert.exec();
    SQLite::Statement columns(database, "SELECT name FROM pragma_table_info(?)");
    columns.bind(1, table.name);
    std::vector<std::string> names;
    while (columns.executeStep()) names.push_back(columns.getColumn(0).getString());
    ASSERT_EQ(names.size(), table.columns.size()) << table.name;
    for (size_t i = 0; i < names.size(); ++i) EXPECT_EQ(names[i], table.columns[i].name);
  }
}

TEST(Schema, RefusesASecondNameThatDiffersInCaseAlone) {
  SQLite::Database database(":memory:", SQLite::OPEN_READWRITE);
  for (const std::string& statement : CreateStatements(StructuralMaterialTable())) database.exec(statement);
  database.exec("INSERT INTO Modulo_A1 (\"Materiale\") VALUES ('Laterizio')");
  EXPECT_THROW(database.exec("INSERT INTO Modulo_A1 (\"Materiale\") VALUES ('LATERIZIO')"),
               SQLite::Exception);
}

TEST(Schema, FurtherTextsAreKeptUnderTheirNumber) {
  const TableSchema table = FurtherTextTable({"Italiano"});
  SQLite::Database database(":memory:", SQLite::OPEN_READWRITE);
  for (const std::string& statement : CreateStatements(table)) database.exec(statement);
  SQLite::Statement insert(database, InsertStatement(table));
  insert.bind(1, 1002.0);
  insert.bind(2, "due");
  insert.exec();
  EXPECT_EQ(database.execAndGet("SELECT rowid FROM Testi").getInt(), 1002);
}

TEST(Schema, ColumnNamesAreUniqueInATable) {
  for (const TableSchema& table : AllTables()) {
    std::set<std::string> names;
    for (const ColumnSchema& column : table.columns) {
      EXPECT_TRUE(names.insert(column.name).second) << table.name << ": " << column.name;
    }
    EXPECT_TRUE(table.Find(table.key)) << table.name;
  }
}

TEST(Schema, MaterialTablesHaveTheColumnsOfTheFormat) {
  EXPECT_EQ(*StructuralMaterialTable().Find("Parola chiave"), 14U);
  EXPECT_EQ(*FibrousMaterialTable().Find("Alfa0"), 9U);
  EXPECT_EQ(*FibrousMaterialTable().Find("Alfa18"), 27U);
  EXPECT_FALSE(FibrousMaterialTable().Find("Alfa19"));
  EXPECT_FALSE(FibrousMaterialTable().Find("Descrizione materiale"));
  EXPECT_EQ(*ResilientMaterialTable().Find("Delta Ln,w (dB)"), 5U);
}

TEST(Schema, LibraryFoldersHoldTheirBands) {
  const std::vector<LibraryFolder> folders = LibraryFolders();
  ASSERT_EQ(folders.size(), 8U);
  for (const LibraryFolder& folder : folders) {
    EXPECT_TRUE(folder.table.Find(folder.rating)) << folder.folder;
    const std::vector<std::string> bands = BandColumns(folder.band_prefix);
    ASSERT_EQ(bands.size(), 21U);
    for (const std::string& band : bands)
      EXPECT_TRUE(folder.table.Find(band)) << folder.folder << ": " << band;
  }
  EXPECT_EQ(BandColumns("DLn").at(3), "DLn - 100Hz (dB)");
}

}  // namespace
}  // namespace velmar::storage
