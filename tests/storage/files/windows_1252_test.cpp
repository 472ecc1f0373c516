#include "storage/files/windows_1252.h"

#include <gtest/gtest.h>

#include "foundation/utf8.h"

namespace velmar::storage {
namespace {

TEST(Windows1252, EveryByteComesBack) {
  std::string bytes;
  for (int code = 0; code < 256; ++code) bytes.push_back(static_cast<char>(code));
  const std::string text = Utf8FromWindows1252(bytes);
  EXPECT_TRUE(IsUtf8(text));
  EXPECT_EQ(Windows1252FromUtf8(text), bytes);
}

struct Pair {
  const char* utf8;
  const char* bytes;
};

class CodePageTest : public testing::TestWithParam<Pair> {};

TEST_P(CodePageTest, HasTheCharacter) {
  EXPECT_EQ(Windows1252FromUtf8(GetParam().utf8), GetParam().bytes);
  EXPECT_EQ(Utf8FromWindows1252(GetParam().bytes), GetParam().utf8);
}

INSTANTIATE_TEST_SUITE_P(Characters, CodePageTest,
                         testing::Values(Pair{"perché", "perch\xE9"}, Pair{"10 €", "10 \x80"},
                                         Pair{"m²", "m\xB2"}, Pair{"1° infisso", "1\xB0 infisso"},
                                         Pair{"“s'”", "\x93s'\x94"}, Pair{"Ÿ", "\x9F"},
                                         Pair{"–—", "\x96\x97"}, Pair{"ÿ", "\xFF"},
                                         Pair{"\xC2\x81", "\x81"}));

class NearestTest : public testing::TestWithParam<Pair> {};

TEST_P(NearestTest, StandsForTheCharacter) {
  EXPECT_EQ(Windows1252FromUtf8(GetParam().utf8), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(Characters, NearestTest,
                         testing::Values(Pair{"Đoković", "Dokovic"},
                                         Pair{"Łódź",
                                              "L\xF3"
                                              "dz"},
                                         Pair{"−5", "-5"}, Pair{"L₂", "L2"}, Pair{"x⁴", "x4"},
                                         Pair{"≤ 80", "<= 80"},
                                         Pair{"μm", "\xB5m"},  // Greek mu, the micro sign of the code page
                                         Pair{"e\xCC\x80", "\xE8"},           // a combining grave
                                         Pair{"g\xCC\x80", "g"},              // no such letter
                                         Pair{"\xCC\x80", ""},                // an accent without a letter
                                         Pair{"S\xCC\x8C", "\x8A"},           // a caron
                                         Pair{"漢字", "??"}, Pair{"😀", "?"},  // no equivalent
                                         Pair{"\xC2\x80", "?"},  // the control character, not the euro sign
                                         Pair{"a\xFF", "a?"}, Pair{"\xE2\x82", "??"}, Pair{"\xC0\x80", "??"},
                                         Pair{"\xED\xA0\x80", "???"}));  // bytes that are not UTF-8

}  // namespace
}  // namespace velmar::storage
