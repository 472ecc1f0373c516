#include "storage/library/library_store.h"

#include <gtest/gtest.h>

#include "storage/database/database_failure.h"
#include "tests/storage/access/access_fixture.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

class LibraryStoreTest : public testing::Test {
 protected:
  fs::path FileOf(const std::string& name) { return root_ / rw_.folder / name; }
  void MakeSeries(const std::string& name) {
    fs::create_directories(FileOf(name).parent_path());
    MakeTables(FileOf(name), {rw_.table});
  }

  const LibraryFolder rw_ = *FindLibraryFolder("Rw");
  TemporaryFolder folder_;
  fs::path root_ = folder_ / "Database";
  AccessSession session_{{VELMAR_ACCESS_READER}};
  LibraryStore store_{root_, session_};
};

TEST_F(LibraryStoreTest, ListsTheFilesOfAFolder) {
  EXPECT_TRUE(store_.Files(rw_).empty()) << "a missing folder";
  for (const char* name : {"zinco.mdb", "Alfa.MDB", "àncora.v2.mdb", "note.txt", ".mdb"})
    WriteFile(FileOf(name), "");
  fs::create_directories(FileOf("cartella.mdb"));
  std::string names;
  for (const LibraryFile& file : store_.Files(rw_)) names += file.name + "|";
  EXPECT_EQ(names, "Alfa|zinco|àncora.v2|");
}

TEST_F(LibraryStoreTest, ReadsTestsAndTheirNulls) {
  MakeSeries("a.mdb");
  Execute(FileOf("a.mdb"),
          {"INSERT INTO Rw_laboratorio (Nome, [Parola chiave], [Rw (dB)], [R - 100Hz (dB)]) VALUES "
           "('Muro d''ambito', 'laterizi', 50, 38.5), ('Lastra', 'gesso', NULL, NULL)"});
  const std::vector<ListedTest> tests = store_.Tests(rw_, FileOf("a.mdb"));
  ASSERT_EQ(tests.size(), 2U);
  EXPECT_EQ(TestKeywords(tests, "tutti"), (std::vector<std::string>{"tutti", "laterizi", "gesso"}));
  EXPECT_EQ(TestsUnderFilter(tests, "gesso", "tutti"), std::vector<std::string>{"Lastra"});
  EXPECT_EQ(TestsUnderFilter(tests, "tutti", "tutti").size(), 2U);
  const auto test = store_.Find(rw_, FileOf("a.mdb"), "MURO D'AMBITO");
  EXPECT_EQ(test->rating, 50.0);
  EXPECT_EQ(test->bands[3], 38.5);
  EXPECT_EQ(test->bands[4], std::nullopt);
  EXPECT_FALSE(store_.Find(rw_, FileOf("a.mdb"), "altro"));
}

TEST_F(LibraryStoreTest, TellsWhatEachTestServesFor) {
  MakeSeries("a.mdb");
  MeasuredTest thirds;
  thirds.name = "terzi";
  for (std::size_t i = 3; i < 19; ++i) thirds.bands[i] = 40;
  MeasuredTest octaves;
  octaves.name = "ottave";
  octaves.octaves[2] = 40;
  octaves.rating = 38;
  InsertRows(FileOf("a.mdb"), rw_.table, {CellsFromTest(rw_, thirds), CellsFromTest(rw_, octaves)});
  const std::vector<ListedTest> tests = store_.Tests(rw_, FileOf("a.mdb"));
  EXPECT_TRUE(tests[0].uses.facade_by_bands);
  EXPECT_FALSE(tests[0].uses.facade_by_rating);
  EXPECT_FALSE(tests[1].uses.facade_by_bands);
  EXPECT_TRUE(tests[1].uses.facade_by_rating);
  EXPECT_TRUE(tests[1].uses.comparison);
}

TEST_F(LibraryStoreTest, ToleratesMissingColumns) {
  fs::create_directories(FileOf("a.mdb").parent_path());
  Execute(FileOf("a.mdb"), {"CREATE TABLE rw_laboratorio (Nome TEXT, [RW (DB)] INTEGER)",
                            "INSERT INTO rw_laboratorio VALUES ('x', 51)"});
  EXPECT_EQ(store_.Tests(rw_, FileOf("a.mdb"))[0].keyword, "");
  EXPECT_EQ(store_.Find(rw_, FileOf("a.mdb"), "x")->rating, 51.0);
}

TEST_F(LibraryStoreTest, ASeriesOfAnEarlierVersionOpensUnchanged) {
  fs::create_directories(FileOf("a.mdb").parent_path());
  TableSchema old = rw_.table;
  std::erase_if(old.columns, [](const ColumnSchema& column) {
    return column.name.find("ttava") != std::string::npos || column.name.find("ndice") != std::string::npos ||
           column.name == "Incertezza (dB)" || column.name == "Fonte";
  });
  ASSERT_EQ(old.columns.size(), 35U);
  MakeTables(FileOf("a.mdb"), {old});
  Execute(FileOf("a.mdb"),
          {"INSERT INTO Rw_laboratorio (Nome, [Rw (dB)], [R - 500Hz (dB)], Certificato) VALUES "
           "('Muro', 47, 41.5, '3/1991')"});
  const std::string bytes = ReadFile(FileOf("a.mdb"));
  ASSERT_EQ(store_.Tests(rw_, FileOf("a.mdb")).size(), 1U);
  const auto test = store_.Find(rw_, FileOf("a.mdb"), "Muro");
  EXPECT_EQ(test->rating, 47.0);
  EXPECT_EQ(test->bands[10], 41.5);
  EXPECT_EQ(test->certificate, "3/1991");
  EXPECT_EQ(test->source, "");
  EXPECT_TRUE(ReadFile(FileOf("a.mdb")) == bytes);
}

