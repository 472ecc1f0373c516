#include "models/floors/resilient_mats.h"

#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/floors/floor_mass.h"
#include "tests/models/floors/sample_floors.h"

namespace velmar::models {
namespace {

struct StiffnessCase {
  const char* what;
  std::vector<ResilientMat> layers;
  double expected_mn_m3;
};

class CombinedStiffness : public testing::TestWithParam<StiffnessCase> {};

TEST_P(CombinedStiffness, AddsTheCompliances) {
  EXPECT_DOUBLE_EQ(CombinedDynamicStiffness(GetParam().layers), GetParam().expected_mn_m3) << GetParam().what;
}

ResilientMat Mats(int multiplicity, double dynamic_stiffness_mn_m3) {
  ResilientMat layer = Mat(dynamic_stiffness_mn_m3);
  layer.multiplicity = multiplicity;
  return layer;
}

INSTANTIATE_TEST_SUITE_P(Layers, CombinedStiffness,
                         testing::Values(StiffnessCase{"none", {}, 0.0},
                                         StiffnessCase{"one", {Mat(40.0)}, 40.0},
                                         StiffnessCase{"two sheets are half as stiff", {Mats(2, 40.0)}, 20.0},
                                         // 1/40 + 1/40 + 1/20 = 1/10
                                         StiffnessCase{"in a row", {Mats(2, 40.0), Mat(20.0)}, 10.0},
                                         StiffnessCase{"one tells none", {Mat(0.0), Mat(20.0)}, 20.0},
                                         StiffnessCase{"all tell none", {Mat(0.0), Mat(0.0)}, 0.0}));

TEST(CombinedStiffness, FailsOnWhatIsNoStiffness) {
  for (const double wrong :
       {-5.0, std::numeric_limits<double>::quiet_NaN(), 1e-310, std::numeric_limits<double>::infinity()}) {
    try {
      CombinedDynamicStiffness(std::vector{Mat(20.0), Mat(wrong)});
      ADD_FAILURE() << wrong;
    } catch (const ArithmeticFailure& failure) {
      EXPECT_EQ(LeadingRow(failure.UserMessage().at(1)), kInvalidDynamicStiffnessRow);
    }
  }
}

// 2 x 10 mm x 30 kg/m³ = 0.6 kg/m²; a density below 0 stands for none.
TEST(SurfaceMass, CountsEverySheetOfKnownDensity) {
  ResilientMat unknown = Mat(20.0);
  unknown.density_kg_m3 = -1.0;
  EXPECT_DOUBLE_EQ(SurfaceMass(std::vector{Mats(2, 20.0), unknown}), 0.6);
  PlateLayer screed = Mortar(25.0);
  screed.multiplicity = 2;
  EXPECT_DOUBLE_EQ(SurfaceMass(std::vector{Concrete(160.0), screed}), 484.0);
  EXPECT_EQ(SurfaceMass(std::vector<PlateLayer>{}), 0.0);
}

}  // namespace
}  // namespace velmar::models
