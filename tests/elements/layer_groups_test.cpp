#include "elements/layer_groups.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace velmar::elements {
namespace {

TEST(LayerGroups, AreFoundByTheirDestinationCode) {
  int rows = 0;
  for (int i = 0; i < 11; ++i) {
    const LayerGroupRow& row = RowOf(static_cast<LayerGroup>(i));
    EXPECT_EQ(static_cast<int>(row.group), i);
    EXPECT_EQ(FindLayerGroup(row.code), row.group);
    rows += row.capacity;
  }
  EXPECT_EQ(rows, 10 + 10 + 3 + 3 + 6 + 6 + 2 + 2 + 7 + 3 + 10);
  EXPECT_EQ(FindLayerGroup("parete 1"), std::nullopt);
}

TEST(LayerGroups, GiveTheRowsOfASetup) {
  elements::Setup setup;
  StructuralRow(setup, LayerGroup::kSeaDamping2, 5).listed = "Gomma";
  EXPECT_EQ(setup.sea_leaf2.damping[5].row.listed, "Gomma");
  FibrousRow(setup, LayerGroup::kCavity, 6).listed = "Lana";
  EXPECT_EQ(setup.cavity.layers.rows[6].listed, "Lana");
  EXPECT_THROW(StructuralRow(setup, LayerGroup::kSeaLeaf1, 3), std::out_of_range);
  EXPECT_THROW(StructuralRow(setup, LayerGroup::kCavity, 0), std::out_of_range);
  EXPECT_THROW(FibrousRow(setup, LayerGroup::kLeaf1, 0), std::out_of_range);
}

}  // namespace
}  // namespace velmar::elements
