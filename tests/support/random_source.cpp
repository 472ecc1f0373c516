#include "tests/support/random_source.h"

#include <array>
#include <bit>
#include <cmath>

namespace velmar::tests {

double RandomSource::AnyNumber() {
  switch (Below(4)) {
    case 0:
      return Below(3000);
    case 1:
      return Below(100'000) / 1000.0;
    case 2:
      return -Below(1000) / 8.0;
    default: {
      const double value = std::bit_cast<double>(engine_());
      return std::isfinite(value) ? value : 0.0;
    }
  }
}

float RandomSource::AnySingle() {
  const float value = std::bit_cast<float>(static_cast<std::uint32_t>(engine_()));
  return Coin() && std::isfinite(value) ? value : static_cast<float>(Below(10'000)) / 16.0F;
}

std::string RandomSource::AnyText() {
  constexpr std::array<const char*, 12> kPieces = {"Laterizio", "perché",  "2,5",    "°C", "30 %", "€",
                                                   "\"x\"",     "a = {b}", "lana;y", "'",  "/",    "Ø 12"};
  std::string text;
  for (int pieces = Below(4); pieces >= 0; --pieces) {
    text += kPieces.at(static_cast<std::size_t>(Below(static_cast<int>(kPieces.size()))));
    if (pieces > 0) text += ' ';
  }
  return text;
}

elements::KeyedValues RandomKeyedValues(RandomSource& random) {
  constexpr std::array<const char*, 12> kPieces = {"x",  " ", "\\",      "\n", "\r", "€",
                                                   "漢", "😀", "e\u0300", "\t", "=",  "\\u{41}"};
  elements::KeyedValues values;
  for (int count = random.Below(6); count > 0; --count) {
    std::string text;
    for (int pieces = random.Below(8); pieces > 0; --pieces)
      text += kPieces.at(static_cast<std::size_t>(random.Below(static_cast<int>(kPieces.size()))));
    values.Set<std::string>({"nome." + std::to_string(random.Below(100))}, text);
  }
  return values;
}

}  // namespace velmar::tests
