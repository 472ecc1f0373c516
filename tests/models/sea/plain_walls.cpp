#include "tests/models/sea/plain_walls.h"

#include <cmath>
#include <memory>

#include "acoustics/logarithm.h"
#include "foundation/rounding.h"

namespace velmar::plain {
namespace {

using models::SeaLayer;

double Level(double x) { return 10.0 * acoustics::Log10(x); }
double Power(double level) { return std::pow(10.0, level / 10.0); }

double Eta(const SeaLayer& layer) {
  return layer.damping[0] || layer.damping[1] ? layer.loss_factor * 1.5 : layer.loss_factor;
}

models::SeaPlateInput PlateInput(const SeaLayer& layer, const models::SeaElementSize& size, double cap) {
  models::SeaPlateInput in;
  in.length_a_m = size.length_a_m;
  in.length_b_m = size.length_b_m;
  in.poissons_ratio = layer.poissons_ratio;
  in.radiation_cap = cap;
  const double e =
      layer.youngs_modulus_gpa - 2 >= 2 ? layer.youngs_modulus_gpa - 2 : layer.youngs_modulus_gpa;
  in.sheets[0] = {layer.thickness_mm / 1000, 1e9 * e, layer.density_kg_m3};
  for (std::size_t k = 0; k < 2; ++k) {
    if (!layer.damping[k]) continue;
    const auto& sheet = *layer.damping[k];
    in.sheets[k + 1] = {sheet.thickness_mm / 1000, 1e9 * sheet.youngs_modulus_gpa, sheet.density_kg_m3};
  }
  return in;
}

struct Side {
  HzSpectrum r{};
  std::array<Plate, 3> plates{};
  std::array<double, 3> eta{};
  double m = 0.0;
  double h = 0.0;
  double eta_sum = 0.0;
  std::size_t heaviest = 0;
};

std::unique_ptr<Side> BalanceSide(const models::SeaSide& layers, const models::SeaElementSize& size) {
  auto side = std::make_unique<Side>();
  HzSpectrum t{};
  double max = -1;
  for (std::size_t i = 0; i < 3; ++i) {
    if (!layers[i]) continue;
    side->plates[i] = PlateRadiation(PlateInput(*layers[i], size, 0.8));
    const Plate& plate = side->plates[i];
    side->eta[i] = Eta(*layers[i]);
    const HzSpectrum r = LeafTransmission(plate.sigma, plate.cl, plate.m, plate.h, side->eta[i]);
    for (std::size_t f = 1; f <= 6000; ++f) t[f] = Power(r[f]) + t[f];
    side->m += plate.m;
    side->h += plate.h;
    side->eta_sum += side->eta[i];
    if (plate.m > max) {
      max = plate.m;
      side->heaviest = i;
    }
  }
  for (std::size_t f = 1; f <= 6000; ++f) side->r[f] = Level(t[f]);
  return side;
}

void Couple(const HzSpectrum& coupling, HzSpectrum& r) {
  for (std::size_t f = 1; f <= 6000; ++f) {
    if (r[f] == 0) continue;
    r[f] = Level(1 / (std::pow(10.0, -r[f] / 10) + coupling[f]));
    if (r[f] < 0) r[f] = 0;
  }
}

HzSpectrum Connection(const models::DoubleSeaWallInput& in, const Side& side, bool second) {
  using Kind = models::SeaConnectionKind;
  const auto& connection = in.connection;
  const double b = in.size.length_b_m;
  HzSpectrum coupling{};
  if (connection.kind == Kind::kMasonryTies) {
    const Plate& plate = side.plates[side.heaviest];
    const double n = connection.is_decoupled ? 2.5 : 1.5;
    LineBridgeCoupling(side.m, side.eta[side.heaviest], plate.fc, plate.sigma, n, b, coupling);
    return coupling;
  }
  const Plate& plate = side.plates[second ? 0 : connection.first_side_layer - 1];
  if (connection.kind == Kind::kLines) {
    LineBridgeCoupling(side.m, side.eta_sum, plate.fc, plate.sigma, *connection.count, b, coupling);
    return coupling;
  }
  return PointBridgeCoupling(side.m, side.h, side.eta_sum, plate.cl, plate.sigma,
                             static_cast<long>(RoundToEven(*connection.count)));
}

}  // namespace

CavityLevels CavityLayers(const models::SeaCavity& cavity, const models::SeaElementSize& size,
                          const HzSpectrum& bridge) {
  CavityLevels levels;
  auto in = std::make_unique<CavityCombineInput>();
  std::array<HzSpectrum, 2> r{};
  std::array<double, 2> m{};
  for (std::size_t k = 0; k < static_cast<std::size_t>(acoustics::MassCount(cavity.type)); ++k) {
    const auto& mass = cavity.masses[k];
    if (!mass) continue;
    SeaLayer layer{mass->thickness_mm, mass->density_kg_m3, 0.0, mass->loss_factor, mass->poissons_ratio, {}};
    layer.damping[0] = mass->damping;
    models::SeaPlateInput plate_input = PlateInput(layer, size, 0.8);
    plate_input.sheets[0].youngs_modulus_pa = 1e9 * mass->youngs_modulus_gpa;
    const Plate plate = PlateRadiation(plate_input);
    r[k] = LeafTransmission(plate.sigma, plate.cl, plate.m, plate.h, Eta(layer));
    m[k] = plate.m;
    for (std::size_t f = 1; f <= 6000; ++f) {
      if (r[k][f] != 0) levels.w[f] += Power(r[k][f]);
    }
  }
  if (m[0] > 0 || m[1] > 0) {
    for (std::size_t f = 1; f <= 6000; ++f) {
      if (levels.w[f] < 1) levels.w[f] = 1;
    }
  }
  for (std::size_t j = 0; j < 3; ++j) {
    const auto& fill = cavity.fills[j];
    const bool present = j < static_cast<std::size_t>(acoustics::FibreCount(cavity.type)) && fill;
    const HzSpectrum a = present
                             ? PorousLayerAttenuation(true, fill->thickness_mm / 1000, fill->density_kg_m3,
                                                      AbsorptionPerHz(fill->absorption))
                             : PorousLayerAttenuation(false, 0, 0, {});
    for (std::size_t f = 1; f <= 6000; ++f) in->f[f] += a[f];
  }
  in->r0 = r[0];
  in->r1 = r[1];
  in->ta = bridge;
  in->m0 = m[0];
  in->m1 = m[1];
  in->d = cavity.masses[0] ? cavity.masses[0]->thickness_mm / 1000 : 0.0;
  levels.rc = CavityCombine(*in);
  return levels;
}

acoustics::Spectrum SingleSeaWall(const models::SingleSeaWallInput& input) {
  auto average = std::make_unique<BandAverageInput>();
  HzSpectrum t{};
  for (std::size_t i = 0; i < 3; ++i) {
    const auto& layer = input.layers[i];
    if (!layer) continue;
    const Plate plate = PlateRadiation(PlateInput(*layer, input.size, 1.0));
    const HzSpectrum r =
        LeafTransmission(plate.sigma, plate.cl, plate.m, layer->thickness_mm / 1000, Eta(*layer));
    for (std::size_t f = 1; f <= 6000; ++f) {
      t[f] = i == 0 ? Power(r[f]) + t[f] : 2 * Power(r[f]) + 2 * t[f];
    }
  }
  for (std::size_t f = 1; f <= 6000; ++f) average->r1[f] = Level(t[f]);
  return BandAverage(*average);
}

acoustics::Spectrum DoubleSeaWall(const models::DoubleSeaWallInput& input) {
  const auto first = BalanceSide(input.first_side, input.size);
  const auto second = BalanceSide(input.second_side, input.size);
  const bool second_coupled = first->m >= second->m;
  Side& coupled = second_coupled ? *second : *first;
  const HzSpectrum coupling = Connection(input, coupled, second_coupled);
  Couple(coupling, coupled.r);
  const CavityLevels cavity = CavityLayers(input.cavity, input.size, coupling);
  return BandAverage(
      {first->r, second->r, cavity.rc, cavity.w, first->m, second->m, input.cavity.depth_mm / 1000});
}

acoustics::Spectrum Lining(const models::LiningInput& input, const acoustics::Spectrum& base_db,
                           double connections) {
  const models::SeaElementSize size{1.2, 2.8};
  const auto side = BalanceSide(input.layers, size);
  const Plate& plate = side->plates[side->heaviest];
  HzSpectrum coupling{};
  LineBridgeCoupling(side->m, side->eta_sum, plate.fc, plate.sigma, connections, 2.8, coupling);
  Couple(coupling, side->r);
  const CavityLevels cavity = CavityLayers(input.cavity, size, coupling);
  return BandAverage({SpectrumPerHz(base_db), side->r, cavity.rc, cavity.w,
                      static_cast<double>(input.base_mass_kg_m2), side->m, input.cavity.depth_mm * 0.001});
}

}  // namespace velmar::plain
