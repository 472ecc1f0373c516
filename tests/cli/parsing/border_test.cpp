#include <filesystem>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "storage/results/results_store.h"
#include "tests/cli/spoken_command.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::cli {
namespace {

namespace fs = std::filesystem;

constexpr const char* kLatin1 = "citt\xE0";

/// The command line on copies of the shipped databases.
class BorderTest : public testing::Test {
 protected:
  BorderTest() {
    services_.material_database = folder_ / "Database.mdb";
    services_.result_database = folder_ / "results.mdb";
    services_.library_folder = SHIPPED "/Databases/Database";
    fs::copy_file(SHIPPED "/Databases/Database/Database.mdb", services_.material_database);
    fs::copy_file(SHIPPED "/Databases/Database/Database_teorico.mdb", services_.result_database);
  }
  Said Say(const std::vector<std::string>& arguments) const { return Speak(arguments, services_); }

  storage::TemporaryFolder folder_;
  Services services_ = BareServices();
};

TEST_F(BorderTest, AnArgumentThatIsNotUtf8IsRefusedAndChangesNothing) {
  const std::string project = Example("doppia-forati-lana");
  const std::string materials = storage::ReadFile(services_.material_database);
  const std::string results = storage::ReadFile(services_.result_database);
  const std::vector<std::vector<std::string>> lines = {
      {"results", "save", project, kLatin1},
      {"results", "show", kLatin1},
      {"results", "delete", "--table", "airborne", kLatin1},
      {"materials", "add", "--family", "structural", std::string("Materiale=") + kLatin1, "s (mm)=120",
       "Densità (kg/m³)=800", "Modulo di Young E (GPa)=4", "Fattore di perdita interna=0,01"},
      {"materials", "edit", "--family", "structural", "Vetro", std::string("Fonte=") + kLatin1},
      {"materials", "list", "--keyword", kLatin1},
      {"library", "list", kLatin1},
      {"facade", Example("facciata"), (folder_ / "out.drav").string(), "--opaque",
       std::string("results:") + kLatin1},
      {"run", kLatin1},
      {"save", project, (folder_ / kLatin1).string()},
      {"import", kLatin1}};
  for (const auto& line : lines) {
    const Said said = Say(line);
    EXPECT_EQ(said.code, 1) << line[0] << ' ' << line[1];
    EXPECT_TRUE(said.errors.starts_with("row 1221 ")) << said.errors;
    EXPECT_NE(said.errors.find("citt\uFFFD"), std::string::npos) << said.errors;
    EXPECT_EQ(said.out, "");
  }
  EXPECT_EQ(storage::ReadFile(services_.material_database), materials);
  EXPECT_EQ(storage::ReadFile(services_.result_database), results);
  EXPECT_FALSE(fs::exists(folder_ / kLatin1));
}

TEST_F(BorderTest, ACsvThatIsNotUtf8IsRefusedWhole) {
  const std::string before = storage::ReadFile(services_.material_database);
  storage::WriteFile(folder_ / "a.csv", std::string("Materiale,s (mm)\nbuono,1\n") + kLatin1 + ",2\n");
  const Said said = Say({"materials", "import", "--family", "structural", (folder_ / "a.csv").string()});
  EXPECT_EQ(said.code, 1);
  EXPECT_EQ(said.errors, "row 1192\n");
  EXPECT_EQ(storage::ReadFile(services_.material_database), before);
}

/// Stores of earlier versions may hold such names: they are shown as well as they can be.
TEST_F(BorderTest, WhatAnOlderStoreHoldsIsListed) {
  storage::Execute(services_.material_database,
                   {"INSERT INTO Modulo_A1 (Materiale) VALUES (CAST(x'63697474E0' AS TEXT))"});
  storage::Execute(services_.result_database,
                   {"INSERT INTO Potere_fonoisolante (Nome) VALUES (CAST(x'63697474E0' AS TEXT))"});
  const Said materials = Say({"materials", "list", "--json"});
  EXPECT_EQ(materials.code, 0);
  EXPECT_NE(materials.out.find("citt\uFFFD"), std::string::npos);
  EXPECT_GE(materials.Json().size(), 120U);
  const Said results = Say({"results", "list", "--json"});
  EXPECT_EQ(results.code, 0);
  EXPECT_EQ(results.Json().at(0)["name"], "citt\uFFFD");
}

TEST_F(BorderTest, ABatchGoesOnBehindAProjectOfSuchAName) {
  services_.report_formats = {CsvFormat()};
  fs::copy_file(Example("vetro-6"), folder_ / "citt\xE0.drav");
  fs::create_directory(folder_ / "out");
  const Said said = Say({"report", Example("parete-forato-intonacata"), (folder_ / "citt\xE0.drav").string(),
                         Example("doppia-forati-lana"), "--csv", (folder_ / "out").string()});
  EXPECT_EQ(said.code, 1);
  EXPECT_NE(said.errors.find("row 1221"), std::string::npos) << said.errors;
  EXPECT_TRUE(fs::exists(folder_ / "out/parete-forato-intonacata.csv"));
  EXPECT_TRUE(fs::exists(folder_ / "out/doppia-forati-lana.csv"));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_ / "out"), {}), 2);
}

