#include <algorithm>
#include <array>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "elements/parts.h"
#include "presentation/drawing/printed_page.h"
#include "presentation/reports/excel_report.h"
#include "presentation/reports/word_report.h"
#include "tests/presentation/documents/opened_report.h"
#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/presentation/sample_setups.h"
#include "tests/support/changed_fields.h"

// A consultant signs the paper: whatever the outcome depends on has to be read there. Results and totals are
// masked, so that a paper can differ by its inputs alone.
namespace velmar::presentation {
namespace {

using elements::Calculation;
using elements::Field;
using elements::LayerGroup;
using elements::Stack;

enum class Paper { kWord, kExcel, kPage };
constexpr std::array kPapers = {Paper::kWord, Paper::kExcel, Paper::kPage};

const elements::ResultSet& Masked() {
  static const elements::ResultSet kResult = [] {
    elements::ResultSet result = samples::Result();
    result.lnw = 60.0;
    result.ci = 1.0;
    result.delta_rw = 5.0;
    return result;
  }();
  return kResult;
}

/// Reading the words takes longer than writing a page.
const Words& Italian() {
  static const Words kWords = CatalogueWords();
  return kWords;
}

ReportRecord RecordOfSetup(const elements::Setup& setup) {
  return ReportRecordOf(setup, Masked(), {100.0, 100.0}, Italian());
}

std::string WordText(const elements::Setup& setup) {
  const ReportRecord record = RecordOfSetup(setup);
  return TextOf(Package(WriteWordReport(ShippedTemplate(WordTemplateName(record.family)), record).bytes),
                "word/document.xml");
}

std::string ExcelText(const elements::Setup& setup) {
  const Package package(WriteExcelReport(ShippedTemplate("Formato_drav.xlsx"), RecordOfSetup(setup)));
  std::string text;
  for (const std::string& name : package.Names()) {
    if (name.starts_with("xl/worksheets/")) text += package.Part(name);
  }
  return text;
}

/// All that stands on the page as words; how it is set is tested with the page itself.
std::string PageText(const elements::Setup& setup) {
  const PaginaDiStampa page = PaginaDi(setup, {100.0, 100.0}, &Masked(), Italian());
  std::string text = page.title + page.results_note + page.structure_heading;
  for (const PageField& field : page.fields) text += field.caption + ": " + field.value + '\n';
  for (const PageTable* table : {&page.bands, &page.elements}) {
    for (const std::vector<std::string>& row : table->rows) {
      for (const std::string& cell : row) text += cell + '\t';
    }
  }
  for (const StructureBlock& block : page.structure) {
    text += block.heading + block.mass + '\n';
    for (const StructureLine& line : block.lines)
      text += std::to_string(line.number) + line.name + line.amount + '\n';
  }
  for (const std::string& note : page.structure_notes) text += note + '\n';
  for (const DataField& field : page.data.fields) text += field.caption + ": " + field.value + '\n';
  for (const DataTable& table : page.data.tables) {
    for (const std::vector<std::string>& row : table.rows) {
      for (const std::string& cell : row) text += cell + '\t';
    }
  }
  return text;
}

std::string TextOn(Paper paper, const elements::Setup& setup) {
  switch (paper) {
    case Paper::kWord:
      return WordText(setup);
    case Paper::kExcel:
      return ExcelText(setup);
    case Paper::kPage:
      return PageText(setup);
  }
  return {};
}

const char* NameOf(Paper paper) {
  constexpr std::array kNames = {"Word", "Excel", "page"};
  return kNames.at(static_cast<std::size_t>(paper));
}

void SetSolid(elements::LayerRow<elements::StructuralMaterial>& row, const char* name, double thickness_mm) {
  samples::SetRow(row, name, thickness_mm, 900.0);
  row.slot.youngs_modulus_gpa = 3.0;
  row.slot.loss_factor = 0.01;
  row.slot.poissons_ratio = 0.2;
}

/// A set-up with something in every field.
elements::Setup Full(Calculation calculation) {
  elements::Setup setup;
  setup.calculation = calculation;
  setup.leaf1.count = 2;
  SetSolid(setup.leaf1.rows[0], "Intonaco", 15.0);
  SetSolid(setup.leaf1.rows[1], "Mattone", 120.0);
  SetSolid(setup.leaf2.rows[0], "Forato", 80.0);
  setup.cavity.kind = elements::CavityKind::kFibrous;
  setup.cavity.depth_text = "100";
  setup.cavity.fibre_text = "60";
  samples::SetRow(setup.cavity.layers.rows[0], "Sughero", 30.0, 120.0);
  samples::SetRow(setup.resilient.rows[0], "Gomma", 8.0, 700.0);
  for (elements::SeaLeaf* leaf : {&setup.sea_leaf1, &setup.sea_leaf2}) {
    leaf->count = 2;
    SetSolid(leaf->rows[0], "Lastra", 12.5);
    SetSolid(leaf->rows[1], "Seconda lastra", 12.5);
    leaf->damping[1].ticked = true;
    SetSolid(leaf->damping[1].row, "Lamina", 3.0);
    SetSolid(leaf->damping[2].row, "Membrana", 4.0);
  }
  setup.sea_cavity.type = elements::SeaCavityType::kFibre;
  setup.sea_cavity.depth_text = "90";
  samples::SetRow(setup.sea_cavity.fibres[0], "Lana di vetro", 45.0, 24.0);
  setup.support_distance_text = "3";
  setup.hanger = 1;
  setup.base.name = "Muro";
  setup.base.area_text = "20";
  setup.base.rating_text = "50";
  setup.base.c_text = "-1";
  setup.base.ctr_text = "-4";
  setup.base.band_texts.fill("48");
  setup.base.thickness_mm = 250.0;
  setup.base.mass_kg_m2 = 310.0F;
  elements::FacadeComponent& window = setup.facade.components[0];
  window = {.name = "Finestra",
            .area_text = "2",
            .rating_text = "38",
            .c_text = "-1",
            .ctr_text = "-3",
            .mass_kg_m2 = 30.0F,
            .tightness_class = 1};
  window.band_texts.fill("36");
  auto& strata = setup.multilayer.strata;
  setup.multilayer.count = 5;
  SetSolid(strata[0].solid, "Lamiera", 1.0);
  strata[0].kind = elements::StratumKind::kProfiledSheet;
  strata[1].connection = elements::CavityConnection::kSteelStuds;
  strata[2].kind = elements::StratumKind::kFibre;
  samples::SetRow(strata[2].fibre, "Lana di roccia", 60.0, 40.0);
  SetSolid(strata[3].solid, "Gesso", 12.5);
  SetSolid(strata[4].solid, "Fibrogesso", 12.5);
  return setup;
}

struct Change {
  Field field{};
  std::function<void(elements::Setup&)> apply{};
};

/// Another value in each field that a calculation may read.
std::vector<Change> Changes(const elements::CalculationRow& row) {
  std::vector<Change> changes = {
      {Field::kArea, [](auto& setup) { setup.base.area_text = "33"; }},
      {Field::kRating, [](auto& setup) { setup.base.rating_text = "57"; }},
      {Field::kC, [](auto& setup) { setup.base.c_text = "-9"; }},
      {Field::kCtr, [](auto& setup) { setup.base.ctr_text = "-11"; }},
      {Field::kBand, [](auto& setup) { setup.base.band_texts[6] = "33,3"; }},
      {Field::kMass, [](auto& setup) { setup.base.mass_kg_m2 = 555.0F; }},
      {Field::kTightness, [](auto& setup) { setup.facade.components[0].tightness_class = 3; }},
      {Field::kStratumKind,
       [](auto& setup) { setup.multilayer.strata[4].kind = elements::StratumKind::kBondedPlate; }},
      {Field::kStratumThickness, [](auto& setup) { setup.multilayer.strata[1].thickness_text = "71"; }},
      {Field::kConnection,
       [](auto& setup) { setup.multilayer.strata[1].connection = elements::CavityConnection::kWoodStuds; }},
      {Field::kConnectionNumber, [](auto& setup) { setup.multilayer.strata[1].connection_text = "43"; }},
      {Field::kProfileHeight, [](auto& setup) { setup.multilayer.strata[0].profile_height_text = "57"; }},
      {Field::kProfilePitch, [](auto& setup) { setup.multilayer.strata[0].profile_pitch_text = "207"; }},
  };
  const elements::Setup any;
  elements::VisitSingleFields(
      [&](Field field, const char*, const auto&) {
        changes.push_back({field, [field](auto& setup) { tests::ChangeSingleFields(setup, {field}); }});
      },
      any);
  if (!row.stacks.Has(Stack::kComponents)) return changes;
  const std::vector<Change> of_components = {
      {Field::kArea, [](auto& setup) { setup.facade.components[0].area_text = "4,4"; }},
      {Field::kRating, [](auto& setup) { setup.facade.components[0].rating_text = "41"; }},
      {Field::kMass, [](auto& setup) { setup.facade.components[0].mass_kg_m2 = 44.0F; }},
  };
  changes.insert(changes.end(), of_components.begin(), of_components.end());
  return changes;
}

class PaperSensitivity : public testing::TestWithParam<int> {
 protected:
  const elements::CalculationRow& Row() const {
    return elements::RowOf(static_cast<Calculation>(GetParam()));
  }
};

TEST_P(PaperSensitivity, LooksAtEveryFieldThatTheCalculationReads) {
  const std::vector<Change> changes = Changes(Row());
  for (int i = 0; i <= static_cast<int>(elements::kLastField); ++i) {
    const auto field = static_cast<Field>(i);
    const bool changed = std::ranges::find(changes, field, &Change::field) != changes.end();
    EXPECT_TRUE(changed || !Row().Reads(field)) << i;
  }
}

TEST_P(PaperSensitivity, TellsEveryFieldThatTheCalculationReads) {
  const elements::CalculationRow& row = Row();
  const elements::Setup before = Full(row.calculation);
  for (const Paper paper : kPapers) {
    const std::string text = TextOn(paper, before);
    for (const Change& change : Changes(row)) {
      if (!row.Reads(change.field)) continue;
      elements::Setup after = before;
      change.apply(after);
      EXPECT_NE(TextOn(paper, after), text)
          << row.variant << ", " << NameOf(paper) << ", field " << static_cast<int>(change.field);
    }
  }
}

TEST_P(PaperSensitivity, TellsNoFieldThatTheCalculationDoesNotRead) {
  const elements::CalculationRow& row = Row();
  const elements::Setup before = Full(row.calculation);
  elements::Setup after = before;
  for (const Change& change : Changes(row)) {
    if (!row.Reads(change.field)) change.apply(after);
  }
  ASSERT_NE(after, before);
  for (const Paper paper : kPapers)
    EXPECT_EQ(TextOn(paper, after), TextOn(paper, before)) << row.variant << ", " << NameOf(paper);
}

/// A layer row in which a change can be made.
template <typename Edit>
void EditSlot(elements::Setup& setup, const elements::Layer& layer, Edit&& edit) {
  switch (RowOf(*layer.group).family) {
    case elements::MaterialFamily::kStructural:
      return edit(StructuralRow(setup, *layer.group, layer.row));
    case elements::MaterialFamily::kFibrous:
      return edit(FibrousRow(setup, *layer.group, layer.row));
    case elements::MaterialFamily::kResilient:
      return edit(setup.resilient.rows.at(static_cast<std::size_t>(layer.row)));
  }
}

/// The first layer of each group: the others go the same way.
std::vector<elements::Layer> OneLayerOfEachGroup(const elements::Setup& setup) {
  std::vector<elements::Layer> layers;
  for (const elements::Part& part : elements::PartsOf(setup)) {
    for (const elements::Layer& layer : part.layers) {
      if (layer.group && std::ranges::find(layers, layer.group, &elements::Layer::group) == layers.end())
        layers.push_back(layer);
    }
  }
  return layers;
}

TEST_P(PaperSensitivity, TellsMaterialThicknessAndSheetsOfTheLayers) {
  const elements::CalculationRow& row = Row();
  elements::Setup before = Full(row.calculation);
  if (row.generic_cavity) before.cavity.kind = elements::CavityKind::kGenericMaterial;
  for (const Paper paper : kPapers) {
    const std::string text = TextOn(paper, before);
    for (const elements::Layer& layer : OneLayerOfEachGroup(before)) {
      const auto expect_told = [&](const char* what, const auto& edit) {
        elements::Setup after = before;
        EditSlot(after, layer, edit);
        EXPECT_NE(TextOn(paper, after), text)
            << row.variant << ", " << NameOf(paper) << ", " << what << " of " << layer.name;
      };
      expect_told("material", [](auto& one) { one.slot.name = "Altro"; });
      expect_told("thickness", [](auto& one) { one.slot.thickness_mm += 7.0; });
      expect_told("sheets", [](auto& one) { one.multiplicity += 1; });
    }
  }
}

TEST_P(PaperSensitivity, TellsADampingLayerOnceItIsTicked) {
  const elements::Setup before = Full(Row().calculation);
  elements::Setup after = before;
  after.sea_leaf1.damping[2].ticked = true;
  after.sea_leaf2.damping[2].ticked = true;
  const bool has_checks = Row().stacks.Has(Stack::kSeaLeaf1) || Row().stacks.Has(Stack::kSeaLeaf2);
  for (const Paper paper : kPapers)
    EXPECT_EQ(TextOn(paper, after) != TextOn(paper, before), has_checks) << NameOf(paper);
}

/// Each value of a material that a model may read, in the layers that the calculation has.
TEST_P(PaperSensitivity, TellsTheValuesOfTheMaterials) {
  elements::Setup before = Full(Row().calculation);
  if (Row().generic_cavity) before.cavity.kind = elements::CavityKind::kGenericMaterial;
  for (const Paper paper : kPapers) {
    const std::string text = TextOn(paper, before);
    for (const elements::Layer& layer : OneLayerOfEachGroup(before)) {
      const auto expect_told = [&](const char* what, const auto& edit) {
        elements::Setup after = before;
        EditSlot(after, layer, edit);
        EXPECT_NE(TextOn(paper, after), text)
            << Row().variant << ", " << NameOf(paper) << ", " << what << " of " << layer.name;
      };
      expect_told("density", [](auto& one) { one.slot.density_kg_m3 += 17.0; });
      const elements::MaterialFamily family = RowOf(*layer.group).family;
      if (family == elements::MaterialFamily::kResilient) {
        elements::Setup after = before;
        after.resilient.rows.at(static_cast<std::size_t>(layer.row)).slot.dynamic_stiffness_mn_m3 += 5.0;
        EXPECT_NE(TextOn(paper, after), text) << Row().variant << ", " << NameOf(paper) << ", s'";
        continue;
      }
      const auto expect_number = [&](const char* what, auto number) {
        elements::Setup after = before;
        if (family == elements::MaterialFamily::kStructural) {
          number(StructuralRow(after, *layer.group, layer.row).slot);
        } else {
          number(FibrousRow(after, *layer.group, layer.row).slot);
        }
        EXPECT_NE(TextOn(paper, after), text)
            << Row().variant << ", " << NameOf(paper) << ", " << what << " of " << layer.name;
      };
      expect_number("E", [](auto& slot) { slot.youngs_modulus_gpa += 1.5; });
      expect_number("loss factor", [](auto& slot) { slot.loss_factor += 0.013; });
      expect_number("Poisson's ratio", [](auto& slot) { slot.poissons_ratio += 0.017; });
      if (family != elements::MaterialFamily::kFibrous) continue;
      elements::Setup after = before;
      FibrousRow(after, *layer.group, layer.row).slot.flow_resistance_pa_s_m += 137.0;
      EXPECT_NE(TextOn(paper, after), text) << Row().variant << ", " << NameOf(paper) << ", Rs";
      after = before;
      FibrousRow(after, *layer.group, layer.row).slot.absorption.fill(0.53F);
      EXPECT_NE(TextOn(paper, after), text) << Row().variant << ", " << NameOf(paper) << ", absorption";
    }
  }
}

TEST_P(PaperSensitivity, TellsBandsAndTermsOfEveryPart) {
  const elements::Setup before = Full(Row().calculation);
  const elements::CalculationRow& row = Row();
  if (!row.stacks.Has(Stack::kComponents)) return;
  for (const Paper paper : kPapers) {
    const std::string text = TextOn(paper, before);
    const auto expect_told = [&](const char* what, const auto& edit) {
      elements::Setup after = before;
      edit(after.facade.components[0]);
      EXPECT_NE(TextOn(paper, after), text) << NameOf(paper) << ", " << what;
    };
    expect_told("band", [](auto& part) { part.band_texts[20] = "21,7"; });
    expect_told("C", [](auto& part) { part.c_text = "-8"; });
    expect_told("Ctr", [](auto& part) { part.ctr_text = "-9"; });
  }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, PaperSensitivity,
                         testing::Range(0, static_cast<int>(elements::kCalculationCount)));

}  // namespace
}  // namespace velmar::presentation