TEST_F(LibraryStoreTest, TheFileOfFieldDataStandsBeforeTheFieldFolders) {
  const LibraryFolder walls = *FindLibraryFolder("R'w");
  const LibraryFolder floors = *FindLibraryFolder("L'nw");
  const fs::path both = root_ / "database_SPERIMENTALE.mdb";
  fs::create_directories(root_ / walls.folder);
  MakeTables(both, {walls.table, floors.table});
  MakeTables(root_ / walls.folder / "Cantieri.mdb", {walls.table});
  Execute(both,
          {"INSERT INTO Rw_in_opera (Nome, [Ve (m³)], [Vr (m³)], [s (mm)], Cantiere, [Area (m²)]) "
           "VALUES ('Divisorio', 31.5, 28, 300, 'Via dell''Università 5', 12.25)",
           "INSERT INTO Lnw_in_opera (Nome, [Lnw (dB)], [Ln - 100Hz (dB)]) VALUES ('Solaio', 58, 61.5)"});
  std::string names;
  for (const LibraryFile& file : store_.Files(walls)) names += file.name + "|";
  EXPECT_EQ(names, "database_SPERIMENTALE|Cantieri|");
  ASSERT_EQ(store_.Files(floors).size(), 1U);
  EXPECT_EQ(store_.Files(floors)[0].path, both);
  EXPECT_TRUE(store_.Files(rw_).empty());
  const auto wall = store_.Find(walls, both, "divisorio");
  ASSERT_TRUE(wall);
  EXPECT_EQ(wall->field.site, "Via dell'Università 5");
  EXPECT_EQ(wall->field.source_volume_m3, 31.5);
  EXPECT_EQ(wall->field.receiving_volume_m3, 28.0);
  EXPECT_EQ(wall->field.thickness_mm, 300.0);
  EXPECT_EQ(wall->area_m2, 12.25);
  EXPECT_EQ(store_.Find(floors, both, "Solaio")->bands[3], 61.5);
}

TEST_F(LibraryStoreTest, FieldDataToleratesMissingColumnsAndNulls) {
  const LibraryFolder walls = *FindLibraryFolder("R'w");
  fs::create_directories(root_);
  const fs::path file = root_ / "Database_sperimentale.mdb";
  Execute(file, {"CREATE TABLE Rw_in_opera (Nome TEXT, Cantiere TEXT, [Ve (m³)] REAL)",
                 "INSERT INTO Rw_in_opera VALUES ('x', NULL, NULL), ('y', 'Corso Ercole', 40)"});
  EXPECT_EQ(store_.Find(walls, file, "x")->field.site, "");
  EXPECT_EQ(store_.Find(walls, file, "x")->field.source_volume_m3, std::nullopt);
  EXPECT_EQ(store_.Find(walls, file, "y")->field.source_volume_m3, 40.0);
  EXPECT_EQ(store_.Find(walls, file, "y")->field.receiving_volume_m3, std::nullopt);
}

TEST_F(LibraryStoreTest, TellsWhatItCannotRead) {
  WriteFile(FileOf("text.mdb"), "no database");
  EXPECT_THROW(store_.Tests(rw_, FileOf("text.mdb")), DatabaseFailure);
  MakeSeries("a.mdb");
  EXPECT_THROW(store_.Tests(*FindLibraryFolder("Infissi"), FileOf("a.mdb")), DatabaseFailure);
  WriteAccessHead(FileOf("jet.mdb"));
  EXPECT_THROW(store_.Tests(rw_, FileOf("jet.mdb")), AccessFailure);
}

class GenuineLibraryTest : public AccessTest {};

TEST_F(GenuineLibraryTest, ReadsAnAccessFileAsItIs) {
  const fs::path file = Take("jet4-schema-generated.mdb", "a.mdb");
  const std::string bytes = ReadFile(file);
  AccessSession session(reader_);
  const LibraryStore store(folder_.Path(), session);
  // The file holds some of the tables; each is found or named as missing.
  int found = 0;
  for (const LibraryFolder& folder : LibraryFolders()) {
    try {
      for (const ListedTest& test : store.Tests(folder, file)) {
        ++found;
        EXPECT_TRUE(store.Find(folder, file, test.name));
      }
    } catch (const DatabaseFailure& failure) {
      EXPECT_EQ(failure.Problem(), DatabaseProblem::kMissingTable);
    }
  }
  EXPECT_GT(found, 0);
  EXPECT_EQ(ReadFile(file), bytes);
}

TEST_F(GenuineLibraryTest, ADateColumnReadsAsItIsWrittenInItaly) {
  const fs::path file = Take("jet4-schema-generated.mdb", "a.mdb");
  AccessSession session(reader_);
  const LibraryStore store(folder_.Path(), session);
  const LibraryFolder rw = *FindLibraryFolder("Rw");
  EXPECT_EQ(store.Find(rw, file, "Prova 02")->date, "03/03/1992");
  EXPECT_EQ(store.Find(rw, file, "Prova 01")->date, "");
}

}  // namespace
}  // namespace velmar::storage
