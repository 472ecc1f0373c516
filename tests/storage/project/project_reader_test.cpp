#include "storage/project/project_reader.h"

#include <filesystem>
#include <fstream>
#include <vector>

#include <gtest/gtest.h>

#include "foundation/decimal.h"
#include "storage/project/project_failure.h"
#include "storage/project/project_writer.h"
#include "tests/storage/project/sample_setup.h"

namespace velmar::storage {
namespace {

using elements::Calculation;
using enum elements::Calculation;

std::string Sample(Calculation calculation) { return WriteProject(SampleSetup(calculation)); }

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

elements::Setup Read(const std::string& bytes) { return ReadProject(bytes, {}).setup; }

TEST(ProjectReader, ListsAndBoxesShowWhatTheSlotsHold) {
  const elements::Setup setup = Read(Sample(kSingleWallBrick));
  EXPECT_EQ(setup.leaf1.rows[1].listed, "Materiale 2");
  EXPECT_EQ(setup.leaf1.rows[1].thickness_text, "20,5");
  EXPECT_EQ(setup.leaf1.rows[1].slot.thickness_mm, 20.5);
  EXPECT_EQ(setup.leaf1.rows[1].multiplicity, 2);
}

TEST(ProjectReader, TheFieldsOfOtherFamiliesStay) {
  ProjectReadContext context;
  context.current = SampleSetup(kImpactReinforcedConcrete);
  const elements::Setup setup = ReadProject(Sample(kSingleWallBrick), context).setup;
  EXPECT_EQ(setup.resilient, context.current.resilient);
  EXPECT_EQ(setup.leaf2, context.current.leaf2);
}

TEST(ProjectReader, ChoosesTheCalculationBeforeItReadsItsFields) {
  ProjectReadContext context;
  context.select_calculation = [](elements::Setup& setup, Calculation calculation) {
    setup.calculation = calculation;
    setup.width_text = "3,6";
    setup.hanger = 1;
  };
  const elements::Setup setup = ReadProject(Sample(kSingleWallBrick), context).setup;
  EXPECT_EQ(setup.calculation, kSingleWallBrick);
  EXPECT_EQ(setup.width_text, "4,5");  // the file's word comes last
  EXPECT_EQ(setup.hanger, 1);          // where it has none, the menu entry's stands
}

TEST(ProjectReader, UnreadColumnsComeFromTheMaterialTable) {
  ProjectReadContext context;
  context.materials.structural = [](std::string_view name) -> std::optional<elements::StructuralRecord> {
    if (name != "Materiale 1") return std::nullopt;
    elements::StructuralMaterial row;
    row.density_kg_m3 = 1;
    row.critical_frequency_hz = 250;
    row.surface_mass_kg_m2 = 99;
    row.thermal_resistance_m2k_w = 0.7;
    return elements::StructuralRecord{row, {&elements::StructuralMaterial::thermal_conductivity_w_mk}};
  };
  const auto& rows = ReadProject(Sample(kSingleWallBrick), context).setup.leaf1.rows;
  EXPECT_EQ(rows[0].slot.critical_frequency_hz, 250);
  EXPECT_EQ(rows[0].slot.surface_mass_kg_m2, 99);
  EXPECT_EQ(rows[0].slot.thermal_resistance_m2k_w, 0.7);
  EXPECT_EQ(rows[0].slot.thermal_conductivity_w_mk, 0.8);  // null in the table: the file's
  EXPECT_EQ(rows[0].slot.density_kg_m3, 1001);             // what a calculation reads is the file's
  EXPECT_EQ(rows[1].slot.critical_frequency_hz, 3e-5);     // since deleted from the table
}

TEST(ProjectReader, AFibresAbsorptionComesFromTheMaterialTable) {
  ProjectReadContext context;
  context.current.sea_cavity.fibres[0].slot.absorption.fill(0.9F);
  context.current.sea_cavity.fibres[1].slot.absorption.fill(0.9F);
  context.materials.fibrous = [](std::string_view name) -> std::optional<elements::FibrousRecord> {
    if (name != "Materiale 5") return std::nullopt;
    elements::FibrousRecord record;
    record.values.absorption.fill(0.5F);
    record.values.flow_resistance_pa_s_m = 5000;
    record.values.density_kg_m3 = 1;
    return record;
  };
  const auto& fibres = ReadProject(Sample(kDoubleWallSeaBrick), context).setup.sea_cavity.fibres;
  ASSERT_EQ(fibres[0].slot.name, "Materiale 5");
  EXPECT_EQ(fibres[0].slot.absorption[18], 0.5F);
  EXPECT_EQ(fibres[0].slot.flow_resistance_pa_s_m, 5000);
  EXPECT_EQ(fibres[0].slot.density_kg_m3, 40);
  EXPECT_EQ(fibres[1].slot.absorption, elements::UnknownAbsorption());
}

TEST(ProjectReader, AnUnknownVariantIsReadByItsFamily) {
  const std::string bytes = Replaced(Sample(kSingleWallBrick), "Parete singola in laterizio", "Parete nuova");
  const OpenedProject opened = ReadProject(bytes, {});
  EXPECT_EQ(opened.setup.calculation, std::nullopt);
  EXPECT_EQ(opened.stored.variant, "Parete nuova");
  EXPECT_EQ(opened.setup.leaf1.rows[1].slot.name, "Materiale 2");
  EXPECT_EQ(WriteProject(opened.setup, opened.stored), bytes);  // and nothing of it is lost
}

TEST(ProjectReader, AnUnknownFamilyHasNothingMore) {
  const std::string bytes = Replaced(Sample(kSingleWallBrick), "SINGOLA", "FUTURA");
  const OpenedProject opened = ReadProject(bytes, {});
  EXPECT_EQ(opened.setup.calculation, std::nullopt);
  EXPECT_EQ(opened.setup.leaf1, elements::Setup{}.leaf1);
  EXPECT_EQ(opened.setup.information[1].value, "Comune");
}

TEST(ProjectReader, ARetiredVariantKeepsItsFibre) {
  const std::string bytes =
      Replaced(Sample(kDoubleWallPlasterboardCommonStuds), "Parete doppia in cartongesso con ossatura unica",
               "Parete doppia in calcestruzzo con ossature separate");
  EXPECT_EQ(Read(bytes).cavity.fibre_text, "45,5");
}

TEST(ProjectReader, TheVariantSetsFamilyAndOrientation) {
  const std::string bytes = Replaced(Sample(kSingleWallBrick), "verticale singola", "qualcosa");
  EXPECT_EQ(Read(bytes).calculation, kSingleWallBrick);
  // Two families of the same lines: the variant decides.
  EXPECT_EQ(Read(Replaced(Sample(kInsulatingGlass), "DOPPIA", "SHARP")).calculation, kInsulatingGlass);
}

TEST(ProjectReader, AVariantOfAnotherFamilysLinesIsRefused) {
  const std::string bytes = Replaced(Sample(kDoubleWallBrick), "Parete doppia in laterizio", "Gasbeton");
  try {
    Read(bytes);
    FAIL();
  } catch (const ProjectFileFailure& failure) {
    EXPECT_EQ(failure.LineNumber(), 19);
  }
}

TEST(ProjectReader, ABraceInTheNotesComesBackAsALineBreak) {
  elements::Setup setup = SampleSetup(kSingleWallBrick);
  setup.information[elements::kNotesRow].value = "a{b";
  EXPECT_EQ(Read(WriteProject(setup)).information[elements::kNotesRow].value, "a\r\nb");
}

TEST(ProjectReader, HeaderLinesAreTrimmed) {
  std::string bytes = Replaced(Sample(kSingleWallBrick), "Comune", "  Comune di X  ");
  bytes = Replaced(bytes, "SINGOLA", "  SINGOLA");
  bytes = Replaced(bytes, "Parete singola in laterizio", " Parete singola in laterizio");
  const elements::Setup setup = Read(bytes);
  EXPECT_EQ(setup.information[1].value, "Comune di X");
  EXPECT_EQ(setup.calculation, kSingleWallBrick);
}

TEST(ProjectReader, BlankClosingLinesMeanTheDefaults) {
  ProjectReadContext context;
  context.current.cavity.fibre_text = "33";
  context.current.support_distance_text = "11";
  elements::Setup wall = SampleSetup(kDoubleWallBrickTorvalle);
  wall.cavity.fibre_text = "0";
  EXPECT_EQ(ReadProject(WriteProject(wall), context).setup.cavity.fibre_text, "0");
  elements::Setup light = SampleSetup(kLightWallLineLine);
  light.support_distance_text = "60";
  const std::string bytes = WriteProject(light);
  EXPECT_TRUE(bytes.ends_with("80\r\n\r\n\r\n"));
  EXPECT_EQ(ReadProject(bytes, context).setup.support_distance_text, "60");
  // This one does not read the distance: the field stays.
  EXPECT_EQ(ReadProject(Sample(kLightWallIsolated), context).setup.support_distance_text, "11");
}

TEST(ProjectReader, NoResilientLayers) {
  EXPECT_EQ(Read(Sample(kFloorWithFloatingScreed)).resilient.count, 0);
  const std::string floor = Sample(kImpactReinforcedConcrete);
  const std::size_t list = floor.find("Materiale resiliente");
  const std::string head = floor.substr(0, list);
  const std::string tail = floor.substr(list);
  for (const char* word : {"MATERIALE 1:", "Materiale 5", "MATERIALE 2:", "Materiale 6"}) {
    EXPECT_EQ(Read(head + Replaced(tail, word, "Niente")).resilient.count, 0) << word;
  }
}

TEST(ProjectReader, NumbersMayHaveAPoint) {
  EXPECT_EQ(Read(Replaced(Sample(kSingleWallBrick), " 20,5 ", "20.5")).leaf1.rows[1].slot.thickness_mm, 20.5);
  EXPECT_EQ(Read(Replaced(Sample(kCompositeElement), " 240,1 ", "240.1")).base.mass_kg_m2, 240.1F);
}

TEST(ProjectReader, TakesUtf8AndOtherLineEnds) {
  const elements::Setup expected = SampleSetup(kDoubleWallSeaBrick);
  for (const char* line_end : {"\n", "\r"}) {
    std::string bytes;
    for (const char c : Sample(kDoubleWallSeaBrick)) {
      if (c == '\n') continue;
      bytes += c == '\r' ? line_end : std::string(1, c);
    }
    EXPECT_TRUE(Read(bytes) == expected);
  }
  std::string utf8 = "\xEF\xBB\xBF" + Sample(kSingleWallBrick);
  for (std::size_t at = 0; (at = utf8.find('\xB0', at)) != std::string::npos; at += 2)
    utf8.insert(at, "\xC2");
  utf8 = Replaced(utf8, "Scuola \xE8", "Scuola è");
  EXPECT_TRUE(Read(utf8) == SampleSetup(kSingleWallBrick));
}

TEST(ProjectReader, ACavityRowThatTheFileLeavesOutIsEmpty) {
  // Type 1 shows a fibre, the file has none: what the project before held there must not be calculated with.
  ProjectReadContext context;
  context.current = SampleSetup(kLiningGeneric);
  elements::Setup empty = SampleSetup(kLiningGeneric);
  empty.sea_cavity.type = elements::SeaCavityType::kEmpty;
  const std::string bytes = Replaced(WriteProject(empty), " 0 \r\nFibra_assente", " 1 \r\nFibra_assente");
  EXPECT_EQ(ReadProject(bytes, context).setup.sea_cavity.fibres[0].slot, elements::FibrousMaterial{});
}

TEST(ProjectReader, CavityCheckWordsInAnyCase) {
  const std::string bytes =
      Replaced(Replaced(Sample(kDoubleWallSeaBrick), "Uncheck", "UNCHECK"), "Check\r\nM", "check\r\nM");
  EXPECT_TRUE(Read(bytes) == SampleSetup(kDoubleWallSeaBrick));
}

}  // namespace
}  // namespace velmar::storage
