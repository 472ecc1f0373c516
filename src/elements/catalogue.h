#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

#include "acoustics/constructions.h"
#include "elements/fields.h"
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
  kMultilayerGeneric,
};
inline constexpr std::size_t kCalculationCount = 48;

enum class Family {
  kSingle,
  kSeaSingle,
  kDouble,
  kSharp,
  kSea,
  kLining,
  kCeiling,
  kFacade,
  kImpact,
  kMultilayer,
};

enum class Orientation {
  kVerticalSingle,
  kVerticalDouble,
  kHorizontalSingle,
  kHorizontalDouble,
  kLining,
  kCeiling,
  kComposite,
  kMultilayer,
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
  kLayered,
};

inline constexpr std::size_t kModelCount = 11;

/// What a model tells apart by itself; nothing where it knows one construction alone.
using ModelForm = std::variant<std::monostate, acoustics::LightWallForm, acoustics::SeaConnectionKind,
                               acoustics::LiningVariant, acoustics::ImpactFloorVariant>;

/// A part of an element that the user enters on a page of its own, in the order of the window's tabs.
enum class Stack {
  kLeaf1,       ///< "Parete 1", or the bearing floor
  kLeaf2,       ///< "Parete 2", or the screed
  kCavity,      ///< between two leaves
  kResilient,   ///< between floor and screed
  kBase,        ///< the wall or floor under a lining, or the opaque part of a facade
  kComponents,  ///< of a facade
  kSeaLeaf1,
  kSeaLeaf2,  ///< the second side, or the lining
  kSeaCavity,
  kMultilayer,  ///< a free list of layers: leaves and cavities in turn
};
inline constexpr int kStackCount = 10;

/// The stacks of an element, up to three.
class Stacks {
 public:
  constexpr Stacks() = default;
  constexpr Stacks(std::initializer_list<Stack> stacks) {
    for (const Stack stack : stacks) items_.at(size_++) = stack;
  }

  constexpr const Stack* begin() const { return items_.data(); }
  constexpr const Stack* end() const { return items_.data() + size_; }
  constexpr std::size_t size() const { return size_; }
  constexpr bool Has(Stack stack) const {
    for (const Stack one : *this) {
      if (one == stack) return true;
    }
    return false;
  }

 private:
  std::array<Stack, 3> items_{};
  std::size_t size_ = 0;
};

/// What `Text8` asks of a calculation.
enum class Support {
  kNone,
  kStudDistance,      ///< a distance in cm
  kPointConnections,  ///< a whole number of fixings
  kLineConnections,   ///< a number of lines
};

/// Whether `support` is a number of connections rather than a distance.
constexpr bool IsCount(Support support) {
  return support == Support::kPointConnections || support == Support::kLineConnections;
}

/// What a calculation brings along when it is chosen; what is empty leaves the set-up as it is.
struct Defaults {
  std::string_view width{};    ///< m
  std::string_view height{};   ///< m
  std::string_view support{};  ///< `Text8`
  std::optional<acoustics::SeaCavityType> sea_cavity{};
  std::optional<bool> simplified{};  ///< `Check2`
};

/// The shapes of what follows the common part of a project file.
enum class FilePart {
  kSingle,
  kSeaSingle,
  kSeaDouble,
  kDoubleWall,
  kFloor,
  kLining,
  kFacade,
  kMultilayer,
};

/// What stands in the closing lines of a double wall's file part.
enum class ClosingLines {
  kFibre,           ///< one line: `Text31`
  kFibreIfTyped,    ///< two lines: `Text31` unless it is "0", and a blank one
  kSupportIfTyped,  ///< two lines: a blank one, and `Text8` unless it is "60"
  kBlank,           ///< two blank lines
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

/// What calculations of one kind have in common.
struct Construction {
  Family family{};
  Orientation orientation{};
  Model model{};
  ModelForm form{};
  ElementButton button{};

  /// In the order of the calculation: the first leaf, the base element or the bearing floor first.
  Stacks stacks{};
  /// The fields that the outcome depends on, beside the layers of the stacks. What is not read is neither
  /// offered nor told as an input.
  FieldSet reads{};
  Support support = Support::kNone;
  bool generic_cavity = false;  ///< `Option2`(2) "Materiale generico" is offered
  int sea_cavity_types = 0;     ///< how many items `ComboTipoIntercSEA` offers
  bool glazing = false;         ///< panes and insulating glass units

  Defaults defaults{};
  FilePart file{};
  ClosingLines closing = ClosingLines::kBlank;
};

/// Whether the family stands on a base element: a lining or a suspended ceiling.
constexpr bool IsLining(Family family) { return family == Family::kLining || family == Family::kCeiling; }

/// Floors and ceilings: their layers lie on top of each other.
constexpr bool IsHorizontal(Orientation orientation) {
  return orientation == Orientation::kHorizontalSingle || orientation == Orientation::kHorizontalDouble ||
         orientation == Orientation::kCeiling;
}

/// Floors, which are entered from the ceiling's plaster upwards and stand with their finish on top.
constexpr bool IsFinishedOnTop(Orientation orientation) {
  return orientation == Orientation::kHorizontalSingle || orientation == Orientation::kHorizontalDouble;
}

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
