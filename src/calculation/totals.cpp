#include "calculation/totals.h"

#include <algorithm>

#include "foundation/decimal.h"
#include "foundation/rounding.h"

namespace velmar::calculation {
namespace {

class Sum {
 public:
  void AddThickness(double thickness_mm) { totals_.thickness_mm += thickness_mm; }

  void AddMass(double mass_kg_m2) {
    totals_.surface_mass_kg_m2 = RoundToEven(totals_.surface_mass_kg_m2 + mass_kg_m2, 4);
  }

  template <typename Material>
  void AddMassOf(const elements::LayerRow<Material>& row) {
    AddMass(row.slot.density_kg_m3 * row.slot.thickness_mm * row.multiplicity / 1000.0);
  }

  template <typename Material>
  void Add(const elements::LayerRow<Material>& row) {
    AddThickness(row.multiplicity * row.slot.thickness_mm);
    AddMassOf(row);
  }

  template <typename Material, std::size_t N>
  void Add(const elements::LayerTable<Material, N>& table) {
    for (int i = 0; i < table.count; ++i) Add(table.rows.at(static_cast<std::size_t>(i)));
  }

  void Add(const elements::SeaLeaf& leaf) {
    for (std::size_t i = 0; i < static_cast<std::size_t>(leaf.count); ++i) {
      Add(leaf.rows.at(i));
      for (const std::size_t side : {2 * i, 2 * i + 1}) {
        if (leaf.damping.at(side).ticked) Add(leaf.damping.at(side).row);
      }
    }
  }

  void Add(const elements::Cavity& cavity) {
    if (cavity.kind == elements::CavityKind::kGenericMaterial) {
      const int shown = std::min(cavity.layers.count, elements::CavityLayers::kCapacity);
      for (int i = 0; i < shown; ++i) AddMassOf(cavity.layers.rows.at(static_cast<std::size_t>(i)));
    }
    AddThickness(ParseDecimal(cavity.depth_text).value_or(0.0));
  }

  void Add(const elements::SeaCavity& cavity) {
    for (std::size_t j = 0; j < static_cast<std::size_t>(FibreCount(cavity.type)); ++j)
      AddMassOf(cavity.fibres.at(j));
    for (std::size_t k = 0; k < static_cast<std::size_t>(MassCount(cavity.type)); ++k) {
      AddMassOf(cavity.masses.at(k));
      if (cavity.mass_damping.at(k).ticked) AddMassOf(cavity.mass_damping.at(k).row);
    }
    AddThickness(ParseDecimal(cavity.depth_text).value_or(0.0));
  }

  void Add(const elements::BaseElement& base) {
    AddThickness(base.thickness_mm == 0.0 ? elements::kDefaultBaseThicknessMm : base.thickness_mm);
    AddMass(RoundToEven(static_cast<double>(base.mass_kg_m2)));
  }

  const Totals& Result() const { return totals_; }

 private:
  Totals totals_;
};

void AddVerticalDouble(const elements::Setup& setup, bool sea, Sum& sum) {
  if (sea) {
    sum.Add(setup.sea_leaf1);
    sum.Add(setup.sea_leaf2);
    sum.Add(setup.sea_cavity);
  } else {
    sum.Add(setup.leaf1);
    sum.Add(setup.leaf2);
    sum.Add(setup.cavity);
  }
}

}  // namespace

Totals ComputeTotals(const elements::Setup& setup) {
  using enum elements::Orientation;
  Sum sum;
  if (!setup.calculation) return sum.Result();
  const elements::CalculationRow& row = RowOf(*setup.calculation);
  switch (row.orientation) {
    case kVerticalSingle:
      if (row.family == elements::Family::kSeaSingle) {
        sum.Add(setup.sea_leaf1);
      } else {
        sum.Add(setup.leaf1);
      }
      break;
    case kVerticalDouble:
      AddVerticalDouble(setup, row.family == elements::Family::kSea, sum);
      break;
    case kLining:
    case kCeiling:
      sum.Add(setup.base);
      sum.Add(setup.sea_leaf2);
      sum.Add(setup.sea_cavity);
      break;
    case kHorizontalSingle:
      sum.Add(setup.leaf1);
      break;
    case kHorizontalDouble:
      sum.Add(setup.leaf1);
      sum.Add(setup.leaf2);
      sum.Add(setup.resilient);
      break;
    case kComposite:
      break;
  }
  return sum.Result();
}

}  // namespace velmar::calculation
