#include "models/sea/plate_radiation.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "acoustics/constants.h"
#include "foundation/lane_functions.h"
#include "foundation/rounding.h"
#include "foundation/wide_vectors.h"

namespace velmar::models {
namespace {

using acoustics::kPi;
using acoustics::kSpeedOfSound;
using acoustics::kTwoPi;

/// One whole spectrum of radiation formulas, free of the frequency.
struct RadiationFormula {
  double critical_frequency_hz = 0.0;
  double low = 0.0;      ///< times f²: below the first corner mode
  double corner = 0.0;   ///< weight of the corner modes
  double edge = 0.0;     ///< weight of the edge modes
  double plateau = 0.0;  ///< at coincidence; does not vary with the frequency
};

double Square(double x) { return x * x; }

/// Bending stiffness of a composite of two sheets, each given by thickness and modulus, N·m per metre. The
/// neutral axis is weighted by the moduli alone.
double CompositeStiffness(double h1, double e1, double h2, double e2) {
  const double axis = ((2.0 * h1 + h2) * e2 + h1 * e1) / (2.0 * (e1 + e2));
  return h2 * e2 * (h2 * h2 / 12.0 + Square(axis - (2.0 * h1 + h2) / 2.0)) +
         h1 * e1 * (h1 * h1 / 12.0 + Square(axis - h1 / 2.0));
}

double BendingStiffness(const std::array<SeaSheet, 3>& sheets) {
  const auto& [main, second, third] = sheets;
  const double stiffness = CompositeStiffness(main.thickness_m, main.youngs_modulus_pa, second.thickness_m,
                                              second.youngs_modulus_pa);
  if (!(third.thickness_m > 0.0)) return stiffness;
  const double below_m = main.thickness_m + second.thickness_m;
  const double modulus_below = 12.0 * stiffness / (below_m * below_m * below_m);
  return CompositeStiffness(below_m, modulus_below, third.thickness_m, third.youngs_modulus_pa);
}

RadiationFormula FormulaOf(const SeaPlateInput& input, double critical_frequency_hz) {
  const double a = input.length_a_m;
  const double b = input.length_b_m;
  const double area = a * b;
  const double wavelength = kSpeedOfSound / critical_frequency_hz;
  const double pi2 = kPi * kPi;
  return {.critical_frequency_hz = critical_frequency_hz,
          .low = 4.0 * area / Square(kSpeedOfSound),
          .corner = 2.0 * (wavelength * wavelength / area) * (8.0 / (pi2 * pi2)),
          .edge = 2.0 * (wavelength * (2.0 * a + 2.0 * b) / area) * (0.25 / pi2),
          .plateau = 2.0 * (std::sqrt(a / wavelength) + std::sqrt(b / wavelength))};
}

bool IsUsable(const RadiationFormula& formula) {
  const auto positive = [](double x) { return x > 0.0 && std::isfinite(x); };
  return positive(formula.critical_frequency_hz) && positive(formula.low) && positive(formula.corner) &&
         positive(formula.edge) && positive(formula.plateau);
}

/// Whether the formulas divide by zero at a whole frequency. Only the nearest one can be that close.
bool HasPoleOnGrid(double critical_frequency_hz) {
  const double nearest = RoundToEven(critical_frequency_hz);
  if (nearest < 1.0) return false;
  return std::sqrt(nearest / critical_frequency_hz) == 1.0 || critical_frequency_hz / nearest == 1.0;
}

/// Edge and corner radiation at 1 Hz to `last_hz`, all of them below coincidence. A negative efficiency
/// counts as 1.
VELMAR_WIDE_VECTORS
void FillEdgeModes(const RadiationFormula& formula, int last_hz, HzSpectrum& efficiency) {
  const HzSpectrum& roots = RootsOfHz();
  const double per_hz = 1.0 / formula.critical_frequency_hz;
  const double per_root = 1.0 / std::sqrt(formula.critical_frequency_hz);
#pragma omp simd
  for (int f = 1; f <= last_hz; ++f) {
    const double ratio = static_cast<double>(f) * per_hz;
    const double wave_ratio = roots[f] * per_root;
    const double distance = 1.0 - ratio;
    const double log = LaneLog((1.0 + wave_ratio) / (1.0 - wave_ratio));
    const double edge = formula.edge * (log * distance + 2.0 * wave_ratio) * wave_ratio;
    const double corner = formula.corner * (1.0 - 2.0 * ratio) * distance;
    const double sum = (edge + corner) / (wave_ratio * distance * std::sqrt(distance));
    efficiency[f] = sum < 0.0 ? 1.0 : sum;
  }
}

double Supersonic(const RadiationFormula& formula, int hz) {
  return 1.0 / std::sqrt(std::abs(1.0 - formula.critical_frequency_hz / static_cast<double>(hz)));
}

/// So near, as a share, that the rounding of the levels could decide which is above.
constexpr double kClose = 1e-12;

/// Whether the level of `left` is not above that of `right`. The levels are only formed where their rounding
/// could decide.
bool IsLevelNotAbove(double left, double right) {
  if (std::abs(left - right) > kClose * right) return left < right;
  static const double kLn10 = std::log(10.0);
  return 10.0 * (std::log(left) / kLn10) <= 10.0 * (std::log(right) / kLn10);
}

/// Takes `candidate` from `first_hz` to `last_hz` wherever its level is not above that of `limit`, nothing
/// elsewhere; both are functions of the frequency.
/// @return the last frequency at which it was taken, 0 when at none
template <typename Candidate, typename Limit>
VELMAR_LANE_FUNCTION int TakeUpTo(int first_hz, int last_hz, const Candidate& candidate, const Limit& limit,
                                  HzSpectrum& efficiency) {
  int last = 0;
  int close = 0;
#pragma omp simd reduction(max : last) reduction(| : close)
  for (int f = first_hz; f <= last_hz; ++f) {
    const double value = candidate(f);
    const double highest = limit(f);
    const bool is_taken = value < highest;
    close |= std::abs(value - highest) <= kClose * highest ? 1 : 0;
    efficiency[f] = is_taken ? value : 0.0;
    last = is_taken ? f : last;
  }
  if (close == 0) return last;
  last = 0;
  for (int f = first_hz; f <= last_hz; ++f) {
    const bool is_taken = limit(f) > 0.0 && IsLevelNotAbove(candidate(f), limit(f));
    efficiency[f] = is_taken ? candidate(f) : 0.0;
    if (is_taken) last = f;
  }
  return last;
}

/// The last frequency below coincidence, 0 to 6000 Hz.
int LastBelow(double frequency_hz) {
  if (frequency_hz > static_cast<double>(kLastHz)) return kLastHz;
  return static_cast<int>(std::max(0.0, std::ceil(frequency_hz) - 1.0));
}

VELMAR_WIDE_VECTORS
int TakeLow(const RadiationFormula& formula, const HzSpectrum& edge_modes, HzSpectrum& efficiency) {
  const auto low = [&formula](int f) { return formula.low * Square(static_cast<double>(f)); };
  const auto edge = [&edge_modes](int f) { return edge_modes[f]; };
  return TakeUpTo(1, LastBelow(formula.critical_frequency_hz / 2.0), low, edge, efficiency);
}

VELMAR_WIDE_VECTORS
int TakeEdgeModes(const RadiationFormula& formula, int after_hz, int below_hz, const HzSpectrum& edge_modes,
                  HzSpectrum& efficiency) {
  if (after_hz == kLastHz) return kLastHz;
  const auto edge = [&edge_modes](int f) { return edge_modes[f] > 0.0 ? edge_modes[f] : 1.0; };
  const auto plateau = [&formula](int) { return formula.plateau; };
  return TakeUpTo(after_hz + 1, below_hz, edge, plateau, efficiency);
}

int TakePlateau(const RadiationFormula& formula, int after_hz, int below_hz, HzSpectrum& efficiency) {
  if (after_hz == kLastHz) return kLastHz;
  if (below_hz <= after_hz) return 0;
  std::fill(efficiency.begin() + after_hz + 1, efficiency.begin() + below_hz + 1, formula.plateau);
  return below_hz;
}

/// The plateau as far as supersonic radiation exceeds it, supersonic radiation beyond.
void TakeSupersonic(const RadiationFormula& formula, int after_hz, int below_hz, HzSpectrum& efficiency) {
  if (after_hz == kLastHz) return;
  int last = 0;
  for (int f = after_hz + 1; f <= kLastHz; ++f) {
    if (IsLevelNotAbove(formula.plateau, Supersonic(formula, f))) {
      efficiency[f] = formula.plateau;
      last = f;
    } else if (f > below_hz + 1) {
      break;  // above coincidence the radiation only falls
    }
  }
  const int coincidence = std::max(last, below_hz) + 1;
  for (int f = last + 1; f < coincidence; ++f) efficiency[f] = Supersonic(formula, f);
  // Above coincidence it never falls below 1, which no cap lets through: any such number will do.
  for (int f = coincidence; f <= kLastHz; ++f) efficiency[f] = 1.0;
}

VELMAR_WIDE_VECTORS void LimitTo(double cap, HzSpectrum& efficiency) {
#pragma omp simd
  for (int f = 1; f <= kLastHz; ++f) efficiency[f] = efficiency[f] < cap ? efficiency[f] : cap;
}

}  // namespace

SeaPlate SeaPlateRadiation(const SeaPlateInput& input) {
  SeaPlate plate;
  const SeaSheet& main = input.sheets[0];
  double mass = 0.0;
  double thickness = 0.0;
  for (const SeaSheet& sheet : input.sheets) {
    mass += sheet.thickness_m * sheet.density_kg_m3;
    thickness += sheet.thickness_m;
  }
  const double speed = std::sqrt(main.youngs_modulus_pa /
                                 (main.density_kg_m3 * (1.0 - input.poissons_ratio * input.poissons_ratio)));
  const double stiffness = BendingStiffness(input.sheets);
  const double critical_hz = Square(kSpeedOfSound) / kTwoPi * std::sqrt(mass / stiffness);
  const RadiationFormula formula = FormulaOf(input, critical_hz);
  if (!std::isfinite(speed) || !IsUsable(formula)) {
    plate.fault = SeaPlateFault::kNoBendingWave;
    return plate;
  }
  if (HasPoleOnGrid(critical_hz)) {
    plate.fault = SeaPlateFault::kCoincidenceOnGrid;
    return plate;
  }

  HzSpectrum scratch;
  HzSpectrum& efficiency = plate.radiation_efficiency;
  const int below_hz = LastBelow(critical_hz);
  FillEdgeModes(formula, below_hz, scratch);
  const int low_end = TakeLow(formula, scratch, efficiency);
  const int edge_end = TakeEdgeModes(formula, low_end, below_hz, scratch, efficiency);
  const int plateau_end = TakePlateau(formula, edge_end, below_hz, efficiency);
  TakeSupersonic(formula, plateau_end, below_hz, efficiency);
  const double cap = std::min(input.radiation_cap, kSingleWallRadiationCap);
  LimitTo(cap, efficiency);
  plate.critical_frequency_hz = critical_hz;
  plate.longitudinal_speed_m_s = speed;
  plate.surface_mass_kg_m2 = mass;
  plate.thickness_m = thickness;
  return plate;
}

}  // namespace velmar::models
