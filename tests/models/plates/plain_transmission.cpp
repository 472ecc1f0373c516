#include "tests/models/plates/plain_transmission.h"

#include <cmath>

#include "foundation/failure.h"

namespace velmar::models {
namespace {

double Quotient(double x, double y) {
  if (y == 0.0) throw ArithmeticFailure("division by zero");
  return x / y;
}

double Power(double x, double y) { return RequireFinite(std::pow(x, y), "a power"); }

double Log10(double x) {
  if (!(x > 0.0)) throw ArithmeticFailure("logarithm of a non-positive number");
  return RequireFinite(std::log(x) / std::log(10.0), "a logarithm");
}

double Exp(double x) { return RequireFinite(std::exp(x), "an exponential"); }

double Magnitude(double x, double y) { return Power(Power(x, 2) + Power(y, 2), 0.5); }

double Tanh(double x) { return (Exp(x) - Exp(-x)) / (Exp(x) + Exp(-x)); }

double DivRe(double x1, double y1, double x2, double y2) {
  return Quotient(x1 * x2 + y1 * y2, Power(Magnitude(x2, y2), 2));
}

double DivIm(double x1, double y1, double x2, double y2) {
  return Quotient(y1 * x2 - x1 * y2, Power(Magnitude(x2, y2), 2));
}

double TanRe(double a, double b) { return DivRe(std::tan(a), Tanh(b), 1, -std::tan(a) * Tanh(b)); }

double TanIm(double a, double b) { return DivIm(std::tan(a), Tanh(b), 1, -std::tan(a) * Tanh(b)); }

double PlainAirImpedance(double theta) { return 452.661 / std::cos(theta); }

/// Both parts of the cavity's impedance come from here; each caller goes through all of it.
double CavityPart(double f, double theta, const Cavity& cavity,
                  double (*divide)(double, double, double, double)) {
  const double omega = 6.2832 * f;
  const double k = omega / 350.9;
  const double d = cavity.depth_m;
  const double l = cavity.porous_thickness_m;
  const double x = Quotient(1.29, cavity.flow_resistivity_pa_s_m2) * f;
  const double c = -std::cos(k * d) / std::cos(theta);
  const double zr = 1 + 0.0571 * Power(x, -0.754);
  const double zi = -0.087 * Power(x, -0.732);
  const double a = (omega * l / 350.9) * (1 + 0.0978 * Power(x, -0.7));
  const double b = (-omega * l / 350.9) * (0.189 * Power(x, -0.595));
  const double tr = TanRe(a, b);
  const double ti = TanIm(a, b);
  const double s = std::sin(k * d);
  const double p = (zr * tr - zi * ti) * s;
  const double q = (zr * ti + zi * tr) * s;
  const double n1 = (-q) * zr - (c + p) * zi;
  const double n2 = (-q) * zi + (c + p) * zr;
  const double d1 = zr * s - c * tr;
  const double d2 = zi * s - c * ti;
  return divide(n1, n2, d1, d2) * 452.661;
}

}  // namespace

double PlainPlateImag(double f, double theta, const Plate& plate) {
  const double omega = 6.2832 * f;
  const double k = omega / 350.9;
  return omega * plate.mass_kg_m2 - (plate.bending_n_m * Power(k * std::sin(theta), 4)) / omega;
}

double PlainPlateReal(double f, double theta, const Plate& plate) {
  const double omega = 6.2832 * f;
  const double k = omega / 350.9;
  return (plate.bending_n_m * plate.loss_factor * Power(k * std::sin(theta), 4)) / omega;
}

double PlainCavityImag(double f, double theta, const Cavity& cavity) {
  return CavityPart(f, theta, cavity, DivIm);
}

double PlainCavityReal(double f, double theta, const Cavity& cavity) {
  return CavityPart(f, theta, cavity, DivRe);
}

double PlainTauAngle(double f, double theta, std::span<const Plate> plates, const Cavity& cavity) {
  double u = 0.0;
  double v = 0.0;
  if (plates.size() == 1) {
    u = PlainAirImpedance(theta) + PlainAirImpedance(theta) + PlainPlateReal(f, theta, plates[0]);
    v = PlainPlateImag(f, theta, plates[0]);
  } else if (plates.size() == 2) {
    u = 3 * PlainAirImpedance(theta) + PlainPlateReal(f, theta, plates[0]) +
        PlainPlateReal(f, theta, plates[1]) + PlainCavityReal(f, theta, cavity);
    v = PlainPlateImag(f, theta, plates[0]) + PlainPlateImag(f, theta, plates[1]) +
        PlainCavityImag(f, theta, cavity);
  } else if (plates.size() == 3) {
    u = 3 * PlainAirImpedance(theta) + PlainPlateReal(f, theta, plates[0]) +
        PlainPlateReal(f, theta, plates[1]) + PlainPlateReal(f, theta, plates[2]) +
        PlainCavityReal(f, theta, cavity);
    v = PlainPlateImag(f, theta, plates[0]) + PlainPlateImag(f, theta, plates[1]) +
        PlainPlateImag(f, theta, plates[2]) + PlainCavityImag(f, theta, cavity);
  } else {
    return 0.0;
  }
  return Quotient(Power(PlainAirImpedance(theta) + PlainAirImpedance(theta), 2), Power(Magnitude(u, v), 2));
}

double PlainTau(double f, std::span<const Plate> plates, const Cavity& cavity) {
  const double delta = (3.1416 / (2 * 20)) * 0.8;
  double sum = 0.0;
  for (int i = 0; i <= 19; ++i) {
    const double theta1 = delta * i;
    const double theta2 = delta * (i + 1);
    const double t = PlainTauAngle(f, theta1, plates, cavity) * std::sin(2 * delta * i) +
                     PlainTauAngle(f, theta2, plates, cavity) * std::sin(2 * delta * (i + 1));
    sum += (delta * t) / 2;
  }
  return sum;
}

double PlainPointR(double f, std::span<const Plate> plates, const Cavity& cavity) {
  return -10 * Log10(PlainTau(f, plates, cavity));
}

double PlainBandR(double f, std::span<const Plate> plates, const Cavity& cavity) {
  const double f0 = f / std::pow(2.0, 1.0 / 6.0);
  const double w = std::pow(2.0, 1.0 / 3.0) - 1;
  double sum = 0.0;
  for (int j = 0; j <= 19; ++j) {
    const double fa = f0 * (1 + w * j / 20);
    const double fb = f0 * (1 + w * (j + 1) / 20);
    sum += (1.0 / (2 * 20)) * (PlainPointR(fa, plates, cavity) + PlainPointR(fb, plates, cavity));
  }
  return sum;
}

}  // namespace velmar::models
