#include "presentation/manual/manual_headings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmar::presentation {
namespace {

using testing::ElementsAre;

TEST(AnchorOf, IsTheWordsOfTheHeadingWithoutItsNumber) {
  EXPECT_EQ(AnchorOf("5. Pareti semplici"), "pareti-semplici");
  EXPECT_EQ(AnchorOf("Bilancio di energia (SEA)"), "bilancio-di-energia-sea");
  EXPECT_EQ(AnchorOf("Quanto è sicuro"), "quanto-è-sicuro");
  EXPECT_EQ(AnchorOf("L'albero dei materiali"), "l-albero-dei-materiali");
  EXPECT_EQ(AnchorOf("2024"), "2024") << "a number that is all there is stays";
}

TEST(HeadingsIn, AreFoundInOrderAndNotInCode) {
  EXPECT_THAT(HeadingsIn("# Titolo\n\ntesto # no\n## 1. Uno\n```\n## codice\n```\n### *Due* `tre`\n#no\n"),
              ElementsAre(ManualHeading{1, "Titolo", "titolo"}, ManualHeading{2, "1. Uno", "uno"},
                          ManualHeading{3, "Due tre", "due-tre"}));
}

TEST(HeadingsIn, TakesATextThatEndsWithoutALineBreak) {
  EXPECT_THAT(HeadingsIn("## Fine"), ElementsAre(ManualHeading{2, "Fine", "fine"}));
  EXPECT_TRUE(HeadingsIn("##").empty());
  EXPECT_TRUE(HeadingsIn("").empty());
}

}  // namespace
}  // namespace velmar::presentation
