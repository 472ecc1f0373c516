#include "calculation/select_calculation.h"

#include <string_view>

#include "calculation/cavity_rules.h"

namespace velmar::calculation {
namespace {

using elements::Calculation;
using elements::Family;
using enum elements::Calculation;

/// Linings and ceilings offer an empty cavity and a fibrous one.
constexpr int kLiningCavityTypes = 2;

struct DefaultDimensions {
  std::string_view width{};
  std::string_view height{};
};

bool IsSeaPlasterboard(Calculation calculation) {
  return calculation == kDoubleWallSeaPlasterboardPoint || calculation == kDoubleWallSeaPlasterboardLine;
}

/// The dimensions that an entry of the double-wall menu brings; empty for all others.
DefaultDimensions DimensionsOf(const elements::CalculationRow& row) {
  if (IsSeaPlasterboard(row.calculation)) return {"1,2", "2,8"};
  const bool double_wall = row.button == elements::ElementButton::kDoubleWall && !IsGlazing(row.calculation);
  if (double_wall) return {"3,6", "3"};
  return {};
}

/// The text that an entry puts into `Text8`; empty where it leaves the field alone.
std::string_view SupportDistanceOf(const elements::CalculationRow& row) {
  if (row.family == Family::kSharp) return "60";
  if (row.calculation == kDoubleWallSeaPlasterboardPoint) return "20";
  if (row.calculation == kDoubleWallSeaPlasterboardLine || row.calculation == kLiningFrame) return "1";
  return {};
}

bool IsLining(Family family) { return family == Family::kLining || family == Family::kCeiling; }

SupportField SupportFieldOf(Calculation calculation) {
  switch (calculation) {
    case kLightWallLineLine:
    case kLightWallLinePoint:
    case kLightWallPointPoint:
    case kLiningFrame:
      return SupportField::kStudDistance;
    case kDoubleWallSeaPlasterboardPoint:
      return SupportField::kPointConnections;
    case kDoubleWallSeaPlasterboardLine:
      return SupportField::kLineConnections;
    default:
      return SupportField::kHidden;
  }
}

bool ReadsFibreThickness(const elements::CalculationRow& row) {
  constexpr int kFirstRelationWithFibre = 11;
  constexpr int kLastRelationWithFibre = 16;
  return row.relation >= kFirstRelationWithFibre && row.relation <= kLastRelationWithFibre;
}

}  // namespace

FieldLayout LayoutOf(Calculation calculation) {
  const elements::CalculationRow& row = RowOf(calculation);
  return {
      .generic_cavity_offered = calculation != kDoubleWallBrick && calculation != kDoubleWallBrickTorvalle,
      .fibre_thickness_shown = ReadsFibreThickness(row),
      .support = SupportFieldOf(calculation),
      .hanger_shown = calculation == kCeilingSea,
      .decoupling_shown = calculation == kDoubleWallSeaBrick,
      .connected_layer_shown = IsSeaPlasterboard(calculation),
      .improvement_shown = IsLining(row.family) || calculation == kFloorWithFloatingScreed,
      .cavity_types = IsLining(row.family) ? kLiningCavityTypes : elements::kSeaCavityTypeCount,
  };
}

void SelectCalculation(elements::Setup& setup, Calculation calculation) {
  const elements::CalculationRow& row = RowOf(calculation);
  setup.calculation = calculation;
  if (const DefaultDimensions dimensions = DimensionsOf(row); !dimensions.width.empty()) {
    setup.width_text = dimensions.width;
    setup.height_text = dimensions.height;
  }
  if (const std::string_view distance = SupportDistanceOf(row); !distance.empty()) {
    setup.support_distance_text = distance;
  }
  if (setup.cavity.kind == elements::CavityKind::kGenericMaterial &&
      !LayoutOf(calculation).generic_cavity_offered) {
    ChooseCavityKind(setup, elements::CavityKind::kFibrous);
  }
  if (row.family == Family::kSea) setup.sea_cavity.type = elements::SeaCavityType::kEmpty;
  if (IsLining(row.family)) {
    setup.sea_cavity.type = elements::SeaCavityType::kFibre;
    setup.facade.simplified = row.model == elements::Model::kGenericLining;
  }
}

}  // namespace velmar::calculation
