#include "tests/models/layered/plain_layered.h"

#include <algorithm>
#include <cmath>
#include <complex>

namespace velmar::models {
namespace {

using Complex = std::complex<double>;

const Complex kJ(0.0, 1.0);
const double kPlainPi = std::acos(-1.0);
constexpr double kRho0 = 1.204;
constexpr double kC0 = 343.2;
constexpr double kZ0 = kRho0 * kC0;

/// [p1; v1] = M [p2; v2].
struct Chain {
  Complex a{1.0}, b{0.0}, c{0.0}, d{1.0};
};

Chain operator*(const Chain& x, const Chain& y) {
  return {x.a * y.a + x.b * y.c, x.a * y.b + x.b * y.d, x.c * y.a + x.d * y.c, x.c * y.b + x.d * y.d};
}

double Eta(const SolidLayer& layer) {
  switch (layer.kind) {
    case SolidKind::kPlasterboard:
      return 0.03;
    case SolidKind::kGlass:
      return 0.05;
    case SolidKind::kWood:
      return std::max(0.03, layer.loss_factor);
    case SolidKind::kMetal:
      return std::max(0.02, layer.loss_factor);
    case SolidKind::kMasonry:
      return 0.03 + layer.loss_factor;
    default:
      return layer.loss_factor;
  }
}

double E1(const SolidLayer& layer) {
  return layer.youngs_modulus_pa / (1.0 - layer.poissons_ratio * layer.poissons_ratio);
}
double G1(const SolidLayer& layer) { return layer.youngs_modulus_pa / (2.0 + 2.0 * layer.poissons_ratio); }
double H3(const SolidLayer& layer) { return E1(layer) * std::pow(layer.thickness_m, 3) / 12.0; }

struct PlainLeaf {
  double m = 0.0;
  double b = 0.0;
  double k = 0.0;
  double eta = 0.0;
};

PlainLeaf Sum(const LayeredPlate& plate) {
  double stretch = 0.0, moment = 0.0, z = 0.0;
  for (const auto& l : plate.layers) {
    stretch += E1(l) * l.thickness_m;
    moment += E1(l) * l.thickness_m * (z + l.thickness_m / 2);
    z += l.thickness_m;
  }
  const double z0 = moment / stretch;
  PlainLeaf leaf;
  double h = 0.0, yielding = 0.0, shear = 0.0, loss = 0.0;
  for (const auto& l : plate.layers) {
    const double zi = h + l.thickness_m / 2;
    double b = H3(l);
    if (plate.joint == LeafJoint::kBonded) b += E1(l) * l.thickness_m * (zi - z0) * (zi - z0);
    leaf.b += b;
    loss += b * Eta(l);
    leaf.m += l.thickness_m * l.density_kg_m3;
    h += l.thickness_m;
    yielding += l.thickness_m / G1(l);
    shear += l.thickness_m * G1(l);
  }
  leaf.k = 5.0 / 6.0 * (plate.joint == LeafJoint::kBonded ? h * h / yielding : shear);
  leaf.eta = loss / leaf.b;
  return leaf;
}

bool IsMasonry(const LayeredPlate& plate) {
  return std::all_of(plate.layers.begin(), plate.layers.end(),
                     [](const SolidLayer& l) { return l.kind == SolidKind::kMasonry; });
}

struct Wave {
  double f;
  double kx;
  double azimuth;
  double bay_hz;
};

Complex PlainImpedance(double m, Complex b_dyn, double eta, const Wave& w) {
  const double omega = 2.0 * kPlainPi * w.f;
  return kJ * omega * m *
         (1.0 - b_dyn * (1.0 + kJ * eta) * std::pow(w.kx, 4) / (omega * omega * m) -
          std::pow(w.bay_hz / w.f, 2) * (1.0 + 0.05 * kJ));
}

Chain ChainOf(const LayeredPlate& plate, const Wave& w) {
  const PlainLeaf leaf = Sum(plate);
  const double eta = leaf.eta + (IsMasonry(plate) ? leaf.m / (485.0 * std::sqrt(w.f)) : 0.0);
  return {1.0, PlainImpedance(leaf.m, leaf.b / (1.0 + leaf.b * w.kx * w.kx / leaf.k), eta, w), 0.0, 1.0};
}

struct Sheets {
  double m, eta;
  Complex b_dyn;
};

Sheets RossKerwinUngar(const SolidLayer& one, double core_m, double core_density, Complex shear,
                       const SolidLayer& two, double kx) {
  const double s1 = E1(one) * one.thickness_m;
  const double s2 = E1(two) * two.thickness_m;
  const Complex g = shear * (1.0 / s1 + 1.0 / s2) / (core_m * kx * kx);
  const double distance = core_m + 0.5 * (one.thickness_m + two.thickness_m);
  const double b0 = H3(one) + H3(two);
  return {one.density_kg_m3 * one.thickness_m + core_density * core_m + two.density_kg_m3 * two.thickness_m,
          (H3(one) * Eta(one) + H3(two) * Eta(two)) / b0,
          b0 + s1 * s2 / (s1 + s2) * distance * distance * g / (1.0 + g)};
}

Chain ChainOf(const LaminatedPane& pane, const Wave& w) {
  const Interlayer& i = pane.interlayer;
  const Complex shear =
      i.shear_modulus_at_1khz_pa * std::pow(w.f / 1000.0, i.frequency_exponent) * (1.0 + kJ * i.loss_tangent);
  const Sheets s = RossKerwinUngar(pane.outer, i.thickness_m, i.density_kg_m3, shear, pane.inner, w.kx);
  return {1.0, PlainImpedance(s.m, s.b_dyn, s.eta, w), 0.0, 1.0};
}

Chain ChainOf(const SandwichPanel& panel, const Wave& w) {
  const SandwichCore& core = panel.core;
  const Complex shear = core.shear_modulus_pa * (1.0 + kJ * core.loss_factor);
  const Sheets s =
      RossKerwinUngar(panel.outer, core.thickness_m, core.density_kg_m3, shear, panel.inner, w.kx);
  const Complex zb = PlainImpedance(s.m, s.b_dyn, s.eta, w);
  const double omega = 2.0 * kPlainPi * w.f;
  const double sixth = core.thickness_m * core.density_kg_m3 / 6.0;
  const double m1 = panel.outer.density_kg_m3 * panel.outer.thickness_m + sixth;
  const double m2 = panel.inner.density_kg_m3 * panel.inner.thickness_m + sixth;
  const double bending = H3(panel.outer) * H3(panel.inner) / (H3(panel.outer) + H3(panel.inner));
  const Complex zd = kJ * omega * m1 * m2 / (m1 + m2) +
                     (core.compression_modulus_pa / core.thickness_m * (1.0 + kJ * core.loss_factor) +
                      bending * std::pow(w.kx, 4) * (1.0 + kJ * s.eta)) /
                         (kJ * omega);
  const Complex v_of_p = 2.0 / (2.0 * zd - zb / 2.0);
  const Complex v_of_v = (2.0 * zd + zb / 2.0) / (2.0 * zd - zb / 2.0);
  return {1.0 + zb / 2.0 * v_of_p, zb / 2.0 * (v_of_v + 1.0), v_of_p, v_of_v};
}

Chain ChainOf(const OrthotropicPlate& plate, const Wave& w) {
  const double c2 = std::pow(std::cos(w.azimuth), 2);
  const double root =
      std::sqrt(plate.bending_stiff_n_m) * c2 + std::sqrt(plate.bending_soft_n_m) * (1.0 - c2);
  const SolidLayer material{0, 0, 0, 0, plate.loss_factor, plate.kind};
  return {1.0, PlainImpedance(plate.mass_kg_m2, root * root, Eta(material), w), 0.0, 1.0};
}

Chain ChainOf(const CavityFill& fill, double edge_loss, const Wave& w) {
  const double omega = 2.0 * kPlainPi * w.f;
  Complex rho = kRho0;
  Complex modulus = kRho0 * kC0 * kC0 * (1.0 + kJ * edge_loss);
  if (fill.kind == FillKind::kFibre) {
    const double x = kRho0 * w.f / fill.flow_resistivity_pa_s_m2;
    const Complex rigid = kRho0 * (1.2 + std::sqrt(-0.0364 / (x * x) - 0.1144 * kJ / x));
    const Complex a = std::sqrt(2.82 / (x * x) + 24.9 * kJ / x);
    modulus = 101320.0 * (29.64 * kJ + a) / (21.17 * kJ + a);
    const double total = fill.density_kg_m3 + kRho0;
    rho = (total * rigid - kRho0 * kRho0) / (total + rigid - 2.0 * kRho0);
  }
  Complex kz = std::sqrt(omega * omega * rho / modulus - w.kx * w.kx);
  if (kz.imag() > 0.0) kz = -kz;
  const Complex z = omega * rho / kz;
  const Complex phase = kz * fill.thickness_m;
  return {std::cos(phase), kJ * z * std::sin(phase), kJ / z * std::sin(phase), std::cos(phase)};
}

double BayFrequency(const LayeredElement& element) {
  if (element.bay_width_m == 0.0) return 0.0;
  double weakest = 1e300;
  for (const auto& leaf : element.leaves) {
    const PlainLeaf sum = Sum(std::get<LayeredPlate>(leaf));
    weakest = std::min(weakest, std::sqrt(sum.b / sum.m));
  }
  return 1.2 * kPlainPi / 2.0 * weakest / (element.bay_width_m * element.bay_width_m);
}

void GaussLegendre(int n, std::vector<double>& x, std::vector<double>& w) {
  for (int i = 0; i < n; ++i) {
    double z = std::cos(kPlainPi * (i + 0.75) / (n + 0.5));
    double slope = 0.0;
    for (int step = 0; step < 100; ++step) {
      double p1 = 1.0, p2 = 0.0;
      for (int j = 0; j < n; ++j) {
        const double p3 = p2;
        p2 = p1;
        p1 = ((2.0 * j + 1.0) * z * p2 - j * p3) / (j + 1.0);
      }
      slope = n * (z * p1 - p2) / (z * z - 1.0);
      const double before = z;
      z -= p1 / slope;
      if (std::abs(z - before) < 1e-15) break;
    }
    x.push_back(kPlainPi / 4.0 * (z + 1.0));
    w.push_back(2.0 / ((1.0 - z * z) * slope * slope));
  }
}

double Window(double f, double cosine, double a, double b) {
  const double s = a * b;
  const double u = 2.0 * (a + b);
  const double k0 = 2.0 * kPlainPi * f / kC0;
  const double l = 2.0 * s / u;
  const double p = std::min(1.0, 1.3 * std::sqrt(kPlainPi / (2.0 * k0 * l)));
  const double bracket = 2.0 / 3.0 * std::sqrt(2.0 * k0 * l / kPlainPi) - 0.124;
  const double h = bracket > 0.0 ? 1.0 / bracket : 1000.0;
  const double q = 2.0 * kPlainPi / (k0 * k0 * s);
  const double g = cosine >= p ? cosine : h - (h / p - 1.0) * cosine;
  return 1.0 / std::sqrt(g * g + q * q);
}

/// Free-wave radiation of EN ISO 12354-1 below the critical frequency, for many modes.
double SigmaBelow(double f, double fc, double a, double b) {
  const double lambda = std::sqrt(f / fc);
  const double rest = 1.0 - lambda * lambda;
  const double d1 = (rest * std::log((1.0 + lambda) / (1.0 - lambda)) + 2.0 * lambda) /
                    (4.0 * kPlainPi * kPlainPi * std::pow(rest, 1.5));
  const double d2 = f > fc / 2.0 ? 0.0
                                 : 8.0 * kC0 * kC0 * (1.0 - 2.0 * lambda * lambda) /
                                       (fc * fc * std::pow(kPlainPi, 4) * a * b * lambda * std::sqrt(rest));
  const double sigma = 2.0 * (a + b) / (a * b) * kC0 / fc * d1 + d2;
  const double f11 = kC0 * kC0 / (4.0 * fc) * (1.0 / (a * a) + 1.0 / (b * b));
  const double piston = 4.0 * a * b * f * f / (kC0 * kC0);
  return std::min(2.0, f < f11 ? std::min(sigma, piston) : sigma);
}

double Resonant(const LayeredElement& element, double f) {
  const auto* plate = std::get_if<LayeredPlate>(&element.leaves.front());
  if (element.leaves.size() > 1 || plate == nullptr) return 0.0;
  const PlainLeaf leaf = Sum(*plate);
  const double fc = kC0 * kC0 / (2.0 * kPlainPi) * std::sqrt(leaf.m / leaf.b);
  if (f >= 0.86 * fc) return 0.0;
  const double omega = 2.0 * kPlainPi * f;
  const double eta = leaf.eta + (IsMasonry(*plate) ? leaf.m / (485.0 * std::sqrt(f)) : 0.0);
  const double sigma = SigmaBelow(f, fc, element.width_m, element.height_m);
  const double total = eta + 2.0 * kZ0 * sigma / (omega * leaf.m);
  return std::pow(2.0 * kZ0 / (omega * leaf.m), 2) * kPlainPi * fc * sigma * sigma / (2.0 * f * total);
}

}  // namespace

double PlainPlaneWaveTau(const LayeredElement& element, double f, double theta, double azimuth) {
  const double area = element.width_m * element.height_m;
  const double perimeter = 2.0 * (element.width_m + element.height_m);
  const double omega = 2.0 * kPlainPi * f;
  const Wave w{f, omega / kC0 * std::sin(theta), azimuth, BayFrequency(element)};
  Chain chain;
  for (std::size_t i = 0; i < element.leaves.size(); ++i) {
    chain = chain * std::visit([&](const auto& leaf) { return ChainOf(leaf, w); }, element.leaves[i]);
    if (i + 1 == element.leaves.size()) break;
    const LayeredCavity& cavity = element.cavities[i];
    const double edge_loss =
        cavity.edge == CavityEdge::kFramed ? 0.10 : 0.5 * kC0 * perimeter / (kPlainPi * area * omega);
    for (const CavityFill& fill : cavity.fills) chain = chain * ChainOf(fill, edge_loss, w);
  }
  const double za = kZ0 / std::cos(theta);
  return 4.0 / std::norm(chain.a + chain.b / za + chain.c * za + chain.d);
}

double PlainCavityPathOfBand(const LayeredElement& element, std::size_t band, int sub_bands, int nodes,
                             int azimuths) {
  std::vector<double> x;
  std::vector<double> w;
  GaussLegendre(nodes, x, w);
  const double centre = std::pow(10.0, 1.7 + 0.1 * static_cast<double>(band));
  double mean = 0.0;
  for (int i = 0; i < sub_bands; ++i) {
    const double f = centre * std::pow(10.0, 0.1 * ((i + 0.5) / sub_bands - 0.5));
    double sum = 0.0;
    double weights = 0.0;
    for (std::size_t n = 0; n < x.size(); ++n) {
      const double weight = w[n] * std::sin(x[n]) * std::cos(x[n]);
      double tau = 0.0;
      for (int a = 0; a < azimuths; ++a) {
        tau += PlainPlaneWaveTau(element, f, x[n], kPlainPi / 2.0 * (a + 0.5) / azimuths) / azimuths;
      }
      sum += weight * tau * Window(f, std::cos(x[n]), element.width_m, element.height_m) * std::cos(x[n]);
      weights += weight;
    }
    mean += (sum / weights + Resonant(element, f)) / sub_bands;
  }
  return -10.0 * std::log10(mean);
}

acoustics::Spectrum PlainCavityPath(const LayeredElement& element, int sub_bands, int nodes) {
  acoustics::Spectrum spectrum{};
  for (std::size_t band = 0; band < spectrum.size(); ++band) {
    spectrum[band] = PlainCavityPathOfBand(element, band, sub_bands, nodes, 1);
  }
  return spectrum;
}

}  // namespace velmar::models
