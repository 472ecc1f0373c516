#include "documents/template_file.h"

#include <filesystem>
#include <functional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "presentation/documents/package.h"
#include "presentation/documents/relationships.h"
#include "presentation/documents/word_document.h"
#include "presentation/reports/word_report.h"
#include "presentation/texts/words.h"
#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::documents {
namespace {

using presentation::Package;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char* kMain = "word/document.xml";
constexpr const char* kAttached =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/attachedTemplate";

std::string InWords(const Message& message) {
  std::string text;
  for (const MessageLine& line : message)
    text += presentation::InWords(line, presentation::CatalogueWords()) + "\n";
  return text;
}

class TemplateFile : public testing::Test {
 protected:
  /// The shipped template `name` after `change`, in a file.
  std::filesystem::path Changed(const std::string& name, const std::function<void(Package&)>& change) {
    Package package(storage::ReadFile(std::filesystem::path(SHIPPED "/Templates") / name));
    change(package);
    storage::WriteFile(folder_ / name, package.Bytes());
    return folder_ / name;
  }

  std::filesystem::path With(const std::string& part, const std::string& from, const std::string& to) {
    return Changed("Template_calcolo_drav_calc.docx", [&](Package& package) {
      std::string xml = package.Part(part);
      const std::size_t at = xml.find(from);
      ASSERT_NE(at, std::string::npos) << from;
      package.Put(part, xml.replace(at, from.size(), to));
    });
  }

