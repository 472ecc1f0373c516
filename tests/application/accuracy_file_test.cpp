#include "application/accuracy_file.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include <gtest/gtest.h>

namespace velmar::application {
namespace {

using validation::Prediction;

std::filesystem::path Scratch(const char* name) {
  const auto folder = std::filesystem::path(testing::TempDir()) / "accuracy_file_test";
  std::filesystem::create_directories(folder);
  return folder / name;
}

TEST(AccuracyFile, ReadsBackWhatWasWritten) {
  Prediction prediction{.measured = "wall, \"first\"",
                        .group = "brick and clay",
                        .source = "a",
                        .model = "layered",
                        .kind = validation::ElementKind::kBrickAndClay,
                        .frame_known = true,
                        .quantity = "Rw (octaves)",
                        .predicted = 51.3,
                        .value = 45.0,
                        .features = {.mass_kg_m2 = 0.1 + 0.2, .depth_mm = 75.0, .filled = true}};
  prediction.octave_errors[2] = -1.25;
  const auto file = Scratch("predictions.csv");
  WritePredictions(file, {prediction});
  const validation::Accuracy accuracy = ReadAccuracy(file);
  ASSERT_EQ(accuracy.Predictions().size(), 1U);
  const Prediction& read = accuracy.Predictions().front();
  EXPECT_EQ(read.measured, prediction.measured);
  EXPECT_EQ(read.group, prediction.group);
  EXPECT_EQ(read.model, prediction.model);
  EXPECT_EQ(read.kind, prediction.kind);
  EXPECT_TRUE(read.frame_known);
  EXPECT_EQ(read.quantity, prediction.quantity);
  EXPECT_EQ(read.predicted, prediction.predicted);
  EXPECT_EQ(read.features, prediction.features);
  EXPECT_EQ(read.octave_errors, prediction.octave_errors);
}

TEST(AccuracyFile, WithoutTheFileNothingIsKnown) {
  EXPECT_TRUE(ReadAccuracy(Scratch("none.csv")).Predictions().empty());
}

TEST(AccuracyFile, ADamagedFileIsRefusedByName) {
  for (const char* text : {"a,b\n1,2\n", "\"", ""}) {
    const auto file = Scratch("damaged.csv");
    std::ofstream(file) << text;
    try {
      ReadAccuracy(file);
      ADD_FAILURE() << text;
    } catch (const std::runtime_error& failure) {
      EXPECT_NE(std::string(failure.what()).find("damaged.csv"), std::string::npos);
    }
  }
}

}  // namespace
}  // namespace velmar::application
