#include "storage/project/project_writer.h"

#include <algorithm>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "storage/project/project_reader.h"
#include "storage/project/sea_parts.h"
#include "tests/storage/project/sample_setup.h"

namespace velmar::storage {
namespace {

using elements::Calculation;
using enum elements::Calculation;

bool Holds(const std::string& bytes, const std::string& part) {
  return bytes.find(part) != std::string::npos;
}

TEST(ProjectWriter, TheHeaderNamesTheProgramsVersion) {
  const std::string bytes = WriteProject({});
  EXPECT_THAT(bytes.substr(0, bytes.find('\r')), testing::MatchesRegex("VELMAR 2\\.[0-9]+\\.[0-9]+"));
}

TEST(ProjectWriter, NoCalculationIsTwentyLines) {
  const std::string bytes = WriteProject({});
  EXPECT_EQ(std::ranges::count(bytes, '\n'), 20);
  EXPECT_EQ(ReadProject(bytes, {}).setup, elements::Setup{});
}

TEST(ProjectWriter, NamesAreCutAtTheirBreakInSeaFamiliesAndFloors) {
  for (const Calculation calculation :
       {kSingleWallSea, kDoubleWallSeaBrick, kImpactReinforcedConcrete, kFloorWithFloatingScreed}) {
    elements::Setup setup = SampleSetup(calculation);
    setup.leaf1.rows[0].slot.name = setup.sea_leaf1.rows[0].slot.name = " Mattone \r\nforato";
    setup.leaf1.rows[0].slot.description = setup.sea_leaf1.rows[0].slot.description = "uno\r\ndue";
    EXPECT_TRUE(Holds(WriteProject(setup), "\r\nMattone\r\nuno\r\n")) << RowOf(calculation).variant;
  }
}

TEST(ProjectWriter, NamesElsewhereHaveABlankForTheirBreak) {
  elements::Setup setup = SampleSetup(kSingleWallBrick);
  setup.leaf1.rows[0].slot.name = "Mattone\r\nforato";
  EXPECT_TRUE(Holds(WriteProject(setup), "\r\nMattone forato\r\n"));
}

TEST(ProjectWriter, DescriptionsOfElementsHaveABlankForTheirBreak) {
  elements::Setup setup = SampleSetup(kCompositeElement);
  setup.base.description = "a\r\nb";
  setup.facade.components[1].description = "c\r\nd";
  const std::string bytes = WriteProject(setup);
  EXPECT_TRUE(Holds(bytes, "\r\na b\r\n"));
  EXPECT_TRUE(Holds(bytes, "\r\nc d\r\n"));
}

TEST(ProjectWriter, CountsAreWhatTheListsHold) {
  elements::Setup setup = SampleSetup(kDoubleWallGeneric);
  setup.cavity.layers.count = 8;  // typed above the seven rows there are
  EXPECT_EQ(ReadProject(WriteProject(setup), {}).setup.cavity.layers.count, 7);
  setup.leaf1.count = 99;
  setup.leaf2.count = -3;
  const elements::Setup read = ReadProject(WriteProject(setup), {}).setup;
  EXPECT_EQ(read.leaf1.count, 10);
  EXPECT_EQ(read.leaf2.count, 1);

  elements::Setup facade = SampleSetup(kCompositeElement);
  for (const auto& [text, kept] : {std::pair{"9 ", "9 "}, {"12", "9"}, {"", "1"}, {"due", "1"}, {"0", "1"}}) {
    facade.facade.count_text = text;
    facade.facade.components[0].tightness_class = 7;
    const elements::Setup again = ReadProject(WriteProject(facade), {}).setup;
    EXPECT_EQ(again.facade.count_text, kept) << text;
    EXPECT_EQ(again.facade.components[0].tightness_class, 4);
  }
}

TEST(ProjectWriter, AnEmptyCavityDepthIsZero) {
  elements::Setup setup = SampleSetup(kDoubleWallSeaBrick);
  for (const auto& [text, line] : {std::pair{"", " 0 \r\n"}, {"x", " 0 \r\n"}, {"35.5", " 35,5 \r\n"}}) {
    setup.sea_cavity.depth_text = text;
    EXPECT_TRUE(WriteProject(setup).ends_with(std::string("\r\n") + line)) << text;
  }
}

TEST(ProjectWriter, TheDampingOfACavityPositionStandsWithoutItsMass) {
  elements::Setup setup = SampleSetup(kDoubleWallSeaBrick);
  setup.sea_cavity.type = elements::SeaCavityType::kFibre;
  const std::string bytes = WriteProject(setup);
  EXPECT_TRUE(
      Holds(bytes, "Massa_assente\r\nUncheck\r\nFibra_assente\r\nMassa_assente\r\nCheck\r\nMateriale"));
  EXPECT_TRUE(ReadProject(bytes, {}).setup.sea_cavity.mass_damping[1].ticked);
}

TEST(ProjectWriter, ClosingLinesHoldWhatTheVariantReads) {
  struct Case {
    Calculation calculation;
    const char* fibre;
    const char* support;
    const char* end;
  };
  for (const auto& [calculation, fibre, support, end] :
       {Case{kDoubleWallGeneric, "7", "8", "80\r\n\r\n\r\n"},
        Case{kDoubleWallBrick, "7", "8", "80\r\n\r\n\r\n"},
        Case{kDoubleWallBrickTorvalle, "7", "8", "80\r\n7\r\n\r\n"},
        Case{kDoubleWallBrickTorvalle, "0", "8", "80\r\n\r\n\r\n"},
        Case{kDoubleWallBrickTorvalle, "", "8", "80\r\n\r\n\r\n"},
        Case{kDoubleWallPlasterboardSeparateStuds, "7", "8", "80\r\n7\r\n\r\n"},
        Case{kDoubleWallPlasterboardCommonStuds, "0", "8", "80\r\n0\r\n"},
        Case{kDoubleWallPlasterboardSingleBoardSimpleFrame, "7", "8", "80\r\n7\r\n"},
        Case{kDoubleWallPlasterboardMultipleBoardSimpleFrame, "7", "8", "80\r\n7\r\n"},
        Case{kDoubleWallPlasterboardMultipleBoardDoubleFrame, "7", "8", "80\r\n7\r\n"},
        Case{kLightWallLineLine, "7", "8", "80\r\n\r\n8\r\n"},
        Case{kLightWallLinePoint, "7", "8", "80\r\n\r\n8\r\n"},
        Case{kLightWallPointPoint, "7", "60", "80\r\n\r\n\r\n"},
        // A run takes 10 for an empty distance, so that is what is kept.
        Case{kLightWallPointPoint, "7", "", "80\r\n\r\n10\r\n"},
        Case{kLightWallIsolated, "7", "8", "80\r\n\r\n\r\n"},
        Case{kInsulatingGlassGeneric, "7", "8", "80\r\n\r\n\r\n"}}) {
    elements::Setup setup = SampleSetup(calculation);
    setup.cavity.fibre_text = fibre;
    setup.support_distance_text = support;
    EXPECT_TRUE(WriteProject(setup).ends_with(std::string("\r\n") + end)) << RowOf(calculation).variant;
  }
}

TEST(ProjectWriter, CharactersOutsideTheCodePageHaveANearestOne) {
  elements::Setup setup = SampleSetup(kSingleWallBrick);
  setup.information[1].value = "Łódź − 漢";
  const std::string bytes = WriteProject(setup);
  EXPECT_TRUE(Holds(bytes,
                    "\r\nL\xF3"
                    "dz - ?\r\n"));
  EXPECT_EQ(WriteProject(ReadProject(bytes, {}).setup), bytes);
}

TEST(MigraTipoIntercSEA, OnlyCode4CountedDifferently) {
  for (int type = 0; type < 7; ++type) {
    EXPECT_EQ(MigraTipoIntercSEA(4, type), type == 6 ? 0 : type + 1);
    for (const int code : {0, 3, 5, 6}) EXPECT_EQ(MigraTipoIntercSEA(code, type), type);
  }
}

}  // namespace
}  // namespace velmar::storage
