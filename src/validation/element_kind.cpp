#include "validation/element_kind.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <vector>

#include "elements/parts.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "models/layered/leaf.h"

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
    ElementKindRow{ElementKind::kOther, "other", kKindOtherRow, Names{}},
    ElementKindRow{ElementKind::kBrickAndClay, kBrick, kKindBrickAndClayRow, kBrickGroups},
    ElementKindRow{ElementKind::kConcrete, kConcreteName, kKindConcreteRow, kConcreteGroups},
    ElementKindRow{ElementKind::kAeratedConcrete, kAerated, kKindAeratedConcreteRow, kAeratedGroups},
    ElementKindRow{ElementKind::kCalciumSilicate, kSilicate, kKindCalciumSilicateRow, kSilicateGroups},
    ElementKindRow{ElementKind::kConcreteBlock, "concrete block", kKindConcreteBlockRow, kBlockGroups},
    ElementKindRow{ElementKind::kSheet, "thin sheets and boards", kKindSheetRow, kSheetGroups},
    ElementKindRow{ElementKind::kTimberSlab, "timber slab", kKindTimberSlabRow, kTimberSlabGroups},
    ElementKindRow{ElementKind::kSinglePane, "single pane", kKindSinglePaneRow, kSinglePaneGroups},
    ElementKindRow{ElementKind::kLaminatedPane, "laminated pane", kKindLaminatedPaneRow, kLaminatedGroups},
    ElementKindRow{ElementKind::kInsulatingUnit, "insulating unit (cavity < 35 mm)", kKindInsulatingUnitRow,
                   kUnitGroups},
    ElementKindRow{ElementKind::kDoubleWindow, "double window (cavity >= 40 mm)", kKindDoubleWindowRow,
                   kWindowGroups},
    ElementKindRow{ElementKind::kMasonryCavityWall, "masonry cavity wall", kKindMasonryCavityWallRow,
                   kCavityWallGroups},
    ElementKindRow{ElementKind::kWoodStuds, kWood, kKindWoodStudsRow, kWoodGroups},
    ElementKindRow{ElementKind::kSteelStuds, kSteel, kKindSteelStudsRow, kSteelGroups},
    ElementKindRow{ElementKind::kResilientStuds, kResilient, kKindResilientStudsRow, kResilientGroups},
    ElementKindRow{ElementKind::kResilientChannels, kChannels, kKindResilientChannelsRow, kChannelGroups},
    ElementKindRow{ElementKind::kSeparateFrames, kSeparate, kKindSeparateFramesRow, kSeparateGroups},
    ElementKindRow{ElementKind::kStuds, "studs of wood or steel", kKindStudsRow, kStudGroups},
    ElementKindRow{ElementKind::kConnectedBoards, "boards on studs or channels", kKindConnectedBoardsRow,
                   kConnectedGroups},
    ElementKindRow{ElementKind::kUnconnectedBoards, "boards without rigid connection",
                   kKindUnconnectedBoardsRow, kUnconnectedGroups},
    ElementKindRow{ElementKind::kBoards, "two leaves of boards", kKindBoardsRow, kBoardGroups},
    ElementKindRow{ElementKind::kLining, "lining", kKindLiningRow, kLiningGroups},
    ElementKindRow{ElementKind::kCeiling, "ceiling below a heavy floor", kKindCeilingRow, kCeilingGroups},
    ElementKindRow{ElementKind::kFloatingFloor, "floating floor, airborne", kKindFloatingFloorRow,
                   kFloatingGroups},
    ElementKindRow{ElementKind::kFloatingFloorOnTimber, "floating floor on timber, airborne",
                   kKindFloatingFloorOnTimberRow, kFloatingTimberGroups},
    ElementKindRow{ElementKind::kImpactScreed, "screed on a mat, impact", kKindImpactScreedRow,
                   kScreedGroups},
    ElementKindRow{ElementKind::kImpactCovering, "covering or dry floor on concrete, impact",
                   kKindImpactCoveringRow, kCoveringGroups},
    ElementKindRow{ElementKind::kImpactTimber, "timber floor, impact", kKindImpactTimberRow,
                   kImpactTimberGroups},
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
  double youngs_modulus_pa = 0.0;
  double wave_speed_m_s = 0.0;
  double loss_factor = 0.0;

  double Mass() const { return thickness_mm * kMetresPerMillimetre * density_kg_m3; }
};
using Leaf = std::vector<Sheet>;

