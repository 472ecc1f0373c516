#include "models/floors/impact_floor.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

#include "acoustics/constants.h"
#include "acoustics/logarithm.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/floors/floor_mass.h"
#include "models/plates/loss_factor.h"
#include "models/plates/plate_stack.h"

namespace velmar::models {
namespace {

using acoustics::kAirImpedance;
using acoustics::kPi;
using acoustics::Log10;

/// What field incidence takes from the mass law of normal incidence, dB.
constexpr double kFieldIncidence = 5.5;

/// The slab as one plate: what does not depend on the frequency.
struct Slab {
  LossTerms terms;               ///< its own edge loss is not used: floors have another one
  double edge_absorption = 0.0;  ///< of the edges, from the mass
};

/// Ln and R at one frequency.
struct BandValues {
  double impact_level_db = 0.0;
  double reduction_index_db = 0.0;
};

Slab DescribeSlab(const ImpactFloorInput& input, bool floating) {
  std::vector<PlateLayer> layers = input.bearing;
  if (!floating) layers.insert(layers.end(), input.screed.begin(), input.screed.end());
  const PlateStack stack = SumLayers(layers);
  const double mass = stack.mass_kg_m2;

  Slab slab;
  slab.terms =
      FindLossTerms(mass, SumLayers(input.bearing).internal_loss_factor, CriticalFrequency(stack, mass),
                    {.a_m = std::abs(input.side_a_m), .b_m = std::abs(input.side_b_m)});
  const double l = Log10(960.0 / mass);
  slab.edge_absorption = 0.43 * std::pow(10.0, -(5.7 - 5.7 * (l * l)) / 10.0);
  return slab;
}

double TotalLoss(const Slab& slab, double frequency_hz, double sigma) {
  const LossTerms& terms = slab.terms;
  const double radiation = kAirImpedance * sigma / (kPi * frequency_hz * terms.mass_kg_m2);
  const double edge = acoustics::kSpeedOfSound /
                      (kPi * kPi * terms.area_m2 * std::sqrt(frequency_hz * terms.critical_frequency_hz)) *
                      terms.perimeter_m * slab.edge_absorption;
  const double loss = terms.internal_loss_factor + radiation + edge;
  if (loss > 0.0) return loss;
  throw ArithmeticFailure(kInvalidLossFactorRow, "the loss factor is " + std::to_string(loss));
}

double MassLaw(const Slab& slab, double frequency_hz) {
  return 20.0 * Log10(frequency_hz * kPi * slab.terms.mass_kg_m2 / kAirImpedance);
}

double ImpactLevel(const Slab& slab, double frequency_hz, double sigma, double loss) {
  const double reverberation_time = 2.2 / (loss * frequency_hz);
  return 155.0 - 30.0 * Log10(slab.terms.mass_kg_m2) +
         10.0 * Log10(reverberation_time * sigma * frequency_hz / 1000.0);
}

/// R around the critical frequency runs straight over the logarithm of the frequency, from the mass law at
/// half the critical frequency to the dip at the critical frequency and on.
double ReductionAroundCritical(const Slab& slab, double frequency_hz, double loss) {
  const double fc = slab.terms.critical_frequency_hz;
  const double half = MassLaw(slab, fc / 2.0) - kFieldIncidence;
  const double dip = MassLaw(slab, fc) + 10.0 * Log10(2.0 * loss / kPi);
  const double slope = (dip - half) / Log10(2.0);
  return slope * Log10(frequency_hz) + (dip - slope * Log10(fc));
}

/// R above the critical frequency: the damped plate, never better than its mass.
double ReductionAboveCritical(const Slab& slab, double frequency_hz, double loss) {
  const double mass_law = MassLaw(slab, frequency_hz);
  const double damping = 10.0 * Log10(2.0 * loss * frequency_hz / (kPi * slab.terms.critical_frequency_hz));
  return std::min(mass_law - kFieldIncidence, mass_law + damping);
}

BandValues ValuesAt(const Slab& slab, double frequency_hz) {
  static const double kEndOfDip = std::pow(10.0, 1.0 / 20.0);
  const double fc = slab.terms.critical_frequency_hz;
  const bool below = frequency_hz <= fc / 2.0;
  // Above, the plate's own factor 1 / sqrt(1 - fc / f) and that of its corners would limit this one, but with
  // two sides a and b the corners' sqrt(a / lambda) + sqrt(b / lambda) is always the larger.
  const double sigma = below ? RadiationBelowCritical(slab.terms, frequency_hz) : slab.terms.sigma_crit;
  const double loss = TotalLoss(slab, frequency_hz, sigma);
  BandValues values{.impact_level_db = ImpactLevel(slab, frequency_hz, sigma, loss)};
  if (below) {
    values.reduction_index_db = MassLaw(slab, frequency_hz) - kFieldIncidence;
  } else if (frequency_hz <= fc * kEndOfDip) {
    values.reduction_index_db = ReductionAroundCritical(slab, frequency_hz, loss);
  } else {
    values.reduction_index_db = ReductionAboveCritical(slab, frequency_hz, loss);
  }
  return values;
}

/// The spectrum of raw floors of beams and hollow blocks found in the field: it depends on no property of the
/// floor.
double HollowBlockLevel(double frequency_hz) { return 15.0 * Log10(frequency_hz) + 30.0; }

/// Summed in millimetres, so that 100 mm and 200 mm stand on the limit of 0.3 m and not beside it.
double ThicknessOf(const std::vector<PlateLayer>& layers) {
  double thickness_mm = 0.0;
  for (const PlateLayer& layer : layers) thickness_mm += layer.multiplicity * layer.thickness_mm;
  return thickness_mm / 1000.0;
}

}  // namespace

ImpactFloorOutcome CalculateImpactFloor(const ImpactFloorInput& input) {
  const double stiffness = CombinedDynamicStiffness(input.resilient);
  const Slab slab = DescribeSlab(input, stiffness > 0.0);

  ImpactFloorOutcome outcome;
  outcome.improvement = FindScreedImprovement(SurfaceMass(input.screed), stiffness);
  outcome.critical_frequency_hz = slab.terms.critical_frequency_hz;
  outcome.loss_factor = slab.terms.internal_loss_factor;
  outcome.mass_kg_m2 = slab.terms.mass_kg_m2;
  outcome.bearing_thickness_m = ThicknessOf(input.bearing);
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    const double f = acoustics::BandCentre(band);
    const BandValues values = ValuesAt(slab, f);
    const bool fixed_level = input.variant == ImpactFloorVariant::kHollowBlockFixedLevel;
    outcome.impact_level_db[band] =
        RequireFinite(fixed_level ? HollowBlockLevel(f) : values.impact_level_db, "impact level");
    outcome.reduction_index_db[band] = RequireFinite(values.reduction_index_db, "reduction index");
  }
  return outcome;
}

}  // namespace velmar::models
