#include "storage/project/text_rules.h"

#include <gtest/gtest.h>

namespace velmar::storage {
namespace {

TEST(TagliaAlPrimoCR, CutsInPlaceAndTrims) {
  std::string text = "  Laterizio \r\nsecondo";
  EXPECT_EQ(TagliaAlPrimoCR(text), "Laterizio");
  EXPECT_EQ(text, "Laterizio");
  text = "senza";
  EXPECT_EQ(TagliaAlPrimoCR(text), "senza");
  text = "\r\nvuoto";
  EXPECT_EQ(TagliaAlPrimoCR(text), "");
  text = "una\naltra";
  EXPECT_EQ(TagliaAlPrimoCR(text), "una");
}

TEST(SpianaCRLF, MakesOneBlankOfEachBreak) {
  std::string text = "a\r\nb\r\n\r\nc\nd\re\r\n";
  SpianaCRLF(text);
  EXPECT_EQ(text, "a b  c d e ");
}

TEST(Notes, ABraceIsALineBreak) {
  EXPECT_EQ(NotesToLine("a\r\nb\nc\rd"), "a{b{c{d");
  EXPECT_EQ(NotesFromLine("a{b{"), "a\r\nb\r\n");
}

TEST(SameWord, IgnoresCaseAndBlanks) {
  EXPECT_TRUE(SameWord(" CHECK ", "check"));
  EXPECT_FALSE(SameWord("uncheck", "check"));
  EXPECT_TRUE(SameWord("", "  "));
}

}  // namespace
}  // namespace velmar::storage
