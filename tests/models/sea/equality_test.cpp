#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "models/sea/leaf_transmission.h"
#include "tests/models/sea/plain_walls.h"
#include "tests/models/sea/random_elements.h"

// The models against the formulas written down one by one, on random constructions.
namespace velmar::models {
namespace {

constexpr double kTolerance = 1e-9;

double LargestDifference(const auto& left, const auto& right) {
  double largest = 0.0;
  for (std::size_t i = 0; i < left.size(); ++i) {
    const double difference = std::abs(left[i] - right[i]);
    if (!(difference <= largest)) largest = difference;
  }
  return largest;
}

TEST(Equality, LeavesAgreeWithThePlainFormulas) {
  RandomElements random(1);
  for (int i = 0; i < 600; ++i) {
    const double cap = i % 2 == 0 ? kSingleWallRadiationCap : kDoubleWallRadiationCap;
    const SeaPlateInput input = PlateOf(random.Layer(), random.Size(), cap);
    const double loss_factor = random.Real(0.0, 0.1);
    const SeaPlate plate = SeaPlateRadiation(input);
    const plain::Plate expected = plain::PlateRadiation(input);
    ASSERT_LE(LargestDifference(plate.radiation_efficiency, expected.sigma), kTolerance) << i;
    ASSERT_NEAR(plate.critical_frequency_hz, expected.fc, kTolerance * expected.fc);
    ASSERT_NEAR(plate.longitudinal_speed_m_s, expected.cl, kTolerance * expected.cl);
    ASSERT_NEAR(plate.surface_mass_kg_m2, expected.m, kTolerance * expected.m);
    ASSERT_NEAR(plate.thickness_m, expected.h, kTolerance);
    const HzSpectrum r = SeaLeafTransmission(
        plate.radiation_efficiency,
        {plate.longitudinal_speed_m_s, plate.surface_mass_kg_m2, plate.thickness_m, loss_factor});
    ASSERT_LE(LargestDifference(r, plain::LeafTransmission(expected.sigma, expected.cl, expected.m,
                                                           expected.h, loss_factor)),
              kTolerance)
        << i;
  }
}

TEST(Equality, SingleWallsAgreeWithThePlainFormulas) {
  RandomElements random(2);
  for (int i = 0; i < 300; ++i) {
    const SingleSeaWallInput input = random.Single();
    ASSERT_LE(
        LargestDifference(CalculateSingleSeaWall(input).reduction_index_db, plain::SingleSeaWall(input)),
        kTolerance)
        << i;
  }
}

TEST(Equality, DoubleWallsAgreeWithThePlainFormulas) {
  RandomElements random(3);
  for (int i = 0; i < 200; ++i) {
    const DoubleSeaWallInput input = random.Double();
    ASSERT_LE(
        LargestDifference(CalculateDoubleSeaWall(input).reduction_index_db, plain::DoubleSeaWall(input)),
        kTolerance)
        << i;
  }
}

TEST(Equality, LiningsAgreeWithThePlainFormulas) {
  RandomElements random(4);
  for (int i = 0; i < 200; ++i) {
    const LiningInput input = random.Lining();
    const auto base_db = CompleteBaseSpectrum(input.base_spectrum_db).level_db;
    ASSERT_LE(LargestDifference(CalculateLining(input).reduction_index_db,
                                plain::Lining(input, base_db, *ConnectionCount(input))),
              kTolerance)
        << i;
  }
}

}  // namespace
}  // namespace velmar::models
