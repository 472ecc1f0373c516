#include "models/plates/single_plate_spectrum.h"

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "models/plates/transmission.h"

namespace velmar::models {
namespace {

using LossFactors = std::array<double, acoustics::kFineGridPoints>;

TEST(FineGridBandR, TakesEachPointsOwnLossFactor) {
  LossFactors factors{};
  for (std::size_t point = 0; point < factors.size(); ++point)
    factors[point] = 0.01 + 1e-4 * static_cast<double>(point);
  const auto values = FineGridBandR(15, 1312.5, factors);
  for (const std::size_t point : {0u, 46u, 200u, 495u}) {
    EXPECT_EQ(values[point],
              BandR(40.0 + 10.0 * static_cast<double>(point), Plate{15, 1312.5, factors[point]}));
  }
}

TEST(SinglePlateSpectrum, AveragesTheGridInDecibels) {
  LossFactors factors{};
  factors.fill(0.02);
  const auto values = FineGridBandR(15, 1312.5, factors);
  const acoustics::Spectrum bands = SinglePlateSpectrum(15, 1312.5, factors);
  EXPECT_DOUBLE_EQ(bands[0], (values[0] + values[1]) / 2);
  EXPECT_DOUBLE_EQ(bands[2], values[4]);
}

TEST(SinglePlateSpectrum, GainsSixDecibelsWithTheMassOfALimpPlate) {
  const LossFactors factors{};
  const acoustics::Spectrum light = SinglePlateSpectrum(100, 0, factors);
  const acoustics::Spectrum heavy = SinglePlateSpectrum(200, 0, factors);
  for (std::size_t band = 3; band < 21; ++band) EXPECT_NEAR(heavy[band] - light[band], 6.02, 0.02);
}

TEST(SinglePlateSpectrum, RefusesALossFactorThatIsNoNumber) {
  LossFactors factors{};
  factors[300] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THROW(SinglePlateSpectrum(15, 1312.5, factors), ArithmeticFailure);
}

}  // namespace
}  // namespace velmar::models
