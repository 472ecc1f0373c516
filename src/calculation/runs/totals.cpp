#include "calculation/runs/totals.h"

#include <algorithm>
#include <tuple>

#include "elements/parts.h"
#include "foundation/rounding.h"

namespace velmar::calculation {
namespace {

using elements::Layer;
using elements::LayerGroup;
using elements::Part;

/// The rounding of the mass makes the order of the additions count: a layer before its damping sheets, the
/// fibres of a cavity before its masses.
auto PlaceInTheSum(const Layer& layer) {
  const bool of_leaf = layer.group == LayerGroup::kSeaDamping1 || layer.group == LayerGroup::kSeaDamping2;
  return std::tuple(layer.group != LayerGroup::kSeaCavityFibre, of_leaf ? layer.row / 2 : layer.row,
                    layer.IsDamping(), layer.row);
}

void Add(Totals& totals, Part part) {
  std::ranges::sort(part.layers, {}, PlaceInTheSum);
  for (const Layer& layer : part.layers) {
    const double mass_kg_m2 =
        part.stack == elements::Stack::kBase ? RoundToEven(layer.mass_kg_m2) : layer.mass_kg_m2;
    totals.surface_mass_kg_m2 = RoundToEven(totals.surface_mass_kg_m2 + mass_kg_m2, 4);
    if (!part.depth_mm) totals.thickness_mm += layer.ThicknessOfSheets();
  }
  if (part.depth_mm) totals.thickness_mm += *part.depth_mm;
}

}  // namespace

Totals ComputeTotals(const elements::Setup& setup) {
  Totals totals;
  if (!setup.calculation || RowOf(*setup.calculation).stacks.Has(elements::Stack::kComponents)) return totals;
  const std::vector<Part> parts = elements::PartsOf(setup);
  for (const bool between : {false, true}) {
    for (const Part& part : parts) {
      if (LiesBetween(part.stack) == between) Add(totals, part);
    }
  }
  return totals;
}

}  // namespace velmar::calculation
