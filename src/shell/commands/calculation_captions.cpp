#include "shell/commands/calculation_captions.h"

#include <algorithm>
#include <array>
#include <string>

#include "foundation/message_rows.h"

namespace velmar::shell {
namespace {

using elements::Calculation;
using enum elements::Calculation;

/// What stands behind the words of a menu entry.
enum class Mark { kNone, kRelation, kImpedance, kRow, kCommaAndRow };

struct Entry {
  Calculation calculation{};
  MessageRow row{};
  Mark mark = Mark::kNone;
  MessageRow mark_row{};
};

// In the order of the tree.
constexpr std::array<Entry, elements::kCalculationCount> kEntries = {{
    {kSingleWallGeneric, kGenericSingleWallRow},
    {kSingleWallBrick, kBrickMenuRow, Mark::kRelation},
    {kSingleWallBrickFerrara, kBrickFerraraMenuRow, Mark::kRelation},
    {kSingleWallSea, kBrickSeaMenuRow},
    {kSingleWallPlasterboard, kPlasterboardMenuRow, Mark::kRelation},
    {kSingleWallConcrete, kConcreteMenuRow},
    {kSingleWallHBlocks, kHBlocksMenuRow, Mark::kRelation},
    {kSingleWallExpandedClayBlocks, kExpandedClayBlocksMenuRow, Mark::kRelation},
    {kSingleWallConcreteBlocks, kConcreteBlocksMenuRow, Mark::kRelation},
    {kSingleWallGypsumBlocks, kGypsumBlocksMenuRow, Mark::kRelation},
    {kSingleWallAeratedConcrete, kAeratedConcreteMenuRow, Mark::kRelation},
    {kFloorHollowBrickConcrete, kHollowBrickFloorMenuRow, Mark::kRelation},
    {kSinglePaneGeneric, kGenericSinglePaneRow},
    {kSinglePaneMonolithic, kMonolithicPaneRow, Mark::kRelation},
    {kSinglePaneLaminated, kLaminatedPaneRow, Mark::kRelation},
    {kInsulatingGlassGeneric, kGenericInsulatingGlassMenuRow},
    {kInsulatingGlass, kInsulatingGlassRow, Mark::kRelation},
    {kInsulatingGlassOneLaminated, kInsulatingGlassOneLaminatedMenuRow, Mark::kRelation},
    {kInsulatingGlassTwoLaminated, kInsulatingGlassTwoLaminatedRow, Mark::kRelation},
    {kDoubleWallGeneric, kGenericDoubleWallRow, Mark::kImpedance},
    {kDoubleWallBrick, kDoubleBrickMenuRow, Mark::kRelation},
    {kDoubleWallBrickTorvalle, kDoubleBrickTorvalleMenuRow, Mark::kRelation},
    {kDoubleWallSeaBrick, kBrickSeaMenuRow},
    {kDoubleWallConcrete, kConcreteMenuRow},
    {kDoubleWallSeaPlasterboardPoint, kPointConnectionMenuRow},
    {kDoubleWallSeaPlasterboardLine, kLineConnectionMenuRow},
    {kDoubleWallPlasterboardCommonStuds, kCommonStudsMenuRow, Mark::kRelation},
    {kDoubleWallPlasterboardSeparateStuds, kSeparateStudsMenuRow, Mark::kRelation},
    {kDoubleWallPlasterboardSingleBoardSimpleFrame, kSingleBoardSimpleFrameMenuRow, Mark::kRelation},
    {kDoubleWallPlasterboardMultipleBoardSimpleFrame, kMultipleBoardSimpleFrameMenuRow, Mark::kRelation},
    {kDoubleWallPlasterboardMultipleBoardDoubleFrame, kMultipleBoardDoubleFrameMenuRow, Mark::kRelation},
    {kLightWallLineLine, kLightWallLineLineRow},
    {kLightWallLinePoint, kLightWallLinePointRow},
    {kLightWallPointPoint, kLightWallPointPointRow},
    {kLightWallIsolated, kLightWallIsolatedRow},
    {kFloorWithFloatingScreed, kHollowBrickFloorMenuRow, Mark::kCommaAndRow, kFloatingScreedTheoryRow},
    {kCompositeElement, kCompositeElementRow},
    {kLiningGeneric, kWallLiningRow, Mark::kRelation},
    {kLiningCalibel, kCalibelLiningRow},
    {kLiningFrame, kStudLiningRow},
    {kCeilingGeneric, kCeilingRow, Mark::kRelation},
    {kCeilingSea, kCeilingSeaMenuRow},
    {kImpactFloatingFloor, kFloatingScreedImpactFloorRow, Mark::kRow, kFloatingScreedImpactMarkRow},
    {kImpactReinforcedConcrete, kReinforcedConcreteFloorRow, Mark::kRow, kReinforcedConcreteMarkRow},
    {kImpactLightweightConcrete, kLightweightConcreteFloorRow, Mark::kRow, kLightweightConcreteMarkRow},
    {kImpactHollowBrickConcrete, kHollowBrickImpactFloorRow, Mark::kRow, kHollowBrickImpactMarkRow},
    {kImpactHollowBrickConcreteGavelo, kHollowBrickGaveloFloorRow, Mark::kRow, kHollowBrickGaveloMarkRow},
    {kMultilayerGeneric, kMultilayerRow},
}};

/// A calculation that is missing, twice in the menu or without its words fails here.
constexpr bool EachCalculationStandsOnceWithItsWords() {
  std::array<int, elements::kCalculationCount> times{};
  for (const Entry& entry : kEntries) {
    ++times.at(static_cast<std::size_t>(entry.calculation));
    const bool of_words = entry.mark == Mark::kRow || entry.mark == Mark::kCommaAndRow;
    if (entry.row == MessageRow{} || of_words != (entry.mark_row != MessageRow{})) return false;
  }
  return std::ranges::all_of(times, [](int count) { return count == 1; });
}
static_assert(EachCalculationStandsOnceWithItsWords());

const Entry& EntryOf(Calculation calculation) {
  return *std::ranges::find(kEntries, calculation, &Entry::calculation);
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
  MessageLine line = {entry.row};
  switch (entry.mark) {
    case Mark::kNone:
      break;
    case Mark::kRelation:
      line.insert(line.end(),
                  {std::string(" ["), kRelationRow, ' ' + std::to_string(RowOf(calculation).mark) + ']'});
      break;
    case Mark::kImpedance:
      line.emplace_back(std::string(" [MIA]"));
      break;
    case Mark::kRow:
      line.insert(line.end(), {std::string(" "), entry.mark_row});
      break;
    case Mark::kCommaAndRow:
      line.insert(line.end(), {std::string(", "), entry.mark_row});
      break;
  }
  return line;
}

}  // namespace velmar::shell
