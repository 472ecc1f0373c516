#include "presentation/texts/words.h"

#include <gtest/gtest.h>

namespace velmar::presentation {
namespace {

TEST(InWords, JoinsRowsAndLiterals) {
  const Words words = [](MessageRow row) { return "<" + std::to_string(row.number) + ">"; };
  EXPECT_EQ(InWords({MessageRow{142}, std::string(" [10]")}, words), "<142> [10]");
  EXPECT_EQ(InWords({}, words), "");
}

TEST(UpperCase, KnowsAccents) { EXPECT_EQ(UpperCase("Parete più àèìòù ÷ ÿ 1"), "PARETE PIÙ ÀÈÌÒÙ ÷ ÿ 1"); }

TEST(FirstCharacters, NeverCutsACharacter) {
  EXPECT_EQ(FirstCharacters("densità alta", 7), "densità");
  EXPECT_EQ(FirstCharacters("densità", 20), "densità");
  EXPECT_EQ(FirstCharacters("àè", 1), "à");
  EXPECT_EQ(FirstCharacters("abc", 0), "");
}

}  // namespace
}  // namespace velmar::presentation
