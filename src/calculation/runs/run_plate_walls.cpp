#include <algorithm>

#include "calculation/runs/airborne_wall_rating.h"
#include "calculation/runs/entered_numbers.h"
#include "calculation/runs/family_runs.h"
#include "calculation/runs/totals.h"
#include "models/floors/floating_screed.h"
#include "models/walls/double_wall.h"
#include "models/walls/light_double_wall.h"
#include "models/walls/single_wall.h"

// The walls, panes and floors that are calculated as plates.
namespace velmar::calculation {
namespace {

constexpr double kMetresPerMillimetre = 0.001;
constexpr double kMetresPerCentimetre = 0.01;

models::PlateDimensions DimensionsOf(const elements::Setup& setup) {
  return {.a_m = EnteredLength(setup.width_text, {elements::Field::kWidth}),
          .b_m = EnteredLength(setup.height_text, {elements::Field::kHeight})};
}

float TotalThickness(const elements::Setup& setup) {
  return static_cast<float>(ComputeTotals(setup).thickness_mm);
}

std::vector<models::CavityLayer> CavityLayersOf(const elements::Cavity& cavity) {
  std::vector<models::CavityLayer> layers;
  const int shown = std::min(cavity.layers.count, elements::CavityLayers::kCapacity);
  for (int i = 0; i < shown; ++i) {
    const auto& row = cavity.layers.rows.at(static_cast<std::size_t>(i));
    layers.push_back({.multiplicity = row.multiplicity,
                      .thickness_mm = row.slot.thickness_mm,
                      .absorbing = row.slot.porous,
                      .youngs_modulus_gpa = row.slot.youngs_modulus_gpa,
                      .loss_factor = row.slot.loss_factor,
                      .poissons_ratio = row.slot.poissons_ratio,
                      .density_kg_m3 = row.slot.density_kg_m3,
                      .flow_resistance_pa_s_m = row.slot.flow_resistance_pa_s_m});
  }
  return layers;
}

/// All rows, those in use and those beyond: the light double wall reads both.
models::LeafRows LeafRowsOf(elements::LeafLayers leaf) {
  models::LeafRows rows{.count = static_cast<std::size_t>(leaf.count)};
  leaf.count = elements::LeafLayers::kCapacity;
  std::ranges::copy(PlateLayers(leaf), rows.rows.begin());
  return rows;
}

}  // namespace

RunOutcome RunSingleWall(const RunRequest& request) {
  const elements::Setup& setup = request.setup;
  const models::SingleWallResult wall =
      models::CalculateSingleWall({.layers = PlateLayers(setup.leaf1), .dimensions = DimensionsOf(setup)});
  elements::ResultSet result;
  result.spectrum = wall.spectrum;
  result.critical_frequency_hz = wall.critical_frequency_hz;
  result.loss_factor = wall.internal_loss_factor;
  result.mass_kg_m2 = wall.mass_kg_m2;
  result.bending_stiffness_nm = wall.bending_n_m;
  return RateWall(request, result, {.mass_kg_m2 = wall.mass_kg_m2, .thickness_mm = TotalThickness(setup)});
}

RunOutcome RunDoubleWall(const RunRequest& request) {
  const elements::Setup& setup = request.setup;
  const double depth_mm = EnteredNumber(setup.cavity.depth_text, {elements::Field::kCavityDepth});
  const models::DoubleWallResult wall =
      models::CalculateDoubleWall({.leaf1 = PlateLayers(setup.leaf1),
                                   .leaf2 = PlateLayers(setup.leaf2),
                                   .dimensions = DimensionsOf(setup),
                                   .cavity_depth_m = depth_mm * kMetresPerMillimetre,
                                   .cavity_kind = setup.cavity.kind,
                                   .cavity_layers = CavityLayersOf(setup.cavity)});
  elements::ResultSet result;
  result.spectrum = wall.spectrum;
  result.critical_frequency_hz = wall.critical_frequency_hz;
  return RateWall(request, result,
                  {.leaf1_mass_kg_m2 = wall.leaf1.mass_kg_m2,
                   .leaf2_mass_kg_m2 = wall.leaf2.mass_kg_m2,
                   .thickness_mm = TotalThickness(setup),
                   .cavity_depth_mm = static_cast<float>(depth_mm),
                   .fibre_thickness_mm = static_cast<float>(
                       EnteredNumberOrZero(setup.cavity.fibre_text, {elements::Field::kFibreThickness})),
                   .cavity_kind = setup.cavity.kind});
}

RunOutcome RunLightDoubleWall(const RunRequest& request) {
  const elements::Setup& setup = request.setup;
  const elements::CalculationRow& row = RowOf(request.calculation);
  models::LightDoubleWallInput input{
      .leaf1 = LeafRowsOf(setup.leaf1),
      .leaf2 = LeafRowsOf(setup.leaf2),
      .depth_m =
          EnteredNumber(setup.cavity.depth_text, {elements::Field::kCavityDepth}) * kMetresPerMillimetre,
      .cavity_kind = setup.cavity.kind,
      .form = std::get<acoustics::LightWallForm>(row.form)};
  if (row.support == elements::Support::kStudDistance) {
    input.stud_distance_m =
        EnteredLength(setup.support_distance_text, {elements::Field::kSupport}) * kMetresPerCentimetre;
    input.dim_b_m = EnteredLength(setup.height_text, {elements::Field::kHeight});
  }
  elements::ResultSet result;
  result.spectrum = models::CalculateLightDoubleWall(input).spectrum;
  // This family forms no loss factor of its own: it divides the one that stands, run after run.
  result.loss_factor = request.loss_factor_before / (ComputeTotals(setup).thickness_mm / 1000.0);
  return RateWall(request, result, {});
}

RunOutcome RunFloatingScreedFloor(const RunRequest& request) {
  const elements::Setup& setup = request.setup;
  const models::PlateDimensions dimensions = DimensionsOf(setup);
  const std::vector<models::ResilientMat> resilient = ResilientMatsOf(setup.resilient);
  const models::FloatingScreedOutcome floor =
      models::CalculateFloatingScreed({.slab = PlateLayers(setup.leaf1),
                                       .screed = PlateLayers(setup.leaf2),
                                       .resilient = resilient,
                                       .side_a_m = dimensions.a_m,
                                       .side_b_m = dimensions.b_m});
  elements::ResultSet result;
  result.spectrum = floor.reduction_index_db;
  result.critical_frequency_hz = floor.critical_frequency_hz;
  result.loss_factor = floor.loss_factor;
  result.mass_kg_m2 = floor.mass_kg_m2;
  result.bending_stiffness_nm = floor.bending_n_m;
  models::RelationInput relation{.leaf1_mass_kg_m2 = floor.slab_mass_kg_m2,
                                 .leaf2_mass_kg_m2 = floor.screed_mass_kg_m2};
  for (const models::ResilientMat& layer : resilient) {
    relation.resilient_layers.push_back({layer.dynamic_stiffness_mn_m3, layer.multiplicity});
  }
  return RateWall(request, result, relation);
}

}  // namespace velmar::calculation
