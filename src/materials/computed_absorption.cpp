#include "materials/computed_absorption.h"

#include <cmath>
#include <optional>

#include "foundation/decimal.h"
#include "models/absorbers/porous_absorber.h"

namespace velmar::materials {
namespace {

constexpr double kMmPerM = 1000.0;
constexpr double kThousandths = 1000.0;

/// The layer of a porous entry, or nothing where its boxes give none.
std::optional<models::PorousAbsorber> LayerOf(const FibrousEntry& entry) {
  const std::optional<double> thickness = ParseDecimal(entry.thickness);
  const std::optional<double> resistance = ParseDecimal(entry.flow_resistance);
  if (!entry.porous || !thickness || !resistance || !(*thickness > 0.0)) return std::nullopt;
  const double thickness_m = *thickness / kMmPerM;
  return models::PorousAbsorber{*resistance / thickness_m, thickness_m};
}

void Append(std::string& list, double frequency_hz) {
  if (!list.empty()) list += ", ";
  list += FormatShortest(frequency_hz);
}

}  // namespace

ComputedAbsorption ComputeMissing(const FibrousEntry& entry) {
  ComputedAbsorption computed{entry.absorption, {}};
  const auto layer = LayerOf(entry);
  if (!layer) return computed;
  for (std::size_t band = 0; band < entry.absorption.size(); ++band) {
    if (!entry.absorption.at(band).empty()) continue;
    const auto absorption = models::AbsorptionOf(*layer, elements::kAbsorptionBandCentres.at(band));
    if (!absorption) continue;
    const double rounded = std::round(absorption->coefficient * kThousandths) / kThousandths;
    if (rounded <= 0.0) continue;
    computed.coefficients.at(band) = FormatShortest(rounded);
    computed.bands.push_back(band);
  }
  return computed;
}

std::string ComputationOf(const FibrousEntry& entry, std::span<const std::size_t> bands) {
  const auto layer = LayerOf(entry);
  if (bands.empty() || !layer) return {};
  std::string all;
  std::string outside;
  for (const std::size_t band : bands) {
    const double frequency_hz = elements::kAbsorptionBandCentres.at(band);
    Append(all, frequency_hz);
    const auto absorption = models::AbsorptionOf(*layer, frequency_hz);
    if (absorption && !absorption->inside_range) Append(outside, frequency_hz);
  }
  std::string text = "assorbimento calcolato con Delany e Bazley (incidenza normale, " +
                     FormatShortest(layer->thickness_m * kMmPerM) + " mm su parete rigida): " + all + " Hz";
  if (!outside.empty()) text += "; valori stimati fuori dal campo del modello: " + outside + " Hz";
  return text;
}

}  // namespace velmar::materials
