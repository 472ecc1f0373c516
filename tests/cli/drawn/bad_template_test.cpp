#include <filesystem>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "cli/commands/project_run.h"
#include "cli/drawn/drawn_formats.h"
#include "foundation/failure.h"
#include "presentation/documents/package.h"
#include "storage/materials/material_store.h"
#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::cli {
namespace {

using presentation::Package;

/// What is done to each shipped template; `part` is its main part.
struct BadTemplate {
  const char* name;
  std::function<std::string(const std::string& good, const std::string& part)> spoil;
};

std::string WithEntity(const std::string& good, const std::string& part, const std::string& entity) {
  Package package(good);
  std::string xml = package.Part(part);
  const std::size_t root = xml.find('<', xml.find("?>") + 2);
  package.Put(part, xml.insert(root, "<!DOCTYPE d [" + entity + "]>"));
  return package.Bytes();
}

std::string With(const std::string& good, const std::string& path, const std::string& bytes) {
  Package package(good);
  package.Put(path, bytes);
  return package.Bytes();
}

class BadTemplateTest : public testing::TestWithParam<BadTemplate> {
 protected:
  BadTemplateTest() {
    for (const auto& entry : std::filesystem::directory_iterator(SHIPPED "/Templates")) {
      const bool word = entry.path().extension() == ".docx";
      if (!word && entry.path().extension() != ".xlsx") continue;
      storage::WriteFile(folder_ / entry.path().filename(),
                         GetParam().spoil(storage::ReadFile(entry.path()),
                                          word ? "word/document.xml" : "xl/worksheets/sheet1.xml"));
    }
  }

  storage::TemporaryFolder folder_;
};

TEST_P(BadTemplateTest, IsRefusedInWords) {
  const auto materials = storage::MaterialLookupIn(SHIPPED "/Databases/Database/Database.mdb");
  for (const char* example : {"parete-forato-intonacata", "facciata", "calpestio-galleggiante"}) {
    const ProjectRun run =
        RunProject(std::filesystem::path(EXAMPLES) / (std::string(example) + ".drav"), materials, true);
    const ReportContent content{.name = example,
                                .setup = run.setup,
                                .result = run.outcome.result.value(),
                                .totals = run.totals,
                                .words = presentation::CatalogueWords()};
    for (const ReportFormat& format : DrawnFormats({.templates = folder_.Path()})) {
      if (format.extension != "docx" && format.extension != "xlsx") continue;
      try {
        format.bytes(content);
        ADD_FAILURE() << example << " " << format.extension;
      } catch (const Failure& failure) {
        EXPECT_FALSE(failure.UserMessage().empty());
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Ways, BadTemplateTest,
    testing::Values(BadTemplate{"Empty", [](auto&, auto&) { return std::string(); }},
                    BadTemplate{"NoPackage", [](auto&, auto&) { return std::string("Relazione"); }},
                    BadTemplate{"CutOff", [](auto& good, auto&) { return good.substr(0, good.size() / 2); }},
                    BadTemplate{"ExternalEntity",
                                [](auto& good, auto& part) {
                                  return WithEntity(good, part, R"(<!ENTITY e SYSTEM "file:///etc/passwd">)");
                                }},
                    BadTemplate{"GrowingEntities",
                                [](auto& good, auto& part) {
                                  return WithEntity(good, part,
                                                    R"(<!ENTITY a "aaaa"><!ENTITY b "&a;&a;&a;">)");
                                }},
                    BadTemplate{"PathTraversal",
                                [](auto& good, auto&) { return With(good, "../../outside.xml", "<a/>"); }},
                    BadTemplate{"ZipBomb",
                                [](auto& good, auto&) {
                                  return With(good, "bomb.xml",
                                              std::string(Package::kMostBytesOfAPart + 1, ' '));
                                }}),
    [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace velmar::cli
