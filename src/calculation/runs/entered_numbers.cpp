#include "calculation/runs/entered_numbers.h"

#include <cmath>
#include <optional>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"

namespace velmar::calculation {

FieldFailure::FieldFailure(const std::string& text, const elements::FieldId& field)
    : ArithmeticFailure(MessageLine{kNotANumberRow, " \"" + text + "\""}, "\"" + text + "\" is no number"),
      field_(field) {}

double EnteredNumber(const std::string& text, const elements::FieldId& field) {
  const std::optional<double> number = ParseDecimal(text);
  if (number) return *number;
  throw FieldFailure(text, field);
}

double EnteredNumberOrZero(const std::string& text, const elements::FieldId& field) {
  return text.empty() ? 0.0 : EnteredNumber(text, field);
}

double EnteredLength(const std::string& text, const elements::FieldId& field) {
  return std::abs(EnteredNumber(text, field));
}

std::vector<models::PlateLayer> PlateLayers(const elements::LeafLayers& leaf) {
  std::vector<models::PlateLayer> layers;
  for (int i = 0; i < leaf.count; ++i) {
    const auto& row = leaf.rows.at(static_cast<std::size_t>(i));
    layers.push_back({.multiplicity = row.multiplicity,
                      .thickness_mm = row.slot.thickness_mm,
                      .density_kg_m3 = row.slot.density_kg_m3,
                      .youngs_modulus_gpa = row.slot.youngs_modulus_gpa,
                      .loss_factor = row.slot.loss_factor,
                      .poissons_ratio = row.slot.poissons_ratio});
  }
  return layers;
}

std::vector<models::ResilientMat> ResilientMatsOf(const elements::ResilientLayers& table) {
  std::vector<models::ResilientMat> layers;
  for (int i = 0; i < table.count; ++i) {
    const auto& row = table.rows.at(static_cast<std::size_t>(i));
    layers.push_back({.multiplicity = row.multiplicity,
                      .thickness_mm = row.slot.thickness_mm,
                      .density_kg_m3 = row.slot.density_kg_m3,
                      .dynamic_stiffness_mn_m3 = row.slot.dynamic_stiffness_mn_m3});
  }
  return layers;
}

}  // namespace velmar::calculation
