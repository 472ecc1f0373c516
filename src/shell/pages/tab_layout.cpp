#include "shell/pages/tab_layout.h"

#include <string_view>

namespace velmar::shell {
namespace {

using elements::CalculationRow;
using elements::ElementButton;
using elements::Family;
using enum TabId;

// Captions.
constexpr MessageRow kWall1{160};
constexpr MessageRow kWall2{161};
constexpr MessageRow kCavityRow{219};
constexpr MessageRow kFloorRow{226};
constexpr MessageRow kScreedRow{175};
constexpr MessageRow kResilientRow{167};
constexpr MessageRow kOpaqueRow{174};
constexpr MessageRow kComponentsRow{169};
constexpr MessageRow kBaseWallRow{168};
constexpr MessageRow kBaseFloorRow{228};
constexpr MessageRow kLiningRow{176};
constexpr MessageRow kSeaWall1{170};
constexpr MessageRow kSeaWall2{172};
constexpr MessageRow kSeaCavityRow{173};

std::vector<ShownTab> SingleTabs(const CalculationRow& row) {
  if (row.family == Family::kSeaSingle) return {{kSeaLeaf1, kSeaWall1, "wall"}};
  if (row.orientation == elements::Orientation::kHorizontalSingle) return {{kLeaf1, kFloorRow, "floor"}};
  return {{kLeaf1, kWall1, IsGlazing(row.calculation) ? "glass" : "wall"}};
}

std::vector<ShownTab> DoubleTabs(const CalculationRow& row) {
  if (row.family == Family::kSea)
    return {{kSeaLeaf1, kSeaWall1, "leaf-first"},
            {kSeaLeaf2, kSeaWall2, "leaf-second"},
            {kSeaCavity, kSeaCavityRow, "cavity"}};
  const bool glass = IsGlazing(row.calculation);
  return {{kLeaf1, kWall1, glass ? "glass-first" : "leaf-first"},
          {kLeaf2, kWall2, glass ? "glass-second" : "leaf-second"},
          {kCavity, kCavityRow, "cavity"}};
}

}  // namespace

std::vector<ShownTab> TabsOf(elements::Calculation calculation) {
  const CalculationRow& row = RowOf(calculation);
  switch (row.button) {
    case ElementButton::kSingleWall:
      return SingleTabs(row);
    case ElementButton::kDoubleWall:
      return DoubleTabs(row);
    case ElementButton::kFloor:
      return {{kLeaf1, kFloorRow, "floor"},
              {kLeaf2, kScreedRow, "screed"},
              {kResilient, kResilientRow, "resilient"}};
    case ElementButton::kFacade:
      return {{kBase, kOpaqueRow, "base"}, {kComponents, kComponentsRow, "components"}};
    case ElementButton::kLining:
      return {{kBase, kBaseWallRow, "base"},
              {kSeaLeaf2, kLiningRow, "lining"},
              {kSeaCavity, kSeaCavityRow, "cavity"}};
    case ElementButton::kCeiling:
      return {{kBase, kBaseFloorRow, "floor"},
              {kSeaLeaf2, kLiningRow, "ceiling"},
              {kSeaCavity, kSeaCavityRow, "cavity"}};
  }
  return {};
}

}  // namespace velmar::shell
