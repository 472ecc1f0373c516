#include <array>
#include <ctime>

#include <benchmark/benchmark.h>

#include "acoustics/fine_grid.h"
#include "models/plates/diffuse_field.h"
#include "models/plates/plate_stack.h"
#include "models/plates/single_plate_spectrum.h"
#include "models/walls/double_wall.h"
#include "models/walls/light_double_wall.h"
#include "models/walls/single_wall.h"
#include "tests/models/walls/plain_walls.h"

namespace velmar::models {
namespace {

const PlateLayer kBrick{1, 250, 800, 3, 0.02, 0.2};
const PlateLayer kPlaster{2, 15, 1400, 4, 0.01, 0.2};
const PlateLayer kBoard{2, 12.5, 720, 2.5, 0.02, 0.2};

SingleWallInput PlasteredBrick() { return {{kBrick, kPlaster}, {4, 2.8}}; }

DoubleWallInput BrickAndBoards(CavityKind kind) {
  return {{kBrick}, {kBoard}, {4, 2.8},
          0.1,      kind,     {{1, 40, true, 0, 0, 0, 30, 200}, {1, 10, false, 3, 0.03, 0.2, 700, 0}}};
}

LightDoubleWallInput BoardsOnStuds() {
  LightDoubleWallInput input;
  input.leaf1.rows[0] = input.leaf2.rows[0] = kBoard;
  input.leaf1.count = input.leaf2.count = 1;
  input.depth_m = 0.075;
  input.stud_distance_m = 0.6;
  input.dim_b_m = 2.8;
  input.cavity_kind = CavityKind::kFibrous;
  input.form = LightWallForm::kLineLine;
  return input;
}

/// Processor time, so that a busy machine does not count.
template <typename Run>
double Seconds(const Run& run) {
  const std::clock_t start = std::clock();
  run();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// Runs `model` and `plain` by turns: the time shown is the model's, "plain_us" that of the formulas as they
/// are written down, "times_faster" their ratio.
template <typename Model, typename Plain>
void SideBySide(benchmark::State& state, const Model& model, const Plain& plain) {
  constexpr int kModelRuns = 20;
  double model_s = 0.0;
  double plain_s = 0.0;
  for (auto _ : state) {
    const double once = Seconds([&] {
                          for (int run = 0; run < kModelRuns; ++run) benchmark::DoNotOptimize(model());
                        }) /
                        kModelRuns;
    state.SetIterationTime(once);
    model_s += once;
    plain_s += Seconds([&] { benchmark::DoNotOptimize(plain()); });
  }
  state.counters["plain_us"] = 1e6 * plain_s / static_cast<double>(state.iterations());
  state.counters["times_faster"] = plain_s / model_s;
}

void SingleWall(benchmark::State& state) {
  const SingleWallInput input = PlasteredBrick();
  SideBySide(
      state, [&] { return CalculateSingleWall(input); }, [&] { return PlainSingleWall(input); });
}
BENCHMARK(SingleWall)->UseManualTime()->Iterations(20)->Unit(benchmark::kMicrosecond);

void DoubleWall(benchmark::State& state) {
  const DoubleWallInput input = BrickAndBoards(static_cast<CavityKind>(state.range(0)));
  SideBySide(
      state, [&] { return CalculateDoubleWall(input); }, [&] { return PlainDoubleWall(input); });
}
BENCHMARK(DoubleWall)
    ->ArgName("cavity")
    ->DenseRange(0, 2)
    ->UseManualTime()
    ->Iterations(50)
    ->Unit(benchmark::kMicrosecond);

void LightDoubleWall(benchmark::State& state) {
  const LightDoubleWallInput input = BoardsOnStuds();
  SideBySide(
      state, [&] { return CalculateLightDoubleWall(input); }, [&] { return PlainLightDoubleWall(input); });
}
BENCHMARK(LightDoubleWall)->UseManualTime()->Iterations(500)->Unit(benchmark::kMicrosecond);

// Where the time of a single wall goes: its loss factors, its transmission coefficients, all of its
// transmission.

void SingleWallLossFactors(benchmark::State& state) {
  const LossTerms terms = FindLossTerms(200, 0.02, 150, {4, 2.8});
  for (auto _ : state) benchmark::DoNotOptimize(FineGridLossFactors(terms));
}
BENCHMARK(SingleWallLossFactors)->Unit(benchmark::kMicrosecond);

void SingleWallCoefficients(benchmark::State& state) {
  const Plate plate{200, 1.6e7, 0.03};
  std::array<double, 21> frequencies{};
  std::array<double, 21> taus{};
  for (std::size_t j = 0; j < frequencies.size(); ++j) frequencies[j] = 450 + 5 * static_cast<double>(j);
  for (auto _ : state) {
    for (std::size_t point = 0; point < acoustics::kFineGridPoints; ++point) {
      DiffuseTau(frequencies, {&plate, 1}, {}, taus);
      benchmark::DoNotOptimize(taus);
    }
  }
}
BENCHMARK(SingleWallCoefficients)->Unit(benchmark::kMicrosecond);

void SingleWallTransmission(benchmark::State& state) {
  std::array<double, acoustics::kFineGridPoints> losses{};
  losses.fill(0.03);
  for (auto _ : state) benchmark::DoNotOptimize(SinglePlateSpectrum(200, 1.6e7, losses));
}
BENCHMARK(SingleWallTransmission)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace velmar::models
