#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "foundation/message.h"

namespace velmar::elements {

/// The calculations, in the order of the catalogue.
enum class Calculation {
  kSingleWallGeneric,
  kSingleWallBrick,
  kSingleWallBrickFerrara,
  kSingleWallPlasterboard,
  kSingleWallConcrete,
  kSingleWallHBlocks,
  kSingleWallExpandedClayBlocks,
  kSingleWallConcreteBlocks,
  kSingleWallGypsumBlocks,
  kSingleWallAeratedConcrete,
  kFloorHollowBrickConcrete,
  kSinglePaneGeneric,
  kSinglePaneMonolithic,
  kSinglePaneLaminated,
  kSingleWallSea,
  kDoubleWallGeneric,
  kDoubleWallBrick,
  kDoubleWallBrickTorvalle,
  kDoubleWallConcrete,
  kDoubleWallPlasterboardCommonStuds,
  kDoubleWallPlasterboardSeparateStuds,
  kDoubleWallPlasterboardSingleBoardSimpleFrame,
  kDoubleWallPlasterboardMultipleBoardSimpleFrame,
  kDoubleWallPlasterboardMultipleBoardDoubleFrame,
  kInsulatingGlass,
  kInsulatingGlassOneLaminated,
  kInsulatingGlassTwoLaminated,
  kFloorWithFloatingScreed,
  kLightWallLineLine,
  kLightWallLinePoint,
  kLightWallPointPoint,
  kLightWallIsolated,
  kInsulatingGlassGeneric,
  kDoubleWallSeaBrick,
  kDoubleWallSeaPlasterboardPoint,
  kDoubleWallSeaPlasterboardLine,
  kLiningGeneric,
  kLiningCalibel,
  kLiningFrame,
  kCeilingGeneric,
  kCeilingSea,
  kCompositeElement,
  kImpactFloatingFloor,
  kImpactReinforcedConcrete,
  kImpactLightweightConcrete,
  kImpactHollowBrickConcrete,
  kImpactHollowBrickConcreteGavelo,
};
inline constexpr std::size_t kCalculationCount = 47;

enum class Family { kSingle, kSeaSingle, kDouble, kSharp, kSea, kLining, kCeiling, kFacade, kImpact };

enum class Orientation {
  kVerticalSingle,
  kVerticalDouble,
  kHorizontalSingle,
  kHorizontalDouble,
  kLining,
  kCeiling,
  kComposite,
};

/// The physical model that a calculation runs.
enum class Model {
  kSingleWall,
  kSingleSeaWall,
  kDoubleWall,
  kFloatingScreedFloor,
  kLightDoubleWall,
  kDoubleSeaWall,
  kSeaLining,
  kGenericLining,
  kCompositeElement,
  kImpactFloor,
};

/// The button of the tool bar that lays out a calculation's tabs; its number there.
enum class ElementButton {
  kSingleWall = 17,
  kDoubleWall = 18,
  kFloor = 19,
  kFacade = 20,
  kLining = 21,
  kCeiling = 22
};

/// A label made of a catalogue row, or of a literal where there is none, and what stands behind it.
struct Label {
  MessageRow row{};            ///< 0: the literal stands instead
  std::string_view literal{};  ///< "SEA", or words that have no row
  std::string_view suffix{};   ///< " [10]", ":" or nothing

  /// The label as one line of pieces.
  MessageLine Line() const;
};

/// What the catalogue says of one calculation. The texts are a stored format: project files and the results
/// database hold them, in every language.
struct CalculationRow {
  Calculation calculation{};
  Family family{};
  std::string_view variant{};
  Orientation orientation{};
  Model model{};
  int relation = 0;               ///< number of the experimental relation as its mark shows it; 0 for none
  Label theory{};                 ///< `LabelTeoriaApplicata`(1)
  Label element_type{};           ///< `LabelTeoriaApplicata`(0)
  std::string_view menu_group{};  ///< the menu handler that offers it
  int menu_index = 0;             ///< its entry there
  ElementButton button{};
};

/// All calculations, in the order of `Calculation`.
std::span<const CalculationRow, kCalculationCount> Catalogue();

/// The row of `calculation`.
const CalculationRow& RowOf(Calculation calculation);

/// The calculation that `variant` names, exactly as written; nothing for an unknown text.
std::optional<Calculation> FindCalculation(std::string_view variant);

/// The stored text of a family: "SINGOLA", "SEA SINGOLO", ...
std::string_view FamilyText(Family family);
/// The family that `text` names exactly; nothing for an unknown text.
std::optional<Family> FindFamily(std::string_view text);

/// The stored text of an orientation: "verticale singola", ...
std::string_view OrientationText(Orientation orientation);

/// Whether the calculation is one of the glass panes or insulating glass units.
bool IsGlazing(Calculation calculation);

}  // namespace velmar::elements
