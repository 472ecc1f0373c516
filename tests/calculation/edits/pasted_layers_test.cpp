#include "calculation/edits/pasted_layers.h"

#include <gtest/gtest.h>

#include "foundation/message_rows.h"

namespace velmar::calculation {
namespace {

using elements::LayerGroup;

/// Tables with one brick of 120 mm, one wool of 60 mm and one mat of 8 mm.
elements::MaterialLookup Tables() {
  return {[](std::string_view name) -> std::optional<elements::StructuralRecord> {
            if (name != "Mattone") return std::nullopt;
            elements::StructuralRecord record;
            record.values.name = name;
            record.values.thickness_mm = 120;
            record.values.density_kg_m3 = 1800;
            return record;
          },
          [](std::string_view name) -> std::optional<elements::FibrousRecord> {
            if (name != "Lana") return std::nullopt;
            elements::FibrousRecord record;
            record.values.name = name;
            record.values.thickness_mm = 60;
            return record;
          },
          [](std::string_view name) -> std::optional<elements::ResilientRecord> {
            if (name != "Tappetino") return std::nullopt;
            elements::ResilientRecord record;
            record.values.name = name;
            record.values.thickness_mm = 8;
            return record;
          }};
}

MessagePiece ReasonAgainst(LayerGroup group, int first, TableCells lines) {
  elements::Setup setup;
  setup.sea_cavity.type = elements::SeaCavityType::kFibre;
  const elements::Setup before = setup;
  const auto refusal = PutTable(setup, group, first, std::move(lines), Tables());
  EXPECT_EQ(setup, before);
  return refusal ? refusal->front() : MessagePiece(std::string("taken"));
}

TEST(PutTable, FillsTheRowsFromTheOneItIsPutOver) {
  elements::Setup setup;
  setup.leaf1.count = 2;
  EXPECT_FALSE(PutTable(setup, LayerGroup::kLeaf1, 1, {{"Mattone", "80", "2"}, {"Mattone"}}, Tables()));
  EXPECT_EQ(setup.leaf1.count, 3);
  EXPECT_EQ(setup.leaf1.rows[0].listed, "");
  EXPECT_EQ(setup.leaf1.rows[1].slot.thickness_mm, 80.0);
  EXPECT_EQ(setup.leaf1.rows[1].multiplicity, 2);
  EXPECT_EQ(setup.leaf1.rows[2].slot.thickness_mm, 120.0);
  EXPECT_EQ(setup.leaf1.rows[2].multiplicity, 1);
}

TEST(PutTable, PassesOverHeadingsNumbersUnitsAndEmptyLines) {
  elements::Setup setup;
  EXPECT_FALSE(PutTable(setup, LayerGroup::kLeaf1, 0,
                        {{"Materiale", "Spessore (mm)", "Strati"}, {"1", "Mattone", "12,5 mm", "3"}, {}},
                        Tables()));
  EXPECT_EQ(setup.leaf1.count, 1);
  EXPECT_EQ(setup.leaf1.rows[0].slot.thickness_mm, 12.5);
  EXPECT_EQ(setup.leaf1.rows[0].multiplicity, 3);
}

TEST(PutTable, LeavesRowsBehindTheTableAsTheyAre) {
  elements::Setup setup;
  setup.leaf1.count = 5;
  EXPECT_FALSE(PutTable(setup, LayerGroup::kLeaf1, 0, {{"Mattone", "80"}}, Tables()));
  EXPECT_EQ(setup.leaf1.count, 5);
}

TEST(PutTable, OfACavityIsNeverDeeperThanTheCavity) {
  elements::Setup setup;
  setup.cavity.kind = elements::CavityKind::kGenericMaterial;
  setup.cavity.depth_text = "50";
  EXPECT_FALSE(PutTable(setup, LayerGroup::kCavity, 0, {{"Lana", "40"}, {"Lana", "30"}}, Tables()));
  EXPECT_EQ(setup.cavity.layers.count, 2);
  EXPECT_EQ(setup.cavity.depth_text, "70");
}

TEST(PutTable, IsRefusedWithItsReason) {
  const auto row = [](MessageRow reason) { return MessagePiece(reason); };
  EXPECT_EQ(ReasonAgainst(LayerGroup::kLeaf1, 0, {{}, {""}}), row(kPasteNoLayersRow));
  EXPECT_EQ(ReasonAgainst(LayerGroup::kLeaf1, 0, {{"Mattone", "80"}, {"Lana", "60"}}),
            row(kPasteUnknownMaterialRow));
  EXPECT_EQ(ReasonAgainst(LayerGroup::kLeaf1, 9, {{"Mattone"}, {"Mattone"}}), row(kPasteTooManyLayersRow));
  EXPECT_EQ(ReasonAgainst(LayerGroup::kSeaCavityFibre, 0, {{"Lana"}, {"Lana"}}), row(kPasteTooManyLayersRow));
  EXPECT_EQ(ReasonAgainst(LayerGroup::kSeaDamping1, 0, {{"Mattone"}, {"Mattone"}}),
            row(kPasteTooManyLayersRow));
  EXPECT_EQ(ReasonAgainst(LayerGroup::kLeaf1, 0, {{"Mattone", "0"}}), row(kPasteBadThicknessRow));
  EXPECT_EQ(ReasonAgainst(LayerGroup::kLeaf1, 0, {{"Mattone", "otto"}}), row(kPasteBadThicknessRow));
  EXPECT_EQ(ReasonAgainst(LayerGroup::kLeaf1, 0, {{"Mattone", "80", "11"}}), row(kPasteBadSheetsRow));
  EXPECT_EQ(ReasonAgainst(LayerGroup::kLeaf1, 0, {{"Mattone", "80", "0"}}), row(kPasteBadSheetsRow));
  EXPECT_EQ(ReasonAgainst(LayerGroup::kSeaLeaf1, 0, {{"Mattone", "80", "2"}}), row(kPasteBadSheetsRow));
}

}  // namespace
}  // namespace velmar::calculation
