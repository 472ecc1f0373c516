#include "models/plates/free_wave_radiation.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace velmar::models {
namespace {

using std::numbers::pi;

double Square(double x) { return x * x; }

/// Edges and corners of a plate with many modes below its critical frequency (B.5). `lambda` is the root of
/// the frequency ratio, below 1.
double EdgeRadiation(double lambda, double critical_frequency_hz, const PlateDimensions& dimensions,
                     double speed_m_s) {
  const double l1 = dimensions.a_m;
  const double l2 = dimensions.b_m;
  const double rest = 1.0 - lambda * lambda;
  const double edges = (rest * std::log((1.0 + lambda) / (1.0 - lambda)) + 2.0 * lambda) /
                       (4.0 * Square(pi) * std::pow(rest, 1.5));
  double corners = 0.0;
  if (lambda * lambda <= 0.5) {
    corners = 8.0 * Square(speed_m_s) * (1.0 - 2.0 * lambda * lambda) /
              (Square(critical_frequency_hz) * Square(Square(pi)) * l1 * l2 * lambda * std::sqrt(rest));
  }
  return 2.0 * (l1 + l2) / (l1 * l2) * speed_m_s / critical_frequency_hz * edges + corners;
}

}  // namespace

double FreeWaveRadiation(double frequency_hz, double critical_frequency_hz, const PlateDimensions& dimensions,
                         double speed_of_sound_m_s) {
  const double f = frequency_hz;
  const double fc = critical_frequency_hz;
  const double l1 = dimensions.a_m;
  const double l2 = dimensions.b_m;
  const double above = f > fc ? 1.0 / std::sqrt(1.0 - fc / f) : std::numeric_limits<double>::infinity();
  const double piston = 4.0 * l1 * l2 * Square(f / speed_of_sound_m_s);
  const double first_mode_hz =
      Square(speed_of_sound_m_s) / (4.0 * fc) * (1.0 / Square(l1) + 1.0 / Square(l2));
  double sigma = 0.0;
  if (first_mode_hz <= fc / 2.0) {
    if (f >= fc) {
      sigma = above;
    } else {
      constexpr double kBelowOne = 1.0 - 1e-12;
      sigma = EdgeRadiation(std::min(std::sqrt(f / fc), kBelowOne), fc, dimensions, speed_of_sound_m_s);
      if (f < first_mode_hz) sigma = std::min(sigma, piston);
    }
  } else {
    sigma = std::sqrt(2.0 * pi * f * (l1 + l2) / (16.0 * speed_of_sound_m_s));
    if (f < fc) sigma = std::min(sigma, piston);
    if (f > fc) sigma = std::min(sigma, above);
  }
  return std::min(sigma, kHighestRadiationFactor);
}

double ForcedWaveRadiation(double frequency_hz, const PlateDimensions& dimensions,
                           double speed_of_sound_m_s) {
  const double l1 = std::max(dimensions.a_m, dimensions.b_m);
  const double l2 = std::min(dimensions.a_m, dimensions.b_m);
  const double k0 = 2.0 * pi * frequency_hz / speed_of_sound_m_s;
  const double shape = -0.964 - (0.5 + l2 / (pi * l1)) * std::log(l2 / l1) + 5.0 * l2 / (2.0 * pi * l1) -
                       1.0 / (4.0 * pi * l1 * l2 * Square(k0));
  return std::clamp(0.5 * (std::log(k0 * std::sqrt(l1 * l2)) - shape), 0.0, kHighestRadiationFactor);
}

}  // namespace velmar::models
