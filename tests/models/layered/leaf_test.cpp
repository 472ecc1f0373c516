#include "models/layered/leaf.h"

#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "tests/models/layered/sample_elements.h"

namespace velmar::models {
namespace {

using std::numbers::pi;

TEST(LayeredLeaf, HasTheConstantsOfSixMillimetresOfGlass) {
  const LeafProperties pane = FindLeafProperties(LayeredPlate{{Glass(0.006)}});
  EXPECT_NEAR(pane.mass_kg_m2, 15.0, 1e-12);
  EXPECT_NEAR(pane.bending_n_m, 1292.4, 0.05);
  EXPECT_NEAR(pane.shear_n_m, 1.382e8, 5e4);
  EXPECT_NEAR(pane.critical_frequency_hz, 2020.0, 0.5);
  EXPECT_DOUBLE_EQ(pane.loss_factor, 0.05);
}

// Hopkins, Sound Insulation (2007), table A2: quasi-longitudinal speed in m/s, thickness times critical
// frequency in m·Hz, for air of 343 m/s.
TEST(LayeredLeaf, MeetsPublishedCriticalFrequencies) {
  constexpr double kRows[][2] = {{1900, 34.1}, {5100, 12.7}, {2700, 24.0}, {2200, 29.5}, {3800, 17.1},
                                 {5200, 12.5}, {2560, 25.3}, {1490, 43.5}, {5270, 12.3}, {5000, 13.0}};
  for (const auto& [speed, product] : kRows) {
    const double density = 1000.0;
    const SolidLayer plate{0.01, density, speed * speed * density * (1.0 - 0.09), 0.3, 0.01};
    const double fc = FindLeafProperties(LayeredPlate{{plate}}).critical_frequency_hz;
    EXPECT_NEAR(fc * 0.01, product, 0.006 * product) << speed;
  }
}

TEST(LayeredLeaf, OfTwoBondedHalvesIsOne) {
  const LeafProperties whole = FindLeafProperties(LayeredPlate{{Concrete(0.2)}});
  const LeafProperties halves = FindLeafProperties(LayeredPlate{{Concrete(0.1), Concrete(0.1)}});
  EXPECT_NEAR(halves.bending_n_m / whole.bending_n_m, 1.0, 1e-12);
  EXPECT_NEAR(halves.shear_n_m / whole.shear_n_m, 1.0, 1e-12);
  EXPECT_NEAR(halves.loss_factor, whole.loss_factor, 1e-15);
  const LayeredPrediction one = Predicted(Pane(LayeredPlate{{Concrete(0.2)}}));
  const LayeredPrediction two = Predicted(Pane(LayeredPlate{{Concrete(0.1), Concrete(0.1)}}));
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    EXPECT_NEAR(one.reduction_index_db[band], two.reduction_index_db[band], 1e-9);
  }
}

TEST(LayeredLeaf, OfSlippingBoardsKeepsTheCoincidenceOfOne) {
  const LeafProperties one = FindLeafProperties(LayeredPlate{{Board(0.0125)}});
  const LeafProperties two =
      FindLeafProperties(LayeredPlate{{Board(0.0125), Board(0.0125)}, LeafJoint::kSlipping});
  EXPECT_NEAR(two.critical_frequency_hz, one.critical_frequency_hz, 1e-9);
  EXPECT_NEAR(two.bending_n_m, 2.0 * one.bending_n_m, 1e-9);
  EXPECT_NEAR(two.mass_kg_m2, 2.0 * one.mass_kg_m2, 1e-12);
}

TEST(LayeredLeaf, LosesMoreAtTheEdgesOfHeavyWalls) {
  const LeafProperties wall = FindLeafProperties(LayeredPlate{{Concrete(0.2)}});
  EXPECT_NEAR(LeafLossFactor(wall, 100.0), 0.006 + 0.03 + 460.0 / 4850.0, 1e-12);
  const LeafProperties board = FindLeafProperties(LayeredPlate{{Board(0.0125)}});
  EXPECT_DOUBLE_EQ(LeafLossFactor(board, 100.0), 0.03);
  EXPECT_DOUBLE_EQ(MountedLossFactor(SolidKind::kWood, 0.01), 0.03);
  EXPECT_DOUBLE_EQ(MountedLossFactor(SolidKind::kWood, 0.05), 0.05);
  EXPECT_DOUBLE_EQ(MountedLossFactor(SolidKind::kMetal, 0.001), 0.02);
  EXPECT_DOUBLE_EQ(MountedLossFactor(SolidKind::kOther, 0.001), 0.001);
}

double Bending(const LeafProperties& leaf, double f, double k) { return DynamicBending(leaf, f, k).real(); }

TEST(LayeredLeaf, OfLaminatedGlassLiesBetweenLooseAndSolid) {
  Interlayer stiff{1e-5, 1070, 1e11, 0.0, 0.0};
  Interlayer soft{1e-5, 1070, 1e3, 0.0, 0.0};
  const auto pane = [](const Interlayer& sheet) {
    return FindLeafProperties(LaminatedPane{Glass(0.004), sheet, Glass(0.006)});
  };
  const double solid = FindLeafProperties(LayeredPlate{{Glass(0.004), Glass(0.006)}}).bending_n_m;
  const double loose =
      FindLeafProperties(LayeredPlate{{Glass(0.004), Glass(0.006)}, LeafJoint::kSlipping}).bending_n_m;
  EXPECT_NEAR(Bending(pane(stiff), 1000, 10) / solid, 1.0, 0.01);
  EXPECT_NEAR(Bending(pane(soft), 1000, 100) / loose, 1.0, 0.01);
  double before = solid;
  for (double k = 0.1; k < 200.0; k *= 1.5) {
    const double now = Bending(pane({0.00076, 1070, 4e7, 0.25, 0.8}), 1000, k);
    EXPECT_GT(now, loose);
    EXPECT_LT(now, before * 1.4);  // the sheet keeps the plies 0.76 mm further apart than in the solid plate
    before = now;
  }
}

TEST(LayeredLeaf, OfLaminatedGlassIsCoincidentWhereItsFreeWaveIsAsFastAsSound) {
  const LeafProperties pane =
      FindLeafProperties(LaminatedPane{Glass(0.004), kAcousticInterlayer, Glass(0.004)});
  const double fc = pane.critical_frequency_hz;
  const double k = 2.0 * pi * fc / 343.2;
  const double omega = 2.0 * pi * fc;
  EXPECT_NEAR(Bending(pane, fc, k) * std::pow(k, 4) / (omega * omega * pane.mass_kg_m2), 1.0, 1e-9);
  EXPECT_GT(fc, FindLeafProperties(LayeredPlate{{Glass(0.008)}}).critical_frequency_hz);
}

TEST(LayeredLeaf, OfAStiffCoreIsALaminatedPaneWhileTheSheetsCannotPart) {
  const SandwichCore core{0.001, 1000, 5e6, 5e12, 0.1};
  const Interlayer sheet{0.001, 1000, 5e6, 0.0, 0.1};
  const LayeredPrediction sandwich = Predicted(Pane(SandwichPanel{Glass(0.004), core, Glass(0.004)}));
  const LayeredPrediction laminated = Predicted(Pane(LaminatedPane{Glass(0.004), sheet, Glass(0.004)}));
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    EXPECT_NEAR(sandwich.reduction_index_db[band], laminated.reduction_index_db[band], 0.01) << band;
  }
}

