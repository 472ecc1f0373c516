#include <filesystem>

#include <gtest/gtest.h>

#include "tests/cli/spoken_command.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::cli {
namespace {

namespace fs = std::filesystem;

class DoctorCommandTest : public testing::Test {
 protected:
  DoctorCommandTest() {
    services_.data_folder = folder_ / "data";
    services_.shipped_data = SHIPPED;
    fs::copy(SHIPPED, services_.data_folder, fs::copy_options::recursive);
    fs::permissions(Materials(), fs::perms::owner_write, fs::perm_options::add);
  }
  Said Say(const std::vector<std::string>& arguments) const { return Speak(arguments, services_); }
  fs::path Materials() const { return services_.data_folder / "Databases/Database/Database.mdb"; }

  storage::TemporaryFolder folder_;
  Services services_ = BareServices();
};

TEST_F(DoctorCommandTest, SaysThatNothingIsWrong) {
  const Said said = Say({"doctor"});
  EXPECT_EQ(said.code, 0);
  EXPECT_EQ(said.out, "row 1225\n");
  const Said json = Say({"doctor", "--json"});
  EXPECT_EQ(json.code, 0);
  EXPECT_EQ(json.Json(), (nlohmann::json{{"ok", true}, {"findings", nlohmann::json::array()}}));
}

TEST_F(DoctorCommandTest, TellsRepairsAndIsContentThen) {
  storage::Execute(Materials(),
                   {"INSERT INTO Modulo_A1 (Materiale, [Rapporto di Poisson]) VALUES ('Impossibile', 1.5)"});
  const std::string before = storage::ReadFile(Materials());
  const Said found = Say({"doctor"});
  EXPECT_EQ(found.code, 1);
  EXPECT_EQ(found.out,
            Materials().string() + ": row 1184 Modulo_A1, Impossibile, Rapporto di Poisson: 1.5\nrow 1228\n");
  EXPECT_EQ(storage::ReadFile(Materials()), before);

  const Said repaired = Say({"doctor", "--repair", "--json"});
  EXPECT_EQ(repaired.code, 0);
  const nlohmann::json finding = repaired.Json()["findings"].at(0);
  EXPECT_EQ(repaired.Json()["ok"], true);
  EXPECT_EQ(finding["file"], Materials().string());
  EXPECT_EQ(finding["problem"], "value");
  EXPECT_EQ(finding["repaired"], true);
  EXPECT_EQ(storage::ReadFile(finding["copy"].get<std::string>()), before);
  EXPECT_EQ(Say({"doctor"}).code, 0);
  EXPECT_EQ(Say({"doctor", "--mend"}).code, 2);
}

}  // namespace
}  // namespace velmar::cli
