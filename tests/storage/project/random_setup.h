#pragma once

#include <cstdint>
#include <random>

#include "elements/setup.h"

namespace velmar::storage {

/// A reproducible source of values.
class RandomSource {
 public:
  explicit RandomSource(std::uint64_t seed) : engine_(seed) {}

  /// 0 to `count` - 1.
  int Below(int count) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(count)); }
  bool Coin() { return Below(2) == 0; }
  /// A finite number of any size and sign, among them many plain ones.
  double Number();
  float Single();
  /// A text as a user types it, of characters that a project file holds.
  std::string Text();

 private:
  std::mt19937_64 engine_;
};

/// None to five values under random names, of any characters.
elements::KeyedValues RandomKeyedValues(RandomSource& random);

/// A set-up for `calculation` in which everything the project file holds is random, and the rest is as in a
/// new set-up: reading the file again must give the same.
elements::Setup RandomSetup(elements::Calculation calculation, RandomSource& random);

}  // namespace velmar::storage
