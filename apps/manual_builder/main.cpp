// Makes the user manual at build time: one text in Markdown, with what the program computes today, for the
// window; and the same set for paper.
//   velmar-build-manual SHARE DATA MANUAL EXAMPLES OUT VERSION CHAPTER...
// SHARE is the shipped data folder, DATA the folder of the messages' tables, MANUAL the folder of the
// chapters and pictures, OUT gets "manuale/manuale.md" with its pictures and the PDF.
#include <QFile>
#include <QGuiApplication>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <clocale>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>
#include <stdexcept>

#include "application/accuracy_file.h"
#include "cli/commands/services.h"
#include "manual_builder/accuracy_figures.h"
#include "manual_builder/example_figures.h"
#include "manual_builder/front_pages.h"
#include "manual_builder/index_pages.h"
#include "manual_builder/lists.h"
#include "manual_builder/manual_pages.h"
#include "manual_builder/navigation.h"
#include "storage/materials/material_store.h"
#include "storage/messages/message_table_reader.h"

namespace {

namespace fs = std::filesystem;
using namespace velmar;

constexpr int kDotsPerInch = 300;
constexpr const char* kTitle = "VELMARpro - Manuale d'uso";
constexpr const char* kSubtitle =
    "Calcolo previsionale dell'isolamento acustico degli elementi edilizi: modelli, dati, limiti, errore "
    "verificato ed esempi svolti";

struct Places {
  fs::path share{};
  fs::path messages{};
  fs::path manual{};
  fs::path examples{};
  fs::path out{};
  std::string version{};
  std::vector<std::string> chapters{};
};

std::string TextOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + file.string());
  return {std::istreambuf_iterator<char>(in), {}};
}

/// All chapters, with what the program says today.
std::string ManualText(const Places& places) {
  const storage::MessageTable messages =
      storage::ReadMessageTable(places.share / "Databases/InterfMess.mdb", "Italiano");
  const fs::path materials = places.share / "Databases/Database/Database.mdb";
  const validation::Accuracy accuracy = application::ReadAccuracy(
      places.share / application::kValidationFolder / application::kPredictionsFile);
  cli::Services services;
  services.words = [&messages](MessageRow row) { return messages.Text(row); };
  services.materials = storage::MaterialLookupIn(materials);
  services.accuracy = [&accuracy] { return accuracy; };
  manual::ExampleFigures examples(places.examples, services);
  manual::Directives directives;
  examples.AddTo(directives);
  manual::AddAccuracyFigures(accuracy, services.words, directives);
  manual::AddCalculationLists(services.words, directives);
  manual::AddKeyList(services.words, directives);
  manual::AddMessageLists({places.messages / "catalogue.csv", places.messages / "texts.csv"},
                          places.manual / "messaggi.csv", directives);
  manual::AddCommandList(places.share, directives);
  manual::AddMaterialCounts(materials, directives);
  std::string text;
  int next = 1;
  for (const std::string& chapter : places.chapters) {
    text += manual::WithChapterNumbers(manual::Expand(TextOf(places.manual / chapter), directives, chapter),
                                       next);
    text += '\n';
  }
  return text;
}

/// Writes the text, and beside it the pictures that it names.
void WriteText(const std::string& text, const Places& places, const fs::path& folder) {
  fs::remove_all(folder);
  fs::create_directories(folder);
  const std::regex picture(R"(\]\(([^)#]+\.png)\))");
  for (std::sregex_iterator it(text.begin(), text.end(), picture), end; it != end; ++it) {
    const std::string name = (*it)[1];
    fs::copy_file(places.manual / name, folder / name, fs::copy_options::overwrite_existing);
  }
  std::ofstream out(folder / "manuale.md", std::ios::binary);
  out << text;
  out.close();
  if (!out) throw std::runtime_error("cannot write into " + folder.string());
}

/// What the PDF is made of.
struct Book {
  const manual::FrontPages& front;
  const manual::ManualPages& text;
  const manual::IndexPages& index;

  int Count() const { return front.Count() + text.Count() + index.Count(); }

  void PaintPage(QPainter& painter, int page) const {
    const int of_text = page - front.Count();
    if (of_text < 0) return front.PaintPage(painter, page);
    if (of_text < text.Count()) return text.PaintPage(painter, of_text);
    index.PaintPage(painter, of_text - text.Count());
  }
};

void Paint(const Book& book, const fs::path& file) {
  QPdfWriter writer(QString::fromStdString(file.string()));
  writer.setResolution(kDotsPerInch);
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setPageMargins({});
  writer.setTitle(kTitle);
  writer.setCreator("VELMARpro");
  QPainter painter;
  if (!painter.begin(&writer)) throw std::runtime_error("cannot write " + file.string());
  painter.scale(writer.width() / manual::PageLook::kPage.width(),
                writer.height() / manual::PageLook::kPage.height());
  for (int page = 0; page < book.Count(); ++page) {
    if (page > 0 && !writer.newPage()) throw std::runtime_error("cannot write " + file.string());
    book.PaintPage(painter, page);
    if (page > 0) manual::PaintFoot(painter, kTitle, QString::number(page + 1));
  }
  painter.end();
}

std::vector<std::string> TermsIn(const fs::path& file) {
  std::istringstream lines(TextOf(file));
  std::vector<std::string> terms;
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty()) terms.push_back(line);
  }
  return terms;
}

void WritePdf(const std::string& text, const Places& places, const fs::path& folder, const fs::path& file) {
  const manual::ManualPages pages(QString::fromStdString(text), QString::fromStdString(folder.string()));
  if (!pages.MissingPictures().isEmpty())
    throw std::runtime_error("no picture " + pages.MissingPictures().constFirst().toStdString());
  if (!pages.HoldsWholeText()) throw std::runtime_error("the text runs over its last page");
  if (const QString picture = pages.CaptionAlone(); !picture.isEmpty())
    throw std::runtime_error("the caption of " + picture.toStdString() + " stands on another page");
  std::vector<manual::PlacedHeading> headings = pages.Headings();
  std::vector<manual::PlacedLink> links = pages.Links();
  const std::vector<std::string> terms = TermsIn(places.manual / "indice-analitico.txt");
  const manual::FrontPages front("Manuale d'uso", kSubtitle,
                                 QString::fromStdString("Versione " + places.version), headings);
  const manual::IndexPages index(terms, pages, front.Count() + 1);
  const auto behind_front = [&](auto& placed) { placed.page += front.Count(); };
  std::ranges::for_each(headings, behind_front);
  std::ranges::for_each(links, behind_front);
  std::ranges::copy(front.Links(), std::back_inserter(links));
  headings.push_back({{2, "Indice analitico", "indice-analitico"}, front.Count() + pages.Count(), 0.0});
  Paint({front, pages, index}, file);
  manual::AddNavigation(file.string(), headings, links);
}

}  // namespace

int main(int count, char** arguments) {
  QGuiApplication application(count, arguments);
  std::setlocale(LC_NUMERIC, "C");
  if (count < 8) {
    std::fprintf(stderr, "velmar-build-manual SHARE DATA MANUAL EXAMPLES OUT VERSION CHAPTER...\n");
    return 2;
  }
  const Places places{arguments[1],
                      arguments[2],
                      arguments[3],
                      arguments[4],
                      arguments[5],
                      arguments[6],
                      {arguments + 7, arguments + count}};
  try {
    const std::string text = ManualText(places);
    WriteText(text, places, places.out / "manuale");
    WritePdf(text, places, places.out / "manuale", places.out / "VELMARpro - Manuale d'uso.pdf");
    return 0;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "velmar-build-manual: %s\n", failure.what());
    return 1;
  }
}
