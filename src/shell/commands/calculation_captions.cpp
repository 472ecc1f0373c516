#include "shell/commands/calculation_captions.h"

#include <algorithm>
#include <array>
#include <string>

namespace velmar::shell {
namespace {

using elements::Calculation;
using enum elements::Calculation;

constexpr MessageRow kRelationRow{142};

/// What stands behind the words of a menu entry.
enum class Mark { kNone, kRelation, kImpedance, kRow, kCommaAndRow };

struct Entry {
  Calculation calculation{};
  int row = 0;
  Mark mark = Mark::kNone;
  int mark_row = 0;
};

// In the order of the tree.
constexpr std::array<Entry, elements::kCalculationCount> kEntries = {{
    {kSingleWallGeneric, 23},
    {kSingleWallBrick, 25, Mark::kRelation},
    {kSingleWallBrickFerrara, 24, Mark::kRelation},
    {kSingleWallSea, 103},
    {kSingleWallPlasterboard, 26, Mark::kRelation},
    {kSingleWallConcrete, 102},
    {kSingleWallHBlocks, 27, Mark::kRelation},
    {kSingleWallExpandedClayBlocks, 28, Mark::kRelation},
    {kSingleWallConcreteBlocks, 29, Mark::kRelation},
    {kSingleWallGypsumBlocks, 30, Mark::kRelation},
    {kSingleWallAeratedConcrete, 31, Mark::kRelation},
    {kFloorHollowBrickConcrete, 32, Mark::kRelation},
    {kSinglePaneGeneric, 48},
    {kSinglePaneMonolithic, 49, Mark::kRelation},
    {kSinglePaneLaminated, 50, Mark::kRelation},
    {kInsulatingGlassGeneric, 51},
    {kInsulatingGlass, 53, Mark::kRelation},
    {kInsulatingGlassOneLaminated, 118, Mark::kRelation},
    {kInsulatingGlassTwoLaminated, 54, Mark::kRelation},
    {kDoubleWallGeneric, 34, Mark::kImpedance},
    {kDoubleWallBrick, 105, Mark::kRelation},
    {kDoubleWallBrickTorvalle, 104, Mark::kRelation},
    {kDoubleWallSeaBrick, 103},
    {kDoubleWallConcrete, 102},
    {kDoubleWallSeaPlasterboardPoint, 107},
    {kDoubleWallSeaPlasterboardLine, 108},
    {kDoubleWallPlasterboardCommonStuds, 36, Mark::kRelation},
    {kDoubleWallPlasterboardSeparateStuds, 37, Mark::kRelation},
    {kDoubleWallPlasterboardSingleBoardSimpleFrame, 39, Mark::kRelation},
    {kDoubleWallPlasterboardMultipleBoardSimpleFrame, 40, Mark::kRelation},
    {kDoubleWallPlasterboardMultipleBoardDoubleFrame, 41, Mark::kRelation},
    {kLightWallLineLine, 43},
    {kLightWallLinePoint, 44},
    {kLightWallPointPoint, 45},
    {kLightWallIsolated, 46},
    {kFloorWithFloatingScreed, 32, Mark::kCommaAndRow, 188},
    {kCompositeElement, 55},
    {kLiningGeneric, 111, Mark::kRelation},
    {kLiningCalibel, 112},
    {kLiningFrame, 113},
    {kCeilingGeneric, 115, Mark::kRelation},
    {kCeilingSea, 116},
    {kImpactFloatingFloor, 58, Mark::kRow, 144},
    {kImpactReinforcedConcrete, 59, Mark::kRow, 145},
    {kImpactLightweightConcrete, 60, Mark::kRow, 146},
    {kImpactHollowBrickConcrete, 109, Mark::kRow, 147},
    {kImpactHollowBrickConcreteGavelo, 413, Mark::kRow, 143},
}};

const Entry& EntryOf(Calculation calculation) {
  for (const Entry& entry : kEntries) {
    if (entry.calculation == calculation) return entry;
  }
  return kEntries.front();
}

}  // namespace

std::span<const Calculation> InMenuOrder() {
  static const auto kOrder = [] {
    std::array<Calculation, kEntries.size()> order{};
    std::ranges::transform(kEntries, order.begin(), &Entry::calculation);
    return order;
  }();
  return kOrder;
}

MessageLine MenuCaption(Calculation calculation) {
  const Entry& entry = EntryOf(calculation);
  MessageLine line = {MessageRow{entry.row}};
  switch (entry.mark) {
    case Mark::kNone:
      break;
    case Mark::kRelation:
      line.insert(line.end(),
                  {std::string(" ["), kRelationRow, ' ' + std::to_string(RowOf(calculation).relation) + ']'});
      break;
    case Mark::kImpedance:
      line.emplace_back(std::string(" [MIA]"));
      break;
    case Mark::kRow:
      line.insert(line.end(), {std::string(" "), MessageRow{entry.mark_row}});
      break;
    case Mark::kCommaAndRow:
      line.insert(line.end(), {std::string(", "), MessageRow{entry.mark_row}});
      break;
  }
  return line;
}

}  // namespace velmar::shell
