#pragma once

#include <cstdint>
#include <random>
#include <string>

#include "elements/setup.h"

namespace velmar::tests {

/// A source of values that is the same on every machine: std::uniform_*_distribution is not.
class RandomSource {
 public:
  explicit RandomSource(std::uint64_t seed) : engine_(seed) {}

  /// 0 to `count` - 1.
  int Below(int count) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(count)); }
  int Whole(int lowest, int highest) { return lowest + Below(highest - lowest + 1); }
  bool Coin() { return Below(2) == 0; }
  /// From 0 to 1.
  double Unit() { return static_cast<double>(engine_() >> 11U) * 0x1p-53; }
  /// A finite number of any size and sign, among them many plain ones.
  double AnyNumber();
  float AnySingle();
  /// A text as a user types it, of characters that a project file holds.
  std::string AnyText();

 private:
  std::mt19937_64 engine_;
};

/// None to five values under random names, of any characters.
elements::KeyedValues RandomKeyedValues(RandomSource& random);

}  // namespace velmar::tests
