#include <string>

#include <gtest/gtest.h>

#include "application/accuracy_file.h"
#include "tests/cli/spoken_command.h"

namespace velmar::cli {
namespace {

/// Services that know the measurements of this build.
Services WithMeasurements() {
  Services services = BareServices();
  services.validation_folder = std::string(SHIPPED) + "/Validation";
  services.accuracy = [file = services.validation_folder / application::kPredictionsFile] {
    return application::ReadAccuracy(file);
  };
  return services;
}

TEST(Validate, PredictsEveryMeasuredConstructionAnew) {
  const Said said = Speak({"validate", "--json"}, WithMeasurements());
  ASSERT_EQ(said.code, 0) << said.errors;
  const nlohmann::json json = said.Json();
  EXPECT_GT(json["rows"].size(), 900U);
  EXPECT_EQ(json["not_covered"].size(), 111U);
  EXPECT_GE(json["coverage"]["leave_one_out"].get<double>(), 0.85);
  EXPECT_GE(json["coverage"]["leave_one_source_out"].get<double>(), 0.85);
  bool found = false;
  for (const nlohmann::json& row : json["table"]) {
    if (row["group"] != "steel studs, direct" || row["model"] != "layered") continue;
    found = true;
    EXPECT_EQ(row["n"], 37);
    EXPECT_EQ(row["quantity"], "Rw");
    EXPECT_TRUE(row["marked"].get<bool>());
    EXPECT_LE(row["rms"].get<double>(), 2.5);
    EXPECT_TRUE(row.contains("bias") && row.contains("spread") && row.contains("worst") &&
                row.contains("within_3dB"));
  }
  EXPECT_TRUE(found);
}

// What the program keeps for its intervals is what it finds when it predicts anew.
TEST(Validate, AgreesWithTheTableThatTheBuildMade) {
  const nlohmann::json json = Speak({"validate", "--json"}, WithMeasurements()).Json();
  const validation::Accuracy built = WithMeasurements().accuracy();
  const auto compared = built.Compared();
  ASSERT_EQ(json["rows"].size(), compared.size());
  for (std::size_t i = 0; i < compared.size(); ++i) {
    EXPECT_EQ(json["rows"][i]["measured"], compared[i]->measured);
    EXPECT_EQ(json["rows"][i]["model"], compared[i]->model);
    EXPECT_EQ(json["rows"][i]["predicted"], compared[i]->predicted);
    EXPECT_EQ(json["rows"][i]["value"], compared[i]->value);
  }
}

TEST(Validate, WritesATableToRead) {
  const Said said = Speak({"validate"}, WithMeasurements());
  EXPECT_EQ(said.code, 0);
  EXPECT_NE(said.out.find("steel studs, direct\n"), std::string::npos);
  EXPECT_NE(said.out.find("* layered\n"), std::string::npos);
}

TEST(Validate, WithoutTheMeasurementsItSaysSo) {
  const Said said = Speak({"validate"});
  EXPECT_EQ(said.code, 1);
  EXPECT_TRUE(said.out.empty());
  EXPECT_NE(said.errors.find("row 1972"), std::string::npos);
}

TEST(Models, ShowsEveryModelOfAWall) {
  const Said said = Speak({"models", Example("leggera-linea-linea"), "--json"}, WithMeasurements());
  ASSERT_EQ(said.code, 0) << said.errors;
  const nlohmann::json json = said.Json();
  EXPECT_EQ(json["calculation"], "Parete leggera doppia collegata Linea - Linea");
  ASSERT_EQ(json["models"].size(), 2U);
  const nlohmann::json& calculation = json["models"][0];
  EXPECT_EQ(calculation["id"], "calculation");
  EXPECT_EQ(calculation["name"], "Parete leggera doppia collegata Linea - Linea");
  EXPECT_FALSE(calculation["best"].get<bool>());
  const nlohmann::json& layered = json["models"][1];
  EXPECT_EQ(layered["id"], "layered");
  EXPECT_EQ(layered["name"], "row 1930");
  EXPECT_TRUE(layered["best"].get<bool>());
  EXPECT_EQ(layered["spectrum"].size(), 21U);
  EXPECT_EQ(layered["group"], "studs of wood or steel");
  EXPECT_TRUE(layered.contains("Rw") && layered.contains("C") && layered.contains("Ctr"));
  EXPECT_TRUE(layered.contains("bias") && layered.contains("spread") && layered.contains("n"));
  EXPECT_EQ(layered["interval"]["n"], layered["n"]);
  EXPECT_EQ(layered["interval"]["coverage"], 0.9);
}

TEST(Models, WithoutMeasurementsNothingIsSaidOfErrors) {
  const nlohmann::json json = Speak({"models", Example("vetro-6"), "--json"}).Json();
  ASSERT_EQ(json["models"].size(), 2U);
  for (const nlohmann::json& model : json["models"]) {
    EXPECT_FALSE(model.contains("bias"));
    EXPECT_FALSE(model.contains("interval"));
  }
}

TEST(Models, WritesThemToRead) {
  const Said said = Speak({"models", Example("vetro-6")}, WithMeasurements());
  EXPECT_EQ(said.code, 0);
  EXPECT_NE(said.out.find("row 1930 (row 1976)"), std::string::npos) << said.out;
}

TEST(Models, AFileThatIsNoneIsTold) {
  const Said said = Speak({"models", "/nowhere.drav", "--json"});
  EXPECT_EQ(said.code, 1);
  EXPECT_FALSE(said.errors.empty());
}

TEST(Run, GivesTheIntervalThatALaboratoryWouldMeasure) {
  const nlohmann::json json =
      Speak({"run", Example("parete-mattone-pieno"), "--json"}, WithMeasurements()).Json();
  ASSERT_TRUE(json.contains("interval"));
  EXPECT_EQ(json["interval"]["quantity"], "Rw");
  EXPECT_EQ(json["interval"]["group"], "brick and clay");
  EXPECT_EQ(json["interval"]["n"], 13);
  EXPECT_LT(json["interval"]["low"].get<double>(), json["interval"]["high"].get<double>());
  EXPECT_FALSE(Speak({"run", Example("parete-mattone-pieno"), "--json"}).Json().contains("interval"));
  EXPECT_FALSE(Speak({"run", Example("facciata"), "--json"}, WithMeasurements()).Json().contains("interval"));
}

TEST(Run, SaysUnderTheResultHowSureItIs) {
  EXPECT_NE(Speak({"run", Example("parete-mattone-pieno")}, WithMeasurements()).out.find("row 1937"),
            std::string::npos);
  EXPECT_NE(
      Speak({"run", Example("calpestio-calcestruzzo")}, WithMeasurements()).out.find("row 1939: row 1941"),
      std::string::npos);
}

}  // namespace
}  // namespace velmar::cli
