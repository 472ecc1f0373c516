#include "manual_builder/directives.h"

#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmar::manual {
namespace {

using testing::HasSubstr;

const Directives kSome = {
    {"eco", [](const Arguments& given) { return given.empty() ? std::string("-") : given.back(); }},
    {"quanti", [](const Arguments& given) { return std::to_string(given.size()); }}};

std::string FailureOf(const std::string& text) {
  try {
    Expand(text, kSome, "capitolo");
  } catch (const std::runtime_error& failure) {
    return failure.what();
  }
  return {};
}

TEST(Expand, PutsWhatADirectiveGivesInItsPlace) {
  EXPECT_EQ(Expand("a {{eco: uno; due tre }} b {{quanti: a;b;c}}{{quanti}}\n", kSome, ""),
            "a due tre b 30\n");
  EXPECT_EQ(Expand("niente\n", kSome, ""), "niente\n");
}

TEST(Expand, SaysWhereADirectiveIsWrong) {
  EXPECT_THAT(FailureOf("uno\n{{ignoto}}\n"), HasSubstr("capitolo, line 2: unknown directive"));
  EXPECT_THAT(FailureOf("{{eco: a"), HasSubstr("line 1: a directive is not closed"));
}

TEST(WithChapterNumbers, CountsChaptersOverAllTexts) {
  int next = 3;
  EXPECT_EQ(WithChapterNumbers("## A\n### b\n## C\n", next), "## 3. A\n### b\n## 4. C\n");
  EXPECT_EQ(next, 5);
}

TEST(TableText, KeepsWhatWouldEndACell) {
  EXPECT_EQ(TableText({"a|b", "c"}, {{"x\ny", "2*3"}}), "\n| a\\|b | c |\n|---|---|\n| x y | 2\\*3 |\n");
}

TEST(NumberText, HasACommaAndTheMinusOfPrint) {
  EXPECT_EQ(NumberText(-4.0, 0), "−4");
  EXPECT_EQ(NumberText(43.7466, 2), "43,75");
  EXPECT_EQ(NumberText(-0.04, 1), "0,0") << "nothing is below zero that is shown as zero";
  EXPECT_EQ(SignedText(1.5, 1), "+1,5");
  EXPECT_EQ(SignedText(-1.5, 1), "−1,5");
  EXPECT_EQ(SignedText(0.0, 1), "0,0");
}

}  // namespace
}  // namespace velmar::manual
