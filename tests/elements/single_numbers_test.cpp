#include "elements/single_numbers.h"

#include <map>
#include <string>

#include <gtest/gtest.h>

namespace velmar::elements {
namespace {

std::map<std::string, double> ByKey(const std::vector<SingleNumber>& numbers) {
  std::map<std::string, double> values;
  for (const SingleNumber& number : numbers) values[number.key] = number.value;
  return values;
}

/// A wall that takes 40 dB from every band, rated 44.
ResultSet EqualWall() {
  ResultSet result;
  result.spectrum.emplace().fill(40.0);
  result.rw = 44;
  return result;
}

TEST(SingleNumbers, OfAWallAreTwelve) {
  const auto numbers = ByKey(SingleNumbersOf(EqualWall(), Calculation::kSingleWallGeneric));
  EXPECT_EQ(numbers.size(), 12U);
  EXPECT_EQ(numbers.at("Rw"), 44);
  EXPECT_EQ(numbers.at("OITC"), 40);
  EXPECT_EQ(numbers.at("C50-5000"), -4);
}

/// A relation may settle a rating that the spectrum alone does not give: the terms stand against it.
TEST(SingleNumbers, StandAgainstTheRatingThatIsShown) {
  ResultSet result = EqualWall();
  result.rw = 42;
  const auto numbers = ByKey(SingleNumbersOf(result, Calculation::kSingleWallGeneric));
  EXPECT_EQ(numbers.at("Rw"), 42);
  EXPECT_EQ(numbers.at("C"), -2);
  EXPECT_EQ(numbers.at("Ctr,50-5000"), -2);
}

/// C and Ctr of a lining stand against its base; here they are those of the lined element. Its result ends at
/// 3150 Hz: what stands in the bands beyond does not count.
TEST(SingleNumbers, OfALiningAreThoseOfTheLinedElementInTheBandsOfItsResult) {
  for (const Calculation calculation : {Calculation::kLiningFrame, Calculation::kCeilingSea}) {
    ResultSet result = EqualWall();
    result.c = 5;
    (*result.spectrum)[20] = 3.0;
    const auto numbers = ByKey(SingleNumbersOf(result, calculation));
    EXPECT_EQ(numbers.size(), 4U);
    EXPECT_EQ(numbers.at("C"), -4);
    EXPECT_TRUE(numbers.contains("Rw,0.1"));
    EXPECT_FALSE(numbers.contains("C50-5000"));
  }
}

TEST(SingleNumbers, OfAFacadeLackWhatABandOfZeroWouldGive) {
  ResultSet result = EqualWall();
  (*result.spectrum)[0] = 0.0;
  const auto facade = ByKey(SingleNumbersOf(result, Calculation::kCompositeElement));
  EXPECT_FALSE(facade.contains("C50-5000"));
  EXPECT_TRUE(facade.contains("C100-5000"));
  const auto wall = ByKey(SingleNumbersOf(result, Calculation::kSingleWallGeneric));
  EXPECT_TRUE(wall.contains("C50-5000"));
}

TEST(SingleNumbers, OfAFloorAreThoseOfImpactSound) {
  ResultSet result;
  result.spectrum.emplace().fill(50.0);
  result.lnw = 59;
  const auto numbers = ByKey(SingleNumbersOf(result, Calculation::kImpactReinforcedConcrete));
  EXPECT_EQ(numbers.size(), 4U);
  EXPECT_TRUE(numbers.contains("CI,50-2500"));
  EXPECT_FALSE(numbers.contains("Rw"));
}

TEST(SingleNumbers, AreNoneWithoutASpectrum) {
  ResultSet result;
  result.rw = 50;
  EXPECT_TRUE(SingleNumbersOf(result, Calculation::kLiningGeneric).empty());
}

TEST(SingleNumbers, TellWhatAResultShowsAnyhow) {
  for (const SingleNumber& number : SingleNumbersOf(EqualWall(), Calculation::kSingleWallGeneric)) {
    const std::string key = number.key;
    EXPECT_EQ(number.further, key != "Rw" && key != "C" && key != "Ctr") << key;
  }
}

}  // namespace
}  // namespace velmar::elements
