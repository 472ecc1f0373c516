#include "presentation/documents/word_document.h"

#include <ostream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/presentation/documents/opened_report.h"

namespace velmar::presentation {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// The shipped template with another body, as a user might have made it.
std::string DocumentOf(const std::string& body, const std::string& header = "") {
  Package package(ShippedTemplate("Template_calcolo_drav_calc.docx"));
  const std::string names = R"(xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main" )"
                            R"(xmlns:v="urn:schemas-microsoft-com:vml")";
  package.Put("word/document.xml",
              "<w:document " + names + "><w:body>" + body + "<w:sectPr/></w:body></w:document>");
  if (!header.empty()) package.Put("word/header1.xml", "<w:hdr " + names + ">" + header + "</w:hdr>");
  return package.Bytes();
}

std::string Paragraph(const std::vector<std::string>& runs) {
  std::string text = "<w:p>";
  for (const std::string& run : runs) text += "<w:r><w:rPr><w:b/></w:rPr><w:t>" + run + "</w:t></w:r>";
  return text + "</w:p>";
}

std::string TextAfter(WordDocument& document, const std::string& part = "word/document.xml") {
  return TextOf(Package(document.Bytes()), part);
}

struct Replacement {
  std::string name{};

  void PrintTo(const Replacement& value, std::ostream* out) { *out << value.name; }
  std::string body{};
  std::string text{};
};

class ReplaceTest : public testing::TestWithParam<Replacement> {};

TEST_P(ReplaceTest, GivesTheText) {
  WordDocument document(DocumentOf(GetParam().body));
  document.Replace({{"P1_NOTE", "due\nrighe\te [P1_NOTE]"}, {"P1_NORMA", "ISO"}, {"P1_RESULT2", ""}});
  EXPECT_EQ(TextAfter(document), GetParam().text);
}

const char* const kNote =
    "due\x01righe\x01"
    "e [P1_NOTE]";

INSTANTIATE_TEST_SUITE_P(
    Bodies, ReplaceTest,
    testing::Values(
        Replacement{"InOneRun", Paragraph({"a [P1_NORMA] b"}), "a ISO b\n"},
        Replacement{"SplitOverRuns", Paragraph({"a [", "P1", "_NOR", "MA] b"}), "a ISO b\n"},
        Replacement{"TwiceInAParagraph", Paragraph({"[P1_NORMA][P1_", "NORMA]"}), "ISOISO\n"},
        Replacement{"LinesAndTabs", Paragraph({"[P1_NOTE]"}), std::string(kNote) + "\n"},
        Replacement{"UnknownStays", Paragraph({"[P1_ALTRO] [10] [P1_NORMA]"}), "[P1_ALTRO] [10] ISO\n"},
        Replacement{"EmptyTakesItsParagraph", Paragraph({"[P1_RESULT2]"}) + Paragraph({"x"}), "x\n"},
        Replacement{"EmptyAmongWordsDoesNot", Paragraph({"x[P1_RESULT2]"}) + Paragraph({"y"}), "x\ny\n"},
        Replacement{"InATextBox",
                    "<w:p><w:r><w:pict><v:textbox><w:txbxContent>" + Paragraph({"[P1_", "NORMA]"}) +
                        "</w:txbxContent></v:textbox></w:pict></w:r></w:p>",
                    "\x01\nISO\n"},
        Replacement{"NotAcrossABreak", "<w:p><w:r><w:t>[P1_</w:t><w:br/><w:t>NORMA]</w:t></w:r></w:p>",
                    "[P1_\x01NORMA]\n"}),
    [](const auto& test) { return test.param.name; });

TEST(WordDocument, ReplacesInHeaders) {
  WordDocument document(DocumentOf(Paragraph({"x"}), Paragraph({"n. [CODICE_", "ALLEGATO]"})));
  document.Replace({{"CODICE_ALLEGATO", "7"}});
  EXPECT_EQ(TextAfter(document, "word/header1.xml"), "n. 7\n");
}

TEST(WordDocument, TellsWhatIsLeft) {
  WordDocument document(DocumentOf(Paragraph({"[P1_", "MIO] [P1_NORMA]"})));
  document.Replace({{"P1_NORMA", "[P1_FALSO]"}});
  EXPECT_THAT(document.Left(),
              ElementsAre("[CODICE_ALLEGATO]", "[P1_MIO]", "[P1_PROGETTO]", "[STUDIO_INDIRIZZO]",
                          "[STUDIO_LOGO]", "[STUDIO_NOME]", "[STUDIO_PIEDE]"));
}

