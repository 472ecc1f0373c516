#include "cli/parsing/command_line.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/cli/spoken_command.h"

namespace velmar::cli {
namespace {

Said Say(const std::vector<std::string>& arguments) { return Speak(arguments); }

class TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& bytes)
      : path_(std::filesystem::temp_directory_path() /
              ("velmar-cli-" + std::to_string(::getpid()) + "-" + std::to_string(++count_) + ".drav")) {
    std::ofstream(path_, std::ios::binary) << bytes;
  }
  ~TemporaryFile() { std::filesystem::remove(path_); }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  std::string Path() const { return path_.string(); }

 private:
  static inline int count_ = 0;
  std::filesystem::path path_;
};

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Run, GivesOneObjectThatReadsBackExactly) {
  const Said said = Say({"run", Example("parete-forato-intonacata"), "--json"});
  EXPECT_EQ(said.code, 0);
  const nlohmann::json json = said.Json();
  EXPECT_EQ(json["family"], "SINGOLA");
  EXPECT_EQ(json["variant"], "Parete singola in laterizio");
  EXPECT_EQ(json["orientation"], "verticale singola");
  EXPECT_EQ(json["status"], "ok");
  EXPECT_EQ(json["spectrum"].size(), 21U);
  EXPECT_EQ(json["thickness"], 150);
  EXPECT_EQ(json["Rw"].get<double>(), json["X"].get<double>() - 4);
  EXPECT_FALSE(json.contains("Lnw"));
  EXPECT_TRUE(json["messages"].empty());
  for (const char* key : {"Rw", "C", "Ctr"}) EXPECT_EQ(json["ratings"][key], json[key]) << key;
  EXPECT_EQ(json["ratings"].size(), 12U);
  EXPECT_EQ(nlohmann::json::parse(json.dump()), json);
}

TEST(Run, WritesATableForAPerson) {
  const Said said = Say({"run", Example("parete-forato-intonacata")});
  EXPECT_EQ(said.code, 0);
  EXPECT_NE(said.out.find("3150"), std::string::npos);
  EXPECT_NE(said.out.find("Rw"), std::string::npos);
  EXPECT_EQ(said.errors, "");
}

TEST(Run, DeclinesByDefaultAndCountsAQuestionOnce) {
  const Said declined = Say({"run", Example("parete-fuori-campo"), "--json"});
  EXPECT_EQ(declined.code, 3);
  EXPECT_EQ(declined.Json()["status"], "declined");
  ASSERT_EQ(declined.Json()["messages"].size(), 1U);
  EXPECT_EQ(declined.Json()["messages"][0]["row"], 195);
  EXPECT_FALSE(declined.Json().contains("spectrum"));

  const Said accepted = Say({"run", Example("parete-fuori-campo"), "--json", "--answer", "yes"});
  EXPECT_EQ(accepted.code, 0);
  EXPECT_EQ(accepted.Json()["status"], "ok");
  EXPECT_EQ(accepted.Json()["messages"].size(), 1U);
}

TEST(Run, WritesLevelsAndImprovementOfAFloor) {
  const nlohmann::json json = Say({"run", Example("calpestio-galleggiante"), "--json"}).Json();
  EXPECT_EQ(json["status"], "ok");
  for (const char* key : {"Lnw", "Ci", "DeltaLnw", "RwEstimate", "DeltaRwEstimate", "X"}) {
    EXPECT_TRUE(json.contains(key)) << key;
  }
  for (const char* key : {"Rw", "C", "Ctr"}) EXPECT_FALSE(json.contains(key)) << key;
  EXPECT_EQ(json["ratings"]["Ln,w"], json["Lnw"]);
  EXPECT_EQ(json["ratings"].size(), 4U);
}

TEST(Run, ListsEachLineOfABox) {
  // No fibre has an absorption here, because no material is known.
  const Said said = Say({"run", Example("controplaccaggio-calibel"), "--json"});
  EXPECT_EQ(said.code, 3);
  EXPECT_EQ(said.Json()["status"], "refused");
  ASSERT_EQ(said.Json()["messages"].size(), 2U);
  EXPECT_EQ(said.Json()["messages"][0]["row"], 231);
  EXPECT_EQ(said.Json()["messages"][1]["row"], 247);
}

