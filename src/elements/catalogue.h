#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "acoustics/constructions.h"
#include "elements/construction.h"
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

/// A label made of a catalogue row, or of a literal where there is none, and what stands behind it.
struct Label {
  MessageRow row{};            ///< 0: the literal stands instead
  std::string_view literal{};  ///< "SEA", or words that have no row
  std::string_view suffix{};   ///< ":" or nothing
  int mark = 0;                ///< number of a relation, " [10]"; 0 for none

  /// The label as one line of pieces.
  MessageLine Line() const;
};

/// All that the program knows of one calculation: every other place that tells calculations apart reads it
/// here. The texts are a stored format: project files and the results database hold them, in every language.
struct CalculationRow : Construction {
  Calculation calculation{};
  std::string_view variant{};
  /// The relation that moves the model's airborne curve; nothing where that curve stands.
  std::optional<acoustics::RelationId> relation{};
  int mark = 0;                   ///< number of the experimental relation as its mark shows it; 0 for none
  Label theory{};                 ///< `LabelTeoriaApplicata`(1)
  Label element_type{};           ///< `LabelTeoriaApplicata`(0)
  std::string_view menu_group{};  ///< the menu handler that offers it
  int menu_index = 0;             ///< its entry there

  /// Whether the outcome depends on `field`, beside the layers of the stacks.
  constexpr bool Reads(Field field) const { return reads.Has(field); }
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
/// The shape of a project file of `family` whose variant is not known.
FilePart FilePartOf(Family family);

/// The stored text of an orientation: "verticale singola", ...
std::string_view OrientationText(Orientation orientation);

/// Whether the calculation is one of the glass panes or insulating glass units.
bool IsGlazing(Calculation calculation);

}  // namespace velmar::elements
