#include "calculation/runs/refusals.h"

#include <algorithm>
#include <array>

#include "acoustics/bands.h"
#include "elements/layer_groups.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"

namespace velmar::calculation {
namespace {

using elements::Field;
using elements::FieldId;
using elements::LayerGroup;
using elements::Setup;
using elements::Stack;

FieldId Depth(const Setup& setup) {
  const bool plain = RowOf(*setup.calculation).Reads(Field::kCavityDepth);
  return {plain ? Field::kCavityDepth : Field::kSeaCavityDepth};
}

/// The group whose layers a calculation shows first.
LayerGroup FirstLayers(const Setup& setup) {
  const elements::Stacks& stacks = RowOf(*setup.calculation).stacks;
  if (stacks.Has(Stack::kSeaLeaf1)) return LayerGroup::kSeaLeaf1;
  return stacks.Has(Stack::kSeaLeaf2) ? LayerGroup::kSeaLeaf2 : LayerGroup::kLeaf1;
}

FieldId FirstThickness(const Setup& setup) { return {Field::kThickness, FirstLayers(setup)}; }
FieldId FirstMaterial(const Setup& setup) { return {Field::kMaterial, FirstLayers(setup)}; }

/// The first fill in the cavity of which a band of absorption is unknown.
FieldId UnknownFill(const Setup& setup) {
  FieldId fill{Field::kMaterial, LayerGroup::kSeaCavityFibre};
  const int shown = FibreCount(setup.sea_cavity.type);
  for (int i = 0; i < shown; ++i) {
    const auto& absorption = setup.sea_cavity.fibres.at(static_cast<std::size_t>(i)).slot.absorption;
    if (std::ranges::none_of(absorption, [](float band) { return band < 0.0F; })) continue;
    fill.index = i;
    break;
  }
  return fill;
}

FieldId CavityFill(const Setup& setup) {
  const bool generic = setup.cavity.kind == elements::CavityKind::kGenericMaterial;
  return generic ? FieldId{Field::kThickness, LayerGroup::kCavity} : FieldId{Field::kFibreThickness};
}

std::optional<int> MissingBandOf(const elements::BandTexts& bands) {
  for (std::size_t band = acoustics::kFirstRatedBand; band <= acoustics::kLastRatedBand; ++band) {
    if (!(ParseDecimal(bands.at(band)).value_or(0.0) > 0.0)) return static_cast<int>(band);
  }
  return std::nullopt;
}

/// The first rated band without a level, of the base element and the components in use.
FieldId MissingBand(const Setup& setup) {
  if (const auto band = MissingBandOf(setup.base.band_texts)) return {.field = Field::kBand, .band = *band};
  const bool facade = RowOf(*setup.calculation).stacks.Has(Stack::kComponents);
  const int components = facade ? setup.facade.Count() : 0;
  for (int i = 1; i <= components; ++i) {
    const auto& component = setup.facade.components.at(static_cast<std::size_t>(i - 1));
    if (const auto band = MissingBandOf(component.band_texts))
      return {.field = Field::kBand, .index = i, .band = *band};
  }
  return {.field = Field::kBand, .band = static_cast<int>(acoustics::kFirstRatedBand)};
}

FieldId AreaToCorrect(const Setup& setup) {
  const bool whole = !(ParseDecimal(setup.base.area_text).value_or(0.0) > 0.0);
  return {.field = Field::kArea, .index = whole ? 0 : 1};
}

struct Cause {
  MessageRow row{};
  FieldId field{};
  FieldId (*find)(const Setup& setup) = nullptr;  ///< tells the field instead
};
constexpr std::array kCauses = {
    Cause{kNoDepthRow, {Field::kSeaCavityDepth}},
    Cause{kGenericNoBaseMassRow, {Field::kMass}},
    Cause{kGenericNoMassRow, {}, FirstThickness},
    Cause{kGenericBaseRatingRow, {Field::kRating}},
    Cause{kNoBaseMassRow, {Field::kMass}},
    Cause{kCavityTooThinRow, {Field::kSeaCavityDepth}},
    Cause{kNoBaseSpectrumRow, {}, MissingBand},
    Cause{kNoAbsorptionOfFillRow, {}, UnknownFill},
    Cause{kNoBaseRatingRow, {Field::kRating}},
    Cause{kBaseRatingNotPositiveRow, {Field::kRating}},
    Cause{kNoHangerRow, {Field::kHanger}},
    Cause{kNoSupportDistanceRow, {Field::kSupport}},
    Cause{kNoAbsorptionRow, {}, UnknownFill},
    Cause{kNoPointCountRow, {Field::kSupport}},
    Cause{kNoLineCountRow, {Field::kSupport}},
    Cause{kComponentsFillFacadeRow, {}, AreaToCorrect},
    Cause{kMissingBandsRow, {}, MissingBand},
    Cause{kZeroMassRow, {}, FirstThickness},
    Cause{kZeroThicknessRow, {}, FirstThickness},
    Cause{kInvalidStiffnessRow, {}, FirstMaterial},
    Cause{kZeroDimensionRow, {Field::kWidth}},
    Cause{kZeroCavityDepthRow, {}, Depth},
    Cause{kZeroCavityLayerRow, {}, CavityFill},
    Cause{kZeroLossFactorRow, {}, FirstMaterial},
    Cause{kZeroStudDistanceRow, {Field::kSupport}},
    Cause{kNoBendingWaveRow, {}, FirstMaterial},
    Cause{kCoincidenceOnGridRow, {}, FirstThickness},
    Cause{kNoLayerRow, {}, FirstMaterial},
    Cause{kNoConnectedLayerRow, {}, FirstMaterial},
    Cause{kNoConnectionBalanceRow, {Field::kSupport}},
    Cause{kNoFillMassRow, {Field::kThickness, LayerGroup::kSeaCavityFibre}},
    Cause{kNoLeafBalanceRow, {}, FirstMaterial},
    Cause{kInvalidLossFactorRow, {}, FirstMaterial},
    Cause{kInvalidDynamicStiffnessRow, {Field::kMaterial, LayerGroup::kResilient}},
    Cause{kFacadeLevelsRow, {}, MissingBand},
    Cause{kCheckCavityRow, {Field::kSeaCavityDepth}},
};

}  // namespace

std::optional<Refusal> FindRefusal(const Setup& setup, const std::vector<Message>& messages) {
  if (!setup.calculation) return std::nullopt;
  for (const Message& message : messages) {
    for (const MessageLine& line : message) {
      // The opening of a list of checks says nothing by itself.
      if (message.size() > 1 && LeadingRow(line) == kCheckCavityRow) continue;
      const auto* cause = std::ranges::find(kCauses, LeadingRow(line), &Cause::row);
      if (cause == kCauses.end()) continue;
      return Refusal{cause->find != nullptr ? cause->find(setup) : cause->field, line};
    }
  }
  return std::nullopt;
}

}  // namespace velmar::calculation
