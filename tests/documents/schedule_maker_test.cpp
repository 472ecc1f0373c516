#include "documents/schedule_maker.h"

#include <fstream>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "presentation/documents/package.h"
#include "presentation/texts/paper_text.h"
#include "storage/materials/material_store.h"
#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::documents {
namespace {

using std::filesystem::path;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

path Example(const std::string& name) { return path(EXAMPLES) / (name + ".drav"); }

ScheduleTools Tools() {
  return {.words = presentation::CatalogueWords(),
          .materials = storage::MaterialLookupIn(SHIPPED "/Databases/Database/Database.mdb"),
          .places = {.templates = SHIPPED "/Templates"}};
}

MadeSchedule Make(const ScheduleOrder& order) { return MakeSchedule(order, Tools()).value(); }

/// The text of a Word document's body, a line a paragraph.
std::string TextOf(const std::string& docx) {
  const presentation::Package package(docx);
  const std::string& bytes = package.Part("word/document.xml");
  pugi::xml_document document;
  EXPECT_TRUE(document.load_buffer(bytes.data(), bytes.size(), pugi::parse_full | pugi::parse_ws_pcdata));
  std::string text;
  for (const auto& paragraph : document.select_nodes("//w:p")) {
    for (const auto& run : paragraph.node().select_nodes(".//w:t")) text += run.node().text().get();
    text += '\n';
  }
  return text;
}

/// What stands behind the heading of a chapter, up to the next.
std::string ChapterOf(const std::string& text, const std::string& heading, const std::string& next) {
  const std::size_t begin = text.rfind("\n" + heading + "\n");
  EXPECT_NE(begin, std::string::npos) << heading;
  const std::size_t end = next.empty() ? std::string::npos : text.rfind("\n" + next + "\n");
  return text.substr(begin, end - begin);
}

const std::vector<path> kThree = {Example("parete-forato-intonacata"), Example("calpestio-galleggiante"),
                                  Example("usuale-01-tramezzo-forati-8")};

// The ratings are those of the examples' own test, read from the document as its reader does.
TEST(ScheduleMaker, EveryChapterHoldsTheNumbersOfItsRun) {
  const MadeSchedule made = Make({.projects = kThree});
  EXPECT_THAT(made.failed, SizeIs(0));
  const std::string text = TextOf(made.bytes);
  const std::string second = "2 – Solaio in calcestruzzo da 16 cm con massetto galleggiante";
  const std::string third = "3 – Tramezzo in forati da 8 cm, intonacato";
  const std::string wall = ChapterOf(text, "1 – Parete in semipieni da 12 cm, intonacata", second);
  const std::string floor = ChapterOf(text, second, third);
  EXPECT_THAT(wall, HasSubstr("\n" + presentation::ForPaper("Rw(C; Ctr)= 44,0 (-1; -4) dB") + "\n"));
  EXPECT_THAT(floor, HasSubstr("\n" + presentation::ForPaper("Lnw(Ci)= 41,0 (2) dB") + "\n"));
  EXPECT_THAT(ChapterOf(text, third, ""),
              HasSubstr("\n" + presentation::ForPaper("Rw(C; Ctr)= 39,0 (-1; -3) dB") + "\n"));
}

TEST(ScheduleMaker, IsSignedOnceBehindTheLastChapter) {
  const std::string text = TextOf(Make({.projects = kThree}).bytes);
  const std::size_t signature = text.find("Il tecnico\n");
  ASSERT_NE(signature, std::string::npos);
  EXPECT_EQ(text.find("Il tecnico\n", signature + 1), std::string::npos);
  EXPECT_GT(signature, text.rfind("\nRiferimenti\n"));
  EXPECT_GT(signature, text.rfind("\nDati di calcolo\n"));
}

// Neither nothing nor what the last chapter says of itself.
TEST(ScheduleMaker, SaysOfItselfWhatItIs) {
  for (const ScheduleFormat format : {ScheduleFormat::kWord, ScheduleFormat::kExcel}) {
    const presentation::Package package(
        Make({.projects = kThree, .format = format, .title = "Condominio Aurora"}).bytes);
    EXPECT_THAT(package.Part("docProps/core.xml"),
                HasSubstr("<dc:title>Condominio Aurora</dc:title>"
                          "<dc:subject>Rapporto di calcolo previsionale</dc:subject>"));
  }
  const std::string pdf = Make({.projects = kThree, .format = ScheduleFormat::kPdf, .title = "Abaco"}).bytes;
  // The last dictionary of properties is the one that counts: "Abaco" in UTF-16, and its program.
  EXPECT_NE(pdf.find("/Title <FEFF0041006200610063006F>\n/Subject ", pdf.rfind(" 0 obj\n")),
            std::string::npos);
}

TEST(ScheduleMaker, AProjectThatFailsIsNamedAndTheOthersAreWritten) {
  const storage::TemporaryFolder folder;
  storage::WriteFile(folder / "rotto.drav", "VELMAR 2.0.0\r\nProgetto\r\n");
  for (const ScheduleFormat format : {ScheduleFormat::kWord, ScheduleFormat::kExcel, ScheduleFormat::kPdf}) {
    const MadeSchedule made =
        Make({.projects = {kThree[0], folder / "rotto.drav", Example("parete-fuori-campo"), kThree[1]},
              .format = format});
    ASSERT_THAT(made.failed, SizeIs(2));
    EXPECT_EQ(made.failed[0].project.filename(), "rotto.drav");
    EXPECT_EQ(made.failed[1].reason.back(), MessageLine{kScheduleDeclinedRow});
    EXPECT_GT(made.bytes.size(), 10000U);
    if (format != ScheduleFormat::kWord) continue;
    const std::string text = TextOf(made.bytes);
    EXPECT_THAT(text, HasSubstr("rotto.drav"));
    EXPECT_THAT(text, HasSubstr("Calcolo non proseguito fuori dal campo di validità."));
    EXPECT_THAT(text, Not(HasSubstr("Continuare ugualmente")));
    EXPECT_THAT(text, HasSubstr("\n4 – Solaio in calcestruzzo da 16 cm con massetto galleggiante\n"));
  }
}

TEST(ScheduleMaker, WhatGoesOnOutsideItsRangeIsMarked) {
  const MadeSchedule made = Make({.projects = {Example("parete-fuori-campo")}, .go_on_outside_ranges = true});
  EXPECT_THAT(made.failed, SizeIs(0));
  const std::string text = TextOf(made.bytes);
  EXPECT_THAT(text, HasSubstr(" *\n"));
  EXPECT_THAT(text, HasSubstr("* Fuori dal campo di validità della relazione"));
}

TEST(ScheduleMaker, ProjectsOfOneNameKeepTheirChaptersApart) {
  const storage::TemporaryFolder folder;
  std::filesystem::create_directories(folder / "piano");
  std::filesystem::copy_file(kThree[0], folder / "piano/parete-forato-intonacata.drav");
  const std::string text =
      TextOf(Make({.projects = {kThree[0], folder / "piano/parete-forato-intonacata.drav"}}).bytes);
  EXPECT_THAT(text, HasSubstr("\n1 – parete-forato-intonacata\n"));
  EXPECT_THAT(text, HasSubstr("\n2 – parete-forato-intonacata\n"));
}

TEST(ScheduleMaker, NoProjectAndNoResultGiveNoDocument) {
  EXPECT_THROW(Make({}), Failure);
  const storage::TemporaryFolder folder;
  storage::WriteFile(folder / "rotto.drav", "x");
  try {
    Make({.projects = {folder / "rotto.drav"}});
    ADD_FAILURE();
  } catch (const Failure& failure) {
    EXPECT_EQ(LeadingRow(failure.UserMessage().front()), kScheduleNothingRow);
    EXPECT_EQ(failure.UserMessage().at(1), MessageLine{std::string("rotto.drav:")});
  }
}

TEST(ScheduleMaker, StopsWhenItIsTold) {
  for (std::size_t last = 0; last < 7; ++last) {
    std::size_t steps = 0;
    const auto made =
        MakeSchedule({.projects = kThree}, Tools(), [&](std::size_t done, std::size_t all, auto&) {
          EXPECT_EQ(all, 7U);
          EXPECT_EQ(done, steps++);
          return done < last;
        });
    EXPECT_FALSE(made) << last;
    EXPECT_EQ(steps, last + 1);
  }
}

/// How often `text` holds `piece`.
std::size_t Count(const std::string& text, const std::string& piece) {
  std::size_t count = 0;
  for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1)) ++count;
  return count;
}

TEST(ScheduleMaker, ThePdfHasABookmarkAndALinkForEachChapter) {
  const std::string pdf = Make({.projects = kThree, .format = ScheduleFormat::kPdf}).bytes;
  EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
  // The table of elements and three chapters.
  EXPECT_EQ(Count(pdf, "/Subtype /Link"), 4U);
  EXPECT_EQ(Count(pdf, "\n/Parent "), 4U + Count(pdf, "/Type /Page\n"));
  EXPECT_THAT(pdf, HasSubstr("/PageMode /UseOutlines"));
}

TEST(ScheduleMaker, KnowsItsFormats) {
  EXPECT_EQ(ScheduleFormatOf("pdf"), ScheduleFormat::kPdf);
  EXPECT_EQ(ScheduleFormatOf("csv"), std::nullopt);
}

}  // namespace
}  // namespace velmar::documents
