#include "calculation/edits/count_rules.h"

#include <gtest/gtest.h>

namespace velmar::calculation {
namespace {

TEST(Counts, AreCappedAndNeverEmpty) {
  elements::Setup setup;
  EnterLeaf1Count(setup, "12");
  EXPECT_EQ(setup.leaf1.count, 10);
  EnterLeaf1Count(setup, "");
  EXPECT_EQ(setup.leaf1.count, 1);
  EnterSeaCount(setup.sea_leaf2, "9");
  EXPECT_EQ(setup.sea_leaf2.count, 3);
  EXPECT_EQ(CappedCount("4", 10), "4");
}

TEST(Counts, OfResilientLayersMayBeNone) {
  elements::Setup setup;
  EnterResilientCount(setup, "0");
  EXPECT_EQ(setup.resilient.count, 0);
  EnterResilientCount(setup, "");
  EXPECT_EQ(setup.resilient.count, 1);
}

TEST(Counts, OfComponentsAboveNineLeaveATrailingBlank) {
  elements::Setup setup;
  EnterComponentCount(setup, "12");
  EXPECT_EQ(setup.facade.count_text, "9 ");
  EXPECT_EQ(setup.facade.Count(), 9);
  EnterComponentCount(setup, "9");
  EXPECT_EQ(setup.facade.count_text, "9");
  EnterComponentCount(setup, "");
  EXPECT_EQ(setup.facade.count_text, "1");
}

TEST(Counts, OfCavityLayersAboveSevenCapTheSecondLeafInstead) {
  elements::Setup setup;
  EnterCavityCount(setup, "8");
  EXPECT_EQ(setup.cavity.layers.count, 8);
  EXPECT_EQ(setup.leaf2.count, 7);
  EnterCavityCount(setup, "");
  EXPECT_EQ(setup.cavity.layers.count, 1);
  EXPECT_EQ(setup.leaf2.count, 7);
}

TEST(LeaveThickness, TurnsWhatIsNotAboveZeroIntoTen) {
  elements::LayerRow<elements::StructuralMaterial> row;
  EnterThickness(row, "12.5");
  EXPECT_FALSE(LeaveThickness(row));
  EXPECT_EQ(row.slot.thickness_mm, 12.5);
  EXPECT_EQ(row.thickness_text, "12.5");
  for (const char* text : {"0", "-3", "0,0"}) {
    EnterThickness(row, text);
    EXPECT_EQ(row.thickness_text, text) << "while it is typed";
    EXPECT_TRUE(LeaveThickness(row));
    EXPECT_EQ(row.slot.thickness_mm, 10) << text;
    EXPECT_EQ(row.thickness_text, "10") << text;
  }
  EnterThickness(row, "");
  EXPECT_FALSE(LeaveThickness(row));
}

TEST(EnterThickness, LeavesTheLayerWhileTheBoxHoldsNoNumber) {
  elements::LayerRow<elements::StructuralMaterial> row;
  EnterThickness(row, "80");
  for (const char* text : {"", ",", "1E"}) {
    EnterThickness(row, text);
    EXPECT_EQ(row.slot.thickness_mm, 80) << text;
    EXPECT_EQ(row.thickness_text, text);
  }
  EnterThickness(row, "1E-3");
  EXPECT_EQ(row.slot.thickness_mm, 0.001);
}

}  // namespace
}  // namespace velmar::calculation
