#include "storage/library/own_measurements.h"

#include <gtest/gtest.h>

#include "foundation/message_rows.h"
#include "storage/database/database_failure.h"
#include "storage/library/library_store.h"
#include "storage/library/own_pictures.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/ordinary_user.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

class OwnMeasurementsTest : public testing::Test {
 protected:
  static MeasuredTest Named(const std::string& name) {
    MeasuredTest test;
    test.name = name;
    test.rating = 50;
    test.picture = "senza";
    return test;
  }
  std::optional<Message> Add(const MeasuredTest& test) { return own_.Add(walls_, {&test, 1}); }

  const LibraryFolder walls_ = *FindLibraryFolder("Rw");
  TemporaryFolder folder_;
  OwnMeasurements own_{folder_.Path()};
};

TEST_F(OwnMeasurementsTest, TheFirstOneMakesTheFileThatTheLibraryLists) {
  EXPECT_TRUE(own_.All(walls_).empty());
  EXPECT_FALSE(fs::exists(own_.FileOf(walls_)));
  MeasuredTest test = Named("Forati 8");
  test.description = "con intonaco";
  test.bands[3] = 33.5;
  test.octaves[2] = 36;
  test.area_m2 = 10.5;
  test.certificate = "12/2019";
  test.source = "certificato";
  EXPECT_FALSE(Add(test));
  EXPECT_EQ(own_.All(walls_), std::vector<MeasuredTest>{test});
  AccessSession session({""});
  const LibraryStore library(folder_.Path(), session);
  ASSERT_EQ(library.Files(walls_).size(), 1U);
  EXPECT_EQ(library.Files(walls_)[0].name, "Misure proprie");
  EXPECT_EQ(library.Find(walls_, library.Files(walls_)[0].path, "forati 8"), test);
}

TEST_F(OwnMeasurementsTest, EveryKindHasItsColumns) {
  for (const LibraryFolder& folder : LibraryFolders()) {
    MeasuredTest test = Named("Prova");
    test.adaptation = -1;
    test.bands.fill(40);
    test.octaves.fill(41);
    test.uncertainty_db = 1.2;
    if (folder.field) test.field = {250, 50, 48, "Cantiere"};
    EXPECT_FALSE(own_.Add(folder, {&test, 1})) << folder.key;
    EXPECT_EQ(own_.All(folder), std::vector<MeasuredTest>{test}) << folder.key;
  }
}

TEST_F(OwnMeasurementsTest, ANameIsTakenOnceAndAllAreAddedOrNone) {
  EXPECT_FALSE(Add(Named("Prova")));
  EXPECT_EQ(LeadingRow(Add(Named("PROVA"))->front()), kMeasurementExistsRow);
  EXPECT_EQ(LeadingRow(Add(Named(" "))->front()), kMeasurementWithoutNameRow);
  EXPECT_EQ(LeadingRow(Add(Named("a\nb"))->front()), kBadResultNameRow);
  const std::vector<MeasuredTest> some = {Named("una"), Named("due"), Named("Una")};
  EXPECT_EQ(LeadingRow(own_.Add(walls_, some)->front()), kMeasurementExistsRow);
  EXPECT_EQ(own_.All(walls_).size(), 1U);
}

TEST_F(OwnMeasurementsTest, AChangeKeepsItsPlaceAndRefusesTheNameOfAnother) {
  for (const char* name : {"a", "b", "c"}) EXPECT_FALSE(Add(Named(name)));
  MeasuredTest changed = Named("B nuova");
  changed.rating = 51;
  EXPECT_FALSE(own_.Change(walls_, "b", changed));
  EXPECT_EQ(own_.All(walls_)[1], changed);
  EXPECT_EQ(LeadingRow(own_.Change(walls_, "a", Named("C"))->front()), kMeasurementExistsRow);
  EXPECT_EQ(LeadingRow(own_.Change(walls_, "b", Named("b"))->front()), kMeasurementGoneRow);
  EXPECT_FALSE(own_.Change(walls_, "a", Named("A"))) << "its own name in another case";
}

TEST_F(OwnMeasurementsTest, ADeletedOneCanBeAddedAgain) {
  MeasuredTest test = Named("Prova");
  test.bands[5] = 38.7;
  EXPECT_FALSE(Add(test));
  EXPECT_EQ(own_.Delete(walls_, "prova"), std::nullopt);
  const auto deleted = own_.Delete(walls_, "Prova");
  EXPECT_EQ(deleted, test);
  EXPECT_TRUE(own_.All(walls_).empty());
  EXPECT_FALSE(Add(*deleted));
  EXPECT_EQ(own_.All(walls_), std::vector<MeasuredTest>{test});
}

TEST_F(OwnMeasurementsTest, AFileOfAnEarlierVersionGainsTheColumnsItLacks) {
  fs::create_directories(own_.FileOf(walls_).parent_path());
  Execute(own_.FileOf(walls_), {"CREATE TABLE Rw_laboratorio (Nome TEXT, [Rw (dB)] REAL)",
                                "INSERT INTO Rw_laboratorio VALUES ('vecchia', 47)"});
  MeasuredTest test = Named("nuova");
  test.source = "certificato";
  test.octaves[1] = 35;
  EXPECT_FALSE(Add(test));
  EXPECT_EQ(own_.All(walls_)[0].rating, 47.0);
  EXPECT_EQ(own_.All(walls_)[1], test);
}

TEST_F(OwnMeasurementsTest, WhatCannotBeStoredIsTold) {
  EXPECT_FALSE(Add(Named("Prova")));
  const std::string bytes = ReadFile(own_.FileOf(walls_));
  fs::permissions(own_.FileOf(walls_), fs::perms::owner_read);
  {
    const OrdinaryUser user;
    EXPECT_THROW(Add(Named("altra")), DatabaseFailure);
    EXPECT_THROW(own_.Delete(walls_, "Prova"), DatabaseFailure);
  }
  EXPECT_TRUE(ReadFile(own_.FileOf(walls_)) == bytes);
}

TEST_F(OwnMeasurementsTest, PicturesAreKeptBesideTheLibrarysOwn) {
  const fs::path pictures = folder_ / "immagine";
  WriteFile(folder_ / "parete.jpg", "uno");
  EXPECT_EQ(KeepPicture(pictures, "Rw", folder_ / "parete.jpg"), "parete.jpg");
  EXPECT_EQ(KeepPicture(pictures, "Rw", folder_ / "parete.jpg"), "parete.jpg") << "the same picture";
  WriteFile(folder_ / "parete.jpg", "due");
  EXPECT_EQ(KeepPicture(pictures, "Rw", folder_ / "parete.jpg"), "parete-2.jpg");
  EXPECT_EQ(ReadFile(pictures / "Rw" / "parete.jpg"), "uno");
  EXPECT_EQ(ReadFile(pictures / "Rw" / "parete-2.jpg"), "due");
  EXPECT_EQ(KeepPicture(pictures, "Rw", pictures / "Rw" / "parete-2.jpg"), "parete-2.jpg");
  EXPECT_THROW(KeepPicture(pictures, "Rw", folder_ / "manca.jpg"), Failure);
}

}  // namespace
}  // namespace velmar::storage
