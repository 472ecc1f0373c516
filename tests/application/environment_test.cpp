#include "application/environment.h"

#include <SQLiteCpp/Database.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "storage/configuration/first_start.h"
#include "storage/materials/material_store.h"
#include "storage/messages/message_table_reader.h"
#include "tests/application/start_fixture.h"
#include "tests/storage/support/databases.h"

namespace velmar::application {
namespace {

namespace fs = std::filesystem;
using Said = std::vector<std::string>;
using storage::WriteFile;

constexpr const char* kNoFolder = "/proc/none/VELMARpro";

class EnvironmentTest : public StartTest {
 protected:
  Environment Find() const { return FindEnvironment(places_.data_folder); }
  fs::path Catalogue() const { return FileOf(storage::kMessageDatabase); }
};

TEST_F(EnvironmentTest, AFirstStartCopiesTheShippedData) {
  Environment environment = Find();
  RecordedTalk recorded;
  OpenCatalogue(environment, recorded.talk);
  const OpenedStores opened = OpenStores(environment, recorded.talk);
  EXPECT_TRUE(opened.materials);
  EXPECT_TRUE(opened.results);
  EXPECT_EQ(recorded.said, Said());
  EXPECT_TRUE(environment.warnings.empty());
  EXPECT_EQ(environment.messages.Text(kExitMenuRow), "Esci");
  EXPECT_GE(storage::MaterialStore(environment.configuration.PercorsoDatabase())
                .List(elements::MaterialFamily::kStructural)
                .size(),
            120U);
}

TEST_F(EnvironmentTest, WhereNoDataFolderCanBeMadeTheShippedDataServe) {
  Environment environment = FindEnvironment(fs::path(kNoFolder));
  EXPECT_EQ(environment.warnings.size(), 1U);
  RecordedTalk recorded;
  OpenCatalogue(environment, recorded.talk);
  EXPECT_EQ(environment.messages.Text(kExitMenuRow), "Esci");
  EXPECT_TRUE(OpenStores(environment, recorded.talk).materials);
}

TEST_F(EnvironmentTest, AMistypedFolderIsNotMade) {
  const fs::path mistyped = folder_ / "dtaa";
  try {
    OpenEnvironmentForReading(mistyped);
    FAIL();
  } catch (const Failure& failure) {
    EXPECT_EQ(RowsOf(failure.UserMessage()), "0+0+0+0") << "no catalogue is there to take rows from";
    EXPECT_NE(failure.UserMessage()[0], failure.UserMessage()[2]) << "in two languages";
  }
  EXPECT_FALSE(fs::exists(mistyped));
  const Environment mending = OpenEnvironmentForMending(mistyped);
  EXPECT_EQ(mending.messages.Text(kExitMenuRow), "Esci");
  EXPECT_FALSE(fs::exists(mistyped));
}

TEST_F(EnvironmentTest, AMissingOrDamagedCatalogueIsReplacedAndTold) {
  Environment environment = Find();
  RecordedTalk recorded;
  fs::remove(Catalogue());
  OpenCatalogue(environment, recorded.talk);
  WriteFile(Catalogue(), "damaged");
  OpenCatalogue(environment, recorded.talk);
  EXPECT_EQ(recorded.said, Said({"warn 1152+1151", "warn 1115+1151"}));
  EXPECT_EQ(environment.messages.Text(kExitMenuRow), "Esci");
}

/// A catalogue with one language and one text.
void MakeCatalogue(const fs::path& file, const std::string& language, const std::string& text) {
  fs::remove(file);
  storage::Execute(file,
                   {"CREATE TABLE DRAV (" + language + " TEXT)", "INSERT INTO DRAV VALUES ('" + text + "')"});
}

TEST_F(EnvironmentTest, ACatalogueWithoutTheLanguageEndsTheStartInWordsOfItsOwn) {
  Environment environment = Find();
  MakeCatalogue(Catalogue(), "Deutsch", "Datei");
  RecordedTalk recorded;
  try {
    OpenCatalogue(environment, recorded.talk);
    FAIL();
  } catch (const storage::CatalogueFailure& failure) {
    EXPECT_EQ(RowsOf(failure.UserMessage()), "0+0");
  }
  EXPECT_THROW(OpenEnvironmentForReading(places_.data_folder), storage::CatalogueFailure);
}

TEST_F(EnvironmentTest, AProgramThatMendsNothingChangesNothing) {
  Find();
  WriteFile(Catalogue(), "damaged");
  EXPECT_THROW(OpenEnvironmentForReading(places_.data_folder), Failure);
  EXPECT_EQ(storage::ReadFile(Catalogue()), "damaged");
  fs::remove(Catalogue());
  EXPECT_THROW(OpenEnvironmentForReading(places_.data_folder), Failure);
  EXPECT_FALSE(fs::exists(Catalogue()));
}

TEST_F(EnvironmentTest, AnAccessCatalogueLeavesTheShippedTextsToAProgramThatMendsNothing) {
  Find();
  const std::string head("\0\1\0\0Standard Jet DB\0\1", 21);
  WriteFile(Catalogue(), head);
  const Environment environment = OpenEnvironmentForReading(places_.data_folder);
  ASSERT_EQ(environment.warnings.size(), 1U);
  EXPECT_EQ(RowsOf(environment.warnings[0]), "1119+1149");
  EXPECT_EQ(environment.messages.Text(kExitMenuRow), "Esci");
  EXPECT_EQ(storage::ReadFile(Catalogue()), head);
}

TEST_F(EnvironmentTest, DatabasesThatCanOnlyBeReadAreTold) {
  const Environment environment = Find();
  for (const char* name : {storage::kMaterialDatabase, storage::kResultDatabase})
    fs::permissions(FileOf(name), fs::perms::owner_read);
  RecordedTalk recorded;
  EXPECT_TRUE(OpenStores(environment, recorded.talk).materials);
  EXPECT_EQ(recorded.said, Said({"tell 1159+0+0"}));
}

/// Null characters and line breaks in the texts: the shipped words serve.
TEST_F(EnvironmentTest, BrokenTextsAreHelpedOutByTheShippedOnes) {
  Environment environment = Find();
  WriteFile(Catalogue(), storage::ReadFile(fs::path(DAMAGED_DATABASES) / "line-break-in-texts-messages.mdb"));
  RecordedTalk recorded;
  OpenCatalogue(environment, recorded.talk);
  EXPECT_EQ(environment.messages.Text(kExitMenuRow), "Esci");
  EXPECT_EQ(environment.messages.Text(MessageRow{1231}), "Opzioni");
}

}  // namespace
}  // namespace velmar::application
