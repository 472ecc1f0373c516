#include "models/walls/light_leaf.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>

#include "acoustics/constants.h"
#include "acoustics/fine_grid.h"
#include "acoustics/logarithm.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/plates/plate_stack.h"

namespace velmar::models {
namespace {

using acoustics::kPi;
using acoustics::kTwiceAirImpedance;
using acoustics::kTwoPi;
using acoustics::Log10;

constexpr double kFirstFrequency = 50.0;
constexpr std::size_t kPoints = acoustics::kFineGridPoints - 1;
using Curve = std::array<double, kPoints>;

constexpr double kEmptyCavityLoss = 2.0;  ///< dB a leaf

double Frequency(std::size_t point) {
  return kFirstFrequency + acoustics::kFineGridStep * static_cast<double>(point);
}

/// The common logarithm of each frequency of the grid.
Curve LogFrequencies() {
  Curve logs{};
  for (std::size_t point = 0; point < kPoints; ++point) logs[point] = Log10(Frequency(point));
  return logs;
}

struct Sheet {
  double mass_kg_m2 = 0.0;
  double critical_frequency_hz = 0.0;
};

Sheet FindSheet(PlateLayer row) {
  row.multiplicity = 1;
  const PlateStack stack = SumLayers({&row, 1});
  return {stack.mass_kg_m2, CriticalFrequency(stack, stack.mass_kg_m2)};
}

double MassLaw(double f, double mass_kg_m2) { return 20.0 * Log10(f * mass_kg_m2) - 48.0; }

double AboveCritical(double f, const Sheet& sheet, double loss_factor) {
  const double fc = sheet.critical_frequency_hz;
  return 20.0 * Log10(f * kTwoPi * sheet.mass_kg_m2 / kTwiceAirImpedance) +
         10.0 * Log10(4.0 * loss_factor * kPi * f / (2.0 * (kPi * kPi) * fc));
}

/// The curve of one sheet. Frequency and sheet part ways in each logarithm: Lg(f x) = Lg f + Lg x.
Curve SheetCurve(const Sheet& sheet, double loss_factor, const Curve& log_f) {
  const double fc = sheet.critical_frequency_hz;
  const double half = MassLaw(fc / 2.0, sheet.mass_kg_m2);
  const double critical = AboveCritical(fc, sheet, loss_factor);
  const double slope = (critical - half) / (fc - fc / 2.0);
  const double intercept = half - slope * (fc / 2.0);
  const double mass_term = MassLaw(1.0, sheet.mass_kg_m2);
  const double above_term = AboveCritical(1.0, sheet, loss_factor);
  Curve curve{};
  for (std::size_t point = 0; point < kPoints; ++point) {
    const double f = Frequency(point);
    const double mass_law = 20.0 * log_f[point] + mass_term;
    double r = mass_law;
    if (f >= fc) {
      r = 30.0 * log_f[point] + above_term;
    } else if (f >= fc / 2.0) {
      r = slope * f + intercept;
    }
    curve[point] = std::min(r, mass_law);
  }
  return curve;
}

}  // namespace

LightLeaf FindLightLeaf(const LeafRows& leaf, double loss_factor, double resonance_hz,
                        CavityKind cavity_kind) {
  static const Curve kLogFrequencies = LogFrequencies();
  if (!(loss_factor > 0.0)) {
    throw ArithmeticFailure(kZeroLossFactorRow,
                            "the loss factor of a light leaf is " + std::to_string(loss_factor));
  }
  LightLeaf result;
  int sheets = 0;
  Curve curve{};
  Curve energies{};
  for (std::size_t row = 0; row < leaf.count; ++row) {
    const int n = leaf.rows.at(row).multiplicity;
    if (n < 1) continue;
    const Sheet sheet = FindSheet(leaf.rows.at(row));
    result.highest_critical_frequency_hz =
        std::max(result.highest_critical_frequency_hz, sheet.critical_frequency_hz);
    curve = SheetCurve(sheet, loss_factor, kLogFrequencies);
    for (std::size_t point = 0; point < kPoints; ++point) {
      energies[point] += n * std::pow(10.0, curve[point] / 10.0);
    }
    sheets += n;
  }
  for (std::size_t point = 0; point < kPoints; ++point) {
    if (sheets >= 2) curve[point] = 10.0 * Log10(energies[point]);
    if (cavity_kind == CavityKind::kEmpty && Frequency(point) > resonance_hz)
      curve[point] -= kEmptyCavityLoss;
  }
  result.bands = acoustics::AverageIntoBands(curve, kFirstFrequency);
  return result;
}

}  // namespace velmar::models
