#include "models/plates/transmission.h"

#include <array>
#include <cmath>
#include <complex>
#include <numbers>

#include <gtest/gtest.h>

#include "foundation/failure.h"

namespace velmar::models {
namespace {

const Plate kPane{15, 1312.5, 0.02};
const Cavity kEmpty{0.05, 0, 6000};

// f = 1000 Hz, k = 6283.2 / 350.9 = 17.905956, theta = 45 degrees:
// imaginary part 6283.2 * 15 - 1312.5 (17.905956 * 0.70710678)^4 / 6283.2 = 88879.5551
// real part 0.02 * 1312.5 (...)^4 / 6283.2 = 107.368898
// tau = (905.322 / 0.70710678)² / ((905.322 / 0.70710678 + 107.368898)² + 88879.5551²) = 2.0745626e-4
TEST(TauAngle, OfAPaneAt45Degrees) {
  const double theta = std::numbers::pi / 4;
  EXPECT_NEAR(PlateImag(1000, theta, kPane), 88879.55510422238, 1e-8);
  EXPECT_NEAR(PlateReal(1000, theta, kPane), 107.36889791555237, 1e-10);
  EXPECT_NEAR(TauAngle(1000, theta, {&kPane, 1}, {}), 0.00020745626039588014, 1e-16);
}

TEST(TauAngle, ActsByMassAloneAtNormalIncidence) {
  for (const double bending : {0.0, 10.0, 1e9}) {
    const Plate plate{15, bending, 0.5};
    EXPECT_EQ(PlateReal(1000, 0, plate), 0);
    EXPECT_DOUBLE_EQ(TauAngle(1000, 0, {&plate, 1}, {}),
                     905.322 * 905.322 / (905.322 * 905.322 + std::pow(6283.2 * 15, 2)));
  }
}

TEST(TauAngle, NeverExceedsOneForOnePlate) {
  for (const double mass : {0.0, 1.0, 30.0, 500.0}) {
    for (const double bending : {0.0, 100.0, 1e5, 1e8}) {
      const Plate plate{mass, bending, 0.01};
      for (double f = 40; f < 5000; f += 310) {
        for (double theta = 0; theta < 1.26; theta += 0.05)
          ASSERT_LE(TauAngle(f, theta, {&plate, 1}, {}), 1.0);
      }
    }
  }
}

TEST(TauAngle, OfNoPlateOrFourIsZero) {
  const std::array<Plate, 4> plates{kPane, kPane, kPane, kPane};
  EXPECT_EQ(TauAngle(500, 0.5, std::span(plates).first(0), kEmpty), 0);
  EXPECT_EQ(TauAngle(500, 0.5, plates, kEmpty), 0);
  EXPECT_EQ(Tau(500, plates, kEmpty), 0);
  EXPECT_THROW(PointR(500, plates, kEmpty), ArithmeticFailure);
  EXPECT_THROW(BandR(500, plates, kEmpty), ArithmeticFailure);
}

TEST(TauAngle, CountsTheAirThreeTimesBetweenPlates) {
  // Without porous layer the cavity is -j Z0 cot(kd) / cos theta.
  const std::array<Plate, 2> plates{Plate{10, 0, 0}, Plate{20, 0, 0}};
  const double theta = 0.4;
  const double air = 452.661 / std::cos(theta);
  const double kd = 6.2832 * 500 / 350.9 * 0.05;
  const double imag = 6.2832 * 500 * 30 - air / std::tan(kd);
  EXPECT_NEAR(TauAngle(500, theta, plates, kEmpty), 4 * air * air / (9 * air * air + imag * imag), 1e-15);
}

TEST(Cavity, OfAirAloneIsAStandingWave) {
  const double kd = 6.2832 * 700 / 350.9 * 0.05;
  EXPECT_NEAR(CavityReal(700, 0.3, kEmpty), 0, 1e-9);
  EXPECT_NEAR(CavityImag(700, 0.3, kEmpty), -452.661 / std::tan(kd) / std::cos(0.3), 1e-9);
}

TEST(Cavity, OfAPorousLayerAloneFollowsTheLaterallyInfiniteLayer) {
  // d = 0: Z = -j Z0 Zc cot(a + jb), with X = 1.29 / 6000 * 500 = 0.1075.
  const double x = 0.1075;
  const std::complex<double> zc(1 + 0.0571 * std::pow(x, -0.754), -0.087 * std::pow(x, -0.732));
  const double phase = 6.2832 * 500 * 0.04 / 350.9;
  const std::complex<double> z(phase * (1 + 0.0978 * std::pow(x, -0.7)),
                               -phase * 0.189 * std::pow(x, -0.595));
  const std::complex<double> expected = std::complex<double>(0, -452.661) * zc / std::tan(z);
  const Cavity cavity{0, 0.04, 6000};
  for (const double theta : {0.0, 0.6, 1.2}) {
    EXPECT_NEAR(CavityReal(500, theta, cavity), expected.real(), 1e-9);
    EXPECT_NEAR(CavityImag(500, theta, cavity), expected.imag(), 1e-9);
  }
}

TEST(Tau, TendsToZeroForAVeryHeavyPlate) {
  double last = 1;
  for (const double mass : {1e2, 1e4, 1e6, 1e8}) {
    const Plate plate{mass, 1000, 0.01};
    const double tau = Tau(1000, {&plate, 1}, {});
    EXPECT_LT(tau, last * 2e-4);
    last = tau;
  }
  EXPECT_LT(last, 1e-16);
}

TEST(Tau, IsNotDividedByTheIntegralOfItsWeights) {
  // A plate of no mass lets everything through: what is left is the trapezoidal sum of sin 2 theta up to 72
  // degrees, sin²(72°) = 0.9045 less the error of 20 steps.
  const Plate nothing{};
  const double step = 3.1416 / 40 * 0.8;
  double sum = 0;
  for (int i = 1; i < 20; ++i) sum += step * std::sin(2 * step * i);
  sum += step * std::sin(40 * step) / 2;
  EXPECT_NEAR(Tau(500, {&nothing, 1}, {}), sum, 1e-14);
  EXPECT_NEAR(sum, 0.9045, 2e-3);
}

TEST(BandR, OfAConstantPointRIsThatConstant) {
  const Plate nothing{};
  EXPECT_NEAR(BandR(500, nothing), PointR(500, {&nothing, 1}, {}), 1e-12);
}

TEST(BandR, IsTheTrapezoidalMeanOfPointR) {
  double sum = 0;
  for (int j = 0; j <= 20; ++j) {
    const double f = 800 / std::pow(2, 1 / 6.0) * (1 + (std::pow(2, 1 / 3.0) - 1) * j / 20);
    sum += (j == 0 || j == 20 ? 0.5 : 1.0) * PointR(f, {&kPane, 1}, {});
  }
  EXPECT_NEAR(BandR(800, kPane), sum / 20, 1e-11);
}

TEST(BandR, StaysExactWhereTheProductOfItsPointsWouldVanish) {
  const Plate wall{1e12, 0, 0};
  EXPECT_NEAR(BandR(1000, wall), PointR(1000, {&wall, 1}, {}), 0.1);
  EXPECT_GT(BandR(1000, wall), 250);
}

TEST(BandR, IsSymmetricalInItsPlates) {
  const std::array<Plate, 3> plates{kPane, Plate{9, 200, 0.05}, Plate{40, 9e4, 0.02}};
  const std::array<Plate, 3> turned{plates[2], plates[1], plates[0]};
  EXPECT_NEAR(BandR(630, plates, kEmpty), BandR(630, turned, kEmpty), 1e-11);
}

TEST(BandR, TakesAThirdPlateOfNothingAsTwoPlates) {
  const std::array<Plate, 3> plates{kPane, Plate{9, 200, 0.05}, Plate{}};
  EXPECT_EQ(BandR(630, plates, kEmpty), BandR(630, std::span(plates).first(2), kEmpty));
}

TEST(BandR, RefusesACavityWithoutFlowResistivity) {
  const std::array<Plate, 2> plates{kPane, kPane};
  EXPECT_THROW(BandR(500, plates, Cavity{0.05, 0, 0}), ArithmeticFailure);
  EXPECT_THROW(BandR(500, plates, Cavity{0.05, 0.02, -5}), ArithmeticFailure);
  EXPECT_NO_THROW(BandR(500, std::span(plates).first(1), Cavity{0.05, 0, 0}));
}

TEST(BandR, RefusesAnAbsurdPorousLayer) {
  const std::array<Plate, 2> plates{kPane, kPane};
  EXPECT_THROW(BandR(5000, plates, Cavity{0, 50, 1e6}), ArithmeticFailure);
}

}  // namespace
}  // namespace velmar::models
