#include <ctime>

#include <benchmark/benchmark.h>

#include "tests/models/layered/plain_layered.h"
#include "tests/models/layered/sample_elements.h"

namespace velmar::models {
namespace {

/// Processor time, so that a busy machine does not count.
template <typename Run>
double Seconds(const Run& run) {
  const std::clock_t start = std::clock();
  run();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// The plain formulas take 9 frequencies a band and 256 angles, which settle to about 0.1 dB; the model
/// settles to less than a hundredth.
void Layered(benchmark::State& state, const LayeredElement& element) {
  double model_s = 0.0;
  double plain_s = 0.0;
  for (auto _ : state) {
    const double once = Seconds([&] { benchmark::DoNotOptimize(PredictLayered(element)); });
    state.SetIterationTime(once);
    model_s += once;
    plain_s += Seconds([&] { benchmark::DoNotOptimize(PlainCavityPath(element, 9, 256)); });
  }
  state.counters["plain_us"] = 1e6 * plain_s / static_cast<double>(state.iterations());
  state.counters["times_faster"] = plain_s / model_s;
}

LayeredElement TripleGlazing() {
  LayeredElement triple = InsulatingUnit();
  triple.leaves.push_back(triple.leaves[0]);
  triple.cavities.push_back(triple.cavities[0]);
  return triple;
}

BENCHMARK_CAPTURE(Layered, pane, Pane(LayeredPlate{{Glass(0.006)}}))->UseManualTime()->Iterations(10);
BENCHMARK_CAPTURE(Layered, double_wall, BoardsOnSteelStuds())->UseManualTime()->Iterations(10);
BENCHMARK_CAPTURE(Layered, insulating_unit, InsulatingUnit())->UseManualTime()->Iterations(10);
BENCHMARK_CAPTURE(Layered, triple_glazing, TripleGlazing())->UseManualTime()->Iterations(10);

}  // namespace
}  // namespace velmar::models
