#include "cli/commands/materials_command.h"

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "tests/cli/spoken_command.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::cli {
namespace {

using storage::ReadFile;
using storage::TemporaryFolder;
using storage::WriteFile;

/// The command line on a copy of the shipped material database.
class MaterialsCommandTest : public testing::Test {
 protected:
  MaterialsCommandTest() {
    std::filesystem::copy_file(SHIPPED "/Databases/Database/Database.mdb", folder_ / "Database.mdb");
  }

  Said Say(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "materials");
    Services services = BareServices();
    services.material_database = folder_ / "Database.mdb";
    return Speak(arguments, services);
  }

  Said AddBrick(const std::string& name) {
    return Say({"add", "--family", "structural", "Materiale=" + name, "s (mm)=120", "Densità (kg/m³)=800,5",
                "m' (kg/m²)=96", "Modulo di Young E (GPa)=4", "Fattore di perdita interna=0.01",
                "Lambda (W/m K)=0,3"});
  }

  TemporaryFolder folder_;
};

TEST_F(MaterialsCommandTest, ListsAllThreeTablesOrOne) {
  const auto all = Say({"list", "--json"}).Json();
  const auto structural = Say({"list", "--json", "--family", "structural"}).Json();
  EXPECT_GE(structural.size(), 120U);
  EXPECT_GT(all.size(), structural.size() + 70);
  for (const auto& material : structural) EXPECT_EQ(material["family"], "structural");
}

TEST_F(MaterialsCommandTest, ListsWhatAKeywordFilterShows) {
  const auto glass = Say({"list", "--json", "--family", "structural", "--keyword", "vetrate"}).Json();
  EXPECT_GE(glass.size(), 4U);
  EXPECT_LT(glass.size(), 20U);
}

TEST_F(MaterialsCommandTest, ShowsAMaterialWithItsNulls) {
  const auto brick = Say({"show", "mattone PIENO", "--json"}).Json();
  EXPECT_EQ(brick["Materiale"], "Mattone pieno");
  EXPECT_EQ(brick["Densità (kg/m³)"], 1800);
  EXPECT_TRUE(brick["R (m² K/W)"].is_null());
  EXPECT_NE(brick["Fonte"], "");
  EXPECT_EQ(Say({"show", "Adamantio"}).code, 3);
}

TEST_F(MaterialsCommandTest, ImpossibleValuesAreRefusedWithTheField) {
  const Said said = Say({"edit", "Mattone pieno", "--family", "structural", "Densità (kg/m³)=-1800"});
  EXPECT_EQ(said.code, 3);
  EXPECT_NE(said.errors.find("row 2500"), std::string::npos) << said.errors;
  EXPECT_NE(said.errors.find("row 350: -1800"), std::string::npos) << said.errors;
  EXPECT_EQ(
      Say({"edit", "Mattone pieno", "--family", "structural", "--force", "Rapporto di Poisson=0,6"}).code, 3)
      << "no force makes it possible";
  EXPECT_EQ(Say({"show", "Mattone pieno", "--json"}).Json()["Densità (kg/m³)"], 1800);
}

TEST_F(MaterialsCommandTest, ImprobableValuesNeedForce) {
  const std::vector<std::string> edit = {"edit", "Mattone pieno", "--family", "structural",
                                         "Modulo di Young E (GPa)=12600"};
  const Said said = Say(edit);
  EXPECT_EQ(said.code, 3);
  EXPECT_NE(said.errors.find("row 2501"), std::string::npos) << said.errors;
  EXPECT_NE(said.errors.find("row 2503"), std::string::npos) << said.errors;
  EXPECT_EQ(Say({"show", "Mattone pieno", "--json"}).Json()["Modulo di Young E (GPa)"], 12.6);
  std::vector<std::string> forced = edit;
  forced.push_back("--force");
  EXPECT_EQ(Say(forced).code, 0);
  EXPECT_EQ(Say({"show", "Mattone pieno", "--json"}).Json()["Modulo di Young E (GPa)"], 12600);
}

TEST_F(MaterialsCommandTest, MassFrequencyAndSourceFollowAnEdit) {
  EXPECT_EQ(Say({"edit", "Mattone pieno", "--family", "structural", "s (mm)=240"}).code, 0);
  auto brick = Say({"show", "Mattone pieno", "--json"}).Json();
  EXPECT_EQ(brick["m' (kg/m²)"], 432);
  EXPECT_EQ(brick["Frequenza di coincidenza fc (Hz)"], 104.75);
  EXPECT_EQ(brick["Fonte"], "valore utente");
  const std::string source = Say({"show", "Piombo", "--json"}).Json()["Fonte"];
  EXPECT_EQ(Say({"edit", "Piombo", "--family", "structural", "Parola chiave=fuori elenco"}).code, 0);
  EXPECT_EQ(Say({"show", "Piombo", "--json"}).Json()["Fonte"], source) << "no number changed";
  EXPECT_EQ(Say({"edit", "Piombo", "--family", "structural", "Densità (kg/m³)=11300", "Fonte=scheda"}).code,
            0);
  EXPECT_EQ(Say({"show", "Piombo", "--json"}).Json()["Fonte"], "scheda");
}

TEST_F(MaterialsCommandTest, APictureSurvivesAnEdit) {
  const char* mat = "EPS 50 mm";
  EXPECT_EQ(Say({"edit", mat, "--family", "resilient", "Immagine=eps.jpg"}).code, 0);
  EXPECT_EQ(Say({"edit", mat, "--family", "resilient", "Densità (kg/m³)=15"}).code, 0);
  EXPECT_EQ(Say({"show", mat, "--json"}).Json()["Immagine"], "eps.jpg");
}

