#pragma once

#include <complex>
#include <variant>
#include <vector>

namespace velmar::models {

/// What a solid is made of, as far as its losses in a test opening depend on it.
enum class SolidKind {
  kOther,         ///< losses as given
  kPlasterboard,  ///< gypsum boards of any kind
  kGlass,
  kWood,  ///< wood, wood-based boards, plywood
  kMetal,
  kMasonry,  ///< masonry, concrete and the plaster on them
};

/// One solid layer of a leaf.
struct SolidLayer {
  double thickness_m = 0.0;        ///< h, above 0
  double density_kg_m3 = 0.0;      ///< rho, above 0
  double youngs_modulus_pa = 0.0;  ///< E, above 0
  double poissons_ratio = 0.0;     ///< nu, 0 to below 0.5
  double loss_factor = 0.0;        ///< eta of the material, 0 to 1; read where `kind` says so
  SolidKind kind = SolidKind::kOther;
};

/// How the layers of a plate hold together.
enum class LeafJoint {
  kBonded,    ///< glued, plastered, cast: one section
  kSlipping,  ///< screwed on one another: each layer bends by itself (Sharp 1973)
};

/// A plate of one or more solid layers. Its stiffness falls with the wavenumber by shear (Mindlin, without
/// rotary inertia): B / (1 + B k²/K), K = 5/6 h² / sum(h/G) when bonded, 5/6 sum(G h) when slipping.
struct LayeredPlate {
  std::vector<SolidLayer> layers{};  ///< at least one
  LeafJoint joint = LeafJoint::kBonded;
};

/// The viscoelastic sheet of a laminated pane: Gs = G (f / 1000 Hz)^n (1 + j tan delta), at about 20 °C.
struct Interlayer {
  double thickness_m = 0.00076;           ///< above 0
  double density_kg_m3 = 1070.0;          ///< above 0
  double shear_modulus_at_1khz_pa = 4e7;  ///< G, above 0
  double frequency_exponent = 0.25;       ///< n, 0 to 1
  double loss_tangent = 0.8;              ///< tan delta, 0 to 3
};

/// Ordinary and acoustic (soft) polyvinyl butyral. Exponents of the usual master curves, moduli and tangents
/// found on measured panes; two acoustic panes stand behind the soft sheet.
inline constexpr Interlayer kStandardInterlayer{};
inline constexpr Interlayer kAcousticInterlayer{0.00076, 1070.0, 1e6, 0.45, 0.9};

/// Two panes, equal or not, on a viscoelastic sheet (Ross, Kerwin and Ungar 1959, with the wavenumber of the
/// trace). Taken as a solid plate of the same thickness such a pane comes out some 4 dB too low.
struct LaminatedPane {
  SolidLayer outer{};
  Interlayer interlayer{};
  SolidLayer inner{};
};

/// The core of a sandwich panel.
struct SandwichCore {
  double thickness_m = 0.0;             ///< above 0
  double density_kg_m3 = 0.0;           ///< above 0
  double shear_modulus_pa = 0.0;        ///< G, above 0
  double compression_modulus_pa = 0.0;  ///< E across the thickness, above 0
  double loss_factor = 0.0;             ///< eta of the core, 0 to 1
};

/// Two sheets on a core that is bonded to both. Bending and shear as in the laminated pane, plus the mode in
/// which the sheets move against one another on the core's stiffness (Kurtze and Watters 1959; Dym and Lang
/// 1974; Moore and Lyon 1991). For unequal sheets that mode is that of their reduced mass.
struct SandwichPanel {
  SolidLayer outer{};
  SandwichCore core{};
  SolidLayer inner{};
};

/// A profiled or ribbed plate, given by its smeared values: B(phi) = (sqrt(B1) cos² phi + sqrt(B2) sin² phi)²
/// (Heckl 1960), phi the azimuth of the wave from the stiff direction.
struct OrthotropicPlate {
  double mass_kg_m2 = 0.0;         ///< above 0
  double bending_stiff_n_m = 0.0;  ///< B1, per metre width, above 0
  double bending_soft_n_m = 0.0;   ///< B2, above 0
  double loss_factor = 0.0;        ///< as given, 0 to 1
  SolidKind kind = SolidKind::kMetal;
};

/// A wavy sheet as an orthotropic plate: along the waves E I with I of a sine of height H and pitch p, across
/// them the sheet's own stiffness over its developed length (Timoshenko and Woinowsky-Krieger 1959).
/// @param sheet flat, as it would be unrolled
/// @param profile_height_m, profile_pitch_m H and p, both above 0
OrthotropicPlate CorrugatedSheet(const SolidLayer& sheet, double profile_height_m, double profile_pitch_m);

/// Whether the values are those of a pane: 2400 to 2600 kg/m³ with a wave speed sqrt(E/rho) from 4000 m/s; in
/// a leaf that is not heavy also from 2330 kg/m³ with 4200 m/s, which two plies with their interlayer between
/// them come to (44.2: 2376 kg/m³) and concrete does not.
/// @param heavy the leaf weighs kHeavyLeaf and more
bool IsGlass(double density_kg_m3, double youngs_modulus_pa, bool heavy);

/// The kind of a solid that is told by its values alone: glass as IsGlass says; every other layer of a heavy
/// leaf masonry; limp sheets below 900 m/s of no kind; metal from 2600 kg/m³, masonry from 1300 kg/m³; wood
/// below 900 kg/m³ with 3000 m/s and more; plasterboard the rest.
/// @param heavy the leaf weighs kHeavyLeaf and more
SolidKind KindOfSolid(double density_kg_m3, double youngs_modulus_pa, bool heavy);
inline constexpr double kHeavyLeaf = 60.0;  ///< kg/m²

/// One of up to four leaves.
using LayeredLeaf = std::variant<LayeredPlate, LaminatedPane, SandwichPanel, OrthotropicPlate>;

/// What of a leaf does not depend on the frequency.
struct LeafProperties {
  double mass_kg_m2 = 0.0;        ///< m
  double thickness_m = 0.0;       ///< 0 for an orthotropic plate
  double bending_n_m = 0.0;       ///< B of the plate, of the two sheets by themselves, or B1
  double shear_n_m = 0.0;         ///< K; infinite where shear plays no part
  double soft_bending_n_m = 0.0;  ///< B2 of an orthotropic plate, 0 for every other leaf
  double loss_factor = 0.0;       ///< eta without the part that depends on the frequency
  double masonry_share =
      0.0;  ///< 0 to 1, of the stiffness: how much of the edge losses of heavy walls counts

