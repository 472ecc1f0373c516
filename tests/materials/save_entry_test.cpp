#include "materials/save_entry.h"

#include <gtest/gtest.h>

#include "tests/storage/support/databases.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::materials {
namespace {

using elements::FibrousMaterial;
using elements::MaterialFamily;
using elements::StructuralMaterial;

const KeywordTexts kTexts{"tutti", "non specificata"};

class SaveEntryTest : public testing::Test {
 protected:
  SaveEntryTest() { storage::MakeTables(store_.File(), storage::MaterialTables()); }

  StructuralEntry brick_{"Mattone", "pieno", "80", "800", "64", "4,5", "", "0,01", "0,2", "laterizi"};
  storage::TemporaryFolder folder_;
  storage::MaterialStore store_{folder_ / "Database.mdb"};
};

TEST_F(SaveEntryTest, ANewRowLeavesTheThermalColumnsEmpty) {
  EXPECT_FALSE(SaveEntry(store_, brick_, "", kTexts));
  const auto row = store_.Find<StructuralMaterial>("mattone");
  EXPECT_EQ(row->record.values.surface_mass_kg_m2, 64.0);
  EXPECT_EQ(row->record.nulls.size(), 5U);
}

TEST_F(SaveEntryTest, ANameThatDiffersOnlyInCaseIsRefused) {
  SaveEntry(store_, brick_, "", kTexts);
  brick_.name = "MATTONE";
  const auto refusal = SaveEntry(store_, brick_, "", kTexts);
  EXPECT_EQ(refusal->message, (Message{{MessageRow{354}}}));
  EXPECT_EQ(refusal->field, kNameField);
  EXPECT_EQ(store_.List(MaterialFamily::kStructural).size(), 1U);
}

TEST_F(SaveEntryTest, AChangeKeepsWhatTheEditorDoesNotShow) {
  storage::StructuralRow shipped;
  shipped.record.values.name = "Mattone";
  shipped.record.values.thermal_conductivity_w_mk = 0.6;
  shipped.record.nulls = {&StructuralMaterial::thermal_resistance_m2k_w};
  shipped.source = "prova";
  store_.Add<StructuralMaterial>({shipped});
  brick_.name = "Mattone nuovo";
  EXPECT_FALSE(SaveEntry(store_, brick_, "MATTONE", kTexts));
  EXPECT_FALSE(store_.Find<StructuralMaterial>("Mattone"));
  const auto row = store_.Find<StructuralMaterial>("Mattone nuovo");
  EXPECT_EQ(row->record.values.thermal_conductivity_w_mk, 0.6);
  EXPECT_FALSE(row->record.Holds(&StructuralMaterial::thermal_resistance_m2k_w));
  EXPECT_EQ(row->source, "valore utente") << "its numbers are other ones now";
  EXPECT_EQ(row->keyword, "laterizi");
  EXPECT_EQ(row->record.values.density_kg_m3, 800.0);
}

TEST_F(SaveEntryTest, NewWordsKeepTheSourceAndEveryEditThePicture) {
  ResilientEntry mat;
  mat.name = "Tappetino";
  mat.stiffness = "30";
  mat.thickness = "8";
  EXPECT_FALSE(SaveEntry(store_, mat, "", kTexts));
  store_.Change<elements::ResilientMaterial>("Tappetino", [](storage::ResilientRow& row) {
    row.source = "scheda";
    row.picture = "gomma.png";
  });
  mat.description = "In granuli";
  EXPECT_FALSE(SaveEntry(store_, mat, "Tappetino", kTexts));
  auto row = store_.Find<elements::ResilientMaterial>("Tappetino");
  EXPECT_EQ(row->source, "scheda");
  EXPECT_EQ(row->picture, "gomma.png");
  mat.stiffness = "31";
  mat.improvement = mat.resonance = "";
  EXPECT_FALSE(SaveEntry(store_, mat, "Tappetino", kTexts));
  row = store_.Find<elements::ResilientMaterial>("Tappetino");
  EXPECT_EQ(row->source, "valore utente");
  EXPECT_EQ(row->picture, "gomma.png");
}

TEST_F(SaveEntryTest, ComputedAbsorptionIsAddedToTheSource) {
  FibrousEntry wool;
  wool.name = "Lana";
  wool.density = "40";
  EXPECT_FALSE(SaveEntry(store_, wool, "", kTexts));
  store_.Change<FibrousMaterial>("Lana", [](storage::FibrousRow& row) { row.source = "scheda"; });
  wool.absorption[4] = "0,3";
  wool.computation = "assorbimento calcolato";
  EXPECT_FALSE(SaveEntry(store_, wool, "Lana", kTexts));
  EXPECT_EQ(store_.Find<FibrousMaterial>("Lana")->source, "scheda; assorbimento calcolato");
}

TEST_F(SaveEntryTest, ChangingTheKindEmptiesTheColumnsOfTheOther) {
  FibrousEntry wool;
  wool.name = "Lana";
  wool.density = "40";
  wool.absorption[0] = "0,5";
  EXPECT_FALSE(SaveEntry(store_, wool, "", kTexts));
  wool.porous = false;
  EXPECT_FALSE(SaveEntry(store_, wool, "Lana", kTexts));
  const auto row = store_.Find<FibrousMaterial>("Lana");
  EXPECT_FALSE(row->record.Holds(&FibrousMaterial::flow_resistance_pa_s_m));
  EXPECT_TRUE(row->record.Holds(&FibrousMaterial::youngs_modulus_gpa));
  EXPECT_EQ(row->record.values.absorption, elements::UnknownAbsorption());
}

TEST_F(SaveEntryTest, ADatabaseThatCannotBeWrittenIsToldBehindRow355) {
  std::filesystem::permissions(store_.File(), std::filesystem::perms::owner_read);
  const auto refusal = SaveEntry(store_, brick_, "", kTexts);
  ASSERT_EQ(refusal->message.size(), 2U);
  EXPECT_EQ(refusal->message[0], (MessageLine{MessageRow{355}}));
  EXPECT_EQ(LeadingRow(refusal->message[1]), MessageRow{1108});
  EXPECT_FALSE(refusal->field) << "no box is at fault";
}

}  // namespace
}  // namespace velmar::materials