void Add(Leaf& leaf, const StructuralMaterial& slot, int multiplicity) {
  if (slot.thickness_mm <= 0.0 || slot.density_kg_m3 <= 0.0) return;
  const double modulus_pa = std::max(0.0, slot.youngs_modulus_gpa) * kPascalPerGigapascal;
  leaf.push_back({.thickness_mm = slot.thickness_mm * multiplicity,
                  .density_kg_m3 = slot.density_kg_m3,
                  .youngs_modulus_pa = modulus_pa,
                  .wave_speed_m_s = std::sqrt(modulus_pa / slot.density_kg_m3),
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
  const bool heavy = MassOf(leaf) >= models::kHeavyLeaf;
  if (models::IsGlass(sheet.density_kg_m3, sheet.youngs_modulus_pa, heavy) &&
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

ElementKind GlazingKind(double depth_mm) {
  return depth_mm < kWidestUnit_mm ? ElementKind::kInsulatingUnit : ElementKind::kDoubleWindow;
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
    return GlazingKind(*depth_mm);
  }
  if (elements::IsGlazing(*setup.calculation)) return ElementKind::kOther;
  const bool first_heavy = MassOf(first) >= models::kHeavyLeaf;
  const bool second_heavy = MassOf(second) >= models::kHeavyLeaf;
  if (first_heavy && second_heavy) return ElementKind::kMasonryCavityWall;
  if (first_heavy || second_heavy || *setup.calculation == Calculation::kDoubleWallSeaBrick) {
    return ElementKind::kOther;
  }
  if (frame != elements::Frame::kNone) return KindOfFrame(frame);
  return BoardsKind(setup);
}

/// A leaf of a free list; one with a core or a profile is none of the kinds that were measured.
struct ListedLeaf {
  Leaf sheets{};
  bool laminated = false;
  bool shaped = false;
};

ElementKind KindOfListedLeaf(const ListedLeaf& leaf) {
  if (leaf.shaped) return ElementKind::kOther;
  const ElementKind kind = SingleLeafKind(leaf.sheets);
  if (kind != ElementKind::kSinglePane && kind != ElementKind::kLaminatedPane)
    return leaf.laminated ? ElementKind::kOther : kind;
  return leaf.laminated ? ElementKind::kLaminatedPane : kind;
}

ElementKind KindOfConnection(elements::CavityConnection connection) {
  switch (connection) {
    case elements::CavityConnection::kNone:
      return ElementKind::kSeparateFrames;
    case elements::CavityConnection::kWoodStuds:
      return ElementKind::kWoodStuds;
    case elements::CavityConnection::kSteelStuds:
      return ElementKind::kSteelStuds;
    case elements::CavityConnection::kResilient:
      return ElementKind::kResilientChannels;
    case elements::CavityConnection::kPoints:
      break;
  }
  return ElementKind::kOther;
}

/// The leaves of a free list, with the depth between them and what connects the first two.
struct ListedElement {
  std::vector<ListedLeaf> leaves{};
  double depth_mm = 0.0;
  elements::CavityConnection connection{};
};

ListedElement ListedOf(const elements::Multilayer& list) {
  ListedElement element;
  for (const elements::Part& part : elements::PartsOfList(list)) {
    if (part.depth_mm) {
      element.depth_mm += *part.depth_mm;
      const auto& first = list.strata.at(static_cast<std::size_t>(part.stratum));
      if (list.BeginsCavity(part.stratum)) element.connection = first.connection;
      continue;
    }
    ListedLeaf& leaf = element.leaves.emplace_back();
    for (const elements::Layer& layer : part.layers) {
      const elements::StratumKind kind = *layer.stratum;
      leaf.laminated = leaf.laminated || !elements::TakesSolid(kind);
      leaf.shaped = leaf.shaped || kind == elements::StratumKind::kCore ||
                    kind == elements::StratumKind::kProfiledSheet;
      if (!elements::TakesSolid(kind)) continue;
      Add(leaf.sheets, list.strata.at(static_cast<std::size_t>(layer.row)).solid.slot, layer.sheets);
    }
  }
  return element;
}

ElementKind KindOfList(const elements::Multilayer& list) {
  const ListedElement element = ListedOf(list);
  if (element.leaves.size() == 1) return KindOfListedLeaf(element.leaves[0]);
  if (element.leaves.size() != 2 || !(element.depth_mm > 0.0)) return ElementKind::kOther;
  const auto is_pane = [](const ListedLeaf& leaf) {
    const ElementKind kind = KindOfListedLeaf(leaf);
    return kind == ElementKind::kSinglePane || kind == ElementKind::kLaminatedPane;
  };
  if (std::ranges::all_of(element.leaves, is_pane)) return GlazingKind(element.depth_mm);
  const auto is_light = [](const ListedLeaf& leaf) {
    return !leaf.shaped && !leaf.laminated && !leaf.sheets.empty() &&
           MassOf(leaf.sheets) < models::kHeavyLeaf;
  };
  return std::ranges::all_of(element.leaves, is_light) ? KindOfConnection(element.connection)
                                                       : ElementKind::kOther;
}

/// What carries a slab is its stiffest layer: a filling may well be heavier.
bool IsTimberSlab(const Leaf& slab) {
  const auto stiffness = [](const Sheet& sheet) {
    return sheet.density_kg_m3 * sheet.wave_speed_m_s * sheet.wave_speed_m_s * sheet.thickness_mm;
  };
  const auto stiffest = std::ranges::max_element(slab, {}, stiffness);
  return stiffest != slab.end() && stiffest->density_kg_m3 < kDensestTimber_kg_m3;
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
    case Family::kMultilayer:
      return KindOfList(setup.multilayer);
    case Family::kFacade:
      return ElementKind::kOther;
  }
  return ElementKind::kOther;
}

}  // namespace velmar::validation
