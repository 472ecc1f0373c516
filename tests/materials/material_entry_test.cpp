#include "materials/material_entry.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace velmar::materials {
namespace {

using elements::FibrousMaterial;
using elements::MaterialProperty;
using elements::ResilientMaterial;
using elements::StructuralMaterial;

const KeywordTexts kTexts{"tutti", "non specificata"};

StructuralEntry Brick() { return {"Mattone", "", "80", "800", "64", "4.5", "", "0,01", "", ""}; }

FibrousEntry Wool() {
  FibrousEntry entry;
  entry.name = "Lana";
  entry.density = "40";
  return entry;
}

ResilientEntry Rubber() {
  ResilientEntry entry;
  entry.name = "Gomma";
  entry.thickness = "5";
  entry.stiffness = "25";
  return entry;
}

template <typename Entry>
EntryRefusal RefusalOf(const Entry& entry) {
  const auto checked = RowOf(entry, kTexts);
  const auto* refusal = std::get_if<EntryRefusal>(&checked);
  return refusal == nullptr ? EntryRefusal{} : *refusal;
}

TEST(StructuralEntry, EmptyBoxesThatMayBeEmptyAreZero) {
  const auto row = std::get<storage::StructuralRow>(RowOf(Brick(), kTexts));
  EXPECT_EQ(row.record.values.youngs_modulus_gpa, 4.5);
  EXPECT_EQ(row.record.values.critical_frequency_hz, 0.0);
  EXPECT_TRUE(row.record.Holds(&StructuralMaterial::critical_frequency_hz));
  EXPECT_EQ(row.record.values.poissons_ratio, 0.0);
  EXPECT_EQ(row.keyword, "non specificata");
  EXPECT_FALSE(row.record.Holds(&StructuralMaterial::thermal_resistance_m2k_w));
}

TEST(StructuralEntry, TextsEndAtTheirFirstLineBreak) {
  StructuralEntry entry = Brick();
  entry.name = "  Mattone pieno \r\nseconda riga";
  entry.description = "descrizione\nseconda";
  entry.keyword = "laterizi\r";
  const auto row = std::get<storage::StructuralRow>(RowOf(entry, kTexts));
  EXPECT_EQ(row.record.values.name, "Mattone pieno");
  EXPECT_EQ(row.record.values.description, "descrizione");
  EXPECT_EQ(row.keyword, "laterizi");
}

TEST(StructuralEntry, WithoutANameIsRefused) {
  for (const char* name : {"", " ", "   \r\nx"}) {
    StructuralEntry entry;
    entry.name = name;
    EXPECT_EQ(RefusalOf(entry).message, (Message{{MessageRow{347}}}));
    EXPECT_EQ(RefusalOf(entry).field, kNameField);
  }
}

TEST(StructuralEntry, EveryMissingValueIsNamed) {
  StructuralEntry entry;
  entry.name = "x";
  entry.density = "1";
  EXPECT_EQ(RefusalOf(entry).message, (Message{{MessageRow{348}, ":"},
                                               {"- ", MessageRow{349}},
                                               {"- ", MessageRow{351}},
                                               {"- ", MessageRow{352}},
                                               {"- ", MessageRow{353}}}));
  EXPECT_EQ(RefusalOf(entry).field, EntryField{MaterialProperty::kThickness});
}

TEST(StructuralEntry, TheFirstTextThatIsNoNumberIsNamed) {
  const std::pair<std::string StructuralEntry::*, MaterialProperty> numbers[] = {
      {&StructuralEntry::thickness, MaterialProperty::kThickness},
      {&StructuralEntry::density, MaterialProperty::kDensity},
      {&StructuralEntry::surface_mass, MaterialProperty::kSurfaceMass},
      {&StructuralEntry::youngs_modulus, MaterialProperty::kYoungsModulus},
      {&StructuralEntry::loss_factor, MaterialProperty::kLossFactor},
      {&StructuralEntry::poissons_ratio, MaterialProperty::kPoissonsRatio},
      {&StructuralEntry::critical_frequency, MaterialProperty::kCriticalFrequency}};
  for (const auto& [text, property] : numbers) {
    StructuralEntry entry = Brick();
    entry.*text = "12x";
    EXPECT_EQ(RefusalOf(entry).field, EntryField{property});
    EXPECT_EQ(RefusalOf(entry).message[0], (MessageLine{MessageRow{355}}));
    entry.*text = "1e999";
    EXPECT_EQ(RefusalOf(entry).field, EntryField{property});
  }
}

TEST(StructuralEntry, TheFirstImpossibleValueIsNamed) {
  StructuralEntry entry = Brick();
  entry.loss_factor = "2";
  entry.poissons_ratio = "0,6";
  EXPECT_EQ(RefusalOf(entry).message.size(), 3U);
  EXPECT_EQ(RefusalOf(entry).field, EntryField{MaterialProperty::kLossFactor});
}

TEST(StructuralEntry, ComesBackFromItsRow) {
  StructuralEntry entry = Brick();
  entry.critical_frequency = "1800";
  entry.poissons_ratio = "0,2";
  entry.keyword = "laterizi";
  const StructuralEntry again = EntryOf(std::get<storage::StructuralRow>(RowOf(entry, kTexts)));
  EXPECT_EQ(again.youngs_modulus, "4,5");
  EXPECT_EQ(again.critical_frequency, "1800");
  EXPECT_EQ(again.keyword, "laterizi");
}

TEST(FibrousEntry, APorousOneHasResistanceAndAbsorption) {
  FibrousEntry entry = Wool();
  entry.absorption[0] = "0,15";
  entry.absorption[18] = "1.05";
  const auto row = std::get<storage::FibrousRow>(RowOf(entry, kTexts));
  EXPECT_EQ(row.record.values.flow_resistance_pa_s_m, 4000.0);
  EXPECT_FALSE(row.record.Holds(&FibrousMaterial::youngs_modulus_gpa));
  EXPECT_EQ(row.record.values.absorption[0], 0.15F);
  EXPECT_EQ(row.record.values.absorption[1], elements::kNoAbsorption);
  EXPECT_EQ(EntryOf(row).absorption[18], "1,05");
  EXPECT_EQ(EntryOf(row).youngs_modulus, "");
}

TEST(FibrousEntry, ASolidOneHasNeither) {
  FibrousEntry entry = Wool();
  entry.porous = false;
  entry.absorption[0] = "anything";
  const auto row = std::get<storage::FibrousRow>(RowOf(entry, kTexts));
  EXPECT_EQ(row.record.values.youngs_modulus_gpa, 0.05);
  EXPECT_EQ(row.record.values.loss_factor, 0.01);
  EXPECT_FALSE(row.record.Holds(&FibrousMaterial::flow_resistance_pa_s_m));
  EXPECT_EQ(row.record.values.absorption, elements::UnknownAbsorption());
}

TEST(FibrousEntry, AnImpossibleAbsorptionIsRefusedWithItsBand) {
  for (const char* text : {"-0,1", "1,6", "molto", "1e999"}) {
    FibrousEntry entry = Wool();
    entry.absorption[3] = text;
    EXPECT_EQ(RefusalOf(entry).field, (EntryField{MaterialProperty::kAbsorption, 3})) << text;
    EXPECT_EQ(RefusalOf(entry).message[0], (MessageLine{MessageRow{361}}));
    EXPECT_EQ(RefusalOf(entry).message[1], (MessageLine{MessageRow{1143}, std::string(" 200 Hz: ") + text}));
  }
}

TEST(FibrousEntry, TheTextThatIsNoNumberIsNamed) {
  const std::pair<std::string FibrousEntry::*, MaterialProperty> solid[] = {
      {&FibrousEntry::thickness, MaterialProperty::kThickness},
      {&FibrousEntry::density, MaterialProperty::kDensity},
      {&FibrousEntry::youngs_modulus, MaterialProperty::kYoungsModulus},
      {&FibrousEntry::loss_factor, MaterialProperty::kLossFactor},
      {&FibrousEntry::poissons_ratio, MaterialProperty::kPoissonsRatio}};
  FibrousEntry entry = Wool();
  entry.flow_resistance = "12x";
  EXPECT_EQ(RefusalOf(entry).field, EntryField{MaterialProperty::kFlowResistance});
  for (const auto& [text, property] : solid) {
    entry = Wool();
    entry.porous = false;
    entry.*text = "12x";
    EXPECT_EQ(RefusalOf(entry).field, EntryField{property});
  }
}

TEST(FibrousEntry, NeedsWhatItsKindIsDescribedBy) {
  FibrousEntry entry = Wool();
  entry.flow_resistance = "";
  entry.youngs_modulus = "";
  EXPECT_EQ(RefusalOf(entry).message, (Message{{MessageRow{348}, ":"}, {"- ", MessageRow{1141}}}));
  entry.porous = false;
  EXPECT_EQ(RefusalOf(entry).message, (Message{{MessageRow{348}, ":"}, {"- ", MessageRow{352}}}));
}

TEST(ResilientEntry, OneOfItsThreeValuesGivesTheOthers) {
  const auto row = std::get<storage::ResilientRow>(RowOf(Rubber(), kTexts));
  EXPECT_EQ(row.record.values.resonance_frequency_hz, 80.0);
  EXPECT_EQ(row.record.values.impact_improvement_db, 27.3);
  EXPECT_EQ(row.record.values.density_kg_m3, 0.0);
  EXPECT_TRUE(row.record.Holds(&ResilientMaterial::density_kg_m3));

  ResilientEntry by_resonance = Rubber();
  by_resonance.stiffness = "";
  by_resonance.resonance = "80";
  EXPECT_EQ(
      std::get<storage::ResilientRow>(RowOf(by_resonance, kTexts)).record.values.dynamic_stiffness_mn_m3,
      25.0);
}

TEST(ResilientEntry, WhatWasTypedIsNotReplaced) {
  ResilientEntry entry = Rubber();
  entry.improvement = "20";
  EXPECT_EQ(std::get<storage::ResilientRow>(RowOf(entry, kTexts)).record.values.impact_improvement_db, 20.0);
}

TEST(ResilientEntry, WithNoneOfThemItIsRefused) {
  ResilientEntry entry = Rubber();
  entry.stiffness = "";
  EXPECT_EQ(RefusalOf(entry).message, (Message{{MessageRow{360}}}));
  EXPECT_EQ(RefusalOf(entry).field, EntryField{MaterialProperty::kDynamicStiffness});
}

TEST(ResilientEntry, ANegativeValueGivesNoStiffnessAndIsNotStoredWithout) {
  ResilientEntry entry = Rubber();
  entry.stiffness = "";
  entry.improvement = "-3";
  EXPECT_EQ(RefusalOf(entry).message, (Message{{MessageRow{348}, ":"}, {"- ", MessageRow{1142}}}));
  entry.improvement = "";
  entry.resonance = "-80";
  EXPECT_EQ(RefusalOf(entry).field, EntryField{MaterialProperty::kDynamicStiffness});
}

TEST(ResilientEntry, TheTextThatIsNoNumberIsNamed) {
  const std::pair<std::string ResilientEntry::*, MaterialProperty> numbers[] = {
      {&ResilientEntry::stiffness, MaterialProperty::kDynamicStiffness},
      {&ResilientEntry::improvement, MaterialProperty::kImpactImprovement},
      {&ResilientEntry::resonance, MaterialProperty::kResonanceFrequency},
      {&ResilientEntry::thickness, MaterialProperty::kThickness},
      {&ResilientEntry::density, MaterialProperty::kDensity}};
  for (const auto& [text, property] : numbers) {
    ResilientEntry entry = Rubber();
    if (text == &ResilientEntry::improvement) entry.stiffness = "";
    entry.*text = "12x";
    EXPECT_EQ(RefusalOf(entry).field, EntryField{property});
  }
}

TEST(ResilientEntry, AMissingThicknessIsNamed) {
  ResilientEntry entry = Rubber();
  entry.thickness = "";
  EXPECT_EQ(RefusalOf(entry).message, (Message{{MessageRow{348}, ":"}, {"- ", MessageRow{349}}}));
  EXPECT_EQ(RefusalOf(entry).field, EntryField{MaterialProperty::kThickness});
}

/// A row with a number of its own, possible for each, in every column of numbers.
template <typename Material>
storage::MaterialRow<Material> FullRow(bool porous) {
  std::vector<storage::Cell> cells;
  for (const storage::ColumnSchema& column : storage::TableOf<Material>().columns) {
    const auto place = static_cast<double>(cells.size());
    if (column.type == storage::ColumnType::kNumber) {
      cells.emplace_back(0.01 * (place + 1.0));
    } else if (column.type == storage::ColumnType::kYesNo) {
      cells.emplace_back(porous);
    } else {
      cells.emplace_back("testo " + std::to_string(cells.size()));
    }
  }
  return storage::RowFromCells<Material>(cells);
}

/// Expects that a row is the same once its entry was stored, but for the columns that `emptied` tells.
template <typename Material, typename Emptied>
void ExpectToComeBack(bool porous, Emptied emptied) {
  const storage::MaterialRow<Material> row = FullRow<Material>(porous);
  const auto back = std::get<storage::MaterialRow<Material>>(RowOf(EntryOf(row), kTexts));
  const std::vector<storage::Cell> before = storage::CellsFromRow(row);
  const std::vector<storage::Cell> after = storage::CellsFromRow(back);
  const storage::TableSchema table = storage::TableOf<Material>();
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (!emptied(table.columns[i].name))
      EXPECT_EQ(after[i], before[i]) << table.columns[i].name;
    else
      EXPECT_NE(after[i], before[i]) << table.columns[i].name;
  }
}

/// A column that the entry does not take along would be emptied by whoever opens and saves the material.
TEST(MaterialEntry, TakesEveryColumnAlong) {
  const auto one_of = [](std::set<std::string> names) {
    return [names = std::move(names)](const std::string& name) { return names.contains(name); };
  };
  ExpectToComeBack<StructuralMaterial>(
      false, one_of({"Lambda (W/m K)", "C (W/m² K)", "Sigma_a 10^12 (Kg/msPa)", "Sigma_u 10^12 (Kg/msPa)",
                     "R (m² K/W)"}));
  ExpectToComeBack<FibrousMaterial>(true, one_of({"Modulo di Young E (GPa)", "Fattore di perdita interna",
                                                  "Rapporto di Poisson", "Immagine"}));
  ExpectToComeBack<FibrousMaterial>(false, [](const std::string& name) {
    return name.starts_with("Alfa") || name.starts_with("Resistenza") || name == "Immagine";
  });
  ExpectToComeBack<ResilientMaterial>(false, one_of({"Immagine"}));
}

}  // namespace
}  // namespace velmar::materials
