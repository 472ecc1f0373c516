#include "storage/validation/measured_data.h"

#include <algorithm>
#include <fstream>
#include <set>
#include <stdexcept>

#include <gtest/gtest.h>

namespace velmar::storage {
namespace {

const elements::MeasuredData& Shipped() {
  static const elements::MeasuredData data = ReadMeasuredData(VALIDATION_DATA);
  return data;
}

const elements::MeasuredConstruction& Construction(const std::string& id) {
  return *std::ranges::find(Shipped().constructions, id, &elements::MeasuredConstruction::id);
}

TEST(MeasuredData, HoldsEveryConstructionWithItsSource) {
  EXPECT_EQ(Shipped().constructions.size(), 248U);
  std::size_t setups = 0;
  std::set<std::string> ids;
  for (const auto& construction : Shipped().constructions) {
    EXPECT_FALSE(construction.source_title.empty()) << construction.id;
    EXPECT_FALSE(construction.description.empty()) << construction.id;
    EXPECT_FALSE(construction.setups.empty()) << construction.id;
    EXPECT_TRUE(ids.insert(construction.id).second) << construction.id;
    setups += construction.setups.size();
  }
  EXPECT_EQ(setups, 933U);
  for (const auto& uncovered : Shipped().uncovered) {
    EXPECT_FALSE(uncovered.reason.empty()) << uncovered.id;
    EXPECT_TRUE(ids.insert(uncovered.id).second) << uncovered.id;
  }
  EXPECT_EQ(Shipped().uncovered.size(), 111U);
}

TEST(MeasuredData, ReadsAHandbookBrickWall) {
  const auto& wall = Construction("bhh-brick-125");
  EXPECT_EQ(wall.quality, 'B');
  EXPECT_EQ(wall.frame, elements::Frame::kNone);
  EXPECT_FALSE(wall.rw);
  EXPECT_EQ(wall.rw_of_octaves, 45.0);
  EXPECT_EQ(wall.band_width, elements::BandWidth::kOctave);
  ASSERT_EQ(wall.bands.size(), 8U);
  EXPECT_EQ(wall.bands[1], (elements::BandValue{.frequency_hz = 125, .level_db = 36}));
  ASSERT_EQ(wall.setups.size(), 4U);
  const elements::MeasuredSetup& generic = wall.setups[0];
  EXPECT_EQ(generic.group, "brick and clay");
  EXPECT_EQ(generic.setup.calculation, elements::Calculation::kSingleWallGeneric);
  EXPECT_EQ(generic.setup.width_text, "3,6");
  EXPECT_EQ(generic.setup.leaf1.count, 3);
  EXPECT_EQ(generic.setup.leaf1.rows[1].slot.density_kg_m3, 1948.515);
  EXPECT_EQ(wall.setups[3].setup.calculation, elements::Calculation::kSingleWallSea);
  EXPECT_EQ(wall.setups[3].setup.sea_leaf1.count, 3);
}

TEST(MeasuredData, ReadsAStudWallWithItsFill) {
  const auto& wall = Construction("nrc-tl-93-185");
  EXPECT_EQ(wall.frame, elements::Frame::kResilientChannels);
  EXPECT_EQ(wall.stc, 45.0);
  const auto layered = std::ranges::find_if(wall.setups, [](const elements::MeasuredSetup& measured) {
    return measured.setup.cavity.kind == elements::CavityKind::kGenericMaterial;
  });
  ASSERT_NE(layered, wall.setups.end());
  EXPECT_EQ(layered->setup.cavity.depth_text, "103");
  EXPECT_EQ(layered->setup.cavity.layers.count, 1);
  EXPECT_NEAR(layered->setup.cavity.layers.rows[0].slot.flow_resistance_pa_s_m, 1260.0, 1e-9);
}

TEST(MeasuredData, ReadsALiningWithItsBase) {
  const auto& lining = Construction("har-lining-furr40-e1");
  EXPECT_EQ(lining.delta_stc, 3.0);
  ASSERT_FALSE(lining.setups.empty());
  EXPECT_EQ(lining.setups[0].quantity, elements::MeasuredQuantity::kReductionImprovement);
  EXPECT_EQ(lining.setups[0].setup.base.rating_text, "50");
  EXPECT_EQ(lining.setups[0].setup.base.thickness_mm, 190.0);
  EXPECT_EQ(lining.setups[0].setup.base.band_texts[0], "34,1");
}

TEST(MeasuredData, AFolderThatLacksAFileIsRefusedByName) {
  try {
    ReadMeasuredData(std::filesystem::path(VALIDATION_DATA) / "none");
    FAIL();
  } catch (const std::runtime_error& failure) {
    EXPECT_NE(std::string(failure.what()).find("sources.csv"), std::string::npos);
  }
}

}  // namespace
}  // namespace velmar::storage
