#include "presentation/drawing/section.h"

#include <algorithm>

#include "elements/catalogue.h"
#include "presentation/texts/layer_rows.h"
#include "presentation/texts/sea_cavity_parts.h"

namespace velmar::presentation {
namespace {

using elements::CavityKind;
using elements::Family;
using elements::LayerGroup;
using elements::LayerRow;
using elements::Orientation;
using elements::Setup;

/// Stacks strips one behind the other and numbers the rows.
class Stack {
 public:
  /// A row of `multiplicity` equal layers under one number. A layer without thickness draws nothing.
  void AddRow(double thickness_mm, int multiplicity, MaterialKind kind, const std::string& name,
              LayerPlace place) {
    if (thickness_mm <= 0.0 || multiplicity < 1) return;
    ++number_;
    for (int layer = 0; layer < multiplicity; ++layer) {
      if (!Push(thickness_mm, kind, number_, name, place)) break;
    }
  }

  /// Air, or a fill that has no row: it carries no number.
  void AddUnnumbered(double thickness_mm, MaterialKind kind, LayerPlace place) {
    Push(thickness_mm, kind, 0, {}, place);
  }

  /// A cavity of `depth_mm` begins here.
  void BeginCavity(double depth_mm) { limit_mm_ = position_mm_ + std::max(0.0, depth_mm); }

  /// What the cavity's fills left is air; the next strip stands behind the cavity.
  void EndCavity() {
    AddUnnumbered(limit_mm_ - position_mm_, MaterialKind::kAir, {});
    position_mm_ = limit_mm_;
    limit_mm_ = kNoLimit;
  }

  double PositionMm() const { return position_mm_; }
  std::vector<Strip> Take() { return std::move(strips_); }

 private:
  static constexpr double kNoLimit = 1e9;

  /// @return whether there was room for the strip
  bool Push(double thickness_mm, MaterialKind kind, int number, const std::string& name, LayerPlace place) {
    const double room_mm = std::min(thickness_mm, limit_mm_ - position_mm_);
    if (room_mm <= 0.0) return false;
    strips_.push_back({position_mm_, room_mm, kind, number, name, place});
    position_mm_ += room_mm;
    return true;
  }

