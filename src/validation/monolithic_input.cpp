#include "validation/monolithic_input.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "foundation/decimal.h"
#include "validation/element_kind.h"

namespace velmar::validation {
namespace {

using elements::StructuralMaterial;

constexpr double kMetresPerMillimetre = 0.001;
constexpr double kPascalPerGigapascal = 1e9;

bool IsHeavyLeaf(ElementKind kind) {
  return kind >= ElementKind::kBrickAndClay && kind <= ElementKind::kConcreteBlock;
}

/// Sheets in use; equal ones count as one thicker sheet.
std::vector<StructuralMaterial> SheetsOf(const elements::Setup& setup) {
  std::vector<StructuralMaterial> sheets;
  if (elements::RowOf(*setup.calculation).family == elements::Family::kSeaSingle) {
    for (int i = 0; i < setup.sea_leaf1.count; ++i) {
      sheets.push_back(setup.sea_leaf1.rows.at(static_cast<std::size_t>(i)).slot);
    }
    return sheets;
  }
  for (int i = 0; i < setup.leaf1.count; ++i) {
    const auto& row = setup.leaf1.rows.at(static_cast<std::size_t>(i));
    sheets.push_back(row.slot);
    sheets.back().thickness_mm *= std::max(1, row.multiplicity);
  }
  return sheets;
}

double MassOf(const StructuralMaterial& sheet) {
  return sheet.density_kg_m3 * sheet.thickness_mm * kMetresPerMillimetre;
}

}  // namespace

std::optional<models::MonolithicElement> MonolithicElementOf(const elements::Setup& setup) {
  if (!setup.calculation || !IsHeavyLeaf(KindOf(setup))) return std::nullopt;
  const std::optional<double> width_m = ParseDecimal(setup.width_text);
  const std::optional<double> height_m = ParseDecimal(setup.height_text);
  if (!width_m || !height_m) return std::nullopt;
  const std::vector<StructuralMaterial> sheets = SheetsOf(setup);
  const StructuralMaterial bearing = *std::ranges::max_element(sheets, {}, MassOf);
  double mass_kg_m2 = 0.0;
  for (const StructuralMaterial& sheet : sheets) mass_kg_m2 += MassOf(sheet);
  const double poisson = 1.0 - bearing.poissons_ratio * bearing.poissons_ratio;
  return models::MonolithicElement{
      .length1_m = std::abs(*width_m),
      .length2_m = std::abs(*height_m),
      .thickness_m = bearing.thickness_mm * kMetresPerMillimetre,
      .density_kg_m3 = bearing.density_kg_m3,
      .longitudinal_speed_m_s =
          std::sqrt(bearing.youngs_modulus_gpa * kPascalPerGigapascal / (bearing.density_kg_m3 * poisson)),
      .internal_loss_factor = bearing.loss_factor,
      .coating_mass_kg_m2 = mass_kg_m2 - MassOf(bearing)};
}

}  // namespace velmar::validation
