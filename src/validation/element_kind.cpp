#include "validation/element_kind.h"

#include <array>
#include <cmath>
#include <optional>
#include <vector>

#include "foundation/decimal.h"

namespace velmar::validation {
namespace {

using elements::Calculation;
using elements::Family;
using elements::Setup;
using elements::StructuralMaterial;
using Names = std::span<const std::string_view>;

constexpr std::string_view kBrick = "brick and clay";
constexpr std::string_view kConcreteName = "dense concrete";
constexpr std::string_view kAerated = "aerated concrete";
constexpr std::string_view kSilicate = "calcium silicate";
constexpr std::string_view kWood = "wood studs, direct";
constexpr std::string_view kSteel = "steel studs, direct";
constexpr std::string_view kResilient = "resilient steel studs";
constexpr std::string_view kChannels = "resilient channels";
constexpr std::string_view kSeparate = "staggered or twin frame, no studs";

constexpr std::array kBrickGroups = {kBrick};
constexpr std::array kConcreteGroups = {kConcreteName};
constexpr std::array kAeratedGroups = {kAerated};
constexpr std::array kSilicateGroups = {kSilicate};
constexpr std::array<std::string_view, 2> kBlockGroups = {"concrete block", "block, unsealed (leaks)"};
constexpr std::array<std::string_view, 2> kSheetGroups = {"thin sheets and boards",
                                                          "door leaf (leaks and seals not modelled)"};
constexpr std::array<std::string_view, 1> kTimberSlabGroups = {"bare CLT slab, airborne"};
constexpr std::array<std::string_view, 1> kSinglePaneGroups = {"single pane"};
constexpr std::array<std::string_view, 1> kLaminatedGroups = {"laminated pane"};
constexpr std::array<std::string_view, 1> kUnitGroups = {"insulating unit (cavity < 35 mm)"};
constexpr std::array<std::string_view, 1> kWindowGroups = {"double window (cavity >= 40 mm)"};
constexpr std::array<std::string_view, 1> kCavityWallGroups = {"masonry cavity wall"};
constexpr std::array kWoodGroups = {kWood};
constexpr std::array kSteelGroups = {kSteel};
constexpr std::array kResilientGroups = {kResilient};
constexpr std::array kChannelGroups = {kChannels};
constexpr std::array kSeparateGroups = {kSeparate};
constexpr std::array kStudGroups = {kWood, kSteel, kResilient};
constexpr std::array kConnectedGroups = {kWood, kSteel, kResilient, kChannels};
constexpr std::array kUnconnectedGroups = {kResilient, kChannels, kSeparate};
constexpr std::array kBoardGroups = {kWood, kSteel, kResilient, kChannels, kSeparate};
constexpr std::array<std::string_view, 2> kLiningGroups = {"lining, one side",
                                                           "lining, both sides (chained)"};
constexpr std::array<std::string_view, 1> kCeilingGroups = {"ceiling below a heavy floor"};
constexpr std::array<std::string_view, 1> kFloatingGroups = {"floating floor, airborne"};
constexpr std::array<std::string_view, 1> kFloatingTimberGroups = {
    "floating floor on CLT, airborne (off-label)"};
constexpr std::array<std::string_view, 1> kScreedGroups = {"screed on a mat, impact"};
constexpr std::array<std::string_view, 1> kCoveringGroups = {"covering or dry floor on concrete, impact"};
constexpr std::array<std::string_view, 1> kImpactTimberGroups = {"CLT, impact (off-label)"};

constexpr std::array kKinds = {
    ElementKindRow{ElementKind::kOther, "other", {1900}, Names{}},
    ElementKindRow{ElementKind::kBrickAndClay, kBrick, {1901}, kBrickGroups},
    ElementKindRow{ElementKind::kConcrete, kConcreteName, {1902}, kConcreteGroups},
    ElementKindRow{ElementKind::kAeratedConcrete, kAerated, {1903}, kAeratedGroups},
    ElementKindRow{ElementKind::kCalciumSilicate, kSilicate, {1904}, kSilicateGroups},
    ElementKindRow{ElementKind::kConcreteBlock, "concrete block", {1905}, kBlockGroups},
    ElementKindRow{ElementKind::kSheet, "thin sheets and boards", {1906}, kSheetGroups},
    ElementKindRow{ElementKind::kTimberSlab, "timber slab", {1907}, kTimberSlabGroups},
    ElementKindRow{ElementKind::kSinglePane, "single pane", {1908}, kSinglePaneGroups},
    ElementKindRow{ElementKind::kLaminatedPane, "laminated pane", {1909}, kLaminatedGroups},
    ElementKindRow{ElementKind::kInsulatingUnit, "insulating unit (cavity < 35 mm)", {1910}, kUnitGroups},
    ElementKindRow{ElementKind::kDoubleWindow, "double window (cavity >= 40 mm)", {1911}, kWindowGroups},
    ElementKindRow{ElementKind::kMasonryCavityWall, "masonry cavity wall", {1912}, kCavityWallGroups},
    ElementKindRow{ElementKind::kWoodStuds, kWood, {1913}, kWoodGroups},
    ElementKindRow{ElementKind::kSteelStuds, kSteel, {1914}, kSteelGroups},
    ElementKindRow{ElementKind::kResilientStuds, kResilient, {1915}, kResilientGroups},
    ElementKindRow{ElementKind::kResilientChannels, kChannels, {1916}, kChannelGroups},
    ElementKindRow{ElementKind::kSeparateFrames, kSeparate, {1917}, kSeparateGroups},
    ElementKindRow{ElementKind::kStuds, "studs of wood or steel", {1918}, kStudGroups},
    ElementKindRow{ElementKind::kConnectedBoards, "boards on studs or channels", {1919}, kConnectedGroups},
    ElementKindRow{
        ElementKind::kUnconnectedBoards, "boards without rigid connection", {1920}, kUnconnectedGroups},
    ElementKindRow{ElementKind::kBoards, "two leaves of boards", {1921}, kBoardGroups},
    ElementKindRow{ElementKind::kLining, "lining", {1922}, kLiningGroups},
    ElementKindRow{ElementKind::kCeiling, "ceiling below a heavy floor", {1923}, kCeilingGroups},
    ElementKindRow{ElementKind::kFloatingFloor, "floating floor, airborne", {1924}, kFloatingGroups},
    ElementKindRow{ElementKind::kFloatingFloorOnTimber,
                   "floating floor on timber, airborne",
                   {1925},
                   kFloatingTimberGroups},
    ElementKindRow{ElementKind::kImpactScreed, "screed on a mat, impact", {1926}, kScreedGroups},
    ElementKindRow{
        ElementKind::kImpactCovering, "covering or dry floor on concrete, impact", {1927}, kCoveringGroups},
    ElementKindRow{ElementKind::kImpactTimber, "timber floor, impact", {1928}, kImpactTimberGroups},
};

constexpr bool KindsStandInTheirOrder() {
  for (std::size_t i = 0; i < kKinds.size(); ++i) {
    if (static_cast<std::size_t>(kKinds.at(i).kind) != i) return false;
  }
  return true;
}
static_assert(KindsStandInTheirOrder());

constexpr double kMetresPerMillimetre = 0.001;
constexpr double kPascalPerGigapascal = 1e9;
constexpr double kHeavyLeaf_kg_m2 = 60.0;
constexpr double kThinnestTimberSlab_mm = 100.0;
constexpr double kThickestSheet_mm = 50.0;
constexpr double kThickestPane_mm = 30.0;
constexpr double kWidestUnit_mm =
    37.0;  // between the units measured, up to 35 mm, and the windows, from 40 mm
constexpr double kLightestScreed_kg_m2 = 60.0;
constexpr double kDensestTimber_kg_m3 = 900.0;
constexpr double kLaminatedLossFactor = 0.01;

/// Sheets of one material.
struct Sheet {
  double thickness_mm = 0.0;
  double density_kg_m3 = 0.0;
  double wave_speed_m_s = 0.0;
  double loss_factor = 0.0;

