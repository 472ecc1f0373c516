#include "elements/parts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmar::elements {
namespace {

using testing::ElementsAre;

void Set(LayerRow<StructuralMaterial>& row, const char* name) {
  row.slot = {.name = name, .thickness_mm = 10.0, .density_kg_m3 = 1000.0};
}

std::vector<std::pair<int, std::string>> Told(const std::vector<Part>& parts) {
  std::vector<std::pair<int, std::string>> told;
  for (const Part& part : parts) {
    for (const Layer& layer : part.layers) told.emplace_back(layer.number, layer.name);
  }
  return told;
}

elements::Setup Floor() {
  elements::Setup setup;
  setup.calculation = Calculation::kImpactFloatingFloor;
  setup.leaf1.count = 2;
  Set(setup.leaf1.rows[0], "Intonaco");
  Set(setup.leaf1.rows[1], "Soletta");
  setup.resilient.rows[0].slot = {.name = "Gomma", .thickness_mm = 8.0};
  setup.leaf2.count = 2;
  Set(setup.leaf2.rows[0], "Massetto");
  Set(setup.leaf2.rows[1], "Piastrella");
  return setup;
}

using P = std::pair<int, std::string>;

TEST(Parts, AreNumberedFromTheBearingFloorAndStandWithTheFinishOnTop) {
  EXPECT_THAT(Told(PartsOf(Floor())), ElementsAre(P{1, "Intonaco"}, P{2, "Soletta"}, P{3, "Gomma"},
                                                  P{4, "Massetto"}, P{5, "Piastrella"}));
  EXPECT_THAT(Told(PartsAsTheyStand(Floor())), ElementsAre(P{5, "Piastrella"}, P{4, "Massetto"},
                                                           P{3, "Gomma"}, P{2, "Soletta"}, P{1, "Intonaco"}));
}

elements::Setup Lining(Calculation calculation) {
  elements::Setup setup;
  setup.calculation = calculation;
  setup.base.name = "Base";
  setup.base.mass_kg_m2 = 300.0F;
  setup.sea_cavity.type = SeaCavityType::kFibre;
  setup.sea_cavity.depth_text = "50";
  setup.sea_cavity.fibres[0].slot.name = "Lana";
  setup.sea_leaf2.count = 2;
  Set(setup.sea_leaf2.rows[0], "Lastra");
  Set(setup.sea_leaf2.rows[1], "Seconda lastra");
  setup.sea_leaf2.damping[2].ticked = true;
  Set(setup.sea_leaf2.damping[2].row, "Lamina");
  return setup;
}

// The base of a ceiling is above it, so the order of the calculation is the one in which it stands.
TEST(Parts, OfALiningBeginWithTheBaseOnEveryPage) {
  for (const Calculation calculation : {Calculation::kLiningCalibel, Calculation::kCeilingSea}) {
    const elements::Setup setup = Lining(calculation);
    EXPECT_THAT(Told(PartsAsTheyStand(setup)), ElementsAre(P{1, "Base"}, P{2, "Lana"}, P{3, "Lastra"},
                                                           P{4, "Lamina"}, P{5, "Seconda lastra"}));
    EXPECT_EQ(Told(PartsOf(setup)), Told(PartsAsTheyStand(setup)));
    EXPECT_EQ(PartsOf(setup).front().layers.front().thickness_mm, 200.0);
  }
}

TEST(Parts, PutTheContentsOfACavityInTheOrderOfItsType) {
  elements::Setup setup;
  setup.calculation = Calculation::kDoubleWallSeaBrick;
  Set(setup.sea_leaf1.rows[0], "Mattone");
  Set(setup.sea_leaf2.rows[0], "Forato");
  setup.sea_cavity.type = SeaCavityType::kMassFibreMass;
  setup.sea_cavity.fibres[0].slot.name = "Lana";
  Set(setup.sea_cavity.masses[0], "OSB");
  Set(setup.sea_cavity.masses[1], "Gesso");
  setup.sea_cavity.mass_damping[1].ticked = true;
  Set(setup.sea_cavity.mass_damping[1].row, "Lamina");
  EXPECT_THAT(Told(PartsOf(setup)), ElementsAre(P{1, "Mattone"}, P{2, "OSB"}, P{3, "Lana"}, P{4, "Gesso"},
                                                P{5, "Lamina"}, P{6, "Forato"}));
}

TEST(Parts, FillACavityWithFibreWhereNoThicknessOfItsOwnIsRead) {
  elements::Setup setup;
  setup.cavity.kind = CavityKind::kFibrous;
  setup.cavity.depth_text = "100";
  setup.cavity.fibre_text = "60";
  setup.calculation = Calculation::kDoubleWallGeneric;
  EXPECT_EQ(PartOf(setup, Stack::kCavity).fibre_mm, 100.0);
  setup.calculation = Calculation::kDoubleWallPlasterboardMultipleBoardSimpleFrame;
  EXPECT_EQ(PartOf(setup, Stack::kCavity).fibre_mm, 60.0);
  setup.cavity.kind = CavityKind::kEmpty;
  EXPECT_EQ(PartOf(setup, Stack::kCavity).fibre_mm, std::nullopt);
}

TEST(Parts, CountTheFibreOfACavityBetweenItsLeaves) {
  elements::Setup setup;
  setup.calculation = Calculation::kDoubleWallGeneric;
  setup.leaf1.count = 2;
  setup.leaf2.count = 1;
  setup.cavity.kind = CavityKind::kFibrous;
  setup.cavity.depth_text = "50";
  EXPECT_EQ(FibreNumberOf(setup), 3);
  EXPECT_EQ(NumberOf(setup, LayerGroup::kLeaf2, 0), 4);
  setup.cavity.kind = CavityKind::kEmpty;
  EXPECT_EQ(FibreNumberOf(setup), 0);
  EXPECT_EQ(NumberOf(setup, LayerGroup::kLeaf2, 0), 3) << "air is no layer";
}

TEST(Parts, OfAFacadeAreItsOpaquePartAndTheComponentsInUse) {
  elements::Setup setup;
  setup.calculation = Calculation::kCompositeElement;
  setup.facade.count_text = "2";
  setup.base.name = "Muro";
  setup.facade.components[0].name = "Finestra";
  setup.facade.components[1].name = "Bocchetta";
  EXPECT_THAT(Told(PartsOf(setup)), ElementsAre(P{1, "Muro"}, P{2, "Finestra"}, P{3, "Bocchetta"}));
}

TEST(Parts, TellTheNumberOfARow) {
  const elements::Setup floor = Floor();
  EXPECT_EQ(NumberOf(floor, LayerGroup::kLeaf2, 1), 5);
  EXPECT_EQ(NumberOf(floor, LayerGroup::kLeaf2, 2), 0) << "a row that is not in use";
  EXPECT_EQ(NumberOf(floor, LayerGroup::kSeaLeaf1, 0), 0) << "a stack of another element";
}

TEST(Parts, OfNothingChosenAreNone) { EXPECT_TRUE(PartsOf({}).empty()); }

TEST(Parts, NumberEveryRowInUseOfEveryCalculation) {
  elements::Setup setup = Floor();
  setup.sea_leaf1.count = 3;
  for (const CalculationRow& row : Catalogue()) {
    setup.calculation = row.calculation;
    int number = 0;
    for (const Part& part : PartsOf(setup)) {
      if (part.fibre_mm) {
        EXPECT_EQ(part.fibre_number, ++number) << row.variant;
      }
      for (const Layer& layer : part.layers) EXPECT_EQ(layer.number, ++number) << row.variant;
    }
    EXPECT_GT(number, 0) << row.variant;
  }
}

TEST(Parts, OfAFreeListAreLeavesAndCavitiesInTurn) {
  elements::Setup setup;
  setup.calculation = Calculation::kMultilayerGeneric;
  auto& strata = setup.multilayer.strata;
  setup.multilayer.count = 7;
  Set(strata[0].solid, "Vetro");
  strata[1].kind = StratumKind::kInterlayer;
  strata[1].thickness_text = "0,76";
  Set(strata[2].solid, "Vetro");
  strata[3].kind = StratumKind::kAir;
  strata[3].thickness_text = "15";
  strata[4].kind = StratumKind::kFibre;
  strata[4].fibre.slot = {.name = "Lana", .thickness_mm = 60.0, .density_kg_m3 = 40.0};
  Set(strata[5].solid, "Lamiera");
  strata[5].kind = StratumKind::kProfiledSheet;
  strata[5].profile_height_text = "40";
  strata[5].profile_pitch_text = "40";
  strata[6].kind = StratumKind::kAir;
  const std::vector<Part> parts = PartsOf(setup);
  EXPECT_THAT(Told(parts),
              ElementsAre(P{1, "Vetro"}, P{2, "PVB"}, P{3, "Vetro"}, P{4, "Lana"}, P{5, "Lamiera"}));
  ASSERT_EQ(parts.size(), 5U);
  EXPECT_EQ(parts[0].leaf, 1);
  EXPECT_EQ(parts[1].depth_mm, 15.0);
  EXPECT_EQ(parts[1].stratum, 3);
  EXPECT_EQ(parts[2].depth_mm, 60.0);
  EXPECT_EQ(parts[3].leaf, 2);
  EXPECT_NEAR(parts[0].ThicknessMm(), 20.76, 1e-12);
  EXPECT_NEAR(parts[0].MassKgM2(), 20.0 + 1.07 * 0.76, 1e-12);
  // A wave as high as its pitch is 1 + pi²/4 times as long as what it covers.
  EXPECT_NEAR(parts[3].MassKgM2(), 10.0 * (1.0 + 9.8696044 / 4.0), 1e-6);
}

}  // namespace
}  // namespace velmar::elements
