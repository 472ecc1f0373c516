#pragma once

#include <span>
#include <string_view>

#include "elements/measured_construction.h"
#include "elements/setup.h"
#include "foundation/message.h"

namespace velmar::validation {

/// What an element is, as far as the errors of models depend on it and a set-up tells it.
enum class ElementKind {
  kOther,  ///< nothing that was measured
  kBrickAndClay,
  kConcrete,
  kAeratedConcrete,
  kCalciumSilicate,
  kConcreteBlock,
  kSheet,
  kTimberSlab,
  kSinglePane,
  kLaminatedPane,
  kInsulatingUnit,
  kDoubleWindow,
  kMasonryCavityWall,
  kWoodStuds,
  kSteelStuds,
  kResilientStuds,
  kResilientChannels,
  kSeparateFrames,
  kStuds,              ///< boards on studs, whether of wood, of steel or resilient is not said
  kConnectedBoards,    ///< boards that studs or channels hold together, which of them is not said
  kUnconnectedBoards,  ///< boards calculated without a connection: separate frames, resilient studs, channels
  kBoards,             ///< two light leaves, nothing said of what holds them
  kLining,
  kCeiling,
  kFloatingFloor,
  kFloatingFloorOnTimber,
  kImpactScreed,
  kImpactCovering,
  kImpactTimber,
};

/// What is written of a kind.
struct ElementKindRow {
  ElementKind kind{};
  std::string_view id{};  ///< stored text: tables and JSON
  MessageRow name{};
  /// Names of the groups of measured constructions that a set-up of this kind may belong to.
  std::span<const std::string_view> groups{};
};

/// All kinds, in the order of ElementKind.
std::span<const ElementKindRow> ElementKinds();
const ElementKindRow& RowOf(ElementKind kind);

/// The kind of the element that `setup` describes.
///
/// A leaf is judged by its heaviest layer: density rho and wave speed c = sqrt(E / rho), never by a name.
///   glass: 2400 to 2600 kg/m³, c from 4000 m/s, up to 30 mm; laminated from a loss factor of 0.01 on
///   sheet: up to 50 mm, or timber (below 900 kg/m³, c from 3500 m/s) up to 100 mm
///   timber slab: timber above 100 mm
///   aerated concrete: 300 to 850 kg/m³, c 1500 to 1900 m/s
///   clay: bricks from 1400 kg/m³, c 2550 to 3000 m/s; hollow blocks 650 to 1400 kg/m³, c 1900 to 2100 m/s
///   calcium silicate: 1600 to 2100 kg/m³, c 2400 to 2550 m/s
///   concrete: from 2100 kg/m³, or from 1200 kg/m³ with c from 3000 m/s (planks) or below 1700 m/s (light)
///   concrete block: what is left between 650 and 2100 kg/m³ with c from 1700 to 2550 m/s
/// Two leaves: glass with less than 37 mm between is an insulating unit, with more a double window; two
/// leaves from 60 kg/m² on are a masonry cavity wall; two lighter ones are boards, and the calculation says
/// how they are held. Anything else is kOther.
///
/// @param frame what holds two light leaves, where more is known than the set-up says; kNone otherwise
ElementKind KindOf(const elements::Setup& setup, elements::Frame frame = elements::Frame::kNone);

}  // namespace velmar::validation
