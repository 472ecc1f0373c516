#include "presentation/texts/calculation_data.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "elements/parts.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"
#include "presentation/texts/calculation_labels.h"
#include "presentation/texts/facade_texts.h"
#include "presentation/texts/field_texts.h"
#include "presentation/texts/references.h"

namespace velmar::presentation {
namespace {

using elements::CalculationRow;
using elements::Field;
using elements::Layer;
using elements::Setup;
using elements::Stack;

/// Bytes of the source of a material that is said of every layer.
constexpr std::size_t kShortSource = 40;
constexpr std::size_t kProjectRow = 0;  // of the project information

/// Six digits are more than any material is known by.
std::string Value(double value) { return value == 0.0 ? kNoValue : FormatShortest(RoundToEven(value, 6)); }

/// The values of a layer's material that models read.
struct LayerValues {
  double youngs_modulus_gpa = 0.0;
  double loss_factor = 0.0;
  double poissons_ratio = 0.0;
  double dynamic_stiffness_mn_m3 = 0.0;
  double flow_resistance_pa_s_m = 0.0;
  const elements::Absorption* absorption = nullptr;
  std::string source{};
};

template <typename Material>
std::string SourceOf(const std::function<std::string(const Material&)>& sources, const Material& material) {
  return sources ? sources(material) : std::string();
}

LayerValues ValuesOf(const Setup& setup, const Layer& layer, const MaterialSources& sources) {
  switch (RowOf(*layer.group).family) {
    case elements::MaterialFamily::kStructural: {
      const auto& slot = elements::StructuralRow(setup, *layer.group, layer.row).slot;
      return {.youngs_modulus_gpa = slot.youngs_modulus_gpa,
              .loss_factor = slot.loss_factor,
              .poissons_ratio = slot.poissons_ratio,
              .source = SourceOf(sources.structural, slot)};
    }
    case elements::MaterialFamily::kFibrous: {
      const auto& slot = elements::FibrousRow(setup, *layer.group, layer.row).slot;
      return {.youngs_modulus_gpa = slot.youngs_modulus_gpa,
              .loss_factor = slot.loss_factor,
              .poissons_ratio = slot.poissons_ratio,
              .flow_resistance_pa_s_m = slot.flow_resistance_pa_s_m,
              .absorption = &slot.absorption,
              .source = SourceOf(sources.fibrous, slot)};
    }
    case elements::MaterialFamily::kResilient: {
      const auto& slot = setup.resilient.rows.at(static_cast<std::size_t>(layer.row)).slot;
      return {.dynamic_stiffness_mn_m3 = slot.dynamic_stiffness_mn_m3,
              .source = SourceOf(sources.resilient, slot)};
    }
  }
  return {};
}

std::string ThicknessOf(const Layer& layer) {
  const std::string thickness = Value(layer.thickness_mm);
  return layer.sheets > 1 ? std::to_string(layer.sheets) + " x " + thickness : thickness;
}

/// Takes out the columns, from `first` on, in which no row holds anything.
void DropEmptyColumns(DataTable& table, std::size_t first) {
  for (std::size_t column = table.heads.size(); column-- > first;) {
    if (std::ranges::any_of(table.rows, [&](const auto& row) { return row[column] != kNoValue; })) continue;
    const auto at = static_cast<std::ptrdiff_t>(column);
    table.heads.erase(table.heads.begin() + at);
    table.weights.erase(table.weights.begin() + at);
    for (auto& row : table.rows) row.erase(row.begin() + at);
  }
}

template <typename Take>
void ForEachLayer(const Setup& setup, Take&& take) {
  for (const elements::Part& part : elements::PartsAsTheyStand(setup)) {
    for (const Layer& layer : part.layers) {
      if (layer.group) take(layer);
    }
  }
}

DataTable LayerTable(const Setup& setup, const Words& words, const MaterialSources& sources) {
  DataTable table{.title = words(kLayerDataRow),
                  .heads = {words(kNumberHeadRow), words(kMaterialHeadRow), "s [mm]", "ρ [kg/m³]", "E [GPa]",
                            "η", "ν", "s' [MN/m³]", "Rs [Pa·s/m]", words(kSourceHeadRow)},
                  .weights = {0.65, 2.7, 1.1, 1.3, 1.15, 0.9, 0.65, 1.45, 1.4, 6.0}};
  std::map<std::string, int> told;
  ForEachLayer(setup, [&](const Layer& layer) {
    const LayerValues values = ValuesOf(setup, layer, sources);
    // What a layer above says in many words is not said again.
    const int first = told.emplace(values.source, layer.number).first->second;
    const std::string source = values.source.empty() ? kNoValue
                               : first == layer.number || values.source.size() <= kShortSource
                                   ? values.source
                                   : "= " + words(kNumberHeadRow) + " " + std::to_string(first);
    table.rows.push_back({std::to_string(layer.number), LayerName(setup, layer, words), ThicknessOf(layer),
                          Value(layer.density_kg_m3), Value(values.youngs_modulus_gpa),
                          Value(values.loss_factor), Value(values.poissons_ratio),
                          Value(values.dynamic_stiffness_mn_m3), Value(values.flow_resistance_pa_s_m),
                          source});
  });
  DropEmptyColumns(table, 4);
  return table;
}

/// A column a fill: bands downwards, as wide tables do not fit a page.
DataTable AbsorptionTable(const Setup& setup, const Words& words) {
  DataTable table{.title = words(kAbsorptionDataRow), .heads = {words(kFrequencyRow)}, .weights = {1.2}};
  for (const double centre : elements::kAbsorptionBandCentres) table.rows.push_back({FormatShortest(centre)});
  ForEachLayer(setup, [&](const Layer& layer) {
    const elements::Absorption* absorption = ValuesOf(setup, layer, {}).absorption;
    if (absorption == nullptr ||
        std::ranges::all_of(*absorption, [](float band) { return band == elements::kNoAbsorption; }))
      return;
    table.heads.push_back("α " + std::to_string(layer.number));
    table.weights.push_back(1.0);
    for (std::size_t band = 0; band < absorption->size(); ++band) {
      const float value = (*absorption)[band];
      table.rows[band].push_back(value == elements::kNoAbsorption
                                     ? kNoValue
                                     : FormatShortest(RoundToEven(static_cast<double>(value), 4)));
    }
  });
  if (table.heads.size() == 1) return {};
  return table;
}

/// The opaque part or base element, or a component, with what a user enters for it.
struct RatedPart {
  int number = 0;
  std::string name{};
  std::string area{};
  std::string rating{};
  const std::string* c = nullptr;
  const std::string* ctr = nullptr;
  double mass_kg_m2 = 0.0;
  double thickness_mm = 0.0;
  std::string tightness{};
  const elements::BandTexts* bands = nullptr;
};

std::vector<RatedPart> RatedPartsOf(const Setup& setup, const CalculationRow& row, const Words& words) {
  std::vector<RatedPart> parts;
  for (const elements::Part& part : elements::PartsAsTheyStand(setup)) {
    if (part.stack != Stack::kBase && part.stack != Stack::kComponents) continue;
    for (const Layer& layer : part.layers) {
      RatedPart rated{.number = layer.number,
                      .name = layer.name.empty() ? StackName(row.calculation, part.stack, words) : layer.name,
                      .mass_kg_m2 = layer.mass_kg_m2,
                      .thickness_mm = layer.thickness_mm};
      if (part.stack == Stack::kBase) {
        rated.area = setup.base.area_text;
        rated.rating = setup.base.rating_text;
        rated.c = &setup.base.c_text;
        rated.ctr = &setup.base.ctr_text;
        rated.bands = &setup.base.band_texts;
      } else {
        const auto& component = setup.facade.components.at(static_cast<std::size_t>(layer.row - 1));
        rated.area = component.area_text;
        rated.rating = component.rating_text;
        rated.c = &component.c_text;
        rated.ctr = &component.ctr_text;
        rated.bands = &component.band_texts;
        rated.tightness = TightnessText(component.tightness_class, words);
      }
      parts.push_back(std::move(rated));
    }
  }
  return parts;
}

std::string OrDash(const std::string& text) { return text.empty() ? kNoValue : text; }

DataTable PartTable(const std::vector<RatedPart>& parts, const CalculationRow& row, const Words& words) {
  const bool facade = row.stacks.Has(Stack::kComponents);
  DataTable table{.title = words(kPartDataRow),
                  .heads = {words(kNumberHeadRow), words(kPartHeadingRow), "S [m²]", "Rw / Dn,e,w [dB]", "C",
                            "Ctr", "m' [kg/m²]", "s [mm]", words(kTightnessHeadRow)},
                  .weights = {0.6, 3.6, 1.0, 1.6, 0.7, 0.7, 1.2, 1.0, 2.0}};
  for (const RatedPart& part : parts) {
    const auto told = [&](Field field, const std::string& text) {
      return row.Reads(field) ? OrDash(text) : kNoValue;
    };
    table.rows.push_back({std::to_string(part.number), part.name, told(Field::kArea, part.area),
                          told(Field::kRating, part.rating), told(Field::kC, *part.c),
                          told(Field::kCtr, *part.ctr),
                          row.Reads(Field::kMass) ? Value(part.mass_kg_m2) : kNoValue,
                          row.Reads(Field::kBaseThickness) ? Value(part.thickness_mm) : kNoValue,
                          facade ? OrDash(part.tightness) : kNoValue});
  }
  DropEmptyColumns(table, 2);
  return table;
}

DataTable BandTable(const std::vector<RatedPart>& parts, const Words& words) {
  DataTable table{.title = words(kBandDataRow), .heads = {words(kFrequencyRow)}, .weights = {1.4}};
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band)
    table.rows.push_back({FormatShortest(acoustics::BandCentre(band))});
  for (const RatedPart& part : parts) {
    if (std::ranges::all_of(*part.bands, &std::string::empty)) continue;
    table.heads.push_back(std::to_string(part.number));
    table.weights.push_back(1.0);
    for (std::size_t band = 0; band < acoustics::kBandCount; ++band)
      table.rows[band].push_back(OrDash((*part.bands)[band]));
  }
  if (table.heads.size() == 1) return {};
  return table;
}

void AddProvenance(const Provenance& provenance, const Words& words, std::vector<DataField>& fields) {
  if (!provenance.program.empty()) fields.push_back({words(kProgramCaptionRow), provenance.program, true});
  if (!provenance.date.empty()) fields.push_back({words(kDateCaptionRow), provenance.date, true});
  if (provenance.fingerprint.empty()) return;
  fields.push_back({words(kProjectFileCaptionRow),
                    provenance.project_file.empty() ? words(kNotSavedRow) : provenance.project_file, true});
  fields.push_back({words(kFingerprintCaptionRow), provenance.fingerprint, true});
}

}  // namespace

