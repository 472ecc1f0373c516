#include "measurements/band_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "foundation/message_rows.h"

namespace velmar::measurements {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

BandText Taken(std::string_view text, std::string_view symbol = "R") {
  auto read = ReadBandText(text, symbol);
  const auto* bands = std::get_if<BandText>(&read);
  EXPECT_NE(bands, nullptr) << text;
  return bands == nullptr ? BandText() : *bands;
}

/// The rows of what is said of a refused text, the reason of each line.
std::vector<MessageRow> Reasons(std::string_view text, std::string_view symbol = "R") {
  auto read = ReadBandText(text, symbol);
  const auto* refused = std::get_if<RefusedText>(&read);
  if (refused == nullptr) return {};
  std::vector<MessageRow> rows;
  for (const MessageLine& line : refused->lines) {
    MessageRow last;
    for (const MessagePiece& piece : line) {
      if (const auto* row = std::get_if<MessageRow>(&piece)) last = *row;
    }
    rows.push_back(last);
  }
  return rows;
}

/// The words of the first refused line.
std::string FirstWords(std::string_view text) {
  auto read = ReadBandText(text, "R");
  std::string words;
  for (const MessagePiece& piece : std::get<RefusedText>(read).lines.front()) {
    if (const auto* literal = std::get_if<std::string>(&piece)) words += *literal;
  }
  return words;
}

TEST(IsPossibleLevel, GoesFromMinus50To150dB) {
  EXPECT_TRUE(IsPossibleLevel(-50.0));
  EXPECT_TRUE(IsPossibleLevel(150.0));
  EXPECT_FALSE(IsPossibleLevel(-50.1));
  EXPECT_FALSE(IsPossibleLevel(150.1));
}

TEST(BandTextTest, ReadsTheReportOfAnAnalyserWithTabulatorsAndUnits) {
  const BandText bands = Taken(
      "Progetto: parete in forati\r\nStrumento: fonometro classe 1\r\n\r\nFrequenza\tR\r\n[Hz]\t[dB]\r\n"
      "50 Hz\t28,1\r\n63 Hz\t27,4\r\n100 Hz\t31,0\r\n1 kHz\t45,6\r\n1,25 kHz\t47,2\r\n5 kHz\t55,9\r\n"
      "Rw (C; Ctr)\t44 (-1; -4) dB\r\n");
  EXPECT_FALSE(bands.in_octaves);
  EXPECT_EQ(bands.thirds[0], 28.1);
  EXPECT_EQ(bands.thirds[1], 27.4);
  EXPECT_EQ(bands.thirds[2], std::nullopt);
  EXPECT_EQ(bands.thirds[3], 31.0);
  EXPECT_EQ(bands.thirds[13], 45.6);
  EXPECT_EQ(bands.thirds[14], 47.2);
  EXPECT_EQ(bands.thirds[20], 55.9);
}

TEST(BandTextTest, ReadsAnExportWithExactCentresManyColumnsAndBandsBeyond) {
  const BandText bands = Taken(
      "f [Hz];L1 [dB];L2 [dB];T [s];R [dB]\n39.81;80.1;60.2;1.2;19.9\n50.12;81.5;55.1;1.3;26.4\n"
      "125.89;90.3;60.0;0.9;30.3\n1000.0;95.0;50.1;0.6;44.9\n3162.3;92.2;40.0;0.5;52.2\n"
      "6309.6;80.0;35.0;0.5;45.0\n");
  EXPECT_EQ(bands.thirds[0], 26.4);
  EXPECT_EQ(bands.thirds[4], 30.3);
  EXPECT_EQ(bands.thirds[13], 44.9);
  EXPECT_EQ(bands.thirds[18], 52.2);
  EXPECT_EQ(bands.left_out, 2);
}

TEST(BandTextTest, ReadsBlanksAndOctaves) {
  const BandText bands = Taken(
      "  63 Hz   20,5 dB\n 125 Hz   24,0 dB\n 250 Hz   n.d.\n 500 Hz   38 dB\n"
      "   1k     45 dB\n   2k     50 dB\n   4k     52 dB\n");
  EXPECT_TRUE(bands.in_octaves);
  EXPECT_THAT(bands.octaves, ElementsAre(20.5, 24.0, std::nullopt, 38.0, 45.0, 50.0, 52.0, std::nullopt));
  EXPECT_THAT(bands.thirds, testing::Each(std::nullopt));
}

TEST(BandTextTest, ReadsCommasBetweenCellsAndKilohertzWithoutUnit) {
  const BandText bands = Taken("\xEF\xBB\xBF\"Freq\",\"R\"\n500,40.5\n630,41.0\n800,42\n1,43.5\n1.25,44\n");
  EXPECT_EQ(bands.thirds[10], 40.5);
  EXPECT_EQ(bands.thirds[13], 43.5);
  EXPECT_EQ(bands.thirds[14], 44.0);
}

TEST(BandTextTest, ReadsATableOnItsSide) {
  const BandText bands = Taken("Hz\t100\t125\t160\t200\t250\nR\t33,0\t34,1\t\t36\t37,5\n");
  EXPECT_EQ(bands.thirds[3], 33.0);
  EXPECT_EQ(bands.thirds[5], std::nullopt);
  EXPECT_EQ(bands.thirds[7], 37.5);
  EXPECT_THAT(Reasons("100;125;160;200;250\n33;34;35;36;37\n40;41;42;43;44\n"),
              ElementsAre(kSecondLevelLineRow));
  EXPECT_THAT(Reasons("100;125;160;200;250\n33;34;35;36;37;38\n"), ElementsAre(kMoreLevelsRow));
}

TEST(BandTextTest, NumbersAloneAreTakenWhenTheirCountNamesTheBands) {
  std::string text;
  for (int i = 0; i < 16; ++i) text += std::to_string(30 + i) + ",5\n";
  const BandText sixteen = Taken(text);
  EXPECT_EQ(sixteen.thirds[2], std::nullopt);
  EXPECT_EQ(sixteen.thirds[3], 30.5);
  EXPECT_EQ(sixteen.thirds[18], 45.5);
  EXPECT_THAT(Reasons(text + "46,5\n"), ElementsAre(kNumbersWithoutFrequenciesRow));
  const BandText eighteen = Taken(text + "46,5\n47,5\n");
  EXPECT_EQ(eighteen.thirds[3], 30.5);
  EXPECT_EQ(eighteen.thirds[20], 47.5);
  const BandText all = Taken(text + "46,5\n47,5\n48,5\n49,5\n50,2\n");
  EXPECT_EQ(all.thirds[0], 30.5);
  EXPECT_EQ(all.thirds[20], 50.2);
}

TEST(BandTextTest, LevelsThatLookLikeFrequenciesStayLevels) {
  std::string text;
  for (int i = 0; i < 15; ++i) text += "50,2\n";
  text += "63,1\n";
  EXPECT_EQ(Taken(text).thirds[3], 50.2);
  EXPECT_EQ(Taken(text).thirds[18], 63.1);
}

TEST(BandTextTest, DamagedTextsAreRefusedLineByLine) {
  const std::string damaged =
      "Hz;dB\n100;31,0\n125;3I,5\n160;34\n170;35\n200;36\n200;37\n250;999\nfine;38\n315;39\n";
  EXPECT_THAT(Reasons(damaged), ElementsAre(kNoLevelRow, kNoBandCentreRow, kBandTwiceRow, kLevelOutOfRangeRow,
                                            kNoBandCentreRow));
  EXPECT_EQ(FirstWords(damaged), " 3, «125 3I,5»: ");
}

TEST(BandTextTest, NothingIsGuessedAmongColumns) {
  EXPECT_THAT(Reasons("Hz;L1;L2\n100;80;50\n125;81;49\n160;82;48\n"), ElementsAre(kSeveralColumnsRow));
  EXPECT_THAT(Reasons("Hz;Ln;L2\n100;80;50\n125;81;49\n160;82;48\n", "R"), ElementsAre(kSeveralColumnsRow));
  EXPECT_EQ(Taken("Hz;Ln [dB];L2\n100;80;50\n125;81;49\n160;82;48\n", "Ln").thirds[3], 80.0);
}

TEST(BandTextTest, TextsWithoutBandsAreRefused) {
  EXPECT_THAT(Reasons(""), ElementsAre(kNoBandsInTextRow));
  EXPECT_THAT(Reasons("solo parole"), ElementsAre(kNumbersWithoutFrequenciesRow));
  EXPECT_THAT(Reasons("100;-\n125;-\n160;35\n"), IsEmpty());
  EXPECT_THAT(Reasons("20 Hz;30\n25 Hz;31\n31,5 Hz;32\n"), ElementsAre(kNoBandsInTextRow));
}

TEST(BandTextTest, FilesMayBeUtf16OrWindows1252) {
  using namespace std::string_view_literals;
  EXPECT_EQ(TextOfFile("\xFF\xFE"
                       "1\0\xE0\0"sv),
            "1à");
  EXPECT_EQ(TextOfFile("\xFE\xFF\0"
                       "1\0\xE0"sv),
            "1à");
  EXPECT_EQ(TextOfFile("m\xB2"), "m²");
  EXPECT_EQ(TextOfFile("m²"), "m²");
}

}  // namespace
}  // namespace velmar::measurements
