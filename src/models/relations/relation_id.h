#pragma once

namespace velmar::models {

/// The experimental relations of airborne sound: regressions on measured elements.
enum class RelationId {
  kBrick,                        ///< 1
  kBrickFerrara,                 ///< 2
  kPlasterboard,                 ///< 3
  kConcrete,                     ///< no number of its own
  kHBlocks,                      ///< 4
  kExpandedClayBlocks,           ///< 5
  kConcreteBlocks,               ///< 6
  kGypsumBlocks,                 ///< 7
  kAeratedConcrete,              ///< 8
  kHollowBlockFloor,             ///< 9
  kDoubleBrick,                  ///< 10
  kDoubleBrickFibre,             ///< 11
  kBoardsOnOneFrame,             ///< 12
  kBoardsOnTwoFrames,            ///< 13
  kSingleBoardsOnSingleStuds,    ///< 14
  kMultipleBoardsOnSingleStuds,  ///< 15
  kMultipleBoardsOnDoubleStuds,  ///< 16
  kDoubleConcrete,               ///< no number of its own
  kFloatingScreed,               ///< 17
  kMonolithicPane,               ///< 18, one pane
  kLaminatedPane,                ///< 19
  kInsulatingUnit,               ///< 18, two panes
  kInsulatingUnitOneLaminated,   ///< 20
  kInsulatingUnitTwoLaminated,   ///< 21
};

}  // namespace velmar::models