TEST(Run, SaysSoWhenTheFileIsNotThere) {
  const Said said = Say({"run", "/nowhere/at/all.drav", "--json"});
  EXPECT_EQ(said.code, 1);
  EXPECT_EQ(said.errors, "Impossibile aprire il file: file non trovato\n");
  EXPECT_EQ(said.Json()["status"], "failed");
  EXPECT_EQ(said.Json()["messages"][0]["row"], 0);
}

TEST(Run, RefusesADamagedFileWithItsRow) {
  const std::string whole = BytesOf(Example("doppia-forati-vuota"));
  const TemporaryFile cut(whole.substr(0, whole.size() / 2));
  const Said said = Say({"run", cut.Path(), "--json"});
  EXPECT_EQ(said.code, 1);
  EXPECT_EQ(said.Json()["messages"][0]["row"], 394);
  EXPECT_FALSE(said.Json().contains("spectrum"));
}

TEST(Run, RefusesACalculationThatIsNotKnown) {
  std::string bytes = BytesOf(Example("parete-forato-intonacata"));
  const std::string variant = "Parete singola in laterizio";
  bytes.replace(bytes.find(variant), variant.size(), "Parete in paglia");
  const TemporaryFile file(bytes);
  const Said said = Say({"run", file.Path(), "--json"});
  EXPECT_EQ(said.code, 3);
  EXPECT_EQ(said.Json()["status"], "refused");
  EXPECT_EQ(said.Json()["variant"], "Parete in paglia");
}

/// Every shipped example.
class ExampleTest : public testing::TestWithParam<std::string> {};

