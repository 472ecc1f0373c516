#include <benchmark/benchmark.h>

#include "models/sea/double_sea_wall.h"
#include "models/sea/leaf_transmission.h"
#include "models/sea/lining.h"
#include "models/sea/single_sea_wall.h"
#include "tests/models/sea/plain_walls.h"

namespace velmar::models {
namespace {

constexpr SeaElementSize kSize{.length_a_m = 4.0, .length_b_m = 2.8};

SeaLayer Brick() {
  return {.thickness_mm = 120,
          .density_kg_m3 = 800,
          .youngs_modulus_gpa = 6,
          .loss_factor = 0.015,
          .poissons_ratio = 0.2};
}

SeaLayer Plasterboard() {
  return {.thickness_mm = 12.5,
          .density_kg_m3 = 720,
          .youngs_modulus_gpa = 2.5,
          .loss_factor = 0.02,
          .poissons_ratio = 0.3};
}

SeaLayer DampedPlasterboard() {
  SeaLayer layer = Plasterboard();
  layer.damping[0] = {.thickness_mm = 4, .density_kg_m3 = 1500, .youngs_modulus_gpa = 0.05};
  return layer;
}

SeaCavity FilledCavity() {
  SeaFill wool{.name = "lana", .thickness_mm = 50, .density_kg_m3 = 40};
  wool.absorption.fill(0.6);
  return {
      .type = SeaCavityType::kFibreMassFibreMassFibre,
      .depth_mm = 250,
      .fills = {wool, wool, wool},
      .masses = {SeaCavityMass{12.5, 720, 2.5, 0.02, 0.3, {}}, SeaCavityMass{12.5, 720, 2.5, 0.02, 0.3, {}}}};
}

SingleSeaWallInput Masonry() { return {kSize, 150, {Brick(), Plasterboard(), {}}}; }
SingleSeaWallInput OneBrick() { return {kSize, 120, {Brick(), {}, {}}}; }

DoubleSeaWallInput BoardWall() {
  return {.size = kSize,
          .total_thickness_mm = 130,
          .first_side = {Plasterboard(), DampedPlasterboard(), {}},
          .second_side = {Plasterboard(), Plasterboard(), {}},
          .cavity = FilledCavity(),
          .connection = {.kind = SeaConnectionKind::kPoints, .count = 12.0, .first_side_layer = 2}};
}

DoubleSeaWallInput EmptyBrickWall() {
  return {.size = kSize,
          .total_thickness_mm = 300,
          .first_side = {Brick(), {}, {}},
          .second_side = {Brick(), {}, {}},
          .cavity = {.depth_mm = 60}};
}

LiningInput WallLining() {
  LiningInput input{.base_rw_db = 50.0F,
                    .base_mass_kg_m2 = 230.0F,
                    .layers = {Plasterboard(), DampedPlasterboard(), {}},
                    .cavity = FilledCavity()};
  input.base_spectrum_db.fill(48.0);
  return input;
}

void SingleSeaWall(benchmark::State& state, const SingleSeaWallInput& input) {
  for (auto _ : state) benchmark::DoNotOptimize(CalculateSingleSeaWall(input));
}
void SingleSeaWallPlain(benchmark::State& state, const SingleSeaWallInput& input) {
  for (auto _ : state) benchmark::DoNotOptimize(plain::SingleSeaWall(input));
}
void DoubleSeaWall(benchmark::State& state, const DoubleSeaWallInput& input) {
  for (auto _ : state) benchmark::DoNotOptimize(CalculateDoubleSeaWall(input));
}
void DoubleSeaWallPlain(benchmark::State& state, const DoubleSeaWallInput& input) {
  for (auto _ : state) benchmark::DoNotOptimize(plain::DoubleSeaWall(input));
}
void Lining(benchmark::State& state, const LiningInput& input) {
  for (auto _ : state) benchmark::DoNotOptimize(CalculateLining(input));
}
void LiningPlain(benchmark::State& state, const LiningInput& input) {
  const auto base_db = CompleteBaseSpectrum(input.base_spectrum_db).level_db;
  for (auto _ : state) benchmark::DoNotOptimize(plain::Lining(input, base_db, *ConnectionCount(input)));
}

/// One board's radiation efficiency and one leaf's balance: where most of a run goes.
void PlateRadiation(benchmark::State& state, const SeaLayer& layer) {
  const SeaPlateInput input = PlateOf(layer, kSize, kDoubleWallRadiationCap);
  for (auto _ : state) benchmark::DoNotOptimize(SeaPlateRadiation(input));
}
void LeafPower(benchmark::State& state, const SeaLayer& layer) {
  const SeaPlate plate = SeaPlateRadiation(PlateOf(layer, kSize, kDoubleWallRadiationCap));
  const SeaLeaf leaf{plate.longitudinal_speed_m_s, plate.surface_mass_kg_m2, plate.thickness_m, 0.02};
  HzSpectrum ratio{};
  for (auto _ : state) {
    SeaLeafPowerRatio(plate.radiation_efficiency, leaf, ratio);
    benchmark::DoNotOptimize(ratio);
  }
}

#define VELMAR_MODEL_AND_PLAIN(model, name, input)                      \
  BENCHMARK_CAPTURE(model, name, input)->Unit(benchmark::kMicrosecond); \
  BENCHMARK_CAPTURE(model##Plain, name, input)->Unit(benchmark::kMicrosecond)

VELMAR_MODEL_AND_PLAIN(SingleSeaWall, one_brick, OneBrick());
VELMAR_MODEL_AND_PLAIN(SingleSeaWall, brick_and_board, Masonry());
VELMAR_MODEL_AND_PLAIN(DoubleSeaWall, empty_brick, EmptyBrickWall());
VELMAR_MODEL_AND_PLAIN(DoubleSeaWall, boards_full_cavity, BoardWall());
VELMAR_MODEL_AND_PLAIN(Lining, boards_full_cavity, WallLining());
BENCHMARK_CAPTURE(PlateRadiation, brick, Brick())->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PlateRadiation, board, Plasterboard())->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(LeafPower, board, Plasterboard())->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace velmar::models
