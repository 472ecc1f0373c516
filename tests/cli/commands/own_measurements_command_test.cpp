#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "storage/library/library_store.h"
#include "storage/library/own_measurements.h"
#include "tests/cli/spoken_command.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::cli {
namespace {

using testing::HasSubstr;

class OwnMeasurementsCommandTest : public testing::Test {
 protected:
  Said Say(const std::vector<std::string>& arguments) {
    Services services = BareServices();
    services.library_folder = folder_.Path();
    return Speak(arguments, services);
  }
  std::string File(const std::string& name, const std::string& bytes) {
    storage::WriteFile(folder_ / name, bytes);
    return (folder_ / name).string();
  }
  storage::MeasuredTest Stored(const std::string& name) {
    for (const storage::MeasuredTest& test : own_.All(walls_)) {
      if (test.name == name) return test;
    }
    ADD_FAILURE() << name;
    return {};
  }

  /// R of the example in ISO 717-1, annex C: Rw (C; Ctr) = 30 (-2; -3) dB.
  static constexpr const char* kExample =
      "Hz;R [dB]\n100;20,4\n125;16,3\n160;17,7\n200;22,6\n250;22,4\n315;22,7\n400;24,8\n500;26,6\n630;28,0\n"
      "800;30,5\n1000;31,8\n1250;32,5\n1600;33,4\n2000;33,0\n2500;31,0\n3150;25,5\n";

  const storage::LibraryFolder walls_ = *storage::FindLibraryFolder("Rw");
  storage::TemporaryFolder folder_;
  storage::OwnMeasurements own_{folder_.Path()};
};

TEST_F(OwnMeasurementsCommandTest, AnAnalysersTextBecomesAMeasurementWithItsRating) {
  const std::string file = File("a.txt", kExample);
  EXPECT_EQ(Say({"library", "import", "Rw", file}).code, 3) << "it has no name";
  EXPECT_EQ(Say({"library", "import", "Rw", file, "--name", "Esempio"}).code, 0);
  EXPECT_EQ(Stored("Esempio").rating, 30.0);
  EXPECT_EQ(Stored("Esempio").adaptation, -2.0);
  EXPECT_EQ(Stored("Esempio").other_adaptation, -3.0);
  EXPECT_THAT(Say({"library", "list", "Rw"}).out, HasSubstr("Misure proprie"));
  EXPECT_THAT(Say({"library", "show", "Rw", "Misure proprie", "Esempio"}).out,
              HasSubstr("R - 125Hz (dB): 16,3"));
}

TEST_F(OwnMeasurementsCommandTest, ADamagedTextIsRefusedLineByLineAndStoresNothing) {
  const Said said = Say(
      {"library", "import", "Rw", "--name", "x", File("a.txt", "Hz;dB\n100;3O\n125;31\n160;32\n333;33\n")});
  EXPECT_EQ(said.code, 3);
  EXPECT_THAT(said.errors, HasSubstr("2, «100 3O»"));
  EXPECT_THAT(said.errors, HasSubstr("5, «333 33»"));
  EXPECT_TRUE(own_.All(walls_).empty());
}

TEST_F(OwnMeasurementsCommandTest, AddTakesColumnsAndBandsAndTellsARatingThatDoesNotFollow) {
  const Said said = Say({"library", "add", "Rw", "Nome=Certificato 7", "Rw (dB)=32", "Area (m²)=10,5",
                         "Certificato=7/2019", "--bands", File("a.txt", kExample)});
  EXPECT_EQ(said.code, 0);
  EXPECT_THAT(said.errors, HasSubstr("Certificato 7: 32 / 30"));
  EXPECT_EQ(Stored("Certificato 7").rating, 32.0) << "as the certificate states it";
  EXPECT_EQ(Stored("Certificato 7").area_m2, 10.5);
  EXPECT_EQ(Say({"library", "add", "Rw", "Nome=Certificato 7", "Rw (dB)=32"}).code, 3) << "the name is taken";
  EXPECT_EQ(Say({"library", "add", "Rw", "Nome=x", "Rw (dB)=tanto"}).code, 3);
  EXPECT_EQ(Say({"library", "add", "Rx", "Nome=x", "Rw (dB)=50"}).code, 3);
  EXPECT_EQ(own_.All(walls_).size(), 1U);
}

TEST_F(OwnMeasurementsCommandTest, EditAndDeleteTouchOwnMeasurementsAlone) {
  std::filesystem::create_directories(folder_ / walls_.folder);
  storage::MakeTables(folder_ / walls_.folder / "Fornita.mdb", {walls_.table});
  storage::Execute(folder_ / walls_.folder / "Fornita.mdb",
                   {"INSERT INTO Rw_laboratorio (Nome, [Rw (dB)]) VALUES ('Fornita 1', 50)"});
  EXPECT_EQ(Say({"library", "add", "Rw", "Nome=Mia", "Rw (dB)=48"}).code, 0);
  EXPECT_EQ(Say({"library", "edit", "Rw", "Mia", "Rw (dB)=49", "Nome=Mia 2"}).code, 0);
  EXPECT_EQ(Stored("Mia 2").rating, 49.0);
  EXPECT_EQ(Say({"library", "edit", "Rw", "Fornita 1", "Rw (dB)=60"}).code, 3);
  EXPECT_EQ(Say({"library", "delete", "Rw", "Fornita 1"}).code, 3);
  EXPECT_EQ(Say({"library", "delete", "Rw", "mia 2"}).code, 3) << "named exactly";
  EXPECT_EQ(Say({"library", "delete", "Rw", "Mia 2"}).code, 0);
  EXPECT_TRUE(own_.All(walls_).empty());
}

TEST_F(OwnMeasurementsCommandTest, WhatIsExportedIsImportedAgain) {
  EXPECT_EQ(Say({"library", "add", "Rw", "Nome=Una, \"prima\"", "Rw (dB)=48", "Fonte=certificato"}).code, 0);
  EXPECT_EQ(Say({"library", "import", "Rw", "--name", "Due", File("a.txt", kExample)}).code, 0);
  const std::vector<storage::MeasuredTest> before = own_.All(walls_);
  const std::string table = Say({"library", "export", "Rw"}).out;
  for (const storage::MeasuredTest& test : before) own_.Delete(walls_, test.name);
  EXPECT_EQ(Say({"library", "import", "Rw", File("tabella.csv", table)}).code, 0);
  EXPECT_EQ(own_.All(walls_), before);
  EXPECT_EQ(Say({"library", "import", "Rw", File("tabella.csv", table)}).code, 3) << "they exist";
}

}  // namespace
}  // namespace velmar::cli
