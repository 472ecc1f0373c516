#include "models/plates/diffuse_field.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "acoustics/constants.h"
#include "foundation/lane_functions.h"
#include "foundation/wide_vectors.h"
#include "models/plates/porous_medium.h"

namespace velmar::models {
namespace {

using acoustics::kAirDensity;
using acoustics::kAirImpedance;
using acoustics::kPi;
using acoustics::kSpeedOfSound;
using acoustics::kTwiceAirImpedance;
using acoustics::kTwoPi;

constexpr std::size_t kLanes = kFrequencyLanes;
using Lanes = std::array<double, kLanes>;
using Frequencies = std::span<const double, kLanes>;  ///< Hz

constexpr std::size_t kAngleSteps = 20;
constexpr double kLimitingAngle = 0.8;  ///< of a right angle

/// The angles of the integration. The first, normal incidence, has no weight and is left out.
struct Angles {
  std::array<double, kAngleSteps> cosine{};
  std::array<double, kAngleSteps> sine4_cosine{};  ///< sin^4 cos
  std::array<double, kAngleSteps> weight{};        ///< of the trapezoidal rule, times (2 Z0)²
};

Angles MakeAngles() {
  Angles angles;
  const double step = kPi / (2.0 * kAngleSteps) * kLimitingAngle;
  for (std::size_t i = 0; i < kAngleSteps; ++i) {
    const double theta = step * static_cast<double>(i + 1);
    const double share = i + 1 == kAngleSteps ? 0.5 : 1.0;
    angles.cosine[i] = std::cos(theta);
    angles.sine4_cosine[i] = std::pow(std::sin(theta), 4.0) * angles.cosine[i];
    angles.weight[i] = share * step * std::sin(2.0 * theta) * kTwiceAirImpedance * kTwiceAirImpedance;
  }
  return angles;
}

/// The plates in series are one plate to the formulas: inertia, stiffness and losses add.
struct PlateSums {
  double mass = 0.0;
  double bending = 0.0;
  double lossy_bending = 0.0;
};

PlateSums SumPlates(std::span<const Plate> plates) {
  PlateSums sums;
  for (const Plate& plate : plates) {
    sums.mass += plate.mass_kg_m2;
    sums.bending += plate.bending_n_m;
    sums.lossy_bending += plate.bending_n_m * plate.loss_factor;
  }
  return sums;
}

/// What the plates' impedance takes from the frequency: inertia, stiffness and losses, without their angle.
struct PlateLanes {
  Lanes inertia{};
  Lanes stiffness{};
  Lanes losses{};
};

VELMAR_LANE_FUNCTION PlateLanes LanesOf(Frequencies frequencies_hz, const PlateSums& sums) {
  constexpr double kPerC = 1.0 / kSpeedOfSound;
  PlateLanes plates;
#pragma omp simd
  for (std::size_t lane = 0; lane < kLanes; ++lane) {
    const double omega = kTwoPi * frequencies_hz[lane];
    const double k4_over_omega = (omega * omega) * omega * ((kPerC * kPerC) * (kPerC * kPerC));
    plates.inertia[lane] = omega * sums.mass;
    plates.stiffness[lane] = sums.bending * k4_over_omega;
    plates.losses[lane] = sums.lossy_bending * k4_over_omega;
  }
  return plates;
}

/// What the cavity's impedance takes from the frequency.
struct MediumLanes {
  Lanes impedance_real{}, impedance_imag{}, tangent_real{}, tangent_imag{};
  Lanes cosine{}, sine{};  ///< of the phase through the air

