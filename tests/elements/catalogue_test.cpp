#include "elements/catalogue.h"

#include <map>
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
  EXPECT_EQ(row.mark, GetParam().relation);
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
                                         Place{"Multilayer", "Multistrato generico", "MULTISTRATO",
                                               "verticale multistrato", 0, ElementButton::kDoubleWall},
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

// The relations 11 to 16 are the ones in which the thickness of the fibre stands.
TEST(Catalogue, ReadsTheFibreThicknessWhereARelationDoes) {
  std::set<int> marks;
  for (const CalculationRow& row : Catalogue()) {
    if (!row.Reads(Field::kFibreThickness)) continue;
    EXPECT_TRUE(marks.insert(row.mark).second) << row.variant;
  }
  EXPECT_EQ(marks, (std::set<int>{11, 12, 13, 14, 15, 16}));
}

TEST(Catalogue, AsksForSupportsWhereTheModelReadsThem) {
  using enum Calculation;
  const std::map<Calculation, Support> asked = {
      {kLightWallLineLine, Support::kStudDistance},
      {kLightWallLinePoint, Support::kStudDistance},
      {kLightWallPointPoint, Support::kStudDistance},
      {kDoubleWallSeaPlasterboardPoint, Support::kPointConnections},
      {kDoubleWallSeaPlasterboardLine, Support::kLineConnections},
      {kLiningFrame, Support::kLineConnections},
  };
  for (const CalculationRow& row : Catalogue()) {
    const auto expected = asked.find(row.calculation);
    EXPECT_EQ(row.support, expected == asked.end() ? Support::kNone : expected->second) << row.variant;
    EXPECT_EQ(row.Reads(Field::kDecoupling), row.calculation == kDoubleWallSeaBrick) << row.variant;
    EXPECT_EQ(row.Reads(Field::kHanger), row.calculation == kCeilingSea) << row.variant;
  }
}

TEST(Catalogue, OffersTheCavitiesThatAModelKnows) {
  using enum Calculation;
  EXPECT_EQ(RowOf(kCeilingSea).sea_cavity_types, 2);
  EXPECT_EQ(RowOf(kDoubleWallSeaBrick).sea_cavity_types, 7);
  EXPECT_FALSE(RowOf(kDoubleWallBrick).generic_cavity);
  EXPECT_FALSE(RowOf(kDoubleWallBrickTorvalle).generic_cavity);
  EXPECT_TRUE(RowOf(kDoubleWallGeneric).generic_cavity);
}

}  // namespace
}  // namespace velmar::elements
