#include "models/walls/double_wall.h"

#include <array>
#include <cmath>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/plates/plate_stack.h"
#include "models/plates/transmission.h"
#include "models/walls/cavity_filling.h"

namespace velmar::models {
namespace {

const PlateLayer kBoard{1, 12.5, 720, 2.5, 0.02, 0.2};
const PlateLayer kBrick{1, 80, 800, 3, 0.02, 0.2};
const CavityLayer kWool{1, 40, true, 0, 0, 0, 30, 200};
const CavityLayer kSheet{2, 10, false, 3, 0.03, 0.2, 700, 0};

DoubleWallInput Wall(CavityKind kind = CavityKind::kEmpty, double depth_m = 0.075) {
  return {{kBoard}, {kBrick}, {4, 3}, depth_m, kind, {}};
}

/// The total loss factor of a leaf of one layer at band `band`.
double Losses(const PlateLayer& layer, std::size_t band) {
  const PlateStack stack = SumLayers({&layer, 1});
  return TotalLossFactor(FindLossTerms(stack.mass_kg_m2, stack.internal_loss_factor,
                                       CriticalFrequency(stack, stack.mass_kg_m2), {4, 3}),
                         acoustics::BandCentre(band), 0);
}

Plate LeafPlate(const PlateLayer& layer, double loss_factor) {
  const PlateStack stack = SumLayers({&layer, 1});
  return {stack.mass_kg_m2, BendingStiffness(stack), loss_factor};
}

// m1 = 9 kg/m², m2 = 64 kg/m²: F0 = 84 sqrt((1/9 + 1/64) / 0.075) = 109.19 Hz, 60 instead of 84 when filled.
TEST(DoubleWall, LeavesItsLeavesAndItsResonance) {
  const DoubleWallResult wall = CalculateDoubleWall(Wall());
  EXPECT_DOUBLE_EQ(wall.leaf1.mass_kg_m2, 9);
  EXPECT_DOUBLE_EQ(wall.leaf2.mass_kg_m2, 64);
  EXPECT_NEAR(wall.resonance_hz, 84 * std::sqrt((1 / 9.0 + 1 / 64.0) / 0.075), 1e-10);
  EXPECT_DOUBLE_EQ(wall.critical_frequency_hz,
                   (wall.leaf1.critical_frequency_hz + wall.leaf2.critical_frequency_hz) / 2);
  EXPECT_NEAR(CalculateDoubleWall(Wall(CavityKind::kFibrous)).resonance_hz / wall.resonance_hz, 60 / 84.0,
              1e-12);
  EXPECT_NEAR(CalculateDoubleWall(Wall(CavityKind::kGenericMaterial)).resonance_hz / wall.resonance_hz,
              60 / 84.0, 1e-12);
}

TEST(DoubleWall, WithAnEmptyCavityKeepsEachLeafsLosses) {
  constexpr std::size_t kBand = 10;
  const std::array<Plate, 2> plates{LeafPlate(kBoard, Losses(kBoard, kBand)),
                                    LeafPlate(kBrick, Losses(kBrick, kBand))};
  EXPECT_NEAR(CalculateDoubleWall(Wall()).spectrum[kBand], BandR(500, plates, {0.075, 0, 6000}), 1e-11);
}

TEST(DoubleWall, WithFibresHasNoGapAndSharesTheLosses) {
  constexpr std::size_t kBand = 10;
  const double shared = Losses(kBoard, kBand) + Losses(kBrick, kBand);
  const std::array<Plate, 2> plates{LeafPlate(kBoard, shared), LeafPlate(kBrick, shared)};
  EXPECT_NEAR(CalculateDoubleWall(Wall(CavityKind::kFibrous)).spectrum[kBand],
              BandR(500, plates, {0, 0.075, 6000}), 1e-11);
}

// Wool of 40 mm with Rs = 200: 5000 Pa·s/m²; two sheets of 10 mm: t = 0.02 m, m3 = 14 kg/m²,
// B3 = 3e9 * 0.0004 / 0.96 * 0.02 / 12 = 2083.333 N·m, eta t = 0.0006; gap 0.15 - 0.02 - 0.04 = 0.09 m.
TEST(DoubleWall, WithCavityLayersHasAThirdPlate) {
  DoubleWallInput input = Wall(CavityKind::kGenericMaterial, 0.15);
  input.cavity_layers = {kWool, kSheet};
  const CavityFilling filling = FillCavity(input);
  EXPECT_NEAR(filling.cavity.flow_resistivity_pa_s_m2, 5000, 1e-9);
  EXPECT_NEAR(filling.cavity.porous_thickness_m, 0.04, 1e-15);
  EXPECT_NEAR(filling.cavity.depth_m, 0.09, 1e-15);
  EXPECT_NEAR(filling.solid.mass_kg_m2, 14, 1e-12);
  EXPECT_NEAR(filling.solid.bending_n_m, 2083.3333333, 1e-6);
  EXPECT_NEAR(filling.solid.loss_factor, 0.0006, 1e-15);

  constexpr std::size_t kBand = 10;
  const double eta3 = 14 / (std::sqrt(500.0) * 485) + 0.0006;
  const double shared = Losses(kBoard, kBand) + Losses(kBrick, kBand) + eta3;
  const std::array<Plate, 3> plates{LeafPlate(kBoard, shared), LeafPlate(kBrick, shared),
                                    Plate{14, filling.solid.bending_n_m, shared}};
  EXPECT_NEAR(CalculateDoubleWall(input).spectrum[kBand], BandR(500, plates, filling.cavity), 1e-11);
}

TEST(DoubleWall, AddsTheFlowResistivitiesOfItsAbsorbingLayers) {
  DoubleWallInput input = Wall(CavityKind::kGenericMaterial, 0.2);
  CavityLayer felt = kWool;
  felt.multiplicity = 2;
  felt.thickness_mm = 5;
  input.cavity_layers = {kWool, felt};
  EXPECT_NEAR(FillCavity(input).cavity.flow_resistivity_pa_s_m2, 200 / 0.04 + 200 / 0.01, 1e-9);
  EXPECT_NEAR(FillCavity(input).cavity.porous_thickness_m, 0.05, 1e-15);
}

TEST(DoubleWall, WithoutSolidLayerHasAThirdPlateOfNothing) {
  DoubleWallInput input = Wall(CavityKind::kGenericMaterial, 0.1);
  input.cavity_layers = {kWool};
  const CavityFilling filling = FillCavity(input);
  EXPECT_EQ(filling.solid.mass_kg_m2, 0);
  EXPECT_EQ(filling.solid.bending_n_m, 0);
  EXPECT_NO_THROW(CalculateDoubleWall(input));
  input.cavity_layers.clear();
  EXPECT_EQ(FillCavity(input).cavity.flow_resistivity_pa_s_m2, 1);
  EXPECT_NO_THROW(CalculateDoubleWall(input));
}

struct GapCase {
  const char* name;
  Cavity cavity;
  double depth_m;
};

class SmallestGapTest : public testing::TestWithParam<GapCase> {};

TEST_P(SmallestGapTest, RaisesTheGapAndLeavesThePorousLayer) {
  const Cavity raised = WithSmallestGap(GetParam().cavity);
  EXPECT_EQ(raised.depth_m, GetParam().depth_m);
  EXPECT_EQ(raised.porous_thickness_m, GetParam().cavity.porous_thickness_m);
}

INSTANTIATE_TEST_SUITE_P(Gaps, SmallestGapTest,
                         testing::Values(GapCase{"Empty2mm", {0.002, 0, 6000}, 0.005},
                                         GapCase{"Porous2mm", {0, 0.002, 6000}, 0.005},
                                         GapCase{"Exactly5mm", {0.005, 0, 6000}, 0.005},
                                         GapCase{"Porous5mm", {0, 0.005, 6000}, 0},
                                         GapCase{"SolidThickerThanTheCavity", {-0.03, 0.01, 6000}, 0.005},
                                         GapCase{"PorousThickerThanTheCavity", {-0.03, 0.1, 6000}, -0.03}),
                         [](const auto& test) { return test.param.name; });

TEST(DoubleWall, OfTwoMillimetresIsModelledAsFive) {
  // The loss factors, and F0 / 2 above every band, are the same; only the gap could differ.
  const DoubleWallResult thin = CalculateDoubleWall(Wall(CavityKind::kEmpty, 0.002));
  const std::array<Plate, 2> plates{LeafPlate(kBoard, Losses(kBoard, 20)),
                                    LeafPlate(kBrick, Losses(kBrick, 20))};
  EXPECT_NEAR(thin.spectrum[20], BandR(5000, plates, {0.005, 0, 6000}), 1e-11);
}

TEST(DoubleWall, IsNeverBetterThanTheJointPlateBelowHalfItsResonance) {
  // Two light boards close together: F0 = 84 sqrt(2 / 9 / 0.002) = 885 Hz.
  DoubleWallInput input = Wall(CavityKind::kEmpty, 0.002);
  input.leaf2 = input.leaf1;
  const DoubleWallResult wall = CalculateDoubleWall(input);
  const PlateStack stack = SumLayers(input.leaf1);
  const double bending = BendingStiffness(stack) / 0.0125 * 2 * 0.025;
  int limited = 0;
  for (std::size_t band = 0; band < 21; ++band) {
    const double f = acoustics::BandCentre(band);
    if (f >= wall.resonance_hz / 2) break;
    const double joint = BandR(f, Plate{18, bending, 2 * Losses(kBoard, band)});
    EXPECT_LE(wall.spectrum[band], joint + 1e-9);
    if (std::abs(wall.spectrum[band] - joint) < 1e-9) ++limited;
  }
  EXPECT_GT(wall.resonance_hz, 800);
  EXPECT_GT(limited, 0);
}

TEST(DoubleWall, FarBelowItsResonanceActsAsTheJointPlate) {
  // Impedances in series make a thin gap stiffer than it is: two plates alone would reach 41 dB at 50 Hz. The
  // joint plate brings the wall back to what it is there.
  DoubleWallInput input = Wall(CavityKind::kEmpty, 0.005);  // F0 = 423 Hz
  const DoubleWallResult wall = CalculateDoubleWall(input);
  const Plate board = LeafPlate(kBoard, Losses(kBoard, 0));
  const Plate brick = LeafPlate(kBrick, Losses(kBrick, 0));
  const Plate joint{73, (board.bending_n_m / 0.0125 + brick.bending_n_m / 0.08) * 0.0925,
                    board.loss_factor + brick.loss_factor};
  EXPECT_GT(BandR(50, std::array{board, brick}, {0.005, 0, 6000}), wall.spectrum[0] + 5);
  EXPECT_NEAR(wall.spectrum[0], BandR(50, joint), 1e-11);
}

TEST(DoubleWall, DoesNotTellItsLeavesApart) {
  DoubleWallInput input = Wall();
  DoubleWallInput turned = input;
  std::swap(turned.leaf1, turned.leaf2);
  const auto spectrum = CalculateDoubleWall(input).spectrum;
  const auto turned_spectrum = CalculateDoubleWall(turned).spectrum;
  for (std::size_t band = 0; band < 21; ++band) EXPECT_NEAR(spectrum[band], turned_spectrum[band], 1e-11);
}

TEST(DoubleWall, SwapsItsSidesFreely) {
  DoubleWallInput input = Wall(CavityKind::kFibrous);
  DoubleWallInput turned = input;
  std::swap(turned.dimensions.a_m, turned.dimensions.b_m);
  const auto spectrum = CalculateDoubleWall(input).spectrum;
  const auto turned_spectrum = CalculateDoubleWall(turned).spectrum;
  for (std::size_t band = 0; band < 21; ++band) EXPECT_NEAR(spectrum[band], turned_spectrum[band], 1e-11);
}

TEST(DoubleWall, ReadsCavityLayersOnlyWhenTheyFillTheCavity) {
  for (const CavityKind kind : {CavityKind::kEmpty, CavityKind::kFibrous}) {
    DoubleWallInput input = Wall(kind);
    const auto bare = CalculateDoubleWall(input).spectrum;
    input.cavity_layers = {kWool, kSheet};
    EXPECT_EQ(CalculateDoubleWall(input).spectrum, bare);
  }
}

TEST(DoubleWall, RefusesWhatIsNoWall) {
  EXPECT_THROW(CalculateDoubleWall(Wall(CavityKind::kEmpty, 0)), ArithmeticFailure);
  DoubleWallInput input = Wall(CavityKind::kGenericMaterial);
  input.cavity_layers = {kWool};
  input.cavity_layers[0].thickness_mm = 0;
  try {
    CalculateDoubleWall(input);
    FAIL() << "no failure";
  } catch (const ArithmeticFailure& failure) {
    EXPECT_EQ(failure.UserMessage().back(), MessageLine{kZeroCavityLayerRow});
  }
  input = Wall();
  input.leaf2.clear();
  EXPECT_THROW(CalculateDoubleWall(input), ArithmeticFailure);
}

}  // namespace
}  // namespace velmar::models
