#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace velmar::models {

// Sixteen angles side by side. The functions are additions, products and quotients alone, without a branch,
// so that the compiler turns a loop over the lanes into vectors and every machine gives the same bits.

inline constexpr std::size_t kAngleLanes = 16;
using Lanes = std::array<double, kAngleLanes>;

/// Nearest whole number of `x`, ties to even; |x| below 2^51.
inline double LaneRound(double x) {
  constexpr double kShift = 6755399441055744.0;  // 1.5 * 2^52: the fraction falls off
  return (x + kShift) - kShift;
}

/// e^x for x in [-700, 0], to about two units in the last place.
inline double LaneExp(double x) {
  constexpr double kLog2E = 1.4426950408889634;
  constexpr double kLn2High = 0.693147180369123816490;
  constexpr double kLn2Low = 1.90821492927058770002e-10;
  constexpr double kExponentShift = 4503599627370496.0 + 1023.0;  // 2^52 and the bias
  const double whole = LaneRound(x * kLog2E);
  const double r = (x - whole * kLn2High) - whole * kLn2Low;
  double p = 1.0 / 6227020800.0;
  p = p * r + 1.0 / 479001600.0;
  p = p * r + 1.0 / 39916800.0;
  p = p * r + 1.0 / 3628800.0;
  p = p * r + 1.0 / 362880.0;
  p = p * r + 1.0 / 40320.0;
  p = p * r + 1.0 / 5040.0;
  p = p * r + 1.0 / 720.0;
  p = p * r + 1.0 / 120.0;
  p = p * r + 1.0 / 24.0;
  p = p * r + 1.0 / 6.0;
  p = p * r + 0.5;
  p = p * r + 1.0;
  p = p * r + 1.0;
  const auto power = std::bit_cast<std::uint64_t>(whole + kExponentShift) << 52;
  return p * std::bit_cast<double>(power);
}

struct LaneTurn {
  double sine;
  double cosine;
};

/// Sine and cosine of `x`, 0 to 1e6, to about two units in the last place of 1.
inline LaneTurn LaneSineCosine(double x) {
  constexpr double kTwoOverPi = 0.63661977236758134308;
  constexpr double kHalfPi1 = 1.57079632673412561417e+00;
  constexpr double kHalfPi2 = 6.07710050630396597660e-11;
  constexpr double kHalfPi3 = 2.02226624879595063154e-21;
  const double quarter = LaneRound(x * kTwoOverPi);
  const double r = ((x - quarter * kHalfPi1) - quarter * kHalfPi2) - quarter * kHalfPi3;
  const double r2 = r * r;
  double s = 1.0 / 355687428096000.0;
  s = s * r2 - 1.0 / 1307674368000.0;
  s = s * r2 + 1.0 / 6227020800.0;
  s = s * r2 - 1.0 / 39916800.0;
  s = s * r2 + 1.0 / 362880.0;
  s = s * r2 - 1.0 / 5040.0;
  s = s * r2 + 1.0 / 120.0;
  s = s * r2 - 1.0 / 6.0;
  s = r + r * r2 * s;
  double c = 1.0 / 20922789888000.0;
  c = c * r2 - 1.0 / 87178291200.0;
  c = c * r2 + 1.0 / 479001600.0;
  c = c * r2 - 1.0 / 3628800.0;
  c = c * r2 + 1.0 / 40320.0;
  c = c * r2 - 1.0 / 720.0;
  c = c * r2 + 1.0 / 24.0;
  c = c * r2 - 0.5;
  c = 1.0 + r2 * c;
  // Odd quarters swap sine and cosine; the signs follow from the number of halves.
  const double pair = quarter - 4.0 * LaneRound(0.25 * quarter - 0.375);  // 0 to 3
  const double half = LaneRound(0.5 * pair - 0.25);                       // 0, 0, 1, 1
  const double odd = pair - 2.0 * half;
  const double even = 1.0 - odd;
  const double sine_sign = 1.0 - 2.0 * half;
  const double cosine_sign = sine_sign * (1.0 - 2.0 * odd);
  return {sine_sign * (even * s + odd * c), cosine_sign * (even * c + odd * s)};
}

}  // namespace velmar::models
