#include "presentation/texts/words.h"

#include <gtest/gtest.h>

namespace velmar::presentation {
namespace {

TEST(InWords, JoinsRowsAndLiterals) {
  const Words words = [](MessageRow row) { return "<" + std::to_string(row.number) + ">"; };
  EXPECT_EQ(InWords({MessageRow{142}, std::string(" [10]")}, words), "<142> [10]");
  EXPECT_EQ(InWords({}, words), "");
}

}  // namespace
}  // namespace velmar::presentation
