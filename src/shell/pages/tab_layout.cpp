#include "shell/pages/tab_layout.h"

#include "elements/parts.h"
#include "foundation/message_rows.h"

namespace velmar::shell {
namespace {

using elements::CalculationRow;
using elements::Orientation;
using elements::Stack;

ShownTab FirstLeafTab(const CalculationRow& row) {
  if (IsHorizontal(row.orientation)) return {Stack::kLeaf1, kFloorRow, "floor"};
  const bool alone = row.stacks.size() == 1;
  if (row.glazing) return {Stack::kLeaf1, kLeaf1Row, alone ? "glass" : "glass-first"};
  return {Stack::kLeaf1, kLeaf1Row, alone ? "wall" : "leaf-first"};
}

ShownTab SecondLeafTab(const CalculationRow& row) {
  if (row.stacks.Has(Stack::kResilient)) return {Stack::kLeaf2, kScreedRow, "screed"};
  return {Stack::kLeaf2, kLeaf2Row, row.glazing ? "glass-second" : "leaf-second"};
}

ShownTab BaseTab(const CalculationRow& row) {
  if (row.stacks.Has(Stack::kComponents)) return {Stack::kBase, kOpaquePartTabRow, "base"};
  if (row.orientation == Orientation::kCeiling) return {Stack::kBase, kBaseFloorRow, "floor"};
  return {Stack::kBase, kBaseWallTabRow, "base"};
}

ShownTab SecondSeaLeafTab(const CalculationRow& row) {
  if (!row.stacks.Has(Stack::kBase)) return {Stack::kSeaLeaf2, kSeaLeaf2TabRow, "leaf-second"};
  const bool ceiling = row.orientation == Orientation::kCeiling;
  return {Stack::kSeaLeaf2, kLiningRow, ceiling ? "ceiling" : "lining"};
}

ShownTab TabOf(const CalculationRow& row, Stack stack) {
  switch (stack) {
    case Stack::kLeaf1:
      return FirstLeafTab(row);
    case Stack::kLeaf2:
      return SecondLeafTab(row);
    case Stack::kCavity:
      return {stack, kCavityRow, "cavity"};
    case Stack::kResilient:
      return {stack, kResilientMaterialTabRow, "resilient"};
    case Stack::kBase:
      return BaseTab(row);
    case Stack::kComponents:
      return {stack, kComponentsTabRow, "components"};
    case Stack::kSeaLeaf1:
      return {stack, kSeaLeaf1TabRow, row.stacks.size() == 1 ? "wall" : "leaf-first"};
    case Stack::kSeaLeaf2:
      return SecondSeaLeafTab(row);
    case Stack::kSeaCavity:
      return {stack, kSeaCavityTabRow, "cavity"};
    case Stack::kMultilayer:
      return {stack, kMultilayerTabRow, "list"};
  }
  return {};
}

}  // namespace

std::vector<ShownTab> TabsOf(elements::Calculation calculation) {
  const CalculationRow& row = RowOf(calculation);
  std::vector<ShownTab> tabs;
  for (const bool between : {false, true}) {
    for (const Stack stack : row.stacks) {
      if (elements::LiesBetween(stack) == between) tabs.push_back(TabOf(row, stack));
    }
  }
  return tabs;
}

}  // namespace velmar::shell
