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

VELMAR_LANE_FUNCTION PlateLanes LanesOf(const double* frequencies_hz, const PlateSums& sums) {
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
bool IsUsual(const double* frequencies_hz, const Cavity& cavity) {
  constexpr double kLargest = 1e6;
  constexpr double kLargestPhase = 1000.0;
  const auto [lowest, highest] = std::minmax_element(frequencies_hz, frequencies_hz + kLanes);
  const double resistance = cavity.flow_resistivity_pa_s_m2;
  const double thickness = cavity.porous_thickness_m;
  const double phase = kTwoPi / kSpeedOfSound * *highest;
  if (!(*lowest > 1.0 && *highest < kLargest && resistance > 1.0 && resistance < kLargest)) return false;
  if (!(cavity.depth_m >= 0.0 && phase * cavity.depth_m < kLargest && thickness >= 0.0)) return false;
  // Attenuation and phase of the layer are at most 0.21 and 1.11 times (1 / x)^0.7 of the air's.
  const double smallest_x = std::min(1.0, kAirDensity * *lowest / resistance);
  return phase * thickness / smallest_x < kLargestPhase;
}

VELMAR_WIDE_VECTORS void FillMedium(const double* frequencies_hz, const Cavity& cavity, MediumLanes& lanes) {
  const double x_per_hz = kAirDensity / cavity.flow_resistivity_pa_s_m2;
  const double k_per_hz = kTwoPi / kSpeedOfSound;
  const double thickness = cavity.porous_thickness_m;
  const double depth = cavity.depth_m;
#pragma omp simd
  for (std::size_t lane = 0; lane < kLanes; ++lane) {
    const double f = frequencies_hz[lane];
    const PorousMedium medium = PorousMediumOf<LaneFunctions>(x_per_hz * f, k_per_hz * f * thickness);
    const LaneTurn turn = LaneSineCosine(k_per_hz * f * depth);
    lanes.impedance_real[lane] = medium.impedance_real;
    lanes.impedance_imag[lane] = medium.impedance_imag;
    lanes.tangent_real[lane] = medium.tangent_real;
    lanes.tangent_imag[lane] = medium.tangent_imag;
    lanes.cosine[lane] = turn.cosine;
    lanes.sine[lane] = turn.sine;
  }
}

void FillMediumOneByOne(const double* frequencies_hz, const Cavity& cavity, MediumLanes& lanes) {
  for (std::size_t lane = 0; lane < kLanes; ++lane) {
    const PorousMedium medium = FindPorousMedium(frequencies_hz[lane], cavity);
    const double kd = kTwoPi * frequencies_hz[lane] / kSpeedOfSound * cavity.depth_m;
    lanes.impedance_real[lane] = medium.impedance_real;
    lanes.impedance_imag[lane] = medium.impedance_imag;
    lanes.tangent_real[lane] = medium.tangent_real;
    lanes.tangent_imag[lane] = medium.tangent_imag;
    lanes.cosine[lane] = std::cos(kd);
    lanes.sine[lane] = std::sin(kd);
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

VELMAR_WIDE_VECTORS Lanes OnePlateTau(const Angles& angles, const double* frequencies_hz,
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

VELMAR_WIDE_VECTORS Lanes CavityTau(const Angles& angles, const double* frequencies_hz, const PlateSums& sums,
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
  const auto taus_of = [&](const double* frequencies) {
    if (plates.size() == 1) return OnePlateTau(kAngles, frequencies, sums);
    MediumLanes medium;
    IsUsual(frequencies, cavity) ? FillMedium(frequencies, cavity, medium)
                                 : FillMediumOneByOne(frequencies, cavity, medium);
    return CavityTau(kAngles, frequencies, sums, medium);
  };
  for (std::size_t first = 0; first < frequencies_hz.size(); first += kLanes) {
    const double* const block = frequencies_hz.data() + first;
    const std::size_t count = frequencies_hz.size() - first;
    if (count >= kLanes) {
      const Lanes lanes = taus_of(block);
      std::copy(lanes.begin(), lanes.end(), taus.data() + first);
      continue;
    }
    Lanes padded{};
    padded.fill(block[0]);
    std::copy_n(block, count, padded.begin());
    const Lanes lanes = taus_of(padded.data());
    std::copy_n(lanes.begin(), count, taus.data() + first);
  }
}

}  // namespace velmar::models