std::vector<std::string> Examples() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(EXAMPLES)) {
    if (entry.path().extension() == ".drav") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

TEST_P(ExampleTest, IsReadWithoutAComplaintAndSavedAsItStands) {
  const std::string path = Example(GetParam().c_str());
  EXPECT_NE(Say({"run", path, "--answer", "yes"}).code, 1);
  const TemporaryFile copy("");
  EXPECT_EQ(Say({"save", path, copy.Path()}).code, 0);
  EXPECT_EQ(BytesOf(copy.Path()), BytesOf(path));
}

INSTANTIATE_TEST_SUITE_P(Shipped, ExampleTest, testing::ValuesIn(Examples()), [](const auto& test) {
  std::string name = test.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

TEST(Save, LeavesTheTargetWhenTheSourceIsDamaged) {
  const TemporaryFile source("VELMAR 2.0.0\r\n");
  const TemporaryFile target("untouched");
  EXPECT_EQ(Say({"save", source.Path(), target.Path()}).code, 1);
  EXPECT_EQ(BytesOf(target.Path()), "untouched");
}

/// The worked example of ISO 717-1, Annex C.
const std::vector<std::string> kStandardExample = {"20.4", "16,3", "17.7", "22.6", "22.4", "22.7",
                                                   "24.8", "26.6", "28.0", "30.5", "31.8", "32.5",
                                                   "33.4", "33.0", "31.0", "25.5"};

TEST(Rate, RatesSixteenBands) {
  std::vector<std::string> arguments = {"rate", "--airborne", "--json", "--"};
  arguments.insert(arguments.end(), kStandardExample.begin(), kStandardExample.end());
  const Said said = Say(arguments);
  EXPECT_EQ(said.code, 0);
  EXPECT_EQ(said.Json(), (nlohmann::json{{"Rw", 30},
                                         {"C", -2},
                                         {"Ctr", -3},
                                         {"X", 34},
                                         {"ratings", {{"Rw", 30}, {"Rw,0.1", 30}, {"C", -2}, {"Ctr", -3}}}}));
}

// The worked example of ISO 717-1 over the enlarged range, annex C.
TEST(Rate, GivesEveryNumberOfTwentyOneBands) {
  std::vector<std::string> bands = {"18.7", "19.2", "20.0"};
  bands.insert(bands.end(), kStandardExample.begin(), kStandardExample.end());
  bands.insert(bands.end(), {"26.8", "29.2"});
  std::vector<std::string> arguments = {"rate", "--airborne", "--json", "--"};
  arguments.insert(arguments.end(), bands.begin(), bands.end());
  const nlohmann::json ratings = Say(arguments).Json()["ratings"];
  EXPECT_EQ(ratings["C50-5000"], -2);
  EXPECT_EQ(ratings["Ctr,50-5000"], -4);
  for (const char* key : {"C50-3150", "C100-5000", "Ctr,50-3150", "Ctr,100-5000", "STC", "OITC"}) {
    EXPECT_TRUE(ratings.contains(key)) << key;
  }

  arguments.erase(arguments.begin() + 2);
  const std::string table = Say(arguments).out;
  EXPECT_NE(table.find("           Rw       30 dB\n"), std::string::npos) << table;
  EXPECT_NE(table.find("     Rw (0,1)     30,0 dB\n"), std::string::npos) << table;
  EXPECT_NE(table.find("     C50-5000       -2 dB\n"), std::string::npos) << table;
  EXPECT_NE(table.find("          STC       29 \n"), std::string::npos) << table;
}

TEST(Rate, RatesTwentyOneBandsAndNegativeLevels) {
  std::vector<std::string> arguments = {"rate", "--impact", "--json", "--"};
  for (int band = 0; band < 21; ++band) arguments.push_back("-5.5");
  const Said said = Say(arguments);
  EXPECT_EQ(said.code, 0);
  EXPECT_TRUE(said.Json().contains("Lnw"));
  EXPECT_TRUE(said.Json().contains("Ci"));
  for (const char* key : {"Ln,w", "CI", "CI,50-2500", "IIC"}) {
    EXPECT_TRUE(said.Json()["ratings"].contains(key)) << key;
  }
}

/// Arguments that no command understands, and how the complaint begins.
struct WrongUsage {
  const char* name;
  std::vector<std::string> arguments;
  const char* said;
};

class WrongUsageTest : public testing::TestWithParam<WrongUsage> {};

TEST_P(WrongUsageTest, EndsWithTwoAndNamesTheArgument) {
  const Said said = Say(GetParam().arguments);
  EXPECT_EQ(said.code, 2);
  EXPECT_EQ(said.errors.substr(0, said.errors.find('\n')), GetParam().said);
  EXPECT_EQ(said.out, "");
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, WrongUsageTest,
    testing::Values(WrongUsage{"None", {}, "row 1238"},
                    WrongUsage{"Unknown", {"calcola"}, "row 1202 calcola"},
                    WrongUsage{"Several", {"run", "a.drav", "--loud", "b"}, "row 1202 --loud b"},
                    WrongUsage{"GroupWithoutCommand", {"materials"}, "row 1238"},
                    WrongUsage{"RunWithoutProject", {"run"}, "row 1201 PROJECT"},
                    WrongUsage{"Answer", {"run", "a.drav", "--answer", "maybe"}, "row 1203 --answer"},
                    WrongUsage{"AnswerWithoutWord", {"run", "a.drav", "--answer"}, "row 1203 --answer"},
                    WrongUsage{"Family", {"materials", "list", "--family", "glass"}, "row 1203 --family"},
                    WrongUsage{"RateBoth", {"rate", "--airborne", "--impact", "--", "1"}, "row 1213"},
                    WrongUsage{"RateNeither", {"rate", "--", "1"}, "row 1213"},
                    WrongUsage{"RateTooFew", {"rate", "--airborne", "--", "1", "2"}, "row 1212"},
                    WrongUsage{"RateNoNumber",
                               {"rate", "--airborne", "--", "a", "2", "3", "4", "5", "6", "7", "8", "9", "10",
                                "11", "12", "13", "14", "15", "16"},
                               "row 1012 \"a\""}),
    [](const auto& test) { return test.param.name; });

TEST(Catalogue, ListsEveryCalculation) {
  EXPECT_EQ(Say({"catalogue", "--json"}).Json().size(), 48U);
  const std::string lines = Say({"catalogue"}).out;
  EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 48);
}

TEST(Help, IsNoMistake) { EXPECT_EQ(Say({"--help"}).code, 0); }

/// Every heading is a row of the catalogue: none of the parser's own English is left.
TEST(Help, SpeaksTheLanguageOfTheUser) {
  for (const auto& arguments : std::vector<std::vector<std::string>>{{"--help"},
                                                                     {"run", "--help"},
                                                                     {"rate", "--help"},
                                                                     {"materials", "--help"},
                                                                     {"materials", "add", "--help"},
                                                                     {"results", "save", "--help"}}) {
    const std::string help = Say(arguments).out;
    for (const char* english : {"Usage", "Options", "OPTIONS", "Subcommand", "SUBCOMMAND", "Positionals",
                                "REQUIRED", "TEXT", "Print this", "ENUM"})
      EXPECT_EQ(help.find(english), std::string::npos) << english << " in\n" << help;
  }
}

}  // namespace
}  // namespace velmar::cli
