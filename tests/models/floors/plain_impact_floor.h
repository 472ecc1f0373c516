#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "acoustics/bands.h"
#include "models/floors/impact_floor.h"

namespace velmar::models {

/// Ln and R written down formula by formula, with every choice spelled out and nothing shared with the model.
struct PlainImpactFloor {
  acoustics::Spectrum ln{};
  acoustics::Spectrum r{};
  double fc = 0.0;
};

struct PlainSums {
  double m = 0.0, h = 0.0, eh2 = 0.0, eta_h = 0.0;
};

inline PlainSums SumPlainly(const std::vector<PlateLayer>& layers) {
  PlainSums sums;
  for (const PlateLayer& layer : layers) {
    const double h = layer.multiplicity * layer.thickness_mm * 0.001;
    sums.m += layer.density_kg_m3 * h;
    sums.h += h;
    sums.eh2 += layer.youngs_modulus_gpa * 1e9 * h * h / (1 - layer.poissons_ratio * layer.poissons_ratio);
    sums.eta_h += layer.loss_factor * h;
  }
  return sums;
}

inline PlainImpactFloor CalculatePlainly(const ImpactFloorInput& input) {
  constexpr double kPlainPi = 3.1416;
  const PlainSums bearing = SumPlainly(input.bearing);
  const PlainSums screed = SumPlainly(input.screed);
  double compliance = 0;
  for (const ResilientMat& mat : input.resilient) {
    if (mat.dynamic_stiffness_mn_m3 != 0) compliance += mat.multiplicity / mat.dynamic_stiffness_mn_m3;
  }
  const bool floating = compliance > 0;
  const double mass = floating ? bearing.m : bearing.m + screed.m;
  const double thickness = floating ? bearing.h : bearing.h + screed.h;
  const double eh2 = floating ? bearing.eh2 : bearing.eh2 + screed.eh2;
  const double eta_int = bearing.eta_h / bearing.h;
  const double a = input.side_a_m, b = input.side_b_m;
  PlainImpactFloor plain;
  const double fc = std::pow(350.9, 2) / 6.2832 * std::pow(12 * mass / (thickness * eh2), 0.5);
  plain.fc = fc;
  const double lambda = 350.9 / fc;
  const double s = a * b, u = 2 * (a + b);
  const double sigma_0 = std::sqrt(a / lambda) + std::sqrt(b / lambda);
  const double sigma_c = 0.45 * std::sqrt(u / lambda) * std::pow(a < b ? a / b : b / a, 0.25);
  const double d = 5.7 - 5.7 * std::pow(std::log10(960 / mass), 2);
  const double alpha = 0.43 * std::pow(10, -d / 10);
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    const double f = acoustics::BandCentre(band);
    double sigma = 0;
    if (f <= fc / 2) {
      const double x = f / fc;
      const double g1 =
          f < fc / 2 ? 4 / std::pow(kPlainPi, 4) * (1 - 2 * x) / (std::sqrt(x) * std::sqrt(1 - x)) : 0;
      const double g2 = 1 / (4 * std::pow(kPlainPi, 2)) *
                        ((1 - x) * std::log((1 + std::sqrt(x)) / (1 - std::sqrt(x))) + 2 * std::sqrt(x)) /
                        std::pow(1 - x, 1.5);
      double sigma_1 = lambda * lambda / s * (2 * g1 + u / lambda * g2);
      if (sigma_1 >= 1) sigma_1 = 1;
      sigma = sigma_1 < sigma_c ? sigma_1 : sigma_c;
    } else if (f <= fc * std::pow(10, 1.0 / 20)) {
      sigma = sigma_c;
    } else {
      double candidate = 1 / std::sqrt(1 - fc / f);
      if (sigma_0 >= candidate) candidate = sigma_0;
      if (sigma_c > candidate) {
        sigma = 1 < candidate ? 1 : candidate;
      } else {
        sigma = sigma_c;
      }
    }
    const double eta = eta_int + 452.661 * sigma / (kPlainPi * f * mass) +
                       350.9 / (std::pow(kPlainPi, 2) * s * std::sqrt(f * fc)) * u * alpha;
    const double law = 20 * std::log10(f * kPlainPi * mass / 452.661);
    if (f <= fc / 2) {
      plain.r[band] = law - 5.5;
    } else if (f <= fc * std::pow(10, 1.0 / 20)) {
      const double rh = 20 * std::log10(kPlainPi * (fc / 2) * mass / 452.661) - 5.5;
      const double rc = 20 * std::log10(kPlainPi * fc * mass / 452.661) + 10 * std::log10(2 * eta / kPlainPi);
      const double k = (rc - rh) / std::log10(2);
      plain.r[band] = k * std::log10(f) + (rc - k * std::log10(fc));
    } else {
      plain.r[band] = std::min(law - 5.5, law + 10 * std::log10(2 * eta * f / (kPlainPi * fc)));
    }
    const double ts = 2.2 / (eta * f);
    plain.ln[band] = 155 - 30 * std::log10(mass) + 10 * std::log10(ts * sigma * f / 1000);
  }
  return plain;
}

}  // namespace velmar::models
