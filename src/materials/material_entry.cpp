#include "materials/material_entry.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <utility>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "materials/coupled_boxes.h"
#include "materials/judged_values.h"
#include "storage/materials/material_store.h"

namespace velmar::materials {
namespace {

using elements::FibrousMaterial;
using elements::MaterialProperty;
using enum MaterialProperty;
using elements::ResilientMaterial;
using elements::StructuralMaterial;

/// `TagliaAlPrimoCR`: up to the first line break, without blanks around it.
std::string FirstLine(const std::string& text) {
  const std::string line = text.substr(0, text.find_first_of("\r\n"));
  const std::size_t first = line.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return line.substr(first, line.find_last_not_of(' ') - first + 1);
}

template <typename Entry>
void Clean(Entry& entry, const KeywordTexts& texts) {
  for (std::string* text : {&entry.name, &entry.description, &entry.keyword, &entry.source})
    *text = FirstLine(*text);
  if (entry.keyword.empty()) entry.keyword = texts.not_specified;
}

EntryRefusal NameMissing() { return {{{kMaterialWithoutNameRow}}, kNameField}; }

struct NeededText {
  const std::string& text;
  MaterialProperty property{};
  MessageRow name = NameOf(property);
};

/// The refusal that names every empty text and is about the first, or nothing.
std::optional<EntryRefusal> Missing(std::initializer_list<NeededText> needed) {
  EntryRefusal refusal{{{kMaterialDataMissingRow, ":"}}};
  for (const NeededText& one : needed) {
    if (!one.text.empty()) continue;
    refusal.message.push_back({"- ", one.name});
    if (!refusal.field) refusal.field = EntryField{one.property};
  }
  if (!refusal.field) return std::nullopt;
  return refusal;
}

template <typename Material>
struct NumberText {
  const std::string& text;
  double Material::*value;
  MaterialProperty property{};
};

/// Takes the numbers over into `material`; an empty text is 0.
/// @return the refusal about the first that is no number
template <typename Material>
std::optional<EntryRefusal> TakeNumbers(std::initializer_list<NumberText<Material>> numbers,
                                        Material& material) {
  for (const NumberText<Material>& one : numbers) {
    const std::optional<double> number = one.text.empty() ? 0.0 : ParseDecimal(one.text);
    if (!number)
      return EntryRefusal{{{kMaterialNotSavedRow}, {kBoxHoldsNoNumberRow, " " + one.text}},
                          EntryField{one.property}};
    material.*one.value = *number;
  }
  return std::nullopt;
}

template <typename Material, typename Entry>
storage::MaterialRow<Material> NamedRow(const Entry& entry) {
  storage::MaterialRow<Material> row;
  row.record.values.name = entry.name;
  row.record.values.description = entry.description;
  row.keyword = entry.keyword;
  return row;
}

std::optional<EntryRefusal> TakeAbsorption(const FibrousEntry& entry, FibrousMaterial& material) {
  const auto possible = [](float value) {
    return elements::Judge(elements::MaterialKind::kFibrous, kAbsorption, value) !=
           elements::Plausibility::kImpossible;
  };
  for (std::size_t band = 0; band < entry.absorption.size(); ++band) {
    const std::string& text = entry.absorption.at(band);
    if (text.empty()) continue;
    const std::optional<float> value = ParseSingle(text);
    if (!value || !possible(*value)) {
      std::string where = " " + FormatShortest(elements::kAbsorptionBandCentres.at(band));
      where.append(" Hz: ").append(text);
      return EntryRefusal{{{kAbsorptionBoxesRow}, {kAbsorptionOutOfRangeRow, std::move(where)}},
                          EntryField{kAbsorption, band}};
    }
    material.absorption.at(band) = *value;
  }
  return std::nullopt;
}

/// The refusal that names every impossible value and is about the first, or nothing.
template <typename Material>
std::optional<EntryRefusal> Impossible(const storage::MaterialRow<Material>& row) {
  const auto findings = elements::Only(elements::FindingsOf(row.record), elements::Plausibility::kImpossible);
  auto message = ImpossibleValues(findings);
  if (!message) return std::nullopt;
  return EntryRefusal{*std::move(message), EntryField{findings.front().property}};
}

template <typename Material>
std::string TextOf(const storage::MaterialRow<Material>& row, double Material::*field) {
  return row.record.Holds(field) ? FormatShortest(row.record.values.*field) : std::string();
}

}  // namespace

std::string WithComputation(const std::string& source, const std::string& computation) {
  if (source.empty() || computation.empty()) return source + computation;
  return source + "; " + computation;
}

std::variant<storage::StructuralRow, EntryRefusal> RowOf(StructuralEntry entry, const KeywordTexts& texts) {
  using M = StructuralMaterial;
  Clean(entry, texts);
  if (entry.name.empty()) return NameMissing();
  if (auto refusal = Missing({{entry.thickness, kThickness},
                              {entry.density, kDensity},
                              {entry.surface_mass, kSurfaceMass},
                              {entry.youngs_modulus, kYoungsModulus},
                              {entry.loss_factor, kLossFactor}})) {
    return *std::move(refusal);
  }
  storage::StructuralRow row = NamedRow<M>(entry);
  if (auto refusal =
          TakeNumbers<M>({{entry.thickness, &M::thickness_mm, kThickness},
                          {entry.density, &M::density_kg_m3, kDensity},
                          {entry.youngs_modulus, &M::youngs_modulus_gpa, kYoungsModulus},
                          {entry.loss_factor, &M::loss_factor, kLossFactor},
                          {entry.poissons_ratio, &M::poissons_ratio, kPoissonsRatio},
                          {entry.surface_mass, &M::surface_mass_kg_m2, kSurfaceMass},
                          {entry.critical_frequency, &M::critical_frequency_hz, kCriticalFrequency}},
                         row.record.values)) {
    return *std::move(refusal);
  }
  row.source = entry.source;
  row.record.nulls = {&M::thermal_conductivity_w_mk, &M::thermal_conductance_w_m2k,
                      &M::vapour_permeability_dry, &M::vapour_permeability_wet, &M::thermal_resistance_m2k_w};
  if (auto refusal = Impossible(row)) return *std::move(refusal);
  return row;
}

std::variant<storage::FibrousRow, EntryRefusal> RowOf(FibrousEntry entry, const KeywordTexts& texts) {
  using M = FibrousMaterial;
  Clean(entry, texts);
  if (entry.name.empty()) return NameMissing();
  const std::string none = "-";  // stands for a value that this kind does not need
  if (auto refusal = Missing({{entry.thickness, kThickness},
                              {entry.density, kDensity},
                              {entry.porous ? none : entry.youngs_modulus, kYoungsModulus},
                              {entry.porous ? none : entry.loss_factor, kLossFactor},
                              {entry.porous ? entry.flow_resistance : none, kFlowResistance}})) {
    return *std::move(refusal);
  }
  storage::FibrousRow row = NamedRow<M>(entry);
  M& material = row.record.values;
  material.porous = entry.porous;
  auto refusal = TakeNumbers<M>(
      {{entry.thickness, &M::thickness_mm, kThickness}, {entry.density, &M::density_kg_m3, kDensity}},
      material);
  if (!refusal && entry.porous) {
    refusal =
        TakeNumbers<M>({{entry.flow_resistance, &M::flow_resistance_pa_s_m, kFlowResistance}}, material);
    if (!refusal) refusal = TakeAbsorption(entry, material);
  } else if (!refusal) {
    refusal = TakeNumbers<M>({{entry.youngs_modulus, &M::youngs_modulus_gpa, kYoungsModulus},
                              {entry.loss_factor, &M::loss_factor, kLossFactor},
                              {entry.poissons_ratio, &M::poissons_ratio, kPoissonsRatio}},
                             material);
  }
  if (refusal) return *std::move(refusal);
  row.source = entry.porous ? WithComputation(entry.source, entry.computation) : entry.source;
  // The columns of the other kind are emptied.
  if (entry.porous) {
    row.record.nulls = {&M::youngs_modulus_gpa, &M::loss_factor, &M::poissons_ratio};
  } else {
    row.record.nulls = {&M::flow_resistance_pa_s_m};
  }
  if (auto impossible = Impossible(row)) return *std::move(impossible);
  return row;
}

std::variant<storage::ResilientRow, EntryRefusal> RowOf(ResilientEntry entry, const KeywordTexts& texts) {
  using M = ResilientMaterial;
  Clean(entry, texts);
  if (entry.name.empty()) return NameMissing();
  ResilientBoxes boxes{entry.stiffness, entry.improvement, entry.resonance};
  if (boxes.dynamic_stiffness_mn_m3.empty()) {
    boxes = CoupleResilient(
        boxes, boxes.impact_improvement_db.empty() ? ResilientBox::kResonance : ResilientBox::kImprovement);
  }
  if (boxes.impact_improvement_db.empty() || boxes.resonance_frequency_hz.empty()) {
    const ResilientBoxes coupled = CoupleResilient(boxes, ResilientBox::kStiffness);
    if (boxes.impact_improvement_db.empty()) boxes.impact_improvement_db = coupled.impact_improvement_db;
    if (boxes.resonance_frequency_hz.empty()) boxes.resonance_frequency_hz = coupled.resonance_frequency_hz;
  }
  if (boxes == ResilientBoxes{}) return EntryRefusal{{{kResilientValuesRow}}, EntryField{kDynamicStiffness}};
  storage::ResilientRow row = NamedRow<M>(entry);
  const auto take = [&](std::initializer_list<NumberText<M>> numbers) {
    return TakeNumbers<M>(numbers, row.record.values);
  };
  const NumberText<M> improvement{boxes.impact_improvement_db, &M::impact_improvement_db, kImpactImprovement};
  const NumberText<M> resonance{boxes.resonance_frequency_hz, &M::resonance_frequency_hz,
                                kResonanceFrequency};
  if (auto refusal = take({improvement, resonance})) return *std::move(refusal);
  // A negative improvement or resonance gives no stiffness.
  if (auto refusal = Missing({{boxes.dynamic_stiffness_mn_m3, kDynamicStiffness, kStiffnessMissingRow},
                              {entry.thickness, kThickness}})) {
    return *std::move(refusal);
  }
  if (auto refusal = take({{boxes.dynamic_stiffness_mn_m3, &M::dynamic_stiffness_mn_m3, kDynamicStiffness},
                           {entry.thickness, &M::thickness_mm, kThickness},
                           {entry.density, &M::density_kg_m3, kDensity}})) {
    return *std::move(refusal);
  }
  row.source = entry.source;
  if (boxes.impact_improvement_db.empty()) row.record.nulls.push_back(&M::impact_improvement_db);
  if (boxes.resonance_frequency_hz.empty()) row.record.nulls.push_back(&M::resonance_frequency_hz);
  if (auto refusal = Impossible(row)) return *std::move(refusal);
  return row;
}

StructuralEntry EntryOf(const storage::StructuralRow& row) {
  using M = StructuralMaterial;
  return {.name = row.record.values.name,
          .description = row.record.values.description,
          .thickness = TextOf(row, &M::thickness_mm),
          .density = TextOf(row, &M::density_kg_m3),
          .surface_mass = TextOf(row, &M::surface_mass_kg_m2),
          .youngs_modulus = TextOf(row, &M::youngs_modulus_gpa),
          .critical_frequency = TextOf(row, &M::critical_frequency_hz),
          .loss_factor = TextOf(row, &M::loss_factor),
          .poissons_ratio = TextOf(row, &M::poissons_ratio),
          .keyword = row.keyword,
          .source = row.source};
}

FibrousEntry EntryOf(const storage::FibrousRow& row) {
  using M = FibrousMaterial;
  FibrousEntry entry{.name = row.record.values.name,
                     .description = row.record.values.description,
                     .keyword = row.keyword,
                     .thickness = TextOf(row, &M::thickness_mm),
                     .density = TextOf(row, &M::density_kg_m3),
                     .porous = row.record.values.porous,
                     .youngs_modulus = TextOf(row, &M::youngs_modulus_gpa),
                     .loss_factor = TextOf(row, &M::loss_factor),
                     .poissons_ratio = TextOf(row, &M::poissons_ratio),
                     .flow_resistance = TextOf(row, &M::flow_resistance_pa_s_m),
                     .source = row.source};
  for (std::size_t band = 0; band < entry.absorption.size(); ++band) {
    const float value = row.record.values.absorption.at(band);
    if (value != elements::kNoAbsorption) entry.absorption.at(band) = FormatShortest(value);
  }
  return entry;
}

ResilientEntry EntryOf(const storage::ResilientRow& row) {
  using M = ResilientMaterial;
  return {.name = row.record.values.name,
          .description = row.record.values.description,
          .keyword = row.keyword,
          .stiffness = TextOf(row, &M::dynamic_stiffness_mn_m3),
          .improvement = TextOf(row, &M::impact_improvement_db),
          .resonance = TextOf(row, &M::resonance_frequency_hz),
          .thickness = TextOf(row, &M::thickness_mm),
          .density = TextOf(row, &M::density_kg_m3),
          .source = row.source};
}

}  // namespace velmar::materials
