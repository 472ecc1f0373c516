#include "presentation/texts/requirement_text.h"

#include <map>

#include <gtest/gtest.h>

#include "foundation/message_rows.h"

namespace velmar::presentation {
namespace {

std::string Word(MessageRow row) {
  static const std::map<MessageRow, std::string> words = {{kLimitRow, "limite"},
                                                          {kRequirementLacksRow, "mancano"},
                                                          {kRequirementLacksOneRow, "manca"},
                                                          {kRequirementExceededRow, "superato di"},
                                                          {kRequirementMetRow, "rispettato, margine"},
                                                          {kRequirementJustMetRow, "rispettato"}};
  return words.at(row);
}

elements::ResultSet Wall(double rw) {
  elements::ResultSet result;
  result.rw = rw;
  return result;
}

TEST(RequirementText, SaysWhatIsMissing) {
  EXPECT_EQ(RequirementText(50.0, Wall(46.0), Word), "limite 50: mancano 4");
  EXPECT_EQ(RequirementText(50.0, Wall(49.0), Word), "limite 50: manca 1");
  EXPECT_EQ(RequirementText(50.5, Wall(49.0), Word), "limite 50,5: mancano 1,5");
  EXPECT_EQ(RequirementText(50.0, Wall(50.0), Word), "limite 50: rispettato");
  EXPECT_EQ(RequirementText(50.0, Wall(53.0), Word), "limite 50: rispettato, margine 3");
}

TEST(RequirementText, TurnsRoundForImpactSound) {
  elements::ResultSet floor;
  floor.lnw = 65.0;
  EXPECT_EQ(RequirementText(63.0, floor, Word), "limite 63: superato di 2");
  EXPECT_EQ(RequirementText(68.0, floor, Word), "limite 68: rispettato, margine 3");
}

TEST(RequirementText, IsEmptyWithoutARating) {
  EXPECT_EQ(RequirementText(50.0, elements::ResultSet(), Word), "");
}

}  // namespace
}  // namespace velmar::presentation
