#include "calculation/edits/usual_layers.h"

#include <map>
#include <string>

#include "calculation/edits/cavity_rules.h"
#include "calculation/edits/layer_edits.h"
#include "calculation/edits/layer_moves.h"
#include "calculation/edits/select_calculation.h"
#include "foundation/decimal.h"

namespace velmar::calculation {
namespace {

using elements::Calculation;
using elements::CavityKind;
using elements::LayerGroup;
using elements::SeaCavityType;
using elements::Setup;
using enum elements::Calculation;

constexpr auto kLeaf1 = LayerGroup::kLeaf1;
constexpr auto kLeaf2 = LayerGroup::kLeaf2;
constexpr auto kMat = LayerGroup::kResilient;
constexpr auto kSea1 = LayerGroup::kSeaLeaf1;
constexpr auto kSea2 = LayerGroup::kSeaLeaf2;
constexpr auto kFill = LayerGroup::kSeaCavityFibre;

constexpr std::string_view kPlaster = "Intonaco di calce e cemento";
constexpr std::string_view kHollowBrick12 = "Forati in laterizio 12 cm";
constexpr std::string_view kHollowBrick8 = "Forati in laterizio 8 cm";
constexpr std::string_view kBoard = "Cartongesso standard";
constexpr std::string_view kFloat = "Vetro float";
constexpr std::string_view kLaminated33 = "Vetro stratificato 33.1";
constexpr std::string_view kLaminated44 = "Vetro stratificato 44.2";
constexpr std::string_view kLightConcrete = "Calcestruzzo alleggerito 1400";
constexpr std::string_view kHollowBlockSlab = "Solaio in laterocemento 20+4 cm";
constexpr std::string_view kScreed = "Massetto sabbia-cemento";
constexpr std::string_view kTile = "Piastrella ceramica";
constexpr std::string_view kMineralMat = "Pannello minerale anticalpestio (MW-T) 30 mm, s' 10";
constexpr std::string_view kWool = "Lana di roccia 40";

constexpr UsualLayer kBrickWall[] = {{kLeaf1, kPlaster}, {kLeaf1, kHollowBrick12}, {kLeaf1, kPlaster}};
constexpr UsualLayer kBoardWall[] = {{kLeaf1, kBoard, 0, 2}};
constexpr UsualLayer kConcreteWall[] = {{kLeaf1, kLightConcrete, 200}};
constexpr UsualLayer kHBlockWall[] = {
    {kLeaf1, kPlaster}, {kLeaf1, "Blocco cavo in calcestruzzo denso", 200}, {kLeaf1, kPlaster}};
constexpr UsualLayer kClayBlockWall[] = {
    {kLeaf1, kPlaster}, {kLeaf1, "Blocco in argilla espansa 1200"}, {kLeaf1, kPlaster}};
constexpr UsualLayer kConcreteBlockWall[] = {
    {kLeaf1, kPlaster}, {kLeaf1, "Blocco cavo in calcestruzzo leggero", 120}, {kLeaf1, kPlaster}};
constexpr UsualLayer kGypsumBlockWall[] = {{kLeaf1, "Blocco di gesso"}};
constexpr UsualLayer kAeratedWall[] = {{kLeaf1, "Intonaco di gesso alleggerito"},
                                       {kLeaf1, "Calcestruzzo aerato autoclavato 600"},
                                       {kLeaf1, "Intonaco di gesso alleggerito"}};
// Floors are entered from the ceiling's plaster upwards.
constexpr UsualLayer kBareFloor[] = {
    {kLeaf1, kPlaster}, {kLeaf1, kHollowBlockSlab}, {kLeaf1, kScreed}, {kLeaf1, kTile}};

constexpr UsualLayer kPane[] = {{kLeaf1, kFloat, 6}};
constexpr UsualLayer kLaminatedPane[] = {{kLeaf1, kLaminated44}};
constexpr UsualLayer kUnit[] = {{kLeaf1, kFloat, 4}, {kLeaf2, kFloat, 4}};
constexpr UsualLayer kUnitOneLaminated[] = {{kLeaf1, kFloat, 6}, {kLeaf2, kLaminated33}};
constexpr UsualLayer kUnitTwoLaminated[] = {{kLeaf1, kLaminated44}, {kLeaf2, kLaminated33}};

constexpr UsualLayer kTwoBrickLeaves[] = {
    {kLeaf1, kPlaster}, {kLeaf1, kHollowBrick12}, {kLeaf2, kHollowBrick8}, {kLeaf2, kPlaster}};
constexpr UsualLayer kTwoConcreteLeaves[] = {{kLeaf1, kLightConcrete, 120}, {kLeaf2, kLightConcrete, 100}};
constexpr UsualLayer kSingleBoards[] = {{kLeaf1, kBoard}, {kLeaf2, kBoard}};
constexpr UsualLayer kDoubleBoards[] = {{kLeaf1, kBoard, 0, 2}, {kLeaf2, kBoard, 0, 2}};

// Slab and screed may weigh 332 kg/m² together: above, the bare floor's rating leaves the relation's range.
constexpr UsualLayer kLightFloorWithScreed[] = {
    {kLeaf1, "Solaio in laterocemento 16+4 cm"}, {kLeaf2, "Massetto in gesso", 50}, {kMat, kMineralMat}};
constexpr UsualLayer kFloorWithScreed[] = {
    {kLeaf1, kPlaster}, {kLeaf1, kHollowBlockSlab}, {kLeaf2, kScreed}, {kLeaf2, kTile}, {kMat, kMineralMat}};
constexpr UsualLayer kConcreteFloor[] = {
    {kLeaf1, "Calcestruzzo armato", 160}, {kLeaf2, kScreed}, {kMat, kMineralMat}};
constexpr UsualLayer kLightConcreteFloor[] = {
    {kLeaf1, kLightConcrete, 200}, {kLeaf2, kScreed}, {kMat, kMineralMat}};

constexpr UsualLayer kSeaBrick[] = {{kSea1, kPlaster}, {kSea1, kHollowBrick12}, {kSea1, kPlaster}};
constexpr UsualLayer kSeaTwoBrickLeaves[] = {{kSea1, kPlaster},
                                             {kSea1, kHollowBrick12},
                                             {kSea2, kHollowBrick8},
                                             {kSea2, kPlaster},
                                             {kFill, kWool, 50}};
constexpr UsualLayer kSeaBoards[] = {
    {kSea1, kBoard}, {kSea1, kBoard}, {kSea2, kBoard}, {kSea2, kBoard}, {kFill, kWool, 60}};
constexpr UsualLayer kBoardLining[] = {{kSea2, kBoard}, {kFill, kWool, 50}};
constexpr UsualLayer kBoardCeiling[] = {{kSea2, kBoard}, {kFill, kWool, 60}};

/// The cavity of a double wall.
struct UsualCavity {
  CavityKind kind = CavityKind::kEmpty;
  std::string_view depth_mm{};  ///< `Text9`, or the depth of a SEA cavity; empty: as it stands
  std::string_view fibre_mm{};  ///< `Text31`, where the calculation reads it
};
constexpr UsualCavity kGasGap = {CavityKind::kEmpty, "16"};
constexpr UsualCavity kEmptyCavity = {CavityKind::kEmpty, "40"};
constexpr UsualCavity kMasonryCavity = {CavityKind::kFibrous, "50", "50"};
constexpr UsualCavity kStudCavity = {CavityKind::kFibrous, "75", "60"};
constexpr UsualCavity kTwoStudsCavity = {CavityKind::kFibrous, "155", "60"};
constexpr UsualCavity kSeaMasonryCavity = {.depth_mm = "50"};
constexpr UsualCavity kSeaStudCavity = {.depth_mm = "75"};
constexpr UsualCavity kCeilingVoid = {.depth_mm = "200"};

struct UsualElement {
  std::span<const UsualLayer> layers{};
  UsualCavity cavity{};
};

UsualElement UsualOf(Calculation calculation) {
  switch (calculation) {
    case kSingleWallGeneric:
    case kSingleWallBrick:
    case kSingleWallBrickFerrara:
      return {kBrickWall};
    case kSingleWallPlasterboard:
      return {kBoardWall};
    case kSingleWallConcrete:
      return {kConcreteWall};
    case kSingleWallHBlocks:
      return {kHBlockWall};
    case kSingleWallExpandedClayBlocks:
      return {kClayBlockWall};
    case kSingleWallConcreteBlocks:
      return {kConcreteBlockWall};
    case kSingleWallGypsumBlocks:
      return {kGypsumBlockWall};
    case kSingleWallAeratedConcrete:
      return {kAeratedWall};
    case kFloorHollowBrickConcrete:
      return {kBareFloor};
    case kSinglePaneGeneric:
    case kSinglePaneMonolithic:
      return {kPane};
    case kSinglePaneLaminated:
      return {kLaminatedPane};
    case kInsulatingGlass:
    case kInsulatingGlassGeneric:
      return {kUnit, kGasGap};
    case kInsulatingGlassOneLaminated:
      return {kUnitOneLaminated, kGasGap};
    case kInsulatingGlassTwoLaminated:
      return {kUnitTwoLaminated, kGasGap};
    case kDoubleWallGeneric:
    case kDoubleWallBrick:
    case kDoubleWallBrickTorvalle:
      return {kTwoBrickLeaves, kMasonryCavity};
    case kDoubleWallConcrete:
      return {kTwoConcreteLeaves, kEmptyCavity};
    case kDoubleWallPlasterboardSingleBoardSimpleFrame:
      return {kSingleBoards, kStudCavity};
    case kDoubleWallPlasterboardCommonStuds:
    case kDoubleWallPlasterboardMultipleBoardSimpleFrame:
    case kLightWallLineLine:
    case kLightWallLinePoint:
    case kLightWallPointPoint:
      return {kDoubleBoards, kStudCavity};
    case kDoubleWallPlasterboardSeparateStuds:
    case kDoubleWallPlasterboardMultipleBoardDoubleFrame:
    case kLightWallIsolated:
      return {kDoubleBoards, kTwoStudsCavity};
    case kFloorWithFloatingScreed:
      return {kLightFloorWithScreed};
    case kImpactFloatingFloor:
    case kImpactHollowBrickConcrete:
    case kImpactHollowBrickConcreteGavelo:
      return {kFloorWithScreed};
    case kImpactReinforcedConcrete:
      return {kConcreteFloor};
    case kImpactLightweightConcrete:
      return {kLightConcreteFloor};
    case kSingleWallSea:
      return {kSeaBrick};
    case kDoubleWallSeaBrick:
      return {kSeaTwoBrickLeaves, kSeaMasonryCavity};
    case kDoubleWallSeaPlasterboardPoint:
    case kDoubleWallSeaPlasterboardLine:
      return {kSeaBoards, kSeaStudCavity};
    case kLiningGeneric:
    case kLiningCalibel:
    case kLiningFrame:
      return {kBoardLining, kSeaMasonryCavity};
    case kCeilingGeneric:
    case kCeilingSea:
      return {kBoardCeiling, kCeilingVoid};
    default:
      return {};  // no layers of its own, as a facade
  }
}

void PutLayers(Setup& setup, std::span<const UsualLayer> layers, const elements::MaterialLookup& materials) {
  std::map<LayerGroup, int> rows;
  for (const UsualLayer& layer : layers) {
    const int row = rows[layer.group]++;
    // The type of a SEA cavity says how many fills there are.
    if (HasFreeCount(layer.group)) SetLayerCount(setup, layer.group, row + 1);
    if (!PutMaterial(setup, layer.group, row, std::string(layer.material), materials)) continue;
    if (layer.thickness_mm > 0.0)
      EnterLayerThickness(setup, layer.group, row, FormatShortest(layer.thickness_mm));
    if (layer.sheets > 1) EnterMultiplicity(setup, layer.group, row, std::to_string(layer.sheets));
  }
}

void PutCavity(Setup& setup, const elements::CalculationRow& row, const UsualCavity& cavity) {
  if (cavity.depth_mm.empty()) return;
  if (row.stacks.Has(elements::Stack::kSeaCavity)) {
    setup.sea_cavity.depth_text = cavity.depth_mm;
    LeaveSeaCavityDepth(setup);
    return;
  }
  setup.cavity.kind = cavity.kind;
  setup.cavity.depth_text = cavity.depth_mm;
  if (row.Reads(elements::Field::kFibreThickness)) setup.cavity.fibre_text = cavity.fibre_mm;
}

bool HasFill(std::span<const UsualLayer> layers) {
  for (const UsualLayer& layer : layers) {
    if (layer.group == kFill) return true;
  }
  return false;
}

/// Triple glazing 4/12/4/12/4 in the size of a measured window: the element that no other calculation has.
void PutTripleGlazing(Setup& setup, const elements::MaterialLookup& materials) {
  constexpr int kRows = 5;
  setup.multilayer.count = kRows;
  setup.width_text = "1,23";
  setup.height_text = "1,48";
  for (int row = 0; row < kRows; ++row) {
    elements::Stratum& stratum = setup.multilayer.strata.at(static_cast<std::size_t>(row));
    const bool is_pane = row % 2 == 0;
    stratum.kind = is_pane ? elements::StratumKind::kPlate : elements::StratumKind::kAir;
    if (!is_pane) {
      stratum.thickness_text = "12";
    } else if (PutMaterial(setup, LayerGroup::kStratumSolid, row, std::string(kFloat), materials)) {
      EnterLayerThickness(setup, LayerGroup::kStratumSolid, row, "4");
    }
  }
}

}  // namespace

std::span<const UsualLayer> UsualLayersOf(Calculation calculation) { return UsualOf(calculation).layers; }

void BeginElement(Setup& setup, Calculation calculation, const elements::MaterialLookup& tables) {
  SelectCalculation(setup, calculation);
  if (calculation == kMultilayerGeneric) return PutTripleGlazing(setup, elements::ForOneOperation(tables));
  const UsualElement usual = UsualOf(calculation);
  if (HasFill(usual.layers)) setup.sea_cavity.type = SeaCavityType::kFibre;
  PutLayers(setup, usual.layers, elements::ForOneOperation(tables));
  PutCavity(setup, RowOf(calculation), usual.cavity);
}

}  // namespace velmar::calculation