TEST(LayeredLeaf, WithASoftCoreIsTransparentWhereTheSheetsPart) {
  const SandwichPanel panel{SteelSheet(0.001), {0.05, 60, 4e6, 1e7, 0.02}, SteelSheet(0.001)};
  const double face = 7.8 + 0.05 * 60 / 6.0;
  const double parting_hz = std::sqrt(1e7 / 0.05 / (face / 2.0)) / (2.0 * pi);  // 1110 Hz
  const acoustics::Spectrum r = Predicted(Pane(panel)).reduction_index_db;
  const std::size_t band = 13;
  EXPECT_NEAR(parting_hz, 1110.0, 15.0);
  const double dip = std::min({r[band], r[band + 1], r[band - 1]});
  EXPECT_LT(dip, r[band - 4]);
  EXPECT_LT(dip, r[band + 4]);
}

TEST(LayeredLeaf, WithTwoEqualStiffnessesIsIsotropic) {
  const SolidLayer sheet = SteelSheet(0.001);
  const double bending = FindLeafProperties(LayeredPlate{{sheet}}).bending_n_m;
  const LayeredPrediction plain = Predicted(Pane(LayeredPlate{{sheet}}));
  const LayeredPrediction both = Predicted(Pane(OrthotropicPlate{7.8, bending, bending, 0.001}));
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    EXPECT_NEAR(both.reduction_index_db[band], plain.reduction_index_db[band], 0.02) << band;
  }
}

