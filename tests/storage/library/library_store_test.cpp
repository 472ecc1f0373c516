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

TEST_F(LibraryStoreTest, ToleratesMissingColumns) {
  fs::create_directories(FileOf("a.mdb").parent_path());
  Execute(FileOf("a.mdb"), {"CREATE TABLE rw_laboratorio (Nome TEXT, [RW (DB)] INTEGER)",
                            "INSERT INTO rw_laboratorio VALUES ('x', 51)"});
  EXPECT_EQ(store_.Tests(rw_, FileOf("a.mdb"))[0].keyword, "");
  EXPECT_EQ(store_.Find(rw_, FileOf("a.mdb"), "x")->rating, 51.0);
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

}  // namespace
}  // namespace velmar::storage
