#include "presentation/drawing/section.h"

#include <numeric>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/presentation/sample_setups.h"

namespace velmar::presentation {
namespace {

using elements::Calculation;
using elements::LayerGroup;
using elements::SeaCavityType;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using enum MaterialKind;

std::vector<MaterialKind> KindsOf(const Section& section) {
  std::vector<MaterialKind> kinds;
  for (const Strip& strip : section.strips) kinds.push_back(strip.kind);
  return kinds;
}

std::vector<double> ThicknessesOf(const Section& section) {
  std::vector<double> thicknesses;
  for (const Strip& strip : section.strips) thicknesses.push_back(strip.thickness_mm);
  return thicknesses;
}

std::vector<int> NumbersOf(const Section& section) {
  std::vector<int> numbers;
  for (const Strip& strip : section.strips) numbers.push_back(strip.number);
  return numbers;
}

/// Strips must follow each other without gap or overlap and fill the thickness.
void ExpectWhole(const Section& section) {
  double position = 0.0;
  for (const Strip& strip : section.strips) {
    EXPECT_DOUBLE_EQ(strip.position_mm, position);
    EXPECT_GT(strip.thickness_mm, 0.0);
    position += strip.thickness_mm;
  }
  EXPECT_NEAR(section.thickness_mm, position, 1e-9);
}

TEST(SectionOf, StandsOnItsRowsInOrder) {
  const Section section = SectionOf(samples::PlasteredBrickWall());
  ExpectWhole(section);
  EXPECT_FALSE(section.horizontal);
  EXPECT_THAT(KindsOf(section), ElementsAre(kPlaster, kBrick, kPlaster));
  EXPECT_THAT(ThicknessesOf(section), ElementsAre(15.0, 120.0, 15.0));
  EXPECT_EQ(section.strips[1].name, "Laterizio forato leggero 8-12 cm");
  EXPECT_EQ(NumberOf(section, {LayerGroup::kLeaf1, 2}), 3);
  EXPECT_EQ(NumberOf(section, {LayerGroup::kLeaf2, 0}), 0);
}

TEST(SectionOf, GivesARowOfThreeLayersThreeStripsAndOneNumber) {
  elements::Setup setup = samples::PlasteredBrickWall();
  setup.leaf1.rows[1].multiplicity = 3;
  const Section section = SectionOf(setup);
  EXPECT_THAT(ThicknessesOf(section), ElementsAre(15.0, 120.0, 120.0, 120.0, 15.0));
  EXPECT_THAT(NumbersOf(section), ElementsAre(1, 2, 2, 2, 3));
}

TEST(SectionOf, PutsTheCavityBetweenTheLeaves) {
  const Section section = SectionOf(samples::PlasterboardDoubleWall());
  ExpectWhole(section);
  EXPECT_THAT(KindsOf(section),
              ElementsAre(kPlasterboard, kPlasterboard, kWool, kAir, kPlasterboard, kPlasterboard));
  EXPECT_THAT(ThicknessesOf(section), ElementsAre(12.5, 12.5, 60.0, 40.0, 12.5, 12.5));
  EXPECT_THAT(NumbersOf(section), ElementsAre(1, 1, 2, 0, 3, 4)) << "the fibre is counted, air is not";
}

TEST(SectionOf, NamesTheFibreOfACavity) {
  const Section section = SectionOf(samples::PlasterboardDoubleWall(), CatalogueWords());
  EXPECT_EQ(section.strips[2].name, "Intercapedine con materiale fibroso o poroso");
  EXPECT_EQ(section.strips[3].name, "");
  EXPECT_EQ(SectionOf(samples::PlasterboardDoubleWall()).strips[2].name, "");
}

struct CavityCase {
  const char* name;
  Calculation calculation;
  elements::CavityKind kind;
  const char* depth;
  const char* fibre;
  std::vector<MaterialKind> kinds;
  std::vector<double> thicknesses;
};

class CavityTest : public testing::TestWithParam<CavityCase> {};

TEST_P(CavityTest, IsFilledAsItsKindSays) {
  elements::Setup setup = samples::PlasterboardDoubleWall();
  setup.calculation = GetParam().calculation;
  setup.leaf1.rows[0].multiplicity = 1;
  setup.leaf2.count = 1;
  setup.cavity.kind = GetParam().kind;
  setup.cavity.depth_text = GetParam().depth;
  setup.cavity.fibre_text = GetParam().fibre;
  setup.cavity.layers.count = 2;
  samples::SetRow(setup.cavity.layers.rows[0], "Lana di vetro 24", 30.0, 24.0);
  samples::SetRow(setup.cavity.layers.rows[1], "Polistirene espanso (EPS)", 10.0, 20.0, 2);
  Section section = SectionOf(setup);
  ExpectWhole(section);
  section.strips.erase(section.strips.begin());
  section.strips.pop_back();
  EXPECT_THAT(KindsOf(section), ElementsAreArray(GetParam().kinds));
  EXPECT_THAT(ThicknessesOf(section), ElementsAreArray(GetParam().thicknesses));
}

using enum elements::CavityKind;
constexpr Calculation kGenericWall = Calculation::kDoubleWallGeneric;
constexpr Calculation kSeparateStuds = Calculation::kDoubleWallPlasterboardSeparateStuds;
constexpr auto kRows = elements::CavityKind::kGenericMaterial;

INSTANTIATE_TEST_SUITE_P(
    Cavities, CavityTest,
    testing::Values(
        CavityCase{"Empty", kGenericWall, elements::CavityKind::kEmpty, "50", "30", {kAir}, {50.0}},
        CavityCase{"FibreFillsIt", kGenericWall, kFibrous, "50", "0", {kWool}, {50.0}},
        CavityCase{
            "FibreThicknessWhereItIsRead", kSeparateStuds, kFibrous, "50", "30", {kWool, kAir}, {30.0, 20.0}},
        CavityCase{"FibreOfNoThickness", kSeparateStuds, kFibrous, "50", "0", {kAir}, {50.0}},
        CavityCase{
            "Rows", kGenericWall, kRows, "60", "0", {kWool, kFoam, kFoam, kAir}, {30.0, 10.0, 10.0, 10.0}},
        CavityCase{"RowsCutAtTheLeaf", kGenericWall, kRows, "35", "0", {kWool, kFoam}, {30.0, 5.0}},
        CavityCase{"DecimalComma", kGenericWall, kFibrous, "12,5", "0", {kWool}, {12.5}},
        CavityCase{"NoDepth", kGenericWall, kFibrous, "0", "0", {}, {}},
        CavityCase{"NegativeDepth", kGenericWall, kFibrous, "-5", "0", {}, {}},
        CavityCase{"BlankDepth", kGenericWall, kRows, "", "0", {}, {}}),
    [](const auto& test) { return test.param.name; });

TEST(SectionOf, LaysAFloorDownwardsFromItsFinish) {
  const Section section = SectionOf(samples::FloatingFloor());
  ExpectWhole(section);
  EXPECT_TRUE(section.horizontal);
  EXPECT_THAT(KindsOf(section), ElementsAre(kStone, kScreed, kResilient, kScreed, kConcrete, kPlaster));
  EXPECT_EQ(NumberOf(section, {LayerGroup::kResilient, 0}), 4);
  EXPECT_EQ(NumberOf(section, {LayerGroup::kLeaf2, 1}), 6);
}

TEST(SectionOf, PutsDampingOnItsSide) {
  elements::Setup setup = samples::FullSeaWall();
  setup.calculation = Calculation::kSingleWallSea;
  setup.sea_leaf1.damping[2].ticked = true;
  samples::SetRow(setup.sea_leaf1.damping[2].row, "Lamina smorzante", 2.0, 1360.0);
  const Section section = SectionOf(setup);
  ExpectWhole(section);
  EXPECT_THAT(ThicknessesOf(section), ElementsAre(12.5, 4.0, 2.0, 10.0));
  EXPECT_THAT(KindsOf(section), ElementsAre(kPlasterboard, kDamping, kDamping, kPlasterboard));
  EXPECT_EQ(section.strips[1].place, (LayerPlace{LayerGroup::kSeaDamping1, 1}));
}

class SeaCavityTest : public testing::TestWithParam<std::pair<SeaCavityType, std::vector<MaterialKind>>> {};

TEST_P(SeaCavityTest, FollowsItsType) {
  elements::Setup setup = samples::FullSeaWall();
  setup.sea_cavity.type = GetParam().first;
  const Section section = SectionOf(setup);
  ExpectWhole(section);
  EXPECT_DOUBLE_EQ(section.thickness_mm, 12.5 + 4.0 + 10.0 + 180.0 + 3.0 + 12.5);
  std::vector<MaterialKind> kinds = KindsOf(section);
  kinds.erase(kinds.begin(), kinds.begin() + 3);
  kinds.resize(kinds.size() - 2);
  EXPECT_THAT(kinds, ElementsAreArray(GetParam().second));
}

INSTANTIATE_TEST_SUITE_P(
    Types, SeaCavityTest,
    testing::Values(
        std::pair{SeaCavityType::kEmpty, std::vector{kAir}},
        std::pair{SeaCavityType::kFibre, std::vector{kWool, kAir}},
        std::pair{SeaCavityType::kFibreMass, std::vector{kWool, kWood, kDamping, kAir}},
        std::pair{SeaCavityType::kMassFibreMass, std::vector{kWood, kDamping, kWool, kPlasterboard, kAir}},
        std::pair{SeaCavityType::kFibreMassFibre, std::vector{kWool, kWood, kDamping, kWool, kAir}},
        std::pair{SeaCavityType::kFibreMassFibreMass,
                  std::vector{kWool, kWood, kDamping, kWool, kPlasterboard, kAir}},
        std::pair{SeaCavityType::kFibreMassFibreMassFibre,
                  std::vector{kWool, kWood, kDamping, kWool, kPlasterboard, kWool, kAir}}));

TEST(SectionOf, BeginsALiningWithItsBase) {
  elements::Setup setup = samples::Lining(Calculation::kLiningFrame);
  Section section = SectionOf(setup);
  ExpectWhole(section);
  EXPECT_THAT(KindsOf(section), ElementsAre(kBrick, kWool, kAir, kPlasterboard, kDamping, kPlasterboard));
  EXPECT_DOUBLE_EQ(section.strips.front().thickness_mm, 250.0);
  EXPECT_EQ(section.strips.front().name, setup.base.name);
  setup.base.thickness_mm = 0.0;
  EXPECT_DOUBLE_EQ(SectionOf(setup).strips.front().thickness_mm, 200.0);
  EXPECT_FALSE(SectionOf(setup).horizontal);
  setup.calculation = Calculation::kCeilingSea;
  EXPECT_TRUE(SectionOf(setup).horizontal) << "the floor above, the ceiling below";
  EXPECT_EQ(SectionOf(setup).strips.front().name, setup.base.name);
}

TEST(SectionOf, IsEmptyWithoutThicknessCalculationOrLayers) {
  EXPECT_THAT(SectionOf({}).strips, IsEmpty());
  EXPECT_THAT(SectionOf(samples::FacadeOfNine()).strips, IsEmpty());
  elements::Setup setup = samples::PlasteredBrickWall();
  for (auto& row : setup.leaf1.rows) row.slot.thickness_mm = 0.0;
  EXPECT_THAT(SectionOf(setup).strips, IsEmpty());
  EXPECT_DOUBLE_EQ(SectionOf(setup).thickness_mm, 0.0);
}

TEST(SectionOf, DrawsEveryCalculationOfAFilledSetup) {
  elements::Setup setup = samples::FloatingFloor();
  setup.sea_leaf1 = samples::FullSeaWall().sea_leaf1;
  setup.sea_leaf2 = samples::FullSeaWall().sea_leaf2;
  for (const elements::CalculationRow& row : elements::Catalogue()) {
    setup.calculation = row.calculation;
    const Section section = SectionOf(setup);
    ExpectWhole(section);
    EXPECT_EQ(section.strips.empty(), row.family == elements::Family::kFacade) << row.variant;
  }
}

TEST(SpanOf, ScalesTheElementToItsUnits) {
  const StripSpan first = SpanOf({.position_mm = 0.0, .thickness_mm = 15.0}, 150.0);
  EXPECT_DOUBLE_EQ(first.from, 10.0);
  EXPECT_DOUBLE_EQ(first.to, 109.0);
  EXPECT_DOUBLE_EQ(SpanOf({.position_mm = 135.0, .thickness_mm = 15.0}, 150.0).to, 1000.0);
}

}  // namespace
}  // namespace velmar::presentation
