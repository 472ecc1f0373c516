#include <algorithm>
#include <cmath>
#include <numbers>

#include "models/layered/air.h"
#include "models/layered/finite_size.h"
#include "models/layered/layered_element.h"
#include "models/layered/quadrature.h"
#include "models/layered/stack.h"
#include "models/plates/free_wave_radiation.h"

namespace velmar::models {
namespace {

using acoustics::kBandCount;
using acoustics::Spectrum;
using std::numbers::pi;

constexpr std::size_t kMostBandHalvings = 300;
constexpr std::size_t kMostAngleHalvings = 2000;
/// The angles of one frequency must stand firmer than the band that is formed of them.
constexpr double kAngleTolerance = 0.1;

/// What passes at one frequency, or over one band.
struct Transmission {
  double cavity = 0.0;      ///< through leaves and cavities
  double structural = 0.0;  ///< by connections and tracks

  Transmission& operator+=(const Transmission& other) {
    cavity += other.cavity;
    structural += other.structural;
    return *this;
  }
  Transmission& operator-=(const Transmission& other) {
    cavity -= other.cavity;
    structural -= other.structural;
    return *this;
  }
  Transmission operator*(double factor) const { return {cavity * factor, structural * factor}; }
};

/// The band's exact centre: the third octaves stand at powers of ten.
double ExactCentre(std::size_t band) { return std::pow(10.0, 1.7 + 0.1 * static_cast<double>(band)); }

/// `cuts` in order, each interval in `pieces`.
std::vector<double> CutFinely(std::vector<double> cuts, int pieces) {
  std::sort(cuts.begin(), cuts.end());
  std::vector<double> fine;
  for (std::size_t i = 0; i + 1 < cuts.size(); ++i) {
    for (int piece = 0; piece < pieces; ++piece) {
      fine.push_back(cuts[i] + (cuts[i + 1] - cuts[i]) * piece / pieces);
    }
  }
  fine.push_back(cuts.back());
  return fine;
}

/// The diffuse-field transmission of one stack, with what its integration keeps between frequencies.
class DiffuseField {
 public:
  DiffuseField(LayeredStack stack, const LayeredIntegration& integration)
      : stack_(std::move(stack)), integration_(integration) {}

  const LayeredStack& Stack() const { return stack_; }

  double At(double frequency_hz) {
    if (!stack_.IsOrthotropic()) return AtAzimuth(frequency_hz, 0.0);
    const std::vector<double> cuts = CutFinely({0.0, pi / 4.0, pi / 2.0}, integration_.pieces);
    const auto at_azimuth = [&](double azimuth) { return AtAzimuth(frequency_hz, azimuth); };
    return IntegratePoints<double>(cuts, {integration_.tolerance, kMostBandHalvings}, at_azimuth,
                                   [](double value) { return value; }) /
           (pi / 2.0);
  }

 private:
  double AtAzimuth(double frequency_hz, double azimuth_rad) {
    const SpatialWindow window(frequency_hz, stack_.Dimensions());
    stack_.FormStages(frequency_hz, azimuth_rad, stages_);
    // Towards grazing the mass-air-mass resonance of high frequencies hides in a narrow strip.
    std::vector<double> cuts = {0.0, 0.015, 0.06, 0.25, 1.0};
    if (window.Edge() < 1.0) cuts.push_back(window.Edge());
    stack_.FindCoincidences(frequency_hz, azimuth_rad, cuts);
    return IntegrateLanes(CutFinely(std::move(cuts), integration_.pieces),
                          {kAngleTolerance * integration_.tolerance, kMostAngleHalvings},
                          [&](const Lanes& cosines, Lanes& values) {
                            DiffuseFieldIntegrand(stages_, frequency_hz, window, cosines, values);
                          });
  }

  LayeredStack stack_;
  LayeredIntegration integration_;
  std::vector<WaveStage> stages_;
};

/// Below this share of its critical frequency a single leaf gets the resonant transmission besides; above,
/// the angles hold it.
constexpr double kResonantShare = 0.86;

class Predictor {
 public:
  Predictor(const LayeredElement& element, const LayeredIntegration& integration)
      : element_(element), integration_(integration), whole_(LayeredStack(element), integration) {
    if (element.leaves.size() <= 2) return;
    for (std::size_t cavity = 0; cavity < element.cavities.size(); ++cavity) {
      pairs_.emplace_back(LayeredStack(element, cavity), integration);
    }
  }

  bool HasPaths() const {
    return element_.leaves.size() > 1 &&
           (element_.framed ||
            std::any_of(element_.cavities.begin(), element_.cavities.end(),
                        [](const LayeredCavity& cavity) { return !cavity.connections.empty(); }));
  }

