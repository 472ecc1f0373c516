#include "models/plates/loss_factor.h"

#include <cmath>
#include <numeric>

#include <gtest/gtest.h>

#include "acoustics/bands.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::models {
namespace {

constexpr double kGlassFc = 2094.9893810977055;

/// A 6 mm pane of 1.25 m by 1.5 m: m' = 15 kg/m², eta = 0.01, fc = 2094.989 Hz.
LossTerms Pane(double a_m = 1.25, double b_m = 1.5) { return FindLossTerms(15, 0.01, kGlassFc, {a_m, b_m}); }

// lambda_c = 350.9 / 2094.989 = 0.1674949 m, U = 5.5 m, S = 1.875 m²
// cap  = sqrt(1.5 / 0.1674949) + sqrt(1.25 / 0.1674949) = 5.7244073
// crit = 0.45 sqrt(5.5 / 0.1674949) (1.25 / 1.5)^0.25 = 2.4637565
// L = lg(960 / 15) = 1.80618, A = 5.7 + 5.7 L² = 24.2950308
// edge = 2 sqrt(2.094989) 10^-2.42950308 = 0.0107675732
TEST(LossTerms, OfAPane) {
  const LossTerms terms = Pane();
  EXPECT_NEAR(terms.lambda_c_m, 0.16749488239226298, 1e-15);
  EXPECT_DOUBLE_EQ(terms.perimeter_m, 5.5);
  EXPECT_DOUBLE_EQ(terms.area_m2, 1.875);
  EXPECT_NEAR(terms.sigma_cap, 5.724407281101749, 1e-13);
  EXPECT_NEAR(terms.sigma_crit, 2.4637564593476116, 1e-13);
  EXPECT_EQ(terms.short_side_m, 1.25);
  EXPECT_NEAR(terms.edge_loss, 0.010767573192568304, 1e-16);
}

TEST(LossTerms, TakeASquareWithoutARatio) {
  const LossTerms terms = Pane(2, 2);
  EXPECT_EQ(terms.short_side_m, 2);
  EXPECT_DOUBLE_EQ(terms.sigma_crit, 0.45 * std::sqrt(8 / terms.lambda_c_m));
}

TEST(LossTerms, DoNotTellTheTwoSidesApart) {
  const LossTerms upright = Pane(1.25, 2.7);
  const LossTerms lying = Pane(2.7, 1.25);
  EXPECT_EQ(upright.short_side_m, lying.short_side_m);
  EXPECT_EQ(upright.sigma_crit, lying.sigma_crit);
  for (const double f : {100.0, 500.0, 2000.0, 4000.0}) {
    EXPECT_DOUBLE_EQ(TotalLossFactor(upright, f, 0), TotalLossFactor(lying, f, 0));
  }
}

struct LossCase {
  const char* name;
  double frequency_hz;
  double total;
};

class TotalLossFactorTest : public testing::TestWithParam<LossCase> {};

TEST_P(TotalLossFactorTest, OfAPane) {
  EXPECT_NEAR(TotalLossFactor(Pane(), GetParam().frequency_hz, 0), GetParam().total, 1e-15);
}

// Edge at f: 350.9 / (3.1416² * 1.875 sqrt(f fc)) * 5.5 * 0.0107675732.
//  500 Hz: x = 0.238665, side 0.05035034, corner 0.06826811,
//          sigma = 0.167495² / 1.875 * (2 * 0.05035034 + 5.5 / 0.167495 * 0.06826811) = 0.03504810,
//          radiation = 0.03504810 * 905.322 / (3.1416 * 500 * 15) = 0.0013466521, edge 0.0010971978
// 2000 Hz: radiation = 2.4637565 * 452.661 / (3.1416 * 2000 * 15) = 0.0118331048, edge 0.0005485989
// 4000 Hz: sigma = 1 / sqrt(1 - 2094.989 / 4000) = 1.4490431, below cap and crit,
//          radiation = 1.4490431 * 452.661 / (3.1416 * 4000 * 15) = 0.0034797836, edge 0.0003879180
INSTANTIATE_TEST_SUITE_P(Regions, TotalLossFactorTest,
                         testing::Values(LossCase{"BelowHalfOfFc", 500, 0.012443849857514141},
                                         LossCase{"AroundFc", 2000, 0.02238170371339918},
                                         LossCase{"AboveFc", 4000, 0.013867701585868792}),
                         [](const auto& test) { return test.param.name; });

TEST(TotalLossFactor, RadiatesTwiceAsMuchUpToHalfOfFc) {
  // sigma is capped at 1 on both sides: a small pane whose efficiency is high everywhere.
  const LossTerms terms = FindLossTerms(15, 0, 1000, {0.4, 0.4});
  const double below = TotalLossFactor(terms, 500, 0);
  const double edge = 350.9 / (3.1416 * 3.1416 * terms.area_m2 * std::sqrt(500 * 1000.0)) *
                      terms.perimeter_m * terms.edge_loss;
  const double sigma = (below - edge) * 3.1416 * 500 * 15 / 905.322;
  EXPECT_GT(sigma, 0);
  EXPECT_LE(sigma, 1);
  const double just_above = TotalLossFactor(terms, std::nextafter(500.0, 501.0), 0);
  EXPECT_NEAR((just_above - edge) * 3.1416 * 500 * 15 / 452.661, terms.sigma_crit, 1e-9);
}

TEST(TotalLossFactor, CapsWhatExceedsTheCriticalEfficiency) {
  LossTerms terms = Pane();
  const double f = kGlassFc * 1.13;
  const auto sigma = [&terms, f] {
    LossTerms bare = terms;
    bare.internal_loss_factor = 0;
    bare.edge_loss = 0;
    return TotalLossFactor(bare, f, 0) * 3.1416 * f * 15 / 452.661;
  };
  EXPECT_NEAR(sigma(), terms.sigma_crit, 1e-12);  // 1/sqrt(1 - 1/1.13) = 2.948, above 2.46
  terms.sigma_crit = 0.7;
  EXPECT_NEAR(sigma(), 1.0, 1e-12);
  terms.sigma_crit = 2.9;
  terms.sigma_cap = 2.8;
  EXPECT_NEAR(sigma(), 2.8, 1e-12);
}

TEST(TotalLossFactor, KeepsTheValueBeforeWhereNoRegionIs) {
  const double upper_end = kGlassFc * std::pow(10.0, 1.0 / 20.0);
  EXPECT_EQ(TotalLossFactor(Pane(), upper_end, 0.77), 0.77);
  const double frequencies[] = {500, upper_end, 4000};
  const std::vector<double> factors = TotalLossFactors(Pane(), frequencies);
  EXPECT_EQ(factors[1], factors[0]);
  EXPECT_NE(factors[2], factors[1]);
  EXPECT_EQ(TotalLossFactors(Pane(), std::span(frequencies).subspan(1, 1))[0], 0.0);
}

TEST(TotalLossFactor, IsAlwaysAboveTheInternalOne) {
  for (const double mass : {0.1, 5.0, 100.0, 960.0, 5000.0}) {
    for (const double fc : {20.0, 80.0, 500.0, 3000.0, 9980.0, 50000.0}) {
      const auto factors = FineGridLossFactors(FindLossTerms(mass, 0.02, fc, {3, 2.7}));
      for (const double factor : factors) ASSERT_GT(factor, 0.02) << mass << " kg/m², " << fc << " Hz";
    }
  }
}

TEST(TotalLossFactor, KnowsOneRegionAloneForExtremePlates) {
  const LossTerms soft = FindLossTerms(3, 0.01, 9981, {4, 3});
  EXPECT_LE(acoustics::FineGridFrequency(acoustics::kFineGridPoints - 1), 9981 / 2.0);
  // A light, soft plate radiates with 2 Z0 everywhere; one below 80 Hz nowhere.
  LossTerms bare = soft;
  bare.internal_loss_factor = 0;
  bare.edge_loss = 0;
  EXPECT_LE(TotalLossFactor(bare, 4990, 0) * 3.1416 * 4990 * 3 / 905.322, 1.0);
  const LossTerms stiff = FindLossTerms(300, 0, 79, {4, 3});
  LossTerms above = stiff;
  above.edge_loss = 0;
  EXPECT_NEAR(TotalLossFactor(above, 40, 0) * 3.1416 * 40 * 300 / 452.661, stiff.sigma_crit, 1e-12);
}

TEST(LossTerms, RefuseWhatHasNoSize) {
  EXPECT_THROW(FindLossTerms(15, 0.01, 1000, {0, 2}), ArithmeticFailure);
  EXPECT_THROW(FindLossTerms(15, 0.01, 1000, {2, 0}), ArithmeticFailure);
  EXPECT_THROW(FindLossTerms(0, 0.01, 1000, {2, 2}), ArithmeticFailure);
  EXPECT_THROW(FindLossTerms(15, 0.01, 0, {2, 2}), ArithmeticFailure);
  try {
    FindLossTerms(15, 0.01, 1000, {2, 0});
  } catch (const ArithmeticFailure& failure) {
    EXPECT_EQ(failure.UserMessage().back(), MessageLine{kZeroDimensionRow});
  }
}

}  // namespace
}  // namespace velmar::models