  std::vector<Strip> strips_{};
  double position_mm_ = 0.0;
  double limit_mm_ = kNoLimit;
  int number_ = 0;
};

void AddStructural(Stack& stack, const LayerRow<elements::StructuralMaterial>& row, LayerPlace place) {
  const std::string& name = NameOf(row);
  stack.AddRow(row.slot.thickness_mm, row.multiplicity, StructuralKind(name, row.slot.density_kg_m3), name,
               place);
}

void AddDamping(Stack& stack, const elements::DampingRow& damping, LayerPlace place) {
  if (!damping.ticked) return;
  stack.AddRow(damping.row.slot.thickness_mm, damping.row.multiplicity, MaterialKind::kDamping,
               NameOf(damping.row), place);
}

void AddLeaf(Stack& stack, const elements::LeafLayers& leaf, LayerGroup table) {
  for (int i = 0; i < RowsInUse(leaf); ++i) {
    const auto& row = leaf.rows[static_cast<std::size_t>(i)];
    AddStructural(stack, row, {table, i});
  }
}

/// "Lato sx" stands before the layer it damps, "Lato dx" behind it.
void AddSeaLeaf(Stack& stack, const elements::SeaLeaf& leaf, LayerGroup table, LayerGroup damping) {
  for (int i = 0; i < RowsInUse(leaf); ++i) {
    const auto row = static_cast<std::size_t>(i);
    AddDamping(stack, leaf.damping[2 * row], {damping, 2 * i});
    AddStructural(stack, leaf.rows[row], {table, i});
    AddDamping(stack, leaf.damping[2 * row + 1], {damping, 2 * i + 1});
  }
}

void AddResilient(Stack& stack, const elements::ResilientLayers& layers) {
  for (int i = 0; i < RowsInUse(layers); ++i) {
    const auto& row = layers.rows[static_cast<std::size_t>(i)];
    stack.AddRow(row.slot.thickness_mm, row.multiplicity, ResilientKind(NameOf(row)), NameOf(row),
                 {LayerGroup::kResilient, i});
  }
}

void AddCavity(Stack& stack, const elements::Cavity& cavity, elements::Calculation calculation) {
  const double depth_mm = NumberOf(cavity.depth_text);
  stack.BeginCavity(depth_mm);
  if (cavity.kind == CavityKind::kFibrous) {
    const double fibre_mm = ReadsFibreThickness(calculation) ? NumberOf(cavity.fibre_text) : depth_mm;
    stack.AddUnnumbered(fibre_mm, MaterialKind::kWool, {LayerGroup::kCavity, 0});
  } else if (cavity.kind == CavityKind::kGenericMaterial) {
    for (int i = 0; i < RowsInUse(cavity.layers); ++i) {
      const auto& row = cavity.layers.rows[static_cast<std::size_t>(i)];
      stack.AddRow(row.slot.thickness_mm, row.multiplicity, FillingKind(NameOf(row)), NameOf(row),
                   {LayerGroup::kCavity, i});
    }
  }
  stack.EndCavity();
}

void AddSeaCavity(Stack& stack, const elements::SeaCavity& cavity) {
  stack.BeginCavity(NumberOf(cavity.depth_text));
  int fibre = 0;
  int mass = 0;
  for (const SeaCavityPart part : PartsOf(cavity.type)) {
    if (part == SeaCavityPart::kFibre) {
      const auto& row = cavity.fibres[static_cast<std::size_t>(fibre)];
      stack.AddRow(row.slot.thickness_mm, row.multiplicity, FillingKind(NameOf(row)), NameOf(row),
                   {LayerGroup::kSeaCavityFibre, fibre++});
    } else {
      AddStructural(stack, cavity.masses[static_cast<std::size_t>(mass)], {LayerGroup::kSeaCavityMass, mass});
      AddDamping(stack, cavity.mass_damping[static_cast<std::size_t>(mass)],
                 {LayerGroup::kSeaCavityDamping, mass});
      ++mass;
    }
  }
  stack.EndCavity();
}

void AddLining(Stack& stack, const Setup& setup) {
  constexpr double kAnyDensity = 0.0;
  stack.AddRow(BaseThicknessOf(setup), 1, StructuralKind(setup.base.name, kAnyDensity), setup.base.name,
               {std::nullopt, 0});
  AddSeaCavity(stack, setup.sea_cavity);
  AddSeaLeaf(stack, setup.sea_leaf2, LayerGroup::kSeaLeaf2, LayerGroup::kSeaDamping2);
}

void AddVerticalDouble(Stack& stack, const Setup& setup, const elements::CalculationRow& row) {
  if (row.family == Family::kSea) {
    AddSeaLeaf(stack, setup.sea_leaf1, LayerGroup::kSeaLeaf1, LayerGroup::kSeaDamping1);
    AddSeaCavity(stack, setup.sea_cavity);
    AddSeaLeaf(stack, setup.sea_leaf2, LayerGroup::kSeaLeaf2, LayerGroup::kSeaDamping2);
    return;
  }
  AddLeaf(stack, setup.leaf1, LayerGroup::kLeaf1);
  AddCavity(stack, setup.cavity, row.calculation);
  AddLeaf(stack, setup.leaf2, LayerGroup::kLeaf2);
}

void AddElement(Stack& stack, const Setup& setup, const elements::CalculationRow& row) {
  switch (row.orientation) {
    case Orientation::kVerticalSingle:
    case Orientation::kHorizontalSingle:
      if (row.family == Family::kSeaSingle) {
        AddSeaLeaf(stack, setup.sea_leaf1, LayerGroup::kSeaLeaf1, LayerGroup::kSeaDamping1);
      } else {
        AddLeaf(stack, setup.leaf1, LayerGroup::kLeaf1);
      }
      return;
    case Orientation::kVerticalDouble:
      return AddVerticalDouble(stack, setup, row);
    case Orientation::kHorizontalDouble:
      AddLeaf(stack, setup.leaf1, LayerGroup::kLeaf1);
      AddResilient(stack, setup.resilient);
      AddLeaf(stack, setup.leaf2, LayerGroup::kLeaf2);
      return;
    case Orientation::kLining:
    case Orientation::kCeiling:
      return AddLining(stack, setup);
    case Orientation::kComposite:
      return;
  }
}

}  // namespace

Section SectionOf(const Setup& setup) {
  Section section;
  if (!setup.calculation) return section;
  const elements::CalculationRow& row = elements::RowOf(*setup.calculation);
  section.horizontal =
      row.orientation == Orientation::kHorizontalSingle || row.orientation == Orientation::kHorizontalDouble;
  Stack stack;
  AddElement(stack, setup, row);
  section.thickness_mm = stack.PositionMm();
  section.strips = stack.Take();
  return section;
}

int NumberOf(const Section& section, const LayerPlace& place) {
  const auto found = std::ranges::find(section.strips, place, &Strip::place);
  return found == section.strips.end() ? 0 : found->number;
}

StripSpan SpanOf(const Strip& strip, double thickness_mm) {
  const double scale = (kSectionUnits - kSectionMargin) / thickness_mm;
  return {kSectionMargin + strip.position_mm * scale,
          kSectionMargin + (strip.position_mm + strip.thickness_mm) * scale};
}

}  // namespace velmar::presentation
