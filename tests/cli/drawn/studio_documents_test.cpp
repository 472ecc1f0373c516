#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "cli/commands/project_run.h"
#include "cli/drawn/drawn_formats.h"
#include "elements/studio_profile.h"
#include "presentation/documents/package.h"
#include "storage/materials/material_store.h"
#include "storage/profile/studio_profile_store.h"
#include "tests/presentation/documents/opened_report.h"
#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::cli {
namespace {

using elements::DocumentLanguage;
using presentation::Package;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char* kLogo =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"40\" height=\"12\"><rect width=\"40\" height=\"12\" "
    "fill=\"#16254B\"/></svg>";

/// One project of each family, and a data folder whose studio has a profile.
class StudioDocuments : public testing::TestWithParam<const char*> {
 protected:
  StudioDocuments() {
    storage::WriteFile(folder_ / "logo.svg", kLogo);
    profile_.logo = store_.KeepPicture(folder_ / "logo.svg");
    profile_.signature = profile_.logo;
    store_.Write(profile_);
  }

  std::string BytesOf(const std::string& extension, const char* example,
                      std::optional<DocumentLanguage> language = std::nullopt) {
    const ProjectRun run =
        RunProject(std::filesystem::path(EXAMPLES) / (std::string(example) + ".drav"),
                   storage::MaterialLookupIn(SHIPPED "/Databases/Database/Database.mdb"), true);
    const ReportContent content{.name = example,
                                .setup = run.setup,
                                .result = run.outcome.result.value(),
                                .totals = run.totals,
                                .words = presentation::CatalogueWords(),
                                .file = std::string(example) + ".drav",
                                .language = language,
                                .tell = [this](const Message& message) { told_.push_back(message); }};
    for (const ReportFormat& format : DrawnFormats({.templates = SHIPPED "/Templates",
                                      .data_folder = folder_.Path(),
                                      .catalogue = SHIPPED "/Databases/InterfMess.mdb"})) {
      if (format.extension == extension) return format.bytes(content);
    }
    return {};
  }

  std::string Text(const Package& package, const char* part) {
    return presentation::TextOf(package, std::string("word/") + part + ".xml");
  }

