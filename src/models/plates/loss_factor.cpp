#include "models/plates/loss_factor.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "acoustics/constants.h"
#include "acoustics/logarithm.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::models {
namespace {

using acoustics::kAirImpedance;
using acoustics::kPi;
using acoustics::kSpeedOfSound;
using acoustics::kTwiceAirImpedance;

/// 10^(1/20): the radiation efficiency of the critical frequency holds up to this many times Fc.
constexpr double kAboveCritical = 1.1220184543019633;

/// Radiation of the sides of a plate at `x` = f / Fc.
double SideTerm(double x) {
  if (x >= 0.5) return 0.0;
  constexpr double kPiSquared = kPi * kPi;
  return 4.0 / (kPiSquared * kPiSquared) * (1.0 - 2.0 * x) / std::sqrt(x * (1.0 - x));
}

/// Radiation of the corners of a plate at `x` = f / Fc, up to one half.
double CornerTerm(double x) {
  const double a = std::sqrt(x);
  const double rest = 1.0 - x;
  return 1.0 / (4.0 * (kPi * kPi)) * (rest * std::log((1.0 + a) / (1.0 - a)) + 2.0 * a) /
         (rest * std::sqrt(rest));
}

double EfficiencyAbove(const LossTerms& terms, double frequency_hz) {
  const double sigma =
      std::min(1.0 / std::sqrt(1.0 - terms.critical_frequency_hz / frequency_hz), terms.sigma_cap);
  // What exceeds the critical efficiency falls to it, but not below 1.
  return sigma > terms.sigma_crit ? std::max(terms.sigma_crit, 1.0) : sigma;
}

}  // namespace

LossTerms FindLossTerms(double mass_kg_m2, double internal_loss_factor, double critical_frequency_hz,
                        const PlateDimensions& dimensions) {
  const auto [a, b] = dimensions;
  if (!(a > 0.0) || !(b > 0.0)) {
    throw ArithmeticFailure(kZeroDimensionRow,
                            "the dimensions are " + std::to_string(a) + " m and " + std::to_string(b) + " m");
  }
  if (!(mass_kg_m2 > 0.0)) {
    throw ArithmeticFailure(kZeroMassRow, "the surface mass is " + std::to_string(mass_kg_m2) + " kg/m²");
  }
  if (!(critical_frequency_hz > 0.0)) throw ArithmeticFailure("the critical frequency is not positive");

  LossTerms terms;
  terms.internal_loss_factor = internal_loss_factor;
  terms.mass_kg_m2 = mass_kg_m2;
  terms.critical_frequency_hz = critical_frequency_hz;
  terms.lambda_c_m = kSpeedOfSound / critical_frequency_hz;
  terms.perimeter_m = 2.0 * (a + b);
  terms.area_m2 = a * b;
  terms.short_side_m = a < b ? a : b;
  terms.sigma_cap = std::sqrt(b / terms.lambda_c_m) + std::sqrt(a / terms.lambda_c_m);
  terms.sigma_crit = 0.45 * std::sqrt(terms.perimeter_m / terms.lambda_c_m) *
                     std::pow(terms.short_side_m / std::max(a, b), 0.25);
  const double l = acoustics::Log10(960.0 / mass_kg_m2);
  const double decay = 5.7 + 5.7 * (l * l);
  terms.edge_loss = 2.0 * std::sqrt(critical_frequency_hz / 1000.0) * std::pow(10.0, -decay / 10.0);
  RequireFinite(terms.sigma_cap, "the radiation efficiency above the critical frequency");
  RequireFinite(terms.sigma_crit, "the radiation efficiency at the critical frequency");
  RequireFinite(terms.edge_loss, "the edge loss of a plate");
  return terms;
}

double RadiationBelowCritical(const LossTerms& terms, double frequency_hz) {
  const double x = frequency_hz / terms.critical_frequency_hz;
  const double sigma = terms.lambda_c_m * terms.lambda_c_m / terms.area_m2 *
                       (2.0 * SideTerm(x) + terms.perimeter_m / terms.lambda_c_m * CornerTerm(x));
  return std::min({sigma, 1.0, terms.sigma_crit});
}

double TotalLossFactor(const LossTerms& terms, double frequency_hz, double value_before) {
  const double fc = terms.critical_frequency_hz;
  double radiation = 0.0;
  if (frequency_hz <= fc / 2.0) {
    radiation = RadiationBelowCritical(terms, frequency_hz) * kTwiceAirImpedance;
  } else if (frequency_hz < fc * kAboveCritical) {
    radiation = terms.sigma_crit * kAirImpedance;
  } else if (frequency_hz > fc * kAboveCritical) {
    radiation = EfficiencyAbove(terms, frequency_hz) * kAirImpedance;
  } else {
    return value_before;
  }
  const double eta_radiation = radiation / (kPi * frequency_hz * terms.mass_kg_m2);
  const double eta_edge = kSpeedOfSound / (kPi * kPi * terms.area_m2 * std::sqrt(frequency_hz * fc)) *
                          terms.perimeter_m * terms.edge_loss;
  return terms.internal_loss_factor + eta_radiation + eta_edge;
}

std::vector<double> TotalLossFactors(const LossTerms& terms, std::span<const double> frequencies_hz) {
  std::vector<double> factors;
  factors.reserve(frequencies_hz.size());
  double value = 0.0;
  for (const double frequency_hz : frequencies_hz) {
    value = RequireFinite(TotalLossFactor(terms, frequency_hz, value), "the loss factor of a plate");
    factors.push_back(value);
  }
  return factors;
}

std::array<double, acoustics::kFineGridPoints> FineGridLossFactors(const LossTerms& terms) {
  std::array<double, acoustics::kFineGridPoints> factors{};
  double value = 0.0;
  for (std::size_t point = 0; point < factors.size(); ++point) {
    value = RequireFinite(TotalLossFactor(terms, acoustics::FineGridFrequency(point), value),
                          "the loss factor of a plate");
    factors[point] = value;
  }
  return factors;
}

}  // namespace velmar::models
