#include "models/plates/diffuse_field.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "acoustics/constants.h"
#include "foundation/wide_vectors.h"

namespace velmar::models {
namespace {

using acoustics::kAirImpedance;
using acoustics::kPi;
using acoustics::kSpeedOfSound;
using acoustics::kTwiceAirImpedance;
using acoustics::kTwoPi;

constexpr std::size_t kLanes = 8;
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

  PlateLanes(const Lanes& frequencies_hz, const PlateSums& sums) {
    for (std::size_t lane = 0; lane < kLanes; ++lane) {
      const double omega = kTwoPi * frequencies_hz[lane];
      const double k = omega / kSpeedOfSound;
      const double k4_over_omega = (k * k) * (k * k) / omega;
      inertia[lane] = omega * sums.mass;
      stiffness[lane] = sums.bending * k4_over_omega;
      losses[lane] = sums.lossy_bending * k4_over_omega;
    }
  }
};

/// The cavity's impedance is (numerator_0 + cos numerator_1) / (denominator_0 + cos denominator_1), all
/// complex and free of the angle.
struct CavityLanes {
  Lanes numerator_0_real{}, numerator_0_imag{}, numerator_1_real{}, numerator_1_imag{};
  Lanes denominator_0_real{}, denominator_0_imag{}, denominator_1_real{}, denominator_1_imag{};

  CavityLanes(const Lanes& frequencies_hz, const Cavity& cavity) {
    for (std::size_t lane = 0; lane < kLanes; ++lane) {
      const PorousMedium medium = FindPorousMedium(frequencies_hz[lane], cavity);
      const double zr = medium.impedance_real;
      const double zi = medium.impedance_imag;
      const double tr = medium.tangent_real;
      const double ti = medium.tangent_imag;
      const double kd = kTwoPi * frequencies_hz[lane] / kSpeedOfSound * cavity.depth_m;
      const double c = -std::cos(kd);
      const double s = std::sin(kd);
      const double p = (zr * tr - zi * ti) * s;
      const double q = (zr * ti + zi * tr) * s;
      numerator_0_real[lane] = -c * zi * kAirImpedance;
      numerator_0_imag[lane] = c * zr * kAirImpedance;
      numerator_1_real[lane] = -(q * zr + p * zi) * kAirImpedance;
      numerator_1_imag[lane] = (p * zr - q * zi) * kAirImpedance;
      denominator_0_real[lane] = -c * tr;
      denominator_0_imag[lane] = -c * ti;
      denominator_1_real[lane] = zr * s;
      denominator_1_imag[lane] = zi * s;
    }
  }
};

VELMAR_WIDE_VECTORS Lanes OnePlateTau(const Angles& angles, const PlateLanes& plates) {
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

VELMAR_WIDE_VECTORS Lanes CavityTau(const Angles& angles, const PlateLanes& plates,
                                    const CavityLanes& cavity) {
  constexpr double kThreeAirImpedances = 3.0 * kAirImpedance;
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
  for (std::size_t first = 0; first < frequencies_hz.size(); first += kLanes) {
    const std::size_t count = std::min(kLanes, frequencies_hz.size() - first);
    Lanes frequencies{};
    frequencies.fill(frequencies_hz[first]);
    std::copy_n(frequencies_hz.begin() + static_cast<std::ptrdiff_t>(first), count, frequencies.begin());
    const PlateLanes plate_lanes(frequencies, sums);
    const Lanes lanes = plates.size() == 1
                            ? OnePlateTau(kAngles, plate_lanes)
                            : CavityTau(kAngles, plate_lanes, CavityLanes(frequencies, cavity));
    std::copy_n(lanes.begin(), count, taus.begin() + static_cast<std::ptrdiff_t>(first));
  }
}

}  // namespace velmar::models
