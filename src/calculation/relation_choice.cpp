#include "calculation/relation_choice.h"

namespace velmar::calculation {

std::optional<models::RelationId> RelationOf(elements::Calculation calculation) {
  using enum elements::Calculation;
  using Id = models::RelationId;
  switch (calculation) {
    case kSingleWallBrick:
      return Id::kBrick;
    case kSingleWallBrickFerrara:
      return Id::kBrickFerrara;
    case kSingleWallPlasterboard:
      return Id::kPlasterboard;
    case kSingleWallConcrete:
      return Id::kConcrete;
    case kSingleWallHBlocks:
      return Id::kHBlocks;
    case kSingleWallExpandedClayBlocks:
      return Id::kExpandedClayBlocks;
    case kSingleWallConcreteBlocks:
      return Id::kConcreteBlocks;
    case kSingleWallGypsumBlocks:
      return Id::kGypsumBlocks;
    case kSingleWallAeratedConcrete:
      return Id::kAeratedConcrete;
    case kFloorHollowBrickConcrete:
      return Id::kHollowBlockFloor;
    case kSinglePaneMonolithic:
      return Id::kMonolithicPane;
    case kSinglePaneLaminated:
      return Id::kLaminatedPane;
    case kDoubleWallBrick:
      return Id::kDoubleBrick;
    case kDoubleWallBrickTorvalle:
      return Id::kDoubleBrickFibre;
    case kDoubleWallConcrete:
      return Id::kDoubleConcrete;
    case kDoubleWallPlasterboardCommonStuds:
      return Id::kBoardsOnOneFrame;
    case kDoubleWallPlasterboardSeparateStuds:
      return Id::kBoardsOnTwoFrames;
    case kDoubleWallPlasterboardSingleBoardSimpleFrame:
      return Id::kSingleBoardsOnSingleStuds;
    case kDoubleWallPlasterboardMultipleBoardSimpleFrame:
      return Id::kMultipleBoardsOnSingleStuds;
    case kDoubleWallPlasterboardMultipleBoardDoubleFrame:
      return Id::kMultipleBoardsOnDoubleStuds;
    case kInsulatingGlass:
      return Id::kInsulatingUnit;
    case kInsulatingGlassOneLaminated:
      return Id::kInsulatingUnitOneLaminated;
    case kInsulatingGlassTwoLaminated:
      return Id::kInsulatingUnitTwoLaminated;
    case kFloorWithFloatingScreed:
      return Id::kFloatingScreed;
    default:
      return std::nullopt;
  }
}

}  // namespace velmar::calculation