struct Block {
  std::string name{};

  void PrintTo(const Block& value, std::ostream* out) { *out << value.name; }
  std::string body{};
  std::string text{};
};

class BlockTest : public testing::TestWithParam<Block> {};

TEST_P(BlockTest, GoesWithItsMarkers) {
  WordDocument document(DocumentOf(GetParam().body));
  document.RemoveBlock("P1_FREQ_START", "P1_FREQ_END");
  const std::string bytes = document.Bytes();
  EXPECT_EQ(TextOf(Package(bytes), "word/document.xml"), GetParam().text);
  EXPECT_THAT(FaultsOf(Package(bytes)), IsEmpty());
}

std::string Cell(const std::string& content) { return "<w:tc><w:tcPr/>" + content + "</w:tc>"; }

INSTANTIATE_TEST_SUITE_P(
    Bodies, BlockTest,
    testing::Values(
        Block{"OfParagraphs",
              Paragraph({"a"}) + Paragraph({"P1_FREQ", "_START"}) + Paragraph({"b"}) + "<w:tbl><w:tr>" +
                  Cell(Paragraph({"c"})) + "</w:tr></w:tbl>" + Paragraph({"[P1_FREQ_END]"}) +
                  Paragraph({"d"}),
              "a\nd\n"},
        Block{"InAParagraph", Paragraph({"a P1_FREQ_START b", " c P1_FREQ_END d"}), "a  d\n"},
        Block{"WithRests",
              Paragraph({"a P1_FREQ_START b"}) + Paragraph({"c"}) + Paragraph({"d P1_FREQ_END e"}),
              "a \n e\n"},
        Block{"IntoATable",
              Paragraph({"a P1_FREQ_START"}) + "<w:tbl><w:tr>" + Cell(Paragraph({"b"})) +
                  Cell(Paragraph({"P1_FREQ_END"})) + Cell(Paragraph({"c"})) + "</w:tr></w:tbl>" +
                  Paragraph({"d"}),
              "a \n\n\nc\nd\n"},
        Block{"WithoutAnEnd", Paragraph({"a P1_FREQ_START"}) + Paragraph({"b"}), "a P1_FREQ_START\nb\n"},
        Block{"Twice",
              Paragraph({"P1_FREQ_START b P1_FREQ_END"}) + Paragraph({"c"}) +
                  Paragraph({"P1_FREQ_START b P1_FREQ_END"}) + Paragraph({"d"}),
              "c\nd\n"}),
    [](const auto& test) { return test.param.name; });

TEST(WordDocument, RepeatsRowsBehindTheirHeadings) {
  const auto row = [](const std::string& text) { return "<w:tr>" + Cell(Paragraph({text})) + "</w:tr>"; };
  WordDocument document(DocumentOf("<w:tbl>" + row("head") + row("= [P2_GRUPPO]") + row("- [P2_SPESSORE]") +
                                   "</w:tbl>" + Paragraph({"end"})));
  document.RepeatRows({.keys = {"P2_SPESSORE"},
                       .heading_key = "P2_GRUPPO",
                       .rows = {{.heading = true, .values = {{"P2_GRUPPO", "A"}}},
                                {.heading = false, .values = {{"P2_SPESSORE", "1"}}},
                                {.heading = false, .values = {{"P2_SPESSORE", "2"}}}}});
  EXPECT_EQ(TextAfter(document), "head\n= A\n- 1\n- 2\nend\n");
}

TEST(WordDocument, PutsOnePictureFileForManyPlaces) {
  WordDocument document(
      DocumentOf(Paragraph({"[P1_", "GRAFICO] e [P1_GRAFICO]"}), Paragraph({"[P1_GRAFICO]"})));
  document.ReplaceByPicture("P1_GRAFICO",
                            {.png = "png", .width_emu = 1, .height_emu = 2, .alternative_text = "a<b"});
  const Package package(document.Bytes());
  EXPECT_THAT(FaultsOf(package), IsEmpty());
  EXPECT_FALSE(package.Has("word/media/velmar2.png"));
  const std::string& body = package.Part("word/document.xml");
  EXPECT_THAT(body, HasSubstr("descr=\"a&lt;b\""));
  for (const char* number : {"wp:docPr id=\"1\"", "wp:docPr id=\"2\""}) EXPECT_THAT(body, HasSubstr(number));
  EXPECT_THAT(package.Part("word/header1.xml"), HasSubstr("wp:docPr id=\"3\""));
}

}  // namespace
}  // namespace velmar::presentation