std::string FootText(const elements::ProjectInformation& information, const Provenance& provenance) {
  std::string text;
  for (const std::string* part :
       {&information[kProjectRow].value, &information[elements::kAttachmentRow].value,
        &provenance.project_file, &provenance.date, &provenance.program}) {
    if (!part->empty()) text += (text.empty() ? "" : " · ") + *part;
  }
  return text;
}

CalculationData CalculationDataOf(const Setup& setup, const Words& words, const Provenance& provenance) {
  CalculationData data;
  if (!setup.calculation) return data;
  const CalculationRow& row = elements::RowOf(*setup.calculation);
  data.title = words(kDataTitleRow);
  for (int i = 0; i <= static_cast<int>(elements::kLastField); ++i) {
    const auto field = static_cast<Field>(i);
    if (!row.Reads(field)) continue;
    if (std::optional<DataField> told = FieldOf(field, setup, row, words)) data.fields.push_back(*told);
  }
  AddProvenance(provenance, words, data.fields);
  const auto add = [&](DataTable table) {
    if (!table.rows.empty() && !table.heads.empty()) data.tables.push_back(std::move(table));
  };
  add(LayerTable(setup, words, provenance.sources));
  add(AbsorptionTable(setup, words));
  const std::vector<RatedPart> parts = RatedPartsOf(setup, row, words);
  if (!parts.empty()) {
    add(PartTable(parts, row, words));
    if (row.Reads(Field::kBand)) add(BandTable(parts, words));
  }
  data.references_title = words(kReferencesTitleRow);
  data.references = ReferencesOf(row.calculation, words);
  return data;
}

}  // namespace velmar::presentation
