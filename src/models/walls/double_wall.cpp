#include "models/walls/double_wall.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/plates/plate_stack.h"
#include "models/plates/transmission.h"
#include "models/walls/cavity_filling.h"

namespace velmar::models {
namespace {

using acoustics::kBandCount;

std::array<double, kBandCount> BandCentres() {
  std::array<double, kBandCount> centres{};
  for (std::size_t band = 0; band < kBandCount; ++band) centres[band] = acoustics::BandCentre(band);
  return centres;
}

struct Leaf {
  LeafResult result;
  double thickness_m = 0.0;
  std::vector<double> loss_factors;  ///< EtaTotal at each band centre
};

Leaf FindLeaf(const std::vector<PlateLayer>& layers, const PlateDimensions& dimensions) {
  const PlateStack stack = SumLayers(layers);
  Leaf leaf;
  leaf.thickness_m = stack.thickness_m;
  leaf.result.mass_kg_m2 = stack.mass_kg_m2;
  leaf.result.bending_n_m = BendingStiffness(stack);
  leaf.result.internal_loss_factor = stack.internal_loss_factor;
  leaf.result.critical_frequency_hz = CriticalFrequency(stack, stack.mass_kg_m2);
  const LossTerms losses = FindLossTerms(stack.mass_kg_m2, stack.internal_loss_factor,
                                         leaf.result.critical_frequency_hz, dimensions);
  leaf.loss_factors = TotalLossFactors(losses, BandCentres());
  return leaf;
}

double MassAirMassFrequency(const DoubleWallInput& input, double m1, double m2) {
  if (!(input.cavity_depth_m > 0.0)) {
    throw ArithmeticFailure(kZeroCavityDepthRow, "the cavity's depth is not above 0");
  }
  // The larger constant goes with the empty cavity.
  const double k = input.cavity_kind == CavityKind::kEmpty ? 84.0 : 60.0;
  return k * std::sqrt(1.0 / input.cavity_depth_m * (1.0 / m1 + 1.0 / m2));
}

/// Both leaves as one plate, at band `band`.
Plate JointPlate(const Leaf& leaf1, const Leaf& leaf2, std::size_t band) {
  const double bending =
      (leaf1.result.bending_n_m / leaf1.thickness_m + leaf2.result.bending_n_m / leaf2.thickness_m) *
      (leaf1.thickness_m + leaf2.thickness_m);
  return {leaf1.result.mass_kg_m2 + leaf2.result.mass_kg_m2, bending,
          leaf1.loss_factors[band] + leaf2.loss_factors[band]};
}

/// The plates at band `band`. With anything in the cavity all of them share the sum of the losses.
std::array<Plate, 3> BandPlates(const Leaf& leaf1, const Leaf& leaf2, const Plate& solid, CavityKind kind,
                                std::size_t band) {
  const double eta1 = leaf1.loss_factors[band];
  const double eta2 = leaf2.loss_factors[band];
  const double eta3 = solid.mass_kg_m2 / (std::sqrt(acoustics::BandCentre(band)) * 485.0) + solid.loss_factor;
  std::array<Plate, 3> plates{Plate{leaf1.result.mass_kg_m2, leaf1.result.bending_n_m, eta1},
                              Plate{leaf2.result.mass_kg_m2, leaf2.result.bending_n_m, eta2}, solid};
  if (kind == CavityKind::kEmpty) return plates;
  const double shared = kind == CavityKind::kFibrous ? eta1 + eta2 : eta1 + eta2 + eta3;
  for (Plate& plate : plates) plate.loss_factor = shared;
  return plates;
}

}  // namespace

DoubleWallResult CalculateDoubleWall(const DoubleWallInput& input) {
  const Leaf leaf1 = FindLeaf(input.leaf1, input.dimensions);
  const Leaf leaf2 = FindLeaf(input.leaf2, input.dimensions);
  DoubleWallResult result;
  result.leaf1 = leaf1.result;
  result.leaf2 = leaf2.result;
  result.critical_frequency_hz =
      (leaf1.result.critical_frequency_hz + leaf2.result.critical_frequency_hz) / 2.0;
  result.resonance_hz =
      RequireFinite(MassAirMassFrequency(input, leaf1.result.mass_kg_m2, leaf2.result.mass_kg_m2),
                    "the resonance frequency");

  const CavityFilling filling = FillCavity(input);
  const Cavity cavity = WithSmallestGap(filling.cavity);
  const std::size_t plate_count = input.cavity_kind == CavityKind::kGenericMaterial ? 3 : 2;
  for (std::size_t band = 0; band < kBandCount; ++band) {
    const double f = acoustics::BandCentre(band);
    const auto plates = BandPlates(leaf1, leaf2, filling.solid, input.cavity_kind, band);
    double r = BandR(f, std::span(plates).first(plate_count), cavity);
    if (f < result.resonance_hz / 2.0) r = std::min(r, BandR(f, JointPlate(leaf1, leaf2, band)));
    result.spectrum[band] = r;
  }
  return result;
}

}  // namespace velmar::models
