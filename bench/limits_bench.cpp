// What this machine can do at most of the operation that a model waits for, measured beside the models.
#include <array>

#include <benchmark/benchmark.h>

#include "foundation/wide_vectors.h"

namespace velmar {
namespace {

constexpr std::size_t kNumbers = 512;  // near enough to be read at once
using Numbers = std::array<double, kNumbers>;

VELMAR_WIDE_VECTORS void Divide(const Numbers& dividends, const Numbers& divisors, Numbers& quotients) {
  for (std::size_t i = 0; i < kNumbers; ++i) quotients[i] = dividends[i] / divisors[i];
}

Numbers SomeNumbers() {
  Numbers numbers{};
  for (std::size_t i = 0; i < kNumbers; ++i) numbers[i] = 1.5 + 0.37 * static_cast<double>(i);
  return numbers;
}

/// Quotients side by side in the widest vectors.
void MachineDivisions(benchmark::State& state) {
  const Numbers dividends = SomeNumbers();
  Numbers divisors = SomeNumbers();
  divisors[0] = 3.0;
  Numbers quotients{};
  for (auto _ : state) {
    Divide(dividends, divisors, quotients);
    benchmark::DoNotOptimize(quotients);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kNumbers));
}
BENCHMARK(MachineDivisions);

}  // namespace
}  // namespace velmar
