#include "tests/models/plates/plain_plate.h"

#include <cmath>

#include "foundation/failure.h"

namespace velmar::models {
namespace {

constexpr double kPi = 3.1416;

double Quotient(double x, double y) {
  if (y == 0.0) throw ArithmeticFailure("division by zero");
  return x / y;
}

double Power(double x, double y) { return RequireFinite(std::pow(x, y), "a power"); }

double SideTerm(double f, double fc) {
  if (f >= fc / 2) return 0.0;
  return (4 / std::pow(kPi, 4)) * (1 - 2 * f / fc) / (std::sqrt(f / fc) * std::sqrt(1 - f / fc));
}

double CornerTerm(double f, double fc) {
  const double a = std::sqrt(f / fc);
  return (1 / (4 * std::pow(kPi, 2))) * ((1 - f / fc) * std::log((1 + a) / (1 - a)) + 2 * a) /
         std::pow(1 - f / fc, 1.5);
}

}  // namespace

PlainPlate FindPlainPlate(std::span<const PlateLayer> layers, const PlateDimensions& dimensions) {
  PlainPlate p;
  double sum_eta_h = 0.0;
  for (const PlateLayer& layer : layers) {
    const double h = layer.multiplicity * layer.thickness_mm * 0.001;
    p.sum_h += h;
    p.sum_eh2 +=
        Quotient(1e9 * layer.youngs_modulus_gpa * std::pow(h, 2), 1 - std::pow(layer.poissons_ratio, 2));
    p.mass += layer.density_kg_m3 * h;
    sum_eta_h += layer.loss_factor * h;
  }
  p.eta_int = Quotient(sum_eta_h, p.sum_h);
  p.fc = (std::pow(350.9, 2) / 6.2832) * Power(Quotient(12 * Quotient(p.mass, p.sum_h), p.sum_eh2), 0.5);
  p.bending = (p.sum_eh2 * p.sum_h) / 12;
  p.lambda_c = Quotient(350.9, p.fc);
  p.perimeter = 2 * (dimensions.a_m + dimensions.b_m);
  p.area = dimensions.a_m * dimensions.b_m;
  p.sigma_cap = std::sqrt(dimensions.b_m / p.lambda_c) + std::sqrt(dimensions.a_m / p.lambda_c);
  if (dimensions.a_m < dimensions.b_m) {
    p.sigma_crit =
        0.45 * std::sqrt(p.perimeter / p.lambda_c) * std::pow(dimensions.a_m / dimensions.b_m, 0.25);
    p.short_side = dimensions.a_m;
  } else {
    p.sigma_crit =
        0.45 * std::sqrt(p.perimeter / p.lambda_c) * std::pow(Quotient(dimensions.b_m, dimensions.a_m), 0.25);
    p.short_side = dimensions.b_m;
  }
  const double l = RequireFinite(std::log(960 / p.mass) / std::log(10.0), "a logarithm");
  const double a = 5.7 + 5.7 * std::pow(l, 2);
  p.edge_loss = 2 * std::sqrt(p.fc / 1000) * std::pow(10, -a / 10);
  return p;
}

double PlainTotalLossFactor(const PlainPlate& p, double f, double value_before) {
  double eta_rad = 0.0;
  if (f <= p.fc / 2) {
    const double g1 = SideTerm(f, p.fc);
    const double g2 = CornerTerm(f, p.fc);
    double sigma = Quotient(std::pow(p.lambda_c, 2), p.area) * (2 * g1 + (p.perimeter / p.lambda_c) * g2);
    if (sigma >= 1) sigma = 1;
    if (p.sigma_crit < sigma) sigma = p.sigma_crit;
    eta_rad = (sigma * 905.322) / (kPi * f * p.mass);
  } else if (f > p.fc / 2 && f < p.fc * std::pow(10, 1.0 / 20.0)) {
    eta_rad = (p.sigma_crit * 452.661) / (kPi * f * p.mass);
  } else if (f > p.fc * std::pow(10, 1.0 / 20.0)) {
    double sigma = 1 / std::sqrt(1 - p.fc / f);
    if (sigma >= p.sigma_cap) sigma = p.sigma_cap;
    if (sigma > p.sigma_crit) sigma = p.sigma_crit < 1 ? 1 : p.sigma_crit;
    eta_rad = (sigma * 452.661) / (kPi * f * p.mass);
  } else {
    return value_before;
  }
  const double eta_edge =
      Quotient(350.9, std::pow(kPi, 2) * p.area * std::sqrt(f * p.fc)) * p.perimeter * p.edge_loss;
  return p.eta_int + eta_rad + eta_edge;
}

}  // namespace velmar::models
