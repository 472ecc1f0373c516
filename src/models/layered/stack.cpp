#include "models/layered/stack.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "foundation/lane_functions.h"
#include "foundation/wide_vectors.h"
#include "models/layered/air.h"

namespace velmar::models {
namespace {

using std::numbers::pi;
using Complex = std::complex<double>;

/// First bending mode of a bay, between simply supported (1.0) and clamped (2.27): found on measured
/// wood-stud walls. As a stiffness per area it lifts the mass-air-mass dip (Lin and Garrelick 1977; Bradley
/// and Birta 2001).
constexpr double kBayFixing = 1.2;

double BayFrequency(const std::vector<LeafProperties>& leaves, double bay_width_m) {
  if (!(bay_width_m > 0.0)) return 0.0;
  double weakest = std::numeric_limits<double>::infinity();
  for (const LeafProperties& leaf : leaves) {
    weakest = std::min(weakest, std::sqrt(leaf.free_bending_n_m / leaf.mass_kg_m2));
  }
  return kBayFixing * pi / 2.0 * weakest / (bay_width_m * bay_width_m);
}

WaveStage PlateStage(const LeafProperties& leaf, double frequency_hz, double azimuth_rad, double bay_hz) {
  const double omega = 2.0 * pi * frequency_hz;
  const Complex losses = Complex(1.0, LeafLossFactor(leaf, frequency_hz)) / omega;
  const double bay = bay_hz * bay_hz / (frequency_hz * frequency_hz);
  const double bending = PlateBendingAt(leaf, azimuth_rad);
  WaveStage stage;
  stage.kind = WaveStage::Kind::kPlate;
  stage.fixed = Complex(0.0, omega * leaf.mass_kg_m2) * (1.0 - bay * Complex(1.0, 0.05));
  stage.bending = bending * losses;
  stage.shear_m2 = bending / leaf.shear_n_m;
  if (leaf.composite_n_m > 0.0) {
    stage.kind = WaveStage::Kind::kCoredPlate;
    stage.composite = leaf.composite_n_m * losses;
    stage.core = CoreShearParameter(leaf, frequency_hz);
  }
  if (leaf.core_stiffness_n_m3 > 0.0) {
    stage.kind = WaveStage::Kind::kPartingPlate;
    stage.parting = PartingImpedance(leaf, frequency_hz, 0.0);
    stage.parting_bending = leaf.parting_bending_n_m * losses;
  }
  return stage;
}

WaveStage FluidStage(const CavityFill& fill, double frequency_hz, double edge_loss_factor) {
  const double omega = 2.0 * pi * frequency_hz;
  const EquivalentFluid fluid = FillFluid(fill, frequency_hz, edge_loss_factor);
  WaveStage stage;
  stage.kind = WaveStage::Kind::kFluid;
  stage.wavenumber_squared = omega * omega * fluid.density_kg_m3 / fluid.bulk_modulus_pa;
  stage.omega_density = omega * fluid.density_kg_m3;
  stage.thickness_m = fill.thickness_m;
  return stage;
}

/// The state of the recursion, one lane an angle.
struct Waves {
  Lanes kx2{};  ///< square of the trace wavenumber
  Lanes re{};   ///< impedance towards the receiving side
  Lanes im{};
  Lanes transmitted{};  ///< square of the pressure passed so far
};

/// Adds the plate impedance (zr, zi) of lane `l`.
inline void AddImpedance(Waves& waves, std::size_t l, double zr, double zi) {
  const double before = waves.re[l] * waves.re[l] + waves.im[l] * waves.im[l];
  waves.re[l] += zr;
  waves.im[l] += zi;
  waves.transmitted[l] *= before / (waves.re[l] * waves.re[l] + waves.im[l] * waves.im[l]);
}

VELMAR_WIDE_VECTORS void PassPlate(const WaveStage& stage, Waves& waves) {
  const double fixed_re = stage.fixed.real();
  const double fixed_im = stage.fixed.imag();
  const double bending_re = stage.bending.real();
  const double bending_im = stage.bending.imag();
  const double shear = stage.shear_m2;
#pragma omp simd
  for (std::size_t l = 0; l < kAngleLanes; ++l) {
    const double kx2 = waves.kx2[l];
    const double reach = kx2 * kx2 / (1.0 + shear * kx2);
    AddImpedance(waves, l, fixed_re + reach * bending_im, fixed_im - reach * bending_re);
  }
}

/// The impedance of a leaf with a core, into `zr` and `zi`.
VELMAR_WIDE_VECTORS void CoredImpedance(const WaveStage& stage, const Lanes& kx2_lanes, Lanes& zr,
                                        Lanes& zi) {
  const double fixed_re = stage.fixed.real();
  const double fixed_im = stage.fixed.imag();
  const double bending_re = stage.bending.real();
  const double bending_im = stage.bending.imag();
  const double composite_re = stage.composite.real();
  const double composite_im = stage.composite.imag();
  const double core_re = stage.core.real();
  const double core_im = stage.core.imag();
#pragma omp simd
  for (std::size_t l = 0; l < kAngleLanes; ++l) {
    const double kx2 = kx2_lanes[l];
    const double kx4 = kx2 * kx2;
    const double sum_re = kx2 + core_re;
    const double scale = 1.0 / (sum_re * sum_re + core_im * core_im);
    const double share_re = (core_re * sum_re + core_im * core_im) * scale;
    const double share_im = core_im * kx2 * scale;
    const double total_re = bending_re + composite_re * share_re - composite_im * share_im;
    const double total_im = bending_im + composite_re * share_im + composite_im * share_re;
    zr[l] = fixed_re + kx4 * total_im;
    zi[l] = fixed_im - kx4 * total_re;
  }
}

void PassCoredPlate(const WaveStage& stage, Waves& waves) {
  Lanes zr;
  Lanes zi;
  CoredImpedance(stage, waves.kx2, zr, zi);
#pragma omp simd
  for (std::size_t l = 0; l < kAngleLanes; ++l) AddImpedance(waves, l, zr[l], zi[l]);
}

/// Mean motion and parting of the two faces: p1 - p2 = Zb (v1 + v2)/2, (p1 + p2)/2 = Zd (v1 - v2).
void PassPartingPlate(const WaveStage& stage, Waves& waves) {
  Lanes zr;
  Lanes zi;
  CoredImpedance(stage, waves.kx2, zr, zi);
  for (std::size_t l = 0; l < kAngleLanes; ++l) {
    const Complex together(zr[l], zi[l]);
    const Complex behind(waves.re[l], waves.im[l]);
    const double kx4 = waves.kx2[l] * waves.kx2[l];
    const Complex parting = stage.parting - Complex(0.0, kx4) * stage.parting_bending;
    const Complex front_velocity =
        (2.0 * behind + 2.0 * parting + 0.5 * together) / (2.0 * parting - 0.5 * together);
    const Complex front_pressure = behind + 0.5 * together * (front_velocity + 1.0);
    const Complex front = front_pressure / front_velocity;
    waves.transmitted[l] *= std::norm(behind) / std::norm(front_pressure);
    waves.re[l] = front.real();
    waves.im[l] = front.imag();
  }
}

/// A fluid layer: no term of the recursion grows, however thick or dense the layer is.
VELMAR_WIDE_VECTORS void PassFluid(const WaveStage& stage, Waves& waves) {
  const double k2_re = stage.wavenumber_squared.real();
  const double k2_im = stage.wavenumber_squared.imag();
  const double rho_re = stage.omega_density.real();
  const double rho_im = stage.omega_density.imag();
  const double d = stage.thickness_m;
#pragma omp simd
  for (std::size_t l = 0; l < kAngleLanes; ++l) {
    // The root with a decaying wave: its imaginary part is never positive.
    constexpr double kNoWave = 1e-12;
    constexpr double kUnderflow = -350.0;
    const double x = k2_re - waves.kx2[l];
    const double size = std::sqrt(x * x + k2_im * k2_im);
    const double large = std::sqrt(0.5 * (size + std::abs(x))) + kNoWave;
    const double small = 0.5 * std::abs(k2_im) / large;
    const double kz_re = x >= 0.0 ? large : small;
    const double kz_decay = x >= 0.0 ? small : large;

    const double inverse = 1.0 / (kz_re * kz_re + kz_decay * kz_decay);
    const double z_re = (rho_re * kz_re - rho_im * kz_decay) * inverse;
    const double z_im = (rho_im * kz_re + rho_re * kz_decay) * inverse;

    const double exponent = -kz_decay * d;
    const double once = LaneExp(exponent < kUnderflow ? kUnderflow : exponent);
    const double twice = once * once;
    const LaneTurn turn = LaneSineCosine(2.0 * kz_re * d);
    const double e_re = twice * turn.cosine;
    const double e_im = -twice * turn.sine;

    const double t_re = waves.re[l];
    const double t_im = waves.im[l];
    const double plus_re = 1.0 + e_re;
    const double minus_re = 1.0 - e_re;
    const double n_re = t_re * plus_re - t_im * e_im + z_re * minus_re + z_im * e_im;
    const double n_im = t_re * e_im + t_im * plus_re + z_im * minus_re - z_re * e_im;
    const double d_re = t_re * minus_re + t_im * e_im + z_re * plus_re - z_im * e_im;
    const double d_im = t_im * minus_re - t_re * e_im + z_im * plus_re + z_re * e_im;
    const double n_norm = n_re * n_re + n_im * n_im;
    const double scale = 1.0 / (d_re * d_re + d_im * d_im);
    const double q_re = (n_re * d_re + n_im * d_im) * scale;
    const double q_im = (n_im * d_re - n_re * d_im) * scale;
    waves.transmitted[l] *= 4.0 * (t_re * t_re + t_im * t_im) * twice / n_norm;
    waves.re[l] = z_re * q_re - z_im * q_im;
    waves.im[l] = z_re * q_im + z_im * q_re;
  }
}

/// Carries the impedance of the receiving room through all stages.
Waves PassStages(const std::vector<WaveStage>& stages, double frequency_hz, const Lanes& cosines) {
  const double k0 = 2.0 * pi * frequency_hz / kLayeredSpeedOfSound;
  Waves waves;
  for (std::size_t l = 0; l < kAngleLanes; ++l) {
    waves.kx2[l] = k0 * k0 * (1.0 - cosines[l]) * (1.0 + cosines[l]);
    waves.re[l] = kLayeredAirImpedance / cosines[l];
    waves.im[l] = 0.0;
    waves.transmitted[l] = 1.0;
  }
  for (const WaveStage& stage : stages) {
    switch (stage.kind) {
      case WaveStage::Kind::kPlate:
        PassPlate(stage, waves);
        break;
      case WaveStage::Kind::kCoredPlate:
        PassCoredPlate(stage, waves);
        break;
      case WaveStage::Kind::kPartingPlate:
        PassPartingPlate(stage, waves);
        break;
      case WaveStage::Kind::kFluid:
        PassFluid(stage, waves);
        break;
    }
  }
  for (std::size_t l = 0; l < kAngleLanes; ++l) {
    const double sum_re = waves.re[l] + kLayeredAirImpedance / cosines[l];
    waves.transmitted[l] *= 4.0 * (waves.re[l] * waves.re[l] + waves.im[l] * waves.im[l]) /
                            (sum_re * sum_re + waves.im[l] * waves.im[l]);
  }
  return waves;
}

}  // namespace

LayeredStack::LayeredStack(const LayeredElement& element) : LayeredStack(element, 0, element.leaves.size()) {}

LayeredStack::LayeredStack(const LayeredElement& element, std::size_t first)
    : LayeredStack(element, first, 2) {}

LayeredStack::LayeredStack(const LayeredElement& element, std::size_t first, std::size_t count)
    : dimensions_{element.width_m, element.height_m} {
  for (std::size_t leaf = first; leaf < first + count; ++leaf) {
    leaves_.push_back(FindLeafProperties(element.leaves.at(leaf)));
    if (leaf + 1 == first + count) break;
    fills_.push_back(element.cavities.at(leaf).fills);
    edges_.push_back(element.cavities.at(leaf).edge);
  }
  bay_frequency_hz_ = BayFrequency(leaves_, element.bay_width_m);
}

bool LayeredStack::IsOrthotropic() const {
  return std::any_of(leaves_.begin(), leaves_.end(),
                     [](const LeafProperties& leaf) { return leaf.soft_bending_n_m > 0.0; });
}

void LayeredStack::FormStages(double frequency_hz, double azimuth_rad, std::vector<WaveStage>& stages) const {
  const double area = dimensions_.a_m * dimensions_.b_m;
  const double perimeter = 2.0 * (dimensions_.a_m + dimensions_.b_m);
  stages.clear();
  for (std::size_t leaf = leaves_.size(); leaf-- > 0;) {
    stages.push_back(PlateStage(leaves_[leaf], frequency_hz, azimuth_rad, bay_frequency_hz_));
    if (leaf == 0) break;
    const double edge_loss = EdgeLossFactor(edges_[leaf - 1], frequency_hz, area, perimeter);
    const std::vector<CavityFill>& fills = fills_[leaf - 1];
    for (auto fill = fills.rbegin(); fill != fills.rend(); ++fill) {
      stages.push_back(FluidStage(*fill, frequency_hz, edge_loss));
    }
  }
}

void LayeredStack::FindCoincidences(double frequency_hz, double azimuth_rad,
                                    std::vector<double>& cosines) const {
  const double k0 = 2.0 * pi * frequency_hz / kLayeredSpeedOfSound;
  for (const LeafProperties& leaf : leaves_) {
    const double sine2 = CoincidentWavenumberSquared(leaf, frequency_hz, azimuth_rad) / (k0 * k0);
    if (sine2 < 1.0) cosines.push_back(std::sqrt(1.0 - sine2));
  }
}

PlaneWaveResponse RespondToPlaneWave(const LayeredStack& stack, double frequency_hz, double cosine,
                                     double azimuth_rad) {
  std::vector<WaveStage> stages;
  stack.FormStages(frequency_hz, azimuth_rad, stages);
  Lanes cosines;
  cosines.fill(cosine);
  const Waves waves = PassStages(stages, frequency_hz, cosines);
  const Complex front(waves.re[0], waves.im[0]);
  const double air = kLayeredAirImpedance / cosine;
  return {(front - air) / (front + air), waves.transmitted[0]};
}

void DiffuseFieldIntegrand(const std::vector<WaveStage>& stages, double frequency_hz,
                           const SpatialWindow& window, const Lanes& cosines, Lanes& values) {
  const Waves waves = PassStages(stages, frequency_hz, cosines);
  const double edge = window.Edge();
  const double offset = window.Offset();
  const double slope = window.Slope();
  const double area_term = window.AreaTerm();
#pragma omp simd
  for (std::size_t l = 0; l < kAngleLanes; ++l) {
    const double cosine = cosines[l];
    const double inner = offset - slope * cosine;
    const double g = cosine >= edge ? cosine : inner;
    const double sigma = 1.0 / std::sqrt(g * g + area_term);
    values[l] = waves.transmitted[l] * sigma * 2.0 * cosine * cosine;
  }
}

}  // namespace velmar::models
