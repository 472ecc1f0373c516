#include <array>
#include <cmath>
#include <optional>
#include <random>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "models/plates/plate_stack.h"
#include "models/plates/transmission.h"
#include "tests/models/plates/plain_plate.h"
#include "tests/models/plates/plain_transmission.h"

namespace velmar::models {
namespace {

/// Random inputs, spread over decades from foil to dam.
class Dice {
 public:
  double Decades(double lowest, double highest) {
    return std::pow(10.0, Uniform(std::log10(lowest), std::log10(highest)));
  }
  double Uniform(double lowest, double highest) {
    return std::uniform_real_distribution<double>(lowest, highest)(engine_);
  }
  int Whole(int lowest, int highest) { return std::uniform_int_distribution<int>(lowest, highest)(engine_); }

  Plate RollPlate() { return {Decades(0.1, 5000), Decades(0.1, 1e9), Decades(1e-4, 3)}; }
  Cavity RollCavity() {
    const double porous = Whole(0, 2) == 0 ? 0.0 : Decades(1e-3, 0.6);
    const double depth = Whole(0, 3) == 0 && porous > 0 ? 0.0 : Decades(1e-4, 1.0);
    return {depth, porous, Decades(1, 2e5)};
  }

 private:
  std::mt19937_64 engine_{20240229};
};

TEST(PlainEquality, OfAngles) {
  Dice dice;
  for (int n = 0; n < 20000; ++n) {
    const std::array<Plate, 3> plates{dice.RollPlate(), dice.RollPlate(), dice.RollPlate()};
    const Cavity cavity = dice.RollCavity();
    const double f = dice.Decades(30, 6000);
    const double theta = dice.Uniform(0, 1.26);
    const auto used = std::span(plates).first(static_cast<std::size_t>(1 + n % 3));
    const double plain = PlainTauAngle(f, theta, used, cavity);
    ASSERT_NEAR(TauAngle(f, theta, used, cavity) / plain, 1.0, 1e-9) << "set-up " << n;
  }
}

TEST(PlainEquality, OfPoints) {
  Dice dice;
  for (int n = 0; n < 6000; ++n) {
    const std::array<Plate, 3> plates{dice.RollPlate(), dice.RollPlate(), dice.RollPlate()};
    const Cavity cavity = dice.RollCavity();
    const double f = dice.Decades(30, 6000);
    const auto used = std::span(plates).first(static_cast<std::size_t>(1 + n % 3));
    ASSERT_NEAR(PointR(f, used, cavity), PlainPointR(f, used, cavity), 1e-9) << "set-up " << n;
  }
}

TEST(PlainEquality, OfBandsOfOnePlate) {
  Dice dice;
  for (int n = 0; n < 3000; ++n) {
    const Plate plate = dice.RollPlate();
    const double f = dice.Decades(40, 5000);
    ASSERT_NEAR(BandR(f, plate), PlainBandR(f, {&plate, 1}, {}), 1e-9) << "set-up " << n;
  }
}

TEST(PlainEquality, OfBandsOfTwoAndThreePlates) {
  Dice dice;
  for (int n = 0; n < 1000; ++n) {
    const std::array<Plate, 3> plates{dice.RollPlate(), dice.RollPlate(), dice.RollPlate()};
    const Cavity cavity = dice.RollCavity();
    const double f = dice.Decades(40, 5000);
    const auto used = std::span(plates).first(static_cast<std::size_t>(2 + n % 2));
    ASSERT_NEAR(BandR(f, used, cavity), PlainBandR(f, used, cavity), 1e-9) << "set-up " << n;
  }
}

TEST(PlainEquality, OfBandsOfAbsurdPlates) {
  Dice dice;
  for (int n = 0; n < 1000; ++n) {
    const Plate plate{dice.Decades(1e-9, 1e9), dice.Decades(1e-9, 1e15), dice.Decades(1e-9, 1e6)};
    const double f = dice.Decades(1, 1e5);
    ASSERT_NEAR(BandR(f, plate), PlainBandR(f, {&plate, 1}, {}), 1e-9) << "set-up " << n;
  }
}

/// The reduction index, or none where the arithmetic came to nothing.
template <typename Formula>
std::optional<double> IndexOf(const Formula& formula) {
  try {
    return formula();
  } catch (const ArithmeticFailure&) {
    return std::nullopt;
  }
}

// Layers as deep as rooms and as dense as rock: arguments that the functions of the lanes are not made for.
TEST(PlainEquality, OfBandsOverAbsurdCavities) {
  Dice dice;
  int numbers = 0;
  for (int n = 0; n < 1000; ++n) {
    const std::array<Plate, 2> plates{dice.RollPlate(), dice.RollPlate()};
    const Cavity cavity{dice.Decades(1e-4, 200), dice.Decades(1e-4, 50), dice.Decades(1e-2, 1e8)};
    const double f = dice.Decades(40, 5000);
    const auto plain = IndexOf([&] { return PlainBandR(f, plates, cavity); });
    const auto index = IndexOf([&] { return BandR(f, plates, cavity); });
    ASSERT_EQ(index.has_value(), plain.has_value()) << "set-up " << n;
    if (!plain) continue;
    ++numbers;
    ASSERT_NEAR(*index, *plain, 1e-8) << "set-up " << n;
  }
  EXPECT_GT(numbers, 500);
  EXPECT_LT(numbers, 1000);
}

TEST(PlainEquality, OfPlateConstantsAndLossFactors) {
  Dice dice;
  for (int n = 0; n < 3000; ++n) {
    std::vector<PlateLayer> layers;
    for (int row = dice.Whole(1, 10); row > 0; --row) {
      layers.push_back({dice.Whole(1, 6), dice.Decades(0.1, 500), dice.Decades(5, 8000),
                        dice.Decades(1e-3, 220), dice.Decades(1e-4, 1), dice.Uniform(0, 0.49)});
    }
    const PlateDimensions dimensions{dice.Decades(0.2, 20), dice.Decades(0.2, 20)};
    const PlainPlate plain = FindPlainPlate(layers, dimensions);
    const PlateStack stack = SumLayers(layers);
    const double fc = CriticalFrequency(stack, stack.mass_kg_m2);
    const LossTerms terms = FindLossTerms(stack.mass_kg_m2, stack.internal_loss_factor, fc, dimensions);
    ASSERT_NEAR(fc / plain.fc, 1, 1e-13);
    ASSERT_NEAR(BendingStiffness(stack) / plain.bending, 1, 1e-13);
    ASSERT_NEAR(terms.sigma_crit / plain.sigma_crit, 1, 1e-13);
    ASSERT_NEAR(terms.sigma_cap / plain.sigma_cap, 1, 1e-13);
    ASSERT_NEAR(terms.edge_loss / plain.edge_loss, 1, 1e-12);
    ASSERT_EQ(terms.short_side_m, plain.short_side);
    for (const double f : {40.0, fc / 2, 0.7 * fc, fc, 1.13 * fc, dice.Decades(40, 5000)}) {
      ASSERT_NEAR(TotalLossFactor(terms, f, 0) / PlainTotalLossFactor(plain, f, 0), 1, 1e-12)
          << "set-up " << n;
    }
  }
}

}  // namespace
}  // namespace velmar::models
