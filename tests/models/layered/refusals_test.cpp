#include <cmath>
#include <functional>
#include <limits>

#include <gtest/gtest.h>

#include "tests/models/layered/sample_elements.h"

namespace velmar::models {
namespace {

/// Three leaves of all kinds but plates, which `Wall` below has.
LayeredElement Glazing() {
  return {1.23,
          1.48,
          {LaminatedPane{Glass(0.004), kStandardInterlayer, Glass(0.004)},
           SandwichPanel{SteelSheet(0.001), {0.05, 60, 4e6, 1e7, 0.02}, SteelSheet(0.001)},
           OrthotropicPlate{8.0, 60000.0, 15.0, 0.01}},
          {{{Air(0.016)}, CavityEdge::kGlazed, {}}, {{Wool(0.05)}, CavityEdge::kFramed, {}}},
          0,
          false};
}

struct Spot {
  LayeredField field;
  std::size_t part;
  std::size_t layer;
  std::function<double&(LayeredElement&)> value;
  bool takes_zero = false;
};

std::vector<Spot> WallSpots() {
  const auto board = [](LayeredElement& e) -> SolidLayer& {
    return std::get<LayeredPlate>(e.leaves[1]).layers[0];
  };
  return {
      {LayeredField::kWidth, 0, 0, [](LayeredElement& e) -> double& { return e.width_m; }},
      {LayeredField::kHeight, 0, 0, [](LayeredElement& e) -> double& { return e.height_m; }},
      {LayeredField::kBayWidth, 0, 0, [](LayeredElement& e) -> double& { return e.bay_width_m; }, true},
      {LayeredField::kThickness, 1, 0, [=](LayeredElement& e) -> double& { return board(e).thickness_m; }},
      {LayeredField::kDensity, 1, 0, [=](LayeredElement& e) -> double& { return board(e).density_kg_m3; }},
      {LayeredField::kYoungsModulus, 1, 0,
       [=](LayeredElement& e) -> double& { return board(e).youngs_modulus_pa; }},
      {LayeredField::kPoissonsRatio, 1, 0,
       [=](LayeredElement& e) -> double& { return board(e).poissons_ratio; }, true},
      {LayeredField::kLossFactor, 1, 0, [=](LayeredElement& e) -> double& { return board(e).loss_factor; },
       true},
      {LayeredField::kFillThickness, 0, 1,
       [](LayeredElement& e) -> double& { return e.cavities[0].fills[1].thickness_m; }, true},
      {LayeredField::kFlowResistivity, 0, 0,
       [](LayeredElement& e) -> double& { return e.cavities[0].fills[0].flow_resistivity_pa_s_m2; }},
      {LayeredField::kFillDensity, 0, 0,
       [](LayeredElement& e) -> double& { return e.cavities[0].fills[0].density_kg_m3; }},
      {LayeredField::kConnectionDensity, 0, 0,
       [](LayeredElement& e) -> double& { return e.cavities[0].connections[0].density; }},
      {LayeredField::kConnectionCompliance, 0, 0,
       [](LayeredElement& e) -> double& { return e.cavities[0].connections[0].compliance; }, true},
  };
}

std::vector<Spot> GlazingSpots() {
  const auto sheet = [](LayeredElement& e) -> Interlayer& {
    return std::get<LaminatedPane>(e.leaves[0]).interlayer;
  };
  const auto core = [](LayeredElement& e) -> SandwichCore& {
    return std::get<SandwichPanel>(e.leaves[1]).core;
  };
  const auto roof = [](LayeredElement& e) -> OrthotropicPlate& {
    return std::get<OrthotropicPlate>(e.leaves[2]);
  };
  return {
      {LayeredField::kThickness, 0, 2,
       [](LayeredElement& e) -> double& { return std::get<LaminatedPane>(e.leaves[0]).inner.thickness_m; }},
      {LayeredField::kInterlayerThickness, 0, 1,
       [=](LayeredElement& e) -> double& { return sheet(e).thickness_m; }},
      {LayeredField::kInterlayerDensity, 0, 1,
       [=](LayeredElement& e) -> double& { return sheet(e).density_kg_m3; }},
      {LayeredField::kInterlayerShearModulus, 0, 1,
       [=](LayeredElement& e) -> double& { return sheet(e).shear_modulus_at_1khz_pa; }},
      {LayeredField::kInterlayerExponent, 0, 1,
       [=](LayeredElement& e) -> double& { return sheet(e).frequency_exponent; }, true},
      {LayeredField::kInterlayerLossTangent, 0, 1,
       [=](LayeredElement& e) -> double& { return sheet(e).loss_tangent; }, true},
      {LayeredField::kDensity, 1, 0,
       [](LayeredElement& e) -> double& { return std::get<SandwichPanel>(e.leaves[1]).outer.density_kg_m3; }},
      {LayeredField::kCoreThickness, 1, 1, [=](LayeredElement& e) -> double& { return core(e).thickness_m; }},
      {LayeredField::kCoreDensity, 1, 1, [=](LayeredElement& e) -> double& { return core(e).density_kg_m3; }},
      {LayeredField::kCoreShearModulus, 1, 1,
       [=](LayeredElement& e) -> double& { return core(e).shear_modulus_pa; }},
      {LayeredField::kCoreCompressionModulus, 1, 1,
       [=](LayeredElement& e) -> double& { return core(e).compression_modulus_pa; }},
      {LayeredField::kCoreLossFactor, 1, 1, [=](LayeredElement& e) -> double& { return core(e).loss_factor; },
       true},
      {LayeredField::kSurfaceMass, 2, 0, [=](LayeredElement& e) -> double& { return roof(e).mass_kg_m2; }},
      {LayeredField::kBendingStiff, 2, 0,
       [=](LayeredElement& e) -> double& { return roof(e).bending_stiff_n_m; }},
      {LayeredField::kBendingSoft, 2, 0,
       [=](LayeredElement& e) -> double& { return roof(e).bending_soft_n_m; }},
      {LayeredField::kLossFactor, 2, 0, [=](LayeredElement& e) -> double& { return roof(e).loss_factor; },
       true},
  };
}

void ExpectRefused(const LayeredElement& sound, const std::vector<Spot>& spots) {
  ASSERT_TRUE(std::holds_alternative<LayeredPrediction>(PredictLayered(sound)));
  for (const Spot& spot : spots) {
    std::vector<double> hostile = {-1.0,
                                   -1e-300,
                                   1e30,
                                   std::numeric_limits<double>::infinity(),
                                   -std::numeric_limits<double>::infinity(),
                                   std::numeric_limits<double>::quiet_NaN()};
    if (!spot.takes_zero) hostile.push_back(0.0);
    for (const double value : hostile) {
      LayeredElement element = sound;
      spot.value(element) = value;
      const LayeredOutcome outcome = PredictLayered(element);
      const auto* refusal = std::get_if<LayeredRefusal>(&outcome);
      ASSERT_NE(refusal, nullptr) << static_cast<int>(spot.field) << " took " << value;
      EXPECT_EQ(refusal->field, spot.field) << value;
      EXPECT_EQ(refusal->part, spot.part) << static_cast<int>(spot.field);
      EXPECT_EQ(refusal->layer, spot.layer) << static_cast<int>(spot.field);
      EXPECT_FALSE(value >= refusal->lowest && value <= refusal->highest);
      if (!std::isnan(value)) {
        EXPECT_EQ(refusal->value, value);
      }
    }
  }
}

TEST(LayeredRefusals, NameTheFieldOfAWall) { ExpectRefused(BoardsOnSteelStuds(), WallSpots()); }
TEST(LayeredRefusals, NameTheFieldOfAGlazing) { ExpectRefused(Glazing(), GlazingSpots()); }

LayeredField FieldOf(const LayeredElement& element) {
  return std::get<LayeredRefusal>(PredictLayered(element)).field;
}

TEST(LayeredRefusals, CountLeavesCavitiesAndLayers) {
  EXPECT_EQ(FieldOf({3, 2, {}, {}, 0, false}), LayeredField::kLeafCount);
  LayeredElement five = Pane(LayeredPlate{{Glass(0.004)}});
  for (int n = 0; n < 4; ++n) {
    five.leaves.push_back(five.leaves[0]);
    five.cavities.push_back({});
  }
  EXPECT_EQ(FieldOf(five), LayeredField::kLeafCount);
  LayeredElement open = InsulatingUnit();
  open.cavities.clear();
  EXPECT_EQ(FieldOf(open), LayeredField::kCavityCount);
  EXPECT_EQ(FieldOf(Pane(LayeredPlate{})), LayeredField::kLayerCount);
}

TEST(LayeredRefusals, ValuesAtTheLimitsGiveFiniteLevels) {
  std::vector<LayeredElement> elements;
  for (const double size : {0.1, 100.0}) {
    for (const double e : {1e3, 5e12}) {
      for (const double h : {1e-5, 3.0}) {
        for (const double density : {1.0, 30000.0}) {
          for (const double loss : {0.0, 1.0}) {
            LayeredElement wall{size, size, {LayeredPlate{{SolidLayer{h, density, e, 0.499, loss}}}},
                                {},   0,    false};
            elements.push_back(wall);
            wall.leaves.push_back(wall.leaves[0]);
            wall.cavities.push_back({{{FillKind::kFibre, 5.0, 1e7, 3000.0}, Air(0.0)},
                                     CavityEdge::kGlazed,
                                     {{ConnectionKind::kPoint, 1000.0, 0.0}}});
            elements.push_back(wall);
          }
        }
      }
    }
  }
  for (const LayeredElement& element : elements) {
    const LayeredPrediction prediction = Predicted(element);
    for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
      ASSERT_TRUE(std::isfinite(prediction.reduction_index_db[band]));
      ASSERT_TRUE(std::isfinite(prediction.cavity_path_db[band]));
      ASSERT_GE(prediction.reduction_index_db[band], 0.0);
    }
  }
}

}  // namespace
}  // namespace velmar::models
