#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "acoustics/airborne_rating.h"
#include "acoustics/bands.h"
#include "data_builder/table_text.h"
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
      for (const char* column : {"Descrizione", "Parola chiave", "Certificato", "Immagine"}) {
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

TEST(Library, RatingsOfMeasuredWallsFollowFromTheirBands) {
  const storage::LibraryFolder walls = storage::LibraryFolders().front();
  int rated = 0;
  for (const fs::path& file : FilesOf(walls)) {
    SQLite::Database database(file.string());
    SQLite::Statement read(database,
                           "SELECT \"Nome\", \"Rw (dB)\", " + BandList(walls) + " FROM Rw_laboratorio");
    while (read.executeStep()) {
      if (read.getColumn(2).isNull()) continue;
      acoustics::Spectrum reduction_index{};
      for (size_t i = 0; i < reduction_index.size(); ++i) {
        reduction_index[i] = read.getColumn(static_cast<int>(i) + 2).getDouble();
      }
      EXPECT_EQ(acoustics::FindShift(reduction_index) - 4, read.getColumn(1).getInt())
          << read.getColumn(0).getString();
      ++rated;
    }
  }
  EXPECT_EQ(rated, 9);
}

}  // namespace
}  // namespace velmar
