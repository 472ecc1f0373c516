#include <algorithm>
#include <cmath>
#include <vector>

#include "acoustics/logarithm.h"
#include "foundation/failure.h"
#include "foundation/rounding.h"
#include "tests/models/sea/plain_primitives.h"

namespace velmar::plain {
namespace {

double Level(double x) { return 10.0 * acoustics::Log10(x); }
double Finite(double x) { return RequireFinite(x, "plain value"); }

struct Curves {
  std::vector<double> low, mid, high;
  double corner = 0.0;
  double fc = 0.0;
};

double BendingStiffness(const models::SeaPlateInput& in) {
  const auto [h1, e1, rho1] = in.sheets[0];
  const auto [h2, e2, rho2] = in.sheets[1];
  const auto [h3, e3, rho3] = in.sheets[2];
  const double y = Finite(((2 * h1 + h2) * e2 + h1 * e1) / (2 * (e1 + e2)));
  double ei = h2 * e2 * (std::pow(h2, 2) / 12 + std::pow(y - (2 * h1 + h2) / 2, 2)) +
              h1 * e1 * (std::pow(h1, 2) / 12 + std::pow(y - h1 / 2, 2));
  const double hs = h1 + h2;
  if (h3 > 0) {
    const double eeq = Finite(12 * ei / std::pow(hs, 3));
    const double y2 = Finite(((2 * hs + h3) * e3 + eeq * hs) / (2 * (eeq + e3)));
    ei = eeq * hs * (std::pow(hs, 2) / 12 + std::pow(y2 - hs / 2, 2)) +
         h3 * e3 * (std::pow(h3, 2) / 12 + std::pow(y2 - (2 * hs + h3) / 2, 2));
  }
  return ei;
}

Curves FirstLoop(double a, double b, double fc) {
  const double pi = 3.1416;
  const double s = a * b;
  const double p = 2 * a + 2 * b;
  const double lambda_c = 350.9 / fc;
  const long bound = fc > 6000 ? static_cast<long>(RoundToEven(fc)) + 100 : 6000;
  const auto size = static_cast<std::size_t>(bound) + 1;
  Curves c{std::vector<double>(size), std::vector<double>(size), std::vector<double>(size), 0.0, fc};
  for (std::size_t i = 1; i < size; ++i) {
    const auto f = static_cast<double>(i);
    const double lambda = std::sqrt(f / fc);
    const double d = std::abs(1 - lambda * lambda);
    const double delta2 = Finite(8 / std::pow(pi, 4) * (1 - 2 * lambda * lambda) / lambda / std::sqrt(d));
    const double r = Finite((1 + lambda) / (1 - lambda));
    const double l = r < 1 ? std::log(1.0) : std::log(r);
    const double delta1 = Finite(0.25 / std::pow(pi, 2) * (l * d + 2 * lambda) / std::pow(d, 1.5));
    c.low[i] = 4 * s / std::pow(350.9, 2) * std::pow(f, 2);
    c.mid[i] = Finite(2 * (lambda_c * lambda_c / s * delta2 + lambda_c * p / s * delta1));
    if (c.mid[i] < 0) c.mid[i] = 1;
    c.corner = Finite(2 * (std::sqrt(a / lambda_c) + std::sqrt(b / lambda_c)));
    c.high[i] = Finite(1 / std::sqrt(std::abs(1 - fc / f)));
  }
  return c;
}

void Scan(Curves& c, HzSpectrum& sigma) {
  std::size_t last1 = 0, last2 = 0, last3 = 0, last4 = 0;
  for (std::size_t f = 1; f <= 6000; ++f) {
    if (!(c.mid[f] > 0)) continue;
    if (Level(c.low[f]) <= Level(c.mid[f]) && c.fc / 2 > static_cast<double>(f)) {
      sigma[f] = c.low[f];
      last1 = f;
    }
  }
  for (std::size_t f = last1 + 1; f <= 6000; ++f) {
    if (c.mid[f] <= 0) c.mid[f] = 1;
    if (c.corner <= 0) c.corner = 1;
    if (Level(c.mid[f]) <= Level(c.corner) && static_cast<double>(f) < c.fc) {
      sigma[f] = c.mid[f];
      last2 = f;
    }
  }
  if (last1 == 6000) last2 = 6000;
  for (std::size_t f = last2 + 1; f <= 6000; ++f) {
    if (static_cast<double>(f) < c.fc) {
      sigma[f] = c.corner;
      last3 = f;
    }
  }
  if (last2 == 6000) last3 = 6000;
  for (std::size_t f = last3 + 1; f <= 6000; ++f) {
    if (c.high[f] <= 0) c.high[f] = 1;
    if (c.corner <= 0) c.corner = 1;
    if (Level(c.corner) <= Level(c.high[f])) {
      sigma[f] = c.corner;
      last4 = f;
    }
  }
  if (last3 == 6000) last4 = 6000;
  for (std::size_t f = last4 + 1; f <= 6000; ++f) sigma[f] = c.high[f];
}

}  // namespace

Plate PlateRadiation(const models::SeaPlateInput& in) try {
  const auto [h1, e1, rho1] = in.sheets[0];
  const auto [h2, e2, rho2] = in.sheets[1];
  const auto [h3, e3, rho3] = in.sheets[2];
  Plate plate;
  const double cl = Finite(std::sqrt(Finite(e1 / (rho1 * (1 - std::pow(in.poissons_ratio, 2))))));
  const double m = h1 * rho1 + h2 * rho2 + h3 * rho3;
  const double fc = Finite(std::pow(350.9, 2) / 6.2832 * std::sqrt(Finite(m / BendingStiffness(in))));
  Curves curves = FirstLoop(in.length_a_m, in.length_b_m, fc);
  Scan(curves, plate.sigma);
  for (std::size_t f = 1; f <= 6000; ++f) plate.sigma[f] = std::min(plate.sigma[f], in.radiation_cap);
  plate.fc = fc;
  plate.cl = cl;
  plate.m = m;
  plate.h = h1 + h2 + h3;
  return plate;
} catch (const ArithmeticFailure&) {
  return {};
}

}  // namespace velmar::plain
