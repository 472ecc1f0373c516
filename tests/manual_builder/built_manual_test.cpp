// The manual as the build made it.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "presentation/manual/manual_headings.h"
#include "storage/materials/material_store.h"
#include "tests/cli/spoken_command.h"
#include "tests/manual_builder/built_pdf.h"

namespace velmar::manual {
namespace {

namespace fs = std::filesystem;

std::string TextOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  EXPECT_TRUE(in) << file;
  return {std::istreambuf_iterator<char>(in), {}};
}

std::string ManualText() { return TextOf(fs::path(MANUAL) / "manuale/manuale.md"); }

std::vector<std::string> AllMatches(const std::string& text, const char* pattern) {
  const std::regex wanted(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator it(text.begin(), text.end(), wanted), end; it != end; ++it)
    found.push_back((*it)[1]);
  return found;
}

TEST(BuiltManual, HasEveryDirectiveReplaced) { EXPECT_EQ(ManualText().find("{{"), std::string::npos); }

TEST(BuiltManual, LeadsEveryLinkToOneHeading) {
  const std::string text = ManualText();
  std::multiset<std::string> anchors;
  for (const presentation::ManualHeading& heading : presentation::HeadingsIn(text))
    anchors.insert(heading.anchor);
  const std::vector<std::string> links = AllMatches(text, R"(\]\(#([^)]*)\))");
  EXPECT_GE(links.size(), 20U);
  for (const std::string& link : links) EXPECT_EQ(anchors.count(link), 1U) << link;
}

TEST(BuiltManual, HoldsItsPictures) {
  const std::vector<std::string> pictures = AllMatches(ManualText(), R"(\]\(([^)#]+\.png)\))");
  EXPECT_GE(pictures.size(), 20U);
  for (const std::string& picture : pictures)
    EXPECT_TRUE(fs::exists(fs::path(MANUAL) / "manuale" / picture)) << picture;
}

/// A whole number as print writes it.
std::string Whole(const nlohmann::json& value) {
  const int number = static_cast<int>(value.get<double>());
  return number < 0 ? "−" + std::to_string(-number) : std::to_string(number);
}

/// What "velmar run" says of an example, in the manual's words.
std::string ResultOf(const std::string& example) {
  cli::Services services = cli::BareServices();
  services.materials = storage::MaterialLookupIn(fs::path(SHARE) / "Databases/Database/Database.mdb");
  const cli::Said said = cli::Speak(
      {"run", std::string(EXAMPLES) + "/" + example + ".drav", "--json", "--answer", "yes"}, services);
  EXPECT_EQ(said.code, 0) << example << said.errors;
  const nlohmann::json json = said.Json();
  if (json.contains("Lnw")) return "Ln,w = " + Whole(json["Lnw"]) + " (Ci " + Whole(json["Ci"]) + ") dB";
  const std::string rating = "Rw = " + Whole(json["Rw"]);
  if (json.contains("DeltaRw")) return rating + " dB, ΔRw = " + Whole(json["DeltaRw"]) + " dB";
  return rating + " (C " + Whole(json["C"]) + "; Ctr " + Whole(json["Ctr"]) + ") dB";
}

TEST(BuiltManual, EndsEveryExampleWithWhatTheProgramComputes) {
  const std::string text = ManualText();
  const std::regex example(R"(Progetto `([^`]+)`)");
  int examples = 0;
  for (std::sregex_iterator it(text.begin(), text.end(), example), end; it != end; ++it) {
    const auto from = static_cast<std::size_t>(it->position());
    const std::string said = "Risultato: **" + ResultOf((*it)[1]) + "**";
    const std::size_t place = text.find("Risultato: **", from);
    ASSERT_NE(place, std::string::npos) << (*it)[1];
    EXPECT_EQ(text.substr(place, said.size()), said) << (*it)[1];
    ++examples;
  }
  EXPECT_EQ(examples, 10) << "one a family";
}

/// A number that begins a formula is no rating.
TEST(Chapters, TypeNoRatingByHand) {
  for (const auto& entry : fs::directory_iterator(CHAPTERS)) {
    const std::string name = entry.path().filename().string();
    if (name < "05" || name >= "15" || entry.path().extension() != ".md") continue;
    EXPECT_TRUE(AllMatches(TextOf(entry.path()), R"((\b(?:Rw|Ln,w) = [0-9]+\b(?! (?:\+|−))))").empty())
        << name;
  }
}

BuiltPdf ManualPdf() { return ReadPdf((fs::path(MANUAL) / "VELMARpro - Manuale d'uso.pdf").string()); }

TEST(ManualPdf, HasABookmarkForEveryHeading) {
  const BuiltPdf pdf = ManualPdf();
  std::vector<std::string> headings;
  for (const presentation::ManualHeading& heading : presentation::HeadingsIn(ManualText())) {
    if (heading.level > 1) headings.push_back(heading.title);
  }
  headings.emplace_back("Indice analitico");
  EXPECT_EQ(pdf.bookmarks, headings);
  EXPECT_THAT(pdf.bookmarks_without_a_page, testing::IsEmpty());
}

TEST(ManualPdf, HasLinksInItsContents) {
  const BuiltPdf pdf = ManualPdf();
  EXPECT_GT(pdf.page_count, 20U);
  EXPECT_GT(pdf.links_on_second_page, 20);
}

}  // namespace
}  // namespace velmar::manual
