#include <cmath>

#include <gtest/gtest.h>

#include "tests/models/layered/plain_layered.h"
#include "tests/models/layered/sample_elements.h"

namespace velmar::models {
namespace {

void ExpectSettled(const LayeredElement& element, int number) {
  const LayeredPrediction once = Predicted(element);
  const LayeredPrediction twice = Predicted(element, {1e-4, 2});
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    ASSERT_NEAR(once.cavity_path_db[band], twice.cavity_path_db[band], 0.1)
        << "stack " << number << " band " << band;
    ASSERT_NEAR(once.reduction_index_db[band], twice.reduction_index_db[band], 0.1)
        << "stack " << number << " band " << band;
  }
}

TEST(LayeredConvergence, TwiceTheNodesAndSubBandsChangeNothing) {
  StackDice dice(21);
  for (int n = 0; n < 90; ++n) ExpectSettled(dice.RollStack(1 + n % 3), n);
  for (int n = 90; n < 100; ++n) ExpectSettled(dice.RollStack(4), n);
}

TEST(LayeredConvergence, HoldsForBareMetalSheets) {
  for (const double loss : {1e-4, 1e-3, 0.01}) {
    const SolidLayer sheet{0.002, 7800, 210e9, 0.3, loss};
    LayeredElement pair = Pane(LayeredPlate{{sheet}});
    ExpectSettled(pair, 1);
    pair.leaves.push_back(LayeredPlate{{SolidLayer{0.003, 2700, 70e9, 0.33, loss}}});
    pair.cavities.push_back({{Air(0.05)}, CavityEdge::kGlazed, {}});
    ExpectSettled(pair, 2);
  }
}

TEST(LayeredConvergence, HoldsForOrthotropicSheets) {
  LayeredElement roof{4.0, 3.0, {OrthotropicPlate{8.0, 60000.0, 15.0, 0.01}}, {}, 0, false};
  ExpectSettled(roof, 1);
  roof.leaves.push_back(LayeredPlate{{SteelSheet(0.0006)}});
  roof.cavities.push_back({{Wool(0.10)}, CavityEdge::kFramed, {}});
  ExpectSettled(roof, 2);
}

// Fixed rules of very many nodes know nothing of the refinement.

TEST(LayeredConvergence, AgreesWithManyFixedNodes) {
  for (const LayeredElement& element :
       {Pane(LayeredPlate{{Glass(0.006)}}), InsulatingUnit(), BoardsOnSteelStuds()}) {
    const acoustics::Spectrum plain = PlainCavityPath(element, 24, 500);
    const acoustics::Spectrum model = Predicted(element).cavity_path_db;
    for (std::size_t band = 0; band < plain.size(); ++band) {
      EXPECT_NEAR(model[band], plain[band], 0.05) << "band " << band;
    }
  }
}

TEST(LayeredConvergence, OfAnOrthotropicSheetAgreesWithManyFixedNodes) {
  const LayeredElement sheet{4.0, 3.0, {OrthotropicPlate{10.0, 9000.0, 30.0, 0.02}}, {}, 0, false};
  // Below 0.86 fc the model adds the resonant transmission, which the plain rule leaves out for such sheets.
  const acoustics::Spectrum model = Predicted(sheet).cavity_path_db;
  for (const std::size_t band : {13u, 16u, 20u}) {
    EXPECT_NEAR(model[band], PlainCavityPathOfBand(sheet, band, 12, 300, 48), 0.1) << "band " << band;
  }
}

}  // namespace
}  // namespace velmar::models
