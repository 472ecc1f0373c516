#include "elements/catalogue.h"

#include <algorithm>
#include <array>
#include <string>

#include "foundation/message_rows.h"

namespace velmar::elements {
namespace {

using enum Calculation;
// Short names for the columns of the table below.
using F = Family;
using M = Model;
using O = Orientation;
using B = ElementButton;

constexpr std::string_view kSea = "SEA";

/// The theory of an experimental relation: its row with the relation's number behind.
constexpr Label Relation(std::string_view mark) { return {.row = kRelationRow, .suffix = mark}; }
constexpr Label Row(MessageRow row) { return {.row = row}; }
constexpr Label RowAndColon(MessageRow row) { return {.row = row, .suffix = ":"}; }
constexpr Label Words(std::string_view words) { return {.literal = words}; }

constexpr std::string_view kSingleMenu = "TIPO_PARETE_SINGOLA";
constexpr std::string_view kDoubleMenu = "TIPO_PARETE_DOPPIA";
constexpr std::string_view kSeaMenu = "TIPO_PARETE_SEA";
constexpr std::string_view kPlasterboardMenu = "TIPO_PARETE_DOPPIA_CARTONGESSO";
constexpr std::string_view kPlasterboardMeasuredMenu = "TIPO_DOPPIO_CARTONGESSO_SPERIM";
constexpr std::string_view kLightMenu = "TIPO_PARETE_DOPPIA_LEGGERA_LLPI";
constexpr std::string_view kLiningMenu = "mnuCalcoloControplaccaggiScelta";
constexpr std::string_view kCeilingMenu = "mnuCalcoloControsoffittiScelta";
constexpr std::string_view kGlassMenu = "VETRATURE";
constexpr std::string_view kImpactMenu = "cal_solaio_new";

// clang-format off
constexpr std::array<CalculationRow, kCalculationCount> kCatalogue = {{
    {kSingleWallGeneric, F::kSingle, "Parete singola Generica", O::kVerticalSingle, M::kSingleWall, 0, Row(kPlateImpedanceMethodRow), Row(kGenericSingleWallRow), kSingleMenu, 0, B::kSingleWall},
    {kSingleWallBrick, F::kSingle, "Parete singola in laterizio", O::kVerticalSingle, M::kSingleWall, 1, Relation(" [1]"), Row(kSingleBrickWallRow), kSingleMenu, 2, B::kSingleWall},
    {kSingleWallBrickFerrara, F::kSingle, "Parete singola in laterizio UniveFerrara", O::kVerticalSingle, M::kSingleWall, 2, Relation(" [2]"), Row(kSingleBrickWallRow), kSingleMenu, 3, B::kSingleWall},
    {kSingleWallPlasterboard, F::kSingle, "Parete in cartongesso", O::kVerticalSingle, M::kSingleWall, 3, Relation(" [3]"), Row(kPlasterboardWallRow), kSingleMenu, 6, B::kSingleWall},
    {kSingleWallConcrete, F::kSingle, "Parete singola in calcestruzzo", O::kVerticalSingle, M::kSingleWall, 3, Relation(" [3]"), Row(kSingleConcreteWallRow), kSingleMenu, 8, B::kSingleWall},
    {kSingleWallHBlocks, F::kSingle, "Parete blocchi ad H", O::kVerticalSingle, M::kSingleWall, 4, Relation(" [4]"), Row(kHBlocksWallRow), kSingleMenu, 10, B::kSingleWall},
    {kSingleWallExpandedClayBlocks, F::kSingle, "Blocchi in argilla espansa", O::kVerticalSingle, M::kSingleWall, 5, Relation(" [5]"), Row(kExpandedClayBlocksRow), kSingleMenu, 11, B::kSingleWall},
    {kSingleWallConcreteBlocks, F::kSingle, "Blocchi in calcestruzzo", O::kVerticalSingle, M::kSingleWall, 6, Relation(" [6]"), Row(kConcreteBlocksRow), kSingleMenu, 12, B::kSingleWall},
    {kSingleWallGypsumBlocks, F::kSingle, "Blocchi in gesso", O::kVerticalSingle, M::kSingleWall, 7, Relation(" [7]"), Row(kGypsumBlocksRow), kSingleMenu, 13, B::kSingleWall},
    {kSingleWallAeratedConcrete, F::kSingle, "Gasbeton", O::kVerticalSingle, M::kSingleWall, 8, Relation(" [8]"), Row(kAeratedConcreteRow), kSingleMenu, 15, B::kSingleWall},
    {kFloorHollowBrickConcrete, F::kSingle, "Solaio in laterocemento", O::kHorizontalSingle, M::kSingleWall, 9, Relation(" [9]"), RowAndColon(kHollowBrickFloorRow), kSingleMenu, 17, B::kSingleWall},
    {kSinglePaneGeneric, F::kSingle, "Vetro singolo generico", O::kVerticalSingle, M::kSingleWall, 0, Row(kPlateImpedanceMethodRow), RowAndColon(kGenericSinglePaneRow), kGlassMenu, 0, B::kSingleWall},
    {kSinglePaneMonolithic, F::kSingle, "Vetro monolitico", O::kVerticalSingle, M::kSingleWall, 18, Relation(" [18]"), RowAndColon(kMonolithicPaneRow), kGlassMenu, 1, B::kSingleWall},
    {kSinglePaneLaminated, F::kSingle, "Vetro singolo stratificato", O::kVerticalSingle, M::kSingleWall, 19, Relation(" [19]"), RowAndColon(kLaminatedPaneRow), kGlassMenu, 2, B::kSingleWall},
    {kSingleWallSea, F::kSeaSingle, "Laterizio SEA singola", O::kVerticalSingle, M::kSingleSeaWall, 0, Words(kSea), RowAndColon(kSingleBrickWallRow), kSingleMenu, 4, B::kSingleWall},
    {kDoubleWallGeneric, F::kDouble, "Parete doppia Generica", O::kVerticalDouble, M::kDoubleWall, 0, Row(kImpedanceMethodRow), Row(kGenericDoubleWallRow), kDoubleMenu, 0, B::kDoubleWall},
    {kDoubleWallBrick, F::kDouble, "Parete doppia in laterizio", O::kVerticalDouble, M::kDoubleWall, 10, Relation(" [10]"), Row(kDoubleBrickWallRow), kDoubleMenu, 2, B::kDoubleWall},
    {kDoubleWallBrickTorvalle, F::kDouble, "Parete doppia in laterizio torvalle", O::kVerticalDouble, M::kDoubleWall, 11, Relation(" [11]"), Row(kDoubleBrickWallRow), kDoubleMenu, 3, B::kDoubleWall},
    {kDoubleWallConcrete, F::kDouble, "Parete doppia in calcestruzzo", O::kVerticalDouble, M::kDoubleWall, 0, Row(kRelationRow), Words("Parete doppia in calcestruzzo:"), "TIPO_PARETE_DOPPIA2", 0, B::kDoubleWall},
    {kDoubleWallPlasterboardCommonStuds, F::kDouble, "Parete doppia in cartongesso con ossatura unica", O::kVerticalDouble, M::kDoubleWall, 12, Relation(" [12]"), RowAndColon(kPlasterboardCommonStudsRow), kPlasterboardMenu, 0, B::kDoubleWall},
    {kDoubleWallPlasterboardSeparateStuds, F::kDouble, "Parete doppia in cartongesso con ossature separate", O::kVerticalDouble, M::kDoubleWall, 13, Relation(" [13]"), RowAndColon(kPlasterboardSeparateStudsRow), kPlasterboardMenu, 1, B::kDoubleWall},
    {kDoubleWallPlasterboardSingleBoardSimpleFrame, F::kDouble, "Parete doppia in cartongesso, lastra singola - orditura semplice", O::kVerticalDouble, M::kDoubleWall, 14, Relation(" [14]"), RowAndColon(kPlasterboardSingleBoardSimpleFrameRow), kPlasterboardMeasuredMenu, 0, B::kDoubleWall},
    {kDoubleWallPlasterboardMultipleBoardSimpleFrame, F::kDouble, "Parete doppia in cartongesso, lastra multipla - orditura semplice", O::kVerticalDouble, M::kDoubleWall, 15, Relation(" [15]"), RowAndColon(kPlasterboardMultipleBoardSimpleFrameRow), kPlasterboardMeasuredMenu, 1, B::kDoubleWall},
    {kDoubleWallPlasterboardMultipleBoardDoubleFrame, F::kDouble, "Parete doppia in cartongesso, lastra multipla - orditura doppia", O::kVerticalDouble, M::kDoubleWall, 16, Relation(" [16]"), RowAndColon(kPlasterboardMultipleBoardDoubleFrameRow), kPlasterboardMeasuredMenu, 2, B::kDoubleWall},
    {kInsulatingGlass, F::kDouble, "Vetrocamera", O::kVerticalDouble, M::kDoubleWall, 18, Relation(" [18]"), RowAndColon(kInsulatingGlassRow), kGlassMenu, 5, B::kDoubleWall},
    {kInsulatingGlassOneLaminated, F::kDouble, "Vetrocamera (1 lastra stratificata)", O::kVerticalDouble, M::kDoubleWall, 20, Relation(" [20]"), RowAndColon(kInsulatingGlassRow), kGlassMenu, 6, B::kDoubleWall},
    {kInsulatingGlassTwoLaminated, F::kDouble, "Vetrocamera (2 lastre stratificate)", O::kVerticalDouble, M::kDoubleWall, 21, Relation(" [21]"), RowAndColon(kInsulatingGlassTwoLaminatedRow), kGlassMenu, 7, B::kDoubleWall},
    {kFloorWithFloatingScreed, F::kDouble, "Solaio in laterocemento con pav. galleggiante", O::kHorizontalDouble, M::kFloatingScreedFloor, 17, Row(kFloatingScreedTheoryRow), RowAndColon(kHollowBrickFloorWithScreedRow), "TIPO_SOLAIO_DOPPIO", 0, B::kFloor},
    {kLightWallLineLine, F::kSharp, "Parete leggera doppia collegata Linea - Linea", O::kVerticalDouble, M::kLightDoubleWall, 0, Row(kSharpTheoryRow), Row(kLightWallLineLineRow), kLightMenu, 0, B::kDoubleWall},
    {kLightWallLinePoint, F::kSharp, "Parete leggera doppia collegata Linea - Punto", O::kVerticalDouble, M::kLightDoubleWall, 0, Row(kSharpLinePointTheoryRow), Row(kLightWallLinePointRow), kLightMenu, 1, B::kDoubleWall},
    {kLightWallPointPoint, F::kSharp, "Parete leggera doppia collegata Punto - Punto", O::kVerticalDouble, M::kLightDoubleWall, 0, Row(kSharpPointPointTheoryRow), Row(kLightWallPointPointRow), kLightMenu, 2, B::kDoubleWall},
    {kLightWallIsolated, F::kSharp, "Parete leggera doppia pannelli completamente isolati", O::kVerticalDouble, M::kLightDoubleWall, 0, Row(kSharpIsolatedTheoryRow), Row(kLightWallIsolatedRow), kLightMenu, 3, B::kDoubleWall},
    {kInsulatingGlassGeneric, F::kSharp, "Vetrocamera generico", O::kVerticalDouble, M::kLightDoubleWall, 0, Row(kSharpTheoryRow), RowAndColon(kGenericInsulatingGlassRow), kGlassMenu, 4, B::kDoubleWall},
    {kDoubleWallSeaBrick, F::kSea, "Laterizio SEA", O::kVerticalDouble, M::kDoubleSeaWall, 0, Words(kSea), Row(kDoubleBrickWallRow), kDoubleMenu, 4, B::kDoubleWall},
    {kDoubleWallSeaPlasterboardPoint, F::kSea, "Cartongesso SEA puntuale", O::kVerticalDouble, M::kDoubleSeaWall, 0, Words(kSea), Row(kPlasterboardDoubleWallRow), kSeaMenu, 0, B::kDoubleWall},
    {kDoubleWallSeaPlasterboardLine, F::kSea, "Cartongesso SEA lineare", O::kVerticalDouble, M::kDoubleSeaWall, 0, Words(kSea), Row(kPlasterboardDoubleWallRow), kSeaMenu, 1, B::kDoubleWall},
    {kLiningGeneric, F::kLining, "Controplaccaggio generico", O::kLining, M::kGenericLining, 28, Relation(" [28]"), Row(kGenericLiningRow), kLiningMenu, 0, B::kLining},
    {kLiningCalibel, F::kLining, "Controplaccaggio calibel", O::kLining, M::kSeaLining, 0, Words(kSea), Row(kCalibelLiningRow), kLiningMenu, 1, B::kLining},
    {kLiningFrame, F::kLining, "Controplaccaggio ossatura", O::kLining, M::kSeaLining, 0, Words(kSea), Row(kStudLiningRow), kLiningMenu, 2, B::kLining},
    {kCeilingGeneric, F::kCeiling, "Controsoffitto generico", O::kCeiling, M::kGenericLining, 28, Relation(" [28]"), RowAndColon(kGenericCeilingRow), kCeilingMenu, 0, B::kCeiling},
    {kCeilingSea, F::kCeiling, "Controsoffitto SEA", O::kCeiling, M::kSeaLining, 0, Words(kSea), RowAndColon(kCeilingRow), kCeilingMenu, 1, B::kCeiling},
    {kCompositeElement, F::kFacade, "Parete composta", O::kComposite, M::kCompositeElement, 0, Words("UNI EN 12354-3"), RowAndColon(kCompositeElementRow), "cal_facciata", 0, B::kFacade},
    {kImpactFloatingFloor, F::kImpact, "Solaio con pavimento galleggiante", O::kHorizontalDouble, M::kImpactFloor, 22, Relation(" [22]"), RowAndColon(kFloatingScreedImpactFloorRow), "cal_solaio", 0, B::kFloor},
    {kImpactReinforcedConcrete, F::kImpact, "Solaio in cemento armato", O::kHorizontalDouble, M::kImpactFloor, 23, Relation(" [23]"), RowAndColon(kReinforcedConcreteFloorRow), kImpactMenu, 0, B::kFloor},
    {kImpactLightweightConcrete, F::kImpact, "Solaio in calcestruzzo alleggerito", O::kHorizontalDouble, M::kImpactFloor, 24, Relation(" [24]"), RowAndColon(kLightweightConcreteFloorRow), kImpactMenu, 1, B::kFloor},
    {kImpactHollowBrickConcrete, F::kImpact, "Solaio in laterocemento Lnw", O::kHorizontalDouble, M::kImpactFloor, 25, Relation(" [25]"), RowAndColon(kHollowBrickImpactFloorRow), kImpactMenu, 2, B::kFloor},
    {kImpactHollowBrickConcreteGavelo, F::kImpact, "Solaio in laterocemento gavelo", O::kHorizontalDouble, M::kImpactFloor, 26, Relation(" [26]"), RowAndColon(kHollowBrickGaveloFloorRow), kImpactMenu, 3, B::kFloor},
}};
// clang-format on

constexpr bool RowsStandInTheOrderOfTheirCalculations() {
  for (std::size_t i = 0; i < kCatalogue.size(); ++i) {
    if (static_cast<std::size_t>(kCatalogue[i].calculation) != i) return false;
  }
  return true;
}
static_assert(RowsStandInTheOrderOfTheirCalculations());

constexpr std::array<std::string_view, 9> kFamilyTexts = {"SINGOLA",        "SEA SINGOLO", "DOPPIA",
                                                          "SHARP",          "SEA",         "CONTROPLACCAGGIO",
                                                          "CONTROSOFFITTO", "FACCIATA",    "CALPESTIO"};

constexpr std::array<std::string_view, 7> kOrientationTexts = {
    "verticale singola", "verticale doppia", "orizzontale singola", "orizzontale doppia",
    "CONTROPLACCAGGIO",  "CONTROSOFFITTO",   "Parete composta"};

}  // namespace

MessageLine Label::Line() const {
  MessageLine line;
  if (row.number != 0) {
    line.emplace_back(row);
  } else {
    line.emplace_back(std::string(literal));
  }
  if (!suffix.empty()) line.emplace_back(std::string(suffix));
  return line;
}

std::span<const CalculationRow, kCalculationCount> Catalogue() { return kCatalogue; }

const CalculationRow& RowOf(Calculation calculation) {
  return kCatalogue.at(static_cast<std::size_t>(calculation));
}

std::optional<Calculation> FindCalculation(std::string_view variant) {
  const auto* row = std::ranges::find(kCatalogue, variant, &CalculationRow::variant);
  if (row == kCatalogue.end()) return std::nullopt;
  return row->calculation;
}

std::string_view FamilyText(Family family) { return kFamilyTexts.at(static_cast<std::size_t>(family)); }

std::optional<Family> FindFamily(std::string_view text) {
  const auto* found = std::ranges::find(kFamilyTexts, text);
  if (found == kFamilyTexts.end()) return std::nullopt;
  return static_cast<Family>(found - kFamilyTexts.begin());
}

std::string_view OrientationText(Orientation orientation) {
  return kOrientationTexts.at(static_cast<std::size_t>(orientation));
}

bool IsGlazing(Calculation calculation) { return RowOf(calculation).menu_group == kGlassMenu; }

}  // namespace velmar::elements
