#include "models/sea/bridges.h"

#include <gtest/gtest.h>

#include "foundation/failure.h"

namespace velmar::models {
namespace {

HzSpectrum Constant(double value) {
  HzSpectrum spectrum;
  spectrum.fill(value);
  return spectrum;
}

const SeaPointBridge kScrews{.surface_mass_kg_m2 = 9.0,
                             .thickness_m = 0.0125,
                             .loss_factor = 0.02,
                             .longitudinal_speed_m_s = 2000.0,
                             .count = 12};
const SeaLineBridge kStuds{.surface_mass_kg_m2 = 9.0,
                           .loss_factor = 0.02,
                           .critical_frequency_hz = 2500.0,
                           .count = 3.0,
                           .length_m = 2.8};

TEST(SeaPointBridgeCoupling, AddsARadiatedAndAForcedPart) {
  // At 1000 Hz: T1 = 0.05 * 452.661 / (81 * 2.3 * 2000 * 0.0125 * 6283.2 * 0.02) = 3.86705e-5,
  // T2 = 1.29 / (6.2832 * 81 * 350.9) = 7.22338e-6, U = 1 / (0.0125² * 9 * 2.3 * 2000) = 0.154589;
  // (T1 + T2) / U * 12.
  EXPECT_NEAR(SeaPointBridgeCoupling(kScrews, Constant(0.05))[1000], 0.003562509310474366, 1e-15);
}

TEST(SeaPointBridgeCoupling, IsProportionalToTheNumberAndNothingWithoutPoints) {
  SeaPointBridge bridge = kScrews;
  bridge.count = 1;
  const HzSpectrum one = SeaPointBridgeCoupling(bridge, Constant(0.3));
  const HzSpectrum twelve = SeaPointBridgeCoupling(kScrews, Constant(0.3));
  for (std::size_t f = 1; f <= kHighestHz; ++f) ASSERT_NEAR(twelve[f], 12.0 * one[f], 1e-12 * twelve[f]);
  bridge.count = 0;
  EXPECT_EQ(SeaPointBridgeCoupling(bridge, Constant(0.3)), HzSpectrum{});
}

TEST(SeaLineBridgeCoupling, AddsARadiatedAndAForcedPart) {
  // At 1000 Hz: n = 2.8² / (sqrt(0.4) * 5.6 * 9 * 350.9) = 7.00926e-4,
  // T = 1.29 / (81 * 6283.2) + 0.05 * 452.661 n / (6283.2 * 9 * 0.02) = 1.65616e-5; T / n * 3.
  HzSpectrum coupling{};
  SeaLineBridgeCoupling(kStuds, Constant(0.05), coupling);
  EXPECT_NEAR(coupling[1000], 0.07088446945391398, 1e-14);
}

TEST(SeaLineBridgeCoupling, KeepsWhatIsThereWithoutLines) {
  SeaLineBridge bridge = kStuds;
  bridge.count = 0.0;
  bridge.loss_factor = 0.0;
  HzSpectrum coupling = Constant(0.25);
  SeaLineBridgeCoupling(bridge, Constant(0.05), coupling);
  EXPECT_EQ(coupling, Constant(0.25));
}

TEST(Bridges, FailWithoutLossesOrWithANegativeNumber) {
  HzSpectrum coupling{};
  SeaLineBridge line = kStuds;
  line.loss_factor = 0.0;
  EXPECT_THROW(SeaLineBridgeCoupling(line, Constant(0.05), coupling), ArithmeticFailure);
  line = kStuds;
  line.count = -2.0;
  EXPECT_THROW(SeaLineBridgeCoupling(line, Constant(0.05), coupling), ArithmeticFailure);
  line = kStuds;
  line.critical_frequency_hz = 0.0;
  EXPECT_THROW(SeaLineBridgeCoupling(line, Constant(0.05), coupling), ArithmeticFailure);
  SeaPointBridge point = kScrews;
  point.loss_factor = 0.0;
  EXPECT_THROW(SeaPointBridgeCoupling(point, Constant(0.05)), ArithmeticFailure);
  point = kScrews;
  point.count = -1;
  EXPECT_THROW(SeaPointBridgeCoupling(point, Constant(0.05)), ArithmeticFailure);
}

TEST(AddBridge, PutsTheTransmissionBesideTheLeaf) {
  HzSpectrum ratio = Constant(100.0);
  ratio[10] = 1.0;
  AddBridge(Constant(0.04), ratio);
  EXPECT_DOUBLE_EQ(ratio[1000], 20.0);  // 1 / (0.01 + 0.04)
  EXPECT_EQ(ratio[10], 1.0);            // never below 0 dB
  AddBridge(Constant(2.0), ratio);
  EXPECT_EQ(ratio[1000], 1.0);
}

}  // namespace
}  // namespace velmar::models