  VELMAR_LANE_FUNCTION void Set(std::size_t lane, PorousMedium medium, LaneTurn air) {
    impedance_real[lane] = medium.impedance_real;
    impedance_imag[lane] = medium.impedance_imag;
    tangent_real[lane] = medium.tangent_real;
    tangent_imag[lane] = medium.tangent_imag;
    cosine[lane] = air.cosine;
    sine[lane] = air.sine;
  }
};

/// The functions of the porous layer side by side.
struct LaneFunctions {
  VELMAR_LANE_FUNCTION static double Log(double x) { return LaneLog(x); }
  VELMAR_LANE_FUNCTION static double Exp(double x) { return LaneExp(x); }
  VELMAR_LANE_FUNCTION static double Tan(double x) {
    const LaneTurn turn = LaneSineCosine(x);
    return turn.sine / turn.cosine;
  }
};

/// The arguments that LaneFunctions takes whatever the layer makes of them.
bool IsUsual(Frequencies frequencies_hz, const Cavity& cavity) {
  constexpr double kLargest = 1e6;
  constexpr double kLargestPhase = 1000.0;
  const auto [lowest, highest] = std::minmax_element(frequencies_hz.begin(), frequencies_hz.end());
  const double resistance = cavity.flow_resistivity_pa_s_m2;
  const double thickness = cavity.porous_thickness_m;
  const double phase = kTwoPi / kSpeedOfSound * *highest;
  if (!(*lowest > 1.0 && *highest < kLargest && resistance > 1.0 && resistance < kLargest)) return false;
  if (!(cavity.depth_m >= 0.0 && phase * cavity.depth_m < kLargest && thickness >= 0.0)) return false;
  // Attenuation and phase of the layer are at most 0.21 and 1.11 times (1 / x)^0.7 of the air's.
  const double smallest_x = std::min(1.0, kAirDensity * *lowest / resistance);
  return phase * thickness / smallest_x < kLargestPhase;
}

VELMAR_WIDE_VECTORS void FillMedium(Frequencies frequencies_hz, const Cavity& cavity, MediumLanes& lanes) {
  const double x_per_hz = kAirDensity / cavity.flow_resistivity_pa_s_m2;
  const double k_per_hz = kTwoPi / kSpeedOfSound;
  const double thickness = cavity.porous_thickness_m;
  const double depth = cavity.depth_m;
#pragma omp simd
  for (std::size_t lane = 0; lane < kLanes; ++lane) {
    const double f = frequencies_hz[lane];
    lanes.Set(lane, PorousMediumOf<LaneFunctions>(x_per_hz * f, k_per_hz * f * thickness),
              LaneSineCosine(k_per_hz * f * depth));
  }
}

void FillMediumOneByOne(Frequencies frequencies_hz, const Cavity& cavity, MediumLanes& lanes) {
  for (std::size_t lane = 0; lane < kLanes; ++lane) {
    const double kd = kTwoPi * frequencies_hz[lane] / kSpeedOfSound * cavity.depth_m;
    lanes.Set(lane, FindPorousMedium(frequencies_hz[lane], cavity), {std::sin(kd), std::cos(kd)});
  }
}

/// The cavity's impedance is (numerator_0 + cos numerator_1) / (denominator_0 + cos denominator_1), all
/// complex and free of the angle.
struct CavityLanes {
  Lanes numerator_0_real{}, numerator_0_imag{}, numerator_1_real{}, numerator_1_imag{};
  Lanes denominator_0_real{}, denominator_0_imag{}, denominator_1_real{}, denominator_1_imag{};
};

VELMAR_LANE_FUNCTION CavityLanes LanesOf(const MediumLanes& medium) {
  CavityLanes cavity;
#pragma omp simd
  for (std::size_t lane = 0; lane < kLanes; ++lane) {
    const double zr = medium.impedance_real[lane];
    const double zi = medium.impedance_imag[lane];
    const double tr = medium.tangent_real[lane];
    const double ti = medium.tangent_imag[lane];
    const double c = -medium.cosine[lane];
    const double s = medium.sine[lane];
    const double p = (zr * tr - zi * ti) * s;
    const double q = (zr * ti + zi * tr) * s;
    cavity.numerator_0_real[lane] = -c * zi * kAirImpedance;
    cavity.numerator_0_imag[lane] = c * zr * kAirImpedance;
    cavity.numerator_1_real[lane] = -(q * zr + p * zi) * kAirImpedance;
    cavity.numerator_1_imag[lane] = (p * zr - q * zi) * kAirImpedance;
    cavity.denominator_0_real[lane] = -c * tr;
    cavity.denominator_0_imag[lane] = -c * ti;
    cavity.denominator_1_real[lane] = zr * s;
    cavity.denominator_1_imag[lane] = zi * s;
  }
  return cavity;
}

VELMAR_WIDE_VECTORS Lanes OnePlateTau(const Angles& angles, Frequencies frequencies_hz,
                                      const PlateSums& sums) {
  const PlateLanes plates = LanesOf(frequencies_hz, sums);
  Lanes tau{};
  for (std::size_t i = 0; i < kAngleSteps; ++i) {
    const double cosine = angles.cosine[i];
    const double bend = angles.sine4_cosine[i];
    const double weight = angles.weight[i];
#pragma omp simd
    for (std::size_t lane = 0; lane < kLanes; ++lane) {
      const double u = kTwiceAirImpedance + plates.losses[lane] * bend;
      const double v = plates.inertia[lane] * cosine - plates.stiffness[lane] * bend;
      tau[lane] += weight / (u * u + v * v);
    }
  }
  return tau;
}

VELMAR_WIDE_VECTORS Lanes CavityTau(const Angles& angles, Frequencies frequencies_hz, const PlateSums& sums,
                                    const MediumLanes& medium) {
  constexpr double kThreeAirImpedances = 3.0 * kAirImpedance;
  const PlateLanes plates = LanesOf(frequencies_hz, sums);
  const CavityLanes cavity = LanesOf(medium);
  Lanes tau{};
  for (std::size_t i = 0; i < kAngleSteps; ++i) {
    const double cosine = angles.cosine[i];
    const double bend = angles.sine4_cosine[i];
    const double weight = angles.weight[i];
#pragma omp simd
    for (std::size_t lane = 0; lane < kLanes; ++lane) {
      const double u = kThreeAirImpedances + plates.losses[lane] * bend;
      const double v = plates.inertia[lane] * cosine - plates.stiffness[lane] * bend;
      const double dr = cavity.denominator_0_real[lane] + cosine * cavity.denominator_1_real[lane];
      const double di = cavity.denominator_0_imag[lane] + cosine * cavity.denominator_1_imag[lane];
      const double nr = cavity.numerator_0_real[lane] + cosine * cavity.numerator_1_real[lane];
      const double ni = cavity.numerator_0_imag[lane] + cosine * cavity.numerator_1_imag[lane];
      const double real = u * dr - v * di + cosine * nr;
      const double imag = u * di + v * dr + cosine * ni;
      tau[lane] += weight * (dr * dr + di * di) / (real * real + imag * imag);
    }
  }
  return tau;
}

}  // namespace

void DiffuseTau(std::span<const double> frequencies_hz, std::span<const Plate> plates, const Cavity& cavity,
                std::span<double> taus) {
  static const Angles kAngles = MakeAngles();
  std::fill(taus.begin(), taus.end(), 0.0);
  if (plates.empty() || plates.size() > kMostPlates) return;

  const PlateSums sums = SumPlates(plates);
  const auto taus_of = [&](Frequencies frequencies) {
    if (plates.size() == 1) return OnePlateTau(kAngles, frequencies, sums);
    MediumLanes medium;
    IsUsual(frequencies, cavity) ? FillMedium(frequencies, cavity, medium)
                                 : FillMediumOneByOne(frequencies, cavity, medium);
    return CavityTau(kAngles, frequencies, sums, medium);
  };
  std::size_t first = 0;
  for (; first + kLanes <= frequencies_hz.size(); first += kLanes)
    std::ranges::copy(taus_of(frequencies_hz.subspan(first).first<kLanes>()), taus.subspan(first).begin());
  if (first == frequencies_hz.size()) return;

  const std::span<const double> rest = frequencies_hz.subspan(first);
  Lanes padded{};
  padded.fill(rest.front());
  std::ranges::copy(rest, padded.begin());
  const Lanes lanes = taus_of(padded);
  std::copy_n(lanes.begin(), rest.size(), taus.subspan(first).begin());
}

}  // namespace velmar::models
