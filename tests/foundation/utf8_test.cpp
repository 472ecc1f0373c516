#include "foundation/utf8.h"

#include <gtest/gtest.h>

namespace velmar {
namespace {

constexpr const char* kBroken[] = {"\x80",
                                   "\xC1\xBF",
                                   "\xE0\x80\x80",
                                   "\xED\xA0\x80",
                                   "\xF0\x80\x80\x80",
                                   "\xF4\x90\x80\x80",
                                   "\xF5\x80\x80\x80",
                                   "\xE2\x82",
                                   "a\xE9",
                                   "\xFF"};

TEST(IsUtf8, KnowsWhatIsNot) {
  EXPECT_TRUE(IsUtf8(""));
  EXPECT_TRUE(IsUtf8("é€😀"));
  EXPECT_TRUE(IsUtf8(std::string_view("a\0b", 3)));
  for (const char* text : kBroken) EXPECT_FALSE(IsUtf8(text)) << testing::PrintToString(text);
}

TEST(WithReplacements, MakesAnyBytesUtf8AndLeavesUtf8Alone) {
  for (const char* text : kBroken) {
    const std::string whole = WithReplacements(text);
    EXPECT_TRUE(IsUtf8(whole)) << testing::PrintToString(text);
    EXPECT_EQ(CountCharacters(whole), CountCharacters(text));
  }
  EXPECT_EQ(WithReplacements("muro \xE8 €"), "muro \uFFFD €");
  EXPECT_EQ(WithReplacements("é€😀"), "é€😀");
}

TEST(TakeCharacter, GivesEveryCharacterAndComesBack) {
  for (char32_t character = 0; character <= 0x10FFFF; character += character < 0x900 ? 1 : 97) {
    if (character >= 0xD800 && character <= 0xDFFF) continue;
    std::string text;
    AppendCharacter(text, character);
    text += "z";
    std::string_view rest = text;
    ASSERT_EQ(TakeCharacter(rest), character);
    ASSERT_EQ(rest, "z") << static_cast<std::uint32_t>(character);
  }
}

TEST(TakeCharacter, TakesOneByteWhereThereIsNone) {
  for (const char* text : kBroken) {
    std::string_view rest = text;
    if (rest.front() == 'a') rest.remove_prefix(1);
    const std::size_t before = rest.size();
    EXPECT_EQ(TakeCharacter(rest), kNoCharacter);
    EXPECT_EQ(rest.size(), before - 1);
  }
}

TEST(FirstCharacters, NeverCutsACharacter) {
  EXPECT_EQ(FirstCharacters("densità alta", 7), "densità");
  EXPECT_EQ(FirstCharacters("densità", 20), "densità");
  EXPECT_EQ(FirstCharacters("àè", 1), "à");
  EXPECT_EQ(FirstCharacters("abc", 0), "");
  EXPECT_EQ(FirstCharacters("a\xE8 b", 2), "a\xE8");
}

TEST(UpperCase, KnowsAccents) {
  EXPECT_EQ(UpperCase("Parete più àèìòù ÷ ß 1"), "PARETE PIÙ ÀÈÌÒÙ ÷ ß 1");
  EXPECT_EQ(UpperCase("a\xE8"), "A\xE8");
}

TEST(IsBlank, IsWhatLeavesNoInk) {
  for (const char* text : {"", " ", "\t \r\n", "\u00A0", "\u200B\uFEFF", "\u2003", "\x01"}) {
    EXPECT_TRUE(IsBlank(text)) << testing::PrintToString(text);
  }
  EXPECT_FALSE(IsBlank(" . "));
  EXPECT_FALSE(IsBlank("\xE8"));
}

TEST(HoldsControlCharacter, FindsLineBreaksAndTheLike) {
  for (const std::string_view text :
       {std::string_view("a\nb"), std::string_view("a\r"), std::string_view("\0", 1),
        std::string_view("a\tb"), std::string_view("a\u0085b"), std::string_view("a\u2028b"),
        std::string_view("a\x7F")}) {
    EXPECT_TRUE(HoldsControlCharacter(text)) << testing::PrintToString(std::string(text));
  }
  EXPECT_FALSE(HoldsControlCharacter("Parete \"ovest\" 10 °C – 8 € 😀"));
}

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
                    Pair{"SharpSStays", "ß", "ss", false}, Pair{"SignsHaveNoCase", "×", "÷", false},
                    Pair{"DigitsAndQuotes", "1\"'", "1\"'", true},
                    Pair{"BrokenBytesStay", "\xC3", "\xE3", false}, Pair{"BeyondThePlane", "😀A", "😀a", true}),
    [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace velmar
