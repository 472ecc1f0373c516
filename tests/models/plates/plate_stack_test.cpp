#include "models/plates/plate_stack.h"

#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::models {
namespace {

const PlateLayer kGlass{1, 6, 2500, 70, 0.01, 0.2};

PlateStack Sum(std::vector<PlateLayer> layers) { return SumLayers(layers); }

// One 6 mm pane: h = 0.006 m, E h²/(1 - nu²) = 70e9 * 3.6e-5 / 0.96 = 2.625e6 N, m' = 2500 * 0.006 = 15
// kg/m², B = 2.625e6 * 0.006 / 12 = 1312.5 N·m, fc = 350.9²/6.2832 * sqrt(12 * 2500 / 2.625e6) = 2094.989381
// Hz.
TEST(PlateStack, OfOnePane) {
  const PlateStack stack = Sum({kGlass});
  EXPECT_DOUBLE_EQ(stack.thickness_m, 0.006);
  EXPECT_DOUBLE_EQ(stack.stiffness_n, 2.625e6);
  EXPECT_DOUBLE_EQ(stack.mass_kg_m2, 15);
  EXPECT_DOUBLE_EQ(stack.internal_loss_factor, 0.01);
  EXPECT_DOUBLE_EQ(BendingStiffness(stack), 1312.5);
  EXPECT_NEAR(CriticalFrequency(stack, stack.mass_kg_m2), 2094.9893810977055, 1e-9);
}

TEST(PlateStack, TakesTwoSheetsAsOneOfTwiceTheThickness) {
  PlateLayer two_sheets = kGlass;
  two_sheets.multiplicity = 2;
  PlateLayer thick_sheet = kGlass;
  thick_sheet.thickness_mm = 12;
  EXPECT_EQ(Sum({two_sheets}).stiffness_n, Sum({thick_sheet}).stiffness_n);
  EXPECT_EQ(Sum({two_sheets}).mass_kg_m2, Sum({thick_sheet}).mass_kg_m2);
  EXPECT_EQ(Sum({two_sheets}).thickness_m, 0.012);
}

TEST(PlateStack, AddsTheStiffnessOfEachLayersOwnThickness) {
  const PlateStack stack = Sum({kGlass, {1, 12.5, 900, 3, 0.03, 0.3}});
  EXPECT_DOUBLE_EQ(stack.stiffness_n, 2.625e6 + 3e9 * 0.0125 * 0.0125 / (1 - 0.3 * 0.3));
  EXPECT_DOUBLE_EQ(stack.internal_loss_factor, (0.01 * 0.006 + 0.03 * 0.0125) / 0.0185);
  EXPECT_DOUBLE_EQ(BendingStiffness(stack), stack.stiffness_n * 0.0185 / 12);
}

TEST(PlateStack, CarriesAFurtherMassInItsCriticalFrequency) {
  const PlateStack stack = Sum({kGlass});
  EXPECT_DOUBLE_EQ(CriticalFrequency(stack, 60), 2 * CriticalFrequency(stack, 15));
}

struct RefusedStack {
  const char* name;
  std::vector<PlateLayer> layers;
  MessageRow cause;
};

class RefusedStackTest : public testing::TestWithParam<RefusedStack> {};

TEST_P(RefusedStackTest, NamesItsCause) {
  try {
    const PlateStack stack = SumLayers(GetParam().layers);
    CriticalFrequency(stack, stack.mass_kg_m2);
    FAIL() << "no failure";
  } catch (const ArithmeticFailure& failure) {
    EXPECT_EQ(failure.UserMessage(), (Message{{kArithmeticFailureRow}, {GetParam().cause}}))
        << failure.what();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Stacks, RefusedStackTest,
    testing::Values(RefusedStack{"NoLayer", {}, kZeroThicknessRow},
                    RefusedStack{"NoThickness", {{1, 0, 2500, 70, 0, 0.2}}, kZeroThicknessRow},
                    RefusedStack{"NoSheet", {{0, 6, 2500, 70, 0, 0.2}}, kZeroThicknessRow},
                    RefusedStack{"NoDensity", {{1, 6, 0, 70, 0, 0.2}}, kZeroMassRow},
                    RefusedStack{"NegativeDensity", {{1, 6, -9, 70, 0, 0.2}}, kZeroMassRow},
                    RefusedStack{"NoModulus", {{1, 6, 2500, 0, 0, 0.2}}, kInvalidStiffnessRow},
                    RefusedStack{"Poisson1", {{1, 6, 2500, 70, 0, 1}}, kInvalidStiffnessRow},
                    RefusedStack{"Poisson2", {{1, 6, 2500, 70, 0, 2}}, kInvalidStiffnessRow}),
    [](const auto& test) { return test.param.name; });

TEST(PlateStack, RefusesWhatIsNotFinite) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_THROW(Sum({{1, infinity, 2500, 70, 0, 0.2}}), ArithmeticFailure);
  EXPECT_THROW(Sum({{1, 6, 2500, 70, infinity, 0.2}}), ArithmeticFailure);
}

}  // namespace
}  // namespace velmar::models
