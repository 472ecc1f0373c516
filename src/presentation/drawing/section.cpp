#include "presentation/drawing/section.h"

#include <algorithm>

#include "elements/parts.h"
#include "foundation/message_rows.h"

namespace velmar::presentation {
namespace {

using elements::Layer;
using elements::LayerGroup;
using elements::Setup;

/// Stacks strips one behind the other.
class Stack {
 public:
  /// A layer with all its sheets under one number. One without thickness draws nothing.
  void AddRow(const Layer& layer, MaterialKind kind) {
    if (layer.thickness_mm <= 0.0) return;
    for (int sheet = 0; sheet < layer.sheets; ++sheet) {
      if (!Push(layer.thickness_mm, kind, layer.number, layer.name, {layer.group, layer.row})) break;
    }
  }

  /// The fibre of a cavity, which is no row.
  void AddFibre(double thickness_mm, int number, const std::string& name) {
    Push(thickness_mm, MaterialKind::kWool, number, name, {LayerGroup::kCavity, 0});
  }

  /// A cavity of `depth_mm` begins here.
  void BeginCavity(double depth_mm) { limit_mm_ = position_mm_ + std::max(0.0, depth_mm); }

  /// What the cavity's fills left is air; the next strip stands behind the cavity.
  void EndCavity() {
    Push(limit_mm_ - position_mm_, MaterialKind::kAir, 0, {}, {});
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
    strips_.push_back({position_mm_, room_mm, kind, number, name, place, thickness_mm});
    position_mm_ += room_mm;
    return true;
  }

  std::vector<Strip> strips_{};
  double position_mm_ = 0.0;
  double limit_mm_ = kNoLimit;
};

MaterialKind KindOf(const Layer& layer) {
  if (layer.IsDamping()) return MaterialKind::kDamping;
  if (!layer.group) return StructuralKind(layer.name, layer.density_kg_m3);
  switch (RowOf(*layer.group).family) {
    case elements::MaterialFamily::kStructural:
      return StructuralKind(layer.name, layer.density_kg_m3);
    case elements::MaterialFamily::kFibrous:
      return FillingKind(layer.name);
    case elements::MaterialFamily::kResilient:
      return ResilientKind(layer.name);
  }
  return MaterialKind::kGeneric;
}

void Add(Stack& stack, const elements::Part& part, const std::string& fibre_name) {
  if (part.depth_mm) stack.BeginCavity(*part.depth_mm);
  if (part.fibre_mm) stack.AddFibre(*part.fibre_mm, part.fibre_number, fibre_name);
  for (const Layer& layer : part.layers) stack.AddRow(layer, KindOf(layer));
  if (part.depth_mm) stack.EndCavity();
}

}  // namespace

Section SectionOf(const Setup& setup, const Words& words) {
  Section section;
  if (!setup.calculation) return section;
  const elements::CalculationRow& row = elements::RowOf(*setup.calculation);
  if (row.stacks.Has(elements::Stack::kComponents)) return section;
  section.horizontal = IsHorizontal(row.orientation);
  Stack stack;
  const std::string fibre_name = words ? words(kFibrousCavityRow) : std::string();
  for (const elements::Part& part : elements::PartsAsTheyStand(setup)) Add(stack, part, fibre_name);
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