  storage::TemporaryFolder folder_;
  storage::StudioProfileStore store_{folder_.Path()};
  elements::StudioProfile profile_{.name = "Studio Neri & Figli",
                                   .signer = "ing. Anna Neri",
                                   .register_number = "ENTECA n. 1234",
                                   .address = "via Roma 1\n40100 Bologna",
                                   .footer = "P. IVA 01234567890"};
  std::vector<Message> told_;
};

TEST_P(StudioDocuments, NameTheStudioAndWhoSigns) {
  const Package word(BytesOf("docx", GetParam()));
  EXPECT_THAT(presentation::FaultsOf(word), IsEmpty());
  EXPECT_THAT(Text(word, "header1"), AllOf(HasSubstr("Studio Neri & Figli"), HasSubstr("via Roma 1")));
  EXPECT_THAT(Text(word, "footer1"), HasSubstr("P. IVA 01234567890"));
  EXPECT_THAT(Text(word, "document"), AllOf(HasSubstr("ing. Anna Neri\n"), HasSubstr("ENTECA n. 1234\n")));
  EXPECT_THAT(word.Part("word/header1.xml"), HasSubstr("<w:drawing>"));
  EXPECT_THAT(word.Part("docProps/core.xml"),
              AllOf(HasSubstr("<dc:creator>Studio Neri &amp; Figli</dc:creator>"), HasSubstr("<dc:title>"),
                    HasSubstr("Rapporto di calcolo previsionale"), HasSubstr("T00:00:00Z")));
  EXPECT_THAT(word.Part("docProps/app.xml"), HasSubstr("<Application>VELMARpro "));
  const Package excel(BytesOf("xlsx", GetParam()));
  EXPECT_THAT(presentation::FaultsOf(excel), IsEmpty());
  EXPECT_EQ(presentation::CellOf(excel, "A2")->text, "Studio Neri & Figli");
  EXPECT_EQ(presentation::CellOf(excel, "A3")->text, "via Roma 1, 40100 Bologna");
  EXPECT_EQ(presentation::CellOf(excel, "H63")->text, "ing. Anna Neri");
  EXPECT_THAT(excel.Part("xl/workbook.xml"), HasSubstr("$J$68"));
  EXPECT_THAT(excel.Part("docProps/core.xml"), HasSubstr("Studio Neri &amp; Figli"));
  EXPECT_THAT(told_, IsEmpty());
}

TEST_P(StudioDocuments, AreInTheLanguageThatIsAsked) {
  const Package english(BytesOf("docx", GetParam(), DocumentLanguage::kEnglish));
  const std::string text = Text(english, "document");
  EXPECT_THAT(text, AllOf(HasSubstr("Type of element\n"), HasSubstr("Calculation data\n")));
  for (const char* italian : {"Tipo di elemento", "Risultato", "Dati di calcolo", "Riferimenti"})
    EXPECT_THAT(text, Not(HasSubstr(italian)));
  EXPECT_THAT(text, Not(testing::ContainsRegex("Rw[^=]*= [0-9]+,[0-9]")));
  const std::string both = Text(Package(BytesOf("docx", GetParam(), DocumentLanguage::kBoth)), "document");
  EXPECT_THAT(both, AllOf(HasSubstr("Tipo di elemento / Type of element\n"),
                          HasSubstr("Dati di calcolo / Calculation data\n")));
  const Package excel(BytesOf("xlsx", GetParam(), DocumentLanguage::kBoth));
  EXPECT_THAT(presentation::FaultsOf(excel), IsEmpty());
  EXPECT_EQ(presentation::CellOf(excel, "A6")->text, "Tipo di elemento / Type of element");
  EXPECT_GT(BytesOf("pdf", GetParam(), DocumentLanguage::kBoth).size(), 5000U);
}

INSTANTIATE_TEST_SUITE_P(Families, StudioDocuments,
                         testing::Values("parete-forato-intonacata", "doppia-forati-lana",
                                         "leggera-linea-linea", "vetro-6", "controplaccaggio-ossatura",
                                         "controsoffitto-pendini-a-molla", "calpestio-galleggiante",
                                         "facciata-nove-componenti", "parete-fuori-campo",
                                         "sea-laterizio-doppia", "multistrato-pannello-sandwich"));

using StudioProfileOfDocuments = StudioDocuments;

TEST_F(StudioProfileOfDocuments, MayLackItsLogoWhichIsTold) {
  for (const auto& entry : std::filesystem::directory_iterator(folder_.Path() / "Studio")) {
    if (entry.path().extension() == ".svg") std::filesystem::remove(entry.path());
  }
  const Package word(BytesOf("docx", "vetro-6"));
  EXPECT_EQ(told_.size(), 2U) << "logo and signature";
  EXPECT_THAT(Text(word, "header1"), HasSubstr("Studio Neri & Figli"));
  EXPECT_THAT(word.Part("word/header1.xml"), Not(HasSubstr("<w:drawing>")));
}

TEST_F(StudioProfileOfDocuments, MayBeDamagedWhichIsTold) {
  storage::WriteFile(folder_ / "Studio/profilo.txt", "damaged");
  const Package word(BytesOf("docx", "vetro-6"));
  EXPECT_EQ(told_.size(), 1U);
  EXPECT_THAT(Text(word, "header1"), Not(HasSubstr("Studio")));
  EXPECT_THAT(Text(word, "document"), HasSubstr("Rw(C; Ctr)= "));
}

TEST_F(StudioProfileOfDocuments, ChoosesTheLanguage) {
  profile_.language = DocumentLanguage::kEnglish;
  store_.Write(profile_);
  EXPECT_THAT(Text(Package(BytesOf("docx", "vetro-6")), "document"), HasSubstr("Type of element\n"));
  EXPECT_THAT(Text(Package(BytesOf("docx", "vetro-6", DocumentLanguage::kItalian)), "document"),
              HasSubstr("Tipo di elemento\n"));
}

TEST_F(StudioProfileOfDocuments, LeavesDocumentsWithoutOneAsTheyWere) {
  store_.Write({});
  const Package excel(BytesOf("xlsx", "vetro-6"));
  EXPECT_FALSE(presentation::CellOf(excel, "A2"));
  EXPECT_THAT(excel.Part("xl/workbook.xml"), HasSubstr("$J$61"));
}

}  // namespace
}  // namespace velmar::cli
