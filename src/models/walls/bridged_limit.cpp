#include "models/walls/bridged_limit.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

#include "acoustics/constants.h"
#include "acoustics/logarithm.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::models {
namespace {

using acoustics::kBandCount;
using acoustics::kPi;
using acoustics::kSpeedOfSound;
using acoustics::Log10;
using acoustics::Spectrum;

/// The force impedance of a leaf along a line, and at a point.
double LineImpedance(double f, double mass_kg_m2, double critical_hz, double length_m) {
  return std::sqrt(f / critical_hz) * kSpeedOfSound * mass_kg_m2 * 2.0 * length_m;
}
double PointImpedance(double mass_kg_m2, double critical_hz) {
  return kSpeedOfSound * kSpeedOfSound * (4.0 / kPi) * (mass_kg_m2 / critical_hz);
}

double BridgedValue(const BridgedWall& wall, double f) {
  const double m1 = wall.leaf1_mass_kg_m2;
  const double m2 = wall.leaf2_mass_kg_m2;
  const double highest_critical = std::max(wall.leaf1_critical_hz, wall.leaf2_critical_hz);
  // The mass of the leaf that does not hold the highest critical frequency; of equals, the second holds it.
  const double x = wall.leaf2_critical_hz >= wall.leaf1_critical_hz ? m1 : m2;
  const double p1 = LineImpedance(f, m1, wall.leaf1_critical_hz, wall.dim_b_m);
  const double p2 = LineImpedance(f, m2, wall.leaf2_critical_hz, wall.dim_b_m);
  const double a1 = PointImpedance(m1, wall.leaf1_critical_hz);
  const double a2 = PointImpedance(m2, wall.leaf2_critical_hz);
  const auto coupling = [&](double own, double other) {
    return 20.0 * Log10((own + other) * x / ((m1 + m2) * own));
  };
  const double mass_law = 20.0 * Log10((m1 + m2) * f) - 48.0;
  const double spacing = Log10(wall.stud_distance_m * highest_critical);
  switch (wall.form) {
    case LightWallForm::kLineLine:
      return mass_law + 10.0 * spacing + coupling(p1, p2) - 18.0;
    case LightWallForm::kLinePoint:
      return mass_law + 20.0 * spacing + coupling(p1, a2) - 45.0;
    case LightWallForm::kPointPoint:
      return mass_law + 20.0 * spacing + coupling(a1, a2) - 45.0;
    case LightWallForm::kIsolated:
    case LightWallForm::kInsulatingUnit:
      break;
  }
  throw std::invalid_argument("the leaves of this form are not connected");
}

}  // namespace

bool IsConnected(LightWallForm form) {
  return form == LightWallForm::kLineLine || form == LightWallForm::kLinePoint ||
         form == LightWallForm::kPointPoint;
}

Spectrum BridgedValues(const BridgedWall& wall) {
  if (!(wall.stud_distance_m > 0.0)) {
    throw ArithmeticFailure(kZeroStudDistanceRow,
                            "the stud distance is " + std::to_string(wall.stud_distance_m) + " m");
  }
  if (!(wall.dim_b_m > 0.0)) {
    throw ArithmeticFailure(kZeroDimensionRow, "the dimension is " + std::to_string(wall.dim_b_m) + " m");
  }
  Spectrum bridged{};
  for (std::size_t band = 0; band < kBandCount; ++band) {
    bridged[band] = RequireFinite(BridgedValue(wall, acoustics::BandCentre(band)), "a bridged value");
  }
  return bridged;
}

Spectrum LimitByBridges(const Spectrum& unbridged, const Spectrum& bridged, std::size_t peak_band) {
  Spectrum limited = unbridged;
  const double above_peak = unbridged.at(peak_band) - bridged.at(peak_band);
  bool lowered = false;
  bool restored = false;
  std::size_t first_lowered = 0;
  for (std::size_t band = 0; band < peak_band; ++band) {
    if (bridged[band] < limited[band]) {
      if (!lowered) first_lowered = band;
      lowered = true;
      limited[band] = bridged[band];
    } else if (band > 1 && lowered && !restored) {
      limited[band - 1] = bridged[band - 2] + 1.0;
      restored = true;
    }
  }
  for (std::size_t band = peak_band; band < kBandCount; ++band) limited[band] -= above_peak;

  // The band before the first lowered one, from the second band on.
  if (lowered && first_lowered > 1) {
    const std::size_t before = first_lowered - 1;
    limited[before] = (limited[before - 1] + limited[before + 1]) / 2.0;
  }
  return limited;
}

}  // namespace velmar::models
