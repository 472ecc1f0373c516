#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace velmar::acoustics {

// The kinds of construction that a set-up names and a model tells apart. They stand here once because a
// set-up knows no model and a model no set-up.

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

/// What stands between the leaves of a double wall, in the order of the options that offer it.
enum class CavityKind {
  kEmpty = 0,            ///< air
  kFibrous = 1,          ///< fibrous material over the whole depth
  kGenericMaterial = 2,  ///< a stack of layers, absorbing or solid
};

/// How the two leaves of a light wall are held together.
enum class LightWallForm {
  kLineLine,        ///< fixed along lines on both sides
  kLinePoint,       ///< along lines on one side, at points on the other
  kPointPoint,      ///< at points on both sides
  kIsolated,        ///< not connected
  kInsulatingUnit,  ///< panes of an insulating glass unit, not connected
};

/// How the two sides of a wall by energy balance are tied together.
enum class SeaConnectionKind {
  kMasonryTies,  ///< lines of a number of their own, at the heaviest layer
  kLines,        ///< studs, a number of them
  kPoints,       ///< fixings, a whole number of them
};

/// Linings of walls and suspended ceilings.
enum class LiningVariant {
  kGenericLining,   ///< "Controplaccaggio generico"
  kDirectLining,    ///< "Controplaccaggio calibel"
  kFramedLining,    ///< "Controplaccaggio ossatura"
  kGenericCeiling,  ///< "Controsoffitto generico"
  kCeiling,         ///< "Controsoffitto SEA"
};

/// The kinds of floor that impact sound is told of: each selects the relation that fixes the overall level.
enum class ImpactFloorVariant {
  kFloatingFloor,          ///< any slab under a floating screed, no relation
  kReinforcedConcrete,     ///< solid slab
  kLightweightConcrete,    ///< slab of lightweight concrete
  kHollowBlock,            ///< beams and hollow blocks, relation on the mass
  kHollowBlockFixedLevel,  ///< beams and hollow blocks, measured spectrum that grows with the frequency
};

/// What the cavity of a wall or lining by energy balance holds, in the order of the list that offers it.
enum class SeaCavityType {
  kEmpty = 0,
  kFibre = 1,
  kFibreMass = 2,
  kMassFibreMass = 3,
  kFibreMassFibre = 4,
  kFibreMassFibreMass = 5,
  kFibreMassFibreMassFibre = 6,
};
inline constexpr int kSeaCavityTypeCount = 7;

/// A piece of a cavity's contents. A mass has its damping sheet behind it.
enum class SeaCavityContent { kFibre, kMass };

/// What the fullest cavity holds, and the one whose contents begin with a mass.
inline constexpr std::array kFullSeaCavity = {SeaCavityContent::kFibre, SeaCavityContent::kMass,
                                              SeaCavityContent::kFibre, SeaCavityContent::kMass,
                                              SeaCavityContent::kFibre};
inline constexpr std::array kFibreBetweenMasses = {SeaCavityContent::kMass, SeaCavityContent::kFibre,
                                                   SeaCavityContent::kMass};

/// What a cavity of `type` holds, from the first side on.
constexpr std::span<const SeaCavityContent> ContentsOf(SeaCavityType type) {
  constexpr std::array<std::size_t, kSeaCavityTypeCount> kSizes = {0, 1, 2, 3, 3, 4, 5};
  if (type == SeaCavityType::kMassFibreMass) return kFibreBetweenMasses;
  return std::span(kFullSeaCavity).first(kSizes.at(static_cast<std::size_t>(type)));
}

/// How many fibre rows (0 to 3) a cavity of `type` shows.
constexpr int FibreCount(SeaCavityType type) {
  int count = 0;
  for (const SeaCavityContent content : ContentsOf(type))
    count += content == SeaCavityContent::kFibre ? 1 : 0;
  return count;
}

/// How many mass rows (0 to 2) a cavity of `type` shows.
constexpr int MassCount(SeaCavityType type) {
  return static_cast<int>(ContentsOf(type).size()) - FibreCount(type);
}

}  // namespace velmar::acoustics
