#include "presentation/schedule/word_binder.h"

#include <map>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "presentation/documents/template_failure.h"
#include "presentation/documents/xml_part.h"
#include "presentation/reports/word_report.h"
#include "presentation/schedule/word_schedule.h"
#include "tests/presentation/documents/opened_report.h"
#include "tests/presentation/drawing/catalogue_words.h"

namespace velmar::presentation {
namespace {

using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char* kMain = "word/document.xml";
constexpr const char* kNames =
    R"(xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main" )"
    R"(xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships")";

/// All values of `attribute` of the elements `name` below `root`, those with a prefix that hides it too.
void Collect(pugi::xml_node root, std::string_view name, const char* attribute,
             std::vector<std::string>& values) {
  for (const pugi::xml_node node : root.children()) {
    if (LocalName(node) == name) values.emplace_back(node.attribute(attribute).value());
    Collect(node, name, attribute, values);
  }
}

std::vector<std::string> ValuesOf(const Package& package, std::string_view name, const char* attribute) {
  std::vector<std::string> values;
  Collect(ParseXml(package.Part(kMain), kMain), name, attribute, values);
  return values;
}

bool AllDiffer(const std::vector<std::string>& values) {
  return std::set<std::string>(values.begin(), values.end()).size() == values.size();
}

/// The report of several of all sample elements.
Package AllCases() {
  const Words words = CatalogueWords();
  Schedule schedule{.cover = {.title = "Abaco", .client = "Comune di Esempio", .date = "01/02/2026"},
                    .signer = {.name = "ing. Anna Bassi", .register_number = "Ordine di Bologna 1234"}};
  std::vector<WordChapter> chapters;
  for (const ReportCase& one : ReportCases()) {
    ScheduleElement element =
        ScheduleElementOf(one.setup, one.result, one.totals, words, schedule.elements.size() + 1);
    element.title = one.name;
    element.drawing = Picture{.png = "\x89PNG small " + one.name, .width_emu = 936000, .height_emu = 396000};
    ReportRecord record = RecordOf(one);
    record.signs = false;
    chapters.push_back({ChapterHeading(element),
                        WriteWordReport(ShippedTemplate(WordTemplateName(record.family)), record).bytes});
    schedule.elements.push_back(std::move(element));
  }
  schedule.elements.push_back({.code = "99", .file = "rotto.drav", .failure = "Il file è danneggiato."});
  return Package(WriteWordSchedule(ShippedTemplate(kScheduleTemplateName), schedule, chapters, words));
}

TEST(WordBinder, ADocumentOfAllKindsHoldsTogether) {
  const Package package = AllCases();
  EXPECT_THAT(FaultsOf(package), IsEmpty());
  EXPECT_TRUE(AllDiffer(ValuesOf(package, "docPr", "id")));
  EXPECT_TRUE(AllDiffer(ValuesOf(package, "bookmarkStart", "w:name")));
  EXPECT_TRUE(AllDiffer(ValuesOf(package, "bookmarkStart", "w:id")));
  // Every link of the text leads somewhere.
  std::set<std::string> links;
  for (const WrittenLink& link : LinksOf(package, kMain)) links.insert(link.id);
  for (const char* name : {"blip", "svgBlip", "headerReference", "footerReference"}) {
    for (const char* attribute : {"r:embed", "r:id"}) {
      for (const std::string& id : ValuesOf(package, name, attribute))
        EXPECT_TRUE(id.empty() || links.contains(id)) << name << " " << id;
    }
  }
}

TEST(WordBinder, EachChapterHasHeadingContentsAndItsOwnSection) {
  const Package package = AllCases();
  const std::size_t count = ReportCases().size();
  // The cover, the table and each chapter: no page stands empty behind the last one.
  EXPECT_EQ(ValuesOf(package, "sectPr", "w:rsidR").size(), count + 2);
  const std::string text = TextOf(package, kMain);
  for (const ReportCase& one : ReportCases()) {
    EXPECT_THAT(text, HasSubstr("– " + one.name + "\n"));
    EXPECT_THAT(text, HasSubstr("\n" + ForPaper(RecordOf(one).result_line) + "\n")) << one.name;
  }
  EXPECT_THAT(text, HasSubstr("rotto.drav"));
  EXPECT_THAT(text, HasSubstr("Il file è danneggiato."));
  EXPECT_THAT(text, Not(HasSubstr("[A_")));
  // The table of elements, then the chapters.
  EXPECT_EQ(ValuesOf(package, "hyperlink", "w:anchor").size(), count + 1);
  std::vector<std::string> styles = ValuesOf(package, "pStyle", "w:val");
  EXPECT_EQ(std::ranges::count(styles, "Heading1"), static_cast<std::ptrdiff_t>(count + 1));
}

