#include "tests/presentation/documents/opened_report.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <ostream>
#include <stdexcept>

#include "presentation/documents/paragraph_text.h"
#include "presentation/documents/relationships.h"
#include "presentation/documents/xml_part.h"
#include "presentation/texts/results_table.h"
#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/presentation/sample_setups.h"

namespace velmar::presentation {
namespace {

elements::ResultSet ImpactResult() {
  elements::ResultSet result;
  acoustics::Spectrum spectrum{};
  for (std::size_t i = 0; i < spectrum.size(); ++i) spectrum[i] = 66.04 - 1.31 * static_cast<double>(i);
  result.spectrum = spectrum;
  result.shift = 3.0;
  result.lnw = 57.0;
  result.ci = -3.0;
  result.delta_lnw = 24.34;
  return result;
}

elements::ResultSet GenericLiningResult() {
  elements::ResultSet result;
  result.rw = 64.0;
  result.delta_rw = 12.0;
  return result;
}

elements::ResultSet WithImprovement(elements::ResultSet result, double delta_rw) {
  result.delta_rw = delta_rw;
  return result;
}

/// A facade has a band without a value, and a mass of its own.
elements::ResultSet FacadeResult() {
  elements::ResultSet result = samples::Result(44.0, 1.1);
  (*result.spectrum)[0] = 0.0;
  result.mass_kg_m2 = 233.456;
  return result;
}

}  // namespace

std::string ShippedTemplate(std::string_view name) {
  std::ifstream file(std::string(VELMAR_TEMPLATES "/") + std::string(name), std::ios::binary);
  if (!file) throw std::runtime_error("no template " + std::string(name));
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string TextOf(const Package& package, const std::string& part) {
  const pugi::xml_document document = ParseXml(package.Part(part), part);
  std::string text;
  for (const pugi::xml_node paragraph : ParagraphsOf(document))
    text += ParagraphText(paragraph).Text() + "\n";
  return text;
}

std::vector<std::string> FaultsOf(const Package& package) {
  std::vector<std::string> faults;
  const pugi::xml_document types = ParseXml(package.Part("[Content_Types].xml"), "types");
  const pugi::xml_node list = types.document_element();
  for (const std::string& name : package.Names()) {
    const std::string extension = name.substr(name.rfind('.') + 1);
    if (extension == "xml" || extension == "rels") {
      pugi::xml_document document;
      const std::string& bytes = package.Part(name);
      if (!document.load_buffer(bytes.data(), bytes.size(), pugi::parse_full))
        faults.push_back(name + ": no XML");
    }
    if (!list.find_child_by_attribute("Override", "PartName", ("/" + name).c_str()) &&
        !list.find_child_by_attribute("Default", "Extension", extension.c_str())) {
      if (name != "[Content_Types].xml") faults.push_back(name + ": no content type");
    }
    for (const Relationship& link : RelationshipsOf(package, name)) {
      if (!package.Has(link.target)) faults.push_back(name + ": link to missing " + link.target);
    }
  }
  return faults;
}

std::optional<OpenedCell> CellOf(const Package& package, const std::string& name) {
  const std::string part = "xl/worksheets/sheet1.xml";
  const pugi::xml_document document = ParseXml(package.Part(part), part);
  const pugi::xml_node cell = document.find_node([&](pugi::xml_node node) {
    return std::string_view(node.name()) == "c" && name == node.attribute("r").value();
  });
  if (!cell || !cell.first_child()) return std::nullopt;
  const bool text = std::string_view(cell.attribute("t").value()) == "inlineStr";
  return OpenedCell{.text = text ? cell.child("is").child("t").text().get() : cell.child("v").text().get(),
                    .number = !text,
                    .style = cell.attribute("s").as_int()};
}

void PrintTo(const ReportCase& report_case, std::ostream* out) { *out << report_case.name; }

std::vector<ReportCase> ReportCases() {
  using elements::Calculation;
  std::vector<ReportCase> cases = {
      {"BrickWall", samples::PlasteredBrickWall(), samples::Result(), {150.0, 141.0}},
      {"PlasterboardWall", samples::PlasterboardDoubleWall(), samples::Result(46.0, 1.3), {150.0, 44.675}},
      {"SeaWall", samples::FullSeaWall(), samples::Result(51.0, 1.2), {222.0, 71.625}},
      {"ManyLayers", samples::ManyThinLayers(10), samples::Result(), {340.0, 34.0}},
      {"ImpactFloor", samples::FloatingFloor(), ImpactResult(), {373.0, 720.28}},
      {"GenericLining", samples::Lining(Calculation::kLiningGeneric), GenericLiningResult(), {339.0, 337.7}},
      {"Lining",
       samples::Lining(Calculation::kLiningFrame),
       WithImprovement(samples::Result(56.0, 1.9), 9.0),
       {339.0, 337.7}},
      {"Ceiling",
       samples::Lining(Calculation::kCeilingSea),
       WithImprovement(samples::Result(56.0, 1.9), 9.0),
       {339.0, 337.7}},
      {"Facade", samples::FacadeOfNine(), FacadeResult(), {}},
  };
  cases.push_back({"SimplifiedFacade", samples::FacadeOfNine(), FacadeResult(), {}});
  cases.back().setup.facade.simplified = true;
  cases.back().result.spectrum.reset();
  for (ReportCase& report_case : cases) samples::TellTheProject(report_case.setup);
  return cases;
}

ReportRecord RecordOf(const ReportCase& report_case) {
  const Words words = CatalogueWords();
  std::optional<Picture> chart;
  if (ShownBands(report_case.setup) && report_case.result.spectrum) {
    chart = Picture{.png = "\x89PNG\r\n\x1a\n picture",
                    .width_emu = 4000000,
                    .height_emu = 3000000,
                    .alternative_text = ChartDescription(report_case.setup, report_case.result, words)};
  }
  ReportPictures pictures{.chart = std::move(chart)};
  if (report_case.setup.calculation != elements::Calculation::kCompositeElement) {
    pictures.section.wide =
        Picture{.png = "\x89PNG wide",
                .svg = "<svg xmlns=\"http://www.w3.org/2000/svg\"/>",
                .width_emu = 6084000,
                .height_emu = 1728000,
                .alternative_text = SectionDescription(report_case.totals.thickness_mm, words)};
    // Twenty layers find no room beside their table.
    if (report_case.name != "ManyLayers") {
      pictures.section.small = pictures.section.wide;
      pictures.section.small->width_emu = 2052000;
      pictures.section.small->height_emu = 2016000;
    }
  }
  Provenance provenance{.program = "VELMARpro 2.1.0",
                        .date = "22/11/2026",
                        .project_file = report_case.name + ".drav",
                        .fingerprint = std::string(64, 'a')};
  provenance.sources.structural = [](const auto& one) { return "Hopkins 2007, " + one.name; };
  return ReportRecordOf(report_case.setup, report_case.result, report_case.totals, words, std::move(pictures),
                        {}, provenance);
}

}  // namespace velmar::presentation
