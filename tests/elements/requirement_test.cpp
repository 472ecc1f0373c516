#include "elements/requirement.h"

#include <gtest/gtest.h>

namespace velmar::elements {
namespace {

TEST(Requirement, StandsInTheKeyedValuesUnderItsName) {
  elements::Setup setup;
  EXPECT_EQ(RequirementOf(setup), std::nullopt);
  SetRequirement(setup, 50.5);
  EXPECT_EQ(setup.further.Entries(), (std::vector<KeyedValues::Entry>{{"requisito.valore", "50,5"}}));
  EXPECT_EQ(RequirementOf(setup), 50.5);
  SetRequirement(setup, std::nullopt);
  EXPECT_TRUE(setup.further.IsEmpty());
}

TEST(MarginTo, IsMissingWhereAWallIsTooLowAndAFloorTooLoud) {
  ResultSet wall;
  wall.rw = 46.0;
  EXPECT_EQ(MarginTo(50.0, wall), -4.0);
  EXPECT_EQ(MarginTo(40.0, wall), 6.0);
  ResultSet floor;
  floor.lnw = 65.0;
  floor.rw = 50.0;
  EXPECT_EQ(MarginTo(63.0, floor), -2.0);
  EXPECT_EQ(MarginTo(50.0, ResultSet()), std::nullopt);
}

}  // namespace
}  // namespace velmar::elements
