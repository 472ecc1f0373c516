#include <gtest/gtest.h>

#include "presentation/texts/calculation_labels.h"
#include "presentation/texts/facade_texts.h"
#include "presentation/texts/field_texts.h"
#include "presentation/texts/structure.h"
#include "tests/presentation/sample_setups.h"

namespace velmar::presentation {
namespace {

using elements::Calculation;
using elements::SeaCavityType;

std::string Say(MessageRow row) { return "<" + std::to_string(row.number) + ">"; }

TEST(CalculationLabels, StandWithoutTheirColon) {
  EXPECT_EQ(TheoryText(Calculation::kDoubleWallBrick, Say), "<142> [10]");
  EXPECT_EQ(TheoryText(Calculation::kCeilingSea, Say), "SEA");
  EXPECT_EQ(ElementTypeText(Calculation::kCeilingSea, Say), "<115>");
  EXPECT_EQ(ElementTypeText(Calculation::kDoubleWallConcrete, Say), "Parete doppia in calcestruzzo");
  EXPECT_EQ(TitleOf(elements::Family::kLining, Say), "<274>");
  EXPECT_EQ(TitleOf(elements::Family::kFacade, Say), "<275>");
  EXPECT_EQ(TitleOf(elements::Family::kImpact, Say), "<276>");
}

TEST(SeaCavityTypeText, JoinsTheTwoWords) {
  EXPECT_EQ(SeaCavityTypeText(SeaCavityType::kEmpty, Say), "<156>");
  EXPECT_EQ(SeaCavityTypeText(SeaCavityType::kFibre, Say), "<157>");
  EXPECT_EQ(SeaCavityTypeText(SeaCavityType::kMassFibreMass, Say), "<158>+ <157>+ <158>");
  EXPECT_EQ(SeaCavityTypeText(SeaCavityType::kFibreMassFibreMassFibre, Say),
            "<157>+ <158>+ <157>+ <158>+ <157>");
}

TEST(HangerText, KnowsThreeHangers) {
  EXPECT_EQ(HangerText(0, Say), "<415>");
  EXPECT_EQ(HangerText(2, Say), "<417>");
  EXPECT_EQ(HangerText(-1, Say), "");
  EXPECT_EQ(HangerText(3, Say), "");
}

TEST(ShareText, GivesThePartOfTheFacade) {
  elements::Setup setup = samples::FacadeOfNine();
  setup.base.area_text = "-20.0";
  setup.facade.count_text = "2";
  setup.facade.components[0].area_text = "2,5";
  setup.facade.components[1].area_text = "-";
  EXPECT_DOUBLE_EQ(FacadeArea(setup), 20.0);
  EXPECT_DOUBLE_EQ(OpaqueArea(setup), 17.5);
  EXPECT_EQ(ShareText(setup, 2.5), "12,5%");
  EXPECT_EQ(ShareText(setup, OpaqueArea(setup)), "87,5%");
  EXPECT_EQ(ShareText(setup, ComponentArea(setup.facade.components[1])), "0,0%");
  setup.base.area_text.clear();
  EXPECT_EQ(ShareText(setup, 2.5), "");
}

TEST(TightnessText, NamesFiveClasses) {
  EXPECT_EQ(TightnessText(0, Say), "<99>");
  EXPECT_EQ(TightnessText(4, Say), "<165> 4");
}

TEST(Structure, ListsADoubleWallWithItsAirGap) {
  const auto blocks = StructureOf(samples::PlasterboardDoubleWall(), Say);
  ASSERT_EQ(blocks.size(), 3U);
  EXPECT_EQ(blocks[0].heading, "<160>");
  EXPECT_EQ(blocks[0].mass, "m'= 21,2 kg/m²");
  EXPECT_EQ(blocks[0].lines[0], (StructureLine{1, "Cartongesso standard", "12,5mm X 2"}));
  EXPECT_EQ(blocks[1].lines[0], (StructureLine{0, "<262> 100mm", ""}));
  EXPECT_EQ(blocks[1].lines[1], (StructureLine{2, "<225>", "60mm"}));
  EXPECT_EQ(blocks[2].lines[1], (StructureLine{4, "Cartongesso standard", "12,5mm"}));
}

TEST(Structure, FollowsTheOrderOfEachElement) {
  EXPECT_EQ(StructureOf(samples::PlasteredBrickWall(), Say).size(), 1U);
  const auto floor = StructureOf(samples::FloatingFloor(), Say);
  ASSERT_EQ(floor.size(), 3U);
  EXPECT_EQ(floor[0].heading, "<175>");
  EXPECT_EQ(floor[0].lines[0], (StructureLine{6, "Piastrella ceramica", "10mm"}));
  EXPECT_EQ(floor[1].heading, "<167>");
  EXPECT_EQ(floor[2].heading, "<226>");
  EXPECT_EQ(floor[2].lines[2], (StructureLine{1, "Intonaco di gesso", "15mm"}));
  const auto lining = StructureOf(samples::Lining(Calculation::kLiningFrame), Say);
  ASSERT_EQ(lining.size(), 3U);
  EXPECT_EQ(lining[0].lines[0], (StructureLine{1, "Muratura in laterizio intonacata 25 cm", "250mm"}));
  EXPECT_EQ(lining[2].lines[0].number, 3);
  EXPECT_TRUE(StructureOf(samples::FacadeOfNine(), Say).empty());
  EXPECT_TRUE(StructureOf({}, Say).empty());
}

}  // namespace
}  // namespace velmar::presentation
