#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include "acoustics/bands.h"
#include "acoustics/fine_grid.h"
#include "models/floors/floating_screed.h"
#include "tests/models/plates/plain_plate.h"
#include "tests/models/plates/plain_transmission.h"

namespace velmar::models {

/// R of the floor with a floating screed as its formulas are written down: the plate of slab and screed, its
/// critical frequency and all that hangs on it found anew for the mass with the resilient layers.
inline acoustics::Spectrum PlainFloatingScreed(const FloatingScreedInput& input) {
  std::vector<PlateLayer> layers = input.slab;
  layers.insert(layers.end(), input.screed.begin(), input.screed.end());
  const double a = input.side_a_m, b = input.side_b_m;
  PlainPlate plate = FindPlainPlate(layers, {.a_m = a, .b_m = b});
  double m = plate.mass;
  for (const ResilientMat& mat : input.resilient) {
    if (mat.density_kg_m3 >= 0) m += mat.thickness_mm * mat.density_kg_m3 * mat.multiplicity * 0.001;
  }
  plate.fc = std::pow(350.9, 2) / 6.2832 * std::pow(12 * (m / plate.sum_h) / plate.sum_eh2, 0.5);
  plate.lambda_c = 350.9 / plate.fc;
  plate.sigma_cap = std::sqrt(b / plate.lambda_c) + std::sqrt(a / plate.lambda_c);
  plate.sigma_crit =
      0.45 * std::sqrt(plate.perimeter / plate.lambda_c) * std::pow(std::min(a, b) / std::max(a, b), 0.25);
  const double l = std::log(960 / plate.mass) / std::log(10.0);
  plate.edge_loss = 2 * std::sqrt(plate.fc / 1000) * std::pow(10, -(5.7 + 5.7 * l * l) / 10);

  std::array<double, acoustics::kFineGridPoints> fine{};
  double eta = 0.0;
  for (std::size_t point = 0; point < fine.size(); ++point) {
    const double f = 40.0 + 10.0 * static_cast<double>(point);
    eta = PlainTotalLossFactor(plate, f, eta);
    const Plate single{.mass_kg_m2 = m, .bending_n_m = plate.bending, .loss_factor = eta};
    fine[point] = PlainBandR(f, {&single, 1}, {});
  }
  return acoustics::FineGridToBands(fine);
}

}  // namespace velmar::models
