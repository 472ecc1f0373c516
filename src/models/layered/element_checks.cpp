#include <cmath>

#include "models/layered/layered_element.h"

namespace velmar::models {
namespace {

constexpr double kThinnestM = 1e-5;
constexpr double kLightestKgM3 = 1.0;
constexpr double kHeaviestKgM3 = 30000.0;
constexpr double kSoftestPa = 1e3;
constexpr double kStiffestPa = 5e12;

/// Keeps the first value that lies outside its range.
class Checker {
 public:
  void GoTo(std::size_t part, std::size_t layer) {
    part_ = part;
    layer_ = layer;
  }

  /// A value that is not a number lies in no range.
  void Within(LayeredField field, double value, double lowest, double highest) {
    if (refusal_ || (value >= lowest && value <= highest)) return;
    refusal_ = LayeredRefusal{field, part_, layer_, value, lowest, highest};
  }

  const std::optional<LayeredRefusal>& Refusal() const { return refusal_; }

 private:
  std::optional<LayeredRefusal> refusal_;
  std::size_t part_ = 0;
  std::size_t layer_ = 0;
};

void Check(const SolidLayer& layer, Checker& checker) {
  checker.Within(LayeredField::kThickness, layer.thickness_m, kThinnestM, 3.0);
  checker.Within(LayeredField::kDensity, layer.density_kg_m3, kLightestKgM3, kHeaviestKgM3);
  checker.Within(LayeredField::kYoungsModulus, layer.youngs_modulus_pa, kSoftestPa, kStiffestPa);
  checker.Within(LayeredField::kPoissonsRatio, layer.poissons_ratio, 0.0, 0.499);
  checker.Within(LayeredField::kLossFactor, layer.loss_factor, 0.0, 1.0);
}

void Check(const LayeredPlate& plate, std::size_t part, Checker& checker) {
  checker.GoTo(part, 0);
  checker.Within(LayeredField::kLayerCount, static_cast<double>(plate.layers.size()), 1.0, 100.0);
  for (std::size_t layer = 0; layer < plate.layers.size(); ++layer) {
    checker.GoTo(part, layer);
    Check(plate.layers[layer], checker);
  }
}

void Check(const LaminatedPane& pane, std::size_t part, Checker& checker) {
  checker.GoTo(part, 0);
  Check(pane.outer, checker);
  checker.GoTo(part, 1);
  const Interlayer& sheet = pane.interlayer;
  checker.Within(LayeredField::kInterlayerThickness, sheet.thickness_m, kThinnestM, 0.1);
  checker.Within(LayeredField::kInterlayerDensity, sheet.density_kg_m3, kLightestKgM3, kHeaviestKgM3);
  checker.Within(LayeredField::kInterlayerShearModulus, sheet.shear_modulus_at_1khz_pa, kSoftestPa,
                 kStiffestPa);
  checker.Within(LayeredField::kInterlayerExponent, sheet.frequency_exponent, 0.0, 1.0);
  checker.Within(LayeredField::kInterlayerLossTangent, sheet.loss_tangent, 0.0, 3.0);
  checker.GoTo(part, 2);
  Check(pane.inner, checker);
}

void Check(const SandwichPanel& panel, std::size_t part, Checker& checker) {
  checker.GoTo(part, 0);
  Check(panel.outer, checker);
  checker.GoTo(part, 1);
  const SandwichCore& core = panel.core;
  checker.Within(LayeredField::kCoreThickness, core.thickness_m, kThinnestM, 3.0);
  checker.Within(LayeredField::kCoreDensity, core.density_kg_m3, kLightestKgM3, kHeaviestKgM3);
  checker.Within(LayeredField::kCoreShearModulus, core.shear_modulus_pa, kSoftestPa, kStiffestPa);
  checker.Within(LayeredField::kCoreCompressionModulus, core.compression_modulus_pa, kSoftestPa, kStiffestPa);
  checker.Within(LayeredField::kCoreLossFactor, core.loss_factor, 0.0, 1.0);
  checker.GoTo(part, 2);
  Check(panel.inner, checker);
}

void Check(const OrthotropicPlate& plate, std::size_t part, Checker& checker) {
  checker.GoTo(part, 0);
  checker.Within(LayeredField::kSurfaceMass, plate.mass_kg_m2, 0.1, 10000.0);
  checker.Within(LayeredField::kBendingStiff, plate.bending_stiff_n_m, 1e-4, 1e12);
  checker.Within(LayeredField::kBendingSoft, plate.bending_soft_n_m, 1e-4, 1e12);
  checker.Within(LayeredField::kLossFactor, plate.loss_factor, 0.0, 1.0);
}

void Check(const LayeredCavity& cavity, std::size_t part, Checker& checker) {
  for (std::size_t layer = 0; layer < cavity.fills.size(); ++layer) {
    const CavityFill& fill = cavity.fills[layer];
    checker.GoTo(part, layer);
    checker.Within(LayeredField::kFillThickness, fill.thickness_m, 0.0, 5.0);
    if (fill.kind != FillKind::kFibre) continue;
    checker.Within(LayeredField::kFlowResistivity, fill.flow_resistivity_pa_s_m2, 100.0, 1e7);
    checker.Within(LayeredField::kFillDensity, fill.density_kg_m3, kLightestKgM3, 3000.0);
  }
  for (std::size_t layer = 0; layer < cavity.connections.size(); ++layer) {
    checker.GoTo(part, layer);
    checker.Within(LayeredField::kConnectionDensity, cavity.connections[layer].density, 1e-3, 1000.0);
    checker.Within(LayeredField::kConnectionCompliance, cavity.connections[layer].compliance, 0.0, 1.0);
  }
}

}  // namespace

std::optional<LayeredRefusal> FindLayeredRefusal(const LayeredElement& element) {
  Checker checker;
  const std::size_t leaves = element.leaves.size();
  checker.Within(LayeredField::kWidth, element.width_m, 0.1, 100.0);
  checker.Within(LayeredField::kHeight, element.height_m, 0.1, 100.0);
  checker.Within(LayeredField::kLeafCount, static_cast<double>(leaves), 1.0, kMostLeaves);
  const double between = static_cast<double>(leaves) - 1.0;
  checker.Within(LayeredField::kCavityCount, static_cast<double>(element.cavities.size()), between, between);
  if (element.bay_width_m != 0.0) {
    checker.Within(LayeredField::kBayWidth, element.bay_width_m, 0.1, 10.0);
  }
  for (std::size_t part = 0; part < leaves; ++part) {
    std::visit([&](const auto& leaf) { Check(leaf, part, checker); }, element.leaves[part]);
  }
  for (std::size_t part = 0; part < element.cavities.size(); ++part) {
    Check(element.cavities[part], part, checker);
  }
  return checker.Refusal();
}

}  // namespace velmar::models
