#include "presentation/texts/paper_text.h"

#include <string>

#include <gtest/gtest.h>

namespace velmar::presentation {
namespace {

struct SetText {
  const char* name;
  const char* typed;
  const char* italian;
  const char* english;
};

class ForPaperTest : public testing::TestWithParam<SetText> {};

TEST_P(ForPaperTest, SetsWhatTheProgramComposed) {
  EXPECT_EQ(ForPaper(GetParam().typed), GetParam().italian);
  EXPECT_EQ(ForPaper(GetParam().typed, DocumentLanguage::kEnglish), GetParam().english);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ForPaperTest,
    testing::Values(
        SetText{"Result", "Rw(C; Ctr)= 44,0 (-1; -4) dB", "Rw(C; Ctr)= 44,0 (\u22121; \u22124)\u202FdB",
                "Rw(C; Ctr)= 44.0 (\u22121; \u22124)\u202FdB"},
        SetText{"Ranges", "C50-5000= 0; Ctr,50-5000= -4 dB; STC= 42",
                "C50-5000= 0; Ctr,50-5000= \u22124\u202FdB; STC= 42",
                "C50-5000= 0; Ctr,50-5000= \u22124\u202FdB; STC= 42"},
        SetText{"Improvement", "DRw= 12 dB", "\u0394Rw= 12\u202FdB", "\u0394Rw= 12\u202FdB"},
        SetText{"ImprovementOfAFloor", "DLw= 21,3 dB", "\u0394Lw= 21,3\u202FdB", "\u0394Lw= 21.3\u202FdB"},
        SetText{"Thickness", "12,5mm X 2", "12,5\u202Fmm X 2", "12.5\u202Fmm X 2"},
        SetText{"Mass", "m'= 198,0 kg/m²", "m'= 198,0\u202Fkg/m²", "m'= 198.0\u202Fkg/m²"},
        SetText{"Shares", "intervallo 90 %: da 39 a 53", "intervallo 90\u202F%: da 39 a 53",
                "intervallo 90\u202F%: da 39 a 53"},
        SetText{"NegativeBand", "-0,3", "\u22120,3", "\u22120.3"},
        SetText{"Parts", "PARETE 1: Laterizio (80 mm) -- Lana; -- PARETE 2: Gesso",
                "PARETE 1: Laterizio (80\u202Fmm) – Lana – PARETE 2: Gesso",
                "PARETE 1: Laterizio (80\u202Fmm) – Lana – PARETE 2: Gesso"},
        SetText{"NamesOfStandards", "UNI EN ISO 717-1:2021, pp. 81-104", "UNI EN ISO 717-1:2021, pp. 81-104",
                "UNI EN ISO 717-1:2021, pp. 81-104"},
        SetText{"NoUnit", "4 x 2,7 montanti", "4 x 2,7 montanti", "4 x 2.7 montanti"},
        SetText{"Empty", "", "", ""}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(ForPaper, TakesNumbersOfAFormulaAwayAndPartsWords) {
  CalculationData data;
  data.references = {"[25] Solai; formula: Ln,w = 164 - 35 lg m' dB, da 100 a 600 kg/m²",
                     "edifici - Isolamento acustico, pp. 105-116"};
  const CalculationData set = ForPaper(data, DocumentLanguage::kItalian);
  EXPECT_EQ(set.references[0], "[25] Solai; formula: Ln,w = 164 \u2212 35 lg m' dB, da 100 a 600\u202Fkg/m²");
  EXPECT_EQ(set.references[1], "edifici - Isolamento acustico, pp. 105-116");
}

TEST(CellForPaper, LeavesWords) {
  EXPECT_EQ(CellForPaper("0,013", DocumentLanguage::kEnglish), "0.013");
  EXPECT_EQ(CellForPaper("2 x 12,5", DocumentLanguage::kEnglish), "2 x 12.5");
  EXPECT_EQ(CellForPaper("Lastra 12,5 mm", DocumentLanguage::kEnglish), "Lastra 12,5 mm");
  EXPECT_EQ(CellForPaper("-1"), "\u22121");
}

TEST(InBoth, TellsOnceWhatAgrees) {
  EXPECT_EQ(InBoth("Rw [dB]", "Rw [dB]"), "Rw [dB]");
  EXPECT_EQ(InBoth("Spessore", "Thickness"), "Spessore / Thickness");
  EXPECT_EQ(InBoth("Larghezza (m):", "Width (m):"), "Larghezza (m) / Width (m):");
  EXPECT_EQ(InBoth("Riga", "Line", "\n"), "Riga\nLine");
  EXPECT_EQ(InBoth("", "Line"), "Line");
}

TEST(ForPaper, LeavesNamesAndFingerprints) {
  CalculationData data;
  data.fields = {{"Larghezza", "2,7"}, {"File", "parete 2,7 mm.drav", true}};
  data = ForPaper(std::move(data), DocumentLanguage::kEnglish);
  EXPECT_EQ(data.fields[0].value, "2.7");
  EXPECT_EQ(data.fields[1].value, "parete 2,7 mm.drav");
}

}  // namespace
}  // namespace velmar::presentation