  double Mass() const { return thickness_mm * kMetresPerMillimetre * density_kg_m3; }
};
using Leaf = std::vector<Sheet>;

void Add(Leaf& leaf, const StructuralMaterial& slot, int multiplicity) {
  if (slot.thickness_mm <= 0.0 || slot.density_kg_m3 <= 0.0) return;
  leaf.push_back({.thickness_mm = slot.thickness_mm * multiplicity,
                  .density_kg_m3 = slot.density_kg_m3,
                  .wave_speed_m_s = std::sqrt(std::max(0.0, slot.youngs_modulus_gpa) * kPascalPerGigapascal /
                                              slot.density_kg_m3),
                  .loss_factor = slot.loss_factor});
}

Leaf LeafOf(const elements::LeafLayers& layers) {
  Leaf leaf;
  for (int i = 0; i < layers.count; ++i) {
    const auto& row = layers.rows.at(static_cast<std::size_t>(i));
    Add(leaf, row.slot, row.multiplicity);
  }
  return leaf;
}

Leaf LeafOf(const elements::SeaLeaf& side) {
  Leaf leaf;
  for (int i = 0; i < side.count; ++i) Add(leaf, side.rows.at(static_cast<std::size_t>(i)).slot, 1);
  return leaf;
}

double MassOf(const Leaf& leaf) {
  double mass = 0.0;
  for (const Sheet& sheet : leaf) mass += sheet.Mass();
  return mass;
}

double ThicknessOf(const Leaf& leaf) {
  double thickness = 0.0;
  for (const Sheet& sheet : leaf) thickness += sheet.thickness_mm;
  return thickness;
}

Sheet HeaviestOf(const Leaf& leaf) {
  Sheet heaviest;
  for (const Sheet& sheet : leaf) {
    if (sheet.Mass() > heaviest.Mass()) heaviest = sheet;
  }
  return heaviest;
}

constexpr bool Within(double value, double from, double below) { return value >= from && value < below; }

ElementKind MasonryKind(const Sheet& sheet) {
  const double rho = sheet.density_kg_m3;
  const double c = sheet.wave_speed_m_s;
  if (rho >= 2100.0 || (rho >= 1200.0 && (c >= 3000.0 || c < 1700.0))) return ElementKind::kConcrete;
  if (Within(rho, 300.0, 851.0) && Within(c, 1500.0, 1900.0)) return ElementKind::kAeratedConcrete;
  if (Within(rho, 650.0, 1400.0) && Within(c, 1900.0, 2100.0)) return ElementKind::kBrickAndClay;
  if (rho >= 1400.0 && Within(c, 2550.0, 3000.0)) return ElementKind::kBrickAndClay;
  if (rho >= 1600.0 && Within(c, 2400.0, 2550.0)) return ElementKind::kCalciumSilicate;
  if (rho >= 650.0 && Within(c, 1700.0, 2550.0)) return ElementKind::kConcreteBlock;
  return ElementKind::kOther;
}

ElementKind SingleLeafKind(const Leaf& leaf) {
  if (leaf.empty()) return ElementKind::kOther;
  const Sheet sheet = HeaviestOf(leaf);
  const double thickness_mm = ThicknessOf(leaf);
  if (Within(sheet.density_kg_m3, 2400.0, 2601.0) && sheet.wave_speed_m_s >= 4000.0 &&
      thickness_mm <= kThickestPane_mm) {
    return sheet.loss_factor >= kLaminatedLossFactor ? ElementKind::kLaminatedPane : ElementKind::kSinglePane;
  }
  const bool timber = sheet.density_kg_m3 < kDensestTimber_kg_m3 && sheet.wave_speed_m_s >= 3500.0;
  if (timber && thickness_mm > kThinnestTimberSlab_mm) return ElementKind::kTimberSlab;
  if (timber || thickness_mm <= kThickestSheet_mm) return ElementKind::kSheet;
  return MasonryKind(sheet);
}

bool IsGlass(const Leaf& leaf) {
  const ElementKind kind = SingleLeafKind(leaf);
  return kind == ElementKind::kSinglePane || kind == ElementKind::kLaminatedPane;
}

ElementKind KindOfFrame(elements::Frame frame) {
  switch (frame) {
    case elements::Frame::kWoodStuds:
      return ElementKind::kWoodStuds;
    case elements::Frame::kSteelStuds:
      return ElementKind::kSteelStuds;
    case elements::Frame::kResilientStuds:
      return ElementKind::kResilientStuds;
    case elements::Frame::kResilientChannels:
      return ElementKind::kResilientChannels;
    case elements::Frame::kSeparate:
    case elements::Frame::kUnframed:
      return ElementKind::kSeparateFrames;
    case elements::Frame::kNone:
      break;
  }
  return ElementKind::kBoards;
}

/// Whether a double wall of statistical energy analysis has connections at all.
bool HasConnections(const Setup& setup) {
  return ParseDecimal(setup.support_distance_text).value_or(0.0) > 0.0;
}

/// What the calculation says of how two light leaves are held.
ElementKind BoardsKind(const Setup& setup) {
  using enum Calculation;
  switch (*setup.calculation) {
    case kDoubleWallPlasterboardCommonStuds:
    case kDoubleWallPlasterboardSingleBoardSimpleFrame:
    case kDoubleWallPlasterboardMultipleBoardSimpleFrame:
    case kLightWallLineLine:
      return ElementKind::kStuds;
    case kLightWallLinePoint:
    case kLightWallPointPoint:
      return ElementKind::kResilientChannels;
    case kDoubleWallPlasterboardSeparateStuds:
    case kDoubleWallPlasterboardMultipleBoardDoubleFrame:
      return ElementKind::kSeparateFrames;
    case kLightWallIsolated:
      return ElementKind::kUnconnectedBoards;
    case kDoubleWallSeaPlasterboardPoint:
    case kDoubleWallSeaPlasterboardLine:
      return HasConnections(setup) ? ElementKind::kConnectedBoards : ElementKind::kSeparateFrames;
    default:
      return ElementKind::kBoards;
  }
}

ElementKind TwoLeavesKind(const Setup& setup, elements::Frame frame, const Leaf& first, const Leaf& second,
                          const std::string& depth_text) {
  if (first.empty() || second.empty()) return ElementKind::kOther;
  const std::optional<double> depth_mm = ParseDecimal(depth_text);
  if (!depth_mm || *depth_mm <= 0.0) return ElementKind::kOther;
  if (IsGlass(first) && IsGlass(second)) {
    return *depth_mm < kWidestUnit_mm ? ElementKind::kInsulatingUnit : ElementKind::kDoubleWindow;
  }
  if (elements::IsGlazing(*setup.calculation)) return ElementKind::kOther;
  const bool first_heavy = MassOf(first) >= kHeavyLeaf_kg_m2;
  const bool second_heavy = MassOf(second) >= kHeavyLeaf_kg_m2;
  if (first_heavy && second_heavy) return ElementKind::kMasonryCavityWall;
  if (first_heavy || second_heavy || *setup.calculation == Calculation::kDoubleWallSeaBrick) {
    return ElementKind::kOther;
  }
  if (frame != elements::Frame::kNone) return KindOfFrame(frame);
  return BoardsKind(setup);
}

bool IsTimberSlab(const Leaf& slab) {
  return !slab.empty() && HeaviestOf(slab).density_kg_m3 < kDensestTimber_kg_m3;
}

ElementKind ImpactKind(const Setup& setup) {
  if (IsTimberSlab(LeafOf(setup.leaf1))) return ElementKind::kImpactTimber;
  return MassOf(LeafOf(setup.leaf2)) >= kLightestScreed_kg_m2 ? ElementKind::kImpactScreed
                                                              : ElementKind::kImpactCovering;
}

}  // namespace

std::span<const ElementKindRow> ElementKinds() { return kKinds; }

const ElementKindRow& RowOf(ElementKind kind) { return kKinds.at(static_cast<std::size_t>(kind)); }

ElementKind KindOf(const Setup& setup, elements::Frame frame) {
  if (!setup.calculation) return ElementKind::kOther;
  switch (elements::RowOf(*setup.calculation).family) {
    case Family::kSingle:
      return SingleLeafKind(LeafOf(setup.leaf1));
    case Family::kSeaSingle:
      return SingleLeafKind(LeafOf(setup.sea_leaf1));
    case Family::kDouble:
      if (*setup.calculation == Calculation::kFloorWithFloatingScreed) {
        return IsTimberSlab(LeafOf(setup.leaf1)) ? ElementKind::kFloatingFloorOnTimber
                                                 : ElementKind::kFloatingFloor;
      }
      [[fallthrough]];
    case Family::kSharp:
      return TwoLeavesKind(setup, frame, LeafOf(setup.leaf1), LeafOf(setup.leaf2), setup.cavity.depth_text);
    case Family::kSea:
      return TwoLeavesKind(setup, frame, LeafOf(setup.sea_leaf1), LeafOf(setup.sea_leaf2),
                           setup.sea_cavity.depth_text);
    case Family::kLining:
      return ElementKind::kLining;
    case Family::kCeiling:
      return ElementKind::kCeiling;
    case Family::kImpact:
      return ImpactKind(setup);
    case Family::kFacade:
      return ElementKind::kOther;
  }
  return ElementKind::kOther;
}

}  // namespace velmar::validation
