#include "models/monolithic/monolithic_element.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "models/plates/free_wave_radiation.h"

namespace velmar::models {
namespace {

using acoustics::BandCentre;
using acoustics::kBandCount;
using acoustics::Spectrum;
using std::numbers::pi;

constexpr double kSpeed = 340.0;
constexpr double kImpedance = 1.29 * kSpeed;

double Square(double x) { return x * x; }

/// An element that was accepted, with what does not depend on the frequency.
struct Wall {
  const MonolithicElement& element;
  PlateDimensions dimensions;
  double mass;
  double fc;
};

double RisingCriticalFrequency(const Wall& wall, double f) {
  return EffectiveCriticalFrequency(f, wall.fc, wall.element.thickness_m,
                                    wall.element.longitudinal_speed_m_s);
}

double LossFactor(const Wall& wall, const LaboratoryLosses&, std::size_t band, double) {
  return wall.element.internal_loss_factor + wall.mass / (485.0 * std::sqrt(BandCentre(band)));
}

double LossFactor(const Wall& wall, const InSituLosses& losses, std::size_t band, double sigma) {
  const double f = BandCentre(band);
  const double area = wall.dimensions.a_m * wall.dimensions.b_m;
  return wall.element.internal_loss_factor + 2.0 * kImpedance * sigma / (2.0 * pi * f * wall.mass) +
         kSpeed / (Square(pi) * area * std::sqrt(f * wall.fc)) * losses.perimeter_absorption_m;
}

double LossFactor(const Wall&, const GivenLosses& losses, std::size_t band, double) {
  return losses.total_loss_factor[band];
}

/// tau of formula B.2 before the plateau.
double ThinTransmission(const Wall& wall, const MonolithicSituation& situation, double f, double sigma,
                        double eta) {
  // A third of an octave about the nominal centre.
  static const double kHalfBand = std::pow(10.0, 0.05);
  const bool holds_coincidence = f / kHalfBand <= wall.fc && wall.fc <= f * kHalfBand;
  const double mass_law = Square(2.0 * kImpedance / (2.0 * pi * f * wall.mass));
  if (holds_coincidence) return mass_law * pi * Square(sigma) / (2.0 * eta);
  if (f > wall.fc) {
    const bool rises = situation.thick_wall == ThickWallForm::kEffectiveCriticalFrequency;
    const double fc = rises ? RisingCriticalFrequency(wall, f) : wall.fc;
    return mass_law * pi * fc * Square(sigma) / (2.0 * f * eta);
  }
  const double resonant = pi * wall.fc * Square(sigma) / (2.0 * f * eta);
  if (situation.resonant_only) return mass_law * resonant;
  const double forced =
      2.0 * ForcedWaveRadiation(f, wall.dimensions, kSpeed) / Square(1.0 - Square(f / wall.fc));
  return mass_law * (forced + resonant);
}

/// No transmission falls below this (formula B.10): the wall's own compression takes over.
double PlateauTransmission(const MonolithicElement& element, double eta) {
  const double ratio = 4.0 * kImpedance / (1.1 * element.density_kg_m3 * element.longitudinal_speed_m_s);
  return Square(ratio) * 0.02 / eta;
}

class Checker {
 public:
  /// A value that is not a number lies in no range.
  void Within(MonolithicField field, double value, double lowest, double highest) {
    if (refusal_ || (value >= lowest && value <= highest)) return;
    refusal_ = MonolithicRefusal{field, value, lowest, highest};
  }
  const std::optional<MonolithicRefusal>& Refusal() const { return refusal_; }

 private:
  std::optional<MonolithicRefusal> refusal_;
};

void Check(const LaboratoryLosses&, Checker&) {}

void Check(const InSituLosses& losses, Checker& checker) {
  checker.Within(MonolithicField::kPerimeterAbsorption, losses.perimeter_absorption_m, 0.0, 1000.0);
}

void Check(const GivenLosses& losses, Checker& checker) {
  for (const double eta : losses.total_loss_factor) {
    checker.Within(MonolithicField::kTotalLossFactor, eta, 1e-4, 10.0);
  }
}

std::optional<MonolithicRefusal> FindRefusal(const MonolithicElement& element,
                                             const MonolithicSituation& situation) {
  Checker checker;
  checker.Within(MonolithicField::kLength1, element.length1_m, 0.1, 100.0);
  checker.Within(MonolithicField::kLength2, element.length2_m, 0.1, 100.0);
  checker.Within(MonolithicField::kThickness, element.thickness_m, 0.001, 5.0);
  checker.Within(MonolithicField::kDensity, element.density_kg_m3, 10.0, 30000.0);
  checker.Within(MonolithicField::kLongitudinalSpeed, element.longitudinal_speed_m_s, 100.0, 10000.0);
  checker.Within(MonolithicField::kInternalLossFactor, element.internal_loss_factor, 1e-4, 1.0);
  checker.Within(MonolithicField::kCoatingMass, element.coating_mass_kg_m2, 0.0, 1000.0);
  std::visit([&](const auto& losses) { Check(losses, checker); }, situation.losses);
  return checker.Refusal();
}

}  // namespace

double EffectiveCriticalFrequency(double frequency_hz, double critical_frequency_hz, double thickness_m,
                                  double longitudinal_speed_m_s) {
  const double plateau_hz = longitudinal_speed_m_s / (5.5 * thickness_m);
  if (frequency_hz >= plateau_hz) {
    const double ratio = frequency_hz / plateau_hz;
    return 2.0 * critical_frequency_hz * ratio * ratio * ratio;
  }
  const double x = 4.05 * thickness_m * frequency_hz / longitudinal_speed_m_s;
  return critical_frequency_hz * (x + std::sqrt(1.0 + x * x));
}

MonolithicOutcome PredictMonolithic(const MonolithicElement& element, const MonolithicSituation& situation) {
  if (const auto refusal = FindRefusal(element, situation)) return *refusal;
  MonolithicPrediction prediction;
  const Wall wall{element,
                  {element.length1_m, element.length2_m},
                  element.thickness_m * element.density_kg_m3 + element.coating_mass_kg_m2,
                  Square(kSpeed) / (1.8 * element.longitudinal_speed_m_s * element.thickness_m)};
  prediction.surface_mass_kg_m2 = wall.mass;
  prediction.critical_frequency_hz = wall.fc;
  prediction.plateau_frequency_hz = element.longitudinal_speed_m_s / (5.5 * element.thickness_m);
  for (std::size_t band = 0; band < kBandCount; ++band) {
    const double f = BandCentre(band);
    const double sigma = FreeWaveRadiation(f, wall.fc, wall.dimensions, kSpeed);
    const double eta = std::visit([&](const auto& losses) { return LossFactor(wall, losses, band, sigma); },
                                  situation.losses);
    const double tau =
        std::max(ThinTransmission(wall, situation, f, sigma, eta), PlateauTransmission(element, eta));
    prediction.radiation_factor[band] = sigma;
    prediction.total_loss_factor[band] = eta;
    prediction.reduction_index_db[band] = std::max(0.0, -10.0 * std::log10(tau));
  }
  return prediction;
}

}  // namespace velmar::models