TEST_F(BorderTest, ABatchGoesOnBehindAnythingThatIsThrown) {
  ReportFormat csv = CsvFormat();
  csv.bytes = [whole = csv.bytes](const ReportContent& content) {
    if (content.name == "vetro-6") throw std::runtime_error("out of hand");
    return whole(content);
  };
  services_.report_formats = {csv};
  const Said said =
      Say({"report", Example("vetro-6"), Example("doppia-forati-lana"), "--csv", folder_.Path().string()});
  EXPECT_EQ(said.code, 1);
  EXPECT_NE(said.errors.find("row 1220 out of hand"), std::string::npos) << said.errors;
  EXPECT_TRUE(fs::exists(folder_ / "doppia-forati-lana.csv"));
}

TEST_F(BorderTest, AResultNameThatCannotBeShownIsRefused) {
  for (const char* name : {" ", "due\nrighe", "\u00A0"}) {
    const Said said = Say({"results", "save", Example("doppia-forati-lana"), name});
    EXPECT_EQ(said.code, 3) << testing::PrintToString(name);
    EXPECT_EQ(said.errors, "row 1171\n");
  }
  EXPECT_EQ(Say({"results", "list"}).out, "");
}

TEST_F(BorderTest, WhateverIsThrownEndsInACodeAndWords) {
  std::ostringstream out;
  std::ostringstream errors;
  const std::vector<std::string> arguments = {"catalogue"};
  EXPECT_EQ(RunCommandLine(
                arguments, [](const Opening&) -> Services { throw std::runtime_error("out of hand"); }, out,
                errors),
            1);
  EXPECT_NE(errors.str().find("out of hand"), std::string::npos);
  EXPECT_EQ(RunCommandLine(
                arguments, [](const Opening&) -> Services { throw 7; }, out, errors),
            1);
}

/// A heading of the help that the parser does not take.
TEST_F(BorderTest, ABadTextOfTheCatalogueDoesNotEndTheProgram) {
  services_.words = [](MessageRow row) { return "row\n" + std::to_string(row.number); };
  const Said said = Say({"--help"});
  EXPECT_EQ(said.code, 1);
  EXPECT_NE(said.errors, "");
}

/// A device that takes nothing.
class FullDevice : public std::streambuf {
 protected:
  int_type overflow(int_type) override { return traits_type::eof(); }
  int sync() override { return -1; }
};

TEST_F(BorderTest, OutputThatCannotBeWrittenIsAFailure) {
  const std::vector<std::vector<std::string>> lines = {{"catalogue"},
                                                       {"catalogue", "--json"},
                                                       {"--help"},
                                                       {"run", Example("vetro-6")},
                                                       {"materials", "list", "--json"}};
  for (const auto& line : lines) {
    FullDevice device;
    std::ostream out(&device);
    std::ostringstream errors;
    const auto open = [this](const Opening&) { return services_; };
    EXPECT_EQ(RunCommandLine(line, open, out, errors), 1) << line[0];
    EXPECT_EQ(errors.str(), "row 1219\n") << line[0];
  }
}

TEST_F(BorderTest, TheDoctorIsToldApartFromAnArgumentOfThatName) {
  std::vector<bool> mends;
  const auto open = [&](const Opening& opening) {
    mends.push_back(opening.mends);
    return services_;
  };
  std::ostringstream out;
  const std::vector<std::vector<std::string>> lines = {{"doctor"},
                                                       {"--data", "x", "doctor", "--repair"},
                                                       {"--data=x", "doctor"},
                                                       {"run", "doctor"},
                                                       {"--data", "doctor", "run", "a"}};
  for (const auto& line : lines) RunCommandLine(line, open, out, out);
  EXPECT_EQ(mends, (std::vector<bool>{true, true, true, false, false}));
}

}  // namespace
}  // namespace velmar::cli
