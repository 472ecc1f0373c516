#include "models/layered/quadrature.h"

#include <array>
#include <cmath>

#include <gtest/gtest.h>

namespace velmar::models {
namespace {

constexpr std::array<double, 2> kUnit = {0.0, 1.0};

double Power(const QuadratureEffort& effort, int exponent) {
  return IntegrateLanes(kUnit, effort, [&](const Lanes& x, Lanes& y) {
    for (std::size_t l = 0; l < kAngleLanes; ++l) y[l] = std::pow(x[l], exponent);
  });
}

// Kronrod 15 is exact to degree 22, Kronrod 7 to degree 10.
TEST(LayeredQuadrature, IsExactForPolynomials) {
  for (int exponent = 0; exponent <= 22; ++exponent) {
    EXPECT_NEAR(Power({1e9, 0}, exponent) * (exponent + 1), 1.0, 1e-13) << exponent;
  }
  for (int exponent = 0; exponent <= 10; ++exponent) {
    const double integral = IntegratePoints<double>(
        kUnit, {1e9, 0}, [&](double x) { return std::pow(x, exponent); }, [](double v) { return v; });
    EXPECT_NEAR(integral * (exponent + 1), 1.0, 1e-13) << exponent;
  }
}

TEST(LayeredQuadrature, FindsANarrowPeakAtACut) {
  constexpr double kWidth = 1e-5;
  constexpr double kPlace = 0.3;
  const std::array<double, 3> cuts = {0.0, kPlace, 1.0};
  const double integral = IntegrateLanes(cuts, {1e-6, 2000}, [](const Lanes& x, Lanes& y) {
    for (std::size_t l = 0; l < kAngleLanes; ++l) {
      const double off = (x[l] - kPlace) / kWidth;
      y[l] = 1.0 / (1.0 + off * off);
    }
  });
  EXPECT_NEAR(integral / (kWidth * (std::atan(0.7 / kWidth) + std::atan(0.3 / kWidth))), 1.0, 1e-6);
}

TEST(LayeredQuadrature, EndsOnAFunctionThatNeverSettles) {
  int calls = 0;
  IntegratePoints<double>(
      kUnit, {1e-12, 50}, [&](double) { return static_cast<double>(++calls % 7); },
      [](double v) { return v; });
  EXPECT_EQ(calls, 7 + 50 * 14);
}

}  // namespace
}  // namespace velmar::models
