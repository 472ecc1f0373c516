#include "presentation/texts/result_notes.h"

#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmar::presentation {
namespace {

using elements::Calculation;
using testing::ElementsAre;
using testing::IsEmpty;

std::string Italian(MessageRow row) {
  static const std::map<int, std::string> words = {{3300, "m'"},
                                                   {3307, "intercapedine senza fibra"},
                                                   {3309, "da"},
                                                   {3310, "a"},
                                                   {3314, "Fuori dal campo di validità della relazione"},
                                                   {3315, "Calcolo proseguito per scelta dell'utente."},
                                                   {3573, "Elemento risultante:"}};
  const auto at = words.find(row.number);
  return at == words.end() ? "row " + std::to_string(row.number) : at->second;
}

elements::ResultSet Outside() {
  elements::ResultSet result;
  result.ranges_left = {{MessageRow{195}, 504, 80, 400, "kg/m²", MessageRow{3300}}};
  return result;
}

TEST(RangeNotes, SayWhatLiesOutsideOfWhichRelation) {
  EXPECT_THAT(RangeNotes(Calculation::kSingleWallBrick, Outside(), Italian),
              ElementsAre("Fuori dal campo di validità della relazione [1]: m' = 504 kg/m² (da 80 a 400). "
                          "Calcolo proseguito per scelta dell'utente."));
  EXPECT_THAT(RangeNotes(Calculation::kSingleWallBrick, {}, Italian), IsEmpty());
}

TEST(RangeNotes, OfAChoiceNameWhatWasChosen) {
  elements::ResultSet result;
  result.ranges_left = {{MessageRow{209}, 0, 1, 1, {}, MessageRow{3307}}};
  EXPECT_THAT(RangeNotes(Calculation::kDoubleWallBrick, result, Italian),
              ElementsAre("Fuori dal campo di validità della relazione [10]: intercapedine senza fibra. "
                          "Calcolo proseguito per scelta dell'utente."));
}

// 50 dB in every band: the reference curve shifted to 54 dB has deviations of 32 dB at most, and against 54
// both spectra add 50 dB, so that both terms are -4.
TEST(ResultingElementLine, IsRatedOutOfTheImprovedSpectrum) {
  elements::ResultSet result;
  result.spectrum.emplace().fill(50.0);
  result.rw = 54.0;
  result.c = 11.0;
  result.ctr = 8.0;
  EXPECT_EQ(ResultingElementLine(Calculation::kLiningFrame, result, Italian),
            "Elemento risultante: Rw(C; Ctr)= 54,0 (-4; -4) dB");
  EXPECT_EQ(ResultingElementLine(Calculation::kSingleWallBrick, result, Italian), "");
  result.spectrum.reset();
  EXPECT_EQ(ResultingElementLine(Calculation::kLiningGeneric, result, Italian), "");
}

TEST(ResultNotes, EndWithWhatIsKnownOfTheError) {
  EXPECT_THAT(ResultNotes(Calculation::kSingleWallBrick, Outside(), {{std::string("Rw 52 dB")}}, Italian),
              ElementsAre(testing::StartsWith("Fuori"), "Rw 52 dB"));
  EXPECT_EQ(Joined({"a", "b"}), "a\nb");
  EXPECT_EQ(Joined({}), "");
}

}  // namespace
}  // namespace velmar::presentation