  /// Mean over the band in log frequency.
  Transmission OverBand(std::size_t band) {
    const double centre = std::log10(ExactCentre(band));
    const double begin = centre - 0.05;
    const double end = centre + 0.05;
    std::vector<double> cuts = {begin, end};
    const auto cut_at = [&](double frequency_hz) {
      const double place = std::log10(frequency_hz);
      if (place > begin && place < end) cuts.push_back(place);
    };
    for (const LeafProperties& leaf : Leaves()) {
      cut_at(leaf.critical_frequency_hz);
      cut_at(leaf.lowest_critical_hz);
      if (Leaves().size() == 1) cut_at(kResonantShare * leaf.lowest_critical_hz);
    }
    const auto at = [&](double place) { return At(std::pow(10.0, place)); };
    const auto size = [](const Transmission& t) { return t.cavity + t.structural; };
    return IntegratePoints<Transmission>(CutFinely(std::move(cuts), integration_.pieces),
                                         {integration_.tolerance, kMostBandHalvings}, at, size) *
           (1.0 / (end - begin));
  }

 private:
  const std::vector<LeafProperties>& Leaves() const { return whole_.Stack().Leaves(); }

  Transmission At(double frequency_hz) {
    double cavity = whole_.At(frequency_hz);
    if (Leaves().size() == 1) return {cavity + Resonant(frequency_hz), 0.0};
    double raised = cavity;
    for (std::size_t c = 0; c < element_.cavities.size(); ++c) {
      const double connected = Connected(c, frequency_hz);
      if (!(connected > 0.0)) continue;
      const double alone = pairs_.empty() ? cavity : pairs_[c].At(frequency_hz);
      raised *= 1.0 + connected / alone;
    }
    return {cavity, raised - cavity + Tracks(frequency_hz)};
  }

  double Resonant(double frequency_hz) const {
    const LeafProperties& leaf = Leaves().front();
    const double fc = leaf.lowest_critical_hz;
    if (frequency_hz >= kResonantShare * fc) return 0.0;
    const double omega = 2.0 * pi * frequency_hz;
    const double sigma =
        FreeWaveRadiation(frequency_hz, fc, whole_.Stack().Dimensions(), kLayeredSpeedOfSound);
    const double pressure = 2.0 * kLayeredAirImpedance / (omega * leaf.mass_kg_m2);
    const double losses = LeafLossFactor(leaf, frequency_hz) + pressure * sigma;
    return pressure * pressure * pi * fc * sigma * sigma / (2.0 * frequency_hz * losses);
  }

  double Connected(std::size_t cavity, double frequency_hz) const {
    double sum = 0.0;
    for (const Connection& connection : element_.cavities[cavity].connections) {
      sum += ConnectionTransmission(connection, Leaves()[cavity], Leaves()[cavity + 1], frequency_hz,
                                    whole_.Stack().Dimensions());
    }
    return sum;
  }

  double Tracks(double frequency_hz) const {
    if (!element_.framed) return 0.0;
    const Connection head_and_floor{ConnectionKind::kLine,
                                    2.0 / std::min(element_.width_m, element_.height_m), 0.0};
    return kTrackShare * ConnectionTransmission(head_and_floor, Leaves().front(), Leaves().back(),
                                                frequency_hz, whole_.Stack().Dimensions());
  }

  const LayeredElement& element_;
  LayeredIntegration integration_;
  DiffuseField whole_;
  std::vector<DiffuseField> pairs_;  ///< of three and four leaves: each cavity with its two leaves
};

/// No wall lets through less: the numbers beyond would be of the arithmetic, not of the wall.
constexpr double kLeastTransmission = 1e-30;

double Level(double transmission) { return -10.0 * std::log10(std::max(transmission, kLeastTransmission)); }

}  // namespace

LayeredOutcome PredictLayered(const LayeredElement& element, const LayeredIntegration& integration) {
  if (const auto refusal = FindLayeredRefusal(element)) return *refusal;
  Predictor predictor(element, integration);
  LayeredPrediction prediction;
  if (predictor.HasPaths()) prediction.structural_path_db.emplace();
  for (std::size_t band = 0; band < kBandCount; ++band) {
    const Transmission passed = predictor.OverBand(band);
    prediction.reduction_index_db[band] = std::max(0.0, Level(passed.cavity + passed.structural));
    prediction.cavity_path_db[band] = Level(passed.cavity);
    if (prediction.structural_path_db) (*prediction.structural_path_db)[band] = Level(passed.structural);
  }
  for (const LayeredLeaf& leaf : element.leaves) {
    const LeafProperties properties = FindLeafProperties(leaf);
    prediction.surface_mass_kg_m2 += properties.mass_kg_m2;
    prediction.thickness_m += properties.thickness_m;
  }
  for (const LayeredCavity& cavity : element.cavities) {
    for (const CavityFill& fill : cavity.fills) prediction.thickness_m += fill.thickness_m;
  }
  return prediction;
}

}  // namespace velmar::models
