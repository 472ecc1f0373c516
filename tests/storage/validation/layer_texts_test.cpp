#include "storage/validation/layer_texts.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace velmar::storage {
namespace {

TEST(LayerTexts, ReadsSheetsWithTheirNumbers) {
  const auto rows = ReadSheets(
      "12 Intonaco di calce e cemento (1800 9 0.013 0.2) + 2 x 12.5 Cartongesso standard (850 4.1 0.012 "
      "0.3)");
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].listed, "Intonaco di calce e cemento");
  EXPECT_EQ(rows[0].multiplicity, 1);
  EXPECT_EQ(rows[0].thickness_text, "12");
  EXPECT_EQ(rows[0].slot.density_kg_m3, 1800.0);
  EXPECT_EQ(rows[0].slot.youngs_modulus_gpa, 9.0);
  EXPECT_EQ(rows[0].slot.loss_factor, 0.013);
  EXPECT_EQ(rows[0].slot.poissons_ratio, 0.2);
  EXPECT_EQ(rows[1].multiplicity, 2);
  EXPECT_EQ(rows[1].thickness_text, "12,5");
  EXPECT_EQ(rows[1].slot.thickness_mm, 12.5);
  EXPECT_DOUBLE_EQ(rows[1].slot.surface_mass_kg_m2, 10.625);
}

TEST(LayerTexts, ANameMayHoldBracketsAndNumbers) {
  const auto rows = ReadSheets("6.8 Vetro stratificato (PVB) 33.2 (2500 69 0.02 0.23)");
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].slot.name, "Vetro stratificato (PVB) 33.2");
}

TEST(LayerTexts, NoTextIsNoLayer) {
  EXPECT_TRUE(ReadSheets("").empty());
  EXPECT_TRUE(ReadMats("").empty());
}

TEST(LayerTexts, MatsHaveDensityAndStiffness) {
  const auto rows = ReadMats("8 strato resiliente (760 30)");
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].slot.density_kg_m3, 760.0);
  EXPECT_EQ(rows[0].slot.dynamic_stiffness_mn_m3, 30.0);
}

TEST(LayerTexts, TheFlowResistanceOfAFillIsResistivityTimesThickness) {
  std::vector<FibreKind> kinds(1);
  kinds[0].material.name = "Lana";
  kinds[0].flow_resistivity_pa_s_m2 = 14000.0;
  const auto rows = ReadFills("60 Lana", kinds);
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_NEAR(rows[0].slot.flow_resistance_pa_s_m, 840.0, 1e-9);
  EXPECT_THROW(ReadFills("60 Sughero", kinds), std::runtime_error);
}

TEST(LayerTexts, WhatReadsOtherwiseIsRefusedByName) {
  for (const char* text : {"12", "12 Intonaco", "12 Intonaco (1800 9 0.013)", "x Intonaco (1 2 3 4)",
                           "0 x 12 Intonaco (1800 9 0.013 0.2)", "12 Intonaco (1800 9 0.013 zero)",
                           "12 Intonaco (1800 9 0.013 0.2) e altro"}) {
    try {
      ReadSheets(text);
      ADD_FAILURE() << text;
    } catch (const std::runtime_error& failure) {
      EXPECT_NE(std::string(failure.what()).find("describes no layer"), std::string::npos) << text;
    }
  }
}

}  // namespace
}  // namespace velmar::storage
