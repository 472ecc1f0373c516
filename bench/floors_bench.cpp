#include <benchmark/benchmark.h>

#include "models/facades/composite_element.h"
#include "models/floors/floating_screed.h"
#include "models/floors/impact_floor.h"
#include "models/floors/impact_floor_rating.h"
#include "tests/models/floors/plain_floating_screed.h"
#include "tests/models/floors/plain_impact_floor.h"
#include "tests/models/floors/sample_floors.h"

namespace velmar::models {
namespace {

FloatingScreedInput ScreedOnConcrete() {
  return {.slab = {Concrete(160.0)},
          .screed = {Mortar(50.0)},
          .resilient = {Mat(8.0)},
          .side_a_m = 4.0,
          .side_b_m = 5.0};
}

ImpactFloorInput ImpactOnConcrete() {
  return {.variant = ImpactFloorVariant::kReinforcedConcrete,
          .bearing = {Concrete(160.0)},
          .screed = {Mortar(50.0)},
          .resilient = {Mat(8.0)},
          .side_a_m = 4.0,
          .side_b_m = 5.0};
}

CompositeElementInput FacadeOfTenParts() {
  FacadePart part{.rating_db = 45.0, .c_db = -1.0, .ctr_db = -4.0};
  part.bands_db.fill(45.0);
  CompositeElementInput facade{.area_m2 = 20.0, .opaque = part};
  for (int i = 0; i < 9; ++i) facade.components.push_back({.part = part, .area_m2 = 0.2 * i});
  return facade;
}

void FloatingScreedModel(benchmark::State& state) {
  const FloatingScreedInput input = ScreedOnConcrete();
  for (auto _ : state) benchmark::DoNotOptimize(CalculateFloatingScreed(input));
}
BENCHMARK(FloatingScreedModel)->Unit(benchmark::kMicrosecond);

void FloatingScreedPlainFormula(benchmark::State& state) {
  const FloatingScreedInput input = ScreedOnConcrete();
  for (auto _ : state) benchmark::DoNotOptimize(PlainFloatingScreed(input));
}
BENCHMARK(FloatingScreedPlainFormula)->Unit(benchmark::kMicrosecond);

void ImpactFloorModel(benchmark::State& state) {
  const ImpactFloorInput input = ImpactOnConcrete();
  for (auto _ : state) benchmark::DoNotOptimize(CalculateImpactFloor(input));
}
BENCHMARK(ImpactFloorModel)->Unit(benchmark::kMicrosecond);

void ImpactFloorPlainFormula(benchmark::State& state) {
  const ImpactFloorInput input = ImpactOnConcrete();
  for (auto _ : state) benchmark::DoNotOptimize(CalculatePlainly(input));
}
BENCHMARK(ImpactFloorPlainFormula)->Unit(benchmark::kMicrosecond);

void ImpactFloorRated(benchmark::State& state) {
  const ImpactFloorOutcome outcome = CalculateImpactFloor(ImpactOnConcrete());
  const auto variant = ImpactFloorVariant::kReinforcedConcrete;
  const ImpactRelation relation =
      FindImpactRelation(variant, outcome.mass_kg_m2, outcome.bearing_thickness_m);
  for (auto _ : state) benchmark::DoNotOptimize(RateImpactFloor(variant, outcome, relation));
}
BENCHMARK(ImpactFloorRated)->Unit(benchmark::kMicrosecond);

void CompositeBandForm(benchmark::State& state) {
  const CompositeElementInput input = FacadeOfTenParts();
  for (auto _ : state) benchmark::DoNotOptimize(CalculateCompositeSpectrum(input));
}
BENCHMARK(CompositeBandForm)->Unit(benchmark::kMicrosecond);

void CompositeSimplifiedForm(benchmark::State& state) {
  const CompositeElementInput input = FacadeOfTenParts();
  for (auto _ : state) benchmark::DoNotOptimize(CalculateCompositeRating(input));
}
BENCHMARK(CompositeSimplifiedForm)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace velmar::models
