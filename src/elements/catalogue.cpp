#include "elements/catalogue.h"

#include <algorithm>
#include <array>
#include <string>

#include "foundation/message_rows.h"

namespace velmar::elements {
namespace {

using enum Calculation;
using acoustics::ImpactFloorVariant;
using acoustics::LightWallForm;
using acoustics::LiningVariant;
using acoustics::SeaCavityType;
using acoustics::SeaConnectionKind;
using R = acoustics::RelationId;

// --- What calculations of one kind have in common.

constexpr FieldSet kSize = {Field::kWidth, Field::kHeight};
constexpr FieldSet kCavityFields = {Field::kCavityDepth, Field::kCavityKind};
constexpr FieldSet kSeaCavityFields = {Field::kSeaCavityDepth, Field::kSeaCavityType};

constexpr Construction kPlate = {.family = Family::kSingle,
                                 .orientation = Orientation::kVerticalSingle,
                                 .model = Model::kSingleWall,
                                 .button = ElementButton::kSingleWall,
                                 .stacks = {Stack::kLeaf1},
                                 .reads = kSize,
                                 .file = FilePart::kSingle};

constexpr Construction kSinglePane = [] {
  Construction pane = kPlate;
  pane.glazing = true;
  return pane;
}();

constexpr Construction kPlateFloor = [] {
  Construction floor = kPlate;
  floor.orientation = Orientation::kHorizontalSingle;
  return floor;
}();

constexpr Construction kSeaWall = {.family = Family::kSeaSingle,
                                   .orientation = Orientation::kVerticalSingle,
                                   .model = Model::kSingleSeaWall,
                                   .button = ElementButton::kSingleWall,
                                   .stacks = {Stack::kSeaLeaf1},
                                   .reads = kSize,
                                   .file = FilePart::kSeaSingle};

constexpr Construction kTwoPlates = {.family = Family::kDouble,
                                     .orientation = Orientation::kVerticalDouble,
                                     .model = Model::kDoubleWall,
                                     .button = ElementButton::kDoubleWall,
                                     .stacks = {Stack::kLeaf1, Stack::kCavity, Stack::kLeaf2},
                                     .reads = kSize.With(kCavityFields),
                                     .generic_cavity = true,
                                     .defaults = {.width = "3,6", .height = "3"},
                                     .file = FilePart::kDoubleWall};

/// The brick walls, whose relations know no layers in the cavity.
constexpr Construction kTwoBrickLeaves = [] {
  Construction wall = kTwoPlates;
  wall.generic_cavity = false;
  return wall;
}();

/// A wall whose relation reads the thickness of the fibre.
constexpr Construction WithFibre(Construction wall, ClosingLines closing) {
  wall.reads = wall.reads.With({Field::kFibreThickness});
  wall.closing = closing;
  return wall;
}

/// Panes of insulating glass bring no dimensions along.
constexpr Construction Glazed(Construction wall) {
  wall.glazing = true;
  wall.defaults.width = {};
  wall.defaults.height = {};
  return wall;
}

constexpr Construction kFloatingScreed = {.family = Family::kDouble,
                                          .orientation = Orientation::kHorizontalDouble,
                                          .model = Model::kFloatingScreedFloor,
                                          .button = ElementButton::kFloor,
                                          .stacks = {Stack::kLeaf1, Stack::kResilient, Stack::kLeaf2},
                                          .reads = kSize,
                                          .file = FilePart::kFloor};

/// Leaves that nothing connects have no size.
constexpr Construction LightWall(LightWallForm form) {
  return {.family = Family::kSharp,
          .orientation = Orientation::kVerticalDouble,
          .model = Model::kLightDoubleWall,
          .form = form,
          .button = ElementButton::kDoubleWall,
          .stacks = {Stack::kLeaf1, Stack::kCavity, Stack::kLeaf2},
          .reads = kCavityFields,
          .generic_cavity = true,
          .defaults = {.width = "3,6", .height = "3", .support = "60"},
          .file = FilePart::kDoubleWall};
}

constexpr Construction ConnectedLightWall(LightWallForm form) {
  Construction wall = LightWall(form);
  wall.reads = wall.reads.With({Field::kHeight, Field::kSupport});
  wall.support = Support::kStudDistance;
  wall.closing = ClosingLines::kSupportIfTyped;
  return wall;
}

constexpr Construction kSeaBrickWall = {
    .family = Family::kSea,
    .orientation = Orientation::kVerticalDouble,
    .model = Model::kDoubleSeaWall,
    .form = SeaConnectionKind::kMasonryTies,
    .button = ElementButton::kDoubleWall,
    .stacks = {Stack::kSeaLeaf1, Stack::kSeaCavity, Stack::kSeaLeaf2},
    .reads = kSize.With(kSeaCavityFields).With({Field::kDecoupling}),
    .sea_cavity_types = acoustics::kSeaCavityTypeCount,
    .defaults = {.width = "3,6", .height = "3", .sea_cavity = SeaCavityType::kEmpty},
    .file = FilePart::kSeaDouble};

constexpr Construction SeaBoards(SeaConnectionKind connection, Support support, std::string_view count) {
  Construction wall = kSeaBrickWall;
  wall.form = connection;
  wall.reads = kSize.With(kSeaCavityFields).With({Field::kSupport});
  wall.support = support;
  wall.defaults.width = "1,2";
  wall.defaults.height = "2,8";
  wall.defaults.support = count;
  return wall;
}

/// A lining has dimensions of its own. Its cavity is empty or holds one fibre.
constexpr Construction Lining(LiningVariant variant) {
  return {.family = Family::kLining,
          .orientation = Orientation::kLining,
          .model = Model::kSeaLining,
          .form = variant,
          .button = ElementButton::kLining,
          .stacks = {Stack::kBase, Stack::kSeaCavity, Stack::kSeaLeaf2},
          .reads = kSeaCavityFields.With({Field::kRating, Field::kBand, Field::kMass, Field::kBaseThickness}),
          .sea_cavity_types = 2,
          .defaults = {.sea_cavity = SeaCavityType::kFibre, .simplified = false},
          .file = FilePart::kLining};
}

constexpr Construction kFramedLining = [] {
  Construction lining = Lining(LiningVariant::kFramedLining);
  lining.reads = lining.reads.With({Field::kSupport});
  lining.support = Support::kLineConnections;
  lining.defaults.support = "1";
  return lining;
}();

constexpr Construction Ceiling(LiningVariant variant) {
  Construction ceiling = Lining(variant);
  ceiling.family = Family::kCeiling;
  ceiling.orientation = Orientation::kCeiling;
  ceiling.button = ElementButton::kCeiling;
  ceiling.reads = ceiling.reads.With({Field::kHanger});
  return ceiling;
}

/// Rated by its resonance alone, from the single number of its base.
constexpr Construction ByResonance(Construction lining) {
  lining.model = Model::kGenericLining;
  lining.reads = kSeaCavityFields.With({Field::kRating, Field::kMass, Field::kBaseThickness});
  lining.defaults.simplified = true;
  return lining;
}

constexpr Construction kFacade = {
    .family = Family::kFacade,
    .orientation = Orientation::kComposite,
    .model = Model::kCompositeElement,
    .button = ElementButton::kFacade,
    .stacks = {Stack::kBase, Stack::kComponents},
    .reads = {Field::kArea, Field::kRating, Field::kC, Field::kCtr, Field::kBand, Field::kMass,
              Field::kTightness, Field::kSimplified},
    .file = FilePart::kFacade};

constexpr Construction ImpactFloor(ImpactFloorVariant variant) {
  return {.family = Family::kImpact,
          .orientation = Orientation::kHorizontalDouble,
          .model = Model::kImpactFloor,
          .form = variant,
          .button = ElementButton::kFloor,
          .stacks = {Stack::kLeaf1, Stack::kResilient, Stack::kLeaf2},
          .reads = kSize,
          .file = FilePart::kFloor};
}

constexpr Construction kFreeLayers = {
    .family = Family::kMultilayer,
    .orientation = Orientation::kMultilayer,
    .model = Model::kLayered,
    .button = ElementButton::kDoubleWall,
    .stacks = {Stack::kMultilayer},
    .reads =
        kSize.With({Field::kStratumKind, Field::kStratumThickness, Field::kConnection,
                    Field::kConnectionNumber, Field::kProfileHeight, Field::kProfilePitch, Field::kTracks}),
    .defaults = {.width = "3,6", .height = "2,8"},
    .file = FilePart::kMultilayer};

// --- The labels.

constexpr std::string_view kSea = "SEA";

constexpr Label Row(MessageRow row) { return {.row = row}; }
constexpr Label RowAndColon(MessageRow row) { return {.row = row, .suffix = ":"}; }
constexpr Label Words(std::string_view words) { return {.literal = words}; }

// --- The rows.

struct MenuPlace {
  std::string_view group{};
  int index = 0;
};

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

/// A calculation whose theory is told in words of its own.
constexpr CalculationRow Of(Calculation calculation, const Construction& construction,
                            std::string_view variant, Label theory, Label element_type, MenuPlace menu) {
  return {construction, calculation, variant, std::nullopt, 0, theory, element_type, menu.group, menu.index};
}

/// A calculation by an experimental relation, which its mark shows.
constexpr CalculationRow By(int mark, std::optional<R> relation, Calculation calculation,
                            const Construction& construction, std::string_view variant, Label element_type,
                            MenuPlace menu) {
  return {construction, calculation, variant,   relation, mark, {.row = kRelationRow, .mark = mark},
          element_type, menu.group,  menu.index};
}

// clang-format off
constexpr std::array<CalculationRow, kCalculationCount> kCatalogue = {{
    Of(kSingleWallGeneric, kPlate, "Parete singola Generica", Row(kPlateImpedanceMethodRow), Row(kGenericSingleWallRow), {kSingleMenu, 0}),
    By(1, R::kBrick, kSingleWallBrick, kPlate, "Parete singola in laterizio", Row(kSingleBrickWallRow), {kSingleMenu, 2}),
    By(2, R::kBrickFerrara, kSingleWallBrickFerrara, kPlate, "Parete singola in laterizio UniveFerrara", Row(kSingleBrickWallRow), {kSingleMenu, 3}),
    By(3, R::kPlasterboard, kSingleWallPlasterboard, kPlate, "Parete in cartongesso", Row(kPlasterboardWallRow), {kSingleMenu, 6}),
    By(3, R::kConcrete, kSingleWallConcrete, kPlate, "Parete singola in calcestruzzo", Row(kSingleConcreteWallRow), {kSingleMenu, 8}),
    By(4, R::kHBlocks, kSingleWallHBlocks, kPlate, "Parete blocchi ad H", Row(kHBlocksWallRow), {kSingleMenu, 10}),
    By(5, R::kExpandedClayBlocks, kSingleWallExpandedClayBlocks, kPlate, "Blocchi in argilla espansa", Row(kExpandedClayBlocksRow), {kSingleMenu, 11}),
    By(6, R::kConcreteBlocks, kSingleWallConcreteBlocks, kPlate, "Blocchi in calcestruzzo", Row(kConcreteBlocksRow), {kSingleMenu, 12}),
    By(7, R::kGypsumBlocks, kSingleWallGypsumBlocks, kPlate, "Blocchi in gesso", Row(kGypsumBlocksRow), {kSingleMenu, 13}),
    By(8, R::kAeratedConcrete, kSingleWallAeratedConcrete, kPlate, "Gasbeton", Row(kAeratedConcreteRow), {kSingleMenu, 15}),
    By(9, R::kHollowBlockFloor, kFloorHollowBrickConcrete, kPlateFloor, "Solaio in laterocemento", RowAndColon(kHollowBrickFloorRow), {kSingleMenu, 17}),
    Of(kSinglePaneGeneric, kSinglePane, "Vetro singolo generico", Row(kPlateImpedanceMethodRow), RowAndColon(kGenericSinglePaneRow), {kGlassMenu, 0}),
    By(18, R::kMonolithicPane, kSinglePaneMonolithic, kSinglePane, "Vetro monolitico", RowAndColon(kMonolithicPaneRow), {kGlassMenu, 1}),
    By(19, R::kLaminatedPane, kSinglePaneLaminated, kSinglePane, "Vetro singolo stratificato", RowAndColon(kLaminatedPaneRow), {kGlassMenu, 2}),
    Of(kSingleWallSea, kSeaWall, "Laterizio SEA singola", Words(kSea), RowAndColon(kSingleBrickWallRow), {kSingleMenu, 4}),
    Of(kDoubleWallGeneric, kTwoPlates, "Parete doppia Generica", Row(kImpedanceMethodRow), Row(kGenericDoubleWallRow), {kDoubleMenu, 0}),
    By(10, R::kDoubleBrick, kDoubleWallBrick, kTwoBrickLeaves, "Parete doppia in laterizio", Row(kDoubleBrickWallRow), {kDoubleMenu, 2}),
    By(11, R::kDoubleBrickFibre, kDoubleWallBrickTorvalle, WithFibre(kTwoBrickLeaves, ClosingLines::kFibreIfTyped), "Parete doppia in laterizio torvalle", Row(kDoubleBrickWallRow), {kDoubleMenu, 3}),
    By(0, R::kDoubleConcrete, kDoubleWallConcrete, kTwoPlates, "Parete doppia in calcestruzzo", Words("Parete doppia in calcestruzzo:"), {"TIPO_PARETE_DOPPIA2", 0}),
    By(12, R::kBoardsOnOneFrame, kDoubleWallPlasterboardCommonStuds, WithFibre(kTwoPlates, ClosingLines::kFibre), "Parete doppia in cartongesso con ossatura unica", RowAndColon(kPlasterboardCommonStudsRow), {kPlasterboardMenu, 0}),
    By(13, R::kBoardsOnTwoFrames, kDoubleWallPlasterboardSeparateStuds, WithFibre(kTwoPlates, ClosingLines::kFibreIfTyped), "Parete doppia in cartongesso con ossature separate", RowAndColon(kPlasterboardSeparateStudsRow), {kPlasterboardMenu, 1}),
    By(14, R::kSingleBoardsOnSingleStuds, kDoubleWallPlasterboardSingleBoardSimpleFrame, WithFibre(kTwoPlates, ClosingLines::kFibre), "Parete doppia in cartongesso, lastra singola - orditura semplice", RowAndColon(kPlasterboardSingleBoardSimpleFrameRow), {kPlasterboardMeasuredMenu, 0}),
    By(15, R::kMultipleBoardsOnSingleStuds, kDoubleWallPlasterboardMultipleBoardSimpleFrame, WithFibre(kTwoPlates, ClosingLines::kFibre), "Parete doppia in cartongesso, lastra multipla - orditura semplice", RowAndColon(kPlasterboardMultipleBoardSimpleFrameRow), {kPlasterboardMeasuredMenu, 1}),
    By(16, R::kMultipleBoardsOnDoubleStuds, kDoubleWallPlasterboardMultipleBoardDoubleFrame, WithFibre(kTwoPlates, ClosingLines::kFibre), "Parete doppia in cartongesso, lastra multipla - orditura doppia", RowAndColon(kPlasterboardMultipleBoardDoubleFrameRow), {kPlasterboardMeasuredMenu, 2}),
    By(18, R::kInsulatingUnit, kInsulatingGlass, Glazed(kTwoPlates), "Vetrocamera", RowAndColon(kInsulatingGlassRow), {kGlassMenu, 5}),
    By(20, R::kInsulatingUnitOneLaminated, kInsulatingGlassOneLaminated, Glazed(kTwoPlates), "Vetrocamera (1 lastra stratificata)", RowAndColon(kInsulatingGlassRow), {kGlassMenu, 6}),
    By(21, R::kInsulatingUnitTwoLaminated, kInsulatingGlassTwoLaminated, Glazed(kTwoPlates), "Vetrocamera (2 lastre stratificate)", RowAndColon(kInsulatingGlassTwoLaminatedRow), {kGlassMenu, 7}),
    {kFloatingScreed, kFloorWithFloatingScreed, "Solaio in laterocemento con pav. galleggiante", R::kFloatingScreed, 17, Row(kFloatingScreedTheoryRow), RowAndColon(kHollowBrickFloorWithScreedRow), "TIPO_SOLAIO_DOPPIO", 0},
    Of(kLightWallLineLine, ConnectedLightWall(LightWallForm::kLineLine), "Parete leggera doppia collegata Linea - Linea", Row(kSharpTheoryRow), Row(kLightWallLineLineRow), {kLightMenu, 0}),
    Of(kLightWallLinePoint, ConnectedLightWall(LightWallForm::kLinePoint), "Parete leggera doppia collegata Linea - Punto", Row(kSharpLinePointTheoryRow), Row(kLightWallLinePointRow), {kLightMenu, 1}),
    Of(kLightWallPointPoint, ConnectedLightWall(LightWallForm::kPointPoint), "Parete leggera doppia collegata Punto - Punto", Row(kSharpPointPointTheoryRow), Row(kLightWallPointPointRow), {kLightMenu, 2}),
    Of(kLightWallIsolated, LightWall(LightWallForm::kIsolated), "Parete leggera doppia pannelli completamente isolati", Row(kSharpIsolatedTheoryRow), Row(kLightWallIsolatedRow), {kLightMenu, 3}),
    Of(kInsulatingGlassGeneric, Glazed(LightWall(LightWallForm::kInsulatingUnit)), "Vetrocamera generico", Row(kSharpTheoryRow), RowAndColon(kGenericInsulatingGlassRow), {kGlassMenu, 4}),
    Of(kDoubleWallSeaBrick, kSeaBrickWall, "Laterizio SEA", Words(kSea), Row(kDoubleBrickWallRow), {kDoubleMenu, 4}),
    Of(kDoubleWallSeaPlasterboardPoint, SeaBoards(SeaConnectionKind::kPoints, Support::kPointConnections, "20"), "Cartongesso SEA puntuale", Words(kSea), Row(kPlasterboardDoubleWallRow), {kSeaMenu, 0}),
    Of(kDoubleWallSeaPlasterboardLine, SeaBoards(SeaConnectionKind::kLines, Support::kLineConnections, "1"), "Cartongesso SEA lineare", Words(kSea), Row(kPlasterboardDoubleWallRow), {kSeaMenu, 1}),
    By(28, std::nullopt, kLiningGeneric, ByResonance(Lining(LiningVariant::kGenericLining)), "Controplaccaggio generico", Row(kGenericLiningRow), {kLiningMenu, 0}),
    Of(kLiningCalibel, Lining(LiningVariant::kDirectLining), "Controplaccaggio calibel", Words(kSea), Row(kCalibelLiningRow), {kLiningMenu, 1}),
    Of(kLiningFrame, kFramedLining, "Controplaccaggio ossatura", Words(kSea), Row(kStudLiningRow), {kLiningMenu, 2}),
    By(28, std::nullopt, kCeilingGeneric, ByResonance(Ceiling(LiningVariant::kGenericCeiling)), "Controsoffitto generico", RowAndColon(kGenericCeilingRow), {kCeilingMenu, 0}),
    Of(kCeilingSea, Ceiling(LiningVariant::kCeiling), "Controsoffitto SEA", Words(kSea), RowAndColon(kCeilingRow), {kCeilingMenu, 1}),
    Of(kCompositeElement, kFacade, "Parete composta", Words("UNI EN 12354-3"), RowAndColon(kCompositeElementRow), {"cal_facciata", 0}),
    By(22, std::nullopt, kImpactFloatingFloor, ImpactFloor(ImpactFloorVariant::kFloatingFloor), "Solaio con pavimento galleggiante", RowAndColon(kFloatingScreedImpactFloorRow), {"cal_solaio", 0}),
    By(23, std::nullopt, kImpactReinforcedConcrete, ImpactFloor(ImpactFloorVariant::kReinforcedConcrete), "Solaio in cemento armato", RowAndColon(kReinforcedConcreteFloorRow), {kImpactMenu, 0}),
    By(24, std::nullopt, kImpactLightweightConcrete, ImpactFloor(ImpactFloorVariant::kLightweightConcrete), "Solaio in calcestruzzo alleggerito", RowAndColon(kLightweightConcreteFloorRow), {kImpactMenu, 1}),
    By(25, std::nullopt, kImpactHollowBrickConcrete, ImpactFloor(ImpactFloorVariant::kHollowBlock), "Solaio in laterocemento Lnw", RowAndColon(kHollowBrickImpactFloorRow), {kImpactMenu, 2}),
    By(26, std::nullopt, kImpactHollowBrickConcreteGavelo, ImpactFloor(ImpactFloorVariant::kHollowBlockFixedLevel), "Solaio in laterocemento gavelo", RowAndColon(kHollowBrickGaveloFloorRow), {kImpactMenu, 3}),
    Of(kMultilayerGeneric, kFreeLayers, "Multistrato generico", Row(kTransferMatrixTheoryRow), Row(kMultilayerRow), {"MULTISTRATO", 0}),
}};
// clang-format on

// --- What must hold of the rows; a calculation that is missing, doubled or at odds with itself fails here.

constexpr bool StandInTheOrderOfTheirCalculations() {
  for (std::size_t i = 0; i < kCatalogue.size(); ++i) {
    if (static_cast<std::size_t>(kCatalogue[i].calculation) != i) return false;
  }
  return true;
}
static_assert(StandInTheOrderOfTheirCalculations());

constexpr bool HaveTextsAndMenuPlacesOfTheirOwn() {
  for (std::size_t i = 0; i < kCatalogue.size(); ++i) {
    const CalculationRow& row = kCatalogue[i];
    if (row.variant.empty() || row.menu_group.empty()) return false;
    for (std::size_t j = 0; j < i; ++j) {
      const CalculationRow& other = kCatalogue[j];
      if (other.variant == row.variant) return false;
      if (other.menu_group == row.menu_group && other.menu_index == row.menu_index) return false;
    }
  }
  return true;
}
static_assert(HaveTextsAndMenuPlacesOfTheirOwn());

/// Whether the row names what its model asks for.
constexpr bool FitsItsModel(const CalculationRow& row) {
  switch (row.model) {
    case Model::kSingleWall:
    case Model::kDoubleWall:
    case Model::kFloatingScreedFloor:
      return row.form.index() == 0;
    case Model::kSingleSeaWall:
    case Model::kCompositeElement:
    case Model::kLayered:
      return row.form.index() == 0 && !row.relation;
    case Model::kLightDoubleWall:
      return std::holds_alternative<LightWallForm>(row.form) && !row.relation;
    case Model::kDoubleSeaWall:
      return std::holds_alternative<SeaConnectionKind>(row.form) && !row.relation;
    case Model::kSeaLining:
    case Model::kGenericLining:
      return std::holds_alternative<LiningVariant>(row.form) && !row.relation;
    case Model::kImpactFloor:
      return std::holds_alternative<ImpactFloorVariant>(row.form) && !row.relation;
  }
  return false;
}
static_assert(std::ranges::all_of(kCatalogue, FitsItsModel));

/// Whether the row reads the fields of its stacks, and none of stacks that it has not.
constexpr bool ReadsItsStacks(const CalculationRow& row) {
  return row.stacks.size() > 0 && row.Reads(Field::kSupport) == (row.support != Support::kNone) &&
         row.Reads(Field::kCavityDepth) == row.stacks.Has(Stack::kCavity) &&
         row.Reads(Field::kSeaCavityDepth) == row.stacks.Has(Stack::kSeaCavity) &&
         (row.sea_cavity_types > 0) == row.stacks.Has(Stack::kSeaCavity) &&
         row.Reads(Field::kRating) == row.stacks.Has(Stack::kBase);
}
static_assert(std::ranges::all_of(kCatalogue, ReadsItsStacks));

struct FamilyRow {
  Family family{};
  std::string_view text{};
  FilePart file{};
};
constexpr std::array<FamilyRow, 10> kFamilies = {
    {{Family::kSingle, "SINGOLA", FilePart::kSingle},
     {Family::kSeaSingle, "SEA SINGOLO", FilePart::kSeaSingle},
     {Family::kDouble, "DOPPIA", FilePart::kDoubleWall},
     {Family::kSharp, "SHARP", FilePart::kDoubleWall},
     {Family::kSea, "SEA", FilePart::kSeaDouble},
     {Family::kLining, "CONTROPLACCAGGIO", FilePart::kLining},
     {Family::kCeiling, "CONTROSOFFITTO", FilePart::kLining},
     {Family::kFacade, "FACCIATA", FilePart::kFacade},
     {Family::kImpact, "CALPESTIO", FilePart::kFloor},
     {Family::kMultilayer, "MULTISTRATO", FilePart::kMultilayer}}};

constexpr const FamilyRow& RowOf(Family family) { return kFamilies.at(static_cast<std::size_t>(family)); }

static_assert(std::ranges::all_of(kCatalogue, [](const CalculationRow& row) {
  return RowOf(row.family).family == row.family;
}));

constexpr std::array<std::string_view, 8> kOrientationTexts = {
    "verticale singola", "verticale doppia", "orizzontale singola", "orizzontale doppia",
    "CONTROPLACCAGGIO",  "CONTROSOFFITTO",   "Parete composta",     "verticale multistrato"};

}  // namespace

MessageLine Label::Line() const {
  MessageLine line;
  if (row.number != 0) {
    line.emplace_back(row);
  } else {
    line.emplace_back(std::string(literal));
  }
  if (mark != 0) line.emplace_back(" [" + std::to_string(mark) + "]");
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

std::string_view FamilyText(Family family) { return RowOf(family).text; }

std::optional<Family> FindFamily(std::string_view text) {
  const auto* row = std::ranges::find(kFamilies, text, &FamilyRow::text);
  if (row == kFamilies.end()) return std::nullopt;
  return row->family;
}

FilePart FilePartOf(Family family) { return RowOf(family).file; }

std::string_view OrientationText(Orientation orientation) {
  return kOrientationTexts.at(static_cast<std::size_t>(orientation));
}

bool IsGlazing(Calculation calculation) { return RowOf(calculation).glazing; }

}  // namespace velmar::elements
