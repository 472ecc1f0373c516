#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "models/sea/band_average.h"
#include "models/sea/bridges.h"
#include "models/sea/leaf_transmission.h"
#include "models/sea/porous_layer.h"
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

HzSpectrum RandomSpectrum(RandomElements& random, double low, double high) {
  HzSpectrum spectrum;
  for (double& value : spectrum) value = random.Real(low, high);
  return spectrum;
}

TEST(Equality, FillsAgreeWithThePlainFormulas) {
  RandomElements random(5);
  for (int i = 0; i < 200; ++i) {
    const SeaFill fill = random.Fill();
    const HzSpectrum alpha = SeaAbsorptionPerHz(fill.absorption);
    ASSERT_LE(LargestDifference(alpha, plain::AbsorptionPerHz(fill.absorption)), 1e-12) << i;
    const double thickness_m = fill.thickness_mm / 1000.0;
    ASSERT_LE(LargestDifference(SeaPorousLayerAttenuation({true, thickness_m, fill.density_kg_m3}, alpha),
                                plain::PorousLayerAttenuation(true, thickness_m, fill.density_kg_m3, alpha)),
              kTolerance)
        << i;
    acoustics::Spectrum bands{};
    for (double& band : bands) band = random.Real(-20.0, 90.0);
    ASSERT_LE(LargestDifference(SeaSpectrumPerHz(bands), plain::SpectrumPerHz(bands)), kTolerance) << i;
  }
}

TEST(Equality, BridgesAgreeWithThePlainFormulas) {
  RandomElements random(6);
  const HzSpectrum sigma = RandomSpectrum(random, 0.0, 1.0);
  for (int i = 0; i < 200; ++i) {
    const double m = random.Real(1.0, 500.0);
    const double eta = random.Real(0.001, 0.3);
    const double h = random.Real(0.001, 0.4);
    const double cl = random.Real(500.0, 6000.0);
    const long points = random.Whole(0, 50);
    ASSERT_LE(LargestDifference(SeaPointBridgeCoupling({m, h, eta, cl, points}, sigma),
                                plain::PointBridgeCoupling(m, h, eta, cl, sigma, points)),
              1e-9)
        << i;
    const double fc = random.Real(50.0, 20000.0);
    const double lines = random.Real(0.1, 10.0);
    HzSpectrum coupling{};
    HzSpectrum expected{};
    SeaLineBridgeCoupling({m, eta, fc, lines, 2.8}, sigma, coupling);
    plain::LineBridgeCoupling(m, eta, fc, sigma, lines, 2.8, expected);
    ASSERT_LE(LargestDifference(coupling, expected), 1e-9) << i;
  }
}

TEST(Equality, CavitiesAgreeWithThePlainFormulas) {
  RandomElements random(7);
  for (int i = 0; i < 150; ++i) {
    const SeaCavity cavity = random.Cavity();
    const SeaElementSize size = random.Size();
    const HzSpectrum bridge = RandomSpectrum(random, 0.0, 0.001);
    const SeaCavityLevels levels = SeaCavityLayers(cavity, size, bridge, {});
    const plain::CavityLevels expected = plain::CavityLayers(cavity, size, bridge);
    ASSERT_LE(LargestDifference(levels.cavity_db, expected.rc), kTolerance) << i;
    for (std::size_t f = 1; f <= kHighestHz; ++f) {
      ASSERT_NEAR(levels.extra_power[f], expected.w[f], kTolerance * (1.0 + expected.w[f])) << i;
    }
  }
}

TEST(Equality, BandAveragesAgreeWithThePlainFormulas) {
  RandomElements random(8);
  for (int i = 0; i < 100; ++i) {
    plain::BandAverageInput input{.r1 = RandomSpectrum(random, 0.0, 60.0),
                                  .r2 = RandomSpectrum(random, 0.0, 60.0),
                                  .r3 = RandomSpectrum(random, 0.0, 20.0),
                                  .m1 = random.Happens(0.2) ? 0.0 : random.Real(0.1, 300.0),
                                  .m2 = random.Real(0.1, 300.0),
                                  .d = random.Real(0.001, 0.4)};
    if (random.Happens(0.5)) input.w = RandomSpectrum(random, 0.0, 1e4);
    const auto bands = SeaBandAverage({input.r1, input.r2, input.r3, input.w, {input.m1, input.m2, input.d}});
    ASSERT_LE(LargestDifference(bands, plain::BandAverage(input)), kTolerance) << i;
    const plain::CavityCombineInput cavity{.r0 = input.r1,
                                           .r1 = input.r2,
                                           .f = input.r3,
                                           .ta = RandomSpectrum(random, 0.0, 0.01),
                                           .tb = RandomSpectrum(random, 0.0, 0.01),
                                           .m0 = input.m1,
                                           .m1 = input.m2,
                                           .d = input.d};
    ASSERT_LE(
        LargestDifference(
            SeaCavityCombine(
                {cavity.r0, cavity.r1, cavity.f, cavity.ta, cavity.tb, {cavity.m0, cavity.m1, cavity.d}}),
            plain::CavityCombine(cavity)),
        kTolerance)
        << i;
  }
}

}  // namespace
}  // namespace velmar::models
