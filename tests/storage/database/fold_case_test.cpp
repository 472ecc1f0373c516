#include "storage/database/fold_case.h"

#include <gtest/gtest.h>

namespace velmar::storage {
namespace {

struct Pair {
  const char* name;
  const char* a;
  const char* b;
  bool same;
};

class SameNameTest : public testing::TestWithParam<Pair> {};

TEST_P(SameNameTest, IgnoresCaseAlone) {
  EXPECT_EQ(SameName(GetParam().a, GetParam().b), GetParam().same);
  EXPECT_EQ(SameName(GetParam().b, GetParam().a), GetParam().same);
}

INSTANTIATE_TEST_SUITE_P(
    Names, SameNameTest,
    testing::Values(Pair{"Ascii", "Laterizio", "LATERIZIO", true}, Pair{"Grave", "Caffè", "CAFFÈ", true},
                    Pair{"AccentCounts", "caffè", "caffe", false}, Pair{"Dieresis", "ÄÖÜÿ", "äöüŸ", true},
                    Pair{"LatinExtended", "ŠŽŁŃĲ", "šžłńĳ", true}, Pair{"NoCapitalOfKra", "ĸ", "Ĺ", false},
                    Pair{"Greek", "ΆΈΉΊΌΎΏΣΩ", "άέήίόύώσω", true}, Pair{"FinalSigma", "ς", "Σ", true},
                    Pair{"Cyrillic", "ЁЖЯЂ", "ёжяђ", true}, Pair{"Additional", "ẠỲḀ", "ạỳḁ", true},
                    Pair{"SignsHaveNoCase", "×", "÷", false}, Pair{"DigitsAndQuotes", "1\"'", "1\"'", true},
                    Pair{"BrokenBytesStay", "\xC3", "\xE3", false}, Pair{"BeyondThePlane", "😀A", "😀a", true}),
    [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace velmar::storage
