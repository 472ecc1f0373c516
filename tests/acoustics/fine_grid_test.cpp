#include "acoustics/fine_grid.h"

#include <array>
#include <stdexcept>

#include <gtest/gtest.h>

namespace velmar::acoustics {
namespace {

using FineValues = std::array<double, kFineGridPoints>;

FineValues Frequencies() {
  FineValues values{};
  for (std::size_t n = 0; n < values.size(); ++n) values[n] = FineGridFrequency(n);
  return values;
}

TEST(Bands, AreTwentyOneAndTheLastEdgeLiesBelowItsCentre) {
  EXPECT_EQ(BandCentre(0), 50);
  EXPECT_EQ(BandCentre(20), 5000);
  EXPECT_EQ(BandUpperEdge(20), 4999);
  EXPECT_THROW(BandCentre(21), std::out_of_range);
  for (std::size_t band = 0; band + 1 < kBandCount; ++band) EXPECT_GT(BandUpperEdge(band), BandCentre(band));
}

TEST(FineGridToBands, KeepsAConstant) {
  FineValues values{};
  values.fill(42.25);
  for (const double band : FineGridToBands(values)) EXPECT_DOUBLE_EQ(band, 42.25);
}

TEST(FineGridToBands, AveragesThePointsBelowEachEdge) {
  const Spectrum bands = FineGridToBands(Frequencies());
  EXPECT_DOUBLE_EQ(bands[0], 45);
  EXPECT_DOUBLE_EQ(bands[1], 65);
  EXPECT_DOUBLE_EQ(bands[2], 80);
  EXPECT_DOUBLE_EQ(bands[3], 100);
  EXPECT_DOUBLE_EQ(bands[13], (900 + 1120) / 2.0);
  EXPECT_DOUBLE_EQ(bands[20], (4470 + 4990) / 2.0);
}

TEST(FineGridToBands, GivesTheLastBandFiftyThreePoints) {
  FineValues values{};
  values[kFineGridPoints - 1] = 53;
  EXPECT_DOUBLE_EQ(FineGridToBands(values)[20], 1);
}

TEST(AverageIntoBands, MayBeginAt50Hz) {
  const FineValues values = Frequencies();
  const Spectrum bands = AverageIntoBands(std::span(values).subspan(1), 50);
  EXPECT_DOUBLE_EQ(bands[0], 50);
  EXPECT_DOUBLE_EQ(bands[1], 65);
}

TEST(AverageIntoBands, RefusesAGridThatEndsEarly) {
  const FineValues values{};
  EXPECT_THROW(AverageIntoBands(std::span(values).first(400), 40), std::invalid_argument);
}

}  // namespace
}  // namespace velmar::acoustics
