#include "elements/catalogue.h"

#include <set>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

namespace velmar::elements {
namespace {

TEST(Catalogue, HoldsEachVariantOnceAndFindsIt) {
  std::set<std::string_view> variants;
  for (const CalculationRow& row : Catalogue()) {
    EXPECT_TRUE(variants.insert(row.variant).second) << row.variant;
    EXPECT_EQ(FindCalculation(row.variant), row.calculation);
    EXPECT_EQ(&RowOf(row.calculation), &row);
  }
  EXPECT_EQ(variants.size(), kCalculationCount);
}

TEST(Catalogue, ComparesTextsExactly) {
  EXPECT_EQ(FindCalculation("parete composta"), std::nullopt);
  EXPECT_EQ(FindCalculation("Vetrocamera "), std::nullopt);
  EXPECT_EQ(FindFamily("singola"), std::nullopt);
  EXPECT_EQ(FindFamily("SEA SINGOLO"), Family::kSeaSingle);
}

TEST(Catalogue, NoTwoEntriesShareAMenuPlace) {
  std::set<std::tuple<std::string_view, int>> places;
  for (const CalculationRow& row : Catalogue())
    EXPECT_TRUE(places.emplace(row.menu_group, row.menu_index).second);
}

struct Place {
  const char* name;
  const char* variant;
  const char* family;
  const char* orientation;
  int relation;
  ElementButton button;
};

class CataloguePlaceTest : public testing::TestWithParam<Place> {};

TEST_P(CataloguePlaceTest, StandsWhereStoredFilesExpectIt) {
  const CalculationRow& row = RowOf(*FindCalculation(GetParam().variant));
  EXPECT_EQ(FamilyText(row.family), GetParam().family);
  EXPECT_EQ(OrientationText(row.orientation), GetParam().orientation);
  EXPECT_EQ(row.relation, GetParam().relation);
  EXPECT_EQ(row.button, GetParam().button);
}

INSTANTIATE_TEST_SUITE_P(Variants, CataloguePlaceTest,
                         testing::Values(Place{"Floor", "Solaio in laterocemento", "SINGOLA",
                                               "orizzontale singola", 9, ElementButton::kSingleWall},
                                         Place{"FloatingFloor",
                                               "Solaio in laterocemento con pav. galleggiante", "DOPPIA",
                                               "orizzontale doppia", 17, ElementButton::kFloor},
                                         Place{"GenericInsulatingGlassIsLight", "Vetrocamera generico",
                                               "SHARP", "verticale doppia", 0, ElementButton::kDoubleWall},
                                         Place{"InsulatingGlassIsDouble", "Vetrocamera", "DOPPIA",
                                               "verticale doppia", 18, ElementButton::kDoubleWall},
                                         Place{"SingleSea", "Laterizio SEA singola", "SEA SINGOLO",
                                               "verticale singola", 0, ElementButton::kSingleWall},
                                         Place{"Lining", "Controplaccaggio generico", "CONTROPLACCAGGIO",
                                               "CONTROPLACCAGGIO", 28, ElementButton::kLining},
                                         Place{"Ceiling", "Controsoffitto SEA", "CONTROSOFFITTO",
                                               "CONTROSOFFITTO", 0, ElementButton::kCeiling},
                                         Place{"Facade", "Parete composta", "FACCIATA", "Parete composta", 0,
                                               ElementButton::kFacade},
                                         Place{"Impact", "Solaio in laterocemento gavelo", "CALPESTIO",
                                               "orizzontale doppia", 26, ElementButton::kFloor}),
                         [](const auto& test) { return test.param.name; });

TEST(Catalogue, RepeatsTheMarkOfRelation3ForTheConcreteWall) {
  const MessageLine theory = RowOf(Calculation::kSingleWallConcrete).theory.Line();
  EXPECT_EQ(std::get<MessageRow>(theory.at(0)).number, 142);
  EXPECT_EQ(std::get<std::string>(theory.at(1)), " [3]");
}

TEST(Catalogue, KnowsItsGlass) {
  int glazing = 0;
  for (const CalculationRow& row : Catalogue()) glazing += IsGlazing(row.calculation) ? 1 : 0;
  EXPECT_EQ(glazing, 7);
}

}  // namespace
}  // namespace velmar::elements
