#include "models/sea/double_sea_wall.h"

#include <cmath>
#include <stdexcept>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "tests/models/sea/constructions.h"

namespace velmar::models {
namespace {

DoubleSeaWallInput BrickWall() {
  return {.size = kWallSize,
          .total_thickness_mm = 300,
          .first_side = {Brick(), {}, {}},
          .second_side = {Brick(), {}, {}},
          .cavity = {.depth_mm = 60}};
}

DoubleSeaWallInput BoardWall(SeaConnectionKind kind = SeaConnectionKind::kLines) {
  return {.size = kWallSize,
          .total_thickness_mm = 125,
          .first_side = {Plasterboard(), Plasterboard(), {}},
          .second_side = {Plasterboard(), {}, {}},
          .cavity = {.type = SeaCavityType::kFibre, .depth_mm = 75, .fills = {MineralWool(), {}, {}}},
          .connection = {.kind = kind, .count = 5.0}};
}

acoustics::Spectrum Bands(const DoubleSeaWallInput& input) {
  return CalculateDoubleSeaWall(input).reduction_index_db;
}

struct DepthCase {
  std::optional<double> depth_mm{};
  double contents_mm = 0.0;
  std::optional<double> expected{};
};
class CavityDepth : public testing::TestWithParam<DepthCase> {};

TEST_P(CavityDepth, IsRaisedToItsContents) {
  EXPECT_EQ(RaisedCavityDepth(GetParam().depth_mm, GetParam().contents_mm), GetParam().expected);
}
INSTANTIATE_TEST_SUITE_P(Depths, CavityDepth,
                         testing::Values(DepthCase{50.0, 62.5, 62.5}, DepthCase{80.0, 62.5, 80.0},
                                         DepthCase{std::nullopt, 62.5, 62.5}, DepthCase{0.0, 0.0, 0.0},
                                         DepthCase{std::nullopt, 0.0, std::nullopt}));

TEST(CheckDoubleSeaWall, AsksForMoreThanAMillimetreOfCavity) {
  DoubleSeaWallInput wall = BrickWall();
  for (const double depth_mm : {0.0, 1.0, -20.0}) {
    wall.cavity.depth_mm = depth_mm;
    EXPECT_EQ(CheckDoubleSeaWall(wall), (Message{{MessageRow{231}}})) << depth_mm;
    EXPECT_THROW(CalculateDoubleSeaWall(wall), std::invalid_argument);
  }
  wall.cavity.depth_mm = 2.0;
  EXPECT_TRUE(CheckDoubleSeaWall(wall).empty());
}

TEST(CheckDoubleSeaWall, NamesTheFillsWithoutAbsorptionEachOnALine) {
  DoubleSeaWallInput wall = BoardWall();
  wall.cavity.type = SeaCavityType::kFibreMassFibre;
  wall.cavity.fills[1] = MineralWool(kNoAbsorption);
  wall.cavity.fills[1]->name = "Fibra B";
  EXPECT_EQ(CheckDoubleSeaWall(wall), (Message{{MessageRow{252}}, {"Fibra B"}}));
  wall.cavity.fills[0]->absorption[3] = kNoAbsorption;
  EXPECT_EQ(CheckDoubleSeaWall(wall), (Message{{MessageRow{252}}, {"Lana minerale"}, {"Fibra B"}}));
}

TEST(CheckDoubleSeaWall, AsksForTheNumberOfConnectionsWhereItIsRead) {
  DoubleSeaWallInput wall = BoardWall();
  wall.connection.count.reset();
  EXPECT_EQ(CheckDoubleSeaWall(wall), (Message{{MessageRow{254}}}));
  wall.connection.kind = SeaConnectionKind::kPoints;
  EXPECT_EQ(CheckDoubleSeaWall(wall), (Message{{MessageRow{253}}}));
  wall.connection.kind = SeaConnectionKind::kMasonryTies;
  EXPECT_TRUE(CheckDoubleSeaWall(wall).empty());
}

TEST(DoubleSeaWall, OfMasonryDoesNotReadTheNumberOfConnections) {
  DoubleSeaWallInput wall = BrickWall();
  const auto expected = Bands(wall);
  for (const std::optional<double> count : {std::optional<double>(0.0), std::optional<double>(70.0)}) {
    wall.connection.count = count;
    EXPECT_EQ(Bands(wall), expected);
  }
  wall.connection.is_decoupled = true;
  EXPECT_NE(Bands(wall), expected);
}

TEST(DoubleSeaWall, PutsTheConnectionOnTheLighterSideAndOnTheSecondOfEquals) {
  // The layer that the connection would hold on side 1 is missing: only there can it be missed.
  DoubleSeaWallInput wall = BoardWall();
  wall.connection.first_side_layer = 3;
  EXPECT_NO_THROW(CalculateDoubleSeaWall(wall)) << "side 1 is heavier";
  wall.first_side = {Plasterboard(), {}, {}};
  EXPECT_NO_THROW(CalculateDoubleSeaWall(wall)) << "both sides weigh the same";
  wall.second_side = {Plasterboard(), Plasterboard(), {}};
  try {
    CalculateDoubleSeaWall(wall);
    FAIL() << "side 1 is lighter";
  } catch (const ArithmeticFailure& failure) {
    EXPECT_EQ(LeadingRow(failure.UserMessage().back()), kNoConnectedLayerRow);
  }
}

TEST(DoubleSeaWall, FailsWhenTheFirstSlotOfTheCoupledSecondSideIsEmpty) {
  DoubleSeaWallInput wall = BoardWall();
  wall.second_side = {std::nullopt, Plasterboard(), {}};
  EXPECT_THROW(CalculateDoubleSeaWall(wall), ArithmeticFailure);
  wall.connection.kind = SeaConnectionKind::kMasonryTies;  // holds the heaviest layer, wherever it is
  EXPECT_NO_THROW(CalculateDoubleSeaWall(wall));
}

class Connections : public testing::TestWithParam<SeaConnectionKind> {};

TEST_P(Connections, TakeInsulationAwayTheMoreThereAre) {
  DoubleSeaWallInput wall = BoardWall(GetParam());
  wall.connection.count = 0.0;
  auto without = Bands(wall);
  for (const double count : {1.0, 5.0, 25.0}) {
    wall.connection.count = count;
    const auto with = Bands(wall);
    // Below the resonance of about 134 Hz the masses alone decide.
    EXPECT_EQ(with[0], without[0]);
    EXPECT_LT(with[12], without[12]);
    for (std::size_t i = 0; i < with.size(); ++i) EXPECT_LE(with[i], without[i]);
    without = with;
  }
}
INSTANTIATE_TEST_SUITE_P(Kinds, Connections,
                         testing::Values(SeaConnectionKind::kLines, SeaConnectionKind::kPoints));

TEST(DoubleSeaWall, WithoutConnectionsDoesNotCareOfWhichKindTheyAre) {
  DoubleSeaWallInput lines = BoardWall(SeaConnectionKind::kLines);
  DoubleSeaWallInput points = BoardWall(SeaConnectionKind::kPoints);
  lines.connection.count = points.connection.count = 0.0;
  EXPECT_EQ(Bands(lines), Bands(points));
}

TEST(DoubleSeaWall, RoundsTheNumberOfPointsToEven) {
  DoubleSeaWallInput wall = BoardWall(SeaConnectionKind::kPoints);
  wall.connection.count = 4.0;
  const auto four = Bands(wall);
  wall.connection.count = 4.5;
  EXPECT_EQ(Bands(wall), four);
  wall.connection.count = 5.5;
  EXPECT_NE(Bands(wall), four);
  wall.connection.count = 1e30;
  EXPECT_THROW(CalculateDoubleSeaWall(wall), ArithmeticFailure);
}

TEST(DoubleSeaWall, FollowsTheMassLawBelowItsResonance) {
  DoubleSeaWallInput wall = BoardWall();
  wall.cavity = {.depth_mm = 20};  // 27 kg/m² in all, resonance at 183 Hz
  double mean = 0.0;
  for (int f = 90; f <= 111; ++f) mean += (20.0 * std::log10(27.0 * f) - 48.0) / 22.0;
  EXPECT_NEAR(Bands(wall)[3], mean, 1e-9);
}

TEST(DoubleSeaWall, InsulatesBetterWithWoolAndWithMassInItsCavity) {
  DoubleSeaWallInput wall = BoardWall();
  wall.connection.count = 0.0;
  wall.cavity.depth_mm = 200;
  const auto wool = Bands(wall);
  wall.cavity.type = SeaCavityType::kEmpty;
  const auto empty = Bands(wall);
  wall.cavity.type = SeaCavityType::kFibreMass;
  wall.cavity.masses[0] = HungBoard();
  const auto mass = Bands(wall);
  for (std::size_t i = 6; i < wool.size(); ++i) {
    EXPECT_GT(wool[i], empty[i]);
    EXPECT_GT(mass[i], wool[i]);
  }
}

TEST(DoubleSeaWall, ReportsBothSides) {
  DoubleSeaWallInput wall = BoardWall();
  wall.first_side = {Brick(), {}, {}};
  wall.first_side[0]->damping[0] = BitumenSheet();
  const SeaWallOutcome outcome = CalculateDoubleSeaWall(wall);
  EXPECT_NEAR(outcome.critical_frequency_hz, 2914.490918472297, 1e-8);
  EXPECT_NEAR(outcome.surface_mass_kg_m2, 96.0 + 6.0 + 9.0, 1e-12);
  EXPECT_NEAR(outcome.loss_factor, (0.015 * 1.5 * 0.12 + 0.02 * 0.0125) / 0.125, 1e-15);
}

TEST(DoubleSeaWall, FailsWithoutLayersOnASide) {
  for (const bool first : {true, false}) {
    DoubleSeaWallInput wall = BrickWall();
    (first ? wall.first_side : wall.second_side) = {};
    try {
      CalculateDoubleSeaWall(wall);
      FAIL() << "a side without layers was calculated";
    } catch (const ArithmeticFailure& failure) {
      EXPECT_EQ(LeadingRow(failure.UserMessage().back()), kNoLayerRow);
    }
  }
}

}  // namespace
}  // namespace velmar::models