TEST_F(MaterialsCommandTest, AddsChangesAndDeletes) {
  EXPECT_EQ(AddBrick("Laterizio \"di prova\"").code, 0);
  auto brick = Say({"show", "Laterizio \"di prova\"", "--json"}).Json();
  EXPECT_EQ(brick["Densità (kg/m³)"], 800.5);
  EXPECT_EQ(brick["Lambda (W/m K)"], 0.3);
  EXPECT_EQ(Say({"edit", "Laterizio \"di prova\"", "--family", "structural", "s (mm)=80"}).code, 0);
  brick = Say({"show", "Laterizio \"di prova\"", "--json"}).Json();
  EXPECT_EQ(brick["s (mm)"], 80);
  EXPECT_EQ(brick["Lambda (W/m K)"], 0.3);
  EXPECT_EQ(Say({"delete", "Laterizio \"di prova\"", "--family", "structural"}).code, 0);
  EXPECT_EQ(Say({"show", "Laterizio \"di prova\""}).code, 3);
}

/// As in the editor: one of thickness, density and surface mass may be left out.
TEST_F(MaterialsCommandTest, CompletesTheThirdOfThicknessDensityAndMass) {
  const std::vector<std::string> rest = {"Modulo di Young E (GPa)=4", "Fattore di perdita interna=0.01"};
  const auto added = [&](const std::string& name, const std::string& one, const std::string& other) {
    EXPECT_EQ(Say({"add", "--family", "structural", "Materiale=" + name, one, other, rest[0], rest[1]}).code,
              0);
    return Say({"show", name, "--json"}).Json();
  };
  EXPECT_EQ(added("Senza massa", "s (mm)=120", "Densità (kg/m³)=800,5")["m' (kg/m²)"], 96.06);
  EXPECT_EQ(added("Senza densità", "s (mm)=120", "m' (kg/m²)=96")["Densità (kg/m³)"], 800);
  EXPECT_EQ(added("Senza spessore", "Densità (kg/m³)=800", "m' (kg/m²)=96")["s (mm)"], 120);
  EXPECT_EQ(
      Say({"add", "--family", "structural", "Materiale=Sola massa", "m' (kg/m²)=96", rest[0], rest[1]}).code,
      3);
}

TEST_F(MaterialsCommandTest, RefusesANameThatDiffersInCaseAlone) {
  ASSERT_EQ(AddBrick("Caffè").code, 0);
  const Said refused = AddBrick("CAFFÈ");
  EXPECT_EQ(refused.code, 3);
  EXPECT_NE(refused.errors.find("row 354"), std::string::npos);
}

TEST_F(MaterialsCommandTest, RefusesWhatIsMissingUnknownOrNoNumber) {
  EXPECT_NE(Say({"add", "--family", "structural", "Materiale=Nudo"}).errors.find("row 348"),
            std::string::npos);
  EXPECT_EQ(Say({"add", "--family", "structural", "Colore=rosso"}).errors, "row 1240 Colore\n");
  EXPECT_EQ(Say({"edit", "Mattone pieno", "--family", "structural", "s (mm)=dodici"}).errors,
            "row 1241 s (mm): \"dodici\"\n");
  EXPECT_EQ(Say({"delete", "Mattone pieno"}).code, 2);
  EXPECT_EQ(Say({"show", "Mattone pieno", "--json"}).Json()["s (mm)"], 120);
}

TEST_F(MaterialsCommandTest, ImportsAllRowsOfAFileOrNone) {
  const std::string heading =
      "Materiale,s (mm),Densità (kg/m³),m' (kg/m²),Modulo di Young E (GPa),"
      "Fattore di perdita interna\n";
  WriteFile(folder_ / "two.csv", heading + "Uno,100,1000,100,5,0.01\nMattone pieno,100,1000,100,5,0.01\n");
  EXPECT_EQ(Say({"import", "--family", "structural", (folder_ / "two.csv").string()}).code, 3);
  EXPECT_EQ(Say({"show", "Uno"}).code, 3);
  WriteFile(folder_ / "good.csv", heading + "Uno,100,1000,100,5,0.01\nDue,100,1000,100,5,0.01\n");
  EXPECT_EQ(Say({"import", "--family", "structural", (folder_ / "good.csv").string()}).code, 0);
  EXPECT_EQ(Say({"show", "Due"}).code, 0);
}

TEST_F(MaterialsCommandTest, ExportsWhatImportTakes) {
  const std::string csv = (folder_ / "resilient.csv").string();
  EXPECT_EQ(Say({"export", "--family", "resilient", csv}).code, 0);
  const auto before = Say({"list", "--json", "--family", "resilient"}).Json();
  for (const auto& material : before) {
    Say({"delete", material["name"].get<std::string>(), "--family", "resilient"});
  }
  EXPECT_TRUE(Say({"list", "--json", "--family", "resilient"}).Json().empty());
  EXPECT_EQ(Say({"import", "--family", "resilient", csv}).code, 0);
  EXPECT_EQ(Say({"list", "--json", "--family", "resilient"}).Json(), before);
  EXPECT_EQ(Say({"export", "--family", "resilient"}).out, ReadFile(csv));
}

TEST_F(MaterialsCommandTest, SaysSoWhenTheDatabaseIsNone) {
  WriteFile(folder_ / "Database.mdb", "no database at all, but long enough to look at");
  const Said said = Say({"list"});
  EXPECT_EQ(said.code, 1);
  EXPECT_NE(said.errors, "");
}

}  // namespace
}  // namespace velmar::cli
