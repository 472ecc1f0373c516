#include <cmath>
#include <complex>
#include <numbers>

#include <gtest/gtest.h>

#include "models/layered/air.h"
#include "models/layered/stack.h"
#include "tests/models/layered/plain_layered.h"
#include "tests/models/layered/sample_elements.h"

namespace velmar::models {
namespace {

using Complex = std::complex<double>;
using std::numbers::pi;

double Decibels(double ratio) { return 10.0 * std::log10(ratio); }

TEST(LayeredPlaneWave, IsTheChainOfMatricesToRounding) {
  StackDice dice(11);
  for (int n = 0; n < 4000; ++n) {
    const LayeredElement element = dice.RollStack(1 + n % 4);
    const double f = dice.Decades(45, 5600);
    const double theta = dice.Uniform(0.0, 1.55);
    const double plain = PlainPlaneWaveTau(element, f, theta);
    const double tau = RespondToPlaneWave(LayeredStack(element), f, std::cos(theta)).transmission;
    ASSERT_NEAR(Decibels(tau / plain), 0.0, 1e-6) << "stack " << n << " f " << f << " theta " << theta;
  }
}

TEST(LayeredPlaneWave, IsTheChainOfMatricesForFiftyMillimetresOfWool) {
  LayeredElement wall = BoardsOnSteelStuds();
  wall.cavities[0].fills = {Wool(0.050)};
  for (double f = 50.0; f < 5100.0; f *= 1.07) {
    for (double theta = 0.0; theta < 1.56; theta += 0.0625) {
      const double plain = PlainPlaneWaveTau(wall, f, theta);
      const double tau = RespondToPlaneWave(LayeredStack(wall), f, std::cos(theta)).transmission;
      ASSERT_NEAR(Decibels(tau / plain), 0.0, 1e-9) << "f " << f << " theta " << theta;
    }
  }
}

TEST(LayeredPlaneWave, OfAnOrthotropicPlateFollowsTheAzimuth) {
  const LayeredElement sheet = Pane(OrthotropicPlate{10.0, 9000.0, 30.0, 0.01});
  for (double azimuth = 0.0; azimuth < 1.58; azimuth += 0.1) {
    const double plain = PlainPlaneWaveTau(sheet, 1000.0, 0.9, azimuth);
    const double tau = RespondToPlaneWave(LayeredStack(sheet), 1000.0, std::cos(0.9), azimuth).transmission;
    EXPECT_NEAR(Decibels(tau / plain), 0.0, 1e-9) << "azimuth " << azimuth;
  }
}

TEST(LayeredPlaneWave, PassesATurnedStackAlike) {
  StackDice dice(12);
  for (int n = 0; n < 2000; ++n) {
    const LayeredElement element = dice.RollStack(2 + n % 3);
    LayeredElement turned = element;
    std::reverse(turned.leaves.begin(), turned.leaves.end());
    std::reverse(turned.cavities.begin(), turned.cavities.end());
    for (LayeredCavity& cavity : turned.cavities) std::reverse(cavity.fills.begin(), cavity.fills.end());
    const double f = dice.Decades(45, 5600);
    const double cosine = dice.Uniform(0.01, 1.0);
    const double tau = RespondToPlaneWave(LayeredStack(element), f, cosine).transmission;
    const double back = RespondToPlaneWave(LayeredStack(turned), f, cosine).transmission;
    ASSERT_NEAR(Decibels(tau / back), 0.0, 1e-6) << "stack " << n;
  }
}

// What the layers absorb is found apart from the recursion: the fields are followed from the back with the
// impedances of leaves and fluids, and their losses are added up point by point.

struct Field {
  Complex pressure;
  Complex velocity;
};

double AbsorbInPlate(Complex impedance, Field& field) {
  field.pressure += impedance * field.velocity;
  return impedance.real() * std::norm(field.velocity);
}

double AbsorbInFluid(const CavityFill& fill, double f, double edge_loss, double kx, Field& field) {
  constexpr int kSteps = 400;
  const double omega = 2.0 * pi * f;
  const EquivalentFluid fluid = FillFluid(fill, f, edge_loss);
  const Complex density = fluid.density_kg_m3;
  const Complex kz = std::sqrt(omega * omega * density / fluid.bulk_modulus_pa - kx * kx);
  const Complex z = omega * density / kz;
  const Complex j(0.0, 1.0);
  const auto at = [&](double depth) {
    const Complex c = std::cos(kz * depth);
    const Complex s = std::sin(kz * depth);
    return Field{c * field.pressure + j * z * s * field.velocity,
                 j / z * s * field.pressure + c * field.velocity};
  };
  const auto loss = [&](double depth) {
    const Field here = at(depth);
    const double per_pressure =
        -omega * (1.0 / fluid.bulk_modulus_pa).imag() + kx * kx / omega * (1.0 / density).imag();
    return -omega * density.imag() * std::norm(here.velocity) + per_pressure * std::norm(here.pressure);
  };
  const double step = fill.thickness_m / kSteps;
  double sum = loss(0.0) + loss(fill.thickness_m);
  for (int i = 1; i < kSteps; ++i) sum += (i % 2 == 1 ? 4.0 : 2.0) * loss(i * step);
  field = at(fill.thickness_m);
  return sum * step / 3.0;
}

/// Share of the incident power that the layers absorb.
double Absorbed(const LayeredElement& element, double f, double cosine) {
  const double kx = 2.0 * pi * f / kLayeredSpeedOfSound * std::sqrt(1.0 - cosine * cosine);
  const double air = kLayeredAirImpedance / cosine;
  const double area = element.width_m * element.height_m;
  const double perimeter = 2.0 * (element.width_m + element.height_m);
  Field field{1.0, 1.0 / air};
  double absorbed = 0.0;
  for (std::size_t leaf = element.leaves.size(); leaf-- > 0;) {
    absorbed += AbsorbInPlate(LeafImpedance(FindLeafProperties(element.leaves[leaf]), f, kx), field);
    if (leaf == 0) break;
    const LayeredCavity& cavity = element.cavities[leaf - 1];
    const double edge_loss = EdgeLossFactor(cavity.edge, f, area, perimeter);
    for (auto fill = cavity.fills.rbegin(); fill != cavity.fills.rend(); ++fill) {
      absorbed += AbsorbInFluid(*fill, f, edge_loss, kx, field);
    }
  }
  const double incident = std::norm(0.5 * (field.pressure + air * field.velocity)) / air;
  return absorbed / incident;
}

TEST(LayeredPlaneWave, AbsorbsReflectsAndTransmitsAllThatComes) {
  StackDice dice(13);
  int checked = 0;
  for (int n = 0; n < 1200; ++n) {
    const LayeredElement element = dice.RollStack(1 + n % 4);
    bool parts = false;
    for (const LayeredLeaf& leaf : element.leaves) parts |= std::holds_alternative<SandwichPanel>(leaf);
    if (parts) continue;  // the faces of a stiff core move apart: see the test below
    const double f = dice.Decades(45, 3000);
    for (const double cosine : {0.02, 0.2, 0.5, 0.8, 1.0}) {
      const PlaneWaveResponse response = RespondToPlaneWave(LayeredStack(element), f, cosine);
      const double sum =
          std::norm(response.reflection) + response.transmission + Absorbed(element, f, cosine);
      ASSERT_NEAR(sum, 1.0, 1e-6) << "stack " << n << " f " << f << " cosine " << cosine;
      ++checked;
    }
  }
  EXPECT_GT(checked, 2000);
}

TEST(LayeredPlaneWave, LosesNothingInAStiffCoreWithoutLosses) {
  SolidLayer sheet = SteelSheet(0.001);
  sheet.kind = SolidKind::kOther;
  sheet.loss_factor = 0.0;
  const LayeredElement panel =
      Pane(SandwichPanel{sheet, {0.05, 60, 4e6, 1e7, 0.0}, SolidLayer{0.002, 7800, 210e9, 0.3, 0.0}});
  for (double f = 50.0; f < 5000.0; f *= 1.11) {
    for (const double cosine : {0.1, 0.45, 0.9}) {
      const PlaneWaveResponse response = RespondToPlaneWave(LayeredStack(panel), f, cosine);
      EXPECT_NEAR(std::norm(response.reflection) + response.transmission, 1.0, 1e-9) << f << " " << cosine;
    }
  }
}

TEST(LayeredPlaneWave, NeverGainsPowerInAStiffCore) {
  StackDice dice(14);
  for (int n = 0; n < 3000; ++n) {
    const SandwichCore core{dice.Decades(0.01, 0.3), dice.Decades(10, 300), dice.Decades(1e5, 1e9),
                            dice.Decades(1e5, 1e9), dice.Decades(1e-3, 0.3)};
    const LayeredElement panel = Pane(SandwichPanel{dice.RollSolid(), core, dice.RollSolid()});
    const PlaneWaveResponse response =
        RespondToPlaneWave(LayeredStack(panel), dice.Decades(45, 5600), dice.Uniform(0.01, 1.0));
    ASSERT_LT(std::norm(response.reflection) + response.transmission, 1.0 + 1e-9) << n;
  }
}

TEST(LayeredPlaneWave, PassesAThickAbsorberWithoutOverflow) {
  LayeredElement wall = BoardsOnSteelStuds();
  wall.cavities[0].fills = {{FillKind::kFibre, 5.0, 1e6, 200}};
  const double tau = RespondToPlaneWave(LayeredStack(wall), 5000, 0.3).transmission;
  EXPECT_TRUE(std::isfinite(tau));
  EXPECT_GE(tau, 0.0);
}

}  // namespace
}  // namespace velmar::models
