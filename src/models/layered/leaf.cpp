#include "models/layered/leaf.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "models/layered/air.h"

namespace velmar::models {
namespace {

using std::numbers::pi;
using Complex = std::complex<double>;

double Square(double x) { return x * x; }

double PlateModulus(const SolidLayer& layer) {
  return layer.youngs_modulus_pa / (1.0 - Square(layer.poissons_ratio));
}

double ShearModulus(const SolidLayer& layer) {
  return layer.youngs_modulus_pa / (2.0 * (1.0 + layer.poissons_ratio));
}

double OwnBending(const SolidLayer& layer) {
  return PlateModulus(layer) * layer.thickness_m * Square(layer.thickness_m) / 12.0;
}

double CriticalFrequency(double mass_kg_m2, double bending_n_m) {
  return Square(kLayeredSpeedOfSound) / (2.0 * pi) * std::sqrt(mass_kg_m2 / bending_n_m);
}

/// Distance of the neutral axis from the first face.
double NeutralAxis(const std::vector<SolidLayer>& layers) {
  double stretch = 0.0;
  double moment = 0.0;
  double below_m = 0.0;
  for (const SolidLayer& layer : layers) {
    const double weight = PlateModulus(layer) * layer.thickness_m;
    stretch += weight;
    moment += weight * (below_m + layer.thickness_m / 2.0);
    below_m += layer.thickness_m;
  }
  return moment / stretch;
}

LeafProperties PropertiesOf(const LayeredPlate& plate) {
  LeafProperties leaf;
  const bool bonded = plate.joint == LeafJoint::kBonded;
  const double axis_m = bonded ? NeutralAxis(plate.layers) : 0.0;
  double loss = 0.0;
  double masonry = 0.0;
  double yielding = 0.0;
  double shear = 0.0;
  for (const SolidLayer& layer : plate.layers) {
    const double centre_m = leaf.thickness_m + layer.thickness_m / 2.0;
    double bending = OwnBending(layer);
    if (bonded) bending += PlateModulus(layer) * layer.thickness_m * Square(centre_m - axis_m);
    leaf.mass_kg_m2 += layer.density_kg_m3 * layer.thickness_m;
    leaf.thickness_m += layer.thickness_m;
    leaf.bending_n_m += bending;
    loss += bending * MountedLossFactor(layer.kind, layer.loss_factor);
    if (layer.kind == SolidKind::kMasonry) masonry += bending;
    yielding += layer.thickness_m / ShearModulus(layer);
    shear += layer.thickness_m * ShearModulus(layer);
  }
  leaf.loss_factor = loss / leaf.bending_n_m;
  leaf.masonry_share = masonry / leaf.bending_n_m;
  leaf.shear_n_m = 5.0 / 6.0 * (bonded ? Square(leaf.thickness_m) / yielding : shear);
  leaf.critical_frequency_hz = CriticalFrequency(leaf.mass_kg_m2, leaf.bending_n_m);
  leaf.lowest_critical_hz = leaf.critical_frequency_hz;
  leaf.free_bending_n_m = leaf.bending_n_m;
  return leaf;
}

/// The frequency at which the free bending wave of a leaf with a core is as fast as sound in air, and its
/// stiffness there: half steps, because the stiffness depends on the frequency that it decides.
void FindCoredCoincidence(LeafProperties& leaf) {
  constexpr int kSteps = 60;
  double fc = CriticalFrequency(leaf.mass_kg_m2, leaf.bending_n_m + leaf.composite_n_m);
  double bending = leaf.bending_n_m;
  for (int step = 0; step < kSteps; ++step) {
    bending = DynamicBending(leaf, fc, 2.0 * pi * fc / kLayeredSpeedOfSound).real();
    fc = 0.5 * (fc + CriticalFrequency(leaf.mass_kg_m2, bending));
  }
  leaf.critical_frequency_hz = fc;
  leaf.lowest_critical_hz = fc;
  leaf.free_bending_n_m = bending;
}

/// What laminated panes and sandwich panels have in common: two sheets, `core_m` apart.
LeafProperties SheetsOnCore(const SolidLayer& outer, double core_m, double core_mass_kg_m2,
                            const SolidLayer& inner) {
  LeafProperties leaf;
  const double outer_stretch = PlateModulus(outer) * outer.thickness_m;
  const double inner_stretch = PlateModulus(inner) * inner.thickness_m;
  const double outer_bending = OwnBending(outer);
  const double inner_bending = OwnBending(inner);
  leaf.mass_kg_m2 =
      outer.density_kg_m3 * outer.thickness_m + core_mass_kg_m2 + inner.density_kg_m3 * inner.thickness_m;
  leaf.thickness_m = outer.thickness_m + core_m + inner.thickness_m;
  leaf.bending_n_m = outer_bending + inner_bending;
  leaf.shear_n_m = std::numeric_limits<double>::infinity();
  leaf.loss_factor = (outer_bending * MountedLossFactor(outer.kind, outer.loss_factor) +
                      inner_bending * MountedLossFactor(inner.kind, inner.loss_factor)) /
                     leaf.bending_n_m;
  const double distance_m = core_m + (outer.thickness_m + inner.thickness_m) / 2.0;
  leaf.composite_n_m = outer_stretch * inner_stretch / (outer_stretch + inner_stretch) * Square(distance_m);
  leaf.shear_parameter_per_pa = (1.0 / outer_stretch + 1.0 / inner_stretch) / core_m;
  return leaf;
}

LeafProperties PropertiesOf(const LaminatedPane& pane) {
  const Interlayer& sheet = pane.interlayer;
  LeafProperties leaf =
      SheetsOnCore(pane.outer, sheet.thickness_m, sheet.thickness_m * sheet.density_kg_m3, pane.inner);
  leaf.core_shear_modulus_pa = sheet.shear_modulus_at_1khz_pa;
  leaf.core_exponent = sheet.frequency_exponent;
  leaf.core_loss = sheet.loss_tangent;
  FindCoredCoincidence(leaf);
  return leaf;
}

LeafProperties PropertiesOf(const SandwichPanel& panel) {
  const SandwichCore& core = panel.core;
  const double core_mass = core.thickness_m * core.density_kg_m3;
  LeafProperties leaf = SheetsOnCore(panel.outer, core.thickness_m, core_mass, panel.inner);
  leaf.core_shear_modulus_pa = core.shear_modulus_pa;
  leaf.core_loss = core.loss_factor;
  leaf.core_stiffness_n_m3 = core.compression_modulus_pa / core.thickness_m;
  // A core that stretches evenly weighs as a sixth of its mass on each sheet.
  const double outer_mass = panel.outer.density_kg_m3 * panel.outer.thickness_m + core_mass / 6.0;
  const double inner_mass = panel.inner.density_kg_m3 * panel.inner.thickness_m + core_mass / 6.0;
  leaf.parting_mass_kg_m2 = outer_mass * inner_mass / (outer_mass + inner_mass);
  const double outer_bending = OwnBending(panel.outer);
  const double inner_bending = OwnBending(panel.inner);
  leaf.parting_bending_n_m = outer_bending * inner_bending / (outer_bending + inner_bending);
  FindCoredCoincidence(leaf);
  return leaf;
}

LeafProperties PropertiesOf(const OrthotropicPlate& plate) {
  LeafProperties leaf;
  leaf.mass_kg_m2 = plate.mass_kg_m2;
  leaf.bending_n_m = std::max(plate.bending_stiff_n_m, plate.bending_soft_n_m);
  leaf.soft_bending_n_m = std::min(plate.bending_stiff_n_m, plate.bending_soft_n_m);
  leaf.shear_n_m = std::numeric_limits<double>::infinity();
  leaf.loss_factor = MountedLossFactor(plate.kind, plate.loss_factor);
  leaf.masonry_share = plate.kind == SolidKind::kMasonry ? 1.0 : 0.0;
  leaf.free_bending_n_m = std::sqrt(leaf.bending_n_m * leaf.soft_bending_n_m);
  leaf.critical_frequency_hz = CriticalFrequency(leaf.mass_kg_m2, leaf.free_bending_n_m);
  leaf.lowest_critical_hz = CriticalFrequency(leaf.mass_kg_m2, leaf.bending_n_m);
  return leaf;
}

/// Of quasi-longitudinal waves in a bar, m/s; 0 without a density.
double WaveSpeed(double density_kg_m3, double youngs_modulus_pa) {
  return density_kg_m3 > 0.0 ? std::sqrt(std::max(0.0, youngs_modulus_pa) / density_kg_m3) : 0.0;
}

}  // namespace

double MountedLossFactor(SolidKind kind, double loss_factor) {
  switch (kind) {
    case SolidKind::kPlasterboard:
      return 0.03;
    case SolidKind::kGlass:
      return 0.05;
    case SolidKind::kWood:
      return std::max(loss_factor, 0.03);
    case SolidKind::kMetal:
      return std::max(loss_factor, 0.02);
    case SolidKind::kMasonry:
      return loss_factor + 0.03;
    case SolidKind::kOther:
      break;
  }
  return loss_factor;
}

OrthotropicPlate CorrugatedSheet(const SolidLayer& sheet, double profile_height_m, double profile_pitch_m) {
  const double slope = profile_height_m / profile_pitch_m;
  const double developed = 1.0 + Square(pi * slope / 2.0);
  const double amplitude_m = profile_height_m / 2.0;
  const double inertia_m3 =
      0.5 * Square(amplitude_m) * sheet.thickness_m * (1.0 - 0.81 / (1.0 + 2.5 * Square(slope / 2.0)));
  return {.mass_kg_m2 = sheet.density_kg_m3 * sheet.thickness_m * developed,
          .bending_stiff_n_m = sheet.youngs_modulus_pa * inertia_m3 + OwnBending(sheet),
          .bending_soft_n_m = OwnBending(sheet) / developed,
          .loss_factor = sheet.loss_factor,
          .kind = sheet.kind};
}

bool IsGlass(double density_kg_m3, double youngs_modulus_pa, bool heavy) {
  const double speed = WaveSpeed(density_kg_m3, youngs_modulus_pa);
  if (density_kg_m3 >= 2400.0) return density_kg_m3 <= 2600.0 && speed >= 4000.0;
  return !heavy && density_kg_m3 >= 2330.0 && speed >= 4200.0;
}

SolidKind KindOfSolid(double density_kg_m3, double youngs_modulus_pa, bool heavy) {
  const double rho = density_kg_m3;
  const double speed = WaveSpeed(rho, youngs_modulus_pa);
  if (IsGlass(rho, youngs_modulus_pa, heavy)) return SolidKind::kGlass;
  if (heavy) return SolidKind::kMasonry;
  if (speed < 900.0) return SolidKind::kOther;
  if (rho >= 2600.0) return SolidKind::kMetal;
  if (rho >= 1300.0) return SolidKind::kMasonry;
  if (rho < 900.0 && speed >= 3000.0) return SolidKind::kWood;
  return SolidKind::kPlasterboard;
}

LeafProperties FindLeafProperties(const LayeredLeaf& leaf) {
  return std::visit([](const auto& kind) { return PropertiesOf(kind); }, leaf);
}

double LeafLossFactor(const LeafProperties& leaf, double frequency_hz) {
  return leaf.loss_factor + leaf.masonry_share * leaf.mass_kg_m2 / (485.0 * std::sqrt(frequency_hz));
}

double PlateBendingAt(const LeafProperties& leaf, double azimuth_rad) {
  if (!(leaf.soft_bending_n_m > 0.0)) return leaf.bending_n_m;
  const double cosine = std::cos(azimuth_rad);
  const double share = Square(cosine);
  return Square(std::sqrt(leaf.bending_n_m) * share + std::sqrt(leaf.soft_bending_n_m) * (1.0 - share));
}

Complex CoreShearParameter(const LeafProperties& leaf, double frequency_hz) {
  const double shear = leaf.core_shear_modulus_pa * std::pow(frequency_hz / 1000.0, leaf.core_exponent);
  return leaf.shear_parameter_per_pa * shear * Complex(1.0, leaf.core_loss);
}

Complex DynamicBending(const LeafProperties& leaf, double frequency_hz, double wavenumber_per_m,
                       double azimuth_rad) {
  const double k2 = Square(wavenumber_per_m);
  const double bending = PlateBendingAt(leaf, azimuth_rad);
  Complex stiffness = bending / (1.0 + bending * k2 / leaf.shear_n_m);
  if (leaf.composite_n_m > 0.0) {
    const Complex g = CoreShearParameter(leaf, frequency_hz);
    stiffness += leaf.composite_n_m * g / (k2 + g);
  }
  return stiffness;
}

double CoincidentWavenumberSquared(const LeafProperties& leaf, double frequency_hz, double azimuth_rad) {
  const double inertia = Square(2.0 * pi * frequency_hz) * leaf.mass_kg_m2;
  if (leaf.composite_n_m > 0.0) {
    constexpr int kSteps = 40;
    double k2 = std::sqrt(inertia / (leaf.bending_n_m + leaf.composite_n_m));
    for (int step = 0; step < kSteps; ++step) {
      const double bending = DynamicBending(leaf, frequency_hz, std::sqrt(k2)).real();
      k2 = 0.5 * (k2 + std::sqrt(inertia / bending));
    }
    return k2;
  }
  const double bending = PlateBendingAt(leaf, azimuth_rad);
  const double sheared = inertia / leaf.shear_n_m;
  return 0.5 * (sheared + std::sqrt(Square(sheared) + 4.0 * inertia / bending));
}

Complex LeafImpedance(const LeafProperties& leaf, double frequency_hz, double wavenumber_per_m,
                      double bay_frequency_hz, double azimuth_rad) {
  const double omega = 2.0 * pi * frequency_hz;
  const double k4 = Square(Square(wavenumber_per_m));
  const Complex bending = DynamicBending(leaf, frequency_hz, wavenumber_per_m, azimuth_rad) *
                          Complex(1.0, LeafLossFactor(leaf, frequency_hz));
  const Complex bay = Square(bay_frequency_hz / frequency_hz) * Complex(1.0, 0.05);
  return Complex(0.0, omega * leaf.mass_kg_m2) *
         (1.0 - bending * k4 / (Square(omega) * leaf.mass_kg_m2) - bay);
}

Complex PartingImpedance(const LeafProperties& leaf, double frequency_hz, double wavenumber_per_m) {
  const double omega = 2.0 * pi * frequency_hz;
  const double k4 = Square(Square(wavenumber_per_m));
  const Complex stiffness = leaf.core_stiffness_n_m3 * Complex(1.0, leaf.core_loss) +
                            leaf.parting_bending_n_m * k4 * Complex(1.0, LeafLossFactor(leaf, frequency_hz));
  return Complex(0.0, omega * leaf.parting_mass_kg_m2) + stiffness / Complex(0.0, omega);
}

}  // namespace velmar::models
