#include "tests/models/walls/plain_walls.h"

#include <array>
#include <cmath>
#include <vector>

#include "acoustics/fine_grid.h"
#include "foundation/failure.h"
#include "tests/models/plates/plain_plate.h"
#include "tests/models/plates/plain_transmission.h"

namespace velmar::models {
namespace {

double Quotient(double x, double y) {
  if (y == 0.0) throw ArithmeticFailure("division by zero");
  return RequireFinite(x / y, "a quotient");
}

}  // namespace

acoustics::Spectrum PlainSingleWall(const SingleWallInput& input) {
  const PlainPlate plate = FindPlainPlate(input.layers, input.dimensions);
  std::vector<double> fine(496);
  double eta = 0.0;
  for (int f = 40; f <= 4990; f += 10) {
    eta = PlainTotalLossFactor(plate, f, eta);
    const Plate single{plate.mass, plate.bending, eta};
    fine.at(static_cast<std::size_t>((f - 40) / 10)) = PlainBandR(f, {&single, 1}, {});
  }
  return acoustics::AverageIntoBands(fine, 40);
}

acoustics::Spectrum PlainDoubleWall(const DoubleWallInput& input) {
  const PlainPlate leaf1 = FindPlainPlate(input.leaf1, input.dimensions);
  const PlainPlate leaf2 = FindPlainPlate(input.leaf2, input.dimensions);
  const double k = input.cavity_kind == CavityKind::kEmpty ? 84 : 60;
  const double f0 =
      k *
      std::pow(Quotient(1, input.cavity_depth_m) * (Quotient(1, leaf1.mass) + Quotient(1, leaf2.mass)), 0.5);
  double l = 0.0;
  double sigma = 6000;
  double d = input.cavity_depth_m;
  double solid_eh2 = 0.0;
  double solid_h = 0.0;
  double m3 = 0.0;
  double solid_eta = 0.0;
  if (input.cavity_kind == CavityKind::kFibrous) {
    d = 0;
    l = input.cavity_depth_m;
  }
  if (input.cavity_kind == CavityKind::kGenericMaterial) {
    sigma = 0;
    for (const CavityLayer& layer : input.cavity_layers) {
      const double t = layer.multiplicity * layer.thickness_mm * 0.001;
      if (layer.absorbing) {
        sigma += Quotient(layer.flow_resistance_pa_s_m, t);
        l += t;
      } else {
        solid_eh2 +=
            Quotient(layer.youngs_modulus_gpa * 1e9 * std::pow(t, 2), 1 - std::pow(layer.poissons_ratio, 2));
        solid_h += t;
        m3 += layer.density_kg_m3 * t;
        solid_eta += layer.loss_factor * t;
      }
    }
    if (sigma == 0) sigma = 1;
    d = input.cavity_depth_m - solid_h - l;
  }
  const double b3 = (solid_eh2 * solid_h) / 12;
  acoustics::Spectrum spectrum{};
  double eta1 = 0.0;
  double eta2 = 0.0;
  for (std::size_t i = 0; i <= 20; ++i) {
    const double f = acoustics::BandCentre(i);
    eta1 = PlainTotalLossFactor(leaf1, f, eta1);
    eta2 = PlainTotalLossFactor(leaf2, f, eta2);
    const double eta3 = m3 / (std::pow(f, 0.5) * 485) + solid_eta;
    if (l + d < 0.005) d = 0.005;
    const Cavity cavity{d, l, sigma};
    const Plate joint{
        leaf1.mass + leaf2.mass,
        (leaf1.bending / leaf1.sum_h + leaf2.bending / leaf2.sum_h) * (leaf1.sum_h + leaf2.sum_h),
        eta1 + eta2};
    double mass_r = 0.0;
    if (f < f0 / 2) mass_r = PlainBandR(f, {&joint, 1}, {});
    std::array<Plate, 3> plates{Plate{leaf1.mass, leaf1.bending, eta1},
                                Plate{leaf2.mass, leaf2.bending, eta2}, Plate{m3, b3, eta3}};
    if (input.cavity_kind == CavityKind::kGenericMaterial) {
      for (Plate& plate : plates) plate.loss_factor = eta1 + eta2 + eta3;
      spectrum[i] = PlainBandR(f, plates, cavity);
    } else {
      if (input.cavity_kind == CavityKind::kFibrous) {
        plates[0].loss_factor = eta1 + eta2;
        plates[1].loss_factor = eta1 + eta2;
      }
      spectrum[i] = PlainBandR(f, std::span(plates).first(2), cavity);
    }
    if (f < f0 / 2 && spectrum[i] > mass_r) spectrum[i] = mass_r;
  }
  return spectrum;
}

}  // namespace velmar::models
