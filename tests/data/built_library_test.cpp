#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data_builder/table_text.h"
#include "storage/library/rating_check.h"
#include "storage/tables/schema.h"

namespace velmar {
namespace {

namespace fs = std::filesystem;
using storage::QuotedName;

const fs::path kDatabases = fs::path(VELMAR_BUILT_DATA) / "Databases";

int Count(SQLite::Database& database, const std::string& table, const std::string& condition = "1") {
  return database.execAndGet("SELECT count(*) FROM " + QuotedName(table) + " WHERE " + condition).getInt();
}

std::vector<fs::path> FilesOf(const storage::LibraryFolder& folder) {
  std::vector<fs::path> files;
  for (const fs::directory_entry& file : fs::directory_iterator(kDatabases / "Database" / folder.folder)) {
    files.push_back(file.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

/// The band columns of `folder`, joined for a SELECT.
std::string BandList(const storage::LibraryFolder& folder) {
  std::string list;
  for (const std::string& band : storage::BandColumns(folder.band_prefix)) {
    if (!list.empty()) list += ", ";
    list += QuotedName(band);
  }
  return list;
}

TEST(Library, HasEveryFolderAndEveryFileItsTable) {
  for (const storage::LibraryFolder& folder : storage::LibraryFolders()) {
    const fs::path path = kDatabases / "Database" / folder.folder;
    ASSERT_TRUE(fs::is_directory(path)) << path;
    for (const fs::directory_entry& file : fs::directory_iterator(path)) {
      SQLite::Database database(file.path().string());
      EXPECT_GT(Count(database, folder.table.name), 0) << file.path();
      for (const char* column : {"Descrizione", "Parola chiave", "Fonte", "Immagine"}) {
        EXPECT_EQ(Count(database, folder.table.name, QuotedName(column) + " IS NULL"), 0)
            << file.path() << column;
      }
      EXPECT_EQ(
          database
              .execAndGet("SELECT count(*) - count(DISTINCT \"Nome\") FROM " + QuotedName(folder.table.name))
              .getInt(),
          0)
          << file.path();
    }
  }
  EXPECT_TRUE(fs::is_regular_file(kDatabases / "immagine" / "senza.jpg"));
}

TEST(Library, HoldsAllRowsOfItsTexts) {
  int rows = 0;
  for (const storage::LibraryFolder& folder : storage::LibraryFolders()) {
    for (const fs::path& file : FilesOf(folder)) {
      const fs::path text = fs::path(VELMAR_TEXTS) / "library" / folder.folder / file.stem().concat(".csv");
      SQLite::Database database(file.string());
      const int read = Count(database, folder.table.name);
      EXPECT_EQ(static_cast<size_t>(read), data_builder::ReadRows(text, folder.table).size()) << file;
      rows += read;
    }
  }
  EXPECT_GT(rows, 300);
}

TEST(Library, BandsAreMeasuredOrEmpty) {
  for (const storage::LibraryFolder& folder : storage::LibraryFolders()) {
    for (const fs::path& file : FilesOf(folder)) {
      SQLite::Database database(file.string());
      const std::string any = "coalesce(" + BandList(folder) + ") IS NOT NULL";
      // An octave band or a single number says nothing about one-third octaves.
      const bool has_thirds = file.stem().string().find("terzi d'ottava") != std::string::npos;
      EXPECT_EQ(Count(database, folder.table.name, any), has_thirds ? Count(database, folder.table.name) : 0)
          << file;
    }
  }
}

/// Every row of the library, as its folder reads it.
template <typename See>
void ForEachTest(See&& see) {
  for (const storage::LibraryFolder& folder : storage::LibraryFolders()) {
    for (const fs::path& file : FilesOf(folder)) {
      const fs::path text = fs::path(VELMAR_TEXTS) / "library" / folder.folder / file.stem().concat(".csv");
      for (const auto& cells : data_builder::ReadRows(text, folder.table)) {
        see(folder, storage::TestFromCells(folder, cells));
      }
    }
  }
}

TEST(Library, EveryRatingFollowsFromItsBands) {
  int of_thirds = 0;
  int of_octaves = 0;
  ForEachTest([&](const storage::LibraryFolder& folder, const storage::MeasuredTest& test) {
    const storage::RatingCheck check = storage::CheckRating(folder, test);
    if (check.basis == storage::RatingBasis::kNone) return;
    EXPECT_FALSE(check.differs) << test.name << ": " << *test.rating << " stated, " << *check.rating;
    EXPECT_TRUE(test.rating) << test.name;
    if (test.other_adaptation) {
      EXPECT_EQ(check.adaptation, test.adaptation) << test.name;
    }
    (check.basis == storage::RatingBasis::kThirds ? of_thirds : of_octaves) += 1;
  });
  EXPECT_EQ(of_thirds, 19);
  EXPECT_EQ(of_octaves, 111);
}

TEST(Library, NoConstructionStandsTwiceAndNoneSaysNothing) {
  std::set<std::string> names;
  std::set<std::vector<double>> spectra;
  ForEachTest([&](const storage::LibraryFolder& folder, const storage::MeasuredTest& test) {
    EXPECT_TRUE(names.insert(folder.key + '/' + test.name).second) << test.name;
    std::vector<double> bands;
    for (const auto& band : test.bands) {
      if (band) bands.push_back(*band);
    }
    for (const auto& octave : test.octaves) {
      if (octave) bands.push_back(*octave);
    }
    if (!bands.empty()) {
      EXPECT_TRUE(spectra.insert(bands).second) << test.name;
    }
    EXPECT_TRUE(!bands.empty() || test.rating || test.index_value) << test.name;
    if (!test.index_kind.empty()) {
      EXPECT_THAT(storage::kIndexKinds, testing::Contains(test.index_kind)) << test.name;
    }
    EXPECT_FALSE(test.source.empty()) << test.name;
    // Bands and ratings stand in columns of their own, not in the notes.
    EXPECT_EQ(test.notes.find("Bande d'ottava:"), std::string::npos) << test.name;
  });
}

TEST(Library, WindowsAndDoorsServeFacades) {
  int by_rating = 0;
  int by_bands = 0;
  ForEachTest([&](const storage::LibraryFolder& folder, const storage::MeasuredTest& test) {
    if (folder.key != "Infissi") return;
    by_rating += storage::UsesOf(test).facade_by_rating ? 1 : 0;
    by_bands += storage::UsesOf(test).facade_by_bands ? 1 : 0;
  });
  EXPECT_GE(by_rating, 40);
  EXPECT_GE(by_bands, 1);
}

}  // namespace
}  // namespace velmar