std::size_t CountOf(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST(WordBinder, DrawingsOfTheTableStandApart) {
  const Package package = AllCases();
  const pugi::xml_document document = ParseXml(package.Part(kMain), kMain);
  std::size_t drawings = 0;
  for (const auto& found : document.select_nodes("//w:tc[.//w:drawing]/w:p/w:pPr/w:spacing")) {
    if (found.node().attribute("w:before").as_int() == 50 && found.node().attribute("w:after").as_int() == 50)
      ++drawings;
  }
  EXPECT_EQ(drawings, ReportCases().size());
}

TEST(WordBinder, OneSignatureClosesTheDocumentInTheSectionOfTheLastChapter) {
  const Package package = AllCases();
  const std::string text = TextOf(package, kMain);
  EXPECT_EQ(CountOf(text, "Il tecnico\n"), 1U);
  EXPECT_THAT(text, HasSubstr("Il tecnico\ning. Anna Bassi\nOrdine di Bologna 1234\n"));
  EXPECT_LT(text.rfind("Riferimenti\n"), text.find("Il tecnico\n"));
  const pugi::xml_document document = ParseXml(package.Part(kMain), kMain);
  const pugi::xml_node body = document.document_element().child("w:body");
  const pugi::xml_node section = body.child("w:sectPr");
  EXPECT_FALSE(section.child("w:type"));
  EXPECT_TRUE(section.child("w:footerReference"));
  std::size_t tables_behind = 0;
  for (pugi::xml_node node = section; node; node = node.previous_sibling()) {
    if (node.child("w:pPr").child("w:sectPr")) break;
    if (std::string_view(node.name()) == "w:tbl") ++tables_behind;
  }
  // Those of the last chapter and the signature stand in one section.
  EXPECT_GT(tables_behind, 3U);
}

TEST(WordBinder, ATemplateWhoseEndHasPagesOfItsOwnKeepsThem) {
  Package package(ShippedTemplate(kScheduleTemplateName));
  std::string body = package.Part(kMain);
  const std::string goes_on = R"(<w:type w:val="continuous"/>)";
  body.erase(body.find(goes_on), goes_on.size());
  package.Put(kMain, body);
  const ReportCase one = ReportCases().front();
  const ReportRecord record = RecordOf(one);
  const Package bound(WriteWordSchedule(
      package.Bytes(), {},
      {{"A", WriteWordReport(ShippedTemplate(WordTemplateName(record.family)), record).bytes}},
      CatalogueWords()));
  EXPECT_EQ(ValuesOf(bound, "sectPr", "w:rsidR").size(), 4U);
}

/// The shipped template with another body, as a user might have made it; `change` may do more.
std::string UsersDocument(
    const std::string& body, const std::function<void(Package&)>& change = [](Package&) {}) {
  Package package(ShippedTemplate("Template_calcolo_drav_calc.docx"));
  package.Put(
      kMain, std::string("<w:document ") + kNames + "><w:body>" + body + "<w:sectPr/></w:body></w:document>");
  change(package);
  return package.Bytes();
}

std::string Carrier() {
  return UsersDocument(
      "<w:p><w:r><w:t>[A_INDICE]</w:t></w:r></w:p><w:p><w:r><w:t>[A_CAPITOLI]</w:t></w:r></w:p>");
}

std::string Paragraph(const std::string& text, const std::string& properties = "") {
  return "<w:p>" + properties + "<w:r><w:t>" + text + "</w:t></w:r></w:p>";
}

TEST(WordBinder, WhatTwoTemplatesCallAlikeKeepsItsLooks) {
  const std::string body = Paragraph("testo", R"(<w:pPr><w:pStyle w:val="RelazioneTesto"/></w:pPr>)");
  WordBinder binder(Carrier());
  binder.Add("uno", UsersDocument(body));
  binder.Add("due", UsersDocument(body, [](Package& package) {
               std::string styles = package.Part("word/styles.xml");
               const std::string from = R"(<w:spacing w:before="40" w:after="40"/>)";
               styles.replace(styles.find(from, styles.find("RelazioneTesto\"")), from.size(),
                              R"(<w:spacing w:before="400" w:after="400"/>)");
               package.Put("word/styles.xml", styles);
             }));
  const Package package(binder.Bytes());
  EXPECT_THAT(FaultsOf(package), IsEmpty());
  const std::vector<std::string> styles = ValuesOf(package, "pStyle", "w:val");
  EXPECT_EQ(std::ranges::count(styles, "RelazioneTesto"), 1);
  EXPECT_EQ(std::ranges::count(styles, "RelazioneTesto2"), 1);
  EXPECT_THAT(package.Part("word/styles.xml"), HasSubstr(R"(w:styleId="RelazioneTesto2")"));
}

TEST(WordBinder, BookmarksAndTheirLinksAreKeptApart) {
  const std::string body =
      R"(<w:p><w:bookmarkStart w:id="1" w:name="qui"/><w:r><w:t>a</w:t></w:r><w:bookmarkEnd w:id="1"/>)"
      R"(<w:hyperlink w:anchor="qui"><w:r><w:t>b</w:t></w:r></w:hyperlink></w:p>)";
  WordBinder binder(Carrier());
  binder.Add("uno", UsersDocument(body));
  binder.Add("due", UsersDocument(body));
  const Package package(binder.Bytes());
  EXPECT_TRUE(AllDiffer(ValuesOf(package, "bookmarkStart", "w:name")));
  EXPECT_EQ(std::ranges::count(ValuesOf(package, "hyperlink", "w:anchor"), "qui_2"), 1);
}

TEST(WordBinder, ListsBeginAnewAndNotesKeepTheirText) {
  const std::string body =
      Paragraph("voce", R"(<w:pPr><w:numPr><w:ilvl w:val="0"/><w:numId w:val="1"/></w:numPr></w:pPr>)") +
      R"(<w:p><w:r><w:footnoteReference w:id="2"/></w:r></w:p>)";
  const auto with = [&](const std::string& note) {
    return UsersDocument(body, [&](Package& package) {
      package.Put("word/numbering.xml",
                  std::string("<w:numbering ") + kNames +
                      R"(><w:abstractNum w:abstractNumId="0"><w:nsid w:val="11"/></w:abstractNum>)"
                      R"(<w:num w:numId="1"><w:abstractNumId w:val="0"/></w:num></w:numbering>)");
      package.Put("word/footnotes.xml",
                  std::string("<w:footnotes ") + kNames + R"(><w:footnote w:type="separator" w:id="-1"/>)" +
                      R"(<w:footnote w:id="2">)" + Paragraph(note) + "</w:footnote></w:footnotes>");
      for (const char* kind : {"numbering", "footnotes"}) {
        const std::string part = std::string("word/") + kind + ".xml";
        AddRelationship(
            package, kMain,
            std::string("http://schemas.openxmlformats.org/officeDocument/2006/relationships/") + kind, part);
        AddContentType(
            package, part,
            std::string("application/vnd.openxmlformats-officedocument.wordprocessingml.") + kind + "+xml");
      }
    });
  };
  WordBinder binder(Carrier());
  binder.Add("uno", with("prima nota"));
  binder.Add("due", with("seconda nota"));
  const Package package(binder.Bytes());
  EXPECT_THAT(FaultsOf(package), IsEmpty());
  EXPECT_TRUE(AllDiffer(ValuesOf(package, "numId", "w:val")));
  EXPECT_TRUE(AllDiffer(ValuesOf(package, "footnoteReference", "w:id")));
  EXPECT_THAT(TextOf(package, "word/footnotes.xml"), HasSubstr("prima nota\nseconda nota"));
}

TEST(WordBinder, ADocumentWithoutAPlaceForChaptersIsRefused) {
  EXPECT_THROW(WordBinder(UsersDocument(Paragraph("x"))), TemplateFailure);
  WordBinder binder(Carrier());
  EXPECT_THROW(binder.Add("uno", "no document"), TemplateFailure);
}

}  // namespace
}  // namespace velmar::presentation
