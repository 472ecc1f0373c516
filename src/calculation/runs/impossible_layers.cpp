#include "calculation/runs/impossible_layers.h"

#include <algorithm>
#include <limits>
#include <string>

#include "elements/layer_groups.h"
#include "elements/parts.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"

namespace velmar::calculation {
namespace {

using elements::Field;
using elements::LayerGroup;
using elements::Setup;

/// What a value of a layer may be: 0 at least.
struct Limit {
  Field field{};
  MessageRow name{};
  double highest = std::numeric_limits<double>::infinity();
  MessageRow rule = kMustNotBeNegativeRow;
};
constexpr Limit kThickness = {Field::kThickness, kThicknessValueRow};
constexpr Limit kDensity = {Field::kDensity, kDensityValueRow};
constexpr Limit kYoungsModulus = {Field::kYoungsModulus, kYoungsModulusValueRow};
constexpr Limit kLossFactor = {Field::kLossFactor, kLossFactorValueRow, 1.0, kMustLieUpToOneRow};
constexpr Limit kPoissonsRatio = {Field::kPoissonsRatio, kPoissonsRatioValueRow, 0.5, kMustLieUpToOneHalfRow};
constexpr Limit kFlowResistance = {Field::kFlowResistance, kFlowResistanceValueRow};

/// Looks at the values of one layer, one after the other.
class Look {
 public:
  Look(const std::string& name, LayerGroup group, int row, int number)
      : name_(name), group_(group), row_(row), number_(number) {}

  Look& At(const Limit& limit, double value) {
    const bool possible = value >= 0.0 && value <= limit.highest;
    if (possible || found_) return *this;
    std::string place = " " + std::to_string(number_);
    if (!name_.empty()) place += ", " + name_;
    found_ = Refusal{{.field = limit.field, .group = group_, .index = row_},
                     {kLayerWithImpossibleDataRow, place + ": ", limit.name,
                      " = " + FormatShortest(value) + ": ", limit.rule}};
    return *this;
  }

  const std::optional<Refusal>& Found() const { return found_; }

 private:
  const std::string& name_;
  LayerGroup group_;
  int row_;
  int number_;
  std::optional<Refusal> found_{};
};

void LookAtSolid(Look& look, const auto& slot) {
  look.At(kYoungsModulus, slot.youngs_modulus_gpa)
      .At(kLossFactor, slot.loss_factor)
      .At(kPoissonsRatio, slot.poissons_ratio);
}

std::optional<Refusal> LookAt(const elements::StructuralMaterial& slot, const elements::Layer& layer) {
  Look look(layer.name, *layer.group, layer.row, layer.number);
  look.At(kThickness, slot.thickness_mm).At(kDensity, slot.density_kg_m3);
  if (layer.IsDamping()) {
    look.At(kYoungsModulus, slot.youngs_modulus_gpa);
  } else {
    LookAtSolid(look, slot);
  }
  return look.Found();
}

std::optional<Refusal> LookAt(const elements::FibrousMaterial& slot, const elements::Layer& layer) {
  Look look(layer.name, *layer.group, layer.row, layer.number);
  look.At(kThickness, slot.thickness_mm).At(kDensity, slot.density_kg_m3);
  if (layer.group == LayerGroup::kSeaCavityFibre) return look.Found();
  if (slot.porous) {
    look.At(kFlowResistance, slot.flow_resistance_pa_s_m);
  } else {
    LookAtSolid(look, slot);
  }
  return look.Found();
}

std::optional<Refusal> LookAt(const elements::ResilientMaterial& slot, const elements::Layer& layer) {
  Look look(layer.name, *layer.group, layer.row, layer.number);
  look.At(kThickness, slot.thickness_mm).At(kDensity, slot.density_kg_m3);
  return look.Found();
}

std::optional<Refusal> LookAt(const Setup& setup, const elements::Layer& layer) {
  if (!layer.group) return std::nullopt;
  // Its material was in no table when the row came into use.
  if (layer.name.empty() && layer.density_kg_m3 == 0.0) {
    return Refusal{{.field = Field::kMaterial, .group = layer.group, .index = layer.row},
                   {kLayerWithoutMaterialRow, " " + std::to_string(layer.number) + "."}};
  }
  switch (RowOf(*layer.group).family) {
    case elements::MaterialFamily::kStructural:
      return LookAt(StructuralRow(setup, *layer.group, layer.row).slot, layer);
    case elements::MaterialFamily::kFibrous:
      return LookAt(FibrousRow(setup, *layer.group, layer.row).slot, layer);
    case elements::MaterialFamily::kResilient:
      return LookAt(setup.resilient.rows.at(static_cast<std::size_t>(layer.row)).slot, layer);
  }
  return std::nullopt;
}

}  // namespace

std::optional<Refusal> FindImpossibleLayer(const Setup& setup) {
  for (const elements::Part& part : elements::PartsOf(setup)) {
    for (const elements::Layer& layer : part.layers) {
      if (auto refusal = LookAt(setup, layer)) return refusal;
    }
  }
  return std::nullopt;
}

}  // namespace velmar::calculation
