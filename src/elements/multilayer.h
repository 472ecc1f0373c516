#pragma once

#include <array>
#include <string>

#include "elements/layers.h"

namespace velmar::elements {

/// What a row of a free list of layers is, in the order of `ComboTipoStrato`.
enum class StratumKind {
  kPlate = 0,               ///< "Lastra": lies loose on, or is screwed to, the plate before it
  kBondedPlate = 1,         ///< "Lastra incollata": glued to, or cast on, the plate before it
  kAir = 2,                 ///< "Aria"
  kFibre = 3,               ///< "Riempimento fibroso"
  kInterlayer = 4,          ///< "Intercalare PVB" of a laminated pane
  kAcousticInterlayer = 5,  ///< "Intercalare PVB acustico"
  kCore = 6,                ///< "Nucleo" of a sandwich panel
  kProfiledSheet = 7,       ///< "Lastra grecata"
};
inline constexpr int kStratumKindCount = 8;

/// Whether a row of `kind` lies between two leaves; all others are part of one.
constexpr bool IsBetweenLeaves(StratumKind kind) {
  return kind == StratumKind::kAir || kind == StratumKind::kFibre;
}
/// Whether a row of `kind` takes a structural material.
constexpr bool TakesSolid(StratumKind kind) {
  return kind == StratumKind::kPlate || kind == StratumKind::kBondedPlate || kind == StratumKind::kCore ||
         kind == StratumKind::kProfiledSheet;
}
/// Whether a row of `kind` is told by its thickness alone.
constexpr bool HasThicknessAlone(StratumKind kind) {
  return !TakesSolid(kind) && kind != StratumKind::kFibre;
}

/// What joins the leaves on both sides of a cavity, in the order of `ComboCollegamento`.
enum class CavityConnection {
  kNone = 0,
  kWoodStuds = 1,
  kSteelStuds = 2,
  kResilient = 3,  ///< resilient channels, acoustic studs, clips
  kPoints = 4,     ///< ties, hangers
};
inline constexpr int kCavityConnectionCount = 5;

/// One row. What its kind does not read stays as it was entered.
struct Stratum {
  StratumKind kind = StratumKind::kPlate;  ///< `ComboTipoStrato`
  LayerRow<StructuralMaterial> solid{};    ///< `ComboMatStrato`, `TextSpessoreMatStrato`, `ComboLastre`
  LayerRow<FibrousMaterial> fibre{};       ///< `ComboFibraStrato`, `TextSpessoreFibraStrato`
  /// Of the fibre's material, however thick the row is; 0 where the material names none.
  double flow_resistivity_pa_s_m2 = 0.0;
  std::string thickness_text = "50";  ///< `TextSpessoreStrato`, mm: of air or interlayer
  /// Of the first row of a cavity, for all of it: `ComboCollegamento`.
  CavityConnection connection = CavityConnection::kNone;
  std::string connection_text = "60";      ///< `TextCollegamento`: distance in cm, or points per m²
  std::string profile_height_text = "40";  ///< `TextAltezzaGreca`, mm
  std::string profile_pitch_text = "250";  ///< `TextPassoGreca`, mm

  bool operator==(const Stratum&) const = default;
};

/// A free list of layers from the source side to the receiving side.
struct Multilayer {
  static constexpr int kCapacity = 16;
  int count = 3;        ///< `ComboStrati`, 1 to 16
  bool framed = false;  ///< `CheckGuide`: the leaves stand in common tracks at head and floor
  std::array<Stratum, kCapacity> strata = [] {
    std::array<Stratum, kCapacity> rows{};
    rows[1].kind = StratumKind::kAir;
    return rows;
  }();

  /// Rows in use, 1 to 16.
  int Count() const { return count < 1 ? 1 : count > kCapacity ? kCapacity : count; }
  /// Whether row `index` is the first of a cavity.
  bool BeginsCavity(int index) const {
    const auto i = static_cast<std::size_t>(index);
    return IsBetweenLeaves(strata.at(i).kind) && (i == 0 || !IsBetweenLeaves(strata.at(i - 1).kind));
  }

  bool operator==(const Multilayer&) const = default;
};

/// Length of a wavy sheet over the length it covers: 1 + (pi H / 2 p)², for a sine of height H and pitch p
/// (Timoshenko and Woinowsky-Krieger 1959).
double DevelopedRatio(double profile_height_mm, double profile_pitch_mm);

}  // namespace velmar::elements
