#include "access_reader/jet_date.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace velmar::access_reader {
namespace {

struct DateCase {
  const char* name;
  double value;
  std::string text;
};

class JetDateTest : public testing::TestWithParam<DateCase> {};

TEST_P(JetDateTest, GivesIsoText) { EXPECT_EQ(JetDateText(GetParam().value), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(Values, JetDateTest,
                         testing::Values(DateCase{"DayZero", 0.0, "1899-12-30T00:00:00"},
                                         DateCase{"Morning", 38751.0 + 8.0 / 24.0, "2006-02-03T08:00:00"},
                                         DateCase{"LeapDay", 36585.0, "2000-02-29T00:00:00"},
                                         DateCase{"FractionCountsForward", -1.25, "1899-12-29T06:00:00"},
                                         DateCase{"LastHalfSecondIsTheNextDay", 1.9999999,
                                                  "1900-01-01T00:00:00"},
                                         DateCase{"FirstDay", -657434.0, "0100-01-01T00:00:00"},
                                         DateCase{"LastDay", 2958465.0, "9999-12-31T00:00:00"},
                                         DateCase{"TooLate", 2958466.0, ""}, DateCase{"TooEarly", -1e9, ""},
                                         DateCase{"NotANumber", std::numeric_limits<double>::quiet_NaN(), ""},
                                         DateCase{"Infinite", std::numeric_limits<double>::infinity(), ""}),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace velmar::access_reader