  storage::TemporaryFolder folder_;
};

TEST_F(TemplateFile, NothingIsWrongWithTheShippedOnes) {
  for (const auto& entry : std::filesystem::directory_iterator(SHIPPED "/Templates")) {
    const std::string ending = entry.path().extension().string();
    if (ending != ".docx" && ending != ".xlsx") continue;
    EXPECT_EQ(InWords(CheckTemplateFile(entry.path())), "") << entry.path();
  }
}

TEST_F(TemplateFile, TellsAPlaceholderThatNobodyKnows) {
  EXPECT_EQ(InWords(CheckTemplateFile(With(kMain, "[P1_TITOLO]", "[P1_TITOLLO]"))),
            "Segnaposto sconosciuto, nel documento resta com'è: [P1_TITOLLO]\n");
}

// A missing end took the table of layers along, up to the end of the next block.
TEST_F(TemplateFile, TellsABlockWithoutItsEnd) {
  EXPECT_THAT(InWords(CheckTemplateFile(With("word/header1.xml", "P1_ALLEGATO_END", ""))),
              HasSubstr("P1_ALLEGATO_START"));
  const std::filesystem::path lining = Changed("Template_calcolo_drav_controp.docx", [](Package& package) {
    std::string xml = package.Part(kMain);
    const std::string marker = "P1_FREQ_END";
    package.Put(kMain, xml.erase(xml.find(marker), marker.size()));
  });
  EXPECT_THAT(InWords(CheckTemplateFile(lining)), HasSubstr("P1_FREQ_START"));
  presentation::WordDocument document(storage::ReadFile(lining));
  document.RemoveBlock("P1_FREQ_START", "P1_FREQ_END");
  const std::set<std::string> left = document.Left();
  EXPECT_TRUE(left.contains("[P2_NOME]")) << "the table of layers";
  // The report tells it too.
  const presentation::WrittenReport report =
      presentation::WriteWordReport(storage::ReadFile(lining), presentation::ReportRecord());
  EXPECT_THAT(InWords(report.Remarks()), HasSubstr("P1_FREQ_START"));
}

TEST_F(TemplateFile, TellsAPictureThatIsWiderThanItsCell) {
  const std::filesystem::path file = Changed("Template_calcolo_drav_calc.docx", [](Package& package) {
    std::string xml = package.Part(kMain);
    const std::size_t place = xml.find("[P1_RISULTATOGRAFICO]");
    const std::size_t width = xml.rfind("<w:tcW w:w=\"", place) + 12;
    package.Put(kMain, xml.replace(width, xml.find('"', width) - width, "2000"));
  });
  EXPECT_EQ(InWords(CheckTemplateFile(file)),
            "Immagine più larga della cella o della pagina: [P1_RISULTATOGRAFICO], 116 mm > 35 mm\n");
}

TEST_F(TemplateFile, WhatWouldBeLoadedFromOutsideIsToldAndStaysOut) {
  const std::filesystem::path file = Changed("Template_calcolo_drav_calc.docx", [](Package& package) {
    presentation::PutLinks(
        package, "word/settings.xml",
        {{.id = "rId1", .type = kAttached, .target = "file:///C:/m.dotm", .external = true}});
    std::string settings = package.Part("word/settings.xml");
    const std::string place = "<w:defaultTabStop";
    package.Put("word/settings.xml",
                settings.insert(settings.find(place), R"(<w:attachedTemplate r:id="rId1"/>)"));
  });
  EXPECT_EQ(InWords(CheckTemplateFile(file)),
            "Collegamento a un file esterno, non passa nel documento: attachedTemplate file:///C:/m.dotm\n");
  presentation::WordDocument document(storage::ReadFile(file));
  const Package written(document.Bytes());
  EXPECT_THAT(written.Part("word/settings.xml"), Not(HasSubstr("attachedTemplate")));
  EXPECT_THAT(written.Part("word/_rels/settings.xml.rels"), Not(HasSubstr("m.dotm")));
}

TEST_F(TemplateFile, ADocumentTypeInAnyPartIsRefusedAndTheFileNamed) {
  for (const char* part : {"word/styles.xml", "word/theme/theme1.xml", "word/_rels/document.xml.rels"}) {
    const std::filesystem::path file = Changed("Template_calcolo_drav_calc.docx", [&](Package& package) {
      std::string xml = package.Part(part);
      package.Put(part, xml.insert(xml.find("?>") + 2, R"(<!DOCTYPE d SYSTEM "file:///etc/hostname">)"));
    });
    try {
      CheckTemplateFile(file);
      ADD_FAILURE() << part;
    } catch (const Failure& failure) {
      EXPECT_EQ(LeadingRow(failure.UserMessage().front()), kTemplateHostileRow) << part;
      EXPECT_THAT(InWords(failure.UserMessage()), HasSubstr(file.string()));
    }
  }
}

TEST_F(TemplateFile, AWorkbookThatLinksToAnotherIsRefused) {
  const std::filesystem::path file = Changed("Formato_drav.xlsx", [](Package& package) {
    package.Put("xl/externalLinks/externalLink1.xml", "<externalLink/>");
    presentation::PutLinks(
        package, "xl/externalLinks/externalLink1.xml",
        {{.id = "rId1",
          .type = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/externalLinkPath",
          .target = "altro.xlsx",
          .external = true}});
  });
  try {
    CheckTemplateFile(file);
    ADD_FAILURE();
  } catch (const Failure& failure) {
    EXPECT_EQ(LeadingRow(failure.UserMessage().front()), kTemplateLinksRow);
  }
}

// Each used to be looked for from the paragraph's begin again.
TEST_F(TemplateFile, AHundredThousandPlaceholdersInAParagraphComeToAnEnd) {
  std::string many;
  for (int i = 0; i < 100'000; ++i) many += "[P1_NORMA]P1_NOTE_START";
  const std::filesystem::path file = With(kMain, "[P1_TITOLO]", many);
  presentation::WordDocument document(storage::ReadFile(file));
  document.RemoveMarker("P1_NOTE_START");
  document.Replace({{"P1_NORMA", "[ISO]"}});
  const Package written(document.Bytes());
  EXPECT_THAT(written.Part(kMain), HasSubstr("[ISO][ISO][ISO]"));
}

TEST_F(TemplateFile, AMissingFileIsNamed) {
  try {
    CheckTemplateFile(folder_ / "manca.docx");
    ADD_FAILURE();
  } catch (const Failure& failure) {
    EXPECT_THAT(InWords(failure.UserMessage()), HasSubstr("manca.docx"));
  }
}

}  // namespace
}  // namespace velmar::documents