  double composite_n_m = 0.0;           ///< what the two sheets gain as one section; 0 without a core
  double shear_parameter_per_pa = 0.0;  ///< g k² / Gs, 1/(Pa·m²)
  double core_shear_modulus_pa = 0.0;   ///< at 1 kHz
  double core_exponent = 0.0;
  double core_loss = 0.0;
  double core_stiffness_n_m3 = 0.0;  ///< E / h across a stiff core; 0 where the sheets cannot part
  double parting_mass_kg_m2 = 0.0;   ///< reduced mass of the sheets with their share of the core
  double parting_bending_n_m = 0.0;  ///< reduced bending stiffness of the sheets

  double critical_frequency_hz = 0.0;  ///< of the free-wave formulas
  double lowest_critical_hz = 0.0;     ///< where coincidence begins; differs for an orthotropic plate
  double free_bending_n_m = 0.0;       ///< B of the free-wave formulas, at the critical frequency
};

/// eta of `layer` mounted in a test opening: the material's own or, where edges and joints rule, that of its
/// kind. Plasterboard 0.03, glass 0.05, wood at least 0.03, metal at least 0.02, masonry 0.03 above its
/// own: found on laboratory measurements together, not one by one.
double MountedLossFactor(SolidKind kind, double loss_factor);

/// The constants of `leaf`. The bonded section is taken about its neutral axis, the loss factors weighted
/// with the stiffness that each layer brings.
LeafProperties FindLeafProperties(const LayeredLeaf& leaf);

/// eta at `frequency_hz`: masonry adds m/(485 sqrt f), the losses to the laboratory (EN ISO 12354-1,
/// annex C).
double LeafLossFactor(const LeafProperties& leaf, double frequency_hz);

/// B in N·m of the plate, or of the two sheets by themselves, for a wave at `azimuth_rad` from the stiff
/// direction.
double PlateBendingAt(const LeafProperties& leaf, double azimuth_rad);

/// g k², 1/m²: how the core's shear at `frequency_hz` ties the sheets together.
std::complex<double> CoreShearParameter(const LeafProperties& leaf, double frequency_hz);

/// The dynamic bending stiffness in N·m, without the loss factor of the leaf, of a wave of `wavenumber_per_m`
/// along the plate at `azimuth_rad` from the stiff direction.
std::complex<double> DynamicBending(const LeafProperties& leaf, double frequency_hz, double wavenumber_per_m,
                                    double azimuth_rad = 0.0);

/// The square of the trace wavenumber in 1/m² that meets the free bending wave at `frequency_hz` in a leaf
/// held back by nothing; where coincidence lies, to within its own width.
double CoincidentWavenumberSquared(const LeafProperties& leaf, double frequency_hz, double azimuth_rad = 0.0);

/// Zp in Pa·s/m, pressure difference over velocity of a leaf whose faces move as one.
/// @param bay_frequency_hz of a bay of the frame that the leaf is fixed to; 0 for a leaf that hangs free
std::complex<double> LeafImpedance(const LeafProperties& leaf, double frequency_hz, double wavenumber_per_m,
                                   double bay_frequency_hz = 0.0, double azimuth_rad = 0.0);

/// Zd in Pa·s/m, mean pressure over the difference of the faces' velocities, of a leaf with a stiff core.
std::complex<double> PartingImpedance(const LeafProperties& leaf, double frequency_hz,
                                      double wavenumber_per_m);

}  // namespace velmar::models
