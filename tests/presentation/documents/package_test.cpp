#include "presentation/documents/package.h"

#include <cstdint>
#include <ostream>
#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "foundation/message_rows.h"
#include "presentation/documents/template_failure.h"
#include "presentation/documents/zip_archive.h"
#include "presentation/reports/excel_report.h"
#include "presentation/reports/word_report.h"
#include "tests/presentation/documents/opened_report.h"

namespace velmar::presentation {
namespace {

using testing::ElementsAre;

int RowOfRefusal(const std::string& bytes, bool excel = false) {
  const ReportRecord record = RecordOf(ReportCases().front());
  try {
    if (excel) {
      WriteExcelReport(bytes, record);
    } else {
      WriteWordReport(bytes, record);
    }
  } catch (const TemplateFailure& failure) {
    return LeadingRow(failure.UserMessage().front()).number;
  }
  return 0;
}

std::string Calc() { return ShippedTemplate("Template_calcolo_drav_calc.docx"); }

std::string With(const std::string& part, const std::string& bytes) {
  Package package(Calc());
  package.Put(part, bytes);
  return package.Bytes();
}

std::string Without(const std::string& part) {
  Package package(Calc());
  package.Remove(part);
  return package.Bytes();
}

std::string WithText(const std::string& part, const std::string& from, const std::string& to) {
  Package package(Calc());
  std::string bytes = package.Part(part);
  bytes.replace(bytes.find(from), from.size(), to);
  package.Put(part, bytes);
  return package.Bytes();
}

struct Hostile {
  std::string name{};

  void PrintTo(const Hostile& value, std::ostream* out) { *out << value.name; }
  std::string (*make)() = nullptr;
  MessageRow row{};
};

class HostileTemplateTest : public testing::TestWithParam<Hostile> {};

TEST_P(HostileTemplateTest, IsRefusedInWords) {
  EXPECT_EQ(RowOfRefusal(GetParam().make()), GetParam().row.number);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, HostileTemplateTest,
    testing::Values(
        Hostile{"Empty", [] { return std::string(); }, kTemplateDamagedRow},
        Hostile{"NoZip", [] { return std::string(5000, 'x'); }, kTemplateDamagedRow},
        Hostile{"Spreadsheet", [] { return ShippedTemplate(kExcelTemplateName); }, kTemplateDamagedRow},
        Hostile{"Password", [] { return "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1" + std::string(4000, '\0'); },
                kTemplateProtectedRow},
        Hostile{"Traversal", [] { return With("../evil.xml", "<a/>"); }, kTemplateHostileRow},
        Hostile{"Absolute", [] { return With("/etc/evil.xml", "<a/>"); }, kTemplateHostileRow},
        Hostile{"Backslash", [] { return With("word\\evil.xml", "<a/>"); }, kTemplateHostileRow},
        Hostile{"TwoOfOneName", [] { return With("WORD/document.xml", "<a/>"); }, kTemplateHostileRow},
        Hostile{"Bomb",
                [] { return With("word/big.bin", std::string(Package::kMostBytesOfAPart + 1, '\0')); },
                kTemplateTooLargeRow},
        Hostile{"Entity",
                [] {
                  return WithText("word/document.xml", "<w:document",
                                  "<!DOCTYPE w [<!ENTITY x SYSTEM \"file:///etc/passwd\">]><w:document");
                },
                kTemplateHostileRow},
        Hostile{"TooDeep",
                [] {
                  std::string deep;
                  for (int i = 0; i < 100000; ++i) deep += "<w:a>";
                  for (int i = 0; i < 100000; ++i) deep += "</w:a>";
                  return With("word/document.xml", "<w:document>" + deep + "</w:document>");
                },
                kTemplateHostileRow},
        Hostile{"LinkLeavesThePackage",
                [] { return WithText("word/_rels/document.xml.rels", "header1.xml", "../../../x.xml"); },
                kTemplateHostileRow},
        Hostile{"BrokenXml", [] { return With("word/document.xml", "<w:document><w:body>"); },
                kTemplateDamagedRow},
        Hostile{"NoBody", [] { return With("word/document.xml", "<w:document/>"); }, kTemplateDamagedRow},
        Hostile{"NoDocument", [] { return Without("word/document.xml"); }, kTemplateDamagedRow},
        Hostile{"NoTypes", [] { return Without("[Content_Types].xml"); }, kTemplateDamagedRow},
        Hostile{"NoLinks", [] { return Without("_rels/.rels"); }, kTemplateDamagedRow},
        Hostile{"NoHeader", [] { return Without("word/header1.xml"); }, kTemplateDamagedRow}),
    [](const auto& test) { return test.param.name; });

TEST(Package, IsRefusedWhereverItIsCut) {
  for (const bool excel : {false, true}) {
    const std::string whole = excel ? ShippedTemplate(kExcelTemplateName) : Calc();
    for (std::size_t size = 0; size < whole.size(); size += 97) {
      EXPECT_NE(RowOfRefusal(whole.substr(0, size), excel), 0) << size;
    }
  }
}

TEST(Package, SurvivesAnyDamage) {
  std::mt19937 random(20260);
  for (int round = 0; round < 400; ++round) {
    const bool excel = round % 2 == 1;
    std::string bytes = excel ? ShippedTemplate(kExcelTemplateName) : Calc();
    const int hits = 1 + static_cast<int>(random() % 20);
    for (int hit = 0; hit < hits; ++hit) bytes[random() % bytes.size()] = static_cast<char>(random());
    const int row = RowOfRefusal(bytes, excel);
    EXPECT_TRUE(row == 0 || (row >= kTemplateDamagedRow.number && row <= kTemplateTooLargeRow.number))
        << round;
  }
}

/// Damage inside the parts, which the checksums of the ZIP do not see.
TEST(Package, SurvivesDamagedParts) {
  std::mt19937 random(712);
  for (int round = 0; round < 400; ++round) {
    const bool excel = round % 2 == 1;
    Package package(excel ? ShippedTemplate(kExcelTemplateName) : Calc());
    const std::vector<std::string> names = package.Names();
    const std::string& name = names[random() % names.size()];
    std::string bytes = package.Part(name);
    const std::size_t begin = random() % bytes.size();
    bytes.erase(begin, random() % 60);
    package.Put(name, bytes);
    const int row = RowOfRefusal(package.Bytes(), excel);
    EXPECT_TRUE(row == 0 || (row >= kTemplateDamagedRow.number && row <= kTemplateTooLargeRow.number))
        << name;
  }
}

TEST(Package, KeepsWhatIsNotChanged) {
  const std::string original =
      MakePackage({{"a.xml", "<a/>"}, {"b.bin", std::string(3000, 'b')}, {"c.xml", "<c/>"}});
  Package package(original);
  package.Put("a.xml", "<a>1</a>");
  package.Put("d.xml", "<d/>");
  package.Remove("c.xml");
  const Package again(package.Bytes());
  EXPECT_THAT(again.Names(), ElementsAre("a.xml", "b.bin", "d.xml"));
  EXPECT_EQ(again.Part("a.xml"), "<a>1</a>");
  EXPECT_EQ(again.Part("b.bin"), std::string(3000, 'b'));
  EXPECT_EQ(package.Bytes(), package.Bytes());
}

}  // namespace
}  // namespace velmar::presentation