TEST(LayeredLeaf, WithProfilesLosesInsulationFromTheLowerCoincidenceOn) {
  const SolidLayer sheet = SteelSheet(0.001);
  const double bending = FindLeafProperties(LayeredPlate{{sheet}}).bending_n_m;
  const acoustics::Spectrum flat = Predicted(Pane(LayeredPlate{{sheet}})).reduction_index_db;
  const acoustics::Spectrum profiled =
      Predicted(Pane(OrthotropicPlate{7.8, 1000.0 * bending, bending, 0.001})).reduction_index_db;
  // fc falls from 12 kHz to 390 Hz along the profiles.
  for (const std::size_t band : {11u, 13u, 15u, 17u}) EXPECT_LT(profiled[band], flat[band] - 3.0) << band;
}

// Timoshenko and Woinowsky-Krieger: a sine of 20 mm amplitude and 100 mm half wave in a sheet of 1 mm.
TEST(LayeredLeaf, OfAWavySheetIsStiffAlongTheWaves) {
  const OrthotropicPlate sheet = CorrugatedSheet(SteelSheet(0.001), 0.040, 0.200);
  const double own = FindLeafProperties(LayeredPlate{{SteelSheet(0.001)}}).bending_n_m;
  const double developed = 1.0 + pi * pi * 0.04 / 4.0;
  const double inertia = 0.5 * 4e-4 * 0.001 * (1.0 - 0.81 / 1.025);
  EXPECT_NEAR(sheet.mass_kg_m2, 7.8 * developed, 1e-9);
  EXPECT_NEAR(sheet.bending_soft_n_m, own / developed, 1e-9);
  EXPECT_NEAR(sheet.bending_stiff_n_m, 210e9 * inertia + own, 1e-6);
}

TEST(LayeredLeaf, TellsSolidsByTheirValues) {
  EXPECT_EQ(KindOfSolid(2500, 70e9, true), SolidKind::kGlass);
  EXPECT_EQ(KindOfSolid(2376, 69e9, false), SolidKind::kGlass) << "44.2";
  EXPECT_EQ(KindOfSolid(2376, 45e9, false), SolidKind::kGlass) << "44.2 with an acoustic interlayer";
  EXPECT_EQ(KindOfSolid(2350, 38e9, true), SolidKind::kMasonry) << "concrete";
  EXPECT_EQ(KindOfSolid(2350, 38e9, false), SolidKind::kMasonry) << "a thin sheet of concrete";
  EXPECT_EQ(KindOfSolid(2700, 70e9, false), SolidKind::kMetal);
  EXPECT_EQ(KindOfSolid(7800, 210e9, false), SolidKind::kMetal);
  EXPECT_EQ(KindOfSolid(850, 4.1e9, false), SolidKind::kPlasterboard);
  EXPECT_EQ(KindOfSolid(650, 7e9, false), SolidKind::kWood);
  EXPECT_EQ(KindOfSolid(850, 4.1e9, true), SolidKind::kMasonry);
  EXPECT_EQ(KindOfSolid(2300, 30e9, false), SolidKind::kMasonry);
  EXPECT_EQ(KindOfSolid(2000, 0.5e9, false), SolidKind::kOther);
}

}  // namespace
}  // namespace velmar::models
