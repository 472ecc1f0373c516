#include "shell/pages/tab_layout.h"

#include <string_view>

#include "foundation/message_rows.h"

namespace velmar::shell {
namespace {

using elements::CalculationRow;
using elements::ElementButton;
using elements::Family;
using enum TabId;

std::vector<ShownTab> SingleTabs(const CalculationRow& row) {
  if (row.family == Family::kSeaSingle) return {{kSeaLeaf1, kSeaLeaf1TabRow, "wall"}};
  if (row.orientation == elements::Orientation::kHorizontalSingle) return {{kLeaf1, kFloorRow, "floor"}};
  return {{kLeaf1, kLeaf1Row, IsGlazing(row.calculation) ? "glass" : "wall"}};
}

std::vector<ShownTab> DoubleTabs(const CalculationRow& row) {
  if (row.family == Family::kSea)
    return {{kSeaLeaf1, kSeaLeaf1TabRow, "leaf-first"},
            {kSeaLeaf2, kSeaLeaf2TabRow, "leaf-second"},
            {kSeaCavity, kSeaCavityTabRow, "cavity"}};
  const bool glass = IsGlazing(row.calculation);
  return {{kLeaf1, kLeaf1Row, glass ? "glass-first" : "leaf-first"},
          {kLeaf2, kLeaf2Row, glass ? "glass-second" : "leaf-second"},
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
              {kResilient, kResilientMaterialTabRow, "resilient"}};
    case ElementButton::kFacade:
      return {{kBase, kOpaquePartTabRow, "base"}, {kComponents, kComponentsTabRow, "components"}};
    case ElementButton::kLining:
      return {{kBase, kBaseWallTabRow, "base"},
              {kSeaLeaf2, kLiningRow, "lining"},
              {kSeaCavity, kSeaCavityTabRow, "cavity"}};
    case ElementButton::kCeiling:
      return {{kBase, kBaseFloorRow, "floor"},
              {kSeaLeaf2, kLiningRow, "ceiling"},
              {kSeaCavity, kSeaCavityTabRow, "cavity"}};
  }
  return {};
}

}  // namespace velmar::shell
