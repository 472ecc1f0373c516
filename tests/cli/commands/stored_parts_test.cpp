#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "storage/library/library_store.h"
#include "storage/tables/schema.h"
#include "tests/cli/spoken_command.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::cli {
namespace {

/// The command line on a copy of the shipped results database and the shipped library.
class StoredPartsTest : public testing::Test {
 protected:
  StoredPartsTest() {
    std::filesystem::copy_file(SHIPPED "/Databases/Database/Database_teorico.mdb", folder_ / "results.mdb");
  }

  Said Say(const std::vector<std::string>& arguments) {
    Services services = BareServices();
    services.result_database = folder_ / "results.mdb";
    services.library_folder = library_;
    return Speak(arguments, services);
  }

  storage::TemporaryFolder folder_;
  std::filesystem::path library_ = SHIPPED "/Databases/Database";
};

TEST_F(StoredPartsTest, AResultIsStoredOnceUnderAName) {
  const std::string project = Example("doppia-forati-lana");
  EXPECT_EQ(Say({"results", "save", project, "Doppia forati"}).code, 0);
  const auto stored = Say({"results", "show", "Doppia forati", "--json"}).Json();
  const auto run = Say({"run", project, "--json"}).Json();
  EXPECT_EQ(stored["Rw (dB)"], run["Rw"]);
  EXPECT_EQ(stored["R - 500Hz (dB)"], run["spectrum"][10]);
  EXPECT_EQ(stored["m' (kg/m²)"], run["surface_mass"]);
  const Said again = Say({"results", "save", project, "DOPPIA FORATI"});
  EXPECT_EQ(again.code, 3);
  EXPECT_EQ(again.errors, "row 224\n");
  EXPECT_EQ(Say({"results", "list", "--json"}).Json().size(), 1U);
}

TEST_F(StoredPartsTest, ADeclinedRunStoresNothing) {
  EXPECT_EQ(Say({"results", "save", Example("parete-fuori-campo"), "Pieni"}).code, 3);
  EXPECT_TRUE(Say({"results", "list", "--json"}).Json().empty());
  EXPECT_EQ(Say({"results", "save", Example("parete-fuori-campo"), "Pieni", "--answer", "yes"}).code, 0);
}

/// The message of a range that was left belongs to the result.
TEST_F(StoredPartsTest, WhatARunToldIsStoredWithItsResult) {
  ASSERT_EQ(Say({"results", "save", Example("doppia-forati-lana"), "Muro"}).code, 0);
  EXPECT_TRUE(Say({"results", "show", "Muro", "--json"}).Json()["Messaggi"].is_null());
  ASSERT_EQ(Say({"results", "save", Example("parete-fuori-campo"), "Pieni", "--answer", "yes"}).code, 0);
  EXPECT_EQ(Say({"results", "show", "Pieni", "--json"}).Json()["Messaggi"],
            "row 3314 [1]: row 3300 = 504 kg/m² (row 3309 80 row 3310 400). row 3315");
  EXPECT_TRUE(Say({"results", "show", "Muro", "--json"}).Json()["Messaggi"].is_null());
}

TEST_F(StoredPartsTest, AFacadeTakesItsPartsByName) {
  ASSERT_EQ(Say({"results", "save", Example("doppia-forati-lana"), "Muro"}).code, 0);
  ASSERT_EQ(Say({"results", "save", Example("vetrocamera-stratificata"), "Vetro"}).code, 0);
  const std::string out = (folder_ / "facade.drav").string();
  ASSERT_EQ(
      Say({"facade", Example("facciata"), out, "--opaque", "results:Muro", "--component", "1=results:vetro"})
          .code,
      0);
  const std::string bytes = storage::ReadFile(out);
  EXPECT_NE(bytes.find("Muro"), std::string::npos);
  EXPECT_NE(bytes.find("Vetro"), std::string::npos);
  const auto before = Say({"run", Example("facciata"), "--json"}).Json();
  const auto after = Say({"run", out, "--json"}).Json();
  EXPECT_EQ(after["status"], "ok");
  EXPECT_NE(after["spectrum"], before["spectrum"]);
}

TEST_F(StoredPartsTest, AFacadeRefusesWhatIsNotThereAndSavesNothing) {
  const std::string out = (folder_ / "facade.drav").string();
  for (const char* where : {"1=results:Niente", "1=library:Rw/Nessuna serie/x", "10=results:Muro", "Muro"}) {
    EXPECT_EQ(Say({"facade", Example("facciata"), out, "--component", where}).code, 3) << where;
  }
  EXPECT_EQ(Say({"facade", Example("vetro-6"), out, "--opaque", "results:Muro"}).errors, "row 1281\n");
  EXPECT_FALSE(std::filesystem::exists(out));
}

/// Levels and improvements are no sound reduction indices, and a small element has no area to be the wall.
TEST_F(StoredPartsTest, AFacadeRefusesMeasurementsOfAnotherKind) {
  const std::string out = (folder_ / "facade.drav").string();
  library_ = folder_ / "Database";
  const auto make = [this](const char* kind) {
    const storage::LibraryFolder folder = *storage::FindLibraryFolder(kind);
    std::filesystem::create_directories(library_ / folder.folder);
    storage::MakeTables(library_ / folder.folder / "serie.mdb", {folder.table});
    storage::Execute(library_ / folder.folder / "serie.mdb",
                     {"INSERT INTO " + storage::QuotedName(folder.table.name) + " (Nome, " +
                      storage::QuotedName(folder.rating) + ") VALUES ('prova', 42)"});
    return std::string("library:") + kind + "/serie/prova";
  };
  for (const char* kind : {"Lnw", "DLw", "DRw"}) {
    const std::string where = std::string("library:") + kind + "/serie/prova";
    EXPECT_EQ(Say({"facade", Example("facciata"), out, "--opaque", where}).errors,
              "row 1222 " + where + "\n");
    EXPECT_EQ(Say({"facade", Example("facciata"), out, "--component", "1=" + where}).code, 3) << kind;
  }
  const std::string small = make("Piccoli elementi");
  const Said opaque = Say({"facade", Example("facciata"), out, "--opaque", small});
  EXPECT_EQ(opaque.code, 3);
  EXPECT_EQ(opaque.errors, "row 1222 " + small + "\n");
  EXPECT_FALSE(std::filesystem::exists(out));
  EXPECT_EQ(Say({"facade", Example("facciata"), out, "--component", "1=" + small}).code, 0);
  EXPECT_EQ(Say({"facade", Example("facciata"), out, "--opaque", make("Rw")}).code, 0);
}

}  // namespace
}  // namespace velmar::cli
