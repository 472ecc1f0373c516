#include "models/sea/plate_radiation.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "acoustics/constants.h"
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
void FillEdgeModes(const RadiationFormula& formula, std::size_t last_hz, HzSpectrum& efficiency) {
  const HzSpectrum& roots = RootsOfHz();
  const double per_hz = 1.0 / formula.critical_frequency_hz;
  const double per_root = 1.0 / std::sqrt(formula.critical_frequency_hz);
  for (std::size_t f = 1; f <= last_hz; ++f) {
    const double wave_ratio = roots[f] * per_root;
    efficiency[f] = (1.0 + wave_ratio) / (1.0 - wave_ratio);
  }
  for (std::size_t f = 1; f <= last_hz; ++f) efficiency[f] = std::log(efficiency[f]);
  for (int f = 1; f <= static_cast<int>(last_hz); ++f) {
    const double ratio = static_cast<double>(f) * per_hz;
    const double wave_ratio = roots[f] * per_root;
    const double distance = 1.0 - ratio;
    const double edge = formula.edge * (efficiency[f] * distance + 2.0 * wave_ratio) * wave_ratio;
    const double corner = formula.corner * (1.0 - 2.0 * ratio) * distance;
    const double sum = (edge + corner) / (wave_ratio * distance * std::sqrt(distance));
    efficiency[f] = sum < 0.0 ? 1.0 : sum;
  }
}

double Supersonic(const RadiationFormula& formula, std::size_t hz) {
  return 1.0 / std::sqrt(std::abs(1.0 - formula.critical_frequency_hz / static_cast<double>(hz)));
}

/// Whether the level of `left` is not above that of `right`. The levels are only formed where their rounding
/// could decide.
bool IsLevelNotAbove(double left, double right) {
  constexpr double kClose = 1e-12;
  if (std::abs(left - right) > kClose * right) return left < right;
  static const double kLn10 = std::log(10.0);
  return 10.0 * (std::log(left) / kLn10) <= 10.0 * (std::log(right) / kLn10);
}

/// The last frequency below coincidence, 0 to 6000 Hz.
std::size_t LastBelow(double frequency_hz) {
  if (frequency_hz > static_cast<double>(kHighestHz)) return kHighestHz;
  return static_cast<std::size_t>(std::max(0.0, std::ceil(frequency_hz) - 1.0));
}

std::size_t TakeLow(const RadiationFormula& formula, const HzSpectrum& edge_modes, HzSpectrum& efficiency) {
  std::size_t last = 0;
  const std::size_t end = LastBelow(formula.critical_frequency_hz / 2.0);
  for (std::size_t f = 1; f <= end; ++f) {
    const double low = formula.low * Square(static_cast<double>(f));
    if (edge_modes[f] > 0.0 && IsLevelNotAbove(low, edge_modes[f])) {
      efficiency[f] = low;
      last = f;
    }
  }
  return last;
}

std::size_t TakeEdgeModes(const RadiationFormula& formula, std::size_t after_hz, std::size_t below_hz,
                          const HzSpectrum& edge_modes, HzSpectrum& efficiency) {
  if (after_hz == kHighestHz) return kHighestHz;
  std::size_t last = 0;
  for (std::size_t f = after_hz + 1; f <= below_hz; ++f) {
    const double edge = edge_modes[f] > 0.0 ? edge_modes[f] : 1.0;
    if (IsLevelNotAbove(edge, formula.plateau)) {
      efficiency[f] = edge;
      last = f;
    }
  }
  return last;
}

std::size_t TakePlateau(const RadiationFormula& formula, std::size_t after_hz, std::size_t below_hz,
                        HzSpectrum& efficiency) {
  if (after_hz == kHighestHz) return kHighestHz;
  if (below_hz <= after_hz) return 0;
  std::fill(efficiency.begin() + static_cast<std::ptrdiff_t>(after_hz) + 1,
            efficiency.begin() + static_cast<std::ptrdiff_t>(below_hz) + 1, formula.plateau);
  return below_hz;
}

/// The plateau as far as supersonic radiation exceeds it, supersonic radiation beyond.
void TakeSupersonic(const RadiationFormula& formula, std::size_t after_hz, std::size_t below_hz,
                    HzSpectrum& efficiency) {
  if (after_hz == kHighestHz) return;
  std::size_t last = 0;
  for (std::size_t f = after_hz + 1; f <= kHighestHz; ++f) {
    if (IsLevelNotAbove(formula.plateau, Supersonic(formula, f))) {
      efficiency[f] = formula.plateau;
      last = f;
    } else if (f > below_hz + 1) {
      break;  // above coincidence the radiation only falls
    }
  }
  const std::size_t coincidence = std::max(last, below_hz) + 1;
  for (std::size_t f = last + 1; f < coincidence; ++f) efficiency[f] = Supersonic(formula, f);
  // Above coincidence it never falls below 1, which no cap lets through: any such number will do.
  for (std::size_t f = coincidence; f <= kHighestHz; ++f) efficiency[f] = 1.0;
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
  const std::size_t below_hz = LastBelow(critical_hz);
  FillEdgeModes(formula, below_hz, scratch);
  const std::size_t low_end = TakeLow(formula, scratch, efficiency);
  const std::size_t edge_end = TakeEdgeModes(formula, low_end, below_hz, scratch, efficiency);
  const std::size_t plateau_end = TakePlateau(formula, edge_end, below_hz, efficiency);
  TakeSupersonic(formula, plateau_end, below_hz, efficiency);
  const double cap = std::min(input.radiation_cap, kSingleWallRadiationCap);
  for (std::size_t f = 1; f <= kHighestHz; ++f) efficiency[f] = std::min(efficiency[f], cap);
  plate.critical_frequency_hz = critical_hz;
  plate.longitudinal_speed_m_s = speed;
  plate.surface_mass_kg_m2 = mass;
  plate.thickness_m = thickness;
  return plate;
}

}  // namespace velmar::models
