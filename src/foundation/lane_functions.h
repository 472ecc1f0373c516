#pragma once

#include <bit>
#include <cstdint>

#include "foundation/wide_vectors.h"

namespace velmar {

// Functions for loops that run several numbers side by side: additions, products and quotients alone, without
// a branch, so that the compiler turns such a loop into vectors and every machine gives the same bits.

/// ln 2 in two parts: a small whole number times the first is exact.
inline constexpr double kLn2High = 0.693147180369123816490;
inline constexpr double kLn2Low = 1.90821492927058770002e-10;
/// 2^52 and the bias of an exponent: a whole number added to it stands as an exponent in the last bits.
inline constexpr double kExponentShift = 4503599627370496.0 + 1023.0;

/// Nearest whole number of `x`, ties to even; |x| below 2^51.
VELMAR_LANE_FUNCTION double LaneRound(double x) {
  constexpr double kShift = 6755399441055744.0;  // 1.5 * 2^52: the fraction falls off
  return (x + kShift) - kShift;
}

/// e^x for x in [-700, 700], to about two units in the last place.
VELMAR_LANE_FUNCTION double LaneExp(double x) {
  constexpr double kLog2E = 1.4426950408889634;
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

/// Natural logarithm of `x`, positive, finite and not below the smallest normal number (2.3e-308), to about
/// two units in the last place. The library's may differ in its last bit from one processor to the next; this
/// does not.
VELMAR_LANE_FUNCTION double LaneLog(double x) {
  constexpr std::uint64_t kOne = std::uint64_t{0x3ff} << 52;
  constexpr std::uint64_t kRootOfHalf = 0x3fe6a09e667f3bcd;
  constexpr std::uint64_t kTwoTo52 = std::uint64_t{0x433} << 52;
  // x = m 2^k with m from the root of a half to the root of two.
  const auto bits = std::bit_cast<std::uint64_t>(x);
  const std::uint64_t biased = (bits + (kOne - kRootOfHalf)) >> 52;
  const double m = std::bit_cast<double>(bits - (biased << 52) + kOne);
  const double k = std::bit_cast<double>(biased | kTwoTo52) - kExponentShift;
  // ln m = 2 artanh s
  const double f = m - 1.0;
  const double s = f / (2.0 + f);
  const double z = s * s;
  double p = 2.0 / 21.0;
  p = p * z + 2.0 / 19.0;
  p = p * z + 2.0 / 17.0;
  p = p * z + 2.0 / 15.0;
  p = p * z + 2.0 / 13.0;
  p = p * z + 2.0 / 11.0;
  p = p * z + 2.0 / 9.0;
  p = p * z + 2.0 / 7.0;
  p = p * z + 2.0 / 5.0;
  p = p * z + 2.0 / 3.0;
  // 2 s is f - s f; the rest is small beside it.
  return k * kLn2High + (f - (s * (f - z * p) - k * kLn2Low));
}

/// Of an angle.
struct LaneTurn {
  double sine;
  double cosine;
};

/// Sine and cosine of `x`, 0 to 1e6, to about two units in the last place of 1.
VELMAR_LANE_FUNCTION LaneTurn LaneSineCosine(double x) {
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

}  // namespace velmar
