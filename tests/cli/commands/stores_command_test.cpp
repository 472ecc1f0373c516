#include <filesystem>

#include <gtest/gtest.h>

#include "storage/library/library_store.h"
#include "storage/results/results_store.h"
#include "tests/cli/spoken_command.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::cli {
namespace {

/// The command line on the shipped library and a copy of the shipped results database.
class StoresCommandTest : public testing::Test {
 protected:
  StoresCommandTest() {
    std::filesystem::copy_file(SHIPPED "/Databases/Database/Database_teorico.mdb", results_);
    storage::SavedResult wall;
    wall.name = "Parete \"x\"";
    wall.description = "PARETE 1";
    wall.rating = 43.25;
    storage::ResultsStore(results_).Save(storage::ResultTable::kAirborne, wall);
  }

  Said Say(const std::vector<std::string>& arguments) {
    Services services = BareServices();
    services.result_database = results_;
    services.library_folder = library_;
    return Speak(arguments, services);
  }

  storage::TemporaryFolder folder_;
  std::filesystem::path library_ = SHIPPED "/Databases/Database";
  std::filesystem::path results_ = folder_ / "Database_teorico.mdb";
};

TEST_F(StoresCommandTest, ListsAndShowsResults) {
  EXPECT_EQ(Say({"results", "list"}).out, "airborne\tParete \"x\"\tPARETE 1\n");
  EXPECT_EQ(Say({"results", "list", "--json"}).Json()[0]["name"], "Parete \"x\"");
  EXPECT_EQ(Say({"results", "list", "--table", "impact"}).out, "");
  const nlohmann::json shown = Say({"results", "show", "PARETE \"X\"", "--json"}).Json();
  EXPECT_EQ(shown["Rw (dB)"], 43.25);
  EXPECT_TRUE(shown["R - 50Hz (dB)"].is_null());
  EXPECT_EQ(shown["table"], "airborne");
  EXPECT_EQ(Say({"results", "show", "altro"}).code, 3);
}

TEST_F(StoresCommandTest, DeletesAResultThatIsNamedExactly) {
  EXPECT_EQ(Say({"results", "delete", "Parete \"x\""}).code, 2) << "the table is to be said";
  const Said wrong_case = Say({"results", "delete", "--table", "airborne", "parete \"x\""});
  EXPECT_EQ(wrong_case.code, 3);
  EXPECT_NE(wrong_case.errors.find("row 1276"), std::string::npos);
  EXPECT_EQ(Say({"results", "delete", "--table", "airborne", "Parete \"x\""}).code, 0);
  EXPECT_EQ(Say({"results", "list"}).out, "");
}

TEST_F(StoresCommandTest, ADamagedDatabaseIsTold) {
  storage::WriteFile(results_, "no database");
  const Said said = Say({"results", "list"});
  EXPECT_EQ(said.code, 1);
  EXPECT_NE(said.errors.find("row 1104"), std::string::npos);
  EXPECT_EQ(storage::ReadFile(results_), "no database");
}

TEST_F(StoresCommandTest, EveryTestOfTheShippedLibraryIsShown) {
  std::size_t tests = 0;
  for (const auto& series : Say({"library", "list", "--json"}).Json()) {
    const std::string kind = series["kind"];
    const std::string name = series["series"];
    const nlohmann::json listed = Say({"library", "list", kind, name, "--json"}).Json();
    EXPECT_FALSE(listed.empty()) << name;
    for (const auto& test : listed) {
      const nlohmann::json shown = Say({"library", "show", kind, name, test["name"], "--json"}).Json();
      EXPECT_EQ(shown["name"], test["name"]);
      EXPECT_EQ(shown["bands"].size(), 21U);
      ++tests;
    }
  }
  EXPECT_GT(tests, 0U);
  EXPECT_EQ(Say({"library", "list", "Rx"}).code, 3);
  EXPECT_EQ(Say({"library", "list", "Rw", "none"}).code, 3);
}

TEST_F(StoresCommandTest, ATestInABuildingIsShownWithItsFieldData) {
  library_ = folder_ / "Database";
  std::filesystem::create_directories(library_);
  const storage::LibraryFolder walls = *storage::FindLibraryFolder("R'w");
  storage::MakeTables(library_ / "Database_sperimentale.mdb", {walls.table});
  storage::Execute(library_ / "Database_sperimentale.mdb",
                   {"INSERT INTO Rw_in_opera (Nome, [Rw (dB)], [C (dB)], [Ve (m³)], [Vr (m³)], [s (mm)], "
                    "Cantiere, Immagine) VALUES ('Divisorio', 51, -1.5, 31.5, 28, 300, 'Cantiere \"Po\"', "
                    "'senza')"});
  const Said shown = Say({"library", "show", "R'w", "Database_sperimentale", "divisorio"});
  EXPECT_EQ(shown.out,
            "Nome: Divisorio\nRw (dB): 51\nC (dB): -1,5\nVe (m³): 31,5\nVr (m³): 28\ns (mm): 300\n"
            "Cantiere: Cantiere \"Po\"\nImmagine: senza\n");
  const nlohmann::json json =
      Say({"library", "show", "R'w", "Database_sperimentale", "Divisorio", "--json"}).Json();
  EXPECT_EQ(json["source_volume"], 31.5);
  EXPECT_EQ(json["receiving_volume"], 28);
  EXPECT_EQ(json["thickness"], 300);
  EXPECT_EQ(json["site"], "Cantiere \"Po\"");
  EXPECT_TRUE(json["area"].is_null());
}

TEST_F(StoresCommandTest, ImportRefusesWhatIsNoAccessFile) {
  const Said own = Say({"import", results_.string(), "--yes"});
  EXPECT_EQ(own.code, 3);
  EXPECT_NE(own.errors.find("row 1278"), std::string::npos);
  EXPECT_EQ(Say({"import", (folder_ / "none.mdb").string()}).code, 1);
}

TEST_F(StoresCommandTest, ImportAsksBeforeItConverts) {
  const std::string head = std::string("\0\1\0\0Standard Jet DB\0\1", 21) + std::string(4000, '\0');
  storage::WriteFile(folder_ / "a.mdb", head);
  const Said asked = Say({"import", (folder_ / "a.mdb").string()});
  EXPECT_EQ(asked.code, 3);
  EXPECT_NE(asked.errors.find("row 1110"), std::string::npos);
  EXPECT_EQ(Say({"import", (folder_ / "a.mdb").string(), "--yes"}).code, 1) << "no reader is given here";
  EXPECT_EQ(storage::ReadFile(folder_ / "a.mdb"), head);
}

}  // namespace
}  // namespace velmar::cli
